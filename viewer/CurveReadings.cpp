#include "viewer/CurveReadings.h"

#include "viewer/ClockTime.h"
#include "viewer/CurveColors.h"
#include "viewer/PlottedData.h"

#include <QLocale>

#include <qwt_plot.h>

#include <algorithm>
#include <cmath>

namespace
{

// Readings that take this long wait for longer, so that the pointer does not stick.
const int kQuickUpdate = 10;
const int kLongestPause = 250;

// Of what is computed from values, beyond which there is mostly rounding.
const int kDerivedDigits = 7;

QString shortest(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString derived(double value)
{
    return QString::number(value, 'g', kDerivedDigits);
}

} // namespace

CurveReadings::CurveReadings(QObject *parent)
    : QAbstractListModel(parent)
    , m_xClockBase(-1)
    , m_isSpotRead{false, false, false}
{
    m_update.setSingleShot(true);
    connect(&m_update, &QTimer::timeout, this, &CurveReadings::read);
}

void CurveReadings::setNavigator(PlotNavigator *navigator)
{
    if (navigator == m_navigator || !navigator)
        return;
    m_navigator = navigator;
    connect(navigator, &PlotNavigator::viewChanged, this, &CurveReadings::followView);
    connect(navigator, &PlotNavigator::scalesChanged, this, &CurveReadings::schedule);
    followView();
    emit navigatorChanged();
}

void CurveReadings::followView()
{
    if (!view())
        return;
    connect(view(), &LogViewerItem::plotUpdated, this, &CurveReadings::rebuild);
    rebuild();
}

// The curves

void CurveReadings::rebuild()
{
    CurveColors::complete(view()); // this may run before the plot is dressed
    QList<Row> rows;
    const QList<PlotCurve> curves = PlotCurves::of(*view()->plot());
    for (const PlotCurve &curve : curves) {
        Row row;
        row.curve = curve;
        rows.append(row);
    }
    describe(&rows);
    keepHidden(&rows);
    replaceRows(rows);
    readAnew();
}

/** Units, and what clock times count from, are in the log only. */
void CurveReadings::describe(QList<Row> *rows)
{
    LogDataSourceItem *source = view()->dataSource();
    if (!source)
        return;
    const PlottedData data(source);
    const QString name = data.x().name;
    m_xName = data.x().unit.isEmpty() ? name : tr("%1 (%2)").arg(name, data.x().unit);
    m_xClockBase = data.xClockBase();
    for (Row &row : *rows) {
        const bool isRight = row.curve.axis == QwtPlot::yRight;
        const PlottedData::Column column = data.curve(isRight, row.curve.name);
        row.unit = column.unit;
        if (column.isClockTime())
            row.clockBase = data.clockBase(column, true);
    }
}

/** The plot shows all of its curves each time it makes them. */
void CurveReadings::keepHidden(QList<Row> *rows)
{
    QSet<CurveKey> hidden;
    for (Row &row : *rows) {
        row.isShown = !m_hidden.contains(key(row.curve));
        if (!row.isShown) {
            hidden.insert(key(row.curve));
            row.curve.setVisible(false);
        }
    }
    // A new log passes a state without curves, after which nothing is to be hidden.
    m_hidden = hidden;
    if (!hidden.isEmpty())
        view()->plot()->replot();
}

/** Rows stay where the curves are the same, and with them what a user scrolled to. */
void CurveReadings::replaceRows(const QList<Row> &rows)
{
    bool isSame = rows.size() == m_rows.size();
    for (int i = 0; isSame && i < rows.size(); ++i)
        isSame = rows.at(i).curve.isSame(m_rows.at(i).curve);
    if (isSame) {
        m_rows = rows;
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
    emit countChanged();
}

void CurveReadings::toggle(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    Row &toggled = m_rows[row];
    toggled.isShown = !toggled.isShown;
    if (toggled.isShown)
        m_hidden.remove(key(toggled.curve));
    else
        m_hidden.insert(key(toggled.curve));
    toggled.curve.setVisible(toggled.isShown);
    view()->plot()->replot();
    readAnew();
    update();
}

void CurveReadings::showAll()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (!m_rows.at(row).isShown)
            toggle(row);
    }
}

void CurveReadings::adoptHidden()
{
    m_hidden.clear();
    for (Row &row : m_rows) {
        row.isShown = row.curve.isVisible();
        if (!row.isShown)
            m_hidden.insert(key(row.curve));
    }
    readAnew();
    update();
}

