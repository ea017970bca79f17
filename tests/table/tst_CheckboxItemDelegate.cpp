#include "support/CheckIndicator.h"
#include "support/TestCompat.h"
#include "table/CheckboxItemDelegate.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>

namespace
{

const QRect kCell(0, 0, 60, 30);

/** A delegate that takes events from outside. */
template <class Delegate> class Driven : public Delegate
{
public:
    /** Sends a mouse event at the middle of a cell. */
    bool send(QEvent::Type type, const QModelIndex &index, Qt::MouseButton button = Qt::LeftButton,
              const QPoint &position = kCell.center())
    {
        QMouseEvent event(type, position, button, button, Qt::NoModifier);
        return this->editorEvent(&event, model(index), option(), index);
    }
    bool press(const QModelIndex &index, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::MouseButtonPress, index, button);
    }
    bool release(const QModelIndex &index, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::MouseButtonRelease, index, button);
    }
    bool key(const QModelIndex &index, Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        return this->editorEvent(&event, model(index), option(), index);
    }

    static QStyleOptionViewItem option()
    {
        QStyleOptionViewItem option;
        option.rect = kCell;
        option.state = QStyle::State_Enabled;
        return option;
    }

private:
    static QAbstractItemModel *model(const QModelIndex &index)
    {
        return const_cast<QAbstractItemModel *>(index.model());
    }
};

/** Where the base class takes a press for one of its own check box. */
QPoint baseIndicator(const QModelIndex &index)
{
    QStyleOptionViewItem option = Driven<CheckboxItemDelegate>::option();
    addCheckIndicator(option, index);
    return QApplication::style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option)
        .center();
}

QImage painted(const QModelIndex &index, const QRect &cell)
{
    QImage image(cell.width() + 40, cell.height() + 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = QStyle::State_Enabled;
    CheckboxItemDelegate().paint(&painter, option, index);
    return image;
}

/** What is not the ground it was painted on. */
QRect paintedRect(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != QColor(Qt::magenta).rgb())
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

} // namespace

class tst_CheckboxItemDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void tapToggles_data();
    void tapToggles();
    void tapAnywhereInTheCellToggles();
    void pressAloneChangesNothing();
    void releaseAloneChangesNothing();
    void releaseInAnotherCellChangesNothing();
    void releaseOnAnotherCellsIndicatorChangesNothing();
    void pressBesideTheBoxesEndsATap();
    void otherButtonsChangeNothing();
    void secondTapIsATapToo();
    void tapAcrossAResetChangesNothing();
    void tapAcrossInsertedRowsStaysWithItsCell();
    void spaceToggles();
    void readOnlyModelStays();
    void paintsTheImageOfTheState();
    void paintsInTheMiddle_data();
    void paintsInTheMiddle();
    void paintsNothingElse();
    void paintsWithoutAModel();
    void asksForTheRoomOfTheImage();

private:
    int state(int row) const { return m_cells[row].data(Qt::CheckStateRole).toInt(); }

    QScopedPointer<QStandardItemModel> m_model;
    QPersistentModelIndex m_cells[2];
};

void tst_CheckboxItemDelegate::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_CheckboxItemDelegate::init()
{
    m_model.reset(new QStandardItemModel);
    for (int row = 0; row < 2; ++row) {
        QStandardItem *item = new QStandardItem;
        item->setCheckable(true);
        item->setCheckState(Qt::Unchecked);
        m_model->appendRow(item);
        m_cells[row] = item->index();
    }
}

void tst_CheckboxItemDelegate::tapToggles_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("checks") << int(Qt::Unchecked) << int(Qt::Checked);
    QTest::newRow("unchecks") << int(Qt::Checked) << int(Qt::Unchecked);
    QTest::newRow("leaves another state") << int(Qt::PartiallyChecked) << int(Qt::PartiallyChecked);
}

void tst_CheckboxItemDelegate::tapToggles()
{
    QFETCH(int, before);
    QFETCH(int, after);
    m_model->setData(m_cells[0], before, Qt::CheckStateRole);
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    QCOMPARE(state(0), before);
    QVERIFY(delegate.release(m_cells[0]));
    QCOMPARE(state(0), after);
    QCOMPARE(state(1), int(Qt::Unchecked));
}

