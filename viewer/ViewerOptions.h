#ifndef DATALOG_VIEWER_VIEWEROPTIONS_H
#define DATALOG_VIEWER_VIEWEROPTIONS_H

#include "viewer/CriterionText.h"

#include <QList>
#include <QSize>
#include <QStringList>

/** What a user asked for on the command line. */
struct ViewerOptions {
    enum Action { Show, ShowHelp, ShowVersion };
    /** The values are those of the observation filter's types. */
    enum Range { AllRows = 0, HeadRows = 1, TailRows = 2 };
    enum Style { Lines = 1, Symbols = 2, Both = Lines | Symbols };

    Action action = Show;
    QString file; ///< as given; empty stands for the bundled sample
    int dataSet = 1; ///< counted from 1
    QString x; ///< empty when not given, like the lists below
    QStringList left;
    QStringList right;
    QList<CriterionText> criteria;
    Range range = AllRows;
    int rangeSize = 0; ///< rows of a head or tail range
    int every = 1;
    Style style = Lines;
    QString definition; ///< file to apply; empty when not given, like the next two
    QString savedDefinition; ///< file to write
    QString exportFile;
    QSize size = QSize(1280, 800);
    QStringList given; ///< names of the options that were given

    bool isGiven(const char *option) const { return given.contains(QLatin1String(option)); }
};

#endif
