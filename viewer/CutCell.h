#ifndef DATALOG_VIEWER_CUTCELL_H
#define DATALOG_VIEWER_CUTCELL_H

#include "table/LogTableViewItem.h"

#include <QPointer>
#include <QRectF>

/** The whole text of a table item's current cell, where the cell has no room for it. */
class CutCell : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QRectF area READ area NOTIFY changed)

public:
    explicit CutCell(QObject *parent = nullptr);

    QQuickItem *table() const { return m_table; }
    void setTable(QQuickItem *table);
    /** Empty for a cell that shows all it has, and for more than one cell. */
    QString text() const { return m_text; }
    /** What is to be seen of the cell, in the table item's coordinates. */
    QRectF area() const { return m_area; }

signals:
    void tableChanged();
    void changed();

private:
    void update();
    QModelIndex currentCell() const;
    bool isCut(const QModelIndex &index) const;

    QPointer<LogTableViewItem> m_table;
    QString m_text;
    QRectF m_area;
};

#endif
