#include "ParserFixture.h"
#include "model/VariableGroupSet.h"
#include "parsing/TabularParser.h"
#include "support/MessageCapture.h"
#include "support/MetaMethodText.h"
#include "support/TestCompat.h"

class tst_TabularParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void initialState();
    void metaObject();
    void initializeDataSet();
    void emptyAccessors();
    void indexThatDoesNotExist();
    void fileHeader_data();
    void fileHeader();
    void header();
    void row_data();
    void row();
    void rowOfBytes();
    void lineFeedsInARemark();
    void rawRowsOfSeveralDataSets();
    void unusualSeparators_data();
    void unusualSeparators();
    void errorsAreEmptied();
    void accessorsForwardByIndex();
    void clear();
    void take();
    void dataSetsOutliveTheParser();
    void sharedPartsOutliveTheDataSets();

private:
    void addRow(int index, const char *line);

    QScopedPointer<MessageCapture> m_capture;
    QScopedPointer<TabularParser> m_table;
    QString m_error;
};

void tst_TabularParser::init()
{
    m_capture.reset(new MessageCapture);
    m_table.reset(new TabularParser);
    m_table->setSeparator(QLatin1Char(','));
}

void tst_TabularParser::cleanup()
{
    m_table->clear();
    m_table.reset();
    const QStringList messages = m_capture->messages();
    m_capture.reset();
    QCOMPARE(messages, QStringList());
}

void tst_TabularParser::addRow(int index, const char *line)
{
    m_table->parseRow(index, QString::fromUtf8(line), m_error);
}

void tst_TabularParser::initialState()
{
    QObject parent;
    TabularParser *table = new TabularParser(&parent);
    QCOMPARE(table->parent(), &parent);
    QCOMPARE(TabularParser().parent(), static_cast<QObject *>(nullptr));
    QVERIFY(table->separator().isNull());
    QCOMPARE(table->dataSetCount(), 0);
    QVERIFY(table->dataSets().isEmpty());
    QVERIFY(table->rawData().isEmpty());
}

void tst_TabularParser::metaObject()
{
    const QMetaObject &type = TabularParser::staticMetaObject;
    QCOMPARE(QByteArray(type.className()), QByteArray("TabularParser"));
    QCOMPARE(QByteArray(type.superClass()->className()), QByteArray("QObject"));
    QCOMPARE(ownMetaMethods(type), QStringList());
    QCOMPARE(type.propertyCount(), type.propertyOffset());
    QCOMPARE(type.enumeratorCount(), type.enumeratorOffset());
}

void tst_TabularParser::initializeDataSet()
{
    m_table->setDataSetCount(7);
    m_table->initializeDataSet();
    m_table->initializeDataSet();
    QCOMPARE(m_table->dataSetCount(), 9);
    const QList<LogDataSet *> sets = m_table->dataSets();
    QCOMPARE(sets.size(), 2);
    QCOMPARE(sets.at(0)->dataSetIndex(), 7);
    QCOMPARE(sets.at(1)->dataSetIndex(), 8);
    QCOMPARE(sets.at(0)->parent(), static_cast<QObject *>(nullptr));
}

void tst_TabularParser::emptyAccessors()
{
    for (int index = -1; index < 2; ++index) {
        QVERIFY(m_table->constHeader(index).isEmpty());
        QVERIFY(m_table->constGroups(index).isEmpty());
        QVERIFY(m_table->constData(index).isEmpty());
        QVERIFY(m_table->headerData(index).isEmpty());
        QVERIFY(m_table->columnData(index).isEmpty());
        QVERIFY(m_table->variables(index).isEmpty());
        QVERIFY(m_table->groups(index).isEmpty());
        QVERIFY(m_table->observations(index).isEmpty());
        QVERIFY(!m_table->groupForName(QLatin1String("g"), index));
        QVERIFY(m_table->dataForColumn(index, 0).isEmpty());
        QVERIFY(m_table->grid(index).isNull());
        QVERIFY(m_table->groupSet(index).isNull());
    }
}

