#include "graphdef/LogDataDefinitionWriter.h"

#include "datasource/LogDataSourceItem.h"
#include "support/FullDisk.h"
#include "support/MessageCapture.h"
#include "support/SmallDisk.h"
#include "support/SpecialFiles.h"
#include "support/TestCompat.h"

#include <QBuffer>
#include <QProcess>
#include <QScopedPointer>
#include <QXmlStreamWriter>

namespace
{

const char kLog[] = "[Header]\n"
                    "Created:\t2026-03-01\n"
                    "[Data]\n"
                    "Sys\tGas\tAir\tAir\n"
                    "Time\tCO2\tTair\tRH\n"
                    "s\tppm\tC\t%\n"
                    "0\t400\t20.5\t50\n";

} // namespace

/** What is written, as text and as another program's XML parser reads it. */
class tst_LogDataDefinitionWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void addsNothingToTheMetaObject();
    void refusesNoSource();
    void writesNothingChecked();
    void writesEverything();
    void writesFollowingTheModels();
    void writesOperators_data();
    void writesOperators();
    void writesValues_data();
    void writesValues();
    void writesNames_data();
    void writesNames();
    void writesSeveralHorizontalVariables();
    void writesInactiveCriteriaAlike();
    void leavesARowWithoutACriterionOpen();
    void writesARowOfANullCriterion();
    void passesOverMissingItems();
    void replacesTheFile();
    void isSilentAboutAFileThatCannotBeWritten();
    void keepsTheOldFileWithoutRoom();
    void keepsTheOldFileOnAFullOrReadOnlyDisk();
    void leavesSpecialFilesAlone();
    void keepsThePlaceholderOutOfFiles();
    void writesThePlaceholder();
    void writesElementsByThemselves();

private:
    void addCriterion(const char *variable, int filterOperator, float value);
    QByteArray written();
    QString xpath(const char *expression);

    TempDir m_dir;
    QString m_path;
    QScopedPointer<LogDataSourceItem> m_source;
};

void tst_LogDataDefinitionWriter::init()
{
    m_path = m_dir.filePath(QLatin1String("definition.xml"));
    QFile::remove(m_path);
    m_source.reset(new LogDataSourceItem);
    m_source->setLogFilePath(m_dir.write(QLatin1String("log.txt"), kLog));
    QCOMPARE(m_source->xVariableModel()->rowCount(), 4);
}

void tst_LogDataDefinitionWriter::addCriterion(const char *variable, int filterOperator,
                                               float value)
{
    LogDataSetFilter::Builder builder;
    builder.variable(QLatin1String(variable)).filterOperator(filterOperator).value(value);
    m_source->addFilter(new LogDataSetFilter(&builder, nullptr));
}

/** Writes the source's definition and returns the file's bytes. */
QByteArray tst_LogDataDefinitionWriter::written()
{
    LogDataDefinitionWriter writer;
    QFile file(m_path);
    if (!writer.writeDataSource(m_source.data(), m_path) || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

/** What the other parser finds in the written file; its error when it can't read it. */
QString tst_LogDataDefinitionWriter::xpath(const char *expression)
{
    QProcess parser;
    parser.start(QLatin1String("xmllint"),
                 QStringList() << QLatin1String("--xpath") << QLatin1String(expression) << m_path);
    if (!parser.waitForFinished())
        return parser.errorString();
    const QByteArray errors = parser.readAllStandardError();
    if (!errors.isEmpty())
        return QString::fromUtf8(errors);
    QString found = QString::fromUtf8(parser.readAllStandardOutput());
    found.chop(1);
    return found;
}

void tst_LogDataDefinitionWriter::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = LogDataDefinitionWriter::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("LogDataDefinitionWriter"));
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QObject"));
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QObject parent;
    QCOMPARE((new LogDataDefinitionWriter(&parent))->parent(), &parent);
}

void tst_LogDataDefinitionWriter::refusesNoSource()
{
    LogDataDefinitionWriter writer;
    QVERIFY(!writer.writeDataSource(nullptr, m_path));
    writer.startGraphDefinition(nullptr, m_path);
    QVERIFY(!QFile::exists(m_path));
    QCOMPARE(writer.errorMessage(), QString());
}

