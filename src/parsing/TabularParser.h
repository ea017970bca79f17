#ifndef DATALOG_PARSING_TABULARPARSER_H
#define DATALOG_PARSING_TABULARPARSER_H

#include "model/CellGrid.h"
#include "model/VariableGroupSet.h"

#include <QList>
#include <QObject>
#include <QStringList>

class LogDataSet;
class Observation;
class VariableGroup;

/**
 * Collects lines of separated cells into data sets, and answers for each data set by its index.
 *
 * It owns the data sets until clear(); it does not delete them when it is destroyed, because those
 * it handed out stay valid until the next clear().
 */
class TabularParser : public QObject
{
    Q_OBJECT

public:
    explicit TabularParser(QObject *parent = nullptr);

    QChar separator() const { return m_separator; }
    void setSeparator(QChar separator) { m_separator = separator; }
    /** The index that the next data set will get. */
    int dataSetCount() const { return m_dataSetCount; }
    void setDataSetCount(int count) { m_dataSetCount = count; }

    /** Adds an empty data set, numbered with the data set count, which grows by one. */
    void initializeDataSet();
    /** Takes a header line; one with a colon in its first cell and a second cell is a constant. */
    void parseFileHeader(int index, const QString &line, QString &error);
    /** Adds the columns. @param headerColumns group, variable and unit of each. */
    void parseHeader(int index, const QList<QStringList> &headerColumns, QString &error);
    /** Takes a data row; one with fewer than three cells becomes a remark. */
    void parseRow(int index, const QString &line, QString &error);
    /** The same for a row in UTF-8, which must be well formed. */
    void parseRow(int index, const char *line, int size);
    /** Keeps a line among the raw rows only. */
    void appendRawLine(const QString &line);
    /** Deletes the data sets and forgets the raw rows. Separator and count stay. */
    void clear();
    /** Takes over all that another one collected, in place of its own; the other is left clear. */
    void take(TabularParser &other);

    QList<LogDataSet *> dataSets() const { return m_dataSets; }
    /** The cells of every row read, in order; remark rows stand there twice. */
    QList<QStringList> rawData() const;

    // Accessors of the data set at an index. Without data sets they answer with nothing; so they
    // do for an index that does not exist.
    QStringList constHeader(int index) const;
    QStringList constGroups(int index) const;
    QList<QStringList> constData(int index) const;
    QList<QStringList> headerData(int index) const;
    QList<QStringList> columnData(int index) const;
    QStringList variables(int index) const;
    QList<VariableGroup *> groups(int index) const;
    QList<Observation *> observations(int index) const;
    VariableGroup *groupForName(const QString &name, int index) const;
    QStringList dataForColumn(int index, int column) const;
    /** All columns without making lists; null without the data set. See LogDataSet::grid(). */
    CellGridPointer grid(int index) const;
    /** Keeps the groups and variables of a data set alive; null without the data set. */
    QSharedPointer<VariableGroupSet> groupSet(int index) const;

private:
    /** Successive rows of one data set, as the raw rows have them. */
    struct RawRun {
        int dataSet;
        int firstRow;
        int rows;
        int copies; ///< how often each row stands in the raw rows
    };

    LogDataSet *dataSet(int index) const { return m_dataSets.value(index); }
    void parseRowOfAnySeparator(int index, const QString &line);
    void noteRawRow(int index, int copies);

    QList<LogDataSet *> m_dataSets;
    QVector<RawRun> m_rawRuns;
    QList<QStringList> m_rawLines; ///< lines that belong to no data set
    QChar m_separator;
    int m_dataSetCount;
};

#endif
