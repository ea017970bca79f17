#ifndef DATALOG_VIEWER_PLOTFORMAT_H
#define DATALOG_VIEWER_PLOTFORMAT_H

#include <QString>

/** The kinds of files that a plot can be drawn into. */
namespace PlotFormat
{

enum Format { Unknown, Png, Svg, Pdf };

/** By the end of the name, in any case; Unknown where there is no name before it. */
Format ofFile(const QString &fileName);
/** ".png, .svg or .pdf", for people. */
QString suffixes();

} // namespace PlotFormat

#endif
