#include "viewer/CommandLine.h"
#include "viewer/Display.h"
#include "viewer/ExportRun.h"
#include "viewer/FailureText.h"
#include "viewer/SampleLog.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QQuickWindow>

#include <cstdio>

namespace
{

void sayError(const QString &text)
{
    std::fprintf(stderr, "datalog-viewer: %s\n", qUtf8Printable(text));
}

void say(const QString &text)
{
    std::printf("%s\n", qUtf8Printable(text));
}

QStringList argumentList(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int explain(const CommandLine &commandLine, int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (commandLine.options().action == ViewerOptions::ShowHelp)
        std::printf("%s", qUtf8Printable(commandLine.helpText()));
    else
        say(QStringLiteral("datalog-viewer " DATALOG_VERSION));
    return 0;
}

/** Where the plot goes when there is no display and nobody said where. */
QString unaskedFile(const QString &logFile)
{
    const QString name = QFileInfo(logFile).completeBaseName() + QStringLiteral("-plot.png");
    const bool isWritable = QFileInfo(QDir::currentPath()).isWritable();
    return (isWritable ? QDir::current() : QDir::temp()).absoluteFilePath(name);
}

int exportPlot(const ViewerOptions &options, const QString &logFile)
{
    const bool isAsked = !options.exportFile.isEmpty();
    const QString file = isAsked ? options.exportFile : unaskedFile(logFile);
    ExportRun run(options);
    const ExportRun::Status status = run.run(logFile, file);
    if (status != ExportRun::Done)
        sayError(run.errorText());
    else if (!isAsked)
        say(QCoreApplication::translate("main", "There is no display: the plot of %1 is in %2")
                .arg(QFileInfo(logFile).fileName(), file));
    return status;
}

int showWindow(const ViewerOptions &options, const QString &logFile)
{
    Display::chooseRenderer();
    ViewerWindow viewer(options);
    if (!viewer.window())
        return ExportRun::UnusableFile;
    int status = ExportRun::Done;
    QObject::connect(&viewer, &ViewerWindow::usageError, [](const QString &text) {
        sayError(text);
        QCoreApplication::exit(ExportRun::WrongUsage);
    });
    QObject::connect(&viewer, &ViewerWindow::failed, [&status](const QString &text) {
        sayError(text);
        status = ExportRun::UnusableFile;
    });
    QObject::connect(&viewer, &ViewerWindow::opened, [&status] { status = ExportRun::Done; });
    viewer.open(logFile);
    const int exitCode = QCoreApplication::exec();
    return exitCode != 0 ? exitCode : status;
}

} // namespace

int main(int argc, char *argv[])
{
    CommandLine commandLine;
    if (!commandLine.parse(argumentList(argc, argv))) {
        sayError(commandLine.errorText());
        return ExportRun::WrongUsage;
    }
    const ViewerOptions &options = commandLine.options();
    if (options.action != ViewerOptions::Show)
        return explain(commandLine, argc, argv);

    const bool isExport = !options.exportFile.isEmpty() || !Display::isPresent();
    if (isExport)
        Display::doWithout();
    Display::dropSessionRemarks();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    // Qt has options of its own, a --style among them, and must not see ours.
    int nameOnly = 1;
    const QApplication application(nameOnly, argv);
    QCoreApplication::setApplicationName(QStringLiteral("datalog-viewer"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("DataLog"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DATALOG_VERSION));

    const QScopedPointer<SampleLog> sample(options.file.isEmpty() ? new SampleLog : nullptr);
    const QString logFile = sample ? sample->path() : options.file;
    if (logFile.isEmpty()) {
        sayError(QCoreApplication::translate(
            "main", "the bundled sample can't be put into a temporary directory"));
        return ExportRun::UnusableFile;
    }
    return isExport ? exportPlot(options, logFile) : showWindow(options, logFile);
}
