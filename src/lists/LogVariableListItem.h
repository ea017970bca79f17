#ifndef DATALOG_LISTS_LOGVARIABLELISTITEM_H
#define DATALOG_LISTS_LOGVARIABLELISTITEM_H

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"

#include <QPointer>

class QGraphicsProxyWidget;
class QListView;

/** The variables that a data source can plot on one axis, to be ticked in a list. */
class LogVariableListItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_ENUMS(LogVariableListAxis)
    Q_PROPERTY(
        LogDataSourceItem *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged)
    Q_PROPERTY(LogVariableListAxis variableListAxis READ variableListAxis WRITE setVariableListAxis
                   NOTIFY variableListAxisChanged)

public:
    /** The horizontal, the left and the right axis. Scripts can write any number. */
#ifdef Q_MOC_RUN // the older engine's moc can't read an enumeration with a type
    enum LogVariableListAxis{VariableListAxis_X = 0, VariableListAxis_Y = 1,
                             VariableListAxis_Z = 2};
#else
    enum LogVariableListAxis : int {
        VariableListAxis_X = 0,
        VariableListAxis_Y = 1,
        VariableListAxis_Z = 2
    };
#endif

    explicit LogVariableListItem(QDeclarativeItem *parent = nullptr);

    LogDataSourceItem *dataSource() const;
    /**
     * Shows the list of @p source from now on; with null the list shown stays, for as long as its
     * source lives. Emits nothing.
     */
    void setDataSource(LogDataSourceItem *source);
    LogVariableListAxis variableListAxis() const;
    /** Shows another axis' variables; what is no axis shows the horizontal one's. Emits nothing. */
    void setVariableListAxis(LogVariableListAxis axis);
    /** Shows the variables of the axis, if there is a data source. */
    void updateModel();

    /** For programs: the list itself. It belongs to this item. */
    QListView *listView() const;

Q_SIGNALS:
    void dataSourceChanged();
    void variableListAxisChanged();

public Q_SLOTS:
    /** Fits the list to the item. */
    void resizeProxy();

private:
    QGraphicsProxyWidget *_proxy;
    QListView *_listView;
    QPointer<LogDataSourceItem> _dataSource; ///< scripts may delete it first
    LogVariableListAxis _variableListAxis;
};

#endif
