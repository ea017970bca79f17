#ifndef DATALOG_VIEWER_COLUMNWIDTHS_H
#define DATALOG_VIEWER_COLUMNWIDTHS_H

#include <QHash>
#include <QObject>

class LogTableViewItem;

/**
 * Keeps one long text, such as a remark, from taking the whole table: columns get what their cells
 * need, but no more than a third of the table.
 *
 * A column that the user made wider or narrower stays so, by its header's text, for as long as the
 * table lives: also when it is fitted anew, and in another log.
 */
class ColumnWidths : public QObject
{
    Q_OBJECT

public:
    /** Has the columns of @p table so from now on; again, it changes nothing. */
    static void activate(LogTableViewItem *table);
    /** That of @p table; null before. */
    static ColumnWidths *of(const LogTableViewItem *table);

    /** Gives a column the room for all that it holds, or takes it back. */
    void toggle(int column);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ColumnWidths(LogTableViewItem *table);
    void fit();
    void limit();
    void choose(int column, int width);
    int fittingWidth(int column) const;
    int wholeWidth(int column) const;
    QString nameOf(int column) const;

    LogTableViewItem *m_table;
    QHash<QString, int> m_chosen; ///< by the header's text
    int m_limit; ///< of a column's width
};

#endif
