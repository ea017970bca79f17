#include "viewer/RowJump.h"

#include "plot/CurveSeries.h"
#include "viewer/PlottedData.h"
#include "viewer/RowExclusion.h"

#include <qwt_plot.h>

#include <algorithm>
#include <cmath>

namespace
{

const double kSamePixel = 0.5;

/** The rows of the log that a curve's samples come from: pieces in a row, cut at what is left out.
 */
class CurveRows
{
public:
    CurveRows(LogDataSourceItem *source, const PlotCurve &curve)
        : m_series(curve.series())
        , m_rows(PlottedData(source).rows())
    {
        const bool isWhole = m_series.size() == 1 && int(m_series.first()->size()) == m_rows.size();
        if (!isWhole)
            dropGaps(PlottedData(source), curve);
    }

    int rowOf(const Sample &sample) const
    {
        return m_rows.value(isComplete() && sample.isValid() ? placeOf(sample) : -1, -1);
    }
    Sample sampleOf(int row) const
    {
        const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), row);
        return isComplete() && found != m_rows.end() && *found == row
            ? sampleAt(int(found - m_rows.begin()))
            : Sample();
    }

private:
    void dropGaps(const PlottedData &data, const PlotCurve &curve)
    {
        const PlottedData::Column column = data.curve(curve.axis == QwtPlot::yRight, curve.name);
        if (!column.isValid())
            return;
        const QStringList texts = data.texts(column, m_rows, true);
        QVector<int> kept;
        for (int i = 0; i < texts.size(); ++i) {
            if (!texts.at(i).isNull())
                kept.append(m_rows.at(i));
        }
        m_rows = kept;
    }
    /** Not so where two variables of one name make one curve. */
    bool isComplete() const
    {
        int size = 0;
        for (const CurveSeries *series : m_series)
            size += int(series->size());
        return size == m_rows.size();
    }
    int placeOf(const Sample &sample) const
    {
        int place = sample.index;
        for (int piece = 0; piece < sample.piece; ++piece)
            place += int(m_series.at(piece)->size());
        return place;
    }
    Sample sampleAt(int place) const
    {
        Sample sample;
        for (int piece = 0; piece < m_series.size(); ++piece) {
            const int size = int(m_series.at(piece)->size());
            if (place < size) {
                sample.piece = piece;
                sample.index = place;
                sample.x = m_series.at(piece)->x()[place];
                sample.y = m_series.at(piece)->y()[place];
                break;
            }
            place -= size;
        }
        return sample;
    }

    QList<const CurveSeries *> m_series;
    QVector<int> m_rows;
};

/** Moves a range, as wide as it is, so that a value outside of it is in its middle. */
bool centre(AxisRange *range, double value)
{
    const double low = qMin(range->min, range->max);
    const double high = qMax(range->min, range->max);
    if (value >= low && value <= high)
        return false;
    const double way = value - (low + high) / 2;
    range->isAuto = false;
    range->min += way;
    range->max += way;
    return true;
}

} // namespace

RowJump::RowJump(QObject *parent)
    : QObject(parent)
{
}

void RowJump::setReadings(CurveReadings *readings)
{
    if (readings == m_readings)
        return;
    m_readings = readings;
    emit readingsChanged();
}

LogDataSourceItem *RowJump::source() const
{
    PlotNavigator *navigator = m_readings ? m_readings->navigator() : nullptr;
    return navigator && navigator->view() ? navigator->view()->dataSource() : nullptr;
}

int RowJump::rowAt(int spot) const
{
    if (!source())
        return -1;
    const CurveReadings::Pick pick = m_readings->pick(spot);
    return pick.sample.isValid() ? CurveRows(source(), pick.curve).rowOf(pick.sample) : -1;
}

int RowJump::currentRow() const
{
    for (int spot : {CurveReadings::Cursor, CurveReadings::A, CurveReadings::B}) {
        const int row = rowAt(spot);
        if (row >= 0)
            return row;
    }
    return -1;
}

bool RowJump::show(int row)
{
    if (!source())
        return false;
    const QList<PlotCurve> curves = PlotCurves::of(*m_readings->navigator()->view()->plot());
    for (const PlotCurve &curve : curves) {
        if (!curve.isVisible())
            continue;
        const Sample sample = CurveRows(source(), curve).sampleOf(row);
        if (!std::isfinite(sample.x) || !std::isfinite(sample.y) || !sample.isValid())
            continue;
        bringIntoView(sample.x, curve.axis, sample.y);
        const PlotNavigator *navigator = m_readings->navigator();
        const QPointF at(navigator->toPixelX(sample.x), navigator->toPixelY(curve.axis, sample.y));
        m_readings->place(freeMarker(at.x()), at);
        m_readings->update();
        return true;
    }
    return false;
}

void RowJump::bringIntoView(double x, int axis, double y)
{
    PlotNavigator *navigator = m_readings->navigator();
    PlotScales scales = navigator->scales();
    const bool isMovedAlong = centre(&scales[QwtPlot::xBottom], x);
    const bool isMovedUp = centre(&scales[axis], y);
    const int vertical = axis == QwtPlot::yLeft ? PlotNavigator::Left : PlotNavigator::Right;
    navigator->beginStep();
    navigator->show(scales,
                    (isMovedAlong ? PlotNavigator::Bottom : PlotNavigator::NoAxes)
                        | (isMovedUp ? vertical : PlotNavigator::NoAxes));
}

/** One that is there already is enough. */
int RowJump::freeMarker(double pixel) const
{
    if (m_readings->hasB() && std::fabs(m_readings->pixelB() - pixel) < kSamePixel)
        return CurveReadings::B;
    const bool isThereA
        = m_readings->hasA() && std::fabs(m_readings->pixelA() - pixel) < kSamePixel;
    return m_readings->hasA() && !isThereA && !m_readings->hasB() ? CurveReadings::B
                                                                  : CurveReadings::A;
}

void RowJump::exclude(int row)
{
    if (source() && row >= 0)
        RowExclusion::set(source()->tableModel(), {row}, true);
}
