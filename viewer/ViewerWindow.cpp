#include "viewer/ViewerWindow.h"

#include "plugin/DataLogTypes.h"
#include "viewer/CriteriaKeeper.h"
#include "viewer/HorizontalChoice.h"
#include "viewer/ListStyle.h"
#include "viewer/LogLoader.h"
#include "viewer/PlotLook.h"

#include <QQuickStyle>
#include <QQuickWindow>

namespace
{

const char kUri[] = "DataLogViewer";

template <class T> void registerType(const char *name)
{
    qmlRegisterType<T>(kUri, 1, 0, name);
}

void registerTypes()
{
    registerDataLogTypes("DataLog");
    registerType<CriteriaKeeper>("CriteriaKeeper");
    registerType<DataSets>("DataSets");
    registerType<HorizontalChoice>("HorizontalChoice");
    registerType<ListStyle>("ListStyle");
    registerType<LogLoader>("LogLoader");
    registerType<PlotLook>("PlotLook");
    QQuickStyle::setStyle(QStringLiteral("Default"));
}

} // namespace

ViewerWindow::ViewerWindow(const ViewerOptions &options)
    : m_setup(options)
{
    Q_INIT_RESOURCE(viewer);
    static const bool isRegistered = (registerTypes(), true);
    Q_UNUSED(isRegistered)
    m_engine.setInitialProperties(
        {{QStringLiteral("setup"), QVariant::fromValue<QObject *>(&m_setup)}});
    m_engine.load(QUrl(QStringLiteral("qrc:/viewer/qml/Main.qml")));
    connect(&m_setup, &PlotSetup::usageError, this, &ViewerWindow::usageError);
    if (QQuickWindow *main = window()) {
        auto *loader = main->findChild<LogLoader *>();
        connect(loader, &LogLoader::failed, this, &ViewerWindow::failed);
        connect(loader, &LogLoader::opened, this, &ViewerWindow::opened);
        // Instruments have no window manager that would give it the keyboard.
        main->requestActivate();
    }
}

/** Scripts refer to what is in the setup, so they go first. */
ViewerWindow::~ViewerWindow()
{
    qDeleteAll(m_engine.rootObjects());
}

QQuickWindow *ViewerWindow::window() const
{
    return qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
}

void ViewerWindow::open(const QString &path)
{
    QMetaObject::invokeMethod(
        this, [this, path] { window()->findChild<LogLoader *>()->open(path); },
        Qt::QueuedConnection);
}