void tst_CheckboxItemDelegate::tapAnywhereInTheCellToggles()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.send(QEvent::MouseButtonPress, m_cells[0], Qt::LeftButton, QPoint(1, 1));
    delegate.send(QEvent::MouseButtonRelease, m_cells[0], Qt::LeftButton, QPoint(58, 28));
    QCOMPARE(state(0), int(Qt::Checked));
}

void tst_CheckboxItemDelegate::pressAloneChangesNothing()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    delegate.send(QEvent::MouseMove, m_cells[0]);
    QCOMPARE(state(0), int(Qt::Unchecked));
}

void tst_CheckboxItemDelegate::releaseAloneChangesNothing()
{
    Driven<CheckboxItemDelegate> delegate;
    QVERIFY(!delegate.release(m_cells[0]));
    QCOMPARE(state(0), int(Qt::Unchecked));
    delegate.press(m_cells[0]);
    delegate.release(m_cells[0]);
    QVERIFY(!delegate.release(m_cells[0]));
    QCOMPARE(state(0), int(Qt::Checked));
}

void tst_CheckboxItemDelegate::releaseInAnotherCellChangesNothing()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    QVERIFY(!delegate.release(m_cells[1]));
    QCOMPARE(state(0), int(Qt::Unchecked));
    QCOMPARE(state(1), int(Qt::Unchecked));
}

void tst_CheckboxItemDelegate::releaseOnAnotherCellsIndicatorChangesNothing()
{
    const QPoint indicator = baseIndicator(m_cells[1]);
    Driven<QStyledItemDelegate> base;
    base.send(QEvent::MouseButtonRelease, m_cells[1], Qt::LeftButton, indicator);
    QCOMPARE(state(1), int(Qt::Checked)); // the trap
    m_model->setData(m_cells[1], int(Qt::Unchecked), Qt::CheckStateRole);

    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    delegate.send(QEvent::MouseButtonRelease, m_cells[1], Qt::LeftButton, indicator);
    QCOMPARE(state(0), int(Qt::Unchecked));
    QCOMPARE(state(1), int(Qt::Unchecked));
}

/** Views differ in which releases they pass on, so they are sent here. */
void tst_CheckboxItemDelegate::pressBesideTheBoxesEndsATap()
{
    m_model->appendColumn(QList<QStandardItem *>() << new QStandardItem);
    QTableView view;
    view.setModel(m_model.data());
    Driven<CheckboxItemDelegate> delegate;
    view.setItemDelegateForColumn(0, &delegate);
    delegate.watchPresses(&view);
    const QPoint box = view.visualRect(m_cells[0]).center();
    const QPoint other = view.visualRect(m_model->index(0, 1)).center();

    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), box);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), other);
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), other);
    QVERIFY(!delegate.release(m_cells[0]));
    QCOMPARE(state(0), int(Qt::Unchecked));

    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), box);
    QCOMPARE(state(0), int(Qt::Checked));
}

void tst_CheckboxItemDelegate::otherButtonsChangeNothing()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0], Qt::RightButton);
    QVERIFY(!delegate.release(m_cells[0], Qt::RightButton));
    QCOMPARE(state(0), int(Qt::Unchecked));
}

void tst_CheckboxItemDelegate::secondTapIsATapToo()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    delegate.release(m_cells[0]);
    delegate.send(QEvent::MouseButtonDblClick, m_cells[0]);
    delegate.release(m_cells[0]);
    QCOMPARE(state(0), int(Qt::Unchecked));
}

void tst_CheckboxItemDelegate::tapAcrossAResetChangesNothing()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    m_model->clear();
    QStandardItem *item = new QStandardItem;
    item->setCheckable(true);
    item->setCheckState(Qt::Unchecked);
    m_model->appendRow(item);
    delegate.release(item->index());
    QCOMPARE(item->checkState(), Qt::Unchecked);
}

void tst_CheckboxItemDelegate::tapAcrossInsertedRowsStaysWithItsCell()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(m_cells[0]);
    m_model->insertRow(0, new QStandardItem);
    delegate.release(m_cells[0]);
    QCOMPARE(state(0), int(Qt::Checked));
}

