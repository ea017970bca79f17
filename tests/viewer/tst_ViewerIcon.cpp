#include "support/TestCompat.h"
#include "viewer/ViewerWindow.h"

#include <QIcon>
#include <QQuickWindow>

/** The window's icon, for desktops that show it by the window rather than by the menu entry. */
class tst_ViewerIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isDrawnAtAnySize_data();
    void isDrawnAtAnySize();
};

void tst_ViewerIcon::isDrawnAtAnySize_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("small") << 16;
    QTest::newRow("usual") << 48;
    QTest::newRow("large") << 256;
}

void tst_ViewerIcon::isDrawnAtAnySize()
{
    QFETCH(int, side);
    const ViewerWindow viewer{ViewerOptions()};
    QVERIFY(viewer.window());
    const QImage image = viewer.window()->icon().pixmap(side, side).toImage();
    QCOMPARE(image.size(), QSize(side, side));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    // The instrument's face, above the axes.
    const QColor face = image.pixelColor(side / 2, side / 6);
    QCOMPARE(face.alpha(), 255);
    QVERIFY2(face.blue() > face.red(), qPrintable(face.name()));
}

QTEST_MAIN(tst_ViewerIcon)
#include "tst_ViewerIcon.moc"
