#ifndef DATALOG_GRAPHDEF_GRAPHDEFINITION_H
#define DATALOG_GRAPHDEF_GRAPHDEFINITION_H

#include <QString>
#include <QVariantMap>

/**
 * How a plot was last set up, axis by axis: scaling, lines and symbols, group and variable.
 *
 * Only recorded, so that it can be stored and given back: nothing is checked or carried out here,
 * and nothing is held that was never set. Bounds are kept as the text they came as.
 */
class GraphDefinition
{
public:
    enum Axis { Horizontal, Left, Right };

    GraphDefinition();

    /**
     * The whole definition: the keys "scaling", "xbottom", "yleft" and "yright", each with a map.
     * "scaling" holds, by the names of the other three, maps with "autoscale" (bool), "min" and
     * "max" (text); the others hold "group" and "variable" (text) and, but for "xbottom", "lines"
     * and "symbols" (bool).
     */
    QVariantMap toMap() const;
    /**
     * Takes over those of the four maps that @p definition holds and keeps the others. A value that
     * is no map gives an empty one; further keys are ignored.
     */
    void assign(const QVariantMap &definition);

    void setAutoscale(Axis axis, bool on);
    void setMin(Axis axis, const QString &min);
    void setMax(Axis axis, const QString &max);
    /** Curves belong to a vertical axis: on the horizontal one nothing is recorded. */
    void setLines(Axis axis, bool on);
    /** @copydoc setLines */
    void setSymbols(Axis axis, bool on);
    void setGroupVariable(Axis axis, const QString &group, const QString &variable);

    /** Whether a group, be it an empty one, was recorded for @p axis. */
    bool hasGroup(Axis axis) const;
    /** Empty where none was recorded. */
    QString group(Axis axis) const;
    /** Empty where none was recorded. */
    QString variable(Axis axis) const;

private:
    enum { AxisCount = 3 };

    void setScaling(Axis axis, const char *key, const QVariant &value);
    void setCurves(Axis axis, const char *key, bool on);

    QVariantMap m_scaling;
    QVariantMap m_axes[AxisCount]; ///< by Axis
};

#endif
