#include "viewer/AxisTitles.h"

#include "viewer/PlottedData.h"

#include <QStringList>

#include <qwt_plot.h>

#include <algorithm>

namespace
{

QString withUnit(const QString &names, const QString &unit)
{
    return unit.isEmpty() ? names : QStringLiteral("%1 (%2)").arg(names, unit);
}

/** Variables of one unit. */
struct Share {
    QString unit;
    QStringList names;
};

/** In the order of the curves. */
QList<Share> shares(const PlottedData &data, const QList<PlotCurve> &curves, int axis)
{
    QList<Share> shares;
    for (const PlotCurve &curve : curves) {
        if (curve.axis != axis)
            continue;
        const QString unit = data.curve(axis == QwtPlot::yRight, curve.name).unit;
        const auto same = std::find_if(shares.begin(), shares.end(),
                                       [&](const Share &share) { return share.unit == unit; });
        if (same == shares.end())
            shares.append({unit, {curve.name}});
        else
            same->names.append(curve.name);
    }
    return shares;
}

} // namespace

QString AxisTitles::horizontal(const PlottedData &data)
{
    const PlottedData::Column x = data.x();
    return withUnit(x.name, x.isClockTime() ? QString() : x.unit);
}

QString AxisTitles::vertical(const PlottedData &data, const QList<PlotCurve> &curves, int axis)
{
    const QString separator = QStringLiteral(", ");
    QStringList titles;
    for (const Share &share : shares(data, curves, axis))
        titles.append(withUnit(share.names.join(separator), share.unit));
    return titles.join(separator);
}
