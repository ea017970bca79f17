#include "viewer/TouchDelegate.h"

#include "datasource/CheckListModel.h"

#include <QListView>
#include <QSignalSpy>
#include <QtTest>

class tst_TouchDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void makesRowsHigh();
    void ticksByATapAnywhere_data();
    void ticksByATapAnywhere();
    void leavesWhatCannotBeTicked();
    void takesNoOtherButton();
    void takesNoReleaseElsewhere();
    void countsADoubleClickOnce();
    void ticksByTheSpaceBar();

private:
    QPoint at(int row, int x) const;

    QScopedPointer<CheckListModel> m_model;
    QScopedPointer<QListView> m_view;
};

void tst_TouchDelegate::init()
{
    m_view.reset(new QListView);
    m_model.reset(new CheckListModel);
    m_model->appendName("first");
    m_model->appendName("second");
    m_view->setModel(m_model.data());
    m_view->setItemDelegate(new TouchDelegate(48, m_view.data()));
    m_view->resize(200, 200);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
}

QPoint tst_TouchDelegate::at(int row, int x) const
{
    return QPoint(x, m_view->visualRect(m_model->index(row, 0)).center().y());
}

void tst_TouchDelegate::makesRowsHigh()
{
    QCOMPARE(m_view->visualRect(m_model->index(0, 0)).height(), 48);
    QCOMPARE(m_view->visualRect(m_model->index(1, 0)).top(), 48);
}

void tst_TouchDelegate::ticksByATapAnywhere_data()
{
    QTest::addColumn<int>("x");

    QTest::newRow("on the check box") << 8;
    QTest::newRow("on the text") << 50;
    QTest::newRow("right of the text") << 180;
}

void tst_TouchDelegate::ticksByATapAnywhere()
{
    QFETCH(int, x);
    QSignalSpy changed(m_model.data(), SIGNAL(itemChanged(QStandardItem *)));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(1, x));
    QCOMPARE(m_model->checkedRows(), QList<int>{1});
    QCOMPARE(changed.count(), 1);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(1, x));
    QCOMPARE(m_model->checkedRows(), QList<int>());
    QCOMPARE(changed.count(), 2);
}

void tst_TouchDelegate::leavesWhatCannotBeTicked()
{
    m_model->item(0)->setCheckable(false);
    m_model->item(1)->setEnabled(false);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(0, 50));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(1, 50));
    QCOMPARE(m_model->checkedRows(), QList<int>());
}

void tst_TouchDelegate::takesNoOtherButton()
{
    QTest::mouseClick(m_view->viewport(), Qt::RightButton, Qt::NoModifier, at(0, 8));
    QCOMPARE(m_model->checkedRows(), QList<int>());
}

void tst_TouchDelegate::takesNoReleaseElsewhere()
{
    QTest::mousePress(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(0, 8));
    QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(1, 8));
    QCOMPARE(m_model->checkedRows(), QList<int>());
}

/** Two quick taps are press, release, double click, release. */
void tst_TouchDelegate::countsADoubleClickOnce()
{
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, at(0, 50));
    QCOMPARE(m_model->checkedRows(), QList<int>());
}

void tst_TouchDelegate::ticksByTheSpaceBar()
{
    m_view->setCurrentIndex(m_model->index(1, 0));
    QTest::keyClick(m_view.data(), Qt::Key_Space);
    QCOMPARE(m_model->checkedRows(), QList<int>{1});
}

QTEST_MAIN(tst_TouchDelegate)
#include "tst_TouchDelegate.moc"
