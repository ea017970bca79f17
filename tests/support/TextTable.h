#ifndef DATALOG_TESTS_SUPPORT_TEXTTABLE_H
#define DATALOG_TESTS_SUPPORT_TEXTTABLE_H

#include <QAbstractItemModel>
#include <QStringList>

/** Lists from a text: "a b|c" is a list of "a" and "b", and one of "c"; "a||b" has an empty one. */
inline QList<QStringList> listsOf(const char *text)
{
    QList<QStringList> lists;
    if (!*text)
        return lists;
    foreach (const QString &list, QString::fromUtf8(text).split(QLatin1Char('|')))
        lists << (list.isEmpty() ? QStringList() : list.split(QLatin1Char(' ')));
    return lists;
}

/** What a table shows, as listsOf() takes it but by rows, with "-" for a cell without a text. */
inline QString shownText(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QVariant cell = model.index(row, column).data();
            cells << (cell.isValid() ? cell.toString() : QString::fromLatin1("-"));
        }
        rows << cells.join(QLatin1String(" "));
    }
    return rows.join(QLatin1String("|"));
}

#endif
