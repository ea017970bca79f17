#include "viewer/TableHeader.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTableView>
#include <QTextLayout>

namespace
{

const int kMostLines = 2; // of one line of the text

/** A text in as many lines as it may take; the last one says where something is left out. */
QStringList wrapped(const QString &text, const QFont &font, int width)
{
    const QFontMetrics metrics(font);
    if (metrics.horizontalAdvance(text) <= width)
        return {text};
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    int start = 0;
    while (lines.size() < kMostLines - 1) {
        QTextLine line = layout.createLine();
        line.setLineWidth(qMax(1, width));
        start = line.textStart() + line.textLength();
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    lines.append(metrics.elidedText(text.mid(start), Qt::ElideMiddle, width));
    return lines;
}

} // namespace

TableHeader::TableHeader(QTableView *view)
    : QHeaderView(Qt::Horizontal, view)
    , m_isMoving(false)
{
    const QHeaderView *previous = view->horizontalHeader();
    setMinimumSectionSize(previous->minimumSectionSize());
    setMinimumHeight(previous->minimumHeight());
    setSectionsClickable(previous->sectionsClickable());
    setPalette(previous->palette());
    view->setHorizontalHeader(this);
    show();
    connect(this, &QHeaderView::sectionResized, this, &TableHeader::tellDrag);
}

/** A header is asked for its size once more when its model is gone. */
QString TableHeader::textOf(int column) const
{
    return model() ? model()->headerData(column, Qt::Horizontal).toString() : QString();
}

QStyleOptionHeader TableHeader::optionOf(int column, const QRect &rect) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = column;
    option.textAlignment = Qt::AlignCenter;
    return option;
}

QStringList TableHeader::lines(int column) const
{
    const QStyleOptionHeader option = optionOf(column, QRect(0, 0, sectionSize(column), height()));
    const int width = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this).width();
    QStringList all;
    const QStringList parts = textOf(column).split(QLatin1Char('\n'));
    for (const QString &part : parts)
        all += wrapped(part, font(), width);
    return all;
}

/** Only the height counts: the width is the section's own. */
QSize TableHeader::sectionSizeFromContents(int column) const
{
    const QSize size = QHeaderView::sectionSizeFromContents(column);
    const int more = lines(column).size() - textOf(column).count(QLatin1Char('\n')) - 1;
    return size + QSize(0, more * fontMetrics().lineSpacing());
}

void TableHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    if (!rect.isValid())
        return;
    QStyleOptionHeader option = optionOf(column, rect);
    option.text = lines(column).join(QLatin1Char('\n'));
    painter->save();
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
}

void TableHeader::mouseMoveEvent(QMouseEvent *event)
{
    m_isMoving = event->buttons() & Qt::LeftButton;
    QHeaderView::mouseMoveEvent(event);
    m_isMoving = false;
}

/** A drag of an edge resizes the one column before it. */
void TableHeader::tellDrag(int column, int oldWidth, int width)
{
    if (m_isMoving && oldWidth > 0 && width > 0)
        emit dragged(column, width);
}

void TableHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    int column = logicalIndexAt(event->pos());
    const int before = logicalIndexAt(event->x() - grip);
    if (before >= 0)
        column = before;
    if (column >= 0 && event->button() == Qt::LeftButton)
        emit tappedTwice(column);
}