void tst_LogDataDefinitionWriter::writesNothingChecked()
{
    m_source.reset(new LogDataSourceItem);
    QCOMPARE(written(),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<GraphDefinition version=\"1.0\" instrument=\"RV-3140\">\n"
                        "    <BottomAxis/>\n"
                        "    <LeftAxis/>\n"
                        "    <RightAxis/>\n"
                        "    <Criteria/>\n"
                        "</GraphDefinition>\n"));
    QCOMPARE(xpath("count(//*)"), QString::fromLatin1("5"));
    QCOMPARE(xpath("count(//*/*/@*)"), QString::fromLatin1("0"));
}

void tst_LogDataDefinitionWriter::writesEverything()
{
    m_source->updateVariableSelection(0, 0, true);
    m_source->updateVariableSelection(1, 2, true);
    m_source->updateVariableSelection(1, 1, true);
    m_source->updateVariableSelection(2, 3, true);
    addCriterion("Tair", LogDataSetFilter::GreaterThanOrEqual, 25.5f);
    addCriterion("CO2", LogDataSetFilter::LessThan, 1000);
    QCOMPARE(written(),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<GraphDefinition version=\"1.0\" instrument=\"RV-3140\">\n"
                        "    <BottomAxis name=\"Time\"/>\n"
                        "    <LeftAxis>\n"
                        "        <LeftVar name=\"CO2\"/>\n"
                        "        <LeftVar name=\"Tair\"/>\n"
                        "    </LeftAxis>\n"
                        "    <RightAxis>\n"
                        "        <RightVar name=\"RH\"/>\n"
                        "    </RightAxis>\n"
                        "    <Criteria>\n"
                        "        <Expression name=\"Tair\" op=\"&gt;=\" value=\"25.5\"/>\n"
                        "        <Expression name=\"CO2\" op=\"&lt;\" value=\"1000\"/>\n"
                        "    </Criteria>\n"
                        "</GraphDefinition>\n"));
    QCOMPARE(xpath("concat(/GraphDefinition/@version,' ',/GraphDefinition/@instrument)"),
             QString::fromLatin1("1.0 RV-3140"));
    QCOMPARE(xpath("string(/GraphDefinition/BottomAxis/@name)"), QString::fromLatin1("Time"));
    QCOMPARE(xpath("string(/*/LeftAxis/LeftVar[1]/@name)"), QString::fromLatin1("CO2"));
    QCOMPARE(xpath("string(/*/LeftAxis/LeftVar[2]/@name)"), QString::fromLatin1("Tair"));
    QCOMPARE(xpath("string(/*/RightAxis/RightVar/@name)"), QString::fromLatin1("RH"));
    QCOMPARE(xpath("concat(//Expression[1]/@name,//Expression[1]/@op,//Expression[1]/@value)"),
             QString::fromLatin1("Tair>=25.5"));
    QCOMPARE(xpath("concat(//Expression[2]/@name,//Expression[2]/@op,//Expression[2]/@value)"),
             QString::fromLatin1("CO2<1000"));
    QCOMPARE(xpath("count(//*)"), QString::fromLatin1("10"));
}

void tst_LogDataDefinitionWriter::writesFollowingTheModels()
{
    m_source->updateVariableSelection(1, 1, true);
    QVERIFY(!written().isEmpty());
    QCOMPARE(xpath("count(//LeftVar)"), QString::fromLatin1("1"));
    m_source->updateVariableSelection(1, 1, false);
    // Only what is wholly checked counts.
    m_source->yVariableModel()->item(2)->setData(Qt::PartiallyChecked, Qt::CheckStateRole);
    QVERIFY(!written().isEmpty());
    QCOMPARE(xpath("count(//LeftVar)"), QString::fromLatin1("0"));
}

void tst_LogDataDefinitionWriter::writesOperators_data()
{
    QTest::addColumn<int>("filterOperator");
    QTest::addColumn<QString>("text");

    for (int i = 0; i < LogDataSetFilter::operators.size(); ++i) {
        const QString text = LogDataSetFilter::operators.at(i);
        QTest::newRow(text.toLatin1().constData()) << i << text;
    }
    QTest::newRow("none of these") << 6 << "";
}

void tst_LogDataDefinitionWriter::writesOperators()
{
    QFETCH(int, filterOperator);
    addCriterion("x", filterOperator, 1);
    QVERIFY(!written().isEmpty());
    QTEST(xpath("string(//Expression/@op)"), "text");
}

