#ifndef DATALOG_TESTS_DATASOURCE_SAMPLELOGS_H
#define DATALOG_TESTS_DATASOURCE_SAMPLELOGS_H

#include "datasource/SourceFixture.h"

/** Two data sets of other variables and constants. */
inline QByteArray twoBlocks()
{
    return logBlock("Sys Sys Gas", "Obs Time co2", "1 10:00:00 400|2 10:00:30 410", "Gain:A 1")
        + logBlock("Sys Sys Air Air", "No Clock T RH", "7 09:00:00 20 50", "Off:B 3|Off:C 4");
}

/** Four observations of a leaf and the gas around it, then a data set without any. */
inline QByteArray leafLog()
{
    return logBlock("Sys Sys Leaf Gas", "Obs Time Tleaf CO2",
                    "1 10:00:00 20 400|2 10:00:01 26 410|3 10:00:02 27 420|4 10:00:03 21 430")
        + logBlock("Air", "T", "");
}

/** Shows the leaf's log with its third and fourth variables on the left axis. */
inline void plotLeafLog(SourceFixture &f)
{
    f.show(leafLog());
    f.source->setHorizontalVariable(text("Obs"));
    f.source->updateVariableSelection(1, 2, true);
    f.source->updateVariableSelection(1, 3, true);
    f.recorder.take();
}

#endif
