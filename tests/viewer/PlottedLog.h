#ifndef DATALOG_TESTS_VIEWER_PLOTTEDLOG_H
#define DATALOG_TESTS_VIEWER_PLOTTEDLOG_H

#include "TemporaryLog.h"
#include "plot/LogViewerItem.h"
#include "viewer/CriteriaKeeper.h"
#include "viewer/DataSets.h"
#include "viewer/PlotLook.h"
#include "viewer/SessionState.h"

/** A log that is open and plotted, without a window. */
class PlottedLog
{
public:
    explicit PlottedLog(const QByteArray &text = TemporaryLog::twoDataSets(), int dataSet = 0)
    {
        const TemporaryLog log(text);
        view.setDataSource(&source);
        dataSets.setSource(&source);
        keeper.setSource(&source);
        look.setView(&view);
        source.setLogFilePath(log.path());
        dataSets.show(dataSet);
    }

    void addCriterion(const QString &name, int operatorIndex, float value)
    {
        LogDataSetFilter::Builder builder;
        builder.variable(name).filterOperator(operatorIndex).value(value);
        source.addFilter(new LogDataSetFilter(&builder, nullptr));
    }
    void exclude(int row)
    {
        LogTableViewModel *table = source.tableModel();
        table->setData(table->index(row, 0), Qt::Checked, Qt::CheckStateRole);
    }
    SessionState state() { return SessionState::of(&dataSets, &view); }

    LogDataSourceItem source;
    LogViewerItem view;
    DataSets dataSets;
    CriteriaKeeper keeper;
    PlotLook look;
};

#endif
