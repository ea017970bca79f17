#ifndef DATALOG_VIEWER_LISTSCROLLBAR_H
#define DATALOG_VIEWER_LISTSCROLLBAR_H

#include <QString>

/** The scroll bars of lists, made for fingers. */
namespace ListScrollBar
{

/** The part of a list's style sheet about them. */
QString styleSheet(bool isDark);

} // namespace ListScrollBar

#endif
