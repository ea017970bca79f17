#include "viewer/Display.h"

#include <QOpenGLContext>
#include <QQuickWindow>

namespace
{

const char kPlatform[] = "QT_QPA_PLATFORM";

bool isSet(const char *variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
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
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet(kPlatform);
}

void doWithout()
{
    if (!isSet(kPlatform))
        qputenv(kPlatform, "offscreen");
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
