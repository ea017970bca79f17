#include "TableTest.h"
#include "viewer/TableHeader.h"

#include <QScrollBar>
#include <QStyle>

/** The widths of the viewer's columns, and what is to be read in them. */
class tst_TableWidths : public TableTest
{
    Q_OBJECT

private slots:
    void limitsAColumnWithARemark_data();
    void limitsAColumnWithARemark();
    void followsTheWindow();
    void widensByDoubleClick_data();
    void widensByDoubleClick();
    void widensByDoubleTap();
    void widensByKey();
    void keepsADraggedWidth();
    void wrapsLongHeaders();
    void showsACutCellToAMouse();
    void showsACutCellToAFinger();
    void showsACutCellToKeys();
    void showsACellThatReachesOutOfTheTable();
    void keepsTheCutCellInTheWindow();
    void putsNumbersToTheRight();
    void scrollBarsAreForFingers();

private:
    enum Column { Obs = 1, Time, T, LongName, LongNameToo };

    static QByteArray remark()
    {
        return "The door was opened to look at the sample, and closed after three minutes and "
               "some seconds; what was measured in that time is of no use to anybody";
    }
    static QByteArray log()
    {
        const QByteArray name("Compensated differential pressure of the chamber, at its ");
        QByteArray text = "[Header]\nCreated\t2020-01-01\n[Data]\nSys\tSys\tAir\tGas\tGas\n"
                          "Obs\tTime\tT\t"
            + name + "upper end\t" + name + "lower end\n\ths\tC\thPa\thPa\n";
        for (int i = 1; i <= 60; ++i) {
            const QByteArray n = QByteArray::number(i);
            text += n + "\t10:00:00\t20." + n + "\t1013\t1014\n";
            if (i == 4)
                text += "Remark\t" + remark() + "\n";
        }
        return text;
    }
    void open(const QSize &size = QSize(1280, 800))
    {
        m_long.reset(new TemporaryLog(log(), "long.log"));
        m_user->window()->resize(size);
        QTRY_COMPARE(m_user->window()->size(), size);
        QSignalSpy opened(m_user->viewer(), SIGNAL(opened()));
        m_user->viewer()->open(m_long->path());
        QVERIFY(waitForCount(opened, 1));
        showTable();
        QVERIFY(m_user->settled());
    }
    int limit() const { return qMax(160, view()->viewport()->width() / 3); }
    /** The remark's cell, which the parser puts behind its mark. */
    QModelIndex cell() const { return view()->model()->index(4, T); }
    TableHeader *header() const { return qobject_cast<TableHeader *>(view()->horizontalHeader()); }
    QPoint onHeader(int x) const
    {
        const QPoint inside = header()->viewport()->mapTo(view()->window(), QPoint(x, 20));
        return m_user->pointOf(m_user->item("table"), inside);
    }
    int middleOf(int column) const
    {
        return header()->sectionViewportPosition(column) + header()->sectionSize(column) / 2;
    }
    int endOf(int column) const
    {
        return header()->sectionViewportPosition(column) + header()->sectionSize(column);
    }

    QScopedPointer<TemporaryLog> m_long;
};

// Widths

void tst_TableWidths::limitsAColumnWithARemark_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
    QTest::newRow("large") << QSize(1920, 1000);
}

void tst_TableWidths::limitsAColumnWithARemark()
{
    QFETCH(QSize, size);
    open(size);
    QCOMPARE(cell().data().toString(), QString::fromLatin1(remark()));
    QCOMPARE(view()->columnWidth(T), limit());
    QVERIFY(view()->columnWidth(Obs) < 120);
    // What is left out is hinted at, not cut off.
    QCOMPARE(view()->textElideMode(), Qt::ElideRight);
}

void tst_TableWidths::followsTheWindow()
{
    open(QSize(800, 480));
    QCOMPARE(view()->columnWidth(T), 160);
    m_user->window()->resize(1400, 800);
    QTRY_VERIFY(view()->viewport()->width() > 900);
    QTRY_COMPARE(view()->columnWidth(T), limit());
}

void tst_TableWidths::widensByDoubleClick_data()
{
    QTest::addColumn<int>("fromEdge");
    QTest::addColumn<bool>("isOnEdge");

    QTest::newRow("middle") << 0 << false;
    QTest::newRow("before the edge") << -2 << true;
    QTest::newRow("behind the edge") << 2 << true;
}

