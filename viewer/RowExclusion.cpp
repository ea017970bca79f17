#include "viewer/RowExclusion.h"

#include "table/LogTableViewModel.h"

#include <QSignalBlocker>

namespace
{

void setOne(LogTableViewModel *model, int row, bool isExcluded)
{
    model->setData(model->index(row, 0), isExcluded ? Qt::Checked : Qt::Unchecked,
                   Qt::CheckStateRole);
}

} // namespace

void RowExclusion::set(LogTableViewModel *model, const QVector<int> &rows, bool isExcluded)
{
    if (rows.isEmpty())
        return;
    // The first one tells that there are excluded rows at all, and the last that there are none.
    setOne(model, rows.first(), isExcluded);
    {
        const QSignalBlocker blocker(model);
        for (int i = 1; i + 1 < rows.size(); ++i)
            setOne(model, rows.at(i), isExcluded);
    }
    if (rows.size() > 1)
        setOne(model, rows.last(), isExcluded);
}