void tst_TabularParser::indexThatDoesNotExist()
{
    m_table->initializeDataSet();
    addRow(0, "1,2,3");
    for (int index = -1; index < 3; index += 2) {
        QVERIFY(m_table->columnData(index).isEmpty());
        QVERIFY(m_table->observations(index).isEmpty());
        QVERIFY(!m_table->groupForName(QLatin1String("?"), index));
        m_table->parseFileHeader(index, QLatin1String("k:,v"), m_error);
        m_table->parseHeader(index, QList<QStringList>() << QStringList(), m_error);
        addRow(index, "4,5,6");
    }
    QCOMPARE(shown(m_table->rawData()), QString::fromLatin1("1|2|3"));
    QCOMPARE(shown(m_table->dataForColumn(0, 0)), QString::fromLatin1("1"));
    QVERIFY(m_table->dataForColumn(0, 3).isEmpty());
    QVERIFY(m_table->dataForColumn(0, -1).isEmpty());
}

void tst_TabularParser::fileHeader_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const QString none;
    QTest::newRow("constant") << "Sys:Name,probe"
                              << "Sys:Name"
                              << "probe";
    QTest::newRow("colon last") << "Const:,1"
                                << "Const:"
                                << "1";
    QTest::newRow("colon first") << ":x,1"
                                 << ":x"
                                 << "1";
    QTest::newRow("three cells") << "Const:,1,2"
                                 << "Const:"
                                 << "1";
    QTest::newRow("empty value") << "Const:,"
                                 << "Const:"
                                 << "";
    QTest::newRow("blanks stay") << " a: , 1 "
                                 << " a: "
                                 << " 1 ";
    QTest::newRow("quotes stay") << "\"a:b\",\"1\""
                                 << "\"a:b\""
                                 << "\"1\"";
    QTest::newRow("no colon") << "Const,1,2" << none << none;
    QTest::newRow("colon in the value only") << "Const,a:b" << none << none;
    QTest::newRow("one cell") << "Const:" << none << none;
    QTest::newRow("empty line") << "" << none << none;
}

void tst_TabularParser::fileHeader()
{
    QFETCH(QString, line);
    QFETCH(QString, key);
    QFETCH(QString, value);
    m_table->initializeDataSet();
    m_table->parseFileHeader(0, line, m_error);
    if (key.isNull()) {
        QVERIFY(m_table->constHeader(0).isEmpty());
        return;
    }
    QCOMPARE(m_table->constHeader(0), QStringList(key));
    QCOMPARE(m_table->constData(0), QList<QStringList>() << QStringList(value));
}

void tst_TabularParser::header()
{
    m_table->initializeDataSet();
    QList<QStringList> columns;
    columns << (QStringList() << QLatin1String("Zeta") << QLatin1String("a") << QLatin1String("u"))
            << (QStringList() << QLatin1String("Alpha") << QLatin1String("b") << QString())
            << (QStringList() << QLatin1String("Zeta") << QLatin1String("a") << QLatin1String("w"));
    m_table->parseHeader(0, columns, m_error);
    QCOMPARE(m_table->headerData(0), columns);
    QCOMPARE(shown(m_table->variables(0)), QString::fromLatin1("a|b|a"));
    QCOMPARE(shown(namesOf(m_table->groups(0))), QString::fromLatin1("Alpha|b/Zeta|a|a"));
    QCOMPARE(m_table->columnData(0).size(), 3);
    QCOMPARE(m_table->groupForName(QLatin1String("Zeta"), 0), m_table->groups(0).at(1));
    QVERIFY(!m_table->groupForName(QLatin1String("zeta"), 0));
}

