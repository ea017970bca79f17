#include "viewer/DefaultVariables.h"

#include "parsing/TabularParser.h"

namespace
{

const int kFirstAfterTime = 2; // the second variable of a log is the clock time
const int kMostSamples = 500;
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
{
    const CellGridPointer grid = log.grid(dataSet);
    for (int column = kFirstAfterTime; grid && column < m_headers.size(); ++column) {
        if (isMeasured(*grid, column))
            m_measured.append(column);
    }
}

VariableChoice DefaultVariables::choice() const
{
    VariableChoice choice;
    if (m_headers.isEmpty())
        return choice;
    choice.x.append(name(0));
    const int left = firstMeasured({group(0)});
    if (left >= 0) {
        choice.left.append(name(left));
        const int right = firstMeasured({group(0), group(left)});
        if (right >= 0)
            choice.right.append(name(right));
    } else if (!m_measured.isEmpty()) {
        choice.left.append(name(m_measured.first()));
    } else if (m_headers.size() > kFirstAfterTime) {
        choice.left.append(name(kFirstAfterTime));
    }
    return choice;
}

/** The first measured column whose group is none of these, -1 without one. */
int DefaultVariables::firstMeasured(const QStringList &otherGroups) const
{
    for (int column : m_measured) {
        if (!otherGroups.contains(group(column)))
            return column;
    }
    return -1;
}
