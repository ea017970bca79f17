#include "viewer/NameList.h"

#include <QCoreApplication>

namespace
{

const int kMostNames = 5;
const int kMostLetters = 60;

} // namespace

QString NameList::quoted(const QString &name)
{
    QString text = name;
    if (text.size() > kMostLetters)
        text = text.left(kMostLetters) + QChar(0x2026);
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString NameList::text(const QStringList &names)
{
    QStringList first;
    for (int i = 0; i < qMin(names.size(), kMostNames); ++i)
        first.append(quoted(names.at(i)));
    const QString list = first.join(QStringLiteral(", "));
    if (names.size() == first.size())
        return list;
    return QCoreApplication::translate("NameList", "%1 and %2 more")
        .arg(list, QString::number(names.size() - first.size()));
}
