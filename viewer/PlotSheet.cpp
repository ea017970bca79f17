#include "viewer/PlotSheet.h"

#include "plot/CurveSeries.h"
#include "plot/LogPlotCurve.h"

#include <QPainter>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_symbol.h>

#include <algorithm>

namespace
{

// Enough for a curve to leave out what can't be told apart, few enough to hear of a cancel soon.
const int kSamplesAtOnce = 1 << 15;

/** Hides some items, which a plot notices only with its next redraw. */
class HiddenItems
{
public:
    explicit HiddenItems(const QList<LogPlotCurve *> &items)
        : m_items(items)
    {
        setVisible(false);
    }
    ~HiddenItems() { setVisible(true); }

private:
    Q_DISABLE_COPY(HiddenItems)

    void setVisible(bool isVisible)
    {
        for (LogPlotCurve *item : m_items)
            item->setVisible(isVisible);
    }

    const QList<LogPlotCurve *> m_items;
};

QList<LogPlotCurve *> visibleCurves(const QwtPlot &plot)
{
    QList<LogPlotCurve *> curves;
    const QwtPlotItemList items = plot.itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        if (item->isVisible())
            curves.append(static_cast<LogPlotCurve *>(item));
    }
    return curves;
}

/** Symbols keep no pixmaps: these are the main thread's. */
QwtSymbol *copyOf(const QwtSymbol &symbol)
{
    auto *copy = new QwtSymbol(symbol.style(), symbol.brush(), symbol.pen(), symbol.size());
    copy->setCachePolicy(QwtSymbol::NoCache);
    return copy;
}

LogPlotCurve *copyOf(const LogPlotCurve &curve)
{
    auto *copy = new LogPlotCurve(curve.title());
    copy->setSeries(new CurveSeries(curve.curveSeries()));
    copy->setPen(curve.pen());
    copy->setStyle(curve.style());
    copy->setRenderHint(QwtPlotItem::RenderAntialiased,
                        curve.testRenderHint(QwtPlotItem::RenderAntialiased));
    if (curve.symbol())
        copy->setSymbol(copyOf(*curve.symbol()));
    return copy;
}

/** Lines that ascend are painted in no time, and best as a whole. */
bool isQuick(const LogPlotCurve &curve)
{
    const QVector<CurveSeries::Run> &runs = curve.curveSeries().runs();
    return !curve.symbol() && curve.style() == QwtPlotCurve::Lines
        && std::all_of(runs.begin(), runs.end(),
                       [](const CurveSeries::Run &run) { return run.isAscending; });
}

} // namespace

/** Draws a plot without its curves, which it takes for the sheet instead. */
class PlotSheet::Recorder : public QwtPlotRenderer
{
public:
    explicit Recorder(PlotSheet *sheet)
        : m_sheet(sheet)
    {
    }

    void renderCanvas(const QwtPlot *plot, QPainter *painter, const QRectF &canvas,
                      const QwtScaleMap *maps) const override
    {
        m_sheet->m_canvas = canvas;
        m_sheet->m_transform = painter->worldTransform();
        const QList<LogPlotCurve *> curves = visibleCurves(*plot);
        for (const LogPlotCurve *curve : curves)
            m_sheet->addCurve(*curve, maps);
        const HiddenItems hidden(curves);
        QwtPlotRenderer::renderCanvas(plot, painter, canvas, maps);
    }

private:
    PlotSheet *m_sheet;
};

PlotSheet::PlotSheet(QwtPlot *plot, const QSize &size)
{
    const bool wasAutomatic = plot->autoReplot();
    plot->setAutoReplot(false);
    QPainter painter(&m_frame);
    Recorder(this).render(plot, &painter, QRectF(QPointF(), size));
    painter.end();
    plot->setAutoReplot(wasAutomatic);
}

void PlotSheet::addCurve(const LogPlotCurve &curve, const QwtScaleMap *maps)
{
    m_curves.append({QSharedPointer<const LogPlotCurve>(copyOf(curve)), maps[curve.xAxis()],
                     maps[curve.yAxis()]});
}

bool PlotSheet::paint(QPainter *painter, const Watcher &watcher) const
{
    paintFrame(painter);
    painter->save();
    painter->setWorldTransform(m_transform, true);
    painter->setClipRect(m_canvas);
    const double all = qMax(1.0, samples());
    double painted = 0;
    const auto goesOn = [&](int count) {
        painted += count;
        return !watcher || watcher(painted / all);
    };
    const bool isPainted = std::all_of(m_curves.begin(), m_curves.end(), [&](const Curve &curve) {
        return paintCurve(painter, curve, goesOn);
    });
    painter->restore();
    return isPainted;
}

/** Pictures would keep their size in inches, but what counts here are pixels. */
void PlotSheet::paintFrame(QPainter *painter) const
{
    const QPaintDevice *device = painter->device();
    painter->save();
    painter->scale(double(m_frame.logicalDpiX()) / device->logicalDpiX(),
                   double(m_frame.logicalDpiY()) / device->logicalDpiY());
    painter->drawPicture(0, 0, m_frame);
    painter->restore();
}

double PlotSheet::samples() const
{
    double count = 0;
    for (const Curve &curve : m_curves)
        count += double(curve.curve->dataSize());
    return count;
}

/** The parts of a line meet in a sample. */
bool PlotSheet::paintCurve(QPainter *painter, const Curve &curve,
                           const std::function<bool(int)> &goesOn) const
{
    painter->setRenderHint(QPainter::Antialiasing,
                           curve.curve->testRenderHint(QwtPlotItem::RenderAntialiased));
    const int last = int(curve.curve->dataSize()) - 1;
    const int step = isQuick(*curve.curve) ? qMax(1, last) : kSamplesAtOnce;
    int from = 0;
    do {
        const int to = qMin(last, from + step);
        curve.curve->drawSeries(painter, curve.xMap, curve.yMap, m_canvas, from, to);
        if (!goesOn(to - from))
            return false;
        from = to;
    } while (from < last);
    return true;
}
