#include "parsing/RandomLog.h"
#include "parsing/RandomLogRows.h"
#include "parsing/ReferenceLog.h"

#include "datasource/LogDataSourceItem.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

/**
 * Random logs shown by a data source's models and lists, cell by cell, against the plain reference.
 * DATALOG_LOGS tells how many.
 */
class tst_ModelsDifferential : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomLogs_data();
    void randomLogs();

private:
    void compareLog(quint32 seed);
    void compareLists(LogDataSourceItem &source, const ReferenceLog &expected);
    void compareTable(LogDataSourceItem &source, const ReferenceBlock &expected);
    void compareConstants(LogDataSourceItem &source, const ReferenceBlock &expected);

    TempDir m_dir;
    int m_cells;
};

namespace
{

QStringList textsOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data().toString();
    return texts;
}

template <class T> QStringList textsOf(QDeclarativeListProperty<T> list)
{
    QStringList texts;
    for (int i = 0; i < list.count(&list); ++i)
        texts << list.at(&list, i)->value().toString();
    return texts;
}

QString headerText(const QAbstractItemModel &model, int section)
{
    return model.headerData(section, Qt::Horizontal).toString();
}

} // namespace

void tst_ModelsDifferential::randomLogs_data()
{
    addRandomLogRows(300);
}

void tst_ModelsDifferential::randomLogs()
{
    QFETCH(int, firstSeed);
    m_cells = 0;
    for (int seed = firstSeed; seed < firstSeed + 100; ++seed) {
        compareLog(quint32(seed));
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString::fromLatin1("seed %1").arg(seed)));
    }
    QVERIFY2(m_cells > 1000, QByteArray::number(m_cells).constData());
}

void tst_ModelsDifferential::compareLog(quint32 seed)
{
    RandomLog log(seed);
    const bool byCommas = log.separator() == ',';
    const QString path = m_dir.write(QLatin1String(byCommas ? "log.csv" : "log.txt"), log.text());
    const ReferenceLog expected(path, QLatin1Char(log.separator()));
    LogDataSourceItem source;
    QSignalSpy errors(&source, SIGNAL(logFileError(QString)));
    source.setObservationFilterType(LogObservationSortFilterProxyModel::All);
    source.setLogFilePath(path);
    QCOMPARE(errors.count(), expected.error.isEmpty() ? 0 : 1);
    if (!expected.error.isEmpty()) {
        QCOMPARE(errors.at(0).at(0).toString(), expected.error);
        return;
    }
    compareLists(source, expected);
    for (int i = 0; i < expected.blocks.size() && !QTest::currentTestFailed(); ++i) {
        source.selectDataSet(i);
        QCOMPARE(source.currentDataSetIndex(), i);
        compareTable(source, expected.blocks.at(i));
        compareConstants(source, expected.blocks.at(i));
        QCOMPARE(textsOf(source.groupList()), QStringList(expected.blocks.at(i).groups.keys()));
        QCOMPARE(textsOf(source.constList()), expected.blocks.at(i).constGroups);
    }
}

void tst_ModelsDifferential::compareLists(LogDataSourceItem &source, const ReferenceLog &expected)
{
    QStringList names;
    QStringList numbered;
    for (int i = 0; i < expected.blocks.size(); ++i) {
        names << expected.blocks.at(i).name(i);
        numbered << QString::fromLatin1("Data Set %1").arg(i + 1);
    }
    QCOMPARE(textsOf(*source.dataSetModel()), numbered);
    QCOMPARE(textsOf(source.dataSetList()), names);
    QStringList variables;
    for (int i = 0; i < expected.blocks.value(0).headers.size(); ++i)
        variables << expected.blocks.at(0).headers.at(i).at(1);
    QCOMPARE(textsOf(*source.xVariableModel()), variables);
    QCOMPARE(textsOf(*source.yVariableModel()), variables);
    QCOMPARE(textsOf(*source.zVariableModel()), variables);
}

void tst_ModelsDifferential::compareTable(LogDataSourceItem &source, const ReferenceBlock &expected)
{
    const LogTableViewModel &table = *source.tableModel();
    const QAbstractItemModel &shown = *source.observationFilteredTableModel();
    QCOMPARE(table.rowCount(), expected.columns.value(0).size());
    QCOMPARE(table.columnCount(), expected.columns.size() + 1);
    QCOMPARE(shown.rowCount(), table.rowCount());
    QCOMPARE(shown.columnCount(), table.columnCount());
    for (int column = 0; column < expected.columns.size(); ++column) {
        const QStringList &cells = expected.columns.at(column);
        QCOMPARE(headerText(table, column + 1),
                 expected.headers.at(column).join(QLatin1String("\n")));
        for (int row = 0; row < table.rowCount(); ++row) {
            QCOMPARE(table.index(row, column + 1).data().toString(), cells.value(row));
            QCOMPARE(shown.index(row, column + 1).data().toString(), cells.value(row));
            ++m_cells;
        }
    }
}

void tst_ModelsDifferential::compareConstants(LogDataSourceItem &source,
                                              const ReferenceBlock &expected)
{
    const LogConstTableViewModel &table = *source.constTableModel();
    const QStringList keys = expected.constants.keys();
    QCOMPARE(table.columnCount(), keys.size());
    for (int column = 0; column < keys.size(); ++column) {
        QString header = keys.at(column);
        QCOMPARE(headerText(table, column), header.replace(QLatin1Char(':'), QLatin1Char('\n')));
        const QStringList values = expected.constants.value(keys.at(column));
        for (int row = 0; row < table.rowCount(); ++row)
            QCOMPARE(table.index(row, column).data().toString(), values.value(row));
    }
}

QTEST_MAIN(tst_ModelsDifferential)
#include "tst_ModelsDifferential.moc"
