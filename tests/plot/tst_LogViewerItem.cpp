#include "plot/PlotFixture.h"

#include <QGraphicsProxyWidget>

/** The plot item, its data source, its switches and its size. */
class tst_LogViewerItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void storedPath();
    void followsTheDataSource();
    void anotherDataSource();
    void noDataSourceAgain();
    void sourceDiesFirst();
    void withoutDataSource();
    void switches();
    void switchesAreWrittenBack();
    void switchesOfNoAxis();
    void size();
    void noSizeNoRedraw();
    void resizeFollows();

private:
    QScopedPointer<PlotFixture> m_plot;
};

void tst_LogViewerItem::init()
{
    m_plot.reset(new PlotFixture);
}

void tst_LogViewerItem::cleanup()
{
    m_plot.reset();
}

// Construction

void tst_LogViewerItem::construction()
{
    const QwtPlot *plot = m_plot->item.plot();
    QCOMPARE(plot->styleSheet(),
             QString::fromLatin1("background-color: white;font-family: OpenSans;font-size: 14px;"));
    QVERIFY(plot->title().isEmpty());
    QVERIFY(plot->axisEnabled(QwtPlot::yLeft));
    QVERIFY(plot->axisEnabled(QwtPlot::yRight));
    QVERIFY(plot->axisEnabled(QwtPlot::xBottom));
    QVERIFY(!plot->axisEnabled(QwtPlot::xTop));
    for (int axis = 0; axis < 3; ++axis) {
        QCOMPARE(m_plot->title(axis), QString());
        QVERIFY(plot->axisAutoScale(axis));
    }
    QCOMPARE(plot->contentsMargins(), QMargins(10, 10, 10, 10));
    QVERIFY(plot->itemList().isEmpty());
    QVERIFY(!plot->isHidden());
    QGraphicsProxyWidget *proxy = plot->graphicsProxyWidget();
    QVERIFY(proxy);
    QCOMPARE(proxy->parentItem(), graphicsParent(&m_plot->item));
    QCOMPARE(proxy->pos(), QPointF(0, 0));
    QVERIFY(!m_plot->item.dataSource());
    QVERIFY(!m_plot->item.linesEnabled(kLeft));
    QVERIFY(!m_plot->item.linesEnabled(kRight));
    QVERIFY(!m_plot->item.symbolsEnabled(kLeft));
    QVERIFY(!m_plot->item.symbolsEnabled(kRight));
}

void tst_LogViewerItem::storedPath()
{
    QCOMPARE(m_plot->item.logFilePath(), QString());
    m_plot->item.setLogFilePath(QLatin1String("somewhere.log"));
    QCOMPARE(m_plot->item.logFilePath(), QString::fromLatin1("somewhere.log"));
}

// The data source

void tst_LogViewerItem::followsTheDataSource()
{
    QSignalSpy changed(&m_plot->item, SIGNAL(dataSourceChanged()));
    QSignalSpy option(&m_plot->item, SIGNAL(logViewerViewOptionChanged()));
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.setDataSource(m_plot->log.source.data());
    QCOMPARE(m_plot->item.dataSource(), m_plot->log.source.data());
    QCOMPARE(updated.count(), 0);
    QMetaObject::invokeMethod(m_plot->log.source.data(), "graphDataUpdated");
    QCOMPARE(updated.count(), 1);
    QMetaObject::invokeMethod(m_plot->log.source.data(), "dataSetUpdated");
    QCOMPARE(updated.count(), 2);
    m_plot->item.setDataSource(m_plot->log.source.data());
    QMetaObject::invokeMethod(m_plot->log.source.data(), "graphDataUpdated");
    QCOMPARE(updated.count(), 3);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(option.count(), 0);
}

void tst_LogViewerItem::anotherDataSource()
{
    SmallLog other("N Time V|7 10:00:00 8|9 10:00:01 10");
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    other.check(0, "N");
    other.check(1, "V");
    m_plot->item.setDataSource(other.source.data());
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->log.check(1, "B");
    QMetaObject::invokeMethod(m_plot->log.source.data(), "dataSetUpdated");
    QCOMPARE(updated.count(), 0);
    m_plot->item.updatePlot();
    QCOMPARE(m_plot->curvesText(), QString::fromLatin1("V, #d90c00, lines, none, left, 7/8 9/10"));
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString::fromLatin1("N"));
}

void tst_LogViewerItem::noDataSourceAgain()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    m_plot->item.setDataSource(nullptr);
    QVERIFY(!m_plot->item.dataSource());
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->log.check(1, "B");
    QCOMPARE(updated.count(), 0);
    QCOMPARE(m_plot->curves().size(), 1);
}

void tst_LogViewerItem::sourceDiesFirst()
{
    m_plot->item.setWidth(300);
    m_plot->item.setHeight(200);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    m_plot->log.source.reset();
    QVERIFY(!m_plot->item.dataSource());
    QCOMPARE(m_plot->curvesText(),
             QString::fromLatin1("A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13"));
    m_plot->item.replot();
    QVERIFY(m_plot->isDrawn());
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.updatePlot();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(m_plot->curves().size(), 0);
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString());
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString());
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#333"));
}

