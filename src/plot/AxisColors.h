#ifndef DATALOG_PLOT_AXISCOLORS_H
#define DATALOG_PLOT_AXISCOLORS_H

#include <QMap>
#include <QString>
#include <QStringList>

/** The colours of the variables on one vertical axis. */
namespace AxisColors
{

/** The colour of what has none of its own: "#333". */
QString fallback();

/**
 * Brings @p colors up to date with the variables @p names that are on the axis now: those that left
 * lose their colour, those that stay keep it, and each new one, in the order of @p names, takes the
 * first colour of @p palette that nobody has.
 *
 * Once the palette is used up a variable gets no entry, and so the fallback colour, until a later
 * update finds a free colour for it.
 */
void update(QMap<QString, QString> *colors, const QStringList &names, const QStringList &palette);

} // namespace AxisColors

#endif