// Places

void CurveReadings::place(int spot, const QPointF &position)
{
    if (spot < A || spot > Cursor || !view())
        return;
    Place place;
    place.isSet = true;
    place.x = m_navigator->toX(position.x());
    place.y[QwtPlot::yLeft] = m_navigator->toY(QwtPlot::yLeft, position.y());
    place.y[QwtPlot::yRight] = m_navigator->toY(QwtPlot::yRight, position.y());
    place.sampleX = place.x;
    setPlace(spot, place);
}

void CurveReadings::setPlace(int spot, const Place &place)
{
    m_places[spot] = place;
    m_isSpotRead[spot] = false;
    schedule();
}

void CurveReadings::placeAtCursor(int marker)
{
    if (marker != A && marker != B)
        return;
    update();
    if (hasCursor())
        setPlace(marker, m_places[Cursor]);
    else
        place(marker, m_navigator->canvas().center());
    update();
}

void CurveReadings::moveCursor(int samples)
{
    update();
    if (!hasCursor()) {
        place(Cursor, m_navigator->canvas().center());
        update();
        return;
    }
    Place place = m_places[Cursor];
    if (place.row < 0)
        return;
    const Row &row = m_rows.at(place.row);
    const CurveSamples curve(row.curve.series());
    const Sample sample = curve.stepped(row.samples[Cursor], samples);
    const double pixel = m_navigator->toPixelY(row.curve.axis, sample.y);
    place.x = sample.x;
    place.y[QwtPlot::yLeft] = m_navigator->toY(QwtPlot::yLeft, pixel);
    place.y[QwtPlot::yRight] = m_navigator->toY(QwtPlot::yRight, pixel);
    setPlace(Cursor, place);
    update();
}

CurveReadings::Pick CurveReadings::pick(int spot)
{
    Pick pick;
    update();
    const int row = spot >= A && spot <= Cursor && m_places[spot].isSet ? m_places[spot].row : -1;
    if (row < 0 || row >= m_rows.size())
        return pick;
    pick.curve = m_rows.at(row).curve;
    pick.sample = m_rows.at(row).samples[spot];
    return pick;
}

void CurveReadings::shiftCursor(double part)
{
    const QRectF canvas = m_navigator->canvas();
    const double x = hasCursor() ? m_navigator->toPixelX(m_places[Cursor].x) : canvas.center().x();
    const double moved = qBound(canvas.left(), x + part * canvas.width(), canvas.right());
    place(Cursor, QPointF(moved, canvas.center().y()));
    update();
}

void CurveReadings::clearCursor()
{
    setPlace(Cursor, Place());
    update();
}

void CurveReadings::clearMarkers()
{
    setPlace(A, Place());
    setPlace(B, Place());
    update();
}

// Readings

/** For other curves, or other samples on them. */
void CurveReadings::readAnew()
{
    std::fill(m_isSpotRead, m_isSpotRead + 3, false);
    schedule();
}

void CurveReadings::schedule()
{
    if (!m_update.isActive())
        m_update.start();
}

void CurveReadings::update()
{
    if (m_update.isActive())
        read();
}

void CurveReadings::read()
{
    m_update.stop();
    if (!view())
        return;
    QElapsedTimer timer;
    timer.start();
    const bool areMarkersRead = m_isSpotRead[A] && m_isSpotRead[B];
    for (int spot = A; spot <= Cursor; ++spot)
        readSpot(spot);
    if (!areMarkersRead)
        readBetweenMarkers();
    findPixels();
    const int took = int(timer.elapsed());
    m_update.setInterval(took < kQuickUpdate ? 0 : qMin(2 * took, kLongestPause));
    if (!m_rows.isEmpty())
        emit dataChanged(index(0), index(m_rows.size() - 1));
    emit readingsChanged();
}

/** The place snaps to the nearest of the samples: to that of the first curve, of equals. */
void CurveReadings::readSpot(int spot)
{
    if (m_isSpotRead[spot])
        return;
    m_isSpotRead[spot] = true;
    Place &place = m_places[spot];
    place.row = -1;
    place.sampleX = place.x;
    double least = 0;
    for (int i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        row.samples[spot] = place.isSet && row.isShown ? nearest(row, place) : Sample();
        const Sample &sample = row.samples[spot];
        const double distance = std::fabs(sample.x - place.x);
        if (sample.isValid() && (place.row < 0 || distance < least)) {
            place.row = i;
            place.sampleX = sample.x;
            least = distance;
        }
    }
}

