#include "plot/PlotFixture.h"

#include <qwt_scale_div.h>

#include <limits>

/** What an axis' lower bound is when the definition changes for the first time. */
class MinAtFirstChange : public QObject
{
    Q_OBJECT

public:
    MinAtFirstChange(PlotFixture *plot, const QByteArray &key)
        : m_plot(plot)
        , m_key(key)
    {
        connect(plot->log.source.data(), SIGNAL(graphDefinitionChanged()), SLOT(note()));
    }

    QString text;

public Q_SLOTS:
    void note()
    {
        if (text.isEmpty())
            text = m_plot->scaling(m_key, "min");
    }

private:
    PlotFixture *m_plot;
    QByteArray m_key;
};

class SourceDeleter : public QObject
{
    Q_OBJECT

public:
    explicit SourceDeleter(SmallLog *log)
        : m_log(log)
    {
        connect(log->source.data(), SIGNAL(graphDefinitionChanged()), SLOT(deleteSource()));
    }

private slots:
    void deleteSource() { m_log->source.reset(); }

private:
    SmallLog *m_log;
};

/** Scales that are fixed, and those that follow the data. */
class tst_LogViewerItemScales : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void scaleIsWrittenBack_data();
    void scaleIsWrittenBack();
    void scaleTexts();
    void scaleShowsAfterReplot();
    void scaleOfNoAxis();
    void unusableScales_data();
    void unusableScales();
    void extremeScales_data();
    void extremeScales();
    void handlerDeletesSourceWhileScaleIsSet();
    void autoscale();

private:
    QScopedPointer<PlotFixture> m_plot;
};

void tst_LogViewerItemScales::init()
{
    m_plot.reset(new PlotFixture);
}

void tst_LogViewerItemScales::cleanup()
{
    m_plot.reset();
}

void tst_LogViewerItemScales::scaleIsWrittenBack_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QByteArray>("key");

    QTest::newRow("left") << int(kLeft) << QByteArray("yleft");
    QTest::newRow("right") << int(kRight) << QByteArray("yright");
    QTest::newRow("bottom") << int(kBottom) << QByteArray("xbottom");
}

void tst_LogViewerItemScales::scaleIsWrittenBack()
{
    QFETCH(int, axis);
    QFETCH(QByteArray, key);
    m_plot->item.setDataSource(m_plot->log.source.data());
    QSignalSpy changed(m_plot->log.source.data(), SIGNAL(graphDefinitionChanged()));
    const MinAtFirstChange minAtFirstChange(m_plot.data(), key);
    m_plot->item.setAxisScale(anyAxis(axis), -1.5, 20);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(minAtFirstChange.text, QString::fromLatin1("unset"));
    QCOMPARE(m_plot->scaling(key, "min"), QString::fromLatin1("-1.5"));
    QCOMPARE(m_plot->scaling(key, "max"), QString::fromLatin1("20"));
    QCOMPARE(m_plot->scaling(key, "autoscale"), QString::fromLatin1("unset"));
    QVERIFY(!m_plot->item.plot()->axisAutoScale(axis));
    const QVariantMap scaling
        = m_plot->log.source->graphDefinition().value(QLatin1String("scaling")).toMap();
    QCOMPARE(scaling.size(), 1);
    m_plot->item.enableAutoScale(anyAxis(axis));
    QCOMPARE(m_plot->scaling(key, "autoscale"), QString::fromLatin1("true"));
    QVERIFY(m_plot->item.plot()->axisAutoScale(axis));
}

void tst_LogViewerItemScales::scaleTexts()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    m_plot->item.setAxisScale(kLeft, 0.000012345678, 1234567.0);
    QCOMPARE(m_plot->scaling("yleft", "max"), QString::fromLatin1("1.23457e+06"));
    QCOMPARE(m_plot->scaling("yleft", "min"), QString::fromLatin1("1.23457e-05"));
}

void tst_LogViewerItemScales::scaleShowsAfterReplot()
{
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    RedrawCounter counter(m_plot->item.plot());
    const double before = m_plot->item.axisMinScale(kBottom);
    QVERIFY(before <= 1.0 && m_plot->item.axisMaxScale(kBottom) >= 4.0);
    m_plot->item.setAxisScale(kBottom, 2, 3);
    m_plot->item.setAxisScale(kLeft, 20, 5);
    m_plot->item.setAxisScale(kRight, 7, 9);
    QCOMPARE(counter.count, 0);
    QCOMPARE(m_plot->item.axisMinScale(kBottom), before);
    m_plot->item.replot();
    QCOMPARE(counter.count, 1);
    QCOMPARE(m_plot->item.axisMinScale(kBottom), 2.0);
    QCOMPARE(m_plot->item.axisMaxScale(kBottom), 3.0);
    QCOMPARE(m_plot->item.axisMinScale(kLeft), 20.0);
    QCOMPARE(m_plot->item.axisMaxScale(kLeft), 5.0);
    QCOMPARE(m_plot->item.axisMinScale(kRight), 7.0);
    QCOMPARE(m_plot->item.axisMaxScale(kRight), 9.0);
    m_plot->item.enableAutoScale(kBottom);
    QCOMPARE(counter.count, 1);
    m_plot->item.replot();
    QCOMPARE(m_plot->item.axisMinScale(kBottom), before);
}