void tst_TabularParser::row_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("observation");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("copies"); // among the raw rows
    const QString mark(QChar(QChar::ByteOrderMark));
    QTest::newRow("observation") << "1,2,3"
                                 << "1|2|3"
                                 << "1/2/3" << 1;
    QTest::newRow("empty cells") << ",,,"
                                 << "|||"
                                 << "///" << 1;
    QTest::newRow("blanks stay") << " 1 , 2 , 3 "
                                 << " 1 | 2 | 3 "
                                 << " 1 / 2 / 3 " << 1;
    QTest::newRow("quoted time") << "1,\"10:00:01\",3"
                                 << "1|\"10:00:01\"|3"
                                 << "1/10:00:01/3" << 1;
    QTest::newRow("quotes within the time") << "1,\"\"1\"0\",3"
                                            << "1|\"\"1\"0\"|3"
                                            << "1/10/3" << 1;
    QTest::newRow("quotes elsewhere") << "\"1\",2,\"3\""
                                      << "\"1\"|2|\"3\""
                                      << "\"1\"/2/\"3\"" << 1;
    QTest::newRow("no quoting") << "\"a,b\",c"
                                << "\"a|b\"|c"
                                << "\"a/b/c" << 1;
    QTest::newRow("not ASCII") << QString::fromUtf8("\xc3\xa9,\xe2\x82\xac,\xf0\x9f\x98\x80")
                               << QString::fromUtf8("\xc3\xa9|\xe2\x82\xac|\xf0\x9f\x98\x80")
                               << QString::fromUtf8("\xc3\xa9/\xe2\x82\xac/\xf0\x9f\x98\x80") << 1;
    QTest::newRow("byte order marks")
        << mark + QLatin1String("1,") + mark + QLatin1String(",2")
        << mark + QLatin1String("1|") + mark + QLatin1String("|2")
        << mark + QLatin1String("1/") + mark + QLatin1String("/2") << 1;
    QTest::newRow("remark") << "note"
                            << "Remarks|note"
                            << "Remarks/note" << 2;
    QTest::newRow("remark of two cells") << "note,more"
                                         << "Remarks|note|more"
                                         << "Remarks/note/more" << 2;
    QTest::newRow("empty second cell") << "note,"
                                       << "Remarks|note|"
                                       << "Remarks/note/" << 2;
    QTest::newRow("empty first cell") << ",more"
                                      << "Remarks||more"
                                      << "Remarks//more" << 2;
    QTest::newRow("empty line") << ""
                                << "Remarks|"
                                << "Remarks/" << 2;
    QTest::newRow("quoted remark") << "\"a\"b\",\"c\""
                                   << "Remarks|ab|\"c\""
                                   << "Remarks/ab/\"c\"" << 2;
    QTest::newRow("just quotes") << "\"\""
                                 << "Remarks|"
                                 << "Remarks/" << 2;
    QTest::newRow("data mark") << "[Data]"
                               << "Remarks|[Data]"
                               << "Remarks/[Data]" << 2;
}

void tst_TabularParser::row()
{
    QFETCH(QString, line);
    QFETCH(QString, observation);
    QFETCH(QString, columns);
    QFETCH(int, copies);
    m_table->initializeDataSet();
    m_table->parseRow(0, line, m_error);
    QCOMPARE(shown(valuesOf(m_table->observations(0))), observation);
    QCOMPARE(shown(m_table->columnData(0)), columns);
    const QStringList cells = observation.split(QLatin1Char('|'));
    QList<QStringList> rawRows;
    for (int i = 0; i < copies; ++i)
        rawRows.append(cells);
    QCOMPARE(m_table->rawData(), rawRows);
    // The columns that the row has made.
    QCOMPARE(m_table->headerData(0).size(), cells.size());
    QCOMPARE(shown(m_table->headerData(0).last()), QString::fromLatin1("?|?|?"));
    QCOMPARE(shown(namesOf(m_table->groups(0))), QString::fromLatin1("?"));
    QVERIFY(m_table->variables(0).isEmpty());
}

void tst_TabularParser::rowOfBytes()
{
    m_table->initializeDataSet();
    m_table->parseRow(0, "1,\"2\",3 and more", 7);
    m_table->parseRow(0, "a\"b,c", 5);
    m_table->parseRow(0, "", 0);
    QCOMPARE(shown(valuesOf(m_table->observations(0))),
             QString::fromLatin1("1|\"2\"|3/Remarks|ab|c/Remarks|"));
    QCOMPARE(shown(m_table->columnData(0)), QString::fromLatin1("1|Remarks|Remarks/2|ab|/3|c"));
    QCOMPARE(shown(m_table->rawData()),
             QString::fromLatin1("1|\"2\"|3/Remarks|ab|c/Remarks|ab|c/Remarks|/Remarks|"));
}

