#include "viewer/DataExport.h"

#include "viewer/CsvText.h"
#include "viewer/WholeFile.h"

#include <QIODevice>

namespace
{

// Rows whose texts are held at a time, and between looks at what else there is to do.
const int kRowsAtOnce = 2048;
const char kLineEnd[] = "\r\n";

QString title(const PlottedData::Column &column)
{
    return column.unit.isEmpty() ? column.name
                                 : QStringLiteral("%1 (%2)").arg(column.name, column.unit);
}

} // namespace

DataExport::DataExport(LogDataSourceItem *source)
    : m_data(source)
    , m_curves(m_data.left() + m_data.right())
{
}

bool DataExport::write(const QString &path)
{
    if (!m_data.x().isValid()) {
        m_errorText = tr("there is no variable on the X axis");
        return false;
    }
    m_stopText.clear();
    const bool isWritten = WholeFile::write(
        path, [this](QIODevice *device) { return writeTo(device); }, &m_errorText);
    if (!m_stopText.isEmpty())
        m_errorText = m_stopText;
    return isWritten;
}

bool DataExport::writeTo(QIODevice *device)
{
    const QVector<int> rows = m_data.rows();
    bool isWritten = put(device, header());
    for (int first = 0; isWritten && first < rows.size(); first += kRowsAtOnce)
        isWritten = goesOn(double(first) / rows.size())
            && writeRows(device, rows.mid(first, kRowsAtOnce));
    return isWritten;
}

bool DataExport::goesOn(double part)
{
    if (!m_watcher)
        return true;
    if (!m_watcher(part))
        m_stopText = tr("it was cancelled");
    else if (!m_data.isCurrent())
        m_stopText = tr("other data was opened meanwhile");
    return m_stopText.isEmpty();
}

bool DataExport::writeRows(QIODevice *device, const QVector<int> &rows)
{
    QVector<QStringList> columns{m_data.texts(m_data.x(), rows, false)};
    for (const PlottedData::Column &curve : qAsConst(m_curves))
        columns.append(m_data.texts(curve, rows, true));
    QString lines;
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columns.size(); ++column) {
            if (column > 0)
                lines += QLatin1Char(',');
            lines += CsvText::cell(columns.at(column).at(row));
        }
        lines += QLatin1String(kLineEnd);
    }
    return put(device, lines.toUtf8());
}

QByteArray DataExport::header() const
{
    QStringList cells{CsvText::cell(title(m_data.x()))};
    for (const PlottedData::Column &curve : m_curves)
        cells.append(CsvText::cell(title(curve)));
    return cells.join(QLatin1Char(',')).toUtf8() + kLineEnd;
}

bool DataExport::put(QIODevice *device, const QByteArray &text)
{
    return device->write(text) == text.size();
}
