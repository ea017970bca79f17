#ifndef DATALOG_VIEWER_CELLRANGE_H
#define DATALOG_VIEWER_CELLRANGE_H

#include <QtGlobal>

/** A rectangle of cells, from the one it began with to the one it was drawn to. */
struct CellRange {
    int anchorRow = -1;
    int anchorColumn = -1;
    int row = -1;
    int column = -1;

    bool isValid() const { return row >= 0 && column >= 0; }
    int top() const { return qMin(anchorRow, row); }
    int bottom() const { return qMax(anchorRow, row); }
    int left() const { return qMin(anchorColumn, column); }
    int right() const { return qMax(anchorColumn, column); }
    int rowCount() const { return isValid() ? bottom() - top() + 1 : 0; }
    bool contains(int someRow, int someColumn) const
    {
        return isValid() && someRow >= top() && someRow <= bottom() && someColumn >= left()
            && someColumn <= right();
    }
};

#endif
