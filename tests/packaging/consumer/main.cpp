#include "datasource/LogDataSourceItem.h"
#include "plugin/DataLogTypes.h"

#include <QApplication>

#include <cstdio>

/** Opens the log that is named and says what is in it. */
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    registerDataLogTypes("DataLog");
    LogDataSourceItem source;
    source.setLogFilePath(QString::fromLocal8Bit(argv[1]));
    source.selectDataSet(0);
    const int variables = source.yVariableModel()->rowCount();
    std::printf("%d variables, %d rows\n", variables, source.tableModel()->rowCount());
    return variables == 12 && source.tableModel()->rowCount() == 500 ? 0 : 1;
}