void tst_LogDataDefinitionWriter::writesValues_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("integer") << 400.0f << "400";
    QTest::newRow("fraction") << 0.1f << "0.1";
    QTest::newRow("negative") << -2.5f << "-2.5";
    QTest::newRow("six digits") << 123456.789f << "123457";
    QTest::newRow("large") << 1234567.0f << "1.23457e+06";
    QTest::newRow("small") << 0.00001f << "1e-05";
}

void tst_LogDataDefinitionWriter::writesValues()
{
    QFETCH(float, value);
    addCriterion("x", 0, value);
    QVERIFY(!written().isEmpty());
    QTEST(xpath("string(//Expression/@value)"), "text");
}

void tst_LogDataDefinitionWriter::writesNames_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("markup") << QString::fromLatin1("a<b>&\"c'");
    QTest::newRow("entity") << QString::fromLatin1("&amp;");
    QTest::newRow("beyond ASCII") << QString::fromUtf8("\xc2\xb5mol m\xe2\x81\xbb\xc2\xb2");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x8c\xbf");
    QTest::newRow("blanks") << QString::fromLatin1("  two  blanks ");
    QTest::newRow("nothing") << QString();
}

void tst_LogDataDefinitionWriter::writesNames()
{
    QFETCH(QString, name);
    m_source->yVariableModel()->item(0)->setText(name);
    m_source->updateVariableSelection(1, 0, true);
    QVERIFY(!written().isEmpty());
    QCOMPARE(xpath("count(//LeftVar/@name)"), QString::fromLatin1("1"));
    QTEST(xpath("string(//LeftVar/@name)"), "name");
}

/** Not well-formed, and known to be so: one horizontal variable is the normal case. */
void tst_LogDataDefinitionWriter::writesSeveralHorizontalVariables()
{
    m_source->updateVariableSelection(0, 0, true);
    m_source->updateVariableSelection(0, 2, true);
    QVERIFY(written().contains("<BottomAxis name=\"Time\" name=\"Tair\"/>"));
    QVERIFY(xpath("//BottomAxis").contains(QLatin1String("Attribute name redefined")));
}

void tst_LogDataDefinitionWriter::writesInactiveCriteriaAlike()
{
    addCriterion("CO2", 0, 1);
    const QByteArray active = written();
    m_source->updateCriteriaSelection(0, false);
    QCOMPARE(written(), active);
    QVERIFY(active.contains("<Expression name=\"CO2\" op=\"&gt;\" value=\"1\"/>"));
}

void tst_LogDataDefinitionWriter::leavesARowWithoutACriterionOpen()
{
    m_source->activeFilterModel()->appendRow(new QStandardItem);
    QVERIFY(written().contains("    <Criteria>\n"
                               "        <Expression/>\n"
                               "    </Criteria>\n"));
    // The element is closed only where the next end is written, so what follows goes inside.
    QStandardItem *row = new QStandardItem;
    row->setData(QVariant::fromValue(static_cast<LogDataSetFilter *>(nullptr)));
    m_source->activeFilterModel()->appendRow(row);
    QVERIFY(written().contains("    <Criteria>\n"
                               "        <Expression>\n"
                               "            <Expression/>\n"
                               "        </Expression>\n"
                               "    </Criteria>\n"));
    QCOMPARE(xpath("count(/GraphDefinition/Criteria/Expression/Expression)"),
             QString::fromLatin1("1"));
}

void tst_LogDataDefinitionWriter::writesARowOfANullCriterion()
{
    QStandardItem *row = new QStandardItem;
    row->setData(QVariant::fromValue(static_cast<LogDataSetFilter *>(nullptr)));
    m_source->activeFilterModel()->appendRow(row);
    QVERIFY(written().contains("<Expression/>"));
}

void tst_LogDataDefinitionWriter::passesOverMissingItems()
{
    QStandardItemModel *models[] = {m_source->xVariableModel(), m_source->yVariableModel(),
                                    m_source->zVariableModel(), m_source->activeFilterModel()};
    for (int i = 0; i < 4; ++i)
        models[i]->setRowCount(models[i]->rowCount() + 2);
    m_source->updateVariableSelection(2, 3, true);
    QVERIFY(!written().isEmpty());
    QCOMPARE(xpath("count(//*)"), QString::fromLatin1("6"));
    QCOMPARE(xpath("string(//RightVar/@name)"), QString::fromLatin1("RH"));
}

