#ifndef DATALOG_TESTS_TABLE_CHAMBERLOG_H
#define DATALOG_TESTS_TABLE_CHAMBERLOG_H

/** Two data sets, the second one with fewer variables. */
const char kChamberLog[] = "[Header]\n"
                           "Created:\t2026-03-01\n"
                           "Sys:Name:\tChamber\n"
                           "Gas:Zero:\t1.5\n"
                           "[Data]\n"
                           "Sys\tSys\tGas\tAir\tAir\n"
                           "Obs\tTime\tCO2\tTair\tRH|wet\n"
                           "\ts\tppm\tC\t%\n"
                           "1\t00:00:01\t400\t21.0\t50\n"
                           "2\t00:00:02\t401\t21.5\t51\n"
                           "3\t00:00:03\t402\t22.0\t52\n"
                           "4\t00:00:04\t403\t22.5\t53\n"
                           "[Header]\n"
                           "Created:\t2026-03-02\n"
                           "Sys:Name:\tChamber\n"
                           "[Data]\n"
                           "Sys\tSys\tGas\n"
                           "Obs\tTime\tCO2\n"
                           "\ts\tppm\n"
                           "1\t00:00:01\t500\n"
                           "2\t00:00:02\t501\n";

#endif
