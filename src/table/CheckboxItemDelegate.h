#ifndef DATALOG_TABLE_CHECKBOXITEMDELEGATE_H
#define DATALOG_TABLE_CHECKBOXITEMDELEGATE_H

#include <QPersistentModelIndex>
#include <QPointer>
#include <QScopedPointer>
#include <QStyledItemDelegate>

class QAbstractItemView;
class QCheckBox;

/**
 * Shows a cell as a check box in its middle, in the module's images, and nothing else of the cell.
 *
 * A press and a release anywhere in the same cell toggle it, a double click once more. A press in
 * one cell and a release in another change neither.
 */
class CheckboxItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CheckboxItemDelegate(QObject *parent = nullptr);
    ~CheckboxItemDelegate() override;

    /**
     * Hears of presses in all of @p view's cells, those of other delegates included: one there ends
     * a tap that began in a check box and was released elsewhere. For one view.
     */
    void watchPresses(QAbstractItemView *view);

    /** @param styleSheet of a QCheckBox, in place of the images; empty for these. */
    void setBoxStyleSheet(const QString &styleSheet);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /** At least the room that the images take. */
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    QCheckBox *checkBox() const;
    QRect indicatorRect(const QStyleOption &option) const;
    bool tap(Qt::MouseButton button, QAbstractItemModel *model, const QModelIndex &index);

    /** Where the last press landed. It loses its cell when the model is filled anew. */
    QPersistentModelIndex _pressedIndex;
    QPointer<QObject> m_viewport; ///< whose presses are watched
    /** Lends its style; never shown. Making one for each cell takes long on an instrument. */
    mutable QScopedPointer<QCheckBox> m_checkBox;
};

#endif
