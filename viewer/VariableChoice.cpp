#include "viewer/VariableChoice.h"

#include "datasource/LogDataSourceItem.h"

#include <QSignalBlocker>

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

/** Each row that is checked would compute the series anew, so the model does it silently. */
void checkJust(QStandardItemModel *model, const QStringList &names)
{
    const QSignalBlocker blocker(model);
    QStringList unchecked = names;
    unchecked.removeDuplicates();
    for (int row = 0; row < model->rowCount(); ++row) {
        const bool isChosen = unchecked.removeOne(model->item(row)->text());
        model->item(row)->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
    }
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
    // Any setting of the window computes the series, upon which lists of the variables repaint;
    // this one changes nothing else.
    source->setObservationFrequency(source->observationFrequency());
}
