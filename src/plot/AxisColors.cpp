#include "plot/AxisColors.h"

namespace
{

QStringList freeColors(const QMap<QString, QString> &colors, const QStringList &palette)
{
    const QStringList taken = colors.values();
    QStringList result;
    for (int i = 0; i < palette.size(); ++i) {
        if (!taken.contains(palette.at(i)))
            result.append(palette.at(i));
    }
    return result;
}

void forgetAllBut(QMap<QString, QString> *colors, const QStringList &names)
{
    QMap<QString, QString>::iterator it = colors->begin();
    while (it != colors->end()) {
        if (names.contains(it.key()))
            ++it;
        else
            it = colors->erase(it);
    }
}

} // namespace

QString AxisColors::fallback()
{
    return QLatin1String("#333");
}

void AxisColors::update(QMap<QString, QString> *colors, const QStringList &names,
                        const QStringList &palette)
{
    forgetAllBut(colors, names);
    QStringList available = freeColors(*colors, palette);
    for (int i = 0; i < names.size() && !available.isEmpty(); ++i) {
        if (!colors->contains(names.at(i)))
            colors->insert(names.at(i), available.takeFirst());
    }
}
