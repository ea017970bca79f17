#include "plot/LogViewerItem.h"

#include "filters/LogDataSetFilter.h"
#include "support/SmallLog.h"
#include "support/TestCompat.h"

#include <QGraphicsProxyWidget>
#include <QLayout>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>
#include <qwt_symbol.h>

#include <limits>

namespace
{

const char *const kLog = "Obs Time A B C D E F G H|"
                         "1 10:00:00 10 20 30 40 50 60 70 80|"
                         "2 10:00:01 11 21 31 41 51 61 71 81|"
                         "3 10:00:02 12 22 32 42 52 62 72 82|"
                         "4 10:00:03 13 23 33 43 53 63 73 83";

const LogViewerItem::LogViewerAxis kLeft = LogViewerItem::LeftAxis;
const LogViewerItem::LogViewerAxis kRight = LogViewerItem::RightAxis;
const LogViewerItem::LogViewerAxis kBottom = LogViewerItem::BottomAxis;

/** What scripts can pass: any number. */
LogViewerItem::LogViewerAxis anyAxis(int number)
{
    return static_cast<LogViewerItem::LogViewerAxis>(number);
}

/** A plot item that draws nothing and counts the redraws. */
class RedrawCounter : public QwtPlotItem
{
public:
    explicit RedrawCounter(QwtPlot *plot)
        : count(0)
    {
        setItemAttribute(Legend, false);
        setItemInterest(ScaleInterest, true);
        attach(plot);
        count = 0;
    }
    void draw(QPainter *, const QwtScaleMap &, const QwtScaleMap &, const QRectF &) const override
    {
    }
    void updateScaleDiv(const QwtScaleDiv &, const QwtScaleDiv &) override { ++count; }

    int count;
};

QList<QwtPlotCurve *> curvesOf(const LogViewerItem &item)
{
    QList<QwtPlotCurve *> curves;
    foreach (QwtPlotItem *plotItem, item.plot()->itemList(QwtPlotItem::Rtti_PlotCurve))
        curves << static_cast<QwtPlotCurve *>(plotItem);
    return curves;
}

QString symbolText(const QwtSymbol *symbol)
{
    if (!symbol)
        return QLatin1String("none");
    const char *style = symbol->style() == QwtSymbol::Rect ? "rect"
        : symbol->style() == QwtSymbol::Diamond            ? "diamond"
                                                           : "other";
    return QString::fromLatin1("%1 %2x%3 %4")
        .arg(QLatin1String(style))
        .arg(symbol->size().width())
        .arg(symbol->size().height())
        .arg(symbol->brush().color().name());
}

QString samplesText(const QwtPlotCurve &curve)
{
    QStringList samples;
    for (size_t i = 0; i < curve.dataSize(); ++i)
        samples << QString::fromLatin1("%1/%2").arg(curve.sample(i).x()).arg(curve.sample(i).y());
    return samples.join(QLatin1String(" "));
}

/** All there is to a curve: name, colour, style, symbol, axis, samples. */
QString curveText(const QwtPlotCurve &curve)
{
    QStringList parts;
    parts << curve.title().text() << curve.pen().color().name()
          << QLatin1String(curve.style() == QwtPlotCurve::Lines      ? "lines"
                               : curve.style() == QwtPlotCurve::Dots ? "dots"
                                                                     : "other")
          << symbolText(curve.symbol())
          << QLatin1String(curve.yAxis() == QwtPlot::yLeft        ? "left"
                               : curve.yAxis() == QwtPlot::yRight ? "right"
                                                                  : "other")
          << samplesText(curve);
    return parts.join(QLatin1String(", "));
}

QString curvesText(const LogViewerItem &item)
{
    QStringList texts;
    foreach (QwtPlotCurve *curve, curvesOf(item))
        texts << curveText(*curve);
    return texts.join(QLatin1String("; "));
}

/** Names and colours only. */
QString colorsText(const LogViewerItem &item)
{
    QStringList texts;
    foreach (QwtPlotCurve *curve, curvesOf(item))
        texts << curve->title().text() + QLatin1Char('=') + curve->pen().color().name();
    return texts.join(QLatin1String(" "));
}

/** Draws the whole plot; false when nothing comes out. */
bool drawn(const LogViewerItem &item)
{
    QImage image(item.plot()->size(), QImage::Format_RGB32);
    image.fill(0);
    item.plot()->render(&image);
    return image.pixel(1, 1) == QColor(Qt::white).rgb();
}

QString titleOf(const LogViewerItem &item, int axis)
{
    return item.plot()->axisTitle(axis).text();
}

QwtLegend *legendOf(const LogViewerItem &item)
{
    return qobject_cast<QwtLegend *>(item.plot()->legend());
}

QwtLegendLabel *labelOf(const LogViewerItem &item, QwtPlotItem *plotItem)
{
    const QList<QWidget *> widgets
        = legendOf(item)->legendWidgets(item.plot()->itemToInfo(plotItem));
    return widgets.size() == 1 ? qobject_cast<QwtLegendLabel *>(widgets.first()) : nullptr;
}

/** Whether a text like <b>x</b> is drawn with all its letters; by the room that it takes. */
bool showsMarkup(const QwtText &text)
{
    const QFont font;
    QwtText plain(text.text(), QwtText::PlainText);
    QwtText same = text;
    same.setFont(font);
    plain.setFont(font);
    return same.textSize() == plain.textSize();
}

QString textAt(const QVariantMap &definition, const char *group, const char *axis, const char *key)
{
    QVariant value = definition.value(QLatin1String(group));
    if (*axis)
        value = value.toMap().value(QLatin1String(axis));
    return value.toMap().value(QLatin1String(key), QLatin1String("unset")).toString();
}

QString scalingText(const LogDataSourceItem &source, const char *axis, const char *key)
{
    return textAt(const_cast<LogDataSourceItem &>(source).graphDefinition(), "scaling", axis, key);
}

} // namespace