void tst_LogViewerItemScales::scaleOfNoAxis()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    const QVariantMap before = m_plot->log.source->graphDefinition();
    for (int axis = -1; axis <= 4; ++axis) {
        if (axis >= kLeft && axis <= kBottom)
            continue;
        m_plot->item.setAxisScale(anyAxis(axis), 1, 2);
        m_plot->item.enableAutoScale(anyAxis(axis));
        QCOMPARE(m_plot->item.axisMinScale(anyAxis(axis)), 0.0);
        QCOMPARE(m_plot->item.axisMaxScale(anyAxis(axis)), 0.0);
    }
    QCOMPARE(m_plot->log.source->graphDefinition(), before);
    QVERIFY(m_plot->item.plot()->axisAutoScale(QwtPlot::xTop));
}

void tst_LogViewerItemScales::unusableScales_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();

    QTest::newRow("nan min") << nan << 1.0;
    QTest::newRow("nan max") << 1.0 << nan;
    QTest::newRow("both nan") << nan << nan;
    QTest::newRow("inf") << 0.0 << inf;
    QTest::newRow("-inf") << -inf << 0.0;
    QTest::newRow("inf twice") << inf << inf;
    QTest::newRow("too far apart") << -1e308 << 1e308;
    QTest::newRow("equal, with no room around") << 1.7e308 << 1.7e308;
}

void tst_LogViewerItemScales::unusableScales()
{
    QFETCH(double, min);
    QFETCH(double, max);
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setDataSource(m_plot->log.source.data());
    m_plot->item.setAxisScale(kLeft, 1, 2);
    m_plot->item.setAxisScale(kLeft, min, max);
    QCOMPARE(m_plot->scaling("yleft", "min"), QString::fromLatin1("1"));
    QCOMPARE(m_plot->scaling("yleft", "max"), QString::fromLatin1("2"));
    m_plot->item.replot();
    QCOMPARE(m_plot->item.axisMinScale(kLeft), 1.0);
    QCOMPARE(m_plot->item.axisMaxScale(kLeft), 2.0);
}

void tst_LogViewerItemScales::extremeScales_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("shownMin");
    QTest::addColumn<double>("shownMax");
    const double next = 1 + std::numeric_limits<double>::epsilon();

    QTest::newRow("equal") << 5.0 << 5.0 << 2.5 << 7.5;
    QTest::newRow("equal, negative") << -4.0 << -4.0 << -6.0 << -2.0;
    QTest::newRow("both zero") << 0.0 << 0.0 << -0.5 << 0.5;
    QTest::newRow("equal and huge") << 1e308 << 1e308 << 5e307 << 1.5e308;
    QTest::newRow("equal and least of all") << 5e-324 << 5e-324 << -0.5 << 0.5;
    QTest::newRow("equal and tiny") << 1e-300 << 1e-300 << 5e-301 << 1.5e-300;
    QTest::newRow("next to each other") << 1.0 << next << 1.0 << next;
    QTest::newRow("least of all") << 0.0 << 5e-324 << 0.0 << 5e-324;
    QTest::newRow("huge") << 0.0 << 1.7e308 << 0.0 << 1.7e308;
    QTest::newRow("huge, backwards") << 1e300 << -1e300 << 1e300 << -1e300;
}

void tst_LogViewerItemScales::extremeScales()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, shownMin);
    QFETCH(double, shownMax);
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setSymbolsEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    m_plot->item.setAxisScale(kLeft, min, max);
    m_plot->item.setAxisScale(kBottom, min, max);
    m_plot->item.replot();
    QVERIFY(m_plot->isDrawn());
    QCOMPARE(m_plot->item.axisMinScale(kLeft), shownMin);
    QCOMPARE(m_plot->item.axisMaxScale(kLeft), shownMax);
    QCOMPARE(m_plot->scaling("yleft", "min"), QString::number(min));
    QCOMPARE(m_plot->scaling("yleft", "max"), QString::number(max));
}

void tst_LogViewerItemScales::handlerDeletesSourceWhileScaleIsSet()
{
    m_plot->item.setDataSource(m_plot->log.source.data());
    SourceDeleter deleter(&m_plot->log);
    m_plot->item.setAxisScale(kLeft, 1, 2);
    QVERIFY(!m_plot->log.source);
    QVERIFY(!m_plot->item.dataSource());
}

void tst_LogViewerItemScales::autoscale()
{
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "A", "H");
    QVERIFY(m_plot->item.axisMinScale(kLeft) <= 10 && m_plot->item.axisMinScale(kLeft) > 5);
    QVERIFY(m_plot->item.axisMaxScale(kLeft) >= 13 && m_plot->item.axisMaxScale(kLeft) < 20);
    QVERIFY(m_plot->item.axisMinScale(kRight) <= 80 && m_plot->item.axisMinScale(kRight) > 70);
    QVERIFY(m_plot->item.axisMaxScale(kRight) >= 83 && m_plot->item.axisMaxScale(kRight) < 90);
}

QTEST_MAIN(tst_LogViewerItemScales)
#include "tst_LogViewerItemScales.moc"
