#include "viewer/DefaultVariables.h"

#include "parsing/TabularParser.h"

namespace
{

const int kFirstAfterTime = 2; // the second variable of a log is the clock time
const int kMostSamples = 500;
const int kMostColumns = 300;
const double kLeastNumbers = 0.9;
const double kLeastChanges = 0.25;

bool isNumber(const QString &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber;
}

/**
 * Looks at neighbours all over the column: enough to judge it, in a time that no log makes long.
 * What is measured changes from row to row; set points, steps and switches stay.
 */
bool isMeasured(const CellGrid &grid, int column)
{
    const int pairs = grid.cellCount(column) - 1;
    const int step = qMax(1, pairs / kMostSamples);
    int looked = 0;
    int numbers = 0;
    int changes = 0;
    for (int row = 0; row < pairs; row += step) {
        const QString text = grid.text(column, row);
        ++looked;
        numbers += isNumber(text) ? 1 : 0;
        changes += text != grid.text(column, row + 1) ? 1 : 0;
    }
    return looked > 0 && numbers >= kLeastNumbers * looked && changes >= kLeastChanges * looked;
}

} // namespace

DefaultVariables::DefaultVariables(const TabularParser &log, int dataSet)
    : m_headers(log.headerData(dataSet))
    , m_grid(log.grid(dataSet))
{
}

VariableChoice DefaultVariables::choice() const
{
    VariableChoice choice;
    if (m_headers.isEmpty())
        return choice;
    choice.x.append(name(0));
    int left = firstMeasured({group(0)});
    const int right = left < 0 ? -1 : firstMeasured({group(0), group(left)});
    if (left < 0)
        left = firstMeasured(QStringList());
    if (left >= 0)
        choice.left.append(name(left));
    else if (m_headers.size() > kFirstAfterTime)
        choice.left.append(name(kFirstAfterTime));
    if (right >= 0)
        choice.right.append(name(right));
    return choice;
}

/**
 * The first measured column whose group is none of these, -1 without one among those looked at: to
 * judge all columns of a wide log takes longer than to read it.
 */
int DefaultVariables::firstMeasured(const QStringList &otherGroups) const
{
    int looked = 0;
    for (int column = kFirstAfterTime; m_grid && column < m_headers.size(); ++column) {
        if (otherGroups.contains(group(column)))
            continue;
        if (++looked > kMostColumns)
            break;
        if (isMeasured(*m_grid, column))
            return column;
    }
    return -1;
}
