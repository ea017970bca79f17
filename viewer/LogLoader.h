#ifndef DATALOG_VIEWER_LOGLOADER_H
#define DATALOG_VIEWER_LOGLOADER_H

#include "datasource/LogDataSourceItem.h"

#include <QPointer>
#include <QTimer>
#include <QUrl>

/**
 * Opens logs, one at a time: tells how far a read is, can give it up, and says what went wrong.
 *
 * A read runs inside open(), which lets events through, so that everything else stays alive. What
 * was open before is gone when a read fails or is cancelled.
 */
class LogLoader : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
    Q_PROPERTY(bool loaded READ isLoaded NOTIFY loadedChanged)
    Q_PROPERTY(QString filePath READ filePath NOTIFY filePathChanged)
    Q_PROPERTY(QString fileName READ fileName NOTIFY filePathChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)
    Q_PROPERTY(bool cancelled READ isCancelled NOTIFY errorTextChanged)
    // Sizes beyond what an int of a script holds.
    Q_PROPERTY(double bytesRead READ bytesRead NOTIFY progressChanged)
    Q_PROPERTY(double bytesTotal READ bytesTotal NOTIFY progressChanged)

public:
    explicit LogLoader(QObject *parent = nullptr);
    /** Gives up a read that is going on. */
    ~LogLoader() override;

    /** How often progress is told while a log is read; with 0 whenever events are handled. */
    void setProgressInterval(int milliseconds) { m_progressTimer.setInterval(milliseconds); }
    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);
    bool isReading() const { return m_isReading; }
    /** Whether a log is open: what was opened last could be read. */
    bool isLoaded() const { return m_isLoaded; }
    QString filePath() const { return m_filePath; }
    QString fileName() const;
    /** Why filePath() could not be opened, one line that names it; empty when it could. */
    QString errorText() const { return m_errorText; }
    /** Whether it was by cancel(). */
    bool isCancelled() const { return m_isCancelled && !m_errorText.isEmpty(); }
    double bytesRead() const;
    double bytesTotal() const;

    /** Reads a log; false when it failed, or when another one is being read, which is left alone.
     */
    Q_INVOKABLE bool open(const QString &path);
    /** Files elsewhere are not fetched: they fail like missing ones. */
    Q_INVOKABLE bool openUrl(const QUrl &url);
    Q_INVOKABLE void cancel();

signals:
    void sourceChanged();
    void readingChanged();
    void loadedChanged();
    void filePathChanged();
    void errorTextChanged();
    void progressChanged();
    /** A log is there; nothing of it is shown yet. */
    void opened();
    void failed(const QString &errorText);

private:
    void begin(const QString &path);
    void end();
    void takeError(const QString &reason);
    void setErrorText(const QString &text);
    void setLoaded(bool isLoaded);

    QPointer<LogDataSourceItem> m_source;
    QTimer m_progressTimer;
    QString m_filePath;
    QString m_errorText;
    bool m_isReading;
    bool m_isCancelled;
    bool m_isLoaded;
};

#endif
