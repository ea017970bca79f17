#ifndef DATALOG_VIEWER_VARIABLETICKS_H
#define DATALOG_VIEWER_VARIABLETICKS_H

#include <QSet>
#include <QVector>

class QStandardItemModel;

/** The ticked rows of one axis' model, in the order in which they were ticked. */
class VariableTicks
{
public:
    bool contains(int row) const { return m_rows.contains(row); }
    int count() const { return m_order.size(); }
    QVector<int> order() const { return m_order; }
    /** The last @p count of them. */
    QVector<int> latest(int count) const { return m_order.mid(qMax(0, m_order.size() - count)); }

    /** Takes over what @p model has; false when that is nothing new. */
    bool read(const QStandardItemModel &model);
    void clear();

private:
    QVector<int> m_order;
    QSet<int> m_rows;
};

#endif
