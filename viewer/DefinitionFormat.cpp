#include "viewer/DefinitionFormat.h"

#include <QCoreApplication>
#include <QFileInfo>

DefinitionFormat::Kind DefinitionFormat::ofFile(const QString &path)
{
    const QFileInfo file(path);
    if (file.completeBaseName().isEmpty())
        return Unknown;
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("json"))
        return Session;
    return suffix == QLatin1String("xml") ? Xml : Unknown;
}

QString DefinitionFormat::suffixes()
{
    return QCoreApplication::translate("DefinitionFormat", ".json or .xml");
}