/** What an axis' lower bound is when the definition changes for the first time. */
class MinAtFirstChange : public QObject
{
    Q_OBJECT

public:
    MinAtFirstChange(LogDataSourceItem *source, const QByteArray &key)
        : m_source(source)
        , m_key(key)
    {
        connect(source, SIGNAL(graphDefinitionChanged()), SLOT(note()));
    }

    QString text;

public Q_SLOTS:
    void note()
    {
        if (text.isEmpty())
            text = scalingText(*m_source, m_key, "min");
    }

private:
    LogDataSourceItem *m_source;
    QByteArray m_key;
};

class tst_LogViewerItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void legend();
    void storedPath();
    void noBaseUpdate();
    void curvesOfBothAxes_data();
    void curvesOfBothAxes();
    void curveDetails();
    void onePieceOneCurve();
    void manyPieces();
    void axisTitles();
    void titlesStayWhileAnAxisIsOff();
    void namesAreShownAsTheyAre();
    void colorsFollowTheVariables();
    void colorsStayWhileTheAxisIsOff();
    void moreThanFiveVariables();
    void sameNameOnBothAxes();
    void hexColor();
    void rangeOfHexColorAxes();
    void followsTheDataSource();
    void anotherDataSource();
    void noDataSourceAgain();
    void sourceDiesFirst();
    void withoutDataSource();
    void oneRedrawAnUpdate();
    void legendIsLaidOutAfterAnUpdate();
    void legendTapHidesOneCurve();
    void curveCheckedRedraws();
    void legendCheckedIgnoresStrangers();
    void switches();
    void switchesAreWrittenBack();
    void switchesOfNoAxis();
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
    void size();
    void noSizeNoRedraw();
    void resizeFollows();
    void awkwardValues_data();
    void awkwardValues();
    void valuesAreShared();
    void manyUpdates();

private:
    void select(const char *x, const char *left, const char *right);

    QScopedPointer<SmallLog> m_log;
    QScopedPointer<LogViewerItem> m_item;
};

void tst_LogViewerItem::init()
{
    m_log.reset(new SmallLog(kLog));
    m_item.reset(new LogViewerItem);
}

void tst_LogViewerItem::cleanup()
{
    m_item.reset();
    m_log.reset();
}

void tst_LogViewerItem::select(const char *x, const char *left, const char *right)
{
    m_item->setDataSource(m_log->source.data());
    m_log->check(0, x);
    if (*left)
        m_log->check(1, left);
    if (*right)
        m_log->check(2, right);
}

// Construction

void tst_LogViewerItem::construction()
{
    const QwtPlot *plot = m_item->plot();
    QCOMPARE(plot->styleSheet(),
             QString::fromLatin1("background-color: white;font-family: OpenSans;font-size: 14px;"));
    QVERIFY(plot->title().isEmpty());
    QVERIFY(plot->axisEnabled(QwtPlot::yLeft));
    QVERIFY(plot->axisEnabled(QwtPlot::yRight));
    QVERIFY(plot->axisEnabled(QwtPlot::xBottom));
    QVERIFY(!plot->axisEnabled(QwtPlot::xTop));
    for (int axis = 0; axis < 3; ++axis) {
        QCOMPARE(titleOf(*m_item, axis), QString());
        QVERIFY(plot->axisAutoScale(axis));
    }
    QCOMPARE(plot->contentsMargins(), QMargins(10, 10, 10, 10));
    QVERIFY(plot->itemList().isEmpty());
    QVERIFY(!plot->isHidden());
    QGraphicsProxyWidget *proxy = plot->graphicsProxyWidget();
    QVERIFY(proxy);
    QCOMPARE(proxy->parentItem(), graphicsParent(m_item.data()));
    QCOMPARE(proxy->pos(), QPointF(0, 0));
    QVERIFY(!m_item->dataSource());
    QVERIFY(!m_item->linesEnabled(kLeft));
    QVERIFY(!m_item->linesEnabled(kRight));
    QVERIFY(!m_item->symbolsEnabled(kLeft));
    QVERIFY(!m_item->symbolsEnabled(kRight));
}

