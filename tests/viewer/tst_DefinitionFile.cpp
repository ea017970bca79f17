#include "viewer/DefinitionFile.h"

#include "PlottedLog.h"
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"
#include "viewer/DefinitionFormat.h"
#include "viewer/VariableChoice.h"

#include <QtTest>

class tst_DefinitionFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void knowsKinds_data();
    void knowsKinds();
    void writesASession();
    void writesXml();
    void tellsWhatXmlLoses_data();
    void tellsWhatXmlLoses();
    void readsXml();
    void addsXmlToWhatIsThere();
    void readsXmlWithoutAnything();
    void refusesFiles_data();
    void refusesFiles();
    void refusesToWrite_data();
    void refusesToWrite();
    void keepsTheOldFileWithoutSpace_data();
    void keepsTheOldFileWithoutSpace();
    void keepsTheOldFileInAReadOnlyDirectory();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    QString write(const QString &name, const QByteArray &text) const;
    QByteArray content(const QString &name) const;

    QScopedPointer<QTemporaryDir> m_directory;
};

namespace
{

enum Setting { Plain, Operator, Digits, Inactive, DataSet, Window, Step, Excluded, Style, Scale };

void set(PlottedLog *log, Setting setting)
{
    switch (setting) {
    case Plain:
        log->addCriterion("T", 0, 25.5f);
        break;
    case Operator:
        log->addCriterion("T", 0, 1);
        log->addCriterion("T", 1, 25.5f);
        log->addCriterion("CO2", 5, 2);
        break;
    case Digits:
        log->addCriterion("T", 0, 25.12345f);
        break;
    case Inactive:
        log->addCriterion("T", 0, 25);
        log->source.updateCriteriaSelection(0, false);
        break;
    case DataSet:
        log->dataSets.show(1);
        break;
    case Window:
        log->source.setObservationFilterType(LogObservationSortFilterProxyModel::Head);
        break;
    case Step:
        log->source.setObservationFrequency(2);
        break;
    case Excluded:
        log->exclude(3);
        break;
    case Style:
        log->view.setSymbolsEnabled(LogViewerItem::RightAxis, true);
        break;
    case Scale:
        log->view.setAxisScale(LogViewerItem::LeftAxis, 1, 2);
        break;
    }
}

/** As a viewer starts. */
void start(PlottedLog *log)
{
    log->source.setObservationFilterType(LogObservationSortFilterProxyModel::All);
    log->view.setLinesEnabled(LogViewerItem::LeftAxis, true);
    log->view.setLinesEnabled(LogViewerItem::RightAxis, true);
}

} // namespace

void tst_DefinitionFile::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

QString tst_DefinitionFile::write(const QString &name, const QByteArray &text) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("the file of the test can't be written");
    return file.fileName();
}

QByteArray tst_DefinitionFile::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_DefinitionFile::knowsKinds_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("kind");

    QTest::newRow("session") << "a.json" << int(DefinitionFormat::Session);
    QTest::newRow("session, capitals") << "a.JSON" << int(DefinitionFormat::Session);
    QTest::newRow("xml") << "dir.json/a.b.Xml" << int(DefinitionFormat::Xml);
    QTest::newRow("other") << "a.json.txt" << int(DefinitionFormat::Unknown);
    QTest::newRow("none") << "json" << int(DefinitionFormat::Unknown);
    QTest::newRow("no name") << ".xml" << int(DefinitionFormat::Unknown);
    QTest::newRow("empty") << "" << int(DefinitionFormat::Unknown);
}

void tst_DefinitionFile::knowsKinds()
{
    QFETCH(QString, file);
    QTEST(int(DefinitionFormat::ofFile(file)), "kind");
}

void tst_DefinitionFile::writesASession()
{
    PlottedLog log;
    log.addCriterion("T", 4, 25.1f);
    DefinitionFile file(path("a.JSON"));
    QVERIFY2(file.write(&log.dataSets, &log.view), qPrintable(file.errorText()));
    QCOMPARE(file.remarks(), QStringList());
    QVERIFY(content("a.JSON").contains("\"format\": \"DataLog session\""));
    SessionState state;
    QVERIFY(file.read(&state));
    QCOMPARE(file.remarks(), QStringList());
    QCOMPARE(state.criteria.size(), 1);
    QCOMPARE(state.criteria.at(0).operatorIndex, 4);
    QCOMPARE(state.criteria.at(0).value, 25.1f);
    QVERIFY(state.replacesCriteria);
    // Nothing else is left behind.
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("a.JSON"));
}

