#ifndef DATALOG_VIEWER_VIEWSTYLE_H
#define DATALOG_VIEWER_VIEWSTYLE_H

#include <QPointer>
#include <QQuickItem>

class QAbstractItemView;
class TouchDelegate;

/** Makes a view of the module, such as its table, fit for fingers and for the viewer's looks. */
class ViewStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged)
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY darkChanged)

public:
    QQuickItem *item() const { return m_item; }
    /** @param item an item of the module, which shows the view; others are left as they are. */
    void setItem(QQuickItem *item);
    int rowHeight() const { return m_rowHeight; }
    void setRowHeight(int pixels);
    bool isDark() const { return m_isDark; }
    void setDark(bool isDark);

signals:
    void itemChanged();
    void rowHeightChanged();
    void darkChanged();

protected:
    explicit ViewStyle(QObject *parent = nullptr);

    /** Dresses what the item shows, with dress(), when it shows what the style is for. */
    virtual void apply() = 0;
    /**
     * Dresses @p view.
     *
     * @param delegate draws the rows and takes the taps on them, instead of the one before, which
     *        is deleted; @p view owns it.
     */
    void dress(QAbstractItemView *view, const QString &styleSheet, TouchDelegate *delegate);

private:
    QPointer<QQuickItem> m_item;
    int m_rowHeight;
    bool m_isDark;
};

#endif