void tst_LogViewerItem::legend()
{
    const QwtLegend *legend = legendOf(*m_item);
    QVERIFY(legend);
    QCOMPARE(legend->defaultItemMode(), QwtLegendData::Checkable);
    QCOMPARE(legend->font().styleStrategy(), QFont::PreferAntialias);
    m_item->setWidth(400);
    m_item->setHeight(300);
    select("Obs", "A", "");
    m_item->setLinesEnabled(kLeft, true);
    QCoreApplication::processEvents();
    QVERIFY(legend->geometry().top() >= m_item->plot()->canvas()->geometry().bottom());
}

void tst_LogViewerItem::storedPath()
{
    QCOMPARE(m_item->logFilePath(), QString());
    m_item->setLogFilePath(QLatin1String("somewhere.log"));
    QCOMPARE(m_item->logFilePath(), QString::fromLatin1("somewhere.log"));
}

// Curves

void tst_LogViewerItem::noBaseUpdate()
{
    select("Obs", "A B", "C");
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->updatePlot();
    QCOMPARE(curvesOf(*m_item).size(), 0);
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString());
    QCOMPARE(titleOf(*m_item, QwtPlot::yRight), QString());
    QCOMPARE(updated.count(), 1);
}

void tst_LogViewerItem::curvesOfBothAxes_data()
{
    QTest::addColumn<QString>("on"); // l and r for lines, L and R for symbols
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("left lines") << "l"
                                << "A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("left symbols")
        << "L"
        << "A, #d90c00, dots, rect 6x6 #d90c00, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("left both") << "lL"
                               << "A, #d90c00, lines, rect 6x6 #d90c00, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("right lines") << "r"
                                 << "B, #002e00, lines, none, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("right symbols")
        << "R"
        << "B, #002e00, dots, diamond 8x8 #002e00, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("right both")
        << "rR"
        << "B, #002e00, lines, diamond 8x8 #002e00, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("left and right") << "lR"
                                    << "A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13; "
                                       "B, #002e00, dots, diamond 8x8 #002e00, right, "
                                       "1/20 2/21 3/22 4/23";
}

void tst_LogViewerItem::curvesOfBothAxes()
{
    QFETCH(QString, on);
    QFETCH(QString, expected);
    select("Obs", "A", "B");
    m_item->setLinesEnabled(kLeft, on.contains(QLatin1Char('l')));
    m_item->setSymbolsEnabled(kLeft, on.contains(QLatin1Char('L')));
    m_item->setLinesEnabled(kRight, on.contains(QLatin1Char('r')));
    m_item->setSymbolsEnabled(kRight, on.contains(QLatin1Char('R')));
    QCOMPARE(curvesText(*m_item), expected);
}

void tst_LogViewerItem::curveDetails()
{
    select("Obs", "A", "B");
    m_item->setLinesEnabled(kLeft, true);
    m_item->setSymbolsEnabled(kRight, true);
    QCOMPARE(curvesOf(*m_item).size(), 2);
    foreach (QwtPlotCurve *curve, curvesOf(*m_item)) {
        QCOMPARE(curve->pen().widthF(), QPen(QColor(Qt::red)).widthF());
        QCOMPARE(curve->pen().style(), Qt::SolidLine);
        QVERIFY(curve->testRenderHint(QwtPlotItem::RenderAntialiased));
        QCOMPARE(curve->xAxis(), int(QwtPlot::xBottom));
        QVERIFY(curve->isVisible());
        QVERIFY(labelOf(*m_item, curve));
        QVERIFY(labelOf(*m_item, curve)->isChecked());
        QCOMPARE(labelOf(*m_item, curve)->text().text(), curve->title().text());
    }
}

void tst_LogViewerItem::onePieceOneCurve()
{
    select("Obs", "A B", "");
    m_item->setLinesEnabled(kLeft, true);
    LogDataSetFilter::Builder builder;
    builder.variable(QLatin1String("A")).filterOperator(LogDataSetFilter::NotEqual).value(11);
    m_log->source->addFilter(new LogDataSetFilter(&builder, nullptr));
    m_log->source->setObservationFrequency(1); // recomputes
    QCOMPARE(curvesText(*m_item),
             QString::fromLatin1("A, #d90c00, lines, none, left, 1/10; "
                                 "A, #d90c00, lines, none, left, 3/12 4/13; "
                                 "B, #ff0000, lines, none, left, "
                                 "1/20 2/21 3/22 4/23"));
    QVERIFY(labelOf(*m_item, curvesOf(*m_item).at(0)) != labelOf(*m_item, curvesOf(*m_item).at(1)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(legendOf(*m_item)->findChildren<QwtLegendLabel *>().size(), 3);
    QTest::mouseClick(labelOf(*m_item, curvesOf(*m_item).at(0)), Qt::LeftButton);
    QVERIFY(!curvesOf(*m_item).at(0)->isVisible());
    QVERIFY(curvesOf(*m_item).at(1)->isVisible());
}

void tst_LogViewerItem::manyPieces()
{
    QByteArray table = "Obs Time A";
    for (int i = 0; i < 1200; ++i)
        table += '|' + QByteArray::number(i) + " 0 " + QByteArray::number(i % 2);
    m_log->load(table);
    m_log->source->buildFilter(2, 4, QLatin1String("1"));
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "A", "Time");
    m_item->updatePlot();
    QCOMPARE(curvesOf(*m_item).size(), 601);
    QVERIFY(labelOf(*m_item, curvesOf(*m_item).last()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(legendOf(*m_item)->findChildren<QwtLegendLabel *>().size(), 501);
    QVERIFY(labelOf(*m_item, curvesOf(*m_item).at(499)));
    QwtPlotCurve *unlisted = curvesOf(*m_item).at(500);
    QVERIFY(!labelOf(*m_item, unlisted));
    QVERIFY(unlisted->isVisible());
    m_item->curveChecked(unlisted, false);
    QVERIFY(!unlisted->isVisible());
}

void tst_LogViewerItem::axisTitles()
{
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "C A", "B");
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString::fromLatin1("A - C"));
    QCOMPARE(titleOf(*m_item, QwtPlot::yRight), QString::fromLatin1("B"));
    m_log->uncheck(0, "Obs");
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString());
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString());
    QCOMPARE(titleOf(*m_item, QwtPlot::yRight), QString());
}

