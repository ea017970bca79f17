#include "graphdef/LogDataDefinitionReader.h"
#include "graphdef/LogDataDefinitionWriter.h"

#include "datasource/LogDataSourceItem.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

/** What the reader makes of the writer's files, and where the two are known to disagree. */
class tst_DefinitionRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void bringsVariablesBack_data();
    void bringsVariablesBack();
    void losesOperators_data();
    void losesOperators();
    void roundsValues();
    void losesWhetherACriterionIsActive();
    void cannotReadSeveralHorizontalVariables();
    void losesWhatXmlCannotHold();
    void keepsTheOrderOfCriteria();

private:
    bool writeAndRead();
    void addCriterion(const char *variable, int filterOperator, float value);
    void addVariable(const QString &name);

    TempDir m_dir;
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogDataDefinitionReader> m_reader;
};

void tst_DefinitionRoundTrip::init()
{
    m_source.reset(new LogDataSourceItem);
    m_reader.reset(new LogDataDefinitionReader);
}

void tst_DefinitionRoundTrip::cleanup()
{
    qDeleteAll(m_reader->criteria());
}

bool tst_DefinitionRoundTrip::writeAndRead()
{
    const QString path = m_dir.filePath(QLatin1String("definition.xml"));
    return LogDataDefinitionWriter().writeDataSource(m_source.data(), path)
        && m_reader->readGraphDefinition(path);
}

void tst_DefinitionRoundTrip::addCriterion(const char *variable, int filterOperator, float value)
{
    LogDataSetFilter::Builder builder;
    builder.variable(QLatin1String(variable)).filterOperator(filterOperator).value(value);
    m_source->addFilter(new LogDataSetFilter(&builder, nullptr));
}

/** Adds a row to each axis' variables and checks it there. */
void tst_DefinitionRoundTrip::addVariable(const QString &name)
{
    QStandardItemModel *models[]
        = {m_source->xVariableModel(), m_source->yVariableModel(), m_source->zVariableModel()};
    for (int axis = 0; axis < 3; ++axis) {
        models[axis]->appendRow(CheckListModel::newItem(name));
        m_source->updateVariableSelection(axis, models[axis]->rowCount() - 1, true);
    }
}

void tst_DefinitionRoundTrip::bringsVariablesBack_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QString::fromLatin1("CO2");
    QTest::newRow("markup") << QString::fromLatin1("<a href='&amp;'>\"b\"</a>");
    QTest::newRow("beyond ASCII") << QString::fromUtf8("\xc2\xb5mol m\xe2\x81\xbb\xc2\xb2");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x8c\xbf");
    QTest::newRow("blanks and breaks") << QString::fromLatin1(" a  b\tc\nd ");
    QTest::newRow("equals signs") << QString(1000, QLatin1Char('='));
}

void tst_DefinitionRoundTrip::bringsVariablesBack()
{
    QFETCH(QString, name);
    addVariable(name);
    m_source->yVariableModel()->appendRow(CheckListModel::newItem(QLatin1String("left only")));
    m_source->updateVariableSelection(1, 1, true);
    QVERIFY2(writeAndRead(), qPrintable(m_reader->errorMessage()));
    QCOMPARE(m_reader->xVar(), name);
    QCOMPARE(m_reader->yLeftVars(), QStringList() << name << QLatin1String("left only"));
    QCOMPARE(m_reader->yRightVars(), QStringList() << name);
    QCOMPARE(m_reader->criteria().size(), 0);
}

void tst_DefinitionRoundTrip::losesOperators_data()
{
    QTest::addColumn<int>("filterOperator");

    for (int i = 0; i < LogDataSetFilter::operators.size(); ++i)
        QTest::newRow(LogDataSetFilter::operators.at(i).toLatin1().constData()) << i;
}

/** The writer writes the operator's text where the reader expects its position. */
void tst_DefinitionRoundTrip::losesOperators()
{
    QFETCH(int, filterOperator);
    addCriterion("Tair", filterOperator, 25.5f);
    QVERIFY(writeAndRead());
    QCOMPARE(m_reader->criteria().size(), 1);
    QCOMPARE(m_reader->criteria().first()->filterOperator(), int(LogDataSetFilter::GreaterThan));
    QCOMPARE(m_reader->criteria().first()->toString(), QString::fromLatin1("Tair>25.5"));
}

void tst_DefinitionRoundTrip::roundsValues()
{
    addCriterion("x", 0, 123456.789f);
    addCriterion("x", 0, 0.5f);
    QVERIFY(writeAndRead());
    QCOMPARE(m_reader->criteria().at(0)->value(), 123457.0f);
    QCOMPARE(m_reader->criteria().at(1)->value(), 0.5f);
}

void tst_DefinitionRoundTrip::losesWhetherACriterionIsActive()
{
    addCriterion("x", 0, 1);
    m_source->updateCriteriaSelection(0, false);
    QVERIFY(writeAndRead());
    QVERIFY(m_reader->criteria().first()->active());
}

void tst_DefinitionRoundTrip::cannotReadSeveralHorizontalVariables()
{
    addVariable(QLatin1String("a"));
    addVariable(QLatin1String("b"));
    QVERIFY(!writeAndRead());
    QCOMPARE(m_reader->errorMessage(), QString::fromLatin1("Attribute 'name' redefined."));
    QCOMPARE(m_reader->yLeftVars(), QStringList());
}

void tst_DefinitionRoundTrip::losesWhatXmlCannotHold()
{
    const ushort name[] = {'a', 0, 1, 0x0b, 0x1f, 0xd800, 0xdc00, 'b', 0xdc00, 'c', 0xfffe, 0xd800};
    const ushort kept[] = {'a', 0xd800, 0xdc00, 'b', 'c'};
    addVariable(QString::fromUtf16(name, 12));
    QVERIFY2(writeAndRead(), qPrintable(m_reader->errorMessage()));
    QCOMPARE(m_reader->yLeftVars(), QStringList() << QString::fromUtf16(kept, 5));
}

void tst_DefinitionRoundTrip::keepsTheOrderOfCriteria()
{
    addCriterion("b", 0, 2);
    addCriterion("a", 0, 1);
    addCriterion("b", 0, 2);
    QVERIFY(writeAndRead());
    QStringList read;
    foreach (const LogDataSetFilter *criterion, m_reader->criteria())
        read << criterion->toString();
    QCOMPARE(read.join(QLatin1String(" ")), QString::fromLatin1("b>2 a>1 b>2"));
}

QTEST_GUILESS_MAIN(tst_DefinitionRoundTrip)
#include "tst_DefinitionRoundTrip.moc"
