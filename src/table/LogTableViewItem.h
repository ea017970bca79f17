#ifndef DATALOG_TABLE_LOGTABLEVIEWITEM_H
#define DATALOG_TABLE_LOGTABLEVIEWITEM_H

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"
#include "filters/LogObservationSortFilterProxyModel.h"

#include <QPointer>

class CheckboxItemDelegate;
class LogTableView;
class QGraphicsProxyWidget;
class QStackedWidget;
class TableFitter;

/**
 * Shows a log as a table: its header constants, the observations of the selected data set, or
 * those of them that are plotted.
 *
 * Header and Data hide every column when their model is filled anew; scripts then show the columns
 * they want. PlottedData keeps to the plotted variables' columns by itself. While
 * checkableColumnEnabled is set, column 0, the check boxes that exclude observations, is among
 * those that stay. Columns keep the width that their contents need, hidden ones too.
 *
 * A column is told by a part of its header: the text is split at a regular expression, and the
 * part at an index, counted from 0 and without empty parts, has to be the text asked for. With the
 * defaults that is the first line, the variable's group. The default splits at line ends and also
 * at vertical bars, so a name with a bar in it counts as two parts; a script that has such names
 * passes "\n" as the delimiter.
 *
 * None of the setters emits a signal. Nothing shows before there are both a data source and, by its
 * setter or its default, an option.
 */
class LogTableViewItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_ENUMS(LogViewerViewOptions)
    Q_PROPERTY(bool checkableColumnEnabled READ checkableColumnEnabled WRITE
                   setCheckableColumnEnabled NOTIFY checkableColumnEnabledChanged)
    Q_PROPERTY(bool remarksEnabled READ remarksEnabled WRITE setRemarksEnabled NOTIFY
                   remarksEnabledChanged)
    Q_PROPERTY(LogViewerViewOptions logViewerViewOption READ logViewerViewOption WRITE
                   setLogViewerViewOption NOTIFY logViewerViewOptionChanged)
    Q_PROPERTY(
        LogDataSourceItem *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged)

public:
    /** What the table shows. Scripts can write any number; what is no option acts as Analysis. */
#ifdef Q_MOC_RUN // the older engine's moc can't read an enumeration with a type
    enum LogViewerViewOptions{Header = 0, Data = 1, PlottedData = 2, Analysis = 3};
#else
    enum LogViewerViewOptions : int {
        Header = 0, ///< the header constants
        Data = 1, ///< the observations that the source's range lets through
        PlottedData = 2, ///< the same, and of them what is plotted
        Analysis = 3 ///< nothing of its own yet: what was shown stays
    };
#endif

    explicit LogTableViewItem(QDeclarativeItem *parent = nullptr);

    bool checkableColumnEnabled() const;
    /** Whether column 0 stays when columns are hidden; it counts from the next time they are. */
    void setCheckableColumnEnabled(bool enabled);
    bool remarksEnabled() const;
    /** Kept for scripts; the rows shown are those that the source's range lets through. */
    void setRemarksEnabled(bool enabled);
    LogViewerViewOptions logViewerViewOption() const;
    /** Shows what @p option stands for and fits the columns and rows, also for the same option. */
    void setLogViewerViewOption(LogViewerViewOptions option);
    LogDataSourceItem *dataSource() const;
    /**
     * Shows the models of @p source from now on, which may go away first. With null the table stays
     * as it is, for as long as its source lives, and follows nothing any more.
     */
    void setDataSource(LogDataSourceItem *source);

    /** For programs: the table itself. It belongs to this item. */
    LogTableView *tableView() const;

Q_SIGNALS:
    void dataSourceChanged();
    void logViewerViewOptionChanged();
    void remarksEnabledChanged();
    void checkableColumnEnabledChanged();

public Q_SLOTS:
    /** Lets remarks span the table, for each row of the row filter; that one has no rows. */
    void reloadData();
    /** Fits the table to the item. */
    void resizeTableView();
    void hideColumnsForHeaderPart(const QString &part,
                                  const QString &delim = QLatin1String("[\n|\r\n|\r]"),
                                  int index = 0);
    void showColumnsForHeaderPart(const QString &part,
                                  const QString &delim = QLatin1String("[\n|\r\n|\r]"),
                                  int index = 0);
    void hideAllColumns();
    void showAllColumns();
    /** Hides all columns but those of the plotted variables. */
    void showGraphedColumns();

private:
    void styleTable();
    void styleHeaders();
    void showModel(QAbstractItemModel *model);
    void showCheckBoxes(bool shown);
    void hideColumnsAtResetOf(QAbstractItemModel *model);
    void followGraph();
    void unfollowModels();
    void setColumnsHidden(const QString &part, const QString &delim, int index, bool hidden);

    QStackedWidget *_stack;
    LogTableView *_tableView;
    QGraphicsProxyWidget *_proxy;
    QPointer<LogDataSourceItem> _dataSource; ///< scripts may delete it first
    LogViewerViewOptions _viewOption;
    LogObservationSortFilterProxyModel _remarksFilter;
    bool _remarksEnabled;
    bool _checkableColumnEnabled;
    CheckboxItemDelegate *m_checkBoxes;
    TableFitter *m_fitter;
    QPointer<QAbstractItemModel> m_followedModel; ///< whose resets hide or show columns
};

#endif
