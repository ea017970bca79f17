#ifndef DATALOG_VIEWER_CURVESAMPLES_H
#define DATALOG_VIEWER_CURVESAMPLES_H

#include <QList>
#include <QPointF>
#include <QSizeF>

class CurveSeries;

/** One sample of a curve, and where it is among the others. */
struct Sample {
    int piece = -1;
    int index = -1;
    double x = 0;
    double y = 0;

    bool isValid() const { return piece >= 0; }
    bool isBefore(const Sample &other) const
    {
        return piece != other.piece ? piece < other.piece : index < other.index;
    }
};

/** What is told about a stretch of a curve. */
struct SampleStatistics {
    qint64 count = 0;
    double min = 0;
    double max = 0;
    double mean = 0;
};

/**
 * Looks samples of a curve up. Samples that are no numbers are not there for it.
 *
 * Where x ascends within each piece, the sample nearest in x is found without looking at all of
 * them. Where it does not, a curve may pass a place several times: of the samples there, which are
 * searched among all, the one nearest in y is meant.
 */
class CurveSamples
{
public:
    /** @param pieces of one curve, in order; they have to stay while this is used. */
    explicit CurveSamples(const QList<const CurveSeries *> &pieces);

    bool isAscending() const { return m_isAscending; }
    /**
     * The sample nearest to a point; the first one of several. Invalid for a curve without samples.
     * @param scale pixels of a unit of x and of y.
     */
    Sample nearest(const QPointF &point, const QSizeF &scale) const;
    /** The sample so many further on, or back; the last or first one where they end. */
    Sample stepped(const Sample &sample, int steps) const;
    /** Of all samples from one to the other, both included, whichever comes first. */
    SampleStatistics between(const Sample &a, const Sample &b) const;

private:
    Sample sample(int piece, int index) const;
    Sample nearestByX(double x) const;
    Sample nearestInColumn(const QPointF &point, const QSizeF &scale) const;
    Sample neighbour(const Sample &sample, bool isForward) const;

    QList<const CurveSeries *> m_pieces;
    bool m_isAscending;
};

#endif
