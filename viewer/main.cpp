#include "viewer/CommandLine.h"
#include "viewer/Display.h"
#include "viewer/ExportRun.h"
#include "viewer/FailureText.h"
#include "viewer/FileNameCodec.h"
#include "viewer/SampleLog.h"
#include "viewer/Translations.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
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
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

int explain(const CommandLine &commandLine)
{
    if (commandLine.options().action == ViewerOptions::ShowHelp)
        std::printf("%s", qUtf8Printable(commandLine.helpText()));
    else
        say(QStringLiteral("datalog-viewer " DATALOG_VERSION));
    return 0;
}

/**
 * False when that is all, with the exit status. Only what the arguments say tells which kind of
 * application is needed, but texts are translated within one only.
 */
bool readArguments(const QStringList &arguments, int &argc, char *argv[], ViewerOptions *options,
                   int *status)
{
    const QCoreApplication application(argc, argv);
    const Translations translations;
    CommandLine commandLine;
    if (!commandLine.parse(arguments)) {
        sayError(commandLine.errorText());
        *status = ExportRun::WrongUsage;
        return false;
    }
    *options = commandLine.options();
    if (options->action == ViewerOptions::Show)
        return true;
    *status = explain(commandLine);
    return false;
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
    const QStringList remarks = run.remarks();
    for (const QString &remark : remarks)
        sayError(remark);
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
    ViewerWindow viewer(options, Preferences::userFile());
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
    int definitionStatus = ExportRun::Done;
    QObject::connect(&viewer, &ViewerWindow::definitionFailed,
                     [&definitionStatus](const QString &text) {
                         sayError(text);
                         definitionStatus = ExportRun::UnusableFile;
                     });
    QObject::connect(&viewer, &ViewerWindow::remarked, sayError);
    if (options.file.isEmpty())
        viewer.leaveOutOfRecent(logFile); // the sample goes with the program
    viewer.open(logFile);
    const int exitCode = QCoreApplication::exec();
    return exitCode != 0 ? exitCode : qMax(status, definitionStatus);
}

} // namespace

int main(int argc, char *argv[])
{
    FileNameCodec::install();
    // Qt has options of its own, a --style among them, and must not see ours.
    int nameOnly = 1;
    ViewerOptions options;
    int status = ExportRun::Done;
    if (!readArguments(argumentList(argc, argv), nameOnly, argv, &options, &status))
        return status;

    const bool isExport = !options.exportFile.isEmpty() || !Display::isPresent();
    if (isExport)
        Display::doWithout();
    Display::dropSessionRemarks();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const QApplication application(nameOnly, argv);
    const Translations translations;
    QCoreApplication::setApplicationName(QStringLiteral("datalog-viewer"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("DataLog"));
    QGuiApplication::setDesktopFileName(QStringLiteral("datalog-viewer"));
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
