#ifndef DATALOG_VIEWER_TABLESEARCH_H
#define DATALOG_VIEWER_TABLESEARCH_H

#include "table/LogTableViewItem.h"
#include "viewer/CellRange.h"
#include "viewer/CellSearch.h"

#include <QPointer>

/** Finds a text in a table item, selects the match and scrolls to it. */
class TableSearch : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(bool searching READ isSearching NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int number READ number NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)

public:
    explicit TableSearch(QObject *parent = nullptr);

    QQuickItem *table() const { return m_table; }
    void setTable(QQuickItem *table);
    QString text() const { return m_text; }
    /** Another text is looked for from the selected cell on, that cell included. */
    void setText(const QString &text);
    bool isSearching() const { return m_search.isRunning(); }
    int count() const { return m_search.count(); }
    /** Which match is selected, counted from 1; 0 for none. */
    int number() const { return m_number; }
    /** The part of the rows that was looked through. */
    double progress() const;

    Q_INVOKABLE void next();
    Q_INVOKABLE void previous();
    /** Counts anew, after the table came to show something else; what is selected stays. */
    Q_INVOKABLE void recount();

signals:
    void tableChanged();
    void changed();

private:
    void start();
    void follow();
    void end();
    void jump(const CellSearch::Match &match);
    CellRange from() const;

    QPointer<LogTableViewItem> m_table;
    CellSearch m_search;
    QString m_text;
    int m_number;
    int m_rowCount;
    bool m_isWaiting; ///< for a first match to jump to
};

#endif
