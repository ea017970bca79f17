#ifndef DATALOG_VIEWER_DISPLAY_H
#define DATALOG_VIEWER_DISPLAY_H

/** What there is to show windows on, and how they are drawn. */
namespace Display
{

/** Whether the environment names a display; to be asked before there is an application object. */
bool isPresent();
/** Makes programs without a display possible, unless the environment says how to do it. */
void doWithout();
/**
 * Keeps a remark about the directories of a login session, of which there may be none, from
 * standard error.
 */
void dropSessionRemarks();
/** Draws windows without graphics hardware where the display's drivers can't. */
void chooseRenderer();

} // namespace Display

#endif
