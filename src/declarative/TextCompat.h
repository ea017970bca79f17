#ifndef DATALOG_DECLARATIVE_TEXTCOMPAT_H
#define DATALOG_DECLARATIVE_TEXTCOMPAT_H

// What Qt 4 and Qt 5 name differently about text, under one name each.

#include <QString>

namespace Compat
{

#if QT_VERSION < 0x050000
typedef QString::SplitBehavior SplitBehavior;
const SplitBehavior KeepEmptyParts = QString::KeepEmptyParts;
const SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#else
typedef Qt::SplitBehaviorFlags SplitBehavior;
const SplitBehavior KeepEmptyParts = Qt::KeepEmptyParts;
const SplitBehavior SkipEmptyParts = Qt::SkipEmptyParts;
#endif

} // namespace Compat

#endif
