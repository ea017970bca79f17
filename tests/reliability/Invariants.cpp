#include "Invariants.h"

#include "datasource/LogDataSourceItem.h"

namespace
{

QStringList textsOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data().toString();
    return texts;
}

/** Curves are pairs: the same variables, as many pieces of each, as many points in each piece. */
bool pairUp(const AxisSeries &x, const AxisSeries &y)
{
    if (x.keys() != y.keys())
        return false;
    for (AxisSeries::const_iterator it = x.constBegin(); it != x.constEnd(); ++it) {
        const QList<QVector<double>> pieces = y.value(it.key());
        if (pieces.size() != it.value().size())
            return false;
        for (int i = 0; i < pieces.size(); ++i) {
            if (pieces.at(i).isEmpty() || pieces.at(i).size() != it.value().at(i).size())
                return false;
        }
    }
    return true;
}

bool exclusionsAgree(const LogTableViewModel &table)
{
    const QVector<int> excluded = table.excludeRows();
    return excluded.size() == table.rowCount() && excluded.contains(1) == table.hasExcludedRows();
}

/** Checked rows are rows, each once and in order. */
bool isAscending(const QList<int> &rows, int count)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i) < 0 || rows.at(i) >= count || (i > 0 && rows.at(i) <= rows.at(i - 1)))
            return false;
    }
    return true;
}

bool checkedRowsAreRows(LogDataSourceItem &source)
{
    const QAbstractItemModel *const models[]
        = {source.xVariableModel(), source.yVariableModel(), source.zVariableModel(),
           source.dataSetModel(), source.activeFilterModel()};
    for (int i = 0; i < 5; ++i) {
        if (!isAscending(source.checkedItemList(i), models[i]->rowCount()))
            return false;
    }
    return true;
}

} // namespace

QString Invariants::broken(LogDataSourceItem &source)
{
    const QStringList variables = textsOf(*source.xVariableModel());
    const QAbstractItemModel &shown = *source.observationFilteredTableModel();
    const LogTableViewModel &table = *source.tableModel();
    QDeclarativeListProperty<PropertyWrapper> criteria = source.criteriaList();
    QDeclarativeListProperty<PropertyWrapper> dataSets = source.dataSetList();
    const struct {
        bool holds;
        const char *what;
    } facts[] = {
        {pairUp(source.XLeftData(), source.YLeftData()), "left series pair up"},
        {pairUp(source.XRightData(), source.YRightData()), "right series pair up"},
        {textsOf(*source.yVariableModel()) == variables, "Y lists what X lists"},
        {textsOf(*source.zVariableModel()) == variables, "Z lists what X lists"},
        {shown.rowCount() <= table.rowCount(), "no more rows shown than there are"},
        {shown.columnCount() == table.columnCount(), "as many columns shown as there are"},
        {exclusionsAgree(table), "excluded rows are rows"},
        {source.hasExcludedRows() == table.hasExcludedRows(), "source and table agree"},
        {checkedRowsAreRows(source), "checked rows are rows"},
        {source.checkedItemList(3).size() <= 1, "one data set at most"},
        {criteria.count(&criteria) == source.activeFilterModel()->rowCount(), "all criteria"},
        {dataSets.count(&dataSets) == 0
             || dataSets.count(&dataSets) == source.dataSetModel()->rowCount(),
         "all data sets"}, // a failed load keeps the models
        {source.dynamicPropertyNames().isEmpty(), "no properties of its own"},
    };
    for (size_t i = 0; i < sizeof facts / sizeof facts[0]; ++i) {
        if (!facts[i].holds)
            return QLatin1String(facts[i].what);
    }
    return QString();
}
