#include "docs/DocExample.h"

#include <QFile>

QStringList DocExample::printed() const
{
    const QString mark = QLatin1String("// prints: ");
    QStringList result;
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const int at = lines.at(i).indexOf(mark);
        if (at >= 0)
            result << lines.at(i).mid(at + mark.size());
    }
    return result;
}

QList<DocExample> DocExample::ofPage(const QString &path)
{
    QList<DocExample> examples;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return examples;
    bool isInside = false;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        if (line == QLatin1String("```qml"))
            examples << DocExample{QString(), i + 1};
        else if (isInside && line != QLatin1String("```"))
            examples.last().script += line + QLatin1Char('\n');
        isInside = line == QLatin1String("```qml") || (isInside && line != QLatin1String("```"));
    }
    return examples;
}
