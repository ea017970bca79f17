#include "viewer/CriteriaKeeper.h"

#include "viewer/SilentChange.h"

#include <QSignalBlocker>

CriteriaKeeper::CriteriaKeeper(QObject *parent)
    : QObject(parent)
{
}

void CriteriaKeeper::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    if (m_source) {
        disconnect(m_source->tableModel(), nullptr, this, nullptr);
        disconnect(m_source, nullptr, this, nullptr);
    }
    m_source = source;
    if (m_source) {
        connect(m_source->tableModel(), &QAbstractItemModel::modelAboutToBeReset, this,
                &CriteriaKeeper::keepExcludedRows);
        connect(m_source.data(), &LogDataSourceItem::criteriaUpdated, this,
                &CriteriaKeeper::recompute);
    }
    emit sourceChanged();
}

/** Every reload of the table passes here; only after one for criteria are the rows put back. */
void CriteriaKeeper::keepExcludedRows()
{
    const LogTableViewModel *table = m_source->tableModel();
    m_grid = table->grid();
    m_excludedRows = table->hasExcludedRows() ? table->excludeRows() : QVector<int>();
}

void CriteriaKeeper::recompute()
{
    LogTableViewModel *table = m_source->tableModel();
    if (table->grid() == m_grid) {
        // Each row told would compute the series again.
        const QSignalBlocker blocker(table);
        for (int row = 0; row < m_excludedRows.size(); ++row) {
            if (m_excludedRows.at(row))
                table->setData(table->index(row, 0), Qt::Checked, Qt::CheckStateRole);
        }
    }
    SilentChange::computeSeries(m_source);
}
