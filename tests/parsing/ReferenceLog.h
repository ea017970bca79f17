#ifndef DATALOG_TESTS_PARSING_REFERENCELOG_H
#define DATALOG_TESTS_PARSING_REFERENCELOG_H

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/** What one block of a log holds, as plain lists. */
struct ReferenceBlock {
    QString createdDate;
    QMap<QString, QStringList> constants;
    QStringList constGroups;
    QList<QStringList> headers; ///< group, variable and unit of each column
    QList<QStringList> columns;
    QStringList variables;
    QMap<QString, QStringList> groups; ///< names of each group's variables
    QList<QStringList> observations;

    QString name(int index) const;
};

/**
 * The log format once more, written for plainness: the whole file as a list of lines, walked by
 * position. Tests compare the parser with it.
 */
class ReferenceLog
{
public:
    ReferenceLog(const QString &path, QChar separator);

    QList<ReferenceBlock> blocks;
    QList<QStringList> rawRows;
    QString error;

private:
    bool isMark(int line, const char *mark) const;
    QStringList cells(int line) const;
    void readBlock();
    void readConstant(ReferenceBlock &block);
    void readColumns(ReferenceBlock &block);
    void readRow(ReferenceBlock &block);

    QStringList m_lines;
    QChar m_separator;
    int m_at;
};

#endif
