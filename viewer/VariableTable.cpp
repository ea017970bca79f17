#include "viewer/VariableTable.h"

#include "viewer/CurveColors.h"
#include "viewer/SilentChange.h"

#include <algorithm>

namespace
{

enum Axis { XAxis, LeftAxis, RightAxis, AxisCount };

bool isAxis(int axis)
{
    return axis >= XAxis && axis < AxisCount;
}

} // namespace

VariableTable::VariableTable(QObject *parent)
    : QAbstractListModel(parent)
    , m_isChosenOnly(false)
{
    m_recolor.setSingleShot(true);
    m_recolor.setInterval(0);
    connect(&m_recolor, &QTimer::timeout, this, [this] {
        tellRows({LeftColorRole, RightColorRole});
    });
}

void VariableTable::setDataSets(DataSets *dataSets)
{
    if (dataSets == m_dataSets)
        return;
    if (m_dataSets)
        disconnect(m_dataSets, nullptr, this, nullptr);
    m_dataSets = dataSets;
    if (m_dataSets) {
        connect(m_dataSets.data(), &DataSets::sourceChanged, this, &VariableTable::follow);
        connect(m_dataSets.data(), &DataSets::changed, this, &VariableTable::readVariables);
    }
    follow();
    emit dataSetsChanged();
}

/** Whatever ticks variables has the series computed, while the models' own signals may be blocked.
 */
void VariableTable::follow()
{
    if (m_followed)
        disconnect(m_followed, nullptr, this, nullptr);
    m_followed = source();
    if (m_followed)
        connect(m_followed.data(), &LogDataSourceItem::graphDataUpdated, this,
                &VariableTable::readTicks);
    readVariables();
}

void VariableTable::setView(LogViewerItem *view)
{
    if (view == m_view)
        return;
    if (m_view)
        disconnect(m_view, nullptr, this, nullptr);
    m_view = view;
    // Later, for others who hear of the new curves may still colour them.
    if (m_view)
        connect(m_view.data(), &LogViewerItem::plotUpdated, &m_recolor,
                static_cast<void (QTimer::*)()>(&QTimer::start));
    m_recolor.start();
    emit viewChanged();
}

// What is listed

/** A list of the same variables stays where it is scrolled to: of a log that grows, say. */
void VariableTable::readVariables()
{
    const QVector<Variable> variables = shownVariables();
    const bool isNew = variables != m_variables;
    if (isNew) {
        beginResetModel();
        m_variables = variables;
        m_listed.clear();
        endResetModel();
    }
    for (int axis = XAxis; axis < AxisCount; ++axis) {
        m_ticks[axis].clear();
        if (source())
            m_ticks[axis].read(*model(axis));
    }
    if (isNew)
        list();
    else
        tellRows();
    emit ticksChanged();
}

/** Those of the data set that is shown, group by group. */
QVector<VariableTable::Variable> VariableTable::shownVariables() const
{
    const QList<QStringList> headers = source() && m_dataSets->current() >= 0
        ? source()->parser()->tabularParser().headerData(m_dataSets->current())
        : QList<QStringList>();
    QVector<Variable> variables;
    QHash<QString, int> groups;
    QVector<int> groupOf;
    for (int column = 0; column < headers.size(); ++column) {
        const QStringList &header = headers.at(column);
        variables.append({column, header.value(1), header.value(0), header.value(2).trimmed()});
        if (!groups.contains(header.value(0)))
            groups.insert(header.value(0), groups.size());
        groupOf.append(groups.value(header.value(0)));
    }
    std::stable_sort(variables.begin(), variables.end(),
                     [&groupOf](const Variable &a, const Variable &b) {
                         return groupOf.at(a.column) < groupOf.at(b.column);
                     });
    return variables;
}

void VariableTable::setSearch(const QString &text)
{
    if (text == m_search)
        return;
    m_search = text;
    list();
    emit searchChanged();
}

void VariableTable::setChosenOnly(bool isChosenOnly)
{
    if (isChosenOnly == m_isChosenOnly)
        return;
    m_isChosenOnly = isChosenOnly;
    list();
    emit chosenOnlyChanged();
}

void VariableTable::list()
{
    beginResetModel();
    m_listed = wanted();
    endResetModel();
    emit countChanged();
}

QVector<int> VariableTable::wanted() const
{
    const QStringList words = m_search.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<int> positions;
    for (int i = 0; i < m_variables.size(); ++i) {
        if (isWanted(m_variables.at(i), words))
            positions.append(i);
    }
    return positions;
}