Sample CurveReadings::nearest(const Row &row, const Place &place) const
{
    const QSizeF scale(m_navigator->toPixelX(1) - m_navigator->toPixelX(0),
                       m_navigator->toPixelY(row.curve.axis, 1)
                           - m_navigator->toPixelY(row.curve.axis, 0));
    const QPointF point(place.x, place.y[row.curve.axis]);
    return CurveSamples(row.curve.series()).nearest(point, scale);
}

void CurveReadings::readBetweenMarkers()
{
    for (Row &row : m_rows) {
        const CurveSamples curve(row.curve.series());
        row.statistics = curve.between(row.samples[A], row.samples[B]);
    }
}

/** Places stay with the values they stand for. */
void CurveReadings::findPixels()
{
    for (Place &place : m_places)
        place.pixel = place.isSet ? m_navigator->toPixelX(place.sampleX) : 0;
    const QRectF canvas = m_navigator->canvas();
    for (Row &row : m_rows) {
        const Sample &sample = row.samples[Cursor];
        const QPointF dot(m_navigator->toPixelX(sample.x),
                          m_navigator->toPixelY(row.curve.axis, sample.y));
        row.dot = sample.isValid() && canvas.contains(dot) ? QVariant(dot) : QVariant();
    }
}

// Texts

QString CurveReadings::text(int clockBase, double value) const
{
    return clockBase < 0 ? shortest(value) : ClockTime::text(clockBase + value);
}

QString CurveReadings::xText(const Place &place) const
{
    if (!place.isSet)
        return QString();
    // Between samples there are digits that mean nothing.
    return place.row < 0 && m_xClockBase < 0 ? derived(place.sampleX)
                                             : text(m_xClockBase, place.sampleX);
}

QString CurveReadings::distanceText() const
{
    if (!hasA() || !hasB())
        return QString();
    const double distance = m_places[B].sampleX - m_places[A].sampleX;
    return m_xClockBase < 0 ? derived(distance) : ClockTime::text(distance);
}

QString CurveReadings::readingText(const Row &row, int spot) const
{
    const Sample &sample = row.samples[spot];
    return sample.isValid() ? text(row.clockBase, sample.y) : QString();
}

QString CurveReadings::differenceText(const Row &row) const
{
    if (!row.samples[A].isValid() || !row.samples[B].isValid())
        return QString();
    const double difference = row.samples[B].y - row.samples[A].y;
    return row.clockBase < 0 ? derived(difference) : ClockTime::text(difference);
}

QVariant CurveReadings::statisticsText(const Row &row, int role) const
{
    if (row.statistics.count == 0)
        return QString();
    if (role == LeastRole)
        return text(row.clockBase, row.statistics.min);
    if (role == GreatestRole)
        return text(row.clockBase, row.statistics.max);
    return row.clockBase < 0 ? derived(row.statistics.mean)
                             : text(row.clockBase, row.statistics.mean);
}

// The model

int CurveReadings::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant CurveReadings::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return QVariant();
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return row.curve.name;
    case UnitRole:
        return row.unit;
    case ColorRole:
        return row.curve.color;
    case IsRightRole:
        return row.curve.axis == QwtPlot::yRight;
    case IsShownRole:
        return row.isShown;
    case ReadingRole:
        return readingText(row, Cursor);
    case ReadingARole:
        return readingText(row, A);
    case ReadingBRole:
        return readingText(row, B);
    case DifferenceRole:
        return differenceText(row);
    case LeastRole:
    case GreatestRole:
    case MeanRole:
        return statisticsText(row, role);
    case DotRole:
        return row.dot;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> CurveReadings::roleNames() const
{
    return {{NameRole, "name"},
            {UnitRole, "unit"},
            {ColorRole, "color"},
            {IsRightRole, "isRight"},
            {IsShownRole, "isShown"},
            {ReadingRole, "reading"},
            {ReadingARole, "readingA"},
            {ReadingBRole, "readingB"},
            {DifferenceRole, "difference"},
            {LeastRole, "least"},
            {GreatestRole, "greatest"},
            {MeanRole, "mean"},
            {DotRole, "dot"}};
}
