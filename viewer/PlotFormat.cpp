#include "viewer/PlotFormat.h"

#include "viewer/NameSuggestions.h"

#include <QFileInfo>

namespace PlotFormat
{

Format ofFile(const QString &fileName)
{
    const QFileInfo file(fileName);
    const QString suffix = file.suffix().toLower();
    if (file.completeBaseName().isEmpty())
        return Unknown;
    if (suffix == QLatin1String("png"))
        return Png;
    if (suffix == QLatin1String("svg"))
        return Svg;
    if (suffix == QLatin1String("pdf"))
        return Pdf;
    return suffix == QLatin1String("csv") ? Csv : Unknown;
}

QString suffixes()
{
    return NameSuggestions::joined({QStringLiteral(".png"), QStringLiteral(".svg"),
                                    QStringLiteral(".pdf"), QStringLiteral(".csv")});
}

} // namespace PlotFormat
