#include "TemporaryLog.h"
#include "ViewerProcess.h"

#include <QImage>
#include <QtTest>

/** The viewer as a program: what it writes, says and returns. */
class tst_ViewerProcess : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void explainsItself();
    void tellsItsVersion();
    void exportsTheSample();
    void exportsToTheSize();
    void usesTheAxesColors_data();
    void usesTheAxesColors();
    void drawsWhatSuitsWhenNothingIsChosen();
    void drawsThePartAskedFor();
    void drawsAnotherDataSet();
    void writesOtherFormats_data();
    void writesOtherFormats();
    void writesTheData();
    void exportsRelativeToTheCallersDirectory();
    void overwritesAnEarlierPlot();
    void drawsAFileWithoutDisplay();
    void takesNoNoticeOfAPlatformThatShowsNothing();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void refusesUnusableFiles_data();
    void refusesUnusableFiles();
    void refusesToWriteWhereItCannot();

private:
    int run(const QStringList &arguments) { return m_viewer->run(arguments); }
    QImage plot(const QStringList &arguments);
    static bool hasColor(const QImage &image, const char *color);

    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<ViewerProcess> m_viewer;
};

namespace
{

const char kLeftColor[] = "#D90C00";
const char kSecondLeftColor[] = "#E67300";
const char kRightColor[] = "#0B7A1E";

} // namespace

void tst_ViewerProcess::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
    m_viewer.reset(new ViewerProcess(m_directory->path()));
    m_viewer->hideDisplay();
}

QImage tst_ViewerProcess::plot(const QStringList &arguments)
{
    const QString file = m_directory->filePath("plot.png");
    QFile::remove(file);
    const int status = run(arguments + QStringList{"--export", file});
    if (status != 0 || !m_viewer->errors().isEmpty() || !m_viewer->output().isEmpty())
        qWarning("%d: %s%s", status, qPrintable(m_viewer->errors()),
                 qPrintable(m_viewer->output()));
    return QImage(file);
}

bool tst_ViewerProcess::hasColor(const QImage &image, const char *color)
{
    const QRgb wanted = QColor(color).rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == wanted)
                return true;
        }
    }
    return false;
}

void tst_ViewerProcess::explainsItself()
{
    QCOMPARE(run({"--help"}), 0);
    QVERIFY(m_viewer->output().contains("--criterion <TEXT>"));
    QCOMPARE(m_viewer->errors(), QString());
}

void tst_ViewerProcess::tellsItsVersion()
{
    QCOMPARE(run({"--version"}), 0);
    QCOMPARE(m_viewer->output(), QString("datalog-viewer " DATALOG_VERSION "\n"));
}

void tst_ViewerProcess::exportsTheSample()
{
    const QImage image = plot({"--x", "Obs", "--left", "Tair", "--right", "RH"});
    QCOMPARE(image.size(), QSize(1280, 800));
    QVERIFY(hasColor(image, kLeftColor));
    QVERIFY(hasColor(image, kRightColor));
}

void tst_ViewerProcess::exportsToTheSize()
{
    QCOMPARE(plot({"--size", "640x400"}).size(), QSize(640, 400));
}

void tst_ViewerProcess::usesTheAxesColors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("left");
    QTest::addColumn<bool>("secondLeft");
    QTest::addColumn<bool>("right");

    QTest::newRow("left") << QStringList{"--left", "Tair"} << true << false << false;
    QTest::newRow("two left") << QStringList{"--left", "Tair", "--left", "RH"} << true << true
                              << false;
    QTest::newRow("right") << QStringList{"--right", "RH"} << false << false << true;
    QTest::newRow("both") << QStringList{"--left", "Tair", "--right", "RH"} << true << false
                          << true;
    QTest::newRow("symbols") << QStringList{"--left",  "Tair",    "--right", "RH",
                                            "--style", "symbols", "--range", "head:20"}
                             << true << false << true;
}

void tst_ViewerProcess::usesTheAxesColors()
{
    QFETCH(QStringList, arguments);
    const QImage image = plot(arguments);
    QVERIFY(!image.isNull());
    QTEST(hasColor(image, kLeftColor), "left");
    QTEST(hasColor(image, kSecondLeftColor), "secondLeft");
    QTEST(hasColor(image, kRightColor), "right");
}

