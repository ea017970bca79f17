#ifndef DATALOG_VIEWER_TABLESELECTION_H
#define DATALOG_VIEWER_TABLESELECTION_H

#include "table/LogTableViewItem.h"
#include "viewer/CellSelection.h"

#include <QPointer>

/** What is selected in a table item, and what can be done with it. */
class TableSelection : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY changed)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY changed)
    Q_PROPERTY(int logRow READ logRow NOTIFY changed)
    Q_PROPERTY(bool tooLarge READ isTooLarge NOTIFY changed)
    Q_PROPERTY(bool extending READ isExtending WRITE setExtending NOTIFY extendingChanged)

public:
    explicit TableSelection(QObject *parent = nullptr);

    QQuickItem *table() const { return m_table; }
    void setTable(QQuickItem *table);
    int rowCount() const { return range().rowCount(); }
    /** Of those that are shown. */
    int columnCount() const { return columns().size(); }
    /** The log's row of the current cell; -1 without one, and for header constants. */
    int logRow() const;
    /** Whether there is more than can be copied. */
    bool isTooLarge() const;
    bool isExtending() const { return m_isExtending; }
    /** The next tap selects from what is selected to where it is. */
    void setExtending(bool isExtending);

    /** After the table came to show something else. */
    Q_INVOKABLE void update();
    Q_INVOKABLE void move(int rows, int columns, bool isExtended);
    /** By as many rows as the table shows. */
    Q_INVOKABLE void movePages(int pages, bool isExtended);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clear();
    /** Puts the selected cells on the clipboard; false for none or too many. */
    Q_INVOKABLE bool copy(bool hasHeader);
    /** Excludes the selected rows from the plot, or takes them in again if the first one is out. */
    Q_INVOKABLE void toggleExcluded();
    /** Gives the current column the room for all that it holds, or takes it back. */
    Q_INVOKABLE void toggleWidth();
    /** Selects a row of the log in the middle of the table; false where it is not shown. */
    Q_INVOKABLE bool showRow(int logRow);

    /** Before the log is read again. */
    Q_INVOKABLE void keep();
    /** Afterwards: selects again what was kept, where its rows are by now. */
    Q_INVOKABLE void bringBack();

signals:
    void tableChanged();
    void changed();
    void extendingChanged();

private:
    CellSelection *cells() const;
    CellRange range() const;
    QVector<int> columns() const;
    void endExtending();
    void centre();

    QPointer<LogTableViewItem> m_table;
    bool m_isExtending;
    CellRange m_kept; ///< by rows of the log
    QPointer<QAbstractItemModel> m_shownModel;
    int m_shownRow; ///< was asked for, and stays in the middle until something else is selected
};

#endif
