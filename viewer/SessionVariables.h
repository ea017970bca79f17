#ifndef DATALOG_VIEWER_SESSIONVARIABLES_H
#define DATALOG_VIEWER_SESSIONVARIABLES_H

#include <QList>
#include <QStandardItemModel>
#include <QStringList>

/** A variable by its name and, where a log names several alike, which of them, from 1 on. */
struct SessionVariable {
    QString name;
    int occurrence = 1;
};

inline bool operator==(const SessionVariable &a, const SessionVariable &b)
{
    return a.name == b.name && a.occurrence == b.occurrence;
}

/** The variables that are checked in the model of an axis. */
namespace SessionVariables
{

QList<SessionVariable> checked(const QStandardItemModel &model);
/**
 * Checks just these, with the model's signals blocked. Returns those that the model does not list.
 */
QStringList check(QStandardItemModel *model, const QList<SessionVariable> &variables);

} // namespace SessionVariables

#endif
