#include "viewer/CellCopy.h"

#include <QAbstractItemModel>

const int CellCopy::kMostCells = 1000000;

namespace
{

QString oneCell(QString text)
{
    for (QChar &c : text) {
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace

QString CellCopy::text(const QAbstractItemModel &model, int first, int last,
                       const QVector<int> &columns, bool hasHeader)
{
    QString text;
    const auto addCell = [&text, &columns](int place, const QVariant &cell) {
        text += oneCell(cell.toString());
        text += QLatin1Char(place + 1 < columns.size() ? '\t' : '\n');
    };
    for (int i = 0; hasHeader && i < columns.size(); ++i)
        addCell(i, model.headerData(columns.at(i), Qt::Horizontal).toString().trimmed());
    for (int row = first; row <= last; ++row) {
        for (int i = 0; i < columns.size(); ++i)
            addCell(i, model.index(row, columns.at(i)).data());
    }
    return text;
}
