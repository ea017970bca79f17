#ifndef DATALOG_TESTS_TABLE_FILLEDMODEL_H
#define DATALOG_TESTS_TABLE_FILLEDMODEL_H

#include "support/TextTable.h"
#include "table/LogTableViewModel.h"

/** A model with these headers and columns. */
struct FilledModel : LogTableViewModel {
    FilledModel(const char *headers, const char *columns)
    {
        setColumnHeaderData(listsOf(headers));
        setGridData(listsOf(columns));
    }
    /** Reaches behind index() for indexes that it would not give out. */
    using LogTableViewModel::createIndex;

    bool check(int row, const QVariant &value)
    {
        return setData(index(row, 0), value, Qt::CheckStateRole);
    }
};

#endif