void tst_ViewerProcess::drawsWhatSuitsWhenNothingIsChosen()
{
    QCOMPARE(plot({}), plot({"--x", "Obs", "--left", "Tair", "--right", "CO2"}));
    QCOMPARE(plot({"--x", "Time"}), plot({"--x", "Time", "--left", "Tair", "--right", "CO2"}));
    QCOMPARE(plot({"--right", "RH"}), plot({"--x", "Obs", "--right", "RH"}));
}

void tst_ViewerProcess::drawsThePartAskedFor()
{
    const QImage whole = plot({"--left", "Tair"});
    const QImage head = plot({"--left", "Tair", "--range", "head:50"});
    const QImage tail = plot({"--left", "Tair", "--range", "tail:50"});
    const QImage every = plot({"--left", "Tair", "--every", "400"});
    const QImage filtered = plot({"--left", "Tair", "--criterion", "Tair>=25.5"});
    const QList<QImage> images{whole, head, tail, every, filtered};
    for (int i = 0; i < images.size(); ++i) {
        QVERIFY(hasColor(images.at(i), kLeftColor));
        for (int j = 0; j < i; ++j)
            QVERIFY2(images.at(i) != images.at(j), qPrintable(QString("%1 and %2").arg(i).arg(j)));
    }
    QCOMPARE(plot({"--left", "Tair", "--range", "head:50", "--range", "all"}), whole);
}

void tst_ViewerProcess::drawsAnotherDataSet()
{
    const TemporaryLog log(TemporaryLog::withUnits());
    const QImage first = plot({"--left", "T", log.path()});
    const QImage second = plot({"--left", "T", "--data-set", "2", log.path()});
    // The same variable stands elsewhere in the second data set.
    const TemporaryLog alone("[Header]\nCreated\t2020-01-02\n[Data]\nSys\tSys\tAir\nObs\tTime\tT\n"
                             "\t-\tC\n1\t11:00:00\t1.5\n2\t11:00:01\t2.5\n3\t11:00:02\t3.5\n");
    QVERIFY(!first.isNull());
    QVERIFY(first != second);
    QCOMPARE(second, plot({"--left", "T", alone.path()}));
}

void tst_ViewerProcess::writesOtherFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");

    QTest::newRow("svg") << "plot.svg" << QByteArray("<?xml");
    QTest::newRow("pdf") << "plot.pdf" << QByteArray("%PDF-");
}

void tst_ViewerProcess::writesOtherFormats()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    QCOMPARE(run({"--export", name}), 0);
    QFile file(m_directory->filePath(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith(start));
    if (name.endsWith(".svg"))
        QVERIFY(content.contains(QByteArray(kLeftColor).toLower()));
}

