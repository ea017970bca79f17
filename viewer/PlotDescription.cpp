#include "viewer/PlotDescription.h"

#include <QStringList>

PlotDescription::PlotDescription(QObject *parent)
    : QObject(parent)
{
}

void PlotDescription::setReadings(CurveReadings *readings)
{
    if (readings == m_readings)
        return;
    if (m_readings)
        disconnect(m_readings, nullptr, this, nullptr);
    m_readings = readings;
    if (m_readings) {
        // Readings are taken anew whenever scales, curves or the cursor are others.
        connect(m_readings.data(), &CurveReadings::readingsChanged, this,
                &PlotDescription::textChanged);
    }
    emit readingsChanged();
    emit textChanged();
}

QString PlotDescription::text() const
{
    if (!m_readings || m_readings->count() == 0 || !m_readings->navigator())
        return QString();
    return m_readings->hasCursor() ? atCursor() : summary();
}

QString PlotDescription::value(int row, int role) const
{
    return m_readings->index(row).data(role).toString();
}

QString PlotDescription::atCursor() const
{
    QStringList parts{tr("%1 %2").arg(m_readings->xName(), m_readings->cursorText())};
    for (int row = 0; row < m_readings->count(); ++row) {
        const QString reading = value(row, CurveReadings::ReadingRole);
        if (reading.isEmpty())
            continue;
        const QString name = value(row, CurveReadings::NameRole);
        const QString unit = value(row, CurveReadings::UnitRole);
        parts << (unit.isEmpty() ? tr("%1 %2").arg(name, reading)
                                 : tr("%1 %2 %3").arg(name, reading, unit));
    }
    return parts.join(QLatin1String("; "));
}

QString PlotDescription::summary() const
{
    QStringList parts;
    const QStringList left = curves(false);
    if (!left.isEmpty())
        parts << axis(PlotNavigator::Left, tr("Left axis"), left.join(QLatin1String(", ")));
    const QStringList right = curves(true);
    if (!right.isEmpty())
        parts << axis(PlotNavigator::Right, tr("Right axis"), right.join(QLatin1String(", ")));
    if (!parts.isEmpty())
        parts << axis(PlotNavigator::Bottom, tr("X axis"), m_readings->xName());
    return parts.join(QLatin1String("; "));
}

QString PlotDescription::axis(int axis, const QString &title, const QString &content) const
{
    const PlotNavigator *navigator = m_readings->navigator();
    return tr("%1 from %2 to %3: %4")
        .arg(title, navigator->limitText(axis, false), navigator->limitText(axis, true), content);
}

/** Those that are shown on one of the axes, with their units. */
QStringList PlotDescription::curves(bool areRight) const
{
    QStringList found;
    for (int row = 0; row < m_readings->count(); ++row) {
        const QModelIndex index = m_readings->index(row);
        if (index.data(CurveReadings::IsRightRole).toBool() != areRight
            || !index.data(CurveReadings::IsShownRole).toBool())
            continue;
        const QString name = value(row, CurveReadings::NameRole);
        const QString unit = value(row, CurveReadings::UnitRole);
        found << (unit.isEmpty() ? name : tr("%1 in %2").arg(name, unit));
    }
    return found;
}
