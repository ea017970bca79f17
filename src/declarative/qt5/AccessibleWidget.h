#ifndef DATALOG_DECLARATIVE_QT5_ACCESSIBLEWIDGET_H
#define DATALOG_DECLARATIVE_QT5_ACCESSIBLEWIDGET_H

#include <QAccessibleWidget>
#include <QVector>

/**
 * What assistive tools see of a hosted widget: a part of its item instead of a window of the
 * application, with those widgets in it that are more than decoration.
 */
class AccessibleWidget : public QAccessibleWidget
{
public:
    explicit AccessibleWidget(QWidget *widget, QAccessible::Role role = QAccessible::Client);

    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override { return children().size(); }
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessible::State state() const override;
    void doAction(const QString &name) override;

private:
    QVector<QWidget *> children() const;
};

#endif
