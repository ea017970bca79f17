#include "viewer/Display.h"

#include <QDir>
#include <QLibraryInfo>
#include <QOpenGLContext>
#include <QQuickWindow>

namespace
{

const char kPlatform[] = "QT_QPA_PLATFORM";
const char kWithoutGlib[] = "QT_NO_GLIB";

bool isSet(const char *variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

/** Platforms that run without showing anything. */
bool isInvisible(const QByteArray &platform)
{
    return platform.startsWith("offscreen") || platform.startsWith("minimal");
}

/** Qt's plugin for Wayland is a package of its own. */
bool hasWaylandPlugin()
{
    const QDir platforms(QLibraryInfo::location(QLibraryInfo::PluginsPath)
                         + QLatin1String("/platforms"));
    return !platforms.entryList({QStringLiteral("libqwayland*")}).isEmpty();
}

QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        previousHandler(type, context, message);
}

} // namespace

namespace Display
{

bool isPresent()
{
    if (isSet(kPlatform))
        return !isInvisible(qgetenv(kPlatform));
    return isSet("DISPLAY") || (isSet("WAYLAND_DISPLAY") && hasWaylandPlugin());
}

void doWithout()
{
    if (!isSet(kPlatform))
        qputenv(kPlatform, "offscreen");
    // Events are asked for after each line of a log; without a window to share them with, Qt's own
    // loop is enough, and it answers sooner.
    if (!isSet(kWithoutGlib))
        qputenv(kWithoutGlib, "1");
}

void dropSessionRemarks()
{
    previousHandler = qInstallMessageHandler(handleMessage);
}

void chooseRenderer()
{
    if (isSet("QT_QUICK_BACKEND") || isSet("QMLSCENE_DEVICE"))
        return;
    QOpenGLContext context;
    if (!context.create())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
}

} // namespace Display
