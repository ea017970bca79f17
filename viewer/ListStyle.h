#ifndef DATALOG_VIEWER_LISTSTYLE_H
#define DATALOG_VIEWER_LISTSTYLE_H

#include <QPointer>
#include <QQuickItem>

class QListView;
class TouchDelegate;

/** Makes one of the module's lists fit for fingers and for the viewer's looks. */
class ListStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *list READ list WRITE setList NOTIFY listChanged)
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY darkChanged)

public:
    explicit ListStyle(QObject *parent = nullptr);

    QQuickItem *list() const { return m_list; }
    /** @param list a list item of the module; others are left as they are. */
    void setList(QQuickItem *list);
    int rowHeight() const { return m_rowHeight; }
    void setRowHeight(int pixels);
    bool isDark() const { return m_isDark; }
    void setDark(bool isDark);

signals:
    void listChanged();
    void rowHeightChanged();
    void darkChanged();

protected:
    /** What draws the rows and takes the taps on them; @p view owns it. */
    virtual TouchDelegate *newDelegate(QListView *view);

private:
    void apply();

    QPointer<QQuickItem> m_list;
    int m_rowHeight;
    bool m_isDark;
};

#endif
