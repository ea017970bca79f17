#include "datasource/SeriesBuilder.h"

#include "filters/LogDataSetFilter.h"
#include "model/NumberText.h"
#include "model/RowGrid.h"

#include <algorithm>

namespace
{

const int kTimeColumn = RowGrid::TimeColumnIndex;

bool passes(double number, const QVector<LogDataSetFilter *> &criteria)
{
    return allAccept(criteria, NumberText::toFloat(number));
}

} // namespace

SeriesBuilder::SeriesBuilder(const CellGridPointer &grid, const RowChoice &rows)
    : m_grid(grid)
    , m_rows(rows)
{
}

void SeriesBuilder::readAhead(const QVector<int> &columns) const
{
    QVector<int> asNumbers = columns;
    asNumbers.erase(std::remove(asNumbers.begin(), asNumbers.end(), kTimeColumn), asNumbers.end());
    if (m_grid)
        m_grid->readNumbersAhead(asNumbers);
}

QVector<double> SeriesBuilder::values(int column) const
{
    const Run all = {0, m_rows.count()};
    return columnValues(column, QVector<Run>() << all);
}

QList<CurvePiece> SeriesBuilder::pieces(int column, const QVector<double> &x,
                                        const QVector<LogDataSetFilter *> &criteria) const
{
    QList<CurvePiece> pieces;
    if (x.size() != m_rows.count())
        return pieces;
    const QVector<Run> kept = keptRuns(column, criteria);
    const QVector<double> y = columnValues(column, kept);
    for (int i = 0; i < kept.size(); ++i) {
        // One that takes all is no copy.
        const int begin = kept.at(i).begin;
        const int size = kept.at(i).end - begin;
        const bool isAll = size == x.size();
        const CurvePiece piece = {isAll ? x : x.mid(begin, size), isAll ? y : y.mid(begin, size)};
        pieces.append(piece);
    }
    return pieces;
}

QVector<int> SeriesBuilder::gaps(int column) const
{
    if (!m_grid)
        return QVector<int>();
    return column == kTimeColumn ? m_grid->times(column).gaps : m_grid->numbers(column).gaps;
}

QVector<SeriesBuilder::Run>
SeriesBuilder::keptRuns(int column, const QVector<LogDataSetFilter *> &criteria) const
{
    const QVector<int> gapRows = gaps(column);
    const int count = m_rows.count();
    QVector<Run> runs;
    Run run = {0, count};
    if (gapRows.isEmpty() && criteria.isEmpty())
        return count > 0 ? runs << run : runs;
    const QVector<double> tested = criteria.isEmpty() ? QVector<double>() : numbers(column);
    run.begin = -1; // between two runs
    for (int i = 0; i < count; ++i) {
        const bool isGap = !gapRows.isEmpty()
            && std::binary_search(gapRows.constBegin(), gapRows.constEnd(), m_rows.at(i));
        const bool isKept = !isGap && (criteria.isEmpty() || passes(tested.at(i), criteria));
        if (isKept == (run.begin >= 0))
            continue;
        run.end = i;
        if (!isKept)
            runs.append(run);
        run.begin = isKept ? i : -1;
    }
    run.end = count;
    return run.begin >= 0 ? runs << run : runs;
}

QVector<double> SeriesBuilder::columnValues(int column, const QVector<Run> &kept) const
{
    return column == kTimeColumn ? seconds(column, kept) : numbers(column);
}

QVector<double> SeriesBuilder::numbers(int column) const
{
    const QVector<double> cells = m_grid ? m_grid->numbers(column).values : QVector<double>();
    if (m_rows.isAllOf(cells.size()))
        return cells;
    QVector<double> result(m_rows.count());
    for (int i = 0; i < result.size(); ++i)
        result[i] = m_rows.at(i) < cells.size() ? cells.at(m_rows.at(i)) : 0.0;
    return result;
}

/**
 * The reference is the first time among the kept rows. Until one is found nothing can be told but
 * 0; after that a text that is no time counts as midnight.
 */
QVector<double> SeriesBuilder::seconds(int column, const QVector<Run> &kept) const
{
    const QVector<int> cells = m_grid ? m_grid->times(column).seconds : QVector<int>();
    QVector<double> result(m_rows.count());
    int reference = -1;
    for (int run = 0; run < kept.size(); ++run) {
        for (int i = kept.at(run).begin; i < kept.at(run).end; ++i) {
            const int time = m_rows.at(i) < cells.size() ? cells.at(m_rows.at(i)) : -1;
            if (reference < 0)
                reference = time;
            result[i] = reference < 0 ? 0 : qMax(time, 0) - reference;
        }
    }
    return result;
}
