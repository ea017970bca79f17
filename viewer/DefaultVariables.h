#ifndef DATALOG_VIEWER_DEFAULTVARIABLES_H
#define DATALOG_VIEWER_DEFAULTVARIABLES_H

#include "model/CellGrid.h"
#include "viewer/VariableChoice.h"

class TabularParser;

/**
 * What to plot while nobody has chosen: the first variable horizontally, against it the first thing
 * that was measured, and on the right axis the first one of another group.
 *
 * Measured means that nearly every cell is a number and that many differ from the one before. What
 * belongs to the horizontal variable's group, mostly counters and the like, comes last.
 */
class DefaultVariables
{
public:
    DefaultVariables(const TabularParser &log, int dataSet);

    VariableChoice choice() const;

private:
    int firstMeasured(const QStringList &otherGroups) const;
    QString group(int column) const { return m_headers.value(column).value(0); }
    QString name(int column) const { return m_headers.value(column).value(1); }

    QList<QStringList> m_headers;
    CellGridPointer m_grid; ///< null without the data set
};

#endif