void tst_ViewerProcess::writesTheData()
{
    QCOMPARE(run({"--x", "Obs", "--left", "Tair", "--right", "RH", "--criterion", "Tair>23.2",
                  "--range", "head:6", "--export", "data.csv"}),
             0);
    QCOMPARE(m_viewer->errors() + m_viewer->output(), QString());
    QFile file(m_directory->filePath("data.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split("\r\n");
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines.at(0), QString::fromUtf8("Obs,Tair (°C),RH (%)"));
    QCOMPARE(lines.mid(4), (QStringList{"1,,52.5", "2,23.31,52.3", "3,23.33,52.7", ""}));
}

void tst_ViewerProcess::exportsRelativeToTheCallersDirectory()
{
    QVERIFY(QFile::copy(DATALOG_SOURCE_DIR "/examples/logs/one-block.log",
                        m_directory->filePath("my.log")));
    QCOMPARE(run({"my.log", "--export", "plot.png"}), 0);
    QVERIFY(QFile::exists(m_directory->filePath("plot.png")));
}

void tst_ViewerProcess::overwritesAnEarlierPlot()
{
    QFile earlier(m_directory->filePath("plot.png"));
    QVERIFY(earlier.open(QIODevice::WriteOnly));
    earlier.write("something else");
    earlier.close();
    QCOMPARE(run({"--export", "plot.png"}), 0);
    QCOMPARE(QImage(earlier.fileName()).size(), QSize(1280, 800));
}

void tst_ViewerProcess::drawsAFileWithoutDisplay()
{
    const TemporaryLog log;
    QCOMPARE(run({log.path()}), 0);
    const QString file = m_directory->filePath("test-plot.png");
    QCOMPARE(m_viewer->output(), "There is no display: the plot of test.log is in " + file + "\n");
    QCOMPARE(m_viewer->errors(), QString());
    QCOMPARE(QImage(file).size(), QSize(1280, 800));
}

void tst_ViewerProcess::takesNoNoticeOfAPlatformThatShowsNothing()
{
    m_viewer->setVariable("QT_QPA_PLATFORM", "offscreen");
    const QString log = m_directory->filePath("test.log");
    QVERIFY(QFile::copy(DATALOG_SOURCE_DIR "/examples/logs/one-block.log", log));
    QCOMPARE(run({log}), 0);
    QVERIFY2(m_viewer->output().startsWith("There is no display: "),
             qPrintable(m_viewer->output()));
}

void tst_ViewerProcess::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QStringList &arguments, const char *error) {
        QTest::newRow(name) << arguments << QString::fromUtf8(error);
    };
    row("option", {"--rigth", "RH"}, "there is no option \"rigth\"; did you mean --right?");
    row("number", {"--every", "x"}, "--every needs a number from 1 on, not \"x\"");
    row("format", {"--export", "data.gif"},
        "--export needs a file name that ends in .png, .svg, .pdf or .csv, not \"data.gif\"");
    row("x", {"--x", "Obss"}, "there is no variable \"Obss\" in data set 1; did you mean Obs?");
    row("left", {"--left", "Tiar"},
        "there is no variable \"Tiar\" in data set 1; did you mean Tair?");
    row("right, case", {"--right", "rhset"},
        "there is no variable \"rhset\" in data set 1; did you mean RHset?");
    row("nothing like it", {"--left", "Voltage"},
        "there is no variable \"Voltage\" in data set 1; it has Obs, Time, Step, Door, Tcase, …");
    row("variable of a criterion", {"--criterion", "Tleef>3"},
        "there is no variable \"Tleef\" in data set 1; did you mean Tleaf?");
    row("variable of another data set", {"--data-set", "2", "--left", "Tleaf"},
        "there is no variable \"Tleaf\" in data set 2; it has Obs, Time, Tset, Tair, RHset, …");
    row("data set", {"--data-set", "4"}, "there is no data set 4; the log has 3");
}

void tst_ViewerProcess::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(run(arguments), 2);
    QCOMPARE(m_viewer->errors(), "datalog-viewer: " + error + "\n");
    QCOMPARE(m_viewer->output(), QString());
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList());
}

void tst_ViewerProcess::refusesUnusableFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("cause");

    const QString broken = DATALOG_SOURCE_DIR "/examples/logs/broken/";
    QTest::newRow("missing") << "missing.log"
                             << "there is no such file";
    QTest::newRow("directory") << "/"
                               << "it is a directory";
    QTest::newRow("device") << "/dev/null"
                            << "it is no ordinary file";
    QTest::newRow("no log") << broken + "no-header-mark.log"
                            << "Log File must start with [Header] section.";
    QTest::newRow("empty") << broken + "empty.log"
                           << "there is no data in it";
    QTest::newRow("no columns") << broken + "ends-after-data-mark.log"
                                << "there is no data in it";
}

void tst_ViewerProcess::refusesUnusableFiles()
{
    QFETCH(QString, file);
    QFETCH(QString, cause);
    QCOMPARE(run({file}), 1);
    QCOMPARE(m_viewer->errors(), "datalog-viewer: " + file + ": " + cause + "\n");
    QCOMPARE(m_viewer->output(), QString());
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList());
}

void tst_ViewerProcess::refusesToWriteWhereItCannot()
{
    QCOMPARE(run({"--export", "missing/plot.png"}), 1);
    QCOMPARE(m_viewer->errors(),
             QString("datalog-viewer: missing/plot.png: can't be written: "
                     "No such file or directory\n"));
}

QTEST_GUILESS_MAIN(tst_ViewerProcess)
#include "tst_ViewerProcess.moc"
