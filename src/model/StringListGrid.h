#ifndef DATALOG_MODEL_STRINGLISTGRID_H
#define DATALOG_MODEL_STRINGLISTGRID_H

#include "model/CellGrid.h"

/** A grid over lists of strings, one list a column. */
class StringListGrid : public CellGrid
{
public:
    explicit StringListGrid(const QList<QStringList> &columns = QList<QStringList>());

    int columnCount() const override { return m_columns.size(); }
    int cellCount(int column) const override;
    QString text(int column, int row) const override;
    QStringList columnTexts(int column) const override;

private:
    QList<QStringList> m_columns;
};

#endif