void tst_LogViewerItem::withoutDataSource()
{
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.updatePlot();
    QCOMPARE(updated.count(), 1);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setSymbolsEnabled(kRight, true);
    QCOMPARE(updated.count(), 3);
    QVERIFY(m_plot->item.linesEnabled(kLeft));
    QVERIFY(m_plot->item.symbolsEnabled(kRight));
    m_plot->item.setAxisScale(kBottom, 2, 3);
    m_plot->item.setWidth(300);
    m_plot->item.setHeight(200);
    m_plot->item.replot();
    QCOMPARE(m_plot->item.axisMinScale(kBottom), 2.0);
    QCOMPARE(m_plot->item.axisMaxScale(kBottom), 3.0);
    m_plot->item.enableAutoScale(kBottom);
    QVERIFY(m_plot->item.plot()->axisAutoScale(QwtPlot::xBottom));
    m_plot->select("Obs", "A", "");
    QCOMPARE(m_plot->curves().size(), 1);
    QCOMPARE(m_plot->recorded("yleft", "", "lines"), QString::fromLatin1("unset"));
}

// Switches

void tst_LogViewerItem::switches()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.setLinesEnabled(kLeft, true);
    QVERIFY(m_plot->item.linesEnabled(kLeft));
    QVERIFY(!m_plot->item.linesEnabled(kRight));
    QVERIFY(!m_plot->item.symbolsEnabled(kLeft));
    m_plot->item.setSymbolsEnabled(kRight, true);
    QVERIFY(m_plot->item.symbolsEnabled(kRight));
    QVERIFY(!m_plot->item.linesEnabled(kRight));
    m_plot->item.setLinesEnabled(kLeft, false);
    QVERIFY(!m_plot->item.linesEnabled(kLeft));
    QVERIFY(!m_plot->item.linesEnabled(kBottom));
    QVERIFY(!m_plot->item.symbolsEnabled(kBottom));
    QCOMPARE(updated.count(), 3);
}

void tst_LogViewerItem::switchesAreWrittenBack()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setSymbolsEnabled(kLeft, false);
    m_plot->item.setLinesEnabled(kRight, false);
    m_plot->item.setSymbolsEnabled(kRight, true);
    QCOMPARE(m_plot->recorded("yleft", "", "lines"), QString::fromLatin1("true"));
    QCOMPARE(m_plot->recorded("yleft", "", "symbols"), QString::fromLatin1("false"));
    QCOMPARE(m_plot->recorded("yright", "", "lines"), QString::fromLatin1("false"));
    QCOMPARE(m_plot->recorded("yright", "", "symbols"), QString::fromLatin1("true"));
}

void tst_LogViewerItem::switchesOfNoAxis()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    const QVariantMap before = m_plot->log.source->graphDefinition();
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.setLinesEnabled(kBottom, true);
    m_plot->item.setSymbolsEnabled(anyAxis(3), true);
    QCOMPARE(updated.count(), 2);
    QCOMPARE(m_plot->log.source->graphDefinition(), before);
    QVERIFY(!m_plot->item.linesEnabled(kBottom));
    QVERIFY(!m_plot->item.symbolsEnabled(anyAxis(3)));
}

// Size

void tst_LogViewerItem::size()
{
    m_plot->item.setWidth(400);
    QCOMPARE(m_plot->item.plot()->graphicsProxyWidget()->maximumWidth(), 16777215.0);
    m_plot->item.setHeight(300);
    QGraphicsProxyWidget *proxy = m_plot->item.plot()->graphicsProxyWidget();
    QCOMPARE(proxy->minimumSize(), QSizeF(400, 300));
    QCOMPARE(proxy->maximumSize(), QSizeF(400, 300));
    QCOMPARE(proxy->size(), QSizeF(400, 300));
    QCOMPARE(m_plot->item.plot()->size(), QSize(400, 300));
}

void tst_LogViewerItem::noSizeNoRedraw()
{
    RedrawCounter counter(m_plot->item.plot());
    m_plot->item.replot();
    m_plot->item.setWidth(400);
    m_plot->item.replot();
    m_plot->item.setWidth(-5);
    m_plot->item.setHeight(300);
    m_plot->item.replot();
    QCOMPARE(counter.count, 0);
    m_plot->item.setWidth(400);
    QCOMPARE(counter.count, 1);
    m_plot->item.replot();
    QCOMPARE(counter.count, 2);
    m_plot->item.setHeight(0);
    QCOMPARE(counter.count, 2);
}

void tst_LogViewerItem::resizeFollows()
{
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setWidth(200);
    m_plot->item.setHeight(500);
    QCOMPARE(m_plot->item.plot()->size(), QSize(200, 500));
    m_plot->item.setWidth(30);
    m_plot->item.setHeight(20);
    QCOMPARE(m_plot->item.plot()->size(), QSize(30, 20));
    QVERIFY(m_plot->isDrawn());
}

QTEST_MAIN(tst_LogViewerItem)
#include "tst_LogViewerItem.moc"
