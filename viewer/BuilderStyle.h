#ifndef DATALOG_VIEWER_BUILDERSTYLE_H
#define DATALOG_VIEWER_BUILDERSTYLE_H

#include "filters/LogDataFilterBuilderItem.h"

#include <QPointer>

class QAbstractButton;
class QComboBox;
class QLineEdit;

/**
 * Makes the module's row that composes a criterion fit for fingers and for the viewer's looks, and
 * kind: it starts with the variable that is plotted, its buttons work only when they would do
 * something, and a number entry can write decimals, which the row's own value has no room for.
 */
class BuilderStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *builder READ builder WRITE setBuilder NOTIFY builderChanged)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(QString comparison READ comparison NOTIFY changed)

public:
    explicit BuilderStyle(QObject *parent = nullptr);

    QQuickItem *builder() const { return m_builder; }
    /** @param builder an item with a data source; others are left as they are. */
    void setBuilder(QQuickItem *builder);
    bool isDark() const { return m_isDark; }
    void setDark(bool isDark);
    /** The number as it stands in its field. */
    QString text() const;
    void setText(const QString &text);
    /** The variable and the operator that the number is for, such as "T >=". */
    QString comparison() const;

    /**
     * Takes the keyboard from the number's field, which would ask for an entry again as soon as
     * that one gives the keyboard back.
     */
    Q_INVOKABLE void leaveField();
    /** As a press on the button that adds the criterion, when it is enabled. */
    Q_INVOKABLE void add();

signals:
    void builderChanged();
    void darkChanged();
    void changed();

private:
    void findWidgets();
    void styleWidgets();
    void translate();
    void applyColors();
    void followWidgets();
    void followSource(LogDataSourceItem *source);
    void suggestVariable();
    void enableButtons();

    QPointer<LogDataFilterBuilderItem> m_builder;
    QPointer<QComboBox> m_variable;
    QPointer<QComboBox> m_operator;
    QPointer<QLineEdit> m_value;
    QPointer<QAbstractButton> m_add;
    QPointer<QAbstractButton> m_clear;
    bool m_isVariableChosen;
    bool m_isDark;
};

#endif
