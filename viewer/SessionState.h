#ifndef DATALOG_VIEWER_SESSIONSTATE_H
#define DATALOG_VIEWER_SESSIONSTATE_H

#include "viewer/RowRuns.h"
#include "viewer/SessionVariables.h"

#include <QMap>
#include <QVariantMap>

class DataSets;
class LogDataSetFilter;
class LogViewerItem;

/** A criterion, by what it tests and whether it is ticked. */
struct SessionCriterion {
    static SessionCriterion of(const LogDataSetFilter &filter);

    QString variable;
    int operatorIndex = 0; ///< position in LogDataSetFilter::operators
    float value = 0;
    bool isActive = true;
};

/** What one axis shows. */
struct SessionAxis {
    bool isTold = false; ///< whether anything is known about the variables
    QList<SessionVariable> variables;
    /** By variable. They depend on the order in which variables were ticked, so they are kept. */
    QMap<QString, QString> colors;
    QStringList hidden; ///< variables whose curves are
};

/** Everything that makes the picture. What is not told leaves the viewer as it is. */
struct SessionState {
    enum Axis { X, Left, Right, AxisCount };
    /** More of them are refused: each costs a new list of all. */
    static const int MostCriteria = 1000;

    int dataSet = 0; ///< counted from 1; 0 when not told
    QString created; ///< of the data set, to know it again
    SessionAxis axes[AxisCount];
    /**
     * As the data source keeps it, but with the scales that the plot has: "autoscale" for each, and
     * exact bounds.
     */
    QVariantMap graphDefinition;
    bool hasCriteria = false;
    bool replacesCriteria = true; ///< or else they join those that there are
    QList<SessionCriterion> criteria;
    int rangeType = -1; ///< of the observation filter's types; -1 when not told
    int rangeSize = -1; ///< -1 when not told
    int step = 0; ///< 0 when not told
    bool hasExcludedRows = false;
    RowRuns excludedRows;

    /** What @p dataSets and @p view show now. */
    static SessionState of(DataSets *dataSets, LogViewerItem *view);
};

#endif
