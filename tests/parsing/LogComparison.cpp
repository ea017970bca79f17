#include "LogComparison.h"

#include "ParserFixture.h"

namespace
{

QString asText(int number)
{
    return QString::number(number);
}

QString asText(const QString &text)
{
    return text;
}

QString asText(const QStringList &cells)
{
    return shown(cells);
}

QString asText(const QList<QStringList> &rows)
{
    return shown(rows);
}

/** Notes the first difference and then looks no further. */
class Differences
{
public:
    template <typename T> void compare(const char *what, const T &actual, const T &expected)
    {
        if (!m_text.isEmpty() || actual == expected)
            return;
        m_text = QLatin1String(what) + QLatin1String(": ") + asText(actual)
            + QLatin1String(" instead of ") + asText(expected);
    }
    QString text() const { return m_text; }

private:
    QString m_text;
};

/** Names of the groups in text order, each with its variables' names. */
QList<QStringList> groupRows(const ReferenceBlock &block)
{
    QList<QStringList> rows;
    const QStringList names = block.groups.keys();
    for (int i = 0; i < names.size(); ++i)
        rows.append(QStringList(names.at(i)) + block.groups.value(names.at(i)));
    return rows;
}

void compareHeader(Differences &found, const TabularParser &table, int index,
                   const ReferenceBlock &expected)
{
    const LogDataSet &set = *table.dataSets().at(index);
    const QStringList keys = expected.constants.keys();
    const QList<QStringList> constants = expected.constants.values();
    found.compare("dataSetIndex", set.dataSetIndex(), index);
    found.compare("dataSetCreatedDate", set.dataSetCreatedDate(), expected.createdDate);
    found.compare("dataSetName", set.dataSetName(), expected.name(index));
    found.compare("constHeader", table.constHeader(index), keys);
    found.compare("constHeader of the set", set.constHeader(), keys);
    found.compare("constData", table.constData(index), constants);
    found.compare("constData of the set", set.constData(), constants);
    found.compare("constGroups", table.constGroups(index), expected.constGroups);
    found.compare("constGroups of the set", set.constGroups(), expected.constGroups);
    found.compare("headerData", table.headerData(index), expected.headers);
    found.compare("headerData of the set", set.headerData(), expected.headers);
    found.compare("variables", table.variables(index), expected.variables);
    found.compare("variables of the set", set.variables(), expected.variables);
}

void compareCells(Differences &found, const TabularParser &table, int index,
                  const ReferenceBlock &expected)
{
    const LogDataSet &set = *table.dataSets().at(index);
    const CellGridPointer grid = table.grid(index);
    found.compare("columnData", table.columnData(index), expected.columns);
    found.compare("columnData of the set", set.columnData(), expected.columns);
    found.compare("toLists", grid->toLists(), expected.columns);
    found.compare("columnCount", grid->columnCount(), expected.columns.size());
    for (int column = -1; column <= expected.columns.size(); ++column) {
        const QStringList cells = expected.columns.value(column);
        found.compare("dataForColumn", table.dataForColumn(index, column), cells);
        found.compare("dataForColumn of the set", set.dataForColumn(column), cells);
        found.compare("columnTexts", grid->columnTexts(column), cells);
        found.compare("cellCount", grid->cellCount(column), cells.size());
        for (int row = -1; row <= cells.size(); ++row)
            found.compare("text", grid->text(column, row), cells.value(row));
    }
}

void compareRows(Differences &found, const TabularParser &table, int index,
                 const ReferenceBlock &expected)
{
    const LogDataSet &set = *table.dataSets().at(index);
    found.compare("observationCount", set.observationCount(), expected.observations.size());
    for (int row = -1; row <= expected.observations.size(); ++row) {
        found.compare("observationTexts", set.observationTexts(row),
                      expected.observations.value(row));
    }
    found.compare("observations", valuesOf(table.observations(index)), expected.observations);
    found.compare("observations of the set", valuesOf(set.observations()), expected.observations);
}

void compareGroups(Differences &found, const TabularParser &table, int index,
                   const ReferenceBlock &expected)
{
    const QList<VariableGroup *> groups = table.groups(index);
    const QStringList names = expected.groups.keys();
    found.compare("groups", namesOf(groups), groupRows(expected));
    if (!found.text().isEmpty())
        return;
    for (int i = 0; i < names.size(); ++i) {
        const bool isSame = table.groupForName(names.at(i), index) == groups.at(i);
        found.compare("groupForName", int(isSame), 1);
    }
    const QString missing = QLatin1String("no such group") + names.join(QString());
    found.compare("missing group", int(table.groupForName(missing, index) == nullptr), 1);
}

} // namespace

QString LogComparison::difference(const TabularParser &table, int index,
                                  const ReferenceBlock &expected)
{
    Differences found;
    compareHeader(found, table, index, expected);
    compareCells(found, table, index, expected);
    compareRows(found, table, index, expected);
    compareGroups(found, table, index, expected);
    return found.text();
}

QString LogComparison::difference(const TabularParser &table, const ReferenceLog &expected)
{
    Differences found;
    found.compare("dataSets", table.dataSets().size(), expected.blocks.size());
    found.compare("rawData", table.rawData(), expected.rawRows);
    QString text = found.text();
    for (int i = 0; text.isEmpty() && i < expected.blocks.size(); ++i)
        text = difference(table, i, expected.blocks.at(i));
    return text;
}
