#include "model/StringListGrid.h"

StringListGrid::StringListGrid(const QList<QStringList> &columns)
    : m_columns(columns)
{
}

int StringListGrid::cellCount(int column) const
{
    return column >= 0 && column < m_columns.size() ? m_columns.at(column).size() : 0;
}

QString StringListGrid::text(int column, int row) const
{
    return row >= 0 && row < cellCount(column) ? m_columns.at(column).at(row) : QString();
}

QStringList StringListGrid::columnTexts(int column) const
{
    return m_columns.value(column);
}