void tst_TabularParser::lineFeedsInARemark()
{
    m_table->initializeDataSet();
    addRow(0, "a\nb\n,c\nd");
    addRow(0, "1\n,2\n,3\n");
    QCOMPARE(m_table->observations(0).at(0)->values(),
             QStringList() << QLatin1String("Remarks") << QLatin1String("ab")
                           << QLatin1String("c\nd"));
    QCOMPARE(m_table->observations(0).at(1)->values(),
             QStringList() << QLatin1String("1\n") << QLatin1String("2\n") << QLatin1String("3\n"));
}

void tst_TabularParser::rawRowsOfSeveralDataSets()
{
    m_table->initializeDataSet();
    addRow(0, "1,2,3");
    addRow(0, "note");
    addRow(0, "4,5,6");
    m_table->initializeDataSet();
    addRow(1, "7,8,9");
    addRow(0, "again,");
    addRow(0, "");
    addRow(1, "x,y,z");
    m_table->appendRawLine(QLatin1String(" a,b "));
    QCOMPARE(shown(m_table->rawData()),
             QString::fromLatin1("1|2|3/Remarks|note/Remarks|note/4|5|6/7|8|9/Remarks|again|/"
                                 "Remarks|again|/Remarks|/Remarks|/x|y|z/ a|b "));
}

void tst_TabularParser::unusualSeparators_data()
{
    QTest::addColumn<QString>("separator");
    QTest::newRow("tab") << QString(QLatin1Char('\t'));
    QTest::newRow("semicolon") << QString(QLatin1Char(';'));
    QTest::newRow("null character") << QString(QChar(0));
    QTest::newRow("not ASCII") << QString(QChar(0x20ac));
}

void tst_TabularParser::unusualSeparators()
{
    QFETCH(QString, separator);
    m_table->setSeparator(separator.at(0));
    m_table->initializeDataSet();
    const QStringList cells = QStringList()
        << QLatin1String("1") << QLatin1String("\"2\"") << QLatin1String("3,4");
    const QStringList note = QStringList() << QLatin1String("\"n\"") << QLatin1String("m");
    m_table->parseRow(0, cells.join(separator), m_error);
    m_table->parseRow(0, note.join(separator), m_error);
    m_table->parseFileHeader(0, QLatin1String("k:") + separator + QLatin1String("v"), m_error);
    QCOMPARE(shown(m_table->rawData()), QString::fromLatin1("1|\"2\"|3,4/Remarks|n|m/Remarks|n|m"));
    QCOMPARE(shown(m_table->columnData(0)), QString::fromLatin1("1|Remarks/2|n/3,4|m"));
    QCOMPARE(shown(m_table->constData(0)), QString::fromLatin1("v"));
}

void tst_TabularParser::errorsAreEmptied()
{
    m_table->initializeDataSet();
    const QString old = QLatin1String("old");
    QString error = old;
    m_table->parseFileHeader(0, QLatin1String("no constant"), error);
    QCOMPARE(error, QString());
    error = old;
    m_table->parseHeader(0, QList<QStringList>(), error);
    QCOMPARE(error, QString());
    error = old;
    m_table->parseRow(0, QString(), error);
    QCOMPARE(error, QString());
}

