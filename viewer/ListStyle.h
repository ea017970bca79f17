#ifndef DATALOG_VIEWER_LISTSTYLE_H
#define DATALOG_VIEWER_LISTSTYLE_H

#include <QPointer>
#include <QQuickItem>

/** Makes one of the module's lists fit for fingers and for the viewer's looks. */
class ListStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *list READ list WRITE setList NOTIFY listChanged)
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged)

public:
    explicit ListStyle(QObject *parent = nullptr);

    QQuickItem *list() const { return m_list; }
    /** @param list a list item of the module; others are left as they are. */
    void setList(QQuickItem *list);
    int rowHeight() const { return m_rowHeight; }
    void setRowHeight(int pixels);

signals:
    void listChanged();
    void rowHeightChanged();

private:
    void apply();

    QPointer<QQuickItem> m_list;
    int m_rowHeight;
};

#endif
