#include "bench/BenchmarkSize.h"
#include "plot/LogPlotCurve.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

#include <cmath>

namespace
{

const int kWidth = 1280;
const int kHeight = 800;

int sampleCount()
{
    return BenchmarkSize::rows();
}

/** A slow wave with noise on it, as a log's variable has. */
QVector<double> noisyWave(int count)
{
    QVector<double> values(count);
    unsigned seed = 1;
    for (int i = 0; i < count; ++i) {
        seed = seed * 1664525U + 1013904223U;
        values[i] = 20 * std::sin(i * 25.0 / count) + (seed >> 16) / 65536.0;
    }
    return values;
}

QVector<double> steps(int count)
{
    QVector<double> values(count);
    for (int i = 0; i < count; ++i)
        values[i] = i;
    return values;
}

/** Draws a plot with one antialiased curve of lines, over and over. */
void redraw(benchmark::State &state, QwtPlotCurve *curve)
{
    QwtPlot plot;
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(&plot);
    plot.resize(kWidth, kHeight);
    plot.replot();
    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    QwtPlotRenderer renderer;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        image.fill(Qt::white);
        QPainter painter(&image);
        renderer.render(&plot, &painter, image.rect());
    }
    state.SetItemsProcessed(state.iterations() * sampleCount());
}

void redrawPlainCurve(benchmark::State &state)
{
    QwtPlotCurve *curve = new QwtPlotCurve(QLatin1String("plain"));
    curve->setSamples(steps(sampleCount()), noisyWave(sampleCount()));
    redraw(state, curve);
}

void redrawLogCurve(benchmark::State &state)
{
    LogPlotCurve *curve = new LogPlotCurve(QwtText(QLatin1String("log")));
    curve->setData(steps(sampleCount()), noisyWave(sampleCount()));
    redraw(state, curve);
}

} // namespace

BENCHMARK(redrawPlainCurve)->Name("redraw/yardstick/qwt_curve")->Unit(benchmark::kMillisecond);
BENCHMARK(redrawLogCurve)->Name("redraw/log_curve")->Unit(benchmark::kMillisecond);