void tst_TableWidths::widensByDoubleClick()
{
    QFETCH(int, fromEdge);
    QFETCH(bool, isOnEdge);
    open();
    const int before = view()->columnWidth(T);
    const QPoint first = onHeader(isOnEdge ? endOf(T) + fromEdge : middleOf(T));
    QTest::mouseDClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, first);
    const int whole = view()->fontMetrics().horizontalAdvance(QString::fromLatin1(remark()));
    QVERIFY(view()->columnWidth(T) > whole);
    QVERIFY(view()->columnWidth(T) < whole + 40);
    QVERIFY(m_user->settled());
    // It stays so when the table is filled anew, as by a criterion.
    m_user->source()->buildFilter(2, 0, "1");
    QVERIFY(view()->columnWidth(T) > whole);
    QVERIFY(view()->columnWidth(LongName) <= 160);
    QTest::mouseDClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, onHeader(middleOf(Time)));
    QTest::mouseDClick(m_user->window(), Qt::LeftButton, Qt::NoModifier,
                       onHeader(header()->sectionViewportPosition(T) + 30));
    QCOMPARE(view()->columnWidth(T), before);
}

void tst_TableWidths::widensByDoubleTap()
{
    open(QSize(800, 480));
    const QPoint at = onHeader(middleOf(T));
    m_user->drag(at);
    QCOMPARE(view()->columnWidth(T), 160);
    m_user->drag(at);
    QTRY_VERIFY(view()->columnWidth(T) > 600);
}

void tst_TableWidths::widensByKey()
{
    open();
    clickAt(2, T);
    const int before = view()->columnWidth(T);
    key(Qt::Key_W);
    QVERIFY(view()->columnWidth(T) > 600);
    key(Qt::Key_W);
    QCOMPARE(view()->columnWidth(T), before);
}

void tst_TableWidths::keepsADraggedWidth()
{
    open();
    const int before = view()->columnWidth(Time);
    drag(onHeader(endOf(Time) - 1), onHeader(endOf(Time) + 39));
    QCOMPARE(view()->columnWidth(Time), before + 40);
    m_user->source()->buildFilter(2, 0, "1");
    QCOMPARE(view()->columnWidth(Time), before + 40);
    m_user->window()->resize(1000, 700);
    QTRY_VERIFY(view()->columnWidth(T) == limit() && limit() < 260);
    QCOMPARE(view()->columnWidth(Time), before + 40);
}

void tst_TableWidths::wrapsLongHeaders()
{
    open();
    QVERIFY(view()->columnWidth(LongName) <= 160);
    const QStringList upper = header()->lines(LongName);
    const QStringList lower = header()->lines(LongNameToo);
    QCOMPARE(upper.size(), 4); // of the group, the name and the unit
    QCOMPARE(upper.first(), QString("Gas"));
    QVERIFY(upper.at(1).startsWith("Compensated"));
    // They are told apart by their ends.
    QVERIFY2(upper.at(2).endsWith("upper end"), qPrintable(upper.at(2)));
    QVERIFY2(lower.at(2).endsWith("lower end"), qPrintable(lower.at(2)));
    const QFontMetrics metrics(header()->font());
    for (const QString &line : upper)
        QVERIFY(metrics.horizontalAdvance(line) <= view()->columnWidth(LongName) - 16);
    QVERIFY(header()->height() >= 4 * metrics.height());
    QCOMPARE(header()->lines(T), (QStringList{"Air", "T", "C"}));
    QTest::mouseDClick(m_user->window(), Qt::LeftButton, Qt::NoModifier,
                       onHeader(middleOf(LongName)));
    QCOMPARE(header()->lines(LongName).size(), 3);
}

// The whole text

void tst_TableWidths::showsACutCellToAMouse()
{
    open(QSize(1900, 900));
    clickAt(4, T);
    QTRY_VERIFY(m_user->isShown("cellBubble"));
    QCOMPARE(m_user->text("cutText"), QString::fromLatin1(remark()));
    clickAt(3, T);
    QVERIFY(!m_user->isShown("cellBubble"));
    clickAt(4, T);
    QVERIFY(m_user->isShown("cellBubble"));
    QTest::mouseDClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, onHeader(middleOf(T)));
    QVERIFY(!m_user->isShown("cellBubble"));
}

