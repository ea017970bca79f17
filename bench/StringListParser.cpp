#include "bench/StringListParser.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

namespace
{

bool isMark(const QString &line, const char *mark)
{
    return line.compare(QLatin1String(mark), Qt::CaseInsensitive) == 0;
}

} // namespace

StringListParser::StringListParser()
    : m_section(Nothing)
{
}

bool StringListParser::read(const QString &path)
{
    m_dataSets.clear();
    m_rows.clear();
    m_section = Nothing;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    while (!stream.atEnd()) {
        if (!takeLine(stream.readLine().trimmed()))
            return false;
        QCoreApplication::processEvents();
    }
    return true;
}

bool StringListParser::takeLine(const QString &line)
{
    const QChar separator = QLatin1Char('\t');
    if (isMark(line, "[Header]") && (m_section == Nothing || m_section == Data))
        takeHeaderMark();
    else if (m_section == Nothing)
        return false;
    else if (m_section == Data)
        takeRow(line.split(separator));
    else if (m_section == DataHeader)
        takeDataHeader(line.split(separator));
    else if (isMark(line, "[Data]"))
        m_section = DataHeader;
    else
        m_dataSets.last().headerLines.append(line);
    return true;
}

void StringListParser::takeHeaderMark()
{
    m_dataSets.append(DataSet());
    m_section = Header;
}

void StringListParser::takeDataHeader(const QStringList &row)
{
    DataSet &dataSet = m_dataSets.last();
    dataSet.headerRows.append(row);
    if (dataSet.headerRows.size() < 3)
        return;
    // The first unit is empty, and was trimmed away.
    dataSet.headerRows.last().prepend(QString());
    for (int column = 0; column < dataSet.headerRows.first().size(); ++column)
        dataSet.columns.append(QStringList());
    m_section = Data;
}

void StringListParser::takeRow(QStringList row)
{
    if (row.size() <= 2) {
        row.first().remove(QLatin1Char('"'));
        row.prepend(QLatin1String("Remarks"));
    }
    m_rows.append(row);
    DataSet &dataSet = m_dataSets.last();
    for (int column = 0; column < row.size(); ++column) {
        QString cell = row.at(column);
        if (column == 1)
            cell.remove(QLatin1Char('"'));
        if (column >= dataSet.columns.size())
            dataSet.columns.append(QStringList());
        dataSet.columns[column].append(cell);
    }
    const Observation observation = {false, row};
    dataSet.observations.append(observation);
}

QList<QStringList> StringListParser::observations(int dataSet) const
{
    QList<QStringList> lists;
    foreach (const Observation &observation, m_dataSets.at(dataSet).observations)
        lists.append(observation.values);
    return lists;
}

qint64 StringListParser::cellCount() const
{
    qint64 count = 0;
    foreach (const DataSet &dataSet, m_dataSets) {
        foreach (const QStringList &column, dataSet.columns)
            count += column.size();
    }
    return count;
}
