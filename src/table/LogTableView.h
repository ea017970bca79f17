#ifndef DATALOG_TABLE_LOGTABLEVIEW_H
#define DATALOG_TABLE_LOGTABLEVIEW_H

#include <QTableView>

/** The table in a table item, with a name that style sheets and tests can tell it by. */
class LogTableView : public QTableView
{
    Q_OBJECT

public:
    explicit LogTableView(QWidget *parent = nullptr);
};

#endif
