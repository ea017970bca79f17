#include "viewer/LogTroubles.h"

#include "parsing/RegularFile.h"

#include <QElapsedTimer>
#include <QLocale>

namespace
{

const int kSlice = 6; // ms, well below what a frame has
const int kLinesBetweenLooks = 64;

QVariantMap entry(const QString &section, const QString &text, bool isFirst = false,
                  int dataSet = -1, int row = -1)
{
    return {{QStringLiteral("section"), section},
            {QStringLiteral("isFirst"), isFirst},
            {QStringLiteral("text"), text},
            {QStringLiteral("dataSet"), dataSet},
            {QStringLiteral("row"), row}};
}

} // namespace

LogTroubles::LogTroubles(QObject *parent)
    : QObject(parent)
    , m_isConverted(false)
    , m_count(0)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &LogTroubles::take);
}

LogTroubles::~LogTroubles()
{
    m_reader.reset();
}

void LogTroubles::setLoader(LogLoader *loader)
{
    if (loader == m_loader)
        return;
    if (m_loader)
        disconnect(m_loader, nullptr, this, nullptr);
    m_loader = loader;
    if (m_loader) {
        connect(m_loader.data(), &LogLoader::opened, this, &LogTroubles::scan);
        connect(m_loader.data(), &LogLoader::failed, this, &LogTroubles::forget);
        connect(m_loader.data(), &LogLoader::readingChanged, this, &LogTroubles::stop);
    }
    emit loaderChanged();
}

/** What is told of a log that is read again stays until there is something new. */
void LogTroubles::scan()
{
    stop();
    if (m_path != m_loader->filePath())
        forget();
    m_path = m_loader->filePath();
    LogParser *parser = m_loader->source()->parser();
    m_isConverted = parser->logParserType() == LogParser::ExcelType;
    m_file.reset(new RegularFile(parser->readPath()));
    if (!m_file->open(QIODevice::ReadOnly)) {
        tellThatTextIsGone();
        return;
    }
    m_reader.reset(new LineReader(m_file.data(), parser->limits().lineBytes));
    m_scan = TroubleScan(parser->tabularParser().separator().toLatin1());
    m_timer.start();
    emit scanningChanged();
}

void LogTroubles::stop()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    m_reader.reset();
    m_file.reset();
    emit scanningChanged();
}

void LogTroubles::take()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < kSlice) {
        for (int i = 0; i < kLinesBetweenLooks; ++i) {
            if (m_reader->atEnd()) {
                finish();
                return;
            }
            m_reader->next();
            m_scan.takeLine(m_reader->data(), m_reader->size());
        }
    }
}

void LogTroubles::finish()
{
    m_scan.end();
    m_entries.clear();
    for (int i = 0; i < TroubleScan::KindCount; ++i) {
        const auto kind = TroubleScan::Kind(i);
        const QString title = tr("%1 (%L2)").arg(TroubleScan::title(kind)).arg(m_scan.count(kind));
        const QList<TroubleScan::Finding> findings = m_scan.findings(kind);
        for (int i = 0; i < findings.size(); ++i) {
            const TroubleScan::Finding &finding = findings.at(i);
            const QString line = tr("Line %L1").arg(finding.line);
            m_entries.append(entry(title, tr("%1: %2").arg(line, finding.text), i == 0,
                                   finding.dataSet, finding.row));
        }
        const qint64 more = m_scan.count(kind) - findings.size();
        if (more > 0)
            m_entries.append(entry(title, tr("and %L1 more").arg(more)));
    }
    m_count = m_scan.count();
    stop();
    emit changed();
}

/** A log that is gone by now is told of elsewhere, the text that a script wrote is not. */
void LogTroubles::tellThatTextIsGone()
{
    m_entries.clear();
    if (m_isConverted)
        m_entries.append(entry(tr("Spreadsheet"),
                               tr("The text that it was converted to is gone, so it was not "
                                  "looked through for rows that were not taken."),
                               true));
    m_count = m_entries.size();
    emit changed();
}

void LogTroubles::forget()
{
    m_entries.clear();
    m_count = 0;
    m_path.clear();
    emit changed();
}