void tst_LogViewerItem::titlesStayWhileAnAxisIsOff()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    m_item->setLinesEnabled(kLeft, false);
    QCOMPARE(curvesOf(*m_item).size(), 0);
    m_log->check(1, "B");
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString::fromLatin1("A"));
    m_item->setSymbolsEnabled(kLeft, true);
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString::fromLatin1("A - B"));
}

void tst_LogViewerItem::namesAreShownAsTheyAre()
{
    m_log->load("<b>x</b> Time <i>y</i>|1 10:00:00 5|2 10:00:01 6");
    m_item->setLinesEnabled(kLeft, true);
    select("<b>x</b>", "<i>y</i>", "");
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString::fromLatin1("<b>x</b>"));
    QCOMPARE(curvesOf(*m_item).size(), 1);
    QVERIFY(showsMarkup(m_item->plot()->axisTitle(QwtPlot::xBottom)));
    QVERIFY(showsMarkup(m_item->plot()->axisTitle(QwtPlot::yLeft)));
    QVERIFY(showsMarkup(curvesOf(*m_item).first()->title()));
    QVERIFY(showsMarkup(labelOf(*m_item, curvesOf(*m_item).first())->text()));
}

// Colours

void tst_LogViewerItem::colorsFollowTheVariables()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B C", "");
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("A=#d90c00 B=#ff0000 C=#ff0700"));
    m_log->uncheck(1, "A");
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("B=#ff0000 C=#ff0700"));
    m_log->check(1, "E");
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("B=#ff0000 C=#ff0700 E=#d90c00"));
    m_log->check(1, "A");
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("A=#ff7d38 B=#ff0000 C=#ff0700 E=#d90c00"));
}

void tst_LogViewerItem::colorsStayWhileTheAxisIsOff()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B", "");
    m_item->setLinesEnabled(kLeft, false);
    m_log->uncheck(1, "A");
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#D90C00"));
    m_item->setLinesEnabled(kLeft, true);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#333"));
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("B=#ff0000"));
}

void tst_LogViewerItem::moreThanFiveVariables()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B C D E F G", "");
    QCOMPARE(colorsText(*m_item),
             QString::fromLatin1("A=#d90c00 B=#ff0000 C=#ff0700 D=#ff7d38 "
                                 "E=#ffab7e F=#333333 G=#333333"));
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("F")),
             QString::fromLatin1("#333"));
    m_log->uncheck(1, "B");
    QCOMPARE(colorsText(*m_item),
             QString::fromLatin1("A=#d90c00 C=#ff0700 D=#ff7d38 E=#ffab7e "
                                 "F=#ff0000 G=#333333"));
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("F")),
             QString::fromLatin1("#FF0000"));
}

void tst_LogViewerItem::sameNameOnBothAxes()
{
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "A B", "B");
    QCOMPARE(colorsText(*m_item), QString::fromLatin1("A=#d90c00 B=#ff0000 B=#002e00"));
}

void tst_LogViewerItem::hexColor()
{
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "A B C D E", "A B C D E");
    const char *const left[] = {"#D90C00", "#FF0000", "#FF0700", "#FF7D38", "#FFAB7E"};
    const char *const right[] = {"#002E00", "#0C6400", "#428000", "#54B100", "#BFE88F"};
    for (int i = 0; i < 5; ++i) {
        const QString name(QChar::fromLatin1(char('A' + i)));
        QCOMPARE(m_item->hexColorForAxisAndVariableName(1, name), QString::fromLatin1(left[i]));
        QCOMPARE(m_item->hexColorForAxisAndVariableName(2, name), QString::fromLatin1(right[i]));
    }
}

void tst_LogViewerItem::rangeOfHexColorAxes()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    const QString none = QLatin1String("#333");
    const QString a = QLatin1String("A");
    QCOMPARE(m_item->hexColorForAxisAndVariableName(0, a), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(0, QLatin1String("Obs")), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(2, a), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(3, a), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(-1, a), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("a")), none);
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QString()), none);
}

// The data source

