#include "lists/HostedList.h"

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"

#include <QGraphicsProxyWidget>
#include <QItemSelectionModel>
#include <QListView>

namespace
{

/** Signals after which check marks may differ from those on the screen. */
const char *const kSignals[]
    = {SIGNAL(graphDataUpdated()),
              SIGNAL(dataUpdated()), SIGNAL(logFileLoaded()), SIGNAL(criteriaUpdated())};

} // namespace

QGraphicsProxyWidget *HostedList::host(QListView *view, QDeclarativeItem *item)
{
    QGraphicsProxyWidget *proxy = new QGraphicsProxyWidget(graphicsParent(item));
    proxy->setWidget(view);
    proxy->setPos(0, 0);
    proxy->setMinimumSize(0, 0); // as small as the item, whatever a list thinks it needs
    return proxy;
}

void HostedList::show(QAbstractItemModel *model, QListView *view)
{
    const QPointer<QItemSelectionModel> previous = view->selectionModel();
    view->setModel(model);
    // A view makes a selection model for each model, and keeps the old ones for as long as it
    // lives.
    if (view->selectionModel() != previous)
        delete previous;
}

void HostedList::follow(LogDataSourceItem *previous, LogDataSourceItem *source, QListView *view)
{
    for (const char *signal : kSignals) {
        if (previous)
            QObject::disconnect(previous, signal, view->viewport(), SLOT(update()));
        if (source)
            QObject::connect(source, signal, view->viewport(), SLOT(update()));
    }
}
