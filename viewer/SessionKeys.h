#ifndef DATALOG_VIEWER_SESSIONKEYS_H
#define DATALOG_VIEWER_SESSIONKEYS_H

#include "plot/LogViewerItem.h"
#include "viewer/SessionState.h"

#include <QList>

/** The names in a graph definition, and how the axes go by everywhere. */
namespace SessionKeys
{

struct Axis {
    SessionState::Axis index;
    LogViewerItem::LogViewerAxis viewAxis;
    const char *name; ///< in a graph definition
    const char *shortName; ///< in a session
    QStandardItemModel *(LogDataSourceItem::*getModel)();

    QString key() const { return QLatin1String(name); }
    QStandardItemModel *model(LogDataSourceItem *source) const { return (source->*getModel)(); }
};

/** Horizontal, left, right. */
inline QList<Axis> axes()
{
    return {{SessionState::X, LogViewerItem::BottomAxis, "xbottom", "x",
             &LogDataSourceItem::xVariableModel},
            {SessionState::Left, LogViewerItem::LeftAxis, "yleft", "left",
             &LogDataSourceItem::yVariableModel},
            {SessionState::Right, LogViewerItem::RightAxis, "yright", "right",
             &LogDataSourceItem::zVariableModel}};
}

inline QString scaling()
{
    return QStringLiteral("scaling");
}
inline QString autoscale()
{
    return QStringLiteral("autoscale");
}
inline QString min()
{
    return QStringLiteral("min");
}
inline QString max()
{
    return QStringLiteral("max");
}
inline QString lines()
{
    return QStringLiteral("lines");
}
inline QString symbols()
{
    return QStringLiteral("symbols");
}

} // namespace SessionKeys

#endif
