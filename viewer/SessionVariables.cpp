#include "viewer/SessionVariables.h"

#include <QMultiHash>
#include <QSignalBlocker>

QList<SessionVariable> SessionVariables::checked(const QStandardItemModel &model)
{
    QList<SessionVariable> variables;
    QHash<QString, int> occurrences;
    for (int row = 0; row < model.rowCount(); ++row) {
        SessionVariable variable;
        variable.name = model.item(row)->text();
        variable.occurrence = ++occurrences[variable.name];
        if (model.item(row)->checkState() == Qt::Checked)
            variables.append(variable);
    }
    return variables;
}

/** Each row that is checked would compute the series anew, so the model does it silently. */
QStringList SessionVariables::check(QStandardItemModel *model,
                                    const QList<SessionVariable> &variables)
{
    const QSignalBlocker blocker(model);
    QMultiHash<QString, int> wanted;
    for (const SessionVariable &variable : variables)
        wanted.insert(variable.name, variable.occurrence);
    QHash<QString, int> occurrences;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString name = model->item(row)->text();
        const bool isWanted = wanted.remove(name, ++occurrences[name]) > 0;
        model->item(row)->setCheckState(isWanted ? Qt::Checked : Qt::Unchecked);
    }
    QStringList missing;
    for (const SessionVariable &variable : variables) {
        if (wanted.remove(variable.name) > 0)
            missing.append(variable.name);
    }
    return missing;
}

QStringList SessionVariables::names(const QList<SessionVariable> &variables)
{
    QStringList names;
    for (const SessionVariable &variable : variables)
        names.append(variable.name);
    return names;
}
