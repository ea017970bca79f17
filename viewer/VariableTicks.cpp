#include "viewer/VariableTicks.h"

#include <QStandardItemModel>

bool VariableTicks::read(const QStandardItemModel &model)
{
    QSet<int> rows;
    QVector<int> added;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.item(row)->checkState() != Qt::Checked)
            continue;
        rows.insert(row);
        if (!m_rows.contains(row))
            added.append(row);
    }
    if (rows == m_rows)
        return false;
    QVector<int> order;
    for (int row : qAsConst(m_order)) {
        if (rows.contains(row))
            order.append(row);
    }
    m_order = order + added;
    m_rows = rows;
    return true;
}

void VariableTicks::clear()
{
    m_order.clear();
    m_rows.clear();
}