void tst_LogViewerItem::followsTheDataSource()
{
    QSignalSpy changed(m_item.data(), SIGNAL(dataSourceChanged()));
    QSignalSpy option(m_item.data(), SIGNAL(logViewerViewOptionChanged()));
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->setDataSource(m_log->source.data());
    QCOMPARE(m_item->dataSource(), m_log->source.data());
    QCOMPARE(updated.count(), 0);
    QMetaObject::invokeMethod(m_log->source.data(), "graphDataUpdated");
    QCOMPARE(updated.count(), 1);
    QMetaObject::invokeMethod(m_log->source.data(), "dataSetUpdated");
    QCOMPARE(updated.count(), 2);
    m_item->setDataSource(m_log->source.data());
    QMetaObject::invokeMethod(m_log->source.data(), "graphDataUpdated");
    QCOMPARE(updated.count(), 3);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(option.count(), 0);
}

void tst_LogViewerItem::anotherDataSource()
{
    SmallLog other("N Time V|7 10:00:00 8|9 10:00:01 10");
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    other.check(0, "N");
    other.check(1, "V");
    m_item->setDataSource(other.source.data());
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_log->check(1, "B");
    QMetaObject::invokeMethod(m_log->source.data(), "dataSetUpdated");
    QCOMPARE(updated.count(), 0);
    m_item->updatePlot();
    QCOMPARE(curvesText(*m_item), QString::fromLatin1("V, #d90c00, lines, none, left, 7/8 9/10"));
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString::fromLatin1("N"));
}

void tst_LogViewerItem::noDataSourceAgain()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    m_item->setDataSource(nullptr);
    QVERIFY(!m_item->dataSource());
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_log->check(1, "B");
    QCOMPARE(updated.count(), 0);
    QCOMPARE(curvesOf(*m_item).size(), 1);
}

void tst_LogViewerItem::sourceDiesFirst()
{
    m_item->setWidth(300);
    m_item->setHeight(200);
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    m_log->source.reset();
    QVERIFY(!m_item->dataSource());
    QCOMPARE(curvesText(*m_item),
             QString::fromLatin1("A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13"));
    m_item->replot();
    QVERIFY(drawn(*m_item));
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->updatePlot();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(curvesOf(*m_item).size(), 0);
    QCOMPARE(titleOf(*m_item, QwtPlot::xBottom), QString());
    QCOMPARE(titleOf(*m_item, QwtPlot::yLeft), QString());
    QCOMPARE(m_item->hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#333"));
}

void tst_LogViewerItem::withoutDataSource()
{
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->updatePlot();
    QCOMPARE(updated.count(), 1);
    m_item->setLinesEnabled(kLeft, true);
    m_item->setSymbolsEnabled(kRight, true);
    QCOMPARE(updated.count(), 3);
    QVERIFY(m_item->linesEnabled(kLeft));
    QVERIFY(m_item->symbolsEnabled(kRight));
    m_item->setAxisScale(kBottom, 2, 3);
    m_item->setWidth(300);
    m_item->setHeight(200);
    m_item->replot();
    QCOMPARE(m_item->axisMinScale(kBottom), 2.0);
    QCOMPARE(m_item->axisMaxScale(kBottom), 3.0);
    m_item->enableAutoScale(kBottom);
    QVERIFY(m_item->plot()->axisAutoScale(QwtPlot::xBottom));
    select("Obs", "A", "");
    QCOMPARE(curvesOf(*m_item).size(), 1);
    QCOMPARE(textAt(m_log->source->graphDefinition(), "yleft", "", "lines"),
             QString::fromLatin1("unset"));
}

// Redraws and the legend

void tst_LogViewerItem::oneRedrawAnUpdate()
{
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "A B C D E", "F G");
    RedrawCounter counter(m_item->plot());
    m_item->updatePlot();
    QCOMPARE(curvesOf(*m_item).size(), 7);
    QCOMPARE(counter.count, 1);
}

void tst_LogViewerItem::legendIsLaidOutAfterAnUpdate()
{
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B C", "");
    for (int i = 0; i < 3; ++i) {
        m_item->updatePlot();
        QCoreApplication::processEvents();
        QVERIFY(legendOf(*m_item)->contentsWidget()->layout()->isEnabled());
        QRegion area;
        foreach (QwtPlotCurve *curve, curvesOf(*m_item)) {
            const QRect entry = labelOf(*m_item, curve)->geometry();
            QVERIFY(legendOf(*m_item)->contentsWidget()->rect().contains(entry));
            QVERIFY(!area.intersects(entry));
            area += entry;
        }
    }
}

void tst_LogViewerItem::legendTapHidesOneCurve()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B", "");
    QwtPlotCurve *a = curvesOf(*m_item).at(0);
    QwtPlotCurve *b = curvesOf(*m_item).at(1);
    QTest::mouseClick(labelOf(*m_item, a), Qt::LeftButton);
    QVERIFY(!a->isVisible());
    QVERIFY(b->isVisible());
    QVERIFY(!labelOf(*m_item, a)->isChecked());
    QVERIFY(labelOf(*m_item, b)->isChecked());
    QTest::mouseClick(labelOf(*m_item, a), Qt::LeftButton);
    QVERIFY(a->isVisible());
    QVERIFY(labelOf(*m_item, a)->isChecked());
    QTest::mouseClick(labelOf(*m_item, b), Qt::LeftButton);
    QVERIFY(!b->isVisible());
    m_item->updatePlot();
    QCOMPARE(curvesOf(*m_item).size(), 2);
    foreach (QwtPlotCurve *curve, curvesOf(*m_item)) {
        QVERIFY(curve->isVisible());
        QVERIFY(labelOf(*m_item, curve)->isChecked());
    }
}

