#ifndef DATALOG_VIEWER_TABLECOLUMNS_H
#define DATALOG_VIEWER_TABLECOLUMNS_H

#include "table/LogTableViewItem.h"
#include "viewer/CellRange.h"

#include <QHash>
#include <QPointer>
#include <QScopedPointer>
#include <QStringList>

#include <functional>

class FilledRows;
class PlottedRows;

/**
 * What a table shows: one of its options, and of that option's columns those of some groups.
 *
 * Each option keeps its own choice of groups, by name, for as long as this object lives, so that it
 * also counts for the next data set or log. The plotted columns are told by the plot and have no
 * groups to choose. The observations are all of the log's, also where a window plots just some of
 * them; the plotted ones are those of the window that criteria leave in a curve. Where the
 * observations are scrolled to and what is selected of them is kept as well. The check boxes of
 * observations are no column in this sense: they always stay.
 */
class TableColumns : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(int option READ option WRITE setOption NOTIFY changed)
    Q_PROPERTY(QStringList groups READ groups NOTIFY changed)
    Q_PROPERTY(QStringList hiddenGroups READ hiddenGroups NOTIFY changed)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY changed)
    Q_PROPERTY(int shownColumnCount READ shownColumnCount NOTIFY changed)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY changed)
    Q_PROPERTY(int logRowCount READ logRowCount NOTIFY changed)

public:
    explicit TableColumns(QObject *parent = nullptr);
    ~TableColumns() override;

    QQuickItem *table() const { return m_table; }
    /** @param table a table item with a data source; others are left as they are. */
    void setTable(QQuickItem *table);
    /** One of the table's LogViewerViewOptions. */
    int option() const { return m_option; }
    void setOption(int option);
    /** The groups of the option's columns in the order of the columns. */
    QStringList groups() const { return m_groups; }
    QStringList hiddenGroups() const { return m_hidden.value(m_option); }
    int columnCount() const { return m_columnCount; }
    int shownColumnCount() const { return m_shownColumnCount; }
    int rowCount() const { return m_rowCount; }
    /** How many observations the log has, shown or not. */
    int logRowCount() const;

    Q_INVOKABLE void setGroupShown(const QString &group, bool shown);
    Q_INVOKABLE void showAllGroups();
    Q_INVOKABLE void hideAllGroups();
    /** Shows the option anew, for example after cells changed their size. */
    Q_INVOKABLE void refit();

signals:
    void tableChanged();
    void changed();

private:
    bool hasCheckBoxes() const { return m_option != LogTableViewItem::Header; }
    bool hasGroups() const { return m_option != LogTableViewItem::PlottedData; }
    int firstColumn() const { return hasCheckBoxes() ? 1 : 0; }
    void showOption();
    void showOwnRows();
    void showModel(QAbstractItemModel *model);
    bool isWindowWhole() const;
    void scrollTo(int position);
    void keepingRows(const std::function<bool()> &change);
    void restore(int top, int offset, const CellRange &selection);
    void hideChosen();
    void followPlot();
    void keepCheckBoxes();
    void describe();
    QString groupOf(int column) const;

    QPointer<LogTableViewItem> m_table;
    QScopedPointer<PlottedRows> m_plottedRows; ///< while they are shown
    QScopedPointer<FilledRows> m_constants; ///< likewise
    int m_option;
    QHash<int, QStringList> m_hidden; ///< by option
    QStringList m_groups;
    int m_columnCount;
    int m_shownColumnCount;
    int m_rowCount;
    int m_position; ///< of the observations while the constants are shown
};

#endif
