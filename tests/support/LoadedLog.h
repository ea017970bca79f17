#ifndef DATALOG_TESTS_SUPPORT_LOADEDLOG_H
#define DATALOG_TESTS_SUPPORT_LOADEDLOG_H

#include "datasource/LogDataSourceItem.h"
#include "support/TempDir.h"

#include <QScopedPointer>

/** A data source that shows all observations of a log given as the bytes of its file. */
class LoadedLog
{
public:
    explicit LoadedLog(const QByteArray &log)
        : source(new LogDataSourceItem)
    {
        source->setLogFilePath(m_dir.write(QLatin1String("log.txt"), log));
        source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
        source->selectDataSet(0);
    }

    void setExcluded(int row, bool excluded)
    {
        LogTableViewModel *table = source->tableModel();
        table->setData(table->index(row, 0), excluded ? Qt::Checked : Qt::Unchecked,
                       Qt::CheckStateRole);
    }

    /** Plots variables by their rows: one across, one on the left. */
    void plot(int across, int left)
    {
        source->updateVariableSelection(0, across, true);
        source->updateVariableSelection(1, left, true);
    }

private:
    TempDir m_dir;

public:
    QScopedPointer<LogDataSourceItem> source;
};

#endif
