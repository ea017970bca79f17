#ifndef DATALOG_DECLARATIVE_QT5_ACCESSIBLEROW_H
#define DATALOG_DECLARATIVE_QT5_ACCESSIBLEROW_H

#include <QAccessible>
#include <QPersistentModelIndex>
#include <QPointer>

class QListView;

/** What assistive tools see of a row of a hosted list: its text, and whether it is ticked. */
class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleRow(QListView *view, const QModelIndex &index);

    const QListView *view() const { return m_view; }
    QModelIndex index() const { return m_index; }

    bool isValid() const override { return m_view && m_index.isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QRect rect() const override;

    QAccessibleInterface *parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text, const QString &) override { }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return QStringList(); }

private:
    bool isCheckable() const;

    QPointer<QListView> m_view;
    QPersistentModelIndex m_index;
};

#endif
