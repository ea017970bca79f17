#ifndef DATALOG_VIEWER_CELLSELECTION_H
#define DATALOG_VIEWER_CELLSELECTION_H

#include "viewer/CellRange.h"

#include <QObject>
#include <QPointer>
#include <QTableView>

/**
 * The cells that are selected in a table whose model lets none be: those of a log are there to be
 * read, and say so.
 *
 * A mouse selects cells by dragging over them, and rows on the row numbers; a finger, which scrolls
 * by dragging, selects the cell it taps. Columns that are hidden and that of the check boxes are
 * passed over. The selection goes when the table is filled anew.
 */
class CellSelection : public QObject
{
    Q_OBJECT

public:
    /** Selects in @p view, which owns this object and has just one. */
    explicit CellSelection(QTableView *view);
    /** That of @p view, made when there is none yet. */
    static CellSelection *of(QTableView *view);

    /** Nothing, once the table shows another model. */
    CellRange range() const;
    bool contains(const QModelIndex &index) const;
    /** Whether column 0 holds check boxes, and can't be selected. */
    void setHasCheckBoxes(bool hasCheckBoxes) { m_hasCheckBoxes = hasCheckBoxes; }
    /** While set, a press goes on from what is selected, as with Shift. */
    void setExtending(bool isExtending) { m_isExtending = isExtending; }

    void select(int row, int column);
    void extendTo(int row, int column);
    void selectRow(int row, bool isExtended = false);
    void selectAll();
    void clear();
    /** Moves the current cell, passing over hidden columns; a selection begins at the top. */
    void move(int rows, int columns, bool isExtended);
    /** Scrolls just as far as the current cell needs, or so that it is in the middle. */
    void showCurrent(bool isCentred = false);

    /** Columns that can be selected and are shown. */
    QVector<int> columns() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void changed();

private:
    bool isSelectable(int column) const;
    void set(const CellRange &range);
    void tellCurrent() const;
    void followModel();
    void pressCell(const QPoint &position, bool isExtended);
    void dragCell(const QPoint &position);
    bool numbersEvent(QEvent *event);

    QTableView *m_view;
    QPointer<QAbstractItemModel> m_model;
    CellRange m_range;
    bool m_hasCheckBoxes;
    bool m_isExtending;
    bool m_isDragged;
};

#endif
