#ifndef DATALOG_DECLARATIVE_QT5_ACCESSIBLEFACTORY_H
#define DATALOG_DECLARATIVE_QT5_ACCESSIBLEFACTORY_H

class QDeclarativeItem;
class QObject;
class QWidget;

/** Makes the interfaces of items that host widgets, and of the widgets, for assistive tools. */
namespace AccessibleFactory
{

/** Has the interfaces made from now on; further calls change nothing. */
void install();
/** The item that hosts @p object, as the window of its own that a hosted widget is; or null. */
QDeclarativeItem *ownerOf(const QObject *object);
/**
 * Whether @p widget, when hosted, gets an interface that makes it a part of its item. Tables and
 * trees don't: those that Qt has for them can't be extended. They belong into another widget.
 */
bool canBePart(const QWidget *widget);
/** Whether @p widget, or a widget in it, is more than decoration: named, or of use. */
bool hasSomethingToTell(QWidget *widget);

} // namespace AccessibleFactory

#endif
