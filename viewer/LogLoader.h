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
 * was open before is gone when a read fails or is cancelled. A refresh() instead reads beside what
 * is open, which stays as it is until all is read.
 */
class LogLoader : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
    Q_PROPERTY(bool refreshing READ isRefreshing NOTIFY refreshingChanged)
    Q_PROPERTY(bool loaded READ isLoaded NOTIFY loadedChanged)
    Q_PROPERTY(QString filePath READ filePath NOTIFY filePathChanged)
    Q_PROPERTY(QString fileName READ fileName NOTIFY filePathChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)
    Q_PROPERTY(bool cancelled READ isCancelled NOTIFY errorTextChanged)
    Q_PROPERTY(QString refreshError READ refreshError NOTIFY refreshErrorChanged)
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
    bool isRefreshing() const { return m_aside && !m_isRefreshGivenUp; }
    /** Whether the last refresh was; until the next one begins. */
    bool isRefreshGivenUp() const { return m_isRefreshGivenUp; }
    /** Whether a log is open: what was opened last could be read. */
    bool isLoaded() const { return m_isLoaded; }
    QString filePath() const { return m_filePath; }
    QString fileName() const;
    /** Why filePath() could not be opened, one line that names it; empty when it could. */
    QString errorText() const { return m_errorText; }
    /** Whether it was by cancel(). */
    bool isCancelled() const { return m_isCancelled && !m_errorText.isEmpty(); }
    /** The same about the last refresh; what is open stayed open. */
    QString refreshError() const { return m_refreshError; }
    double bytesRead() const;
    double bytesTotal() const;

    /**
     * Reads a log; false when it failed, or when another one is being read, which is left alone. A
     * refresh is given up.
     */
    Q_INVOKABLE bool open(const QString &path);
    /** Files elsewhere are not fetched: they fail like missing ones. */
    Q_INVOKABLE bool openUrl(const QUrl &url);
    /**
     * Reads the log that is open once more. False when it failed or was given up, and when there is
     * nothing to read or something is being read; what is open then stays as it is.
     */
    Q_INVOKABLE bool refresh();
    Q_INVOKABLE void giveUpRefresh();
    /** Ends a read, and a refresh as well. */
    Q_INVOKABLE void cancel();

signals:
    void sourceChanged();
    void readingChanged();
    void refreshingChanged();
    void loadedChanged();
    void filePathChanged();
    void errorTextChanged();
    void refreshErrorChanged();
    void progressChanged();
    /** A refresh has read all, and takes the place of what is open when this returns. */
    void aboutToReplace();
    /** A log is there; nothing of it is shown yet. */
    void opened();
    void failed(const QString &errorText);

private:
    void begin(const QString &path);
    void end();
    const LogParser *currentParser() const;
    void startTellingProgress();
    void takeRefreshed(LogParser &read, const QString &reason);
    void endRefresh();
    void setRefreshError(const QString &text);
    void takeError(const QString &reason);
    void setErrorText(const QString &text);
    void setLoaded(bool isLoaded);

    QPointer<LogDataSourceItem> m_source;
    QTimer m_progressTimer;
    LogParser *m_aside; ///< what refreshes, even when that was given up a moment ago
    QString m_filePath;
    QString m_errorText;
    QString m_refreshError;
    bool m_isRefreshGivenUp;
    bool m_isReading;
    bool m_isCancelled;
    bool m_isLoaded;
};

#endif