void tst_DefinitionFile::writesXml()
{
    PlottedLog log;
    start(&log);
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "T"
                << "RH";
    choice.applyTo(&log.source);
    set(&log, Plain);
    DefinitionFile file(path("a.xml"));
    QVERIFY2(file.write(&log.dataSets, &log.view), qPrintable(file.errorText()));
    QCOMPARE(file.remarks(), QStringList());
    QCOMPARE(content("a.xml"),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<GraphDefinition version=\"1.0\" instrument=\"RV-3140\">\n"
                        "    <BottomAxis name=\"Obs\"/>\n"
                        "    <LeftAxis>\n"
                        "        <LeftVar name=\"T\"/>\n"
                        "        <LeftVar name=\"RH\"/>\n"
                        "    </LeftAxis>\n"
                        "    <RightAxis/>\n"
                        "    <Criteria>\n"
                        "        <Expression name=\"T\" op=\"&gt;\" value=\"25.5\"/>\n"
                        "    </Criteria>\n"
                        "</GraphDefinition>\n"));
}

void tst_DefinitionFile::tellsWhatXmlLoses_data()
{
    QTest::addColumn<int>("setting");
    QTest::addColumn<QString>("loss");

    const auto row = [](const char *name, Setting setting, const char *loss) {
        QTest::newRow(name) << int(setting) << loss;
    };
    row("nothing", Plain, "");
    row("operators", Operator, "the operator of \"T>=25.5\", \"CO2!=2\", which reads back as >");
    row("digits", Digits, "digits beyond the sixth of \"T>25.1234\"");
    row("inactive", Inactive, "that \"T>25\" is off");
    row("data set", DataSet, "the data set");
    row("window", Window, "the range of rows");
    row("step", Step, "the range of rows");
    row("excluded", Excluded, "the excluded rows");
    row("style", Style, "lines and symbols");
    row("scale", Scale, "the fixed scales");
}

void tst_DefinitionFile::tellsWhatXmlLoses()
{
    QFETCH(int, setting);
    QFETCH(QString, loss);
    PlottedLog log;
    start(&log);
    set(&log, Setting(setting));
    DefinitionFile file(path("a.xml"));
    QVERIFY2(file.write(&log.dataSets, &log.view), qPrintable(file.errorText()));
    QStringList remarks;
    if (!loss.isEmpty())
        remarks << path("a.xml") + ": XML does not keep " + loss
                + ". A definition that ends in .json keeps everything.";
    QCOMPARE(file.remarks(), remarks);
}

void tst_DefinitionFile::readsXml()
{
    PlottedLog log;
    start(&log);
    DefinitionFile file(write("a.xml",
                              "<GraphDefinition><BottomAxis name=\"Time\"/><LeftVar name=\"RH\"/>"
                              "<LeftVar name=\"Q\"/><RightVar name=\"T\"/><RightVar name=\"Z\"/>"
                              "<Expression name=\"T\" op=\"&lt;\" value=\"25.5\"/>"
                              "<Expression name=\"T\" op=\"2\" value=\"29\"/>"
                              "<Expression name=\"Y\" op=\"2\" value=\"1\"/></GraphDefinition>"));
    SessionState state;
    QVERIFY2(file.read(&state), qPrintable(file.errorText()));
    file.apply(state, &log.dataSets, &log.view);
    const QString name = path("a.xml") + ": ";
    QCOMPARE(file.remarks(),
             (QStringList{name
                              + "XML does not keep operators: these criteria read as "
                                "\"T>25.5\", whatever they were; check them",
                          name + "the log has no variable for its criteria on \"Y\"",
                          name + "there are no variables \"Q\", \"Z\" in data set 1"}));
    const VariableChoice choice = VariableChoice::of(&log.source);
    QCOMPARE(choice.x, QStringList{"Time"});
    QCOMPARE(choice.left, QStringList{"RH"});
    QCOMPARE(choice.right, QStringList{"T"});
    QCOMPARE(log.source.activeFilterModel()->rowCount(), 2);
    QCOMPARE(log.source.activeFilterModel()->item(1)->text(), QString("T<29"));
    QCOMPARE(log.source.YRightData().value("T").value(0), (QVector<double>{26.5, 27.5, 28.5}));
}

/** It says nothing about the rest, which stays. */
void tst_DefinitionFile::addsXmlToWhatIsThere()
{
    PlottedLog log;
    start(&log);
    for (Setting setting : {DataSet, Operator, Step, Excluded, Style, Scale})
        set(&log, setting);
    log.exclude(1);
    const SessionState before = log.state();
    DefinitionFile file(write("a.xml",
                              "<a><LeftVar name=\"T\"/>"
                              "<Expression name=\"T\" op=\"3\" value=\"7\"/></a>"));
    SessionState state;
    QVERIFY2(file.read(&state), qPrintable(file.errorText()));
    file.apply(state, &log.dataSets, &log.view);
    QCOMPARE(file.remarks(), QStringList());
    const SessionState after = log.state();
    QCOMPARE(after.criteria.size(), before.criteria.size() + 1);
    QCOMPARE(after.dataSet, before.dataSet);
    QCOMPARE(after.step, before.step);
    QCOMPARE(after.excludedRows.text(), QString("2"));
    QCOMPARE(after.graphDefinition, before.graphDefinition);
    QCOMPARE(VariableChoice::of(&log.source).left, QStringList{"T"});
}

