#include "viewer/SilentChange.h"

#include "datasource/LogDataSourceItem.h"

#include <QSignalBlocker>

void SilentChange::tick(QStandardItemModel *model, const std::function<bool(int row)> &isWanted)
{
    const QSignalBlocker blocker(model);
    for (int row = 0; row < model->rowCount(); ++row)
        model->item(row)->setCheckState(isWanted(row) ? Qt::Checked : Qt::Unchecked);
}

void SilentChange::computeSeries(LogDataSourceItem *source)
{
    // Any setting of the window does it; this one changes nothing else.
    source->setObservationFrequency(source->observationFrequency());
}
