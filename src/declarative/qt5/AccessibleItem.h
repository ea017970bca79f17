#ifndef DATALOG_DECLARATIVE_QT5_ACCESSIBLEITEM_H
#define DATALOG_DECLARATIVE_QT5_ACCESSIBLEITEM_H

#include <QAccessibleObject>
#include <QVector>

class HostedAccess;
class QDeclarativeItem;
class QQuickItem;

/**
 * What assistive tools see of an item that hosts widgets: the name, role and description that its
 * script gives it, and within it first the widgets, then the items of the script.
 */
class AccessibleItem : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleItem(QDeclarativeItem *item);
    ~AccessibleItem() override;

    bool isValid() const override { return access() != nullptr; }
    QWindow *window() const override;
    QRect rect() const override;

    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    QString text(QAccessible::Text type) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return QStringList(); }

private:
    QDeclarativeItem *item() const;
    HostedAccess *access() const;
    QVector<QObject *> children() const;
    bool isSeen() const;
};

#endif
