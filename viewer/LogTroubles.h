#ifndef DATALOG_VIEWER_LOGTROUBLES_H
#define DATALOG_VIEWER_LOGTROUBLES_H

#include "parsing/LineReader.h"
#include "viewer/LogLoader.h"
#include "viewer/TroubleScan.h"

#include <QFile>
#include <QScopedPointer>
#include <QTimer>
#include <QVariantList>

/**
 * What of the log that is open was not taken as it stands.
 *
 * The file is gone through once more after it was read, a little at a time between events. Of a
 * spreadsheet it is the text that it was converted to.
 */
class LogTroubles : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogLoader *loader READ loader WRITE setLoader NOTIFY loaderChanged)
    Q_PROPERTY(bool scanning READ isScanning NOTIFY scanningChanged)
    Q_PROPERTY(double count READ count NOTIFY changed)
    Q_PROPERTY(bool converted READ isConverted NOTIFY changed)
    Q_PROPERTY(QVariantList entries READ entries NOTIFY changed)

public:
    explicit LogTroubles(QObject *parent = nullptr);
    ~LogTroubles() override;

    LogLoader *loader() const { return m_loader; }
    void setLoader(LogLoader *loader);
    bool isScanning() const { return m_timer.isActive(); }
    double count() const { return double(m_count); }
    /** Whether lines are those of a text that the log was converted to. */
    bool isConverted() const { return m_isConverted; }
    /**
     * Maps of "section", a heading, "isFirst", whether it is the first below that, "text", which
     * names the line, and its "dataSet" and "row", from 0, the latter -1 for what is no row;
     * bounded in number.
     */
    QVariantList entries() const { return m_entries; }

signals:
    void loaderChanged();
    void scanningChanged();
    void changed();

private:
    void scan();
    void stop();
    void take();
    void finish();
    void tellThatTextIsGone();
    void forget();

    QPointer<LogLoader> m_loader;
    QTimer m_timer;
    QScopedPointer<QFile> m_file;
    QScopedPointer<LineReader> m_reader; ///< reads the file, so it goes first
    TroubleScan m_scan;
    QString m_path; ///< of what is told
    bool m_isConverted;
    qint64 m_count;
    QVariantList m_entries;
};

#endif
