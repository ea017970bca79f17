#ifndef DATALOG_MODEL_CELLWALK_H
#define DATALOG_MODEL_CELLWALK_H

#include "model/CellText.h"

/** Walks over the cells of one row, from the left to the right. */
class CellWalk
{
public:
    /** @param row the cells' text, joined by @p separator. */
    CellWalk(const CellText &row, char separator);

    /** The cell at @p index, greater than the one before; an empty one where the row has none. */
    CellText cell(int index);

private:
    const char *find(const char *from) const;
    void skip(int cells);

    const char *m_at; ///< where the next cell starts, null past the last one
    const char *m_end;
    char m_separator;
    int m_index; ///< of the next cell
};

#endif
