#ifndef DATALOG_VIEWER_SETUPFILES_H
#define DATALOG_VIEWER_SETUPFILES_H

#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"

#include <QPointer>
#include <QUrl>

class DefinitionFile;

/** Saves what the window shows and brings it back, and holds what is to be told about that. */
class SetupFiles : public QObject
{
    Q_OBJECT
    Q_PROPERTY(DataSets *dataSets READ dataSets WRITE setDataSets NOTIFY dataSetsChanged)
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(QObject *setup READ setup WRITE setSetup NOTIFY setupChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(bool isGood READ isGood NOTIFY noticeChanged)

public:
    explicit SetupFiles(QObject *parent = nullptr);

    DataSets *dataSets() const { return m_dataSets; }
    void setDataSets(DataSets *dataSets);
    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** A PlotSetup, whose failures and remarks are told as well. */
    QObject *setup() const { return m_setup; }
    void setSetup(QObject *setup);

    /** Lines about what was saved, lost, or failed; empty when there is nothing to tell. */
    QString notice() const { return m_notice.join(QLatin1Char('\n')); }
    /** Whether all went well, so that the notice need not stay. */
    bool isGood() const { return m_isGood; }

    /**
     * False when the file stayed as it was; the notice says why. A name without suffix gets
     * ".json".
     */
    Q_INVOKABLE bool save(const QUrl &file);
    /** False when the file can't be used; then nothing has changed. */
    Q_INVOKABLE bool apply(const QUrl &file);
    Q_INVOKABLE void dismiss();

signals:
    void dataSetsChanged();
    void viewChanged();
    void setupChanged();
    void noticeChanged();
    /** What is set has changed. */
    void applied();

private:
    bool isReady() const { return m_dataSets && m_dataSets->source() && m_view; }
    void tellOutcome(const DefinitionFile &file, const QString &success);
    void tellFailure(const QString &text);
    void tell(const QString &line);

    QPointer<DataSets> m_dataSets;
    QPointer<LogViewerItem> m_view;
    QPointer<QObject> m_setup;
    QStringList m_notice;
    bool m_isGood;
};

#endif
