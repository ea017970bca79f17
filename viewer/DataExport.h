#ifndef DATALOG_VIEWER_DATAEXPORT_H
#define DATALOG_VIEWER_DATAEXPORT_H

#include "viewer/PlottedData.h"

#include <QCoreApplication>

#include <functional>

class QIODevice;

/**
 * Writes what is plotted as comma-separated values, in UTF-8, with the quotes and line ends of RFC
 * 4180.
 *
 * The first line names each column with its unit: the horizontal variable, then those of the left
 * and of the right axis. Each further line is a row that is plotted, in the plot's order, with the
 * log's own texts; a value that is left out of its curve is an empty cell, and excluded rows are
 * not there. Hidden curves and what a zoom does not show are. Texts that a spreadsheet would take
 * for formulas are written as CsvText tells. A file is written whole or not at all.
 */
class DataExport
{
    Q_DECLARE_TR_FUNCTIONS(DataExport)

public:
    /** Is told, again and again, which part is written, and says whether to go on. */
    typedef std::function<bool(double)> Watcher;

    explicit DataExport(LogDataSourceItem *source);

    /**
     * @param watcher may let events through; when the source is gone after that, it must say no.
     * What another log or data set comes in for is given up.
     */
    void setWatcher(const Watcher &watcher) { m_watcher = watcher; }

    /** False with an errorText() when the file can't be written. */
    bool write(const QString &path);
    QString errorText() const { return m_errorText; }

private:
    bool writeTo(QIODevice *device);
    bool goesOn(double part);
    bool writeRows(QIODevice *device, const QVector<int> &rows);
    QByteArray header() const;
    bool put(QIODevice *device, const QByteArray &text);

    PlottedData m_data;
    QVector<PlottedData::Column> m_curves;
    Watcher m_watcher;
    QString m_stopText; ///< why it was given up
    QString m_errorText;
};

#endif
