#include "bench/BenchmarkSize.h"
#include "bench/SizedSource.h"
#include "datasource/LogDataSourceItem.h"
#include "plot/LogViewerItem.h"

#include <benchmark/benchmark.h>

#include <QImage>

#include <qwt_plot.h>

namespace
{

const QSize kSize(1280, 800);
const int kFirstMeasured = 2;
const int kColumns = 20;

/** The plot item with all 18 measured variables, half of them on each side. */
class FullPlot
{
public:
    FullPlot()
        : m_source(SizedSource::withRows(BenchmarkSize::rows()))
        , m_image(kSize, QImage::Format_RGB32)
    {
        m_view.setDataSource(m_source);
        m_view.setSize(kSize);
        m_view.setLinesEnabled(LogViewerItem::LeftAxis, true);
        m_view.setLinesEnabled(LogViewerItem::RightAxis, true);
        m_source->updateVariableSelection(0, 0, true);
        for (int column = kFirstMeasured; column < kColumns; ++column)
            m_source->updateVariableSelection(1 + column % 2, column, true);
    }
    ~FullPlot()
    {
        for (int column = 0; column < kColumns; ++column) {
            for (int axis = 0; axis < 3; ++axis)
                m_source->updateVariableSelection(axis, column, false);
        }
    }

    /** Shows so much of the log, both ends told as parts of its length, as a frame on screen. */
    void show(double begin, double end)
    {
        const double rows = BenchmarkSize::rows();
        m_view.setAxisScale(LogViewerItem::BottomAxis, begin * rows, end * rows);
        m_view.replot();
        m_view.plot()->render(&m_image);
    }

private:
    LogDataSourceItem *m_source;
    LogViewerItem m_view;
    QImage m_image;
};

/** Pans to and fro, the window as long as @p part of the log. */
void pan(benchmark::State &state, double part)
{
    FullPlot plot;
    int step = 0;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        const double begin = (++step % 50) * 0.02 * (1 - part);
        plot.show(begin, begin + part);
    }
}

void panAll(benchmark::State &state)
{
    pan(state, 0.9);
}

void panPart(benchmark::State &state)
{
    pan(state, 0.05);
}

void zoom(benchmark::State &state)
{
    FullPlot plot;
    double part = 1;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        part = part > 0.001 ? part * 0.9 : 1;
        plot.show(0.5 - part / 2, 0.5 + part / 2);
    }
}

} // namespace

BENCHMARK(panAll)->Name("pan/nearly_all")->Unit(benchmark::kMillisecond);
BENCHMARK(panPart)->Name("pan/a_twentieth")->Unit(benchmark::kMillisecond);
BENCHMARK(zoom)->Name("pan/zoom")->Unit(benchmark::kMillisecond);
