#include "viewer/BuilderStyle.h"

#include "viewer/CriterionText.h"
#include "viewer/ListScrollBar.h"
#include "viewer/TabExit.h"
#include "viewer/ThemeColors.h"
#include "viewer/TouchFlick.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

namespace
{

const int kHeight = 44;
const int kGap = 8;

// A list of its own length instead of a menu: see the row itself, whose rule this replaces.
const char kStyleSheet[]
    = "QWidget { font-family: 'Open Sans'; font-size: 14px }"
      ".QWidget { background: %surface% }"
      "QComboBox, QLineEdit, QAbstractItemView { color: %text% }"
      "QComboBox { combobox-popup: 0 }"
      "QComboBox, QLineEdit, QPushButton { background: %surface%; border: 1px solid %border%;"
      " border-radius: 6px; padding: 0 8px }"
      "QComboBox:focus, QLineEdit:focus, QPushButton:focus { border: 2px solid %accent% }"
      "QComboBox::drop-down { border: none; width: 22px }"
      "QComboBox::down-arrow { image: url(:/viewer/images/down.svg); width: 12px; height: 12px }"
      "QComboBox QAbstractItemView { background: %surface%; border: 1px solid %border%; outline: 0 "
      "}"
      // The row's own list makes its rows half as high again.
      "QComboBox QAbstractItemView::item { min-height: 30px; padding-left: 8px;"
      " border: none; background: %surface% }"
      "QComboBox QAbstractItemView::item:selected { background: %pressed%; color: %text% }"
      "QPushButton { color: %accent% }"
      "QPushButton:pressed { background: %pressed% }"
      "QPushButton:disabled { color: %disabledText% }";

template <class Widget> Widget *widgetAt(const QWidget *container, int index)
{
    QLayoutItem *item = container->layout()->itemAt(index);
    return item ? qobject_cast<Widget *>(item->widget()) : nullptr;
}

} // namespace

BuilderStyle::BuilderStyle(QObject *parent)
    : QObject(parent)
    , m_isVariableChosen(false)
    , m_isDark(false)
{
}

void BuilderStyle::setBuilder(QQuickItem *builder)
{
    if (builder == m_builder)
        return;
    m_builder = qobject_cast<LogDataFilterBuilderItem *>(builder);
    if (m_builder) {
        m_builder->setActiveFocusOnTab(true);
        findWidgets();
        styleWidgets();
        TabExit::activateBackwards(m_variable, m_builder);
        followWidgets();
        if (m_builder->dataSource())
            followSource(m_builder->dataSource());
        suggestVariable();
        enableButtons();
    }
    emit builderChanged();
}

void BuilderStyle::findWidgets()
{
    const QWidget *container = m_builder->container();
    m_variable = widgetAt<QComboBox>(container, 0);
    m_operator = widgetAt<QComboBox>(container, 1);
    m_value = widgetAt<QLineEdit>(container, 2);
    m_add = widgetAt<QAbstractButton>(container, 3);
    m_clear = widgetAt<QAbstractButton>(container, 4);
}

void BuilderStyle::styleWidgets()
{
    QWidget *container = m_builder->container();
    applyColors();
    container->layout()->setContentsMargins(kGap, 0, kGap, 0);
    container->layout()->setSpacing(kGap);
    const QList<QWidget *> widgets
        = container->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *widget : widgets)
        widget->setFixedHeight(kHeight);
    // Where there is little room, long names are cut rather than buttons.
    m_variable->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_variable->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_variable->setMinimumWidth(2 * kHeight);
    m_variable->view()->setMinimumWidth(5 * kHeight);
    TouchFlick::activate(m_variable->view());
    m_value->setMinimumWidth(kHeight);
    translate();
}

/** Into the user's language, which the module knows nothing of. */
void BuilderStyle::translate()
{
    m_value->setPlaceholderText(tr("Value"));
    m_add->setText(tr("Add Criteria"));
    m_clear->setText(tr("Clear Criteria"));
    const QHash<const QWidget *, QString> names{
        {m_variable, tr("Variable")}, {m_operator, tr("Comparison")}, {m_value, tr("Value")}};
    const QList<QLabel *> labels = m_builder->container()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (names.contains(label->buddy())) // nobody sees these, screen readers tell them
            label->setText(names.value(label->buddy()));
    }
}

void BuilderStyle::applyColors()
{
    m_builder->container()->setStyleSheet(ThemeColors::filled(kStyleSheet, m_isDark)
                                          + ListScrollBar::styleSheet(m_isDark));
}

void BuilderStyle::setDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    if (m_builder)
        applyColors();
    emit darkChanged();
}

void BuilderStyle::followWidgets()
{
    connect(m_value.data(), &QLineEdit::textChanged, this, &BuilderStyle::enableButtons);
    connect(m_value.data(), &QLineEdit::textChanged, this, &BuilderStyle::changed);
    for (QComboBox *box : {m_variable.data(), m_operator.data()})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &BuilderStyle::changed);
    connect(m_variable.data(), QOverload<int>::of(&QComboBox::activated), this,
            [this] { m_isVariableChosen = true; });
}

void BuilderStyle::followSource(LogDataSourceItem *source)
{
    connect(source, &LogDataSourceItem::graphDataUpdated, this, &BuilderStyle::suggestVariable);
    connect(source, &LogDataSourceItem::criteriaUpdated, this, &BuilderStyle::enableButtons);
    // Other variables: the choice among the old ones counts no more.
    connect(source->xVariableModel(), &QAbstractItemModel::rowsRemoved, this,
            [this] { m_isVariableChosen = false; });
}

/** What is plotted is what one wants to filter, until another variable is chosen. */
void BuilderStyle::suggestVariable()
{
    LogDataSourceItem *source = m_builder ? m_builder->dataSource() : nullptr;
    if (!source || m_isVariableChosen)
        return;
    const QList<int> plotted = source->checkedItemList(1) + source->checkedItemList(2);
    const int first = m_variable->count() > 0 ? 0 : -1;
    m_variable->setCurrentIndex(plotted.isEmpty() ? first : plotted.first());
    enableButtons();
}

void BuilderStyle::enableButtons()
{
    LogDataSourceItem *source = m_builder ? m_builder->dataSource() : nullptr;
    if (!source)
        return;
    m_add->setEnabled(m_variable->currentIndex() >= 0 && CriterionText::isNumber(text()));
    m_clear->setEnabled(source->activeFilterModel()->rowCount() > 0);
}

QString BuilderStyle::text() const
{
    return m_value ? m_value->text() : QString();
}

void BuilderStyle::setText(const QString &text)
{
    if (m_value)
        m_value->setText(text);
}

QString BuilderStyle::comparison() const
{
    if (!m_builder)
        return QString();
    return tr("%1 %2").arg(m_variable->currentText(), m_operator->currentText());
}

void BuilderStyle::leaveField()
{
    if (m_value)
        m_value->clearFocus();
}

void BuilderStyle::add()
{
    if (m_add)
        m_add->click();
}
