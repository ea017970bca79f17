#ifndef DATALOG_VIEWER_CELLCOPY_H
#define DATALOG_VIEWER_CELLCOPY_H

#include <QString>
#include <QVector>

class QAbstractItemModel;

/** Cells of a table as text that other programs paste into cells. */
namespace CellCopy
{

/** More than this takes long to make, and clipboards choke on it; a file is for that. */
extern const int kMostCells;

/**
 * Rows @p first to @p last of some columns, cells separated by tabs, each row ended by a line end.
 * Tabs and line ends within a cell, and in a header, become spaces.
 * @param hasHeader whether a row of headers comes first, each with group, name and unit.
 */
QString text(const QAbstractItemModel &model, int first, int last, const QVector<int> &columns,
             bool hasHeader);

} // namespace CellCopy

#endif
