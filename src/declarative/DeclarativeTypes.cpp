#include "declarative/DeclarativeTypes.h"

#include <QApplication>

bool widgetsAvailable()
{
#if QT_VERSION < 0x050000
    return qobject_cast<QApplication *>(QCoreApplication::instance())
        && QApplication::type() != QApplication::Tty;
#else
    return qobject_cast<QApplication *>(QCoreApplication::instance());
#endif
}

int registerUnavailableType(const char *uri, int major, int minor, const char *name,
                            const QString &reason)
{
#if QT_VERSION < 0x050000
    return qmlRegisterUncreatableType<QObject>(uri, major, minor, name, reason);
#else
    return qmlRegisterTypeNotAvailable(uri, major, minor, name, reason);
#endif
}
