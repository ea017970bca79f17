#include "table/LogTableView.h"

LogTableView::LogTableView(QWidget *parent)
    : QTableView(parent)
{
}
