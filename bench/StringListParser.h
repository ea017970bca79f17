#ifndef DATALOG_BENCH_STRINGLISTPARSER_H
#define DATALOG_BENCH_STRINGLISTPARSER_H

#include <QList>
#include <QString>
#include <QStringList>

/**
 * The yardstick for reading logs: how anybody would write a reader of this format with Qt's
 * containers. A text stream gives the lines, each is trimmed and split into a list of strings, and
 * that list is kept among the rows, cell by cell in the columns, and as an observation. Pending
 * events are handled after each line, so that a program stays alive meanwhile.
 *
 * It is plain on purpose: to make it quicker or smaller would be to move the yardstick. A cell
 * takes it about 70 bytes.
 */
class StringListParser
{
public:
    StringListParser();

    /** Reads a log separated by tabs in place of what was read before; false if it is none. */
    bool read(const QString &path);
    int dataSetCount() const { return m_dataSets.size(); }
    /** The columns of a data set, each the cells from the first row down. */
    QList<QStringList> columns(int dataSet) const { return m_dataSets.at(dataSet).columns; }
    QList<QStringList> observations(int dataSet) const;
    /** Group, variable and unit row of a data set. */
    QList<QStringList> headerRows(int dataSet) const { return m_dataSets.at(dataSet).headerRows; }
    /** Every data row of the file. */
    QList<QStringList> rows() const { return m_rows; }
    /** Cells of all columns of all data sets. */
    qint64 cellCount() const;

private:
    struct Observation {
        bool checked;
        QStringList values;
    };

    struct DataSet {
        QStringList headerLines;
        QList<QStringList> headerRows;
        QList<QStringList> columns;
        QList<Observation> observations;
    };

    enum Section { Nothing, Header, DataHeader, Data };

    bool takeLine(const QString &line);
    void takeHeaderMark();
    void takeDataHeader(const QStringList &row);
    void takeRow(QStringList row);

    QList<DataSet> m_dataSets;
    QList<QStringList> m_rows;
    Section m_section;
};

#endif
