#ifndef DATALOG_VIEWER_PREFERENCES_H
#define DATALOG_VIEWER_PREFERENCES_H

#include <QObject>
#include <QSettings>
#include <QUrl>
#include <QVariantMap>

/**
 * What the viewer keeps about its user from one run to the next, in one file. What stands there and
 * makes no sense counts as if it were not there.
 */
class Preferences : public QObject
{
    Q_OBJECT
    /** "auto", "light" or "dark". */
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY changed)
    /** Whether curves on a light page are coloured as on the instrument. */
    Q_PROPERTY(bool instrumentColors READ instrumentColors WRITE setInstrumentColors NOTIFY changed)
    Q_PROPERTY(bool compactRows READ compactRows WRITE setCompactRows NOTIFY changed)
    Q_PROPERTY(bool panelShown READ panelShown WRITE setPanelShown NOTIFY changed)

public:
    /** What folders are kept for. */
    enum Place { Logs, Setups, Exports };
    Q_ENUM(Place)

    /** @param file where all is kept; with an empty name nothing outlives the object. */
    explicit Preferences(const QString &file = QString(), QObject *parent = nullptr);

    /** The file of the user who runs the viewer. */
    static QString userFile();

    QString theme() const;
    void setTheme(const QString &theme);
    bool instrumentColors() const;
    void setInstrumentColors(bool on);
    bool compactRows() const;
    void setCompactRows(bool on);
    bool panelShown() const;
    void setPanelShown(bool on);
    /** Where the last file of a kind was; empty while that is unknown, or gone. */
    Q_INVOKABLE QUrl folder(Place place = Logs) const;
    /** Keeps the folder that @p file is in. */
    Q_INVOKABLE void keepFolderOf(const QUrl &file, Place place = Logs);
    Q_INVOKABLE void keepFolderOfPath(const QString &path, Place place = Logs);
    Q_INVOKABLE void forgetFolder(Place place);

    /** Writes all that was set; false when the file can't be written, which then stays as it was.
     */
    bool keep();
    /** The file's path; empty without one. */
    QString file() const { return m_store ? m_store->fileName() : QString(); }

    /** For what scripts have nothing to do with. */
    QVariant value(const QString &key) const { return m_values.value(key); }
    void setValue(const QString &key, const QVariant &value);

signals:
    void changed();

private:
    bool isOn(const QString &key, bool fallback) const;

    QScopedPointer<QSettings> m_store;
    QVariantMap m_values;
};

#endif
