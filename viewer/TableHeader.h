#ifndef DATALOG_VIEWER_TABLEHEADER_H
#define DATALOG_VIEWER_TABLEHEADER_H

#include <QHeaderView>
#include <QStringList>

class QTableView;

/**
 * The header above a table's columns, of which long names are to be read in narrow columns too.
 *
 * Each line of a header goes on in a second one where it does not fit, and only then loses its
 * middle: names often differ at their end.
 */
class TableHeader : public QHeaderView
{
    Q_OBJECT

public:
    /** Takes the place of @p view's header, with that one's measures; @p view owns it. */
    explicit TableHeader(QTableView *view);

    /** The text of a column's header as it is shown, line by line. */
    QStringList lines(int column) const;

signals:
    /** The edge of a column was dragged. */
    void dragged(int column, int width);
    /** Two quick taps on a column, or on the edge behind it. */
    void tappedTwice(int column);

protected:
    QSize sectionSizeFromContents(int column) const override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QStyleOptionHeader optionOf(int column, const QRect &rect) const;
    QString textOf(int column) const;
    void tellDrag(int column, int oldWidth, int width);

    bool m_isMoving; ///< the pointer, at this very moment
};

#endif
