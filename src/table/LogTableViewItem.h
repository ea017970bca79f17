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
 * A model that the table did not show just before starts with all columns. Header and Data hide
 * every column when their model is filled anew; scripts then show the columns they want.
 * PlottedData, which shows the model of Data, keeps to the plotted variables' columns by itself.
 * While checkableColumnEnabled is set, column 0, the check boxes that exclude observations, is
 * among those that stay. Columns keep the width that their contents need, hidden ones too.
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
     * as it is, for as long as its source lives, and hides and shows no columns by itself any more.
     * It is still repainted when an earlier source's excluded points are cleared.
     */
    void setDataSource(LogDataSourceItem *source);

    /** For programs: the table itself. It belongs to this item. */
    LogTableView *tableView() const;
    /** For programs: what draws the check boxes. It belongs to this item. */
    CheckboxItemDelegate *checkBoxes() const;
    /** For programs: what fits the table's columns and rows. It belongs to the table. */
    TableFitter *fitter() const;

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
    /**
     * Hides the columns whose header has @p part as the part at @p index, whole and in this case.
     * @param delim a regular expression that the header is split at; parts left empty don't count.
     * The default splits at line ends and at each "|", which a variable's name may hold too. One of
     * more than 1000 characters splits nothing, like one that is no expression.
     * @param index counts from 0; with the default, 0 is the group, 1 the name and 2 the unit.
     */
    void hideColumnsForHeaderPart(const QString &part,
                                  const QString &delim = QLatin1String("[\n|\r\n|\r]"),
                                  int index = 0);
    /** Shows the columns that hideColumnsForHeaderPart() hides for the same arguments. */
    void showColumnsForHeaderPart(const QString &part,
                                  const QString &delim = QLatin1String("[\n|\r\n|\r]"),
                                  int index = 0);
    /** Hides all columns, but for the check boxes while checkableColumnEnabled is set. */
    void hideAllColumns();
    void showAllColumns();
    /** As hideAllColumns(), and shows the columns of the plotted variables. */
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