void tst_TabularParser::accessorsForwardByIndex()
{
    for (int i = 0; i < 2; ++i) {
        const QString n = QString::number(i);
        m_table->initializeDataSet();
        m_table->parseFileHeader(i, QString::fromLatin1("g%1:,v%1").arg(n), m_error);
        const QStringList column
            = QString::fromLatin1("G%1 V%1 U%1").arg(n).split(QLatin1Char(' '));
        m_table->parseHeader(i, QList<QStringList>() << column, m_error);
        m_table->parseRow(i, QString::fromLatin1("a%1,b%1,c%1").arg(n), m_error);
    }
    for (int i = 0; i < 2; ++i) {
        const QString n = QString::number(i);
        const LogDataSet *set = m_table->dataSets().at(i);
        QCOMPARE(shown(m_table->constHeader(i)), QString::fromLatin1("g%1:").arg(n));
        QCOMPARE(shown(m_table->constGroups(i)), QString::fromLatin1("g%1").arg(n));
        QCOMPARE(shown(m_table->constData(i)), QString::fromLatin1("v%1").arg(n));
        QCOMPARE(shown(m_table->headerData(i)),
                 QString::fromLatin1("G%1|V%1|U%1/?|?|?/?|?|?").arg(n));
        QCOMPARE(shown(m_table->columnData(i)), QString::fromLatin1("a%1/b%1/c%1").arg(n));
        QCOMPARE(shown(m_table->variables(i)), QString::fromLatin1("V%1").arg(n));
        QCOMPARE(m_table->groups(i), set->variableGroups());
        QCOMPARE(m_table->observations(i), set->observations());
        QCOMPARE(m_table->groupForName(QLatin1String("G") + n, i), set->variableGroups().at(1));
        QCOMPARE(shown(m_table->dataForColumn(i, 2)), QString::fromLatin1("c%1").arg(n));
        QCOMPARE(m_table->grid(i), set->grid());
        QCOMPARE(m_table->groupSet(i), set->groupSet());
    }
}

void tst_TabularParser::clear()
{
    m_table->initializeDataSet();
    m_table->initializeDataSet();
    addRow(1, "note");
    m_table->appendRawLine(QLatin1String("raw"));
    const QPointer<LogDataSet> set(m_table->dataSets().at(0));
    m_table->clear();
    QVERIFY(set.isNull());
    QVERIFY(m_table->dataSets().isEmpty());
    QVERIFY(m_table->rawData().isEmpty());
    QCOMPARE(m_table->dataSetCount(), 2);
    QCOMPARE(m_table->separator(), QChar(QLatin1Char(',')));
    m_table->clear();
    m_table->initializeDataSet();
    QCOMPARE(m_table->dataSets().at(0)->dataSetIndex(), 2);
}

void tst_TabularParser::take()
{
    m_table->initializeDataSet();
    addRow(0, "old,old,old");
    const QPointer<LogDataSet> old(m_table->dataSets().at(0));
    TabularParser other;
    other.setSeparator(QLatin1Char(';'));
    other.initializeDataSet();
    other.initializeDataSet();
    other.parseRow(1, QLatin1String("1;2;3"), m_error);
    other.appendRawLine(QLatin1String("raw"));
    const QPointer<LogDataSet> taken(other.dataSets().at(1));

    m_table->take(other);
    QVERIFY(old.isNull());
    QCOMPARE(m_table->dataSets().size(), 2);
    QCOMPARE(m_table->dataSets().at(1), taken.data());
    QCOMPARE(shown(m_table->columnData(1)), QString::fromLatin1("1/2/3"));
    QCOMPARE(m_table->rawData().size(), 2);
    QCOMPARE(m_table->dataSetCount(), 2);
    QCOMPARE(m_table->separator(), QChar(QLatin1Char(';')));
    QVERIFY(other.dataSets().isEmpty());
    QVERIFY(other.rawData().isEmpty());
    m_table->take(*m_table);
    QCOMPARE(m_table->dataSets().size(), 2);
}

void tst_TabularParser::dataSetsOutliveTheParser()
{
    m_table->initializeDataSet();
    addRow(0, "1,2,3");
    const QPointer<LogDataSet> set(m_table->dataSets().at(0));
    m_table.reset(new TabularParser);
    QVERIFY(set);
    QCOMPARE(shown(set->columnData()), QString::fromLatin1("1/2/3"));
    delete set;
}

void tst_TabularParser::sharedPartsOutliveTheDataSets()
{
    m_table->initializeDataSet();
    addRow(0, "1,2,3");
    const CellGridPointer grid = m_table->grid(0);
    const QSharedPointer<VariableGroupSet> groups = m_table->groupSet(0);
    m_table->clear();
    QCOMPARE(shown(grid->toLists()), QString::fromLatin1("1/2/3"));
    QCOMPARE(shown(namesOf(groups->groups())), QString::fromLatin1("?"));
}

QTEST_GUILESS_MAIN(tst_TabularParser)
#include "tst_TabularParser.moc"