bool VariableTable::isWanted(const Variable &variable, const QStringList &words) const
{
    const auto isOn
        = [&variable](const VariableTicks &ticks) { return ticks.contains(variable.column); };
    if (m_isChosenOnly && std::none_of(m_ticks, m_ticks + AxisCount, isOn))
        return false;
    return std::all_of(words.begin(), words.end(), [&variable](const QString &word) {
        return variable.name.contains(word, Qt::CaseInsensitive)
            || variable.group.contains(word, Qt::CaseInsensitive)
            || variable.unit.contains(word, Qt::CaseInsensitive);
    });
}

void VariableTable::readTicks()
{
    bool isNew = false;
    for (int axis = XAxis; source() && axis < AxisCount; ++axis)
        isNew = m_ticks[axis].read(*model(axis)) || isNew;
    if (!isNew)
        return;
    // Rows stay while a user taps on them, but those that others ticked have to come.
    const QVector<int> positions = m_isChosenOnly ? wanted() : QVector<int>();
    if (!std::includes(m_listed.begin(), m_listed.end(), positions.begin(), positions.end()))
        list();
    else
        tellRows();
    emit ticksChanged();
}

void VariableTable::tellRows(const QVector<int> &roles)
{
    if (!m_listed.isEmpty())
        emit dataChanged(index(0), index(m_listed.size() - 1), roles);
}

int VariableTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_listed.size();
}

QVariant VariableTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const Variable &variable = m_variables.at(m_listed.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return variable.name.isEmpty() ? tr("Column %1").arg(variable.column + 1) : variable.name;
    case GroupRole:
        return variable.group;
    case UnitRole:
        return variable.unit;
    case OnXRole:
    case OnLeftRole:
    case OnRightRole:
        return m_ticks[role - OnXRole].contains(variable.column);
    case LeftColorRole:
    case RightColorRole:
        return color(role - LeftColorRole + LeftAxis, variable);
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> VariableTable::roleNames() const
{
    return {{NameRole, "name"},           {GroupRole, "group"},
            {UnitRole, "unit"},           {OnXRole, "onX"},
            {OnLeftRole, "onLeft"},       {OnRightRole, "onRight"},
            {LeftColorRole, "leftColor"}, {RightColorRole, "rightColor"}};
}

/** Empty for a variable that is not on the axis. */
QString VariableTable::color(int axis, const Variable &variable) const
{
    if (!m_view || !m_ticks[axis].contains(variable.column))
        return QString();
    return m_view->hexColorForAxisAndVariableName(axis, variable.name);
}

QString VariableTable::xName() const
{
    const int column = m_ticks[XAxis].order().value(0, -1);
    for (const Variable &variable : m_variables) {
        if (variable.column == column)
            return variable.name;
    }
    return QString();
}

// Choosing

QStandardItemModel *VariableTable::model(int axis) const
{
    return axis == XAxis   ? source()->xVariableModel()
        : axis == LeftAxis ? source()->yVariableModel()
                           : source()->zVariableModel();
}

void VariableTable::toggle(int row, int axis)
{
    if (!source() || !isAxis(axis) || row < 0 || row >= m_listed.size())
        return;
    const int column = m_variables.at(m_listed.at(row)).column;
    if (axis == XAxis)
        tick(axis, {column});
    else
        source()->updateVariableSelection(axis, column, !m_ticks[axis].contains(column));
}

int VariableTable::chooseListed(int axis)
{
    if (!source() || !isAxis(axis) || axis == XAxis)
        return 0;
    QVector<int> columns = m_ticks[axis].order();
    int left = 0;
    for (int position : qAsConst(m_listed)) {
        const int column = m_variables.at(position).column;
        if (m_ticks[axis].contains(column))
            continue;
        if (columns.size() < MostAtOnce)
            columns.append(column);
        else
            ++left;
    }
    tick(axis, columns);
    return left;
}

void VariableTable::chooseNone(int axis)
{
    if (source() && isAxis(axis))
        tick(axis, QVector<int>());
}

void VariableTable::chooseLatest(int axis)
{
    if (source() && isAxis(axis))
        tick(axis, m_ticks[axis].latest(CurveColors::OfThePlot));
}

void VariableTable::tick(int axis, const QVector<int> &columns)
{
    const QSet<int> wanted(columns.begin(), columns.end());
    SilentChange::tick(model(axis), [&wanted](int row) { return wanted.contains(row); });
    SilentChange::computeSeries(source());
}
