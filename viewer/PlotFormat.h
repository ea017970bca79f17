#ifndef DATALOG_VIEWER_PLOTFORMAT_H
#define DATALOG_VIEWER_PLOTFORMAT_H

#include <QString>

/** The kinds of files that a plot can be drawn, or its data written, into. */
namespace PlotFormat
{

enum Format { Unknown, Png, Svg, Pdf, Csv };

/** By the end of the name, in any case; Unknown where there is no name before it. */
Format ofFile(const QString &fileName);
/** ".png, .svg, .pdf or .csv", for people. */
QString suffixes();

} // namespace PlotFormat

#endif
