#include "datasource/SeriesBuilder.h"

#include "filters/LogDataSetFilter.h"
#include "model/NumberText.h"
#include "model/RowGrid.h"

#include <algorithm>

namespace
{

const int kTimeColumn = RowGrid::TimeColumnIndex;

/** Whether @p rows are 0, 1, 2 and so on. */
bool areConsecutive(const QVector<int> &rows)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i) != i)
            return false;
    }
    return true;
}

} // namespace

SeriesBuilder::SeriesBuilder(const CellGridPointer &grid, const QVector<int> &rows)
    : m_grid(grid)
    , m_rows(rows)
    , m_isWhole(areConsecutive(rows))
{
}

QVector<double> SeriesBuilder::values(int column) const
{
    return columnValues(column, QVector<bool>());
}

QList<CurvePiece> SeriesBuilder::pieces(int column, const QVector<double> &x,
                                        const QVector<LogDataSetFilter *> &criteria) const
{
    QList<CurvePiece> pieces;
    if (x.size() != m_rows.size())
        return pieces;
    const QVector<bool> kept = keptRows(column, criteria);
    const QVector<double> y = columnValues(column, kept);
    if (kept.isEmpty()) {
        const CurvePiece whole = {x, y};
        if (!y.isEmpty())
            pieces.append(whole);
        return pieces;
    }
    for (int start = 0; start < y.size();) {
        if (!kept.at(start)) {
            ++start;
            continue;
        }
        const int end
            = int(std::find(kept.constBegin() + start, kept.constEnd(), false) - kept.constBegin());
        const CurvePiece piece = {x.mid(start, end - start), y.mid(start, end - start)};
        pieces.append(piece);
        start = end;
    }
    return pieces;
}

/** Which of the rows stay in a curve; empty when all do. */
QVector<bool> SeriesBuilder::keptRows(int column, const QVector<LogDataSetFilter *> &criteria) const
{
    const QVector<int> gaps = !m_grid ? QVector<int>()
        : column == kTimeColumn       ? m_grid->times(column).gaps
                                      : m_grid->numbers(column).gaps;
    if (gaps.isEmpty() && criteria.isEmpty())
        return QVector<bool>();
    QVector<bool> kept(m_rows.size(), true);
    const QVector<double> tested = criteria.isEmpty() ? QVector<double>() : numbers(column);
    for (int i = 0; i < m_rows.size(); ++i) {
        bool keep = !std::binary_search(gaps.constBegin(), gaps.constEnd(), m_rows.at(i));
        for (int j = 0; keep && j < criteria.size(); ++j)
            keep = criteria.at(j)->accepts(NumberText::toFloat(tested.at(i)));
        kept[i] = keep;
    }
    return kept;
}

QVector<double> SeriesBuilder::columnValues(int column, const QVector<bool> &kept) const
{
    return column == kTimeColumn ? seconds(column, kept) : numbers(column);
}

QVector<double> SeriesBuilder::numbers(int column) const
{
    const QVector<double> cells = m_grid ? m_grid->numbers(column).values : QVector<double>();
    if (m_isWhole && cells.size() == m_rows.size())
        return cells;
    QVector<double> result(m_rows.size());
    for (int i = 0; i < m_rows.size(); ++i)
        result[i] = m_rows.at(i) < cells.size() ? cells.at(m_rows.at(i)) : 0.0;
    return result;
}

/**
 * The reference is the first time among the kept rows. Until one is found nothing can be told but
 * 0; after that a text that is no time counts as midnight.
 */
QVector<double> SeriesBuilder::seconds(int column, const QVector<bool> &kept) const
{
    const QVector<int> cells = m_grid ? m_grid->times(column).seconds : QVector<int>();
    QVector<double> result(m_rows.size());
    int reference = -1;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (!kept.isEmpty() && !kept.at(i))
            continue;
        const int time = m_rows.at(i) < cells.size() ? cells.at(m_rows.at(i)) : -1;
        if (reference < 0)
            reference = time;
        result[i] = reference < 0 ? 0 : qMax(time, 0) - reference;
    }
    return result;
}
