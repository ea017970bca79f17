#include "table/CheckboxItemDelegate.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace
{

const char kStyleSheet[]
    = "QCheckBox::indicator:checked {                            "
      "image: url(:datalog/images/checkbox_full.png);                            }"
      "                            QCheckBox::indicator:unchecked {                            "
      "image: url(:datalog/images/checkbox_empty.png);                            }";

int checkState(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).toInt();
}

QStyle::State styleState(int checkState)
{
    if (checkState == Qt::Unchecked)
        return QStyle::State_Enabled | QStyle::State_Off;
    if (checkState == Qt::Checked)
        return QStyle::State_Enabled | QStyle::State_On;
    return QStyle::State_Enabled;
}

int toggled(int checkState)
{
    if (checkState == Qt::Unchecked)
        return Qt::Checked;
    return checkState == Qt::Checked ? int(Qt::Unchecked) : checkState;
}

} // namespace

CheckboxItemDelegate::CheckboxItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

CheckboxItemDelegate::~CheckboxItemDelegate() { }

void CheckboxItemDelegate::watchPresses(QAbstractItemView *view)
{
    m_viewport = view->viewport();
    m_viewport->installEventFilter(this);
}

bool CheckboxItemDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_viewport)
        return QStyledItemDelegate::eventFilter(watched, event); // an editor
    // A press in one of its own cells tells the delegate so right after this.
    if (event->type() == QEvent::MouseButtonPress)
        _pressedIndex = QPersistentModelIndex();
    return false;
}

void CheckboxItemDelegate::setBoxStyleSheet(const QString &styleSheet)
{
    checkBox()->setStyleSheet(styleSheet.isEmpty() ? QLatin1String(kStyleSheet) : styleSheet);
}

QCheckBox *CheckboxItemDelegate::checkBox() const
{
    if (!m_checkBox) {
        m_checkBox.reset(new QCheckBox);
        m_checkBox->setStyleSheet(QLatin1String(kStyleSheet));
    }
    return m_checkBox.data();
}

QRect CheckboxItemDelegate::indicatorRect(const QStyleOption &option) const
{
    return checkBox()->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, checkBox());
}

void CheckboxItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyleOptionButton button;
    button.state = styleState(checkState(index));
    const QRect cell = option.rect;
    const QSize indicator = indicatorRect(button).size();
    const QPoint topLeft((cell.left() + cell.right()) / 2 - indicator.width() / 2,
                         (cell.top() + cell.bottom()) / 2 - indicator.height() / 2);
    button.rect = QRect(topLeft, indicator);
    checkBox()->style()->drawControl(QStyle::CE_CheckBox, &button, painter, checkBox());
}

QSize CheckboxItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    QStyleOptionButton button;
    button.state = styleState(checkState(index));
    const QSize margins(2, 2);
    return QStyledItemDelegate::sizeHint(option, index)
        .expandedTo(indicatorRect(button).size() + margins);
}

bool CheckboxItemDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                       const QStyleOptionViewItem &option, const QModelIndex &index)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        _pressedIndex = index;
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    case QEvent::MouseButtonDblClick:
        // The press of a second, quick tap. Its release does not come through every view, and
        // finds no press if it does.
        _pressedIndex = index;
        return tap(static_cast<QMouseEvent *>(event)->button(), model, index);
    case QEvent::MouseButtonRelease:
        // Never left to the base class: it toggles on a release alone, wherever the press was.
        return tap(static_cast<QMouseEvent *>(event)->button(), model, index);
    default:
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
}

/** Toggles the cell that was pressed; false when that is another one. */
bool CheckboxItemDelegate::tap(Qt::MouseButton button, QAbstractItemModel *model,
                               const QModelIndex &index)
{
    if (button != Qt::LeftButton || !index.isValid() || _pressedIndex != index)
        return false;
    _pressedIndex = QPersistentModelIndex();
    model->setData(index, toggled(checkState(index)), Qt::CheckStateRole);
    return true;
}