void tst_TableWidths::showsACutCellToAFinger()
{
    open();
    m_user->drag(at(4, T));
    QTRY_VERIFY(m_user->isShown("cellBubble"));
    // A tap on the bubble is one on the cell behind it.
    const QQuickItem *bubble = m_user->item("cellBubble");
    m_user->drag(bubble->mapToScene(bubble->boundingRect().center()).toPoint());
    QTRY_VERIFY(!m_user->isShown("cellBubble"));
    QVERIFY(range().row > 4);
}

void tst_TableWidths::showsACutCellToKeys()
{
    open();
    clickAt(3, T);
    key(Qt::Key_Down);
    QVERIFY(m_user->isShown("cellBubble"));
    key(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(!m_user->isShown("cellBubble"));
    key(Qt::Key_Up);
    QVERIFY(m_user->isShown("cellBubble"));
    key(Qt::Key_Escape);
    QVERIFY(!m_user->isShown("cellBubble"));
}

void tst_TableWidths::showsACellThatReachesOutOfTheTable()
{
    open(QSize(800, 480));
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 4, T));
    key(Qt::Key_W);
    QVERIFY(view()->columnWidth(T) > view()->viewport()->width());
    QVERIFY(m_user->isShown("cellBubble"));
    QCOMPARE(m_user->text("cutText"), QString::fromLatin1(remark()));
    clickAt(3, Time);
    QVERIFY(!m_user->isShown("cellBubble"));
}

void tst_TableWidths::keepsTheCutCellInTheWindow()
{
    open(QSize(800, 480));
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 4, T));
    QTRY_VERIFY(m_user->isShown("cellBubble"));
    QVERIFY(m_user->settled());
    const QQuickItem *bubble = m_user->item("cellBubble");
    const QQuickItem *table = m_user->item("table");
    const QRectF area = table->mapRectFromItem(bubble, bubble->boundingRect());
    QVERIFY(table->boundingRect().contains(area));
    // It is there for its text, and goes along with the cell.
    const QQuickItem *text = m_user->item("cutText");
    QVERIFY(!text->property("truncated").toBool());
    const QRectF before = area;
    QVERIFY(!before.contains(m_user->cell(view(), cell())));
    view()->verticalScrollBar()->setValue(view()->verticalScrollBar()->maximum());
    QVERIFY(!m_user->isShown("cellBubble"));
}

// Looks

void tst_TableWidths::putsNumbersToTheRight()
{
    open();
    QVERIFY(m_user->settled());
    const auto inkAt = [this](int row, int column, bool isRight) {
        const QRect rect = view()->visualRect(view()->model()->index(row, column));
        const QPoint corner = m_user->pointOf(
            m_user->item("table"), view()->viewport()->mapTo(view()->window(), rect.topLeft()));
        const int half = rect.width() / 2;
        const QImage image = m_user->window()->grabWindow().copy(
            corner.x() + (isRight ? half : 2), corner.y() + 2, half - 4, rect.height() - 4);
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        return dark;
    };
    QVERIFY(inkAt(0, T, true) > 10);
    QCOMPARE(inkAt(0, T, false), 0);
    QVERIFY(inkAt(4, T, false) > 10); // the remark
}

void tst_TableWidths::scrollBarsAreForFingers()
{
    open(QSize(800, 480));
    const QList<QScrollBar *> bars{view()->verticalScrollBar(), view()->horizontalScrollBar()};
    for (QScrollBar *bar : bars) {
        QVERIFY(bar->isVisible());
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.subControls = QStyle::SC_All;
        option.orientation = bar->orientation();
        option.state.setFlag(QStyle::State_Horizontal, bar->orientation() == Qt::Horizontal);
        option.minimum = bar->minimum();
        option.maximum = 1000000; // however long the log
        option.pageStep = bar->pageStep();
        option.upsideDown = false;
        const auto part = [&option, bar](QStyle::SubControl control) {
            return bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, control, bar).size();
        };
        const bool isUpright = bar->orientation() == Qt::Vertical;
        const QSize handle = part(QStyle::SC_ScrollBarSlider);
        QVERIFY((isUpright ? handle.height() : handle.width()) >= 44);
        QVERIFY((isUpright ? handle.width() : handle.height()) >= 28);
        // No buttons, and so no arrows to draw.
        QVERIFY(part(QStyle::SC_ScrollBarAddLine).isEmpty());
        QVERIFY(part(QStyle::SC_ScrollBarSubLine).isEmpty());
    }
}

QTEST_MAIN(tst_TableWidths)
#include "tst_TableWidths.moc"
