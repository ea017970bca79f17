#ifndef DATALOG_VIEWER_VIEWERSETTINGS_H
#define DATALOG_VIEWER_VIEWERSETTINGS_H

#include <QSettings>

/** What the viewer keeps for its user from one run to the next, in one file everywhere. */
class ViewerSettings : public QSettings
{
public:
    ViewerSettings()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("DataLog"),
                    QStringLiteral("datalog-viewer"))
    {
    }
};

#endif