void tst_LogViewerItem::curveCheckedRedraws()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B", "");
    RedrawCounter counter(m_item->plot());
    QwtPlotCurve *a = curvesOf(*m_item).at(0);
    m_item->curveChecked(a, false);
    QCOMPARE(counter.count, 1);
    QVERIFY(!a->isVisible());
    QVERIFY(!labelOf(*m_item, a)->isChecked());
    m_item->plot()->insertLegend(nullptr);
    m_item->curveChecked(a, true);
    QCOMPARE(counter.count, 2);
    QVERIFY(a->isVisible());
}

void tst_LogViewerItem::legendCheckedIgnoresStrangers()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    RedrawCounter counter(m_item->plot());
    QList<QVariant> strangers;
    strangers << QVariant() << QVariant(5) << QVariant(QLatin1String("A"))
              << QVariant::fromValue<QwtPlotItem *>(nullptr);
    foreach (const QVariant &info, strangers) {
        QVERIFY(QMetaObject::invokeMethod(m_item.data(), "legendChecked", Q_ARG(QVariant, info),
                                          Q_ARG(bool, false)));
    }
    QCOMPARE(counter.count, 0);
    QVERIFY(curvesOf(*m_item).first()->isVisible());
}

// Switches

void tst_LogViewerItem::switches()
{
    m_item->setDataSource(m_log->source.data());
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->setLinesEnabled(kLeft, true);
    QVERIFY(m_item->linesEnabled(kLeft));
    QVERIFY(!m_item->linesEnabled(kRight));
    QVERIFY(!m_item->symbolsEnabled(kLeft));
    m_item->setSymbolsEnabled(kRight, true);
    QVERIFY(m_item->symbolsEnabled(kRight));
    QVERIFY(!m_item->linesEnabled(kRight));
    m_item->setLinesEnabled(kLeft, false);
    QVERIFY(!m_item->linesEnabled(kLeft));
    QVERIFY(!m_item->linesEnabled(kBottom));
    QVERIFY(!m_item->symbolsEnabled(kBottom));
    QCOMPARE(updated.count(), 3);
}

void tst_LogViewerItem::switchesAreWrittenBack()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLinesEnabled(kLeft, true);
    m_item->setSymbolsEnabled(kLeft, false);
    m_item->setLinesEnabled(kRight, false);
    m_item->setSymbolsEnabled(kRight, true);
    const QVariantMap definition = m_log->source->graphDefinition();
    QCOMPARE(textAt(definition, "yleft", "", "lines"), QString::fromLatin1("true"));
    QCOMPARE(textAt(definition, "yleft", "", "symbols"), QString::fromLatin1("false"));
    QCOMPARE(textAt(definition, "yright", "", "lines"), QString::fromLatin1("false"));
    QCOMPARE(textAt(definition, "yright", "", "symbols"), QString::fromLatin1("true"));
}

void tst_LogViewerItem::switchesOfNoAxis()
{
    m_item->setDataSource(m_log->source.data());
    const QVariantMap before = m_log->source->graphDefinition();
    QSignalSpy updated(m_item.data(), SIGNAL(plotUpdated()));
    m_item->setLinesEnabled(kBottom, true);
    m_item->setSymbolsEnabled(anyAxis(3), true);
    QCOMPARE(updated.count(), 2);
    QCOMPARE(m_log->source->graphDefinition(), before);
    QVERIFY(!m_item->linesEnabled(kBottom));
    QVERIFY(!m_item->symbolsEnabled(anyAxis(3)));
}

// Scales

void tst_LogViewerItem::scaleIsWrittenBack_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QByteArray>("key");

    QTest::newRow("left") << int(kLeft) << QByteArray("yleft");
    QTest::newRow("right") << int(kRight) << QByteArray("yright");
    QTest::newRow("bottom") << int(kBottom) << QByteArray("xbottom");
}

void tst_LogViewerItem::scaleIsWrittenBack()
{
    QFETCH(int, axis);
    QFETCH(QByteArray, key);
    m_item->setDataSource(m_log->source.data());
    QSignalSpy changed(m_log->source.data(), SIGNAL(graphDefinitionChanged()));
    const MinAtFirstChange minAtFirstChange(m_log->source.data(), key);
    m_item->setAxisScale(anyAxis(axis), -1.5, 20);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(minAtFirstChange.text, QString::fromLatin1("unset"));
    QCOMPARE(scalingText(*m_log->source, key, "min"), QString::fromLatin1("-1.5"));
    QCOMPARE(scalingText(*m_log->source, key, "max"), QString::fromLatin1("20"));
    QCOMPARE(scalingText(*m_log->source, key, "autoscale"), QString::fromLatin1("unset"));
    QVERIFY(!m_item->plot()->axisAutoScale(axis));
    const QVariantMap scaling
        = m_log->source->graphDefinition().value(QLatin1String("scaling")).toMap();
    QCOMPARE(scaling.size(), 1);
    m_item->enableAutoScale(anyAxis(axis));
    QCOMPARE(scalingText(*m_log->source, key, "autoscale"), QString::fromLatin1("true"));
    QVERIFY(m_item->plot()->axisAutoScale(axis));
}

