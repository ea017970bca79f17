#ifndef DATALOG_VIEWER_CURVEREADINGS_H
#define DATALOG_VIEWER_CURVEREADINGS_H

#include "viewer/CurveSamples.h"
#include "viewer/PlotCurves.h"
#include "viewer/PlotNavigator.h"

#include <QAbstractListModel>
#include <QSet>

/**
 * The curves of a plot as a list: a legend in which each can be hidden, and what is to be read off
 * them at a cursor, at two markers A and B, and between these.
 *
 * Each reading is the curve's sample nearest to the place. Readings follow what is shown: they are
 * taken anew, some moments later, when the place, the scales or the data change. A curve stays
 * hidden for as long as its variable is ticked.
 */
class CurveReadings : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(PlotNavigator *navigator READ navigator WRITE setNavigator NOTIFY navigatorChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool hasHidden READ hasHidden NOTIFY readingsChanged)
    Q_PROPERTY(bool hasCursor READ hasCursor NOTIFY readingsChanged)
    Q_PROPERTY(bool hasA READ hasA NOTIFY readingsChanged)
    Q_PROPERTY(bool hasB READ hasB NOTIFY readingsChanged)
    Q_PROPERTY(QString xName READ xName NOTIFY readingsChanged)
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY readingsChanged)
    Q_PROPERTY(QString textA READ textA NOTIFY readingsChanged)
    Q_PROPERTY(QString textB READ textB NOTIFY readingsChanged)
    Q_PROPERTY(QString distanceText READ distanceText NOTIFY readingsChanged)
    Q_PROPERTY(double cursorPixel READ cursorPixel NOTIFY readingsChanged)
    Q_PROPERTY(double pixelA READ pixelA NOTIFY readingsChanged)
    Q_PROPERTY(double pixelB READ pixelB NOTIFY readingsChanged)

public:
    enum Roles {
        NameRole = Qt::UserRole + 1,
        UnitRole,
        ColorRole,
        IsRightRole,
        IsShownRole,
        ReadingRole,
        ReadingARole,
        ReadingBRole,
        DifferenceRole,
        LeastRole,
        GreatestRole,
        MeanRole,
        DotRole ///< where the reading's sample is in the view, or nothing
    };
    /** Where readings are taken: at the two markers and at the cursor. */
    enum Spot { A, B, Cursor };
    Q_ENUM(Spot)

    explicit CurveReadings(QObject *parent = nullptr);

    PlotNavigator *navigator() const { return m_navigator; }
    void setNavigator(PlotNavigator *navigator);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return m_rows.size(); }
    bool hasHidden() const { return !m_hidden.isEmpty(); }
    bool hasCursor() const { return m_places[Cursor].isSet; }
    bool hasA() const { return m_places[A].isSet; }
    bool hasB() const { return m_places[B].isSet; }
    /** The horizontal variable, with its unit. */
    QString xName() const { return m_xName; }
    QString cursorText() const { return xText(m_places[Cursor]); }
    QString textA() const { return xText(m_places[A]); }
    QString textB() const { return xText(m_places[B]); }
    /** From A to B; empty without both. */
    QString distanceText() const;
    double cursorPixel() const { return m_places[Cursor].pixel; }
    double pixelA() const { return m_places[A].pixel; }
    double pixelB() const { return m_places[B].pixel; }

    // Positions are those of the view.
    Q_INVOKABLE void place(int spot, const QPointF &position);
    /** Puts a marker where the cursor is, or in the middle without one. */
    Q_INVOKABLE void placeAtCursor(int marker);
    /** To another sample of the curve that the cursor is on. */
    Q_INVOKABLE void moveCursor(int samples);
    /** Along the axis by a part of the canvas. */
    Q_INVOKABLE void shiftCursor(double part);
    Q_INVOKABLE void clearCursor();
    Q_INVOKABLE void clearMarkers();
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void showAll();
    /** Takes over which curves are hidden, after something else hid and showed them. */
    Q_INVOKABLE void adoptHidden();
    /** Readings are taken at once if they are still to be. */
    void update();

    /** A sample and its curve. */
    struct Pick {
        PlotCurve curve;
        Sample sample; ///< of the curve; invalid where there is none
    };
    /** The sample that a marker or the cursor stands at. */
    Pick pick(int spot);

signals:
    void navigatorChanged();
    void countChanged();
    void readingsChanged();

private:
    /** Where readings are taken. */
    struct Place {
        bool isSet = false;
        double x = 0;
        double y[2] = {0, 0}; ///< on the left and the right axis
        double sampleX = 0; ///< of the sample nearest to it
        double pixel = 0;
        int row = -1; ///< of the curve of that sample
    };
    struct Row {
        PlotCurve curve;
        QString unit;
        int clockBase = -1;
        bool isShown = true;
        Sample samples[3]; ///< by spot
        SampleStatistics statistics;
        QVariant dot;
    };
    typedef QPair<int, QString> CurveKey;

    static CurveKey key(const PlotCurve &curve) { return {curve.axis, curve.name}; }
    LogViewerItem *view() const { return m_navigator ? m_navigator->view() : nullptr; }
    void followView();
    void rebuild();
    void replaceRows(const QList<Row> &rows);
    void describe(QList<Row> *rows);
    void keepHidden(QList<Row> *rows);
    void readAnew();
    void schedule();
    void read();
    void readSpot(int spot);
    void readBetweenMarkers();
    void findPixels();
    void setPlace(int spot, const Place &place);
    Sample nearest(const Row &row, const Place &place) const;
    QString xText(const Place &place) const;
    QString text(int clockBase, double value) const;
    QString readingText(const Row &row, int spot) const;
    QString differenceText(const Row &row) const;
    QVariant statisticsText(const Row &row, int role) const;

    QPointer<PlotNavigator> m_navigator;
    QList<Row> m_rows;
    QSet<CurveKey> m_hidden;
    QString m_xName;
    int m_xClockBase;
    Place m_places[3]; ///< by spot
    bool m_isSpotRead[3]; ///< the samples are those of the place and the data there are
    QTimer m_update;
};

#endif
