#ifndef DATALOG_DECLARATIVE_MODELCOMPAT_H
#define DATALOG_DECLARATIVE_MODELCOMPAT_H

// What Qt 4 and Qt 5 declare differently in their item models.

#include <QtGlobal>

/** Marks a function that overrides one of the base class's, where that one is virtual: on Qt 5. */
#if QT_VERSION < 0x050000
#define DATALOG_OVERRIDE_ON_QT5
#else
#define DATALOG_OVERRIDE_ON_QT5 override
#endif

#endif
