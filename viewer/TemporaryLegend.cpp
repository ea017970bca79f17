#include "viewer/TemporaryLegend.h"

#include <QCoreApplication>

#include <qwt_legend.h>
#include <qwt_plot.h>

TemporaryLegend::TemporaryLegend(QwtPlot *plot)
    : m_plot(plot->legend() ? nullptr : plot)
{
    if (!m_plot)
        return;
    const QwtPlotItemList items = plot->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        if (item->isVisible() || !item->testItemAttribute(QwtPlotItem::Legend))
            continue;
        item->setItemAttribute(QwtPlotItem::Legend, false);
        m_unnamed.append(item);
    }
    auto *legend = new QwtLegend;
    plot->insertLegend(legend, QwtPlot::BottomLegend);
    // Its entries get their looks and their places in events of their own.
    QCoreApplication::sendPostedEvents(legend);
}

TemporaryLegend::~TemporaryLegend()
{
    if (!m_plot)
        return;
    for (QwtPlotItem *item : qAsConst(m_unnamed))
        item->setItemAttribute(QwtPlotItem::Legend, true);
    m_plot->insertLegend(nullptr);
}
