#include "bench/SizedSource.h"

#include "bench/GeneratedLog.h"
#include "datasource/LogDataSourceItem.h"

#include <QHash>

namespace
{

const int kColumns = 20;

LogDataSourceItem *newSource(int rows)
{
    const GeneratedLog log(rows, kColumns);
    LogDataSourceItem *source = new LogDataSourceItem;
    source->setLogFilePath(log.path());
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

int shortLog()
{
    return 1000;
}

} // namespace SizedSource
