#ifndef DATALOG_BENCH_LOOPGAPS_H
#define DATALOG_BENCH_LOOPGAPS_H

#include <QObject>

/**
 * How long the event loop was kept waiting at most, in processor time of this thread: what other
 * programs on the machine take is not counted.
 */
class LoopGaps : public QObject
{
    Q_OBJECT

public:
    /** Starts to measure. */
    LoopGaps();

    /** Ends the last gap and tells the longest one. */
    double longestMilliseconds();
    /** How often the loop was served. */
    int served() const { return m_served; }

private slots:
    void endGap();

private:
    double m_start;
    double m_longest;
    int m_served;
};

#endif
