#include "plot/PlotFixture.h"

#include <QLayout>

#include <qwt_plot_canvas.h>

/** The legend, the taps on it, and how often all that redraws. */
class tst_LogViewerItemLegend : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void legend();
    void oneRedrawAnUpdate();
    void legendIsLaidOutAfterAnUpdate();
    void legendTapHidesOneCurve();
    void curveCheckedRedraws();
    void legendCheckedIgnoresStrangers();

private:
    QScopedPointer<PlotFixture> m_plot;
};

void tst_LogViewerItemLegend::init()
{
    m_plot.reset(new PlotFixture);
}

void tst_LogViewerItemLegend::cleanup()
{
    m_plot.reset();
}

void tst_LogViewerItemLegend::legend()
{
    const QwtLegend *legend = m_plot->legend();
    QVERIFY(legend);
    QCOMPARE(legend->defaultItemMode(), QwtLegendData::Checkable);
    QCOMPARE(legend->font().styleStrategy(), QFont::PreferAntialias);
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->select("Obs", "A", "");
    m_plot->item.setLinesEnabled(kLeft, true);
    QCoreApplication::processEvents();
    QVERIFY(legend->geometry().top() >= m_plot->item.plot()->canvas()->geometry().bottom());
}

void tst_LogViewerItemLegend::oneRedrawAnUpdate()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "A B C D E", "F G");
    RedrawCounter counter(m_plot->item.plot());
    m_plot->item.updatePlot();
    QCOMPARE(m_plot->curves().size(), 7);
    QCOMPARE(counter.count, 1);
}

void tst_LogViewerItemLegend::legendIsLaidOutAfterAnUpdate()
{
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B C", "");
    for (int i = 0; i < 3; ++i) {
        m_plot->item.updatePlot();
        QCoreApplication::processEvents();
        QVERIFY(m_plot->legend()->contentsWidget()->layout()->isEnabled());
        QRegion area;
        foreach (QwtPlotCurve *curve, m_plot->curves()) {
            const QRect entry = m_plot->label(curve)->geometry();
            QVERIFY(m_plot->legend()->contentsWidget()->rect().contains(entry));
            QVERIFY(!area.intersects(entry));
            area += entry;
        }
    }
}

void tst_LogViewerItemLegend::legendTapHidesOneCurve()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B", "");
    QwtPlotCurve *a = m_plot->curves().at(0);
    QwtPlotCurve *b = m_plot->curves().at(1);
    QTest::mouseClick(m_plot->label(a), Qt::LeftButton);
    QVERIFY(!a->isVisible());
    QVERIFY(b->isVisible());
    QVERIFY(!m_plot->label(a)->isChecked());
    QVERIFY(m_plot->label(b)->isChecked());
    QTest::mouseClick(m_plot->label(a), Qt::LeftButton);
    QVERIFY(a->isVisible());
    QVERIFY(m_plot->label(a)->isChecked());
    QTest::mouseClick(m_plot->label(b), Qt::LeftButton);
    QVERIFY(!b->isVisible());
    m_plot->item.updatePlot();
    QCOMPARE(m_plot->curves().size(), 2);
    foreach (QwtPlotCurve *curve, m_plot->curves()) {
        QVERIFY(curve->isVisible());
        QVERIFY(m_plot->label(curve)->isChecked());
    }
}

void tst_LogViewerItemLegend::curveCheckedRedraws()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B", "");
    RedrawCounter counter(m_plot->item.plot());
    QwtPlotCurve *a = m_plot->curves().at(0);
    m_plot->item.curveChecked(a, false);
    QCOMPARE(counter.count, 1);
    QVERIFY(!a->isVisible());
    QVERIFY(!m_plot->label(a)->isChecked());
    m_plot->item.plot()->insertLegend(nullptr);
    m_plot->item.curveChecked(a, true);
    QCOMPARE(counter.count, 2);
    QVERIFY(a->isVisible());
}

void tst_LogViewerItemLegend::legendCheckedIgnoresStrangers()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    RedrawCounter counter(m_plot->item.plot());
    QList<QVariant> strangers;
    strangers << QVariant() << QVariant(5) << QVariant(QLatin1String("A"))
              << QVariant::fromValue<QwtPlotItem *>(nullptr);
    foreach (const QVariant &info, strangers) {
        QVERIFY(QMetaObject::invokeMethod(&m_plot->item, "legendChecked", Q_ARG(QVariant, info),
                                          Q_ARG(bool, false)));
    }
    QCOMPARE(counter.count, 0);
    QVERIFY(m_plot->curves().first()->isVisible());
}

QTEST_MAIN(tst_LogViewerItemLegend)
#include "tst_LogViewerItemLegend.moc"
