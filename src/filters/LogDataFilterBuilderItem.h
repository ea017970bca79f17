#ifndef DATALOG_FILTERS_LOGDATAFILTERBUILDERITEM_H
#define DATALOG_FILTERS_LOGDATAFILTERBUILDERITEM_H

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"

#include <QPointer>

class QComboBox;
class QGraphicsProxyWidget;
class QLineEdit;
class QStandardItemModel;
class QWidget;

/**
 * A row of widgets to compose a criterion with: a variable, an operator, a number, and the buttons
 * "Add Criteria" and "Clear Criteria".
 *
 * Adding hands a criterion to the data source and leaves the row as it is. Clearing only emits
 * clearFilters(): it is for the script to call clearCriteria() of the data source then, or to ask
 * first.
 *
 * The number field never takes a focus event. When it is touched, startEditing() asks the script
 * for a number entry of its own, which writes its result to value.
 */
class LogDataFilterBuilderItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_PROPERTY(
        LogDataSourceItem *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)

public:
    explicit LogDataFilterBuilderItem(QDeclarativeItem *parent = nullptr);

    LogDataSourceItem *dataSource() const { return m_dataSource; }
    /**
     * Lists the variables of @p source, which may go away first, and adds criteria to it; with null
     * there are none, and nothing is added. Emits nothing.
     *
     * A source of a derived class that has a slot clearFilters() is connected to the signal of that
     * name.
     */
    void setDataSource(LogDataSourceItem *source);
    /** The number as an integer, 0 when it is none. */
    int value() const;
    /** Writes the number, without focus and without a signal. */
    void setValue(int value);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /** For programs: what holds the widgets. It belongs to this item. */
    QWidget *container() const { return m_container; }

Q_SIGNALS:
    void dataSourceChanged();
    void clearFilters();
    void startEditing();
    void valueChanged();

public Q_SLOTS:
    /** Fits the widgets to the item. */
    void resizeProxy();

private Q_SLOTS:
    void addFilter();

private:
    void makeWidgets();
    void addName(const char *name, QWidget *widget);
    void addButton(const char *text, const char *member);
    void showOperators();

    QGraphicsProxyWidget *m_proxy;
    QPointer<LogDataSourceItem> m_dataSource; ///< scripts may delete it first
    QWidget *m_container;
    QComboBox *m_variableBox;
    QComboBox *m_operatorBox;
    QLineEdit *m_valueEdit;
    QStandardItemModel *m_operators;
    QStandardItemModel *m_noVariables; ///< shown without a data source
};

#endif
