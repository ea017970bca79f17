#ifndef DATALOG_VIEWER_SESSIONRESTORER_H
#define DATALOG_VIEWER_SESSIONRESTORER_H

#include "viewer/SessionState.h"

#include <QCoreApplication>

class LogDataSourceItem;

/**
 * Brings a saved state to the log that is open. What the log does not have is left out and told;
 * the rest is applied.
 */
class SessionRestorer
{
    Q_DECLARE_TR_FUNCTIONS(SessionRestorer)

public:
    SessionRestorer(DataSets *dataSets, LogViewerItem *view);

    void apply(const SessionState &state);
    /** What could not be applied, a line each. */
    QStringList remarks() const { return m_remarks; }

private:
    bool showDataSet(const SessionState &state);
    void setWindow(const SessionState &state);
    void setCriteria(const SessionState &state);
    void addCriterion(const SessionCriterion &criterion);
    void excludeRows(const SessionState &state);
    bool isDataSetOf(const SessionState &state);
    void exclude(const RowRuns &rows);
    void setGraphDefinition(const QVariantMap &definition);
    void setCurves(const QVariantMap &definition);
    void releaseScales(const QVariantMap &scaling);
    void setScales(const QVariantMap &scaling);
    void uncheckVariables(const SessionState &state);
    void checkVariables(const SessionState &state);
    void remarkMissing(const QStringList &names);
    void dress(const SessionState &state);

    DataSets *m_dataSets;
    LogDataSourceItem *m_source;
    LogViewerItem *m_view;
    QStringList m_remarks;
};

#endif