void tst_LogDataDefinitionWriter::replacesTheFile()
{
    m_source->updateVariableSelection(1, 1, true);
    const QByteArray once = written();
    m_dir.write(QLatin1String("definition.xml"), QByteArray(100000, 'x'));
    QCOMPARE(written(), once);
}

void tst_LogDataDefinitionWriter::isSilentAboutAFileThatCannotBeWritten()
{
    MessageCapture capture;
    LogDataDefinitionWriter writer;
    QVERIFY(writer.writeDataSource(m_source.data(), m_dir.filePath(QLatin1String("no/where"))));
    QVERIFY(writer.writeDataSource(m_source.data(), m_dir.path()));
    QCOMPARE(writer.errorMessage(), QString());
    QCOMPARE(capture.messages(), QStringList());
}

void tst_LogDataDefinitionWriter::keepsTheOldFileWithoutRoom()
{
    m_dir.write(QLatin1String("definition.xml"), "old");
    LogDataDefinitionWriter writer;
    {
        const FullDisk disk(100);
        QVERIFY(writer.writeDataSource(m_source.data(), m_path));
    }
    QCOMPARE(writer.errorMessage(), QString());
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
    file.close();
    QVERIFY(written().contains("GraphDefinition"));
}

void tst_LogDataDefinitionWriter::keepsTheOldFileOnAFullOrReadOnlyDisk()
{
    const SmallDisk disk;
    if (!disk.isThere())
        SKIP_TEST("This process may not have a disk of its own.");
    QFile file(disk.dir().write(QLatin1String("definition.xml"), "old"));
    QVERIFY(disk.fill());
    LogDataDefinitionWriter writer;
    QVERIFY(writer.writeDataSource(m_source.data(), file.fileName()));
    QVERIFY(QFile::remove(disk.filePath("filler")));
    QVERIFY(disk.makeReadOnly());
    QVERIFY(writer.writeDataSource(m_source.data(), file.fileName()));
    QCOMPARE(writer.errorMessage(), QString());
    QCOMPARE(disk.names(), QStringList(QLatin1String("definition.xml")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

/** A pipe that nobody reads would take the first byte for ever. */
void tst_LogDataDefinitionWriter::leavesSpecialFilesAlone()
{
    const TempDir dir;
    const SpecialFiles files(dir);
    LogDataDefinitionWriter writer;
    foreach (const QString &name, files.names())
        QVERIFY2(writer.writeDataSource(m_source.data(), dir.filePath(name)), qPrintable(name));
    QCOMPARE(writer.errorMessage(), QString());
    QVERIFY(files.areThere());
}

void tst_LogDataDefinitionWriter::keepsThePlaceholderOutOfFiles()
{
    m_source->updateVariableSelection(0, 0, true);
    m_source->updateVariableSelection(1, 1, true);
    addCriterion("CO2", 0, 1);
    const QByteArray bytes = written();
    QVERIFY(bytes.contains("LeftVar"));
    QVERIFY(!bytes.contains("CurveAttribute"));
}

void tst_LogDataDefinitionWriter::writesThePlaceholder()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QXmlStreamWriter stream(&buffer);
    LogDataDefinitionWriter().writeCurveAttribute(stream, m_source.data());
    QCOMPARE(buffer.data(), QByteArray("<CurveAttribute name=\"TODO\"/>"));
}

void tst_LogDataDefinitionWriter::writesElementsByThemselves()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QXmlStreamWriter stream(&buffer);
    LogDataDefinitionWriter writer;
    QStandardItem item(QLatin1String("n"));
    writer.writeLeftVar(stream, m_source.data(), &item);
    writer.writeRightVar(stream, m_source.data(), &item);
    QCOMPARE(buffer.data(), QByteArray("<LeftVar name=\"n\"/><RightVar name=\"n\"/>"));
}

int main(int argc, char *argv[])
{
    SmallDisk::allow();
    const QCoreApplication application(argc, argv);
    tst_LogDataDefinitionWriter test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_LogDataDefinitionWriter.moc"
