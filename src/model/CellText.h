#ifndef DATALOG_MODEL_CELLTEXT_H
#define DATALOG_MODEL_CELLTEXT_H

#include <QString>

/** A cell's UTF-8 text inside a store; valid until the store grows or goes. */
struct CellText {
    CellText()
        : data("")
        , size(0)
    {
    }
    CellText(const char *text, int length)
        : data(text)
        , size(length)
    {
    }
    /** The same text wherever in its row the cell stands: a byte order mark counts as a character.
     */
    QString toString() const;

    const char *data;
    int size;
};

#endif
