#include "model/LogDataSet.h"

#include "model/CellText.h"
#include "model/Observation.h"
#include "model/RowGrid.h"
#include "model/StringListGrid.h"
#include "model/VariableGroupSet.h"

namespace
{

const char kUnknown[] = "?";

} // namespace

LogDataSet::LogDataSet(int index, QObject *parent)
    : QObject(parent)
    , m_index(index)
    , m_groupSet(new VariableGroupSet)
{
}

LogDataSet::~LogDataSet()
{
    qDeleteAll(m_observations);
}

void LogDataSet::appendConstHeaderData(const QString &key, const QString &value)
{
    const bool isNew = !m_constants.contains(key);
    m_constants[key].append(value);
    const QString group = key.section(QLatin1Char(':'), 0, 0);
    if (isNew && !m_knownConstGroups.contains(group)) {
        m_knownConstGroups.insert(group);
        m_constGroups.append(group);
    }
}

void LogDataSet::appendHeaderData(const QStringList &column)
{
    m_headers.append(column);
    m_grid.clear();
}

VariableGroup *LogDataSet::addGroup(const QString &name)
{
    return m_groupSet->addGroup(name);
}

Variable *LogDataSet::addVariableToGroup(const QString &groupName, const QString &variableName)
{
    return m_groupSet->addVariable(groupName, variableName);
}

/** Adds columns without a name until there are @p columns. */
void LogDataSet::growTo(int columns)
{
    if (m_headers.size() >= columns)
        return;
    const QString unknown = QLatin1String(kUnknown);
    const QStringList header = QStringList() << unknown << unknown << unknown;
    addGroup(unknown);
    while (m_headers.size() < columns)
        appendHeaderData(header);
}

void LogDataSet::appendColumnData(int column, const QString &value)
{
    if (column < 0)
        return;
    m_grid.clear(); // first, so that the cells are not shared with it and copied
    growTo(column + 1);
    while (m_looseCells.size() <= column)
        m_looseCells.append(QStringList());
    m_looseCells[column].append(value);
}

void LogDataSet::addObservation(const QStringList &values)
{
    m_looseRows.append(values);
}

/** Rows can be stored as text as long as nothing was appended behind the ones stored before. */
bool LogDataSet::takesRows(char separator) const
{
    return m_looseCells.isEmpty() && m_looseRows.isEmpty()
        && (!m_rows || m_rows->separator() == separator);
}

void LogDataSet::appendRow(const char *text, int size, int cells, char separator)
{
    if (!takesRows(separator)) {
        appendRowAsLists(CellText(text, size).toString(), separator);
        return;
    }
    if (!m_rows)
        m_rows = QSharedPointer<RowStore>(new RowStore(separator));
    m_rows->append(text, size, cells);
    if (cells > m_headers.size())
        growTo(cells);
    m_grid.clear();
}

void LogDataSet::appendRowAsLists(const QString &text, char separator)
{
    const QStringList cells = text.split(QLatin1Char(separator));
    for (int column = 0; column < cells.size(); ++column) {
        QString cell = cells.at(column);
        if (column == RowGrid::TimeColumnIndex)
            cell.remove(QLatin1Char('"'));
        appendColumnData(column, cell);
    }
    addObservation(cells);
}

QList<QStringList> LogDataSet::columnData() const
{
    return grid()->toLists();
}

QStringList LogDataSet::dataForColumn(int column) const
{
    return grid()->columnTexts(column);
}

/** The columns as lists: the cells of the rows, then those appended one by one. */
QList<QStringList> LogDataSet::gatherColumns() const
{
    QList<QStringList> columns;
    columns.reserve(m_headers.size());
    if (m_rows)
        columns = RowGrid(m_rows, m_headers.size()).toLists();
    for (int column = 0; column < m_headers.size(); ++column) {
        if (column < columns.size())
            columns[column] += m_looseCells.value(column);
        else
            columns.append(m_looseCells.value(column));
    }
    return columns;
}

CellGridPointer LogDataSet::grid() const
{
    if (!m_grid) {
        if (m_rows && m_looseCells.isEmpty())
            m_grid = CellGridPointer(new RowGrid(m_rows, m_headers.size()));
        else
            m_grid = CellGridPointer(new StringListGrid(gatherColumns()));
    }
    return m_grid;
}

QList<VariableGroup *> LogDataSet::variableGroups() const
{
    return m_groupSet->groups();
}

VariableGroup *LogDataSet::groupForName(const QString &name) const
{
    return m_groupSet->group(name);
}

int LogDataSet::observationCount() const
{
    return (m_rows ? m_rows->rowCount() : 0) + m_looseRows.size();
}

QStringList LogDataSet::observationTexts(int row) const
{
    if (row < 0)
        return QStringList();
    const int stored = m_rows ? m_rows->rowCount() : 0;
    return row < stored ? m_rows->rowTexts(row) : m_looseRows.value(row - stored);
}

QList<Observation *> LogDataSet::observations() const
{
    const int stored = m_rows ? m_rows->rowCount() : 0;
    for (int row = m_observations.size(); row < observationCount(); ++row) {
        m_observations.append(row < stored ? new Observation(m_rows, row)
                                           : new Observation(m_looseRows.at(row - stored)));
    }
    return m_observations;
}

QString LogDataSet::dataSetName() const
{
    // Joined by hand: a created date may hold percent signs of its own.
    const QString count = QString::fromLatin1("%L1");
    const QString name = count.arg(m_index) + QLatin1String(": ") + m_createdDate;
    if (m_headers.isEmpty())
        return name + QLatin1String(" [No Data]");
    const int rows = (m_rows ? m_rows->columnLength(0) : 0) + m_looseCells.value(0).size();
    return name + QLatin1String(" #Obs=") + count.arg(rows);
}