void tst_DefinitionFile::readsXmlWithoutAnything()
{
    PlottedLog log;
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "T";
    choice.applyTo(&log.source);
    DefinitionFile file(write("a.xml", "<svg><g/></svg>"));
    SessionState state;
    QVERIFY(file.read(&state));
    file.apply(state, &log.dataSets, &log.view);
    QCOMPARE(file.remarks(),
             QStringList{path("a.xml") + ": it names no variables and no criteria"});
    QCOMPARE(VariableChoice::of(&log.source).left, QStringList{"T"});
}

void tst_DefinitionFile::refusesFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("cause");

    const auto row
        = [](const char *title, const char *name, const QByteArray &text, const char *cause) {
              QTest::newRow(title) << QString(name) << text << QString(cause);
          };
    row("other kind", "a.txt", "{}", "the name of a definition ends in .json or .xml");
    row("session, empty", "a.json", "", "it is no JSON: illegal value at byte 0");
    row("session, other JSON", "a.json", "{}", "it is no session of this viewer");
    row("session that is XML", "a.json", "<a/>", "it is no JSON: illegal value at byte 1");
    row("too large", "a.json", QByteArray(16 * 1024 * 1024 + 1, ' '),
        "it is too large for a definition");
    row("xml, too large", "a.xml", QByteArray(16 * 1024 * 1024 + 1, ' '),
        "it is too large for a definition");
    row("xml, empty", "a.xml", "", "Premature end of document.");
    row("xml that is a session", "a.xml", "{}", "Premature end of document.");
    row("xml, cut short", "a.xml", "<a><LeftVar name=\"T\"/>", "Premature end of document.");
    row("xml, unknown operator", "a.xml", "<Expression name=\"T\" op=\"6\" value=\"1\"/>",
        "there is no operator 6");
    row("xml, many criteria", "a.xml",
        "<a>" + QByteArray("<Expression name=\"T\" op=\"1\" value=\"1\"/>").repeated(1001) + "</a>",
        "it has more than 1000 criteria");
}

void tst_DefinitionFile::refusesFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    QFETCH(QString, cause);
    DefinitionFile file(write(name, text));
    SessionState state;
    QVERIFY(!file.read(&state));
    QCOMPARE(file.errorText(), path(name) + ": " + cause);
    QCOMPARE(file.remarks(), QStringList());
}

void tst_DefinitionFile::refusesToWrite_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("cause");

    QTest::newRow("other kind") << "a.txt"
                                << "the name of a definition ends in .json or .xml";
    QTest::newRow("missing directory") << "missing/a.json"
                                       << "No such file or directory";
    QTest::newRow("missing directory, xml") << "missing/a.xml"
                                            << "No such file or directory";
    QTest::newRow("directory") << "dir.json"
                               << "Filename refers to a directory";
    QTest::newRow("below a file") << "file/a.json"
                                  << "Not a directory";
}

void tst_DefinitionFile::refusesToWrite()
{
    QFETCH(QString, file);
    QFETCH(QString, cause);
    QVERIFY(QDir(m_directory->path()).mkdir("dir.json"));
    write("file", "x");
    PlottedLog log;
    set(&log, Excluded); // a loss is not told where nothing was written
    DefinitionFile definition(path(file));
    QVERIFY(!definition.write(&log.dataSets, &log.view));
    QCOMPARE(definition.errorText(), path(file) + ": can't be written: " + cause);
    QCOMPARE(definition.remarks(), QStringList());
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{"dir.json", "file"}));
}

void tst_DefinitionFile::keepsTheOldFileWithoutSpace_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("session") << "a.json";
    QTest::newRow("xml") << "a.xml";
}

void tst_DefinitionFile::keepsTheOldFileWithoutSpace()
{
    QFETCH(QString, name);
    PlottedLog log;
    write(name, "old");
    DefinitionFile file(path(name));
    {
        const FullDisk disk(100);
        QVERIFY(!file.write(&log.dataSets, &log.view));
    }
    QVERIFY2(file.errorText().startsWith(path(name) + ": can't be written: "),
             qPrintable(file.errorText()));
    QCOMPARE(content(name), QByteArray("old"));
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(name));
    QVERIFY(file.write(&log.dataSets, &log.view));
    QVERIFY(content(name) != "old");
}

void tst_DefinitionFile::keepsTheOldFileInAReadOnlyDirectory()
{
    PlottedLog log;
    write("a.json", "old");
    DefinitionFile file(path("a.json"));
    QFile::setPermissions(m_directory->path(),
                          QFile::ReadUser | QFile::ExeUser | QFile::ReadOther | QFile::ExeOther);
    bool isWritten = true;
    {
        const OrdinaryUser user;
        isWritten = file.write(&log.dataSets, &log.view);
    }
    QFile::setPermissions(m_directory->path(), QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    QVERIFY(!isWritten);
    QCOMPARE(file.errorText(), path("a.json") + ": can't be written: Permission denied");
    QCOMPARE(content("a.json"), QByteArray("old"));
}

QTEST_MAIN(tst_DefinitionFile)
#include "tst_DefinitionFile.moc"
