#include "viewer/Preferences.h"

#include "viewer/LocalPath.h"
#include "viewer/ViewerSettings.h"

#include <QFileInfo>

namespace
{

const QLatin1String kTheme("theme");
const QLatin1String kInstrumentColors("instrumentColors");
const QLatin1String kCompactRows("compactRows");
const QLatin1String kPanelShown("panelShown");
const QLatin1String kFolders[]
    = {QLatin1String("folder"), QLatin1String("setupFolder"), QLatin1String("exportFolder")};

const char kAutomatic[] = "auto";

bool isTheme(const QString &text)
{
    return text == QLatin1String(kAutomatic) || text == QLatin1String("light")
        || text == QLatin1String("dark");
}

} // namespace

Preferences::Preferences(const QString &file, QObject *parent)
    : QObject(parent)
{
    if (file.isEmpty())
        return;
    m_store.reset(new QSettings(file, QSettings::IniFormat));
    const QStringList keys = m_store->allKeys();
    for (const QString &key : keys)
        m_values.insert(key, m_store->value(key));
}

QString Preferences::userFile()
{
    return ViewerSettings().fileName();
}

bool Preferences::keep()
{
    if (!m_store)
        return true;
    m_store->sync();
    return m_store->status() == QSettings::NoError;
}

void Preferences::setValue(const QString &key, const QVariant &value)
{
    if (m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    if (m_store)
        m_store->setValue(key, value);
    emit changed();
}

/** A file holds all as text. */
bool Preferences::isOn(const QString &key, bool fallback) const
{
    const QString text = value(key).toString();
    return text == QLatin1String("true") || (text != QLatin1String("false") && fallback);
}

QString Preferences::theme() const
{
    const QString theme = value(kTheme).toString();
    return isTheme(theme) ? theme : QLatin1String(kAutomatic);
}

void Preferences::setTheme(const QString &theme)
{
    if (isTheme(theme))
        setValue(kTheme, theme);
}

bool Preferences::instrumentColors() const
{
    return isOn(kInstrumentColors, false);
}

void Preferences::setInstrumentColors(bool on)
{
    setValue(kInstrumentColors, on);
}

bool Preferences::compactRows() const
{
    return isOn(kCompactRows, false);
}

void Preferences::setCompactRows(bool on)
{
    setValue(kCompactRows, on);
}

bool Preferences::panelShown() const
{
    return isOn(kPanelShown, true);
}

void Preferences::setPanelShown(bool on)
{
    setValue(kPanelShown, on);
}

QUrl Preferences::folder(Place place) const
{
    const QString path = value(kFolders[place]).toString();
    return !path.isEmpty() && QFileInfo(path).isDir() ? LocalPath::toUrl(path) : QUrl();
}

void Preferences::keepFolderOf(const QUrl &file, Place place)
{
    if (file.isLocalFile())
        keepFolderOfPath(LocalPath::of(file), place);
}

void Preferences::keepFolderOfPath(const QString &path, Place place)
{
    setValue(kFolders[place], QFileInfo(path).absolutePath());
}

void Preferences::forgetFolder(Place place)
{
    setValue(kFolders[place], QString());
}
