#include "viewer/HorizontalChoice.h"

HorizontalChoice::HorizontalChoice(QObject *parent)
    : QObject(parent)
{
}

void HorizontalChoice::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    if (m_source)
        disconnect(m_source->xVariableModel(), nullptr, this, nullptr);
    m_source = source;
    if (m_source)
        connect(m_source->xVariableModel(), &QStandardItemModel::itemChanged, this,
                &HorizontalChoice::keepOnly);
    emit sourceChanged();
}

void HorizontalChoice::keepOnly(QStandardItem *changed)
{
    if (changed->checkState() != Qt::Checked)
        return;
    const int kept = changed->row();
    const QList<int> rows = m_source->checkedItemList(0);
    for (int row : rows) {
        if (row != kept)
            m_source->updateVariableSelection(0, row, false);
    }
}
