#ifndef DATALOG_VIEWER_DATASETS_H
#define DATALOG_VIEWER_DATASETS_H

#include "datasource/LogDataSourceItem.h"
#include "viewer/VariableChoice.h"

#include <QPointer>
#include <QStringList>

/**
 * The data sets of the log that is open, and the one shown.
 *
 * The module lists the first data set's variables whichever is shown. Here a user sees, and ticks,
 * the variables of the data set that is shown; what was ticked by name stays ticked when the other
 * data set has it too.
 */
class DataSets : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QStringList names READ names NOTIFY changed)
    Q_PROPERTY(int current READ current NOTIFY changed)
    Q_PROPERTY(QStringList variableNames READ variableNames NOTIFY changed)

public:
    explicit DataSets(QObject *parent = nullptr);

    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);
    QStringList names() const { return m_names; }
    /** Index of the data set shown, -1 without one. */
    int current() const { return m_current; }
    QStringList variableNames() const { return m_variableNames; }

    /** Shows a data set, with nothing ticked. An index that does not exist changes nothing. */
    void show(int index);
    /** Shows another data set and ticks there what was ticked, or what suits when nothing is. */
    Q_INVOKABLE void choose(int index);

signals:
    void sourceChanged();
    void changed();

private:
    void showNothing();
    void readNames();
    void listVariables();

    QPointer<LogDataSourceItem> m_source;
    QStringList m_names;
    QStringList m_variableNames;
    VariableChoice m_ticked; ///< what was ticked when the data set was left
    int m_current;
};

#endif