void tst_LogViewerItem::scaleTexts()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setAxisScale(kLeft, 0.000012345678, 1234567.0);
    QCOMPARE(scalingText(*m_log->source, "yleft", "max"), QString::fromLatin1("1.23457e+06"));
    QCOMPARE(scalingText(*m_log->source, "yleft", "min"), QString::fromLatin1("1.23457e-05"));
}

void tst_LogViewerItem::scaleShowsAfterReplot()
{
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    RedrawCounter counter(m_item->plot());
    const double before = m_item->axisMinScale(kBottom);
    QVERIFY(before <= 1.0 && m_item->axisMaxScale(kBottom) >= 4.0);
    m_item->setAxisScale(kBottom, 2, 3);
    m_item->setAxisScale(kLeft, 20, 5);
    m_item->setAxisScale(kRight, 7, 9);
    QCOMPARE(counter.count, 0);
    QCOMPARE(m_item->axisMinScale(kBottom), before);
    m_item->replot();
    QCOMPARE(counter.count, 1);
    QCOMPARE(m_item->axisMinScale(kBottom), 2.0);
    QCOMPARE(m_item->axisMaxScale(kBottom), 3.0);
    QCOMPARE(m_item->axisMinScale(kLeft), 20.0);
    QCOMPARE(m_item->axisMaxScale(kLeft), 5.0);
    QCOMPARE(m_item->axisMinScale(kRight), 7.0);
    QCOMPARE(m_item->axisMaxScale(kRight), 9.0);
    m_item->enableAutoScale(kBottom);
    QCOMPARE(counter.count, 1);
    m_item->replot();
    QCOMPARE(m_item->axisMinScale(kBottom), before);
}

void tst_LogViewerItem::scaleOfNoAxis()
{
    m_item->setDataSource(m_log->source.data());
    const QVariantMap before = m_log->source->graphDefinition();
    for (int axis = -1; axis <= 4; ++axis) {
        if (axis >= kLeft && axis <= kBottom)
            continue;
        m_item->setAxisScale(anyAxis(axis), 1, 2);
        m_item->enableAutoScale(anyAxis(axis));
        QCOMPARE(m_item->axisMinScale(anyAxis(axis)), 0.0);
        QCOMPARE(m_item->axisMaxScale(anyAxis(axis)), 0.0);
    }
    QCOMPARE(m_log->source->graphDefinition(), before);
    QVERIFY(m_item->plot()->axisAutoScale(QwtPlot::xTop));
}

void tst_LogViewerItem::unusableScales_data()
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

void tst_LogViewerItem::unusableScales()
{
    QFETCH(double, min);
    QFETCH(double, max);
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setDataSource(m_log->source.data());
    m_item->setAxisScale(kLeft, 1, 2);
    m_item->setAxisScale(kLeft, min, max);
    QCOMPARE(scalingText(*m_log->source, "yleft", "min"), QString::fromLatin1("1"));
    QCOMPARE(scalingText(*m_log->source, "yleft", "max"), QString::fromLatin1("2"));
    m_item->replot();
    QCOMPARE(m_item->axisMinScale(kLeft), 1.0);
    QCOMPARE(m_item->axisMaxScale(kLeft), 2.0);
}

void tst_LogViewerItem::extremeScales_data()
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

void tst_LogViewerItem::extremeScales()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, shownMin);
    QFETCH(double, shownMax);
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setLinesEnabled(kLeft, true);
    m_item->setSymbolsEnabled(kLeft, true);
    select("Obs", "A", "");
    m_item->setAxisScale(kLeft, min, max);
    m_item->setAxisScale(kBottom, min, max);
    m_item->replot();
    QVERIFY(drawn(*m_item));
    QCOMPARE(m_item->axisMinScale(kLeft), shownMin);
    QCOMPARE(m_item->axisMaxScale(kLeft), shownMax);
    QCOMPARE(scalingText(*m_log->source, "yleft", "min"), QString::number(min));
    QCOMPARE(scalingText(*m_log->source, "yleft", "max"), QString::number(max));
}

namespace
{

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

} // namespace

void tst_LogViewerItem::handlerDeletesSourceWhileScaleIsSet()
{
    m_item->setDataSource(m_log->source.data());
    SourceDeleter deleter(m_log.data());
    m_item->setAxisScale(kLeft, 1, 2);
    QVERIFY(!m_log->source);
    QVERIFY(!m_item->dataSource());
}

