#ifndef DATALOG_VIEWER_LOGRELOADER_H
#define DATALOG_VIEWER_LOGRELOADER_H

#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"
#include "viewer/LogLoader.h"
#include "viewer/SessionState.h"

/**
 * Reads the log that is open again, and shows of it what was shown before: variables, colours,
 * zoom, window and criteria by name, and the excluded rows that are still there.
 *
 * When the read fails or is cancelled, what was shown is remembered until the log can be read
 * again, or another one is opened. A refresh of the loader shows at its end what is shown by then.
 */
class LogReloader : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogLoader *loader READ loader WRITE setLoader NOTIFY loaderChanged)
    Q_PROPERTY(DataSets *dataSets READ dataSets WRITE setDataSets NOTIFY dataSetsChanged)
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(QString rememberedPath READ rememberedPath NOTIFY rememberedPathChanged)
    Q_PROPERTY(QString remarks READ remarks NOTIFY remarksChanged)

public:
    explicit LogReloader(QObject *parent = nullptr);

    LogLoader *loader() const { return m_loader; }
    void setLoader(LogLoader *loader);
    DataSets *dataSets() const { return m_dataSets; }
    void setDataSets(DataSets *dataSets);
    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** The log that is remembered; empty when none is. */
    QString rememberedPath() const { return m_path; }
    /** What of the last read's log could not be shown again, a line each. */
    QString remarks() const { return m_remarks.join(QLatin1Char('\n')); }

    /** False when there is nothing to read, when a log is being read, or when reading failed. */
    Q_INVOKABLE bool reload();
    /** To be called before another log is opened, which may fail: then there is a way back. */
    Q_INVOKABLE void remember();
    /**
     * To be called when a log was opened: shows what was remembered of it. False when nothing was,
     * so that it is for others to choose what to show.
     */
    Q_INVOKABLE bool restore();

signals:
    void loaderChanged();
    /** What is shown was just remembered. */
    void remembered();
    void dataSetsChanged();
    void viewChanged();
    void rememberedPathChanged();
    void remarksChanged();

private:
    void setPath(const QString &path);
    bool isReady() const { return m_loader && m_dataSets && m_dataSets->source() && m_view; }
    void setRemarks(const QStringList &remarks);

    QPointer<LogLoader> m_loader;
    QPointer<DataSets> m_dataSets;
    QPointer<LogViewerItem> m_view;
    QString m_path; ///< the log that the state is of; empty when there is none
    SessionState m_state;
    QStringList m_remarks;
};

#endif
