#include "ReferenceLog.h"

#include <QFile>
#include <QLocale>
#include <QTextStream>

namespace
{

QStringList linesOf(const QString &path)
{
    QFile file(path);
    QStringList lines;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return lines;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    while (!stream.atEnd())
        lines.append(stream.readLine());
    return lines;
}

} // namespace

ReferenceLog::ReferenceLog(const QString &path, QChar separator)
    : m_lines(linesOf(path))
    , m_separator(separator)
    , m_at(1)
{
    if (m_lines.isEmpty())
        return;
    if (isMark(0, "[header]")) {
        while (m_at < m_lines.size())
            readBlock();
        return;
    }
    error = QLatin1String("Log File must start with [Header] section.");
    for (int line = 1; line < m_lines.size(); ++line)
        rawRows.append(m_lines.at(line).split(m_separator));
}

bool ReferenceLog::isMark(int line, const char *mark) const
{
    return m_lines.at(line).trimmed().toLower() == QLatin1String(mark);
}

QStringList ReferenceLog::cells(int line) const
{
    return m_lines.at(line).trimmed().split(m_separator);
}

/** Reads from the line after a header mark to behind the next mark. */
void ReferenceLog::readBlock()
{
    ReferenceBlock block;
    if (cells(m_at).size() > 1)
        block.createdDate = cells(m_at).at(1);
    while (m_at < m_lines.size() && !isMark(m_at, "[data]"))
        readConstant(block);
    ++m_at;
    if (m_at + 2 < m_lines.size())
        readColumns(block);
    m_at += 3;
    while (m_at < m_lines.size() && !isMark(m_at, "[header]"))
        readRow(block);
    ++m_at;
    blocks.append(block);
}

void ReferenceLog::readConstant(ReferenceBlock &block)
{
    const QStringList line = cells(m_at++);
    if (line.size() < 2 || !line.at(0).contains(QLatin1Char(':')))
        return;
    const QString group = line.at(0).split(QLatin1Char(':')).at(0);
    if (!block.constGroups.contains(group))
        block.constGroups.append(group);
    block.constants[line.at(0)].append(line.at(1));
}

void ReferenceLog::readColumns(ReferenceBlock &block)
{
    const QStringList groups = cells(m_at);
    QStringList variables = cells(m_at + 1);
    QStringList units = (QLatin1Char('\t') + m_lines.at(m_at + 2).trimmed()).split(m_separator);
    for (int i = 0; i < groups.size(); ++i) {
        variables.append(QString());
        units.append(QString());
        block.headers.append(QStringList() << groups.at(i) << variables.at(i) << units.at(i));
        block.columns.append(QStringList());
        block.variables.append(variables.at(i));
        block.groups[groups.at(i)].append(variables.at(i));
    }
}

void ReferenceLog::readRow(ReferenceBlock &block)
{
    QStringList row = cells(m_at++);
    if (row.size() < 3) {
        row[0].remove(QLatin1Char('"'));
        row.prepend(QLatin1String("Remarks"));
        rawRows.append(row);
    }
    rawRows.append(row);
    block.observations.append(row);
    row[1].remove(QLatin1Char('"'));
    for (int column = 0; column < row.size(); ++column) {
        if (column == block.columns.size()) {
            const QString unknown = QLatin1String("?");
            block.headers.append(QStringList() << unknown << unknown << unknown);
            block.columns.append(QStringList());
            block.groups[unknown];
        }
        block.columns[column].append(row.at(column));
    }
}

QString ReferenceBlock::name(int index) const
{
    const QLocale locale;
    const QString start = locale.toString(index) + QLatin1String(": ") + createdDate;
    if (columns.isEmpty())
        return start + QLatin1String(" [No Data]");
    return start + QLatin1String(" #Obs=") + locale.toString(columns.at(0).size());
}
