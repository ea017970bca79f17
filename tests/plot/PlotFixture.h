#ifndef DATALOG_TESTS_PLOT_PLOTFIXTURE_H
#define DATALOG_TESTS_PLOT_PLOTFIXTURE_H

#include "plot/LogViewerItem.h"
#include "support/SmallLog.h"
#include "support/TestCompat.h"

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_symbol.h>

const LogViewerItem::LogViewerAxis kLeft = LogViewerItem::LeftAxis;
const LogViewerItem::LogViewerAxis kRight = LogViewerItem::RightAxis;
const LogViewerItem::LogViewerAxis kBottom = LogViewerItem::BottomAxis;

/** What scripts can pass: any number. */
inline LogViewerItem::LogViewerAxis anyAxis(int number)
{
    return static_cast<LogViewerItem::LogViewerAxis>(number);
}

inline QString symbolText(const QwtSymbol *symbol)
{
    if (!symbol)
        return QLatin1String("none");
    const char *style = symbol->style() == QwtSymbol::Rect ? "rect"
        : symbol->style() == QwtSymbol::Diamond            ? "diamond"
                                                           : "other";
    return QString::fromLatin1("%1 %2x%3 %4")
        .arg(QLatin1String(style))
        .arg(symbol->size().width())
        .arg(symbol->size().height())
        .arg(symbol->brush().color().name());
}

inline QString samplesText(const QwtPlotCurve &curve)
{
    QStringList samples;
    for (size_t i = 0; i < curve.dataSize(); ++i)
        samples << QString::fromLatin1("%1/%2").arg(curve.sample(i).x()).arg(curve.sample(i).y());
    return samples.join(QLatin1String(" "));
}

/** All there is to a curve: name, colour, style, symbol, axis, samples. */
inline QString curveText(const QwtPlotCurve &curve)
{
    QStringList parts;
    parts << curve.title().text() << curve.pen().color().name()
          << QLatin1String(curve.style() == QwtPlotCurve::Lines      ? "lines"
                               : curve.style() == QwtPlotCurve::Dots ? "dots"
                                                                     : "other")
          << symbolText(curve.symbol())
          << QLatin1String(curve.yAxis() == QwtPlot::yLeft        ? "left"
                               : curve.yAxis() == QwtPlot::yRight ? "right"
                                                                  : "other")
          << samplesText(curve);
    return parts.join(QLatin1String(", "));
}

/** A plot item, and a log of four rows for it: A holds 10 to 13, B 20 to 23, up to H. */
class PlotFixture
{
public:
    PlotFixture()
        : log("Obs Time A B C D E F G H|"
              "1 10:00:00 10 20 30 40 50 60 70 80|"
              "2 10:00:01 11 21 31 41 51 61 71 81|"
              "3 10:00:02 12 22 32 42 52 62 72 82|"
              "4 10:00:03 13 23 33 43 53 63 73 83")
    {
    }

    /** Shows the log, and puts variables on its axes: their names, separated by blanks. */
    void select(const char *x, const char *left, const char *right)
    {
        item.setDataSource(log.source.data());
        log.check(0, x);
        if (*left)
            log.check(1, left);
        if (*right)
            log.check(2, right);
    }

    QList<QwtPlotCurve *> curves() const
    {
        QList<QwtPlotCurve *> curves;
        foreach (QwtPlotItem *plotItem, item.plot()->itemList(QwtPlotItem::Rtti_PlotCurve))
            curves << static_cast<QwtPlotCurve *>(plotItem);
        return curves;
    }
    QString curvesText() const
    {
        QStringList texts;
        foreach (QwtPlotCurve *curve, curves())
            texts << curveText(*curve);
        return texts.join(QLatin1String("; "));
    }
    /** Names and colours only. */
    QString colorsText() const
    {
        QStringList texts;
        foreach (QwtPlotCurve *curve, curves())
            texts << curve->title().text() + QLatin1Char('=') + curve->pen().color().name();
        return texts.join(QLatin1String(" "));
    }
    QString title(int axis) const { return item.plot()->axisTitle(axis).text(); }
    QwtLegend *legend() const { return qobject_cast<QwtLegend *>(item.plot()->legend()); }
    QwtLegendLabel *label(QwtPlotItem *plotItem) const
    {
        const QList<QWidget *> widgets = legend()->legendWidgets(item.plot()->itemToInfo(plotItem));
        return widgets.size() == 1 ? qobject_cast<QwtLegendLabel *>(widgets.first()) : nullptr;
    }

    /** Draws the whole plot; false when nothing comes out. */
    bool isDrawn() const
    {
        QImage image(item.plot()->size(), QImage::Format_RGB32);
        image.fill(0);
        item.plot()->render(&image);
        return image.pixel(1, 1) == QColor(Qt::white).rgb();
    }

    /** What the graph definition holds, as text; "unset" where it holds nothing. */
    QString recorded(const char *group, const char *axis, const char *key)
    {
        QVariant value = log.source->graphDefinition().value(QLatin1String(group));
        if (*axis)
            value = value.toMap().value(QLatin1String(axis));
        return value.toMap().value(QLatin1String(key), QLatin1String("unset")).toString();
    }
    QString scaling(const char *axis, const char *key) { return recorded("scaling", axis, key); }

    SmallLog log;
    LogViewerItem item;
};

/** A plot item that draws nothing and counts the redraws. */
class RedrawCounter : public QwtPlotItem
{
public:
    explicit RedrawCounter(QwtPlot *plot)
        : count(0)
    {
        setItemAttribute(Legend, false);
        setItemInterest(ScaleInterest, true);
        attach(plot);
        count = 0;
    }
    void draw(QPainter *, const QwtScaleMap &, const QwtScaleMap &, const QRectF &) const override
    {
    }
    void updateScaleDiv(const QwtScaleDiv &, const QwtScaleDiv &) override { ++count; }

    int count;
};

#endif
