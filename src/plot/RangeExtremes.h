#ifndef DATALOG_PLOT_RANGEEXTREMES_H
#define DATALOG_PLOT_RANGEEXTREMES_H

#include <QVector>

/**
 * Where the least and the greatest of any stretch of values are, told without looking at each value
 * of it: blocks of values, and blocks of those, know theirs.
 */
class RangeExtremes
{
public:
    /** Positions of the least and of the greatest value; the first ones among equals. */
    struct Extremes {
        int least;
        int greatest;
    };

    /** Looks at each of @p values once, and shares them. */
    explicit RangeExtremes(const QVector<double> &values);

    /** Of the values from first to last, both included, which have to be there and be numbers. */
    Extremes within(int first, int last) const;

private:
    /** Extremes with their values beside them: to look these up again would take far longer. */
    struct Found {
        Extremes at;
        double least;
        double greatest;
    };
    struct Level {
        int span; ///< values in a block
        QVector<Found> blocks;
    };

    void addLevel(int span);
    Found foundAt(int position) const;
    void widen(Found *found, const Found &other) const;
    void widenByValues(Found *found, int first, int last) const;
    int widenAt(Found *found, int position, int last) const;

    QVector<double> m_values;
    QVector<Level> m_levels; ///< the smallest blocks first
};

Q_DECLARE_TYPEINFO(RangeExtremes::Extremes, Q_PRIMITIVE_TYPE);

#endif
