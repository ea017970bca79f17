#ifndef DATALOG_VIEWER_TABLESTYLE_H
#define DATALOG_VIEWER_TABLESTYLE_H

#include <QPointer>
#include <QQuickItem>

/** Makes the module's table fit for fingers and for the viewer's looks. */
class TableStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY darkChanged)

public:
    explicit TableStyle(QObject *parent = nullptr);

    QQuickItem *table() const { return m_table; }
    /** @param table a table item of the module; others are left as they are. */
    void setTable(QQuickItem *table);
    int rowHeight() const { return m_rowHeight; }
    /** The table takes it when it is fitted the next time. */
    void setRowHeight(int pixels);
    bool isDark() const { return m_isDark; }
    void setDark(bool isDark);

signals:
    void tableChanged();
    void rowHeightChanged();
    void darkChanged();

private:
    void apply();

    QPointer<QQuickItem> m_table;
    int m_rowHeight;
    bool m_isDark;
};

#endif
