#ifndef DATALOG_VIEWER_VARIABLECHOICE_H
#define DATALOG_VIEWER_VARIABLECHOICE_H

#include <QStringList>

class LogDataSourceItem;

/** Which variables are on which axis, by name. */
struct VariableChoice {
    QStringList x; ///< one name, or none
    QStringList left;
    QStringList right;

    bool isEmpty() const { return x.isEmpty() && left.isEmpty() && right.isEmpty(); }

    /** What is checked in @p source now. */
    static VariableChoice of(LogDataSourceItem *source);
    /** Only what the list of @p names knows. */
    VariableChoice among(const QStringList &names) const;
    /**
     * Checks just these variables in @p source and computes its series, once for all. Where names
     * repeat, the first variable of the name is meant; unknown names are ignored.
     */
    void applyTo(LogDataSourceItem *source) const;
};

#endif
