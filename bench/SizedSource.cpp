#include "bench/SizedSource.h"

#include "bench/LogWriter.h"
#include "datasource/LogDataSourceItem.h"

#include <QDir>
#include <QTemporaryFile>

#include <cstdlib>

namespace
{

const int kColumns = 20;

LogDataSourceItem *newSource(int rows)
{
    QTemporaryFile file(QDir::tempPath() + QLatin1String("/datalog-bench-XXXXXX.log"));
    if (!file.open() || !LogWriter(rows, kColumns).write(&file) || !file.flush())
        qFatal("Failed to write a log: %s", qPrintable(file.errorString()));
    LogDataSourceItem *source = new LogDataSourceItem;
    source->setLogFilePath(file.fileName());
    source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    source->selectDataSet(0);
    return source;
}

} // namespace

namespace SizedSource
{

LogDataSourceItem *withRows(int rows)
{
    // They live as long as the program.
    static QHash<int, LogDataSourceItem *> sources;
    if (!sources.contains(rows))
        sources.insert(rows, newSource(rows));
    return sources.value(rows);
}

int longLog()
{
    const char *const told = std::getenv("DATALOG_BENCH_ROWS");
    return told ? qMax(1, std::atoi(told)) : 100000;
}

int shortLog()
{
    return 1000;
}

} // namespace SizedSource
