#include "viewer/SessionVariables.h"

#include "viewer/SilentChange.h"

#include <QMultiHash>

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

QStringList SessionVariables::check(QStandardItemModel *model,
                                    const QList<SessionVariable> &variables)
{
    QMultiHash<QString, int> wanted;
    for (const SessionVariable &variable : variables)
        wanted.insert(variable.name, variable.occurrence);
    QHash<QString, int> occurrences;
    SilentChange::tick(model, [model, &wanted, &occurrences](int row) {
        const QString name = model->item(row)->text();
        return wanted.remove(name, ++occurrences[name]) > 0;
    });
    QStringList missing;
    for (const SessionVariable &variable : variables) {
        if (wanted.remove(variable.name) > 0)
            missing.append(variable.name);
    }
    return missing;
}
