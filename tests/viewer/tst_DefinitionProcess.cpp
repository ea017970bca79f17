#include "TemporaryLog.h"
#include "ViewerProcess.h"

#include <QDir>
#include <QImage>
#include <QtTest>

/** Definitions on the command line of the program: what it writes, says and returns. */
class tst_DefinitionProcess : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void drawsTheSame();
    void keepsWhatXmlHolds();
    void savesWithoutAnExport();
    void tellsWhatTheLogHasNot();
    void refusesUnusableFiles_data();
    void refusesUnusableFiles();
    void refusesWrongUsage_data();
    void refusesWrongUsage();

private:
    int run(const QStringList &arguments) { return m_viewer->run(arguments); }
    QByteArray content(const char *name) const;
    QStringList files() const { return QDir(m_directory->path()).entryList(QDir::Files); }

    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<ViewerProcess> m_viewer;
};

void tst_DefinitionProcess::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
    m_viewer.reset(new ViewerProcess(m_directory->path()));
    m_viewer->hideDisplay();
}

QByteArray tst_DefinitionProcess::content(const char *name) const
{
    QFile file(m_directory->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_DefinitionProcess::drawsTheSame()
{
    QCOMPARE(run({"--data-set",  "2",           "--x",
                  "Time",        "--left",      "Tair",
                  "--left",      "RH",          "--right",
                  "Tset",        "--criterion", "Tair>=25.3",
                  "--criterion", "RH!=50",      "--range",
                  "tail:300",    "--every",     "7",
                  "--style",     "both",        "--save-definition",
                  "a.json",      "--export",    "a.png"}),
             0);
    QCOMPARE(m_viewer->errors(), QString());
    QCOMPARE(run({"--definition", "a.json", "--save-definition", "b.JSON", "--export", "b.png"}),
             0);
    QCOMPARE(m_viewer->errors() + m_viewer->output(), QString());
    QVERIFY(!content("a.json").isEmpty());
    QCOMPARE(content("b.JSON"), content("a.json"));
    QVERIFY(!QImage(m_directory->filePath("a.png")).isNull());
    QCOMPARE(QImage(m_directory->filePath("b.png")), QImage(m_directory->filePath("a.png")));
    // An option beside it makes another picture, and only of what it is about.
    QCOMPARE(run({"--definition", "a.json", "--every", "8", "--export", "c.png"}), 0);
    QVERIFY(QImage(m_directory->filePath("c.png")) != QImage(m_directory->filePath("a.png")));
    QCOMPARE(run({"--definition", "a.json", "--every", "7", "--export", "c.png"}), 0);
    QCOMPARE(QImage(m_directory->filePath("c.png")), QImage(m_directory->filePath("a.png")));
}

void tst_DefinitionProcess::keepsWhatXmlHolds()
{
    QCOMPARE(run({"--left", "RH", "--right", "Tair", "--criterion", "RH>40", "--save-definition",
                  "a.xml", "--export", "a.png"}),
             0);
    QCOMPARE(m_viewer->errors(), QString());
    QCOMPARE(run({"--definition", "a.xml", "--export", "b.png"}), 0);
    QCOMPARE(m_viewer->errors(),
             QString("datalog-viewer: a.xml: XML does not keep operators: these criteria read as "
                     "\"RH>40\", whatever they were; check them\n"));
    QCOMPARE(QImage(m_directory->filePath("b.png")), QImage(m_directory->filePath("a.png")));
    QCOMPARE(run({"--left", "RH", "--criterion", "RH<40", "--every", "2", "--save-definition",
                  "a.xml", "--export", "a.png"}),
             0);
    QCOMPARE(m_viewer->errors(),
             QString("datalog-viewer: a.xml: XML does not keep the operator of \"RH<40\", which "
                     "reads back as >; the range of rows. A definition that ends in .json keeps "
                     "everything.\n"));
}

void tst_DefinitionProcess::savesWithoutAnExport()
{
    const TemporaryLog log;
    QCOMPARE(run({log.path(), "--left", "RH", "--save-definition", "a.json"}), 0);
    QCOMPARE(files(), (QStringList{"a.json", "test-plot.png"}));
}

void tst_DefinitionProcess::tellsWhatTheLogHasNot()
{
    const TemporaryLog log;
    QCOMPARE(run({"--left", "Tair", "--save-definition", "a.json", "--export", "a.png"}), 0);
    QCOMPARE(run({log.path(), "--definition", "a.json", "--export", "b.png"}), 0);
    QCOMPARE(m_viewer->errors(),
             QString("datalog-viewer: a.json: there is no variable \"Tair\" in data set 1\n"));
    QVERIFY(!QImage(m_directory->filePath("b.png")).isNull());
}

void tst_DefinitionProcess::refusesUnusableFiles_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << QStringList{"--definition", "a.json"}
                             << "a.json: there is no such file";
    QTest::newRow("directory") << QStringList{"--definition", "dir.json"}
                               << "dir.json: it is a directory";
    QTest::newRow("no session") << QStringList{"--definition", "broken.json"}
                                << "broken.json: it is no JSON: unterminated object at byte 1";
    QTest::newRow("no xml") << QStringList{"--definition", "broken.xml"}
                            << "broken.xml: Premature end of document.";
    QTest::newRow("not to be written") << QStringList{"--save-definition", "missing/a.xml"}
                                       << "missing/a.xml: can't be written: "
                                          "No such file or directory";
}

void tst_DefinitionProcess::refusesUnusableFiles()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QVERIFY(QDir(m_directory->path()).mkdir("dir.json"));
    const QMap<QString, QByteArray> broken{{"broken.json", "{"}, {"broken.xml", "<a>"}};
    for (auto it = broken.constBegin(); it != broken.constEnd(); ++it) {
        QFile file(m_directory->filePath(it.key()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(it.value());
    }
    const QStringList before = files();
    QCOMPARE(run(arguments + QStringList{"--export", "plot.png"}), 1);
    QCOMPARE(m_viewer->errors(), "datalog-viewer: " + error + "\n");
    QCOMPARE(m_viewer->output(), QString());
    QCOMPARE(files(), before);
}

void tst_DefinitionProcess::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("kind") << QStringList{"--definition", "a.txt"}
                          << "--definition needs a file name that ends in .json or .xml, not "
                             "\"a.txt\"";
    QTest::newRow("kind to save") << QStringList{
        "--save-definition",
        "a"} << "--save-definition needs a file name that ends in .json or .xml, not \"a\"";
    QTest::newRow("nothing is saved beside a wrong option")
        << QStringList{"--left", "Tiar", "--save-definition", "a.json"}
        << "there is no variable \"Tiar\" in data set 1; did you mean Tair?";
}

void tst_DefinitionProcess::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(run(arguments), 2);
    QCOMPARE(m_viewer->errors(), "datalog-viewer: " + error + "\n");
    QCOMPARE(files(), QStringList());
}

QTEST_GUILESS_MAIN(tst_DefinitionProcess)
#include "tst_DefinitionProcess.moc"