void tst_LogViewerItem::autoscale()
{
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setLinesEnabled(kLeft, true);
    m_item->setLinesEnabled(kRight, true);
    select("Obs", "A", "H");
    QVERIFY(m_item->axisMinScale(kLeft) <= 10 && m_item->axisMinScale(kLeft) > 5);
    QVERIFY(m_item->axisMaxScale(kLeft) >= 13 && m_item->axisMaxScale(kLeft) < 20);
    QVERIFY(m_item->axisMinScale(kRight) <= 80 && m_item->axisMinScale(kRight) > 70);
    QVERIFY(m_item->axisMaxScale(kRight) >= 83 && m_item->axisMaxScale(kRight) < 90);
}

// Size

void tst_LogViewerItem::size()
{
    m_item->setWidth(400);
    QCOMPARE(m_item->plot()->graphicsProxyWidget()->maximumWidth(), 16777215.0);
    m_item->setHeight(300);
    QGraphicsProxyWidget *proxy = m_item->plot()->graphicsProxyWidget();
    QCOMPARE(proxy->minimumSize(), QSizeF(400, 300));
    QCOMPARE(proxy->maximumSize(), QSizeF(400, 300));
    QCOMPARE(proxy->size(), QSizeF(400, 300));
    QCOMPARE(m_item->plot()->size(), QSize(400, 300));
}

void tst_LogViewerItem::noSizeNoRedraw()
{
    RedrawCounter counter(m_item->plot());
    m_item->replot();
    m_item->setWidth(400);
    m_item->replot();
    m_item->setWidth(-5);
    m_item->setHeight(300);
    m_item->replot();
    QCOMPARE(counter.count, 0);
    m_item->setWidth(400);
    QCOMPARE(counter.count, 1);
    m_item->replot();
    QCOMPARE(counter.count, 2);
    m_item->setHeight(0);
    QCOMPARE(counter.count, 2);
}

void tst_LogViewerItem::resizeFollows()
{
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setWidth(200);
    m_item->setHeight(500);
    QCOMPARE(m_item->plot()->size(), QSize(200, 500));
    m_item->setWidth(30);
    m_item->setHeight(20);
    QCOMPARE(m_item->plot()->size(), QSize(30, 20));
    QVERIFY(drawn(*m_item));
}

// Data as it comes

void tst_LogViewerItem::awkwardValues_data()
{
    QTest::addColumn<QByteArray>("table");

    QTest::newRow("nan") << QByteArray("Obs Time A|1 0 1|2 0 nan|3 0 3");
    QTest::newRow("all nan") << QByteArray("Obs Time A|1 0 nan|2 0 nan");
    QTest::newRow("inf") << QByteArray("Obs Time A|1 0 1|2 0 inf|3 0 3");
    QTest::newRow("all inf") << QByteArray("Obs Time A|1 0 inf|2 0 -inf");
    QTest::newRow("inf in x") << QByteArray("Obs Time A|1 0 1|inf 0 2|nan 0 3");
    QTest::newRow("huge") << QByteArray("Obs Time A|1 0 1e308|2 0 -1e308|3 0 1e150|4 0 -1e150");
    QTest::newRow("tiny") << QByteArray("Obs Time A|1 0 0|2 0 5e-324|3 0 1e-310");
    QTest::newRow("hardly apart") << QByteArray("Obs Time A|1 0 1|2 0 1.0000000000000002");
    QTest::newRow("hardly apart, far off")
        << QByteArray("Obs Time A|1 0 1e15|2 0 1000000000000001");
    QTest::newRow("one sample") << QByteArray("Obs Time A|1 0 7");
    QTest::newRow("all the same") << QByteArray("Obs Time A|1 0 7|1 0 7|1 0 7");
}

void tst_LogViewerItem::awkwardValues()
{
    QFETCH(QByteArray, table);
    m_log->load(table);
    m_item->setWidth(400);
    m_item->setHeight(300);
    m_item->setLinesEnabled(kLeft, true);
    m_item->setSymbolsEnabled(kLeft, true);
    select("Obs", "A", "");
    QCOMPARE(curvesOf(*m_item).size(), 1);
    QVERIFY(drawn(*m_item));
    for (int axis = 0; axis < 3; ++axis) {
        const double width
            = m_item->axisMaxScale(anyAxis(axis)) - m_item->axisMinScale(anyAxis(axis));
        QVERIFY(width > 0);
        QVERIFY(width <= 1e151);
    }
    m_item->setLinesEnabled(kLeft, false);
    QVERIFY(drawn(*m_item));
}

void tst_LogViewerItem::valuesAreShared()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A", "");
    const QVector<double> values = m_log->source->YLeftData().value(QLatin1String("A")).first();
    m_log->source.reset();
    m_item->replot();
    QCOMPARE(samplesText(*curvesOf(*m_item).first()), QString::fromLatin1("1/10 2/11 3/12 4/13"));
    QCOMPARE(values.size(), 4);
}

void tst_LogViewerItem::manyUpdates()
{
    m_item->setLinesEnabled(kLeft, true);
    select("Obs", "A B", "C");
    for (int i = 0; i < 200; ++i)
        m_item->updatePlot();
    QCOMPARE(curvesOf(*m_item).size(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(legendOf(*m_item)->findChildren<QwtLegendLabel *>().size(), 2);
}

QTEST_MAIN(tst_LogViewerItem)
#include "tst_LogViewerItem.moc"
