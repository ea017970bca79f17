#include "PlotWindow.h"

#include <qwt_plot.h>

/** Limits of the axes that are typed into the plot's popup. */
class tst_TypedLimits : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typesLimits();
    void typesClockTimes();
    void refusesLimits_data();
    void refusesLimits();
    void givesLimitsBack();

private:
    void setLimits(const char *row, const QString &lower, const QString &upper);
    QQuickItem *part(const char *row, const char *name) const
    {
        return m_window->window()
            ->findChild<QObject *>("limitsPopup")
            ->findChild<QQuickItem *>(row)
            ->findChild<QQuickItem *>(name);
    }
    void openAgain(const ViewerOptions &options)
    {
        m_window.reset(new PlotWindow(options));
        QVERIFY(m_window->open(m_log->path()));
    }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
};

void tst_TypedLimits::init()
{
    // Logs leave the first unit out.
    m_log.reset(new TemporaryLog(TemporaryLog::twoDataSets().replace("\n-\t", "\n\t")));
    openAgain(ViewerOptions());
}

void tst_TypedLimits::cleanup()
{
    m_window.reset();
    m_log.reset();
}

void tst_TypedLimits::setLimits(const char *row, const QString &lower, const QString &upper)
{
    QVERIFY(m_window->click("limits"));
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(popup->property("opened").toBool());
    const QPair<const char *, QString> fields[] = {{"lower", lower}, {"upper", upper}};
    for (const auto &field : fields) {
        QVERIFY(m_window->click(part(row, field.first)));
        QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
        m_window->key(Qt::Key_Delete);
        m_window->type(field.second);
    }
    QVERIFY(m_window->click("applyLimits"));
}

void tst_TypedLimits::typesLimits()
{
    setLimits("limitsX", "2.5", "7");
    QTRY_COMPARE(m_window->plot()->axisMinScale(LogViewerItem::BottomAxis), 2.5);
    QCOMPARE(m_window->plot()->axisMaxScale(LogViewerItem::BottomAxis), 7.0);
    QVERIFY(m_window->navigator()->scales()[QwtPlot::yLeft].isAuto);
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(!popup->property("visible").toBool());
    setLimits("limitsRight", "-1e3", "1e3");
    QTRY_COMPARE(m_window->plot()->axisMinScale(LogViewerItem::RightAxis), -1000.0);
    m_window->navigator()->back();
    QVERIFY(m_window->navigator()->scales()[QwtPlot::yRight].isAuto);
    QVERIFY(!m_window->navigator()->scales()[QwtPlot::xBottom].isAuto);
}

void tst_TypedLimits::typesClockTimes()
{
    ViewerOptions options;
    options.x = "Time";
    openAgain(options);
    QVERIFY(m_window->click("limits"));
    QTRY_COMPARE(part("limitsX", "lower")->property("text").toString(), QString("10:00:01"));
    m_window->key(Qt::Key_Escape);
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(!popup->property("visible").toBool());
    setLimits("limitsX", "10:00:03", "10:00:05.5");
    QTRY_COMPARE(m_window->plot()->axisMinScale(LogViewerItem::BottomAxis), 2.0);
    QCOMPARE(m_window->plot()->axisMaxScale(LogViewerItem::BottomAxis), 4.5);
}

void tst_TypedLimits::refusesLimits_data()
{
    QTest::addColumn<QString>("lower");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("problem");

    QTest::newRow("text") << "2"
                          << "x7"
                          << "\"x7\" is no number such as -2.5.";
    QTest::newRow("comma") << "2,5"
                           << "7"
                           << "\"2,5\" is no number such as -2.5.";
    QTest::newRow("empty") << ""
                           << "7"
                           << "Both limits are needed.";
    QTest::newRow("upside down") << "7"
                                 << "2"
                                 << "The lower limit must be less than the upper one.";
    QTest::newRow("equal") << "7"
                           << "7"
                           << "The lower limit must be less than the upper one.";
    QTest::newRow("not finite") << "0"
                                << "inf"
                                << "The limits are too close to each other, or too large.";
}

void tst_TypedLimits::refusesLimits()
{
    QFETCH(QString, lower);
    QFETCH(QString, upper);
    setLimits("limitsX", lower, upper);
    QTRY_VERIFY(part("limitsX", "problem")->isVisible());
    QTEST(part("limitsX", "problem")->property("text").toString(), "problem");
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QVERIFY(popup->property("opened").toBool());
    QVERIFY(!m_window->navigator()->isZoomed());
    QVERIFY(m_window->click("cancelLimits"));
    QTRY_VERIFY(!popup->property("visible").toBool());
}

void tst_TypedLimits::givesLimitsBack()
{
    setLimits("limitsLeft", "0", "100");
    QTRY_VERIFY(m_window->navigator()->isZoomed());
    m_window->item("plotArea")->forceActiveFocus();
    m_window->key(Qt::Key_L, Qt::ControlModifier);
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(popup->property("opened").toBool());
    QQuickItem *automatic = part("limitsLeft", "automatic");
    QVERIFY(!automatic->property("checked").toBool());
    QVERIFY(m_window->click(automatic));
    QVERIFY(m_window->click("applyLimits"));
    QTRY_VERIFY(!m_window->navigator()->isZoomed());
}

QTEST_MAIN(tst_TypedLimits)
#include "tst_TypedLimits.moc"
