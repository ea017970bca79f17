#include "viewer/CurveColors.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_symbol.h>

namespace
{

void complete(LogViewerItem *view, LogViewerItem::LogViewerAxis axis)
{
    QMap<QString, QString> colors = view->variableColors(axis);
    const QStringList taken = colors.values();
    QStringList available;
    for (const QString &color : CurveColors::further(axis)) {
        if (!taken.contains(color))
            available.append(color);
    }
    QMap<QString, QString> added;
    const QwtPlotItemList items = view->plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        const QString name = item->title().text();
        if (item->yAxis() != axis || colors.contains(name))
            continue;
        if (!added.contains(name)) {
            if (available.isEmpty())
                break;
            added.insert(name, available.takeFirst());
        }
        CurveColors::paint(static_cast<QwtPlotCurve *>(item), QColor(added.value(name)));
    }
    if (added.isEmpty())
        return;
    for (auto it = added.cbegin(); it != added.cend(); ++it)
        colors.insert(it.key(), it.value());
    view->setVariableColors(axis, colors);
}

} // namespace

void CurveColors::paint(QwtPlotCurve *curve, const QColor &color)
{
    QPen pen = curve->pen();
    if (pen.color() == color)
        return; // and so have the symbols
    pen.setColor(color);
    curve->setPen(pen);
    const QwtSymbol *symbol = curve->symbol();
    if (!symbol)
        return;
    auto *painted = new QwtSymbol(symbol->style());
    painted->setSize(symbol->size());
    painted->setColor(color);
    curve->setSymbol(painted);
}

QStringList CurveColors::further(LogViewerItem::LogViewerAxis axis)
{
    if (axis == LogViewerItem::LeftAxis)
        return QStringLiteral("#8E24AA #8D6E00 #E83E8C #5D4037 #C77D00 #A66BF0 #AD1457")
            .split(QLatin1Char(' '));
    if (axis == LogViewerItem::RightAxis)
        return QStringLiteral("#0277BD #0A9E80 #3949AB #009DC6 #607D8B #5A35E6 #00695C")
            .split(QLatin1Char(' '));
    return QStringList();
}

void CurveColors::complete(LogViewerItem *view)
{
    ::complete(view, LogViewerItem::LeftAxis);
    ::complete(view, LogViewerItem::RightAxis);
}
