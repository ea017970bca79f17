#include "viewer/VariableChoice.h"

#include "datasource/LogDataSourceItem.h"
#include "viewer/SilentChange.h"

namespace
{

QStringList checkedNames(const QStandardItemModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.item(row)->checkState() == Qt::Checked)
            names.append(model.item(row)->text());
    }
    return names;
}

QStringList intersection(const QStringList &chosen, const QStringList &names)
{
    QStringList result;
    for (const QString &name : chosen) {
        if (names.contains(name))
            result.append(name);
    }
    return result;
}

void checkJust(QStandardItemModel *model, const QStringList &names)
{
    QStringList unchecked = names;
    unchecked.removeDuplicates();
    SilentChange::tick(model, [model, &unchecked](int row) {
        return unchecked.removeOne(model->item(row)->text());
    });
}

} // namespace

VariableChoice VariableChoice::of(LogDataSourceItem *source)
{
    VariableChoice choice;
    choice.x = checkedNames(*source->xVariableModel()).mid(0, 1);
    choice.left = checkedNames(*source->yVariableModel());
    choice.right = checkedNames(*source->zVariableModel());
    return choice;
}

VariableChoice VariableChoice::among(const QStringList &names) const
{
    VariableChoice choice;
    choice.x = intersection(x, names);
    choice.left = intersection(left, names);
    choice.right = intersection(right, names);
    return choice;
}

void VariableChoice::applyTo(LogDataSourceItem *source) const
{
    checkJust(source->xVariableModel(), x);
    checkJust(source->yVariableModel(), left);
    checkJust(source->zVariableModel(), right);
    SilentChange::computeSeries(source);
}
