#include "model/CellText.h"

#include <cstring>

namespace
{

const char kMark[] = "\xEF\xBB\xBF";
const int kMarkSize = 3;

} // namespace

QString CellText::toString() const
{
    // QString drops a mark that comes first. That is right for a file and wrong for a cell.
    QString marks;
    int start = 0;
    while (size - start >= kMarkSize && std::memcmp(data + start, kMark, size_t(kMarkSize)) == 0) {
        marks.append(QChar(QChar::ByteOrderMark));
        start += kMarkSize;
    }
    const QString rest = QString::fromUtf8(data + start, size - start);
    return start == 0 ? rest : marks + rest;
}