void tst_CheckboxItemDelegate::spaceToggles()
{
    Driven<CheckboxItemDelegate> delegate;
    delegate.key(m_cells[0], Qt::Key_Space);
    QCOMPARE(state(0), int(Qt::Checked));
    delegate.key(m_cells[0], Qt::Key_A);
    QCOMPARE(state(0), int(Qt::Checked));
}

void tst_CheckboxItemDelegate::readOnlyModelStays()
{
    class ReadOnly : public QStandardItemModel
    {
        bool setData(const QModelIndex &, const QVariant &, int) override { return false; }
    };
    ReadOnly model;
    model.appendRow(new QStandardItem(QLatin1String("A")));
    Driven<CheckboxItemDelegate> delegate;
    delegate.press(model.index(0, 0));
    QVERIFY(delegate.release(model.index(0, 0)));
    QVERIFY(!model.index(0, 0).data(Qt::CheckStateRole).isValid());
}

void tst_CheckboxItemDelegate::paintsTheImageOfTheState()
{
    const QImage unchecked = painted(m_cells[0], kCell);
    m_model->setData(m_cells[0], int(Qt::Checked), Qt::CheckStateRole);
    const QImage checked = painted(m_cells[0], kCell);
    QVERIFY(unchecked != checked);

    const QImage full(QLatin1String(":datalog/images/checkbox_full.png"));
    const QImage empty(QLatin1String(":datalog/images/checkbox_empty.png"));
    QVERIFY(!full.isNull() && !empty.isNull());
    const QPoint topLeft(29 - full.width() / 2, 14 - full.height() / 2);
    const QPoint probe(full.width() / 2, full.height() / 2);
    QCOMPARE(checked.pixel(topLeft + probe), full.pixel(probe));
    QCOMPARE(unchecked.pixel(topLeft + probe), empty.pixel(probe));
}

void tst_CheckboxItemDelegate::paintsInTheMiddle_data()
{
    QTest::addColumn<QRect>("cell");
    QTest::newRow("even") << QRect(0, 0, 60, 30);
    QTest::newRow("odd") << QRect(0, 0, 61, 31);
    QTest::newRow("elsewhere") << QRect(15, 7, 70, 40);
    QTest::newRow("smaller than the image") << QRect(20, 20, 10, 10);
}

void tst_CheckboxItemDelegate::paintsInTheMiddle()
{
    QFETCH(QRect, cell);
    m_model->setData(m_cells[0], int(Qt::Checked), Qt::CheckStateRole);
    const QSize size = QImage(QLatin1String(":datalog/images/checkbox_full.png")).size();
    const QRect room(QPoint((cell.left() + cell.right()) / 2 - size.width() / 2,
                            (cell.top() + cell.bottom()) / 2 - size.height() / 2),
                     size);
    const QRect rect = paintedRect(painted(m_cells[0], cell));
    QVERIFY(room.contains(rect));
    QVERIFY(rect.width() > size.width() / 2 && rect.height() > size.height() / 2);
    QVERIFY((rect.center() - room.center()).manhattanLength() <= 2);
}

void tst_CheckboxItemDelegate::paintsNothingElse()
{
    const QImage bare = painted(m_cells[0], kCell);
    m_model->setData(m_cells[0], QLatin1String("Text"));
    m_model->setData(m_cells[0], QColor(Qt::red), Qt::BackgroundRole);
    QCOMPARE(painted(m_cells[0], kCell), bare);
}

void tst_CheckboxItemDelegate::paintsWithoutAModel()
{
    QCOMPARE(painted(QModelIndex(), kCell), painted(m_cells[0], kCell));
}

void tst_CheckboxItemDelegate::asksForTheRoomOfTheImage()
{
    const QSize image = QImage(QLatin1String(":datalog/images/checkbox_full.png")).size();
    const QSize hint
        = CheckboxItemDelegate().sizeHint(Driven<CheckboxItemDelegate>::option(), m_cells[0]);
    QVERIFY(hint.width() > image.width() && hint.height() > image.height());
}

QTEST_MAIN(tst_CheckboxItemDelegate)
#include "tst_CheckboxItemDelegate.moc"
