#include "viewer/LogLoader.h"

#include "viewer/FailureText.h"
#include "viewer/LocalPath.h"

#include <QFileInfo>
#include <QMetaMethod>

namespace
{

const int kProgressInterval = 50; // ms

/** Parsers leave their data sets to others, which may be nobody. */
class AsideParser : public LogParser
{
public:
    explicit AsideParser(LogParser &like)
    {
        setLogParserType(like.logParserType());
        setLimits(like.limits());
        spreadsheetConverter() = like.spreadsheetConverter();
    }
    ~AsideParser() override { tabularParser().clear(); }
};

} // namespace

LogLoader::LogLoader(QObject *parent)
    : QObject(parent)
    , m_aside(nullptr)
    , m_isRefreshGivenUp(false)
    , m_isReading(false)
    , m_isCancelled(false)
    , m_isLoaded(false)
{
    m_progressTimer.setInterval(kProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &LogLoader::progressChanged);
}

/** Tells nobody: others may be gone already. */
LogLoader::~LogLoader()
{
    m_isRefreshGivenUp = true;
    if (m_aside)
        m_aside->stop();
    cancel();
}

void LogLoader::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    giveUpRefresh();
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    if (m_source)
        connect(m_source.data(), &LogDataSourceItem::logFileError, this, &LogLoader::takeError);
    emit sourceChanged();
}

QString LogLoader::fileName() const
{
    return QFileInfo(m_filePath).fileName();
}

const LogParser *LogLoader::currentParser() const
{
    if (isRefreshing())
        return m_aside;
    return m_source ? m_source->parser() : nullptr;
}

double LogLoader::bytesRead() const
{
    const LogParser *parser = currentParser();
    return parser ? parser->bytesRead() : 0;
}

double LogLoader::bytesTotal() const
{
    const LogParser *parser = currentParser();
    return parser ? parser->bytesTotal() : 0;
}

bool LogLoader::open(const QString &path)
{
    if (!m_source || m_isReading || m_source->parser()->isParsing())
        return false;
    giveUpRefresh();
    const QPointer<LogLoader> self(this);
    begin(path);
    m_source->setLogFilePath(path);
    // Events ran meanwhile: whoever handled them may have closed everything.
    if (!self)
        return false;
    if (!m_source)
        setErrorText(tr("%1: what read it is gone").arg(path));
    end();
    return m_isLoaded;
}

bool LogLoader::openUrl(const QUrl &url)
{
    return open(LocalPath::of(url));
}

void LogLoader::begin(const QString &path)
{
    m_filePath = path;
    m_isCancelled = false;
    m_isReading = true;
    startTellingProgress();
    setErrorText(QString());
    setRefreshError(QString());
    setLoaded(false);
    emit filePathChanged();
    emit readingChanged();
    emit progressChanged();
}

/** The event loop is asked after each line, and a timer makes that take longer. */
void LogLoader::startTellingProgress()
{
    if (isSignalConnected(QMetaMethod::fromSignal(&LogLoader::progressChanged)))
        m_progressTimer.start();
}

void LogLoader::end()
{
    m_progressTimer.stop();
    m_isReading = false;
    emit progressChanged();
    emit readingChanged();
    if (m_errorText.isEmpty()) {
        setLoaded(true);
        emit opened();
    } else {
        emit failed(m_errorText);
    }
}

// Reading beside what is open

bool LogLoader::refresh()
{
    if (!m_source || !m_isLoaded || m_isReading || m_aside)
        return false;
    const QPointer<LogLoader> self(this);
    AsideParser parser(*m_source->parser());
    m_aside = &parser;
    m_isRefreshGivenUp = false;
    startTellingProgress();
    emit refreshingChanged();
    QString reason;
    const QString path = m_filePath; // another one by the time that this ends
    parser.parseFileAtPath(path, reason);
    if (!self)
        return false;
    if (!m_isRefreshGivenUp)
        takeRefreshed(parser, reason);
    if (self)
        endRefresh();
    return self && m_source && !m_isRefreshGivenUp && m_refreshError.isEmpty();
}

void LogLoader::takeRefreshed(LogParser &read, const QString &reason)
{
    setRefreshError(reason.isEmpty() ? QString() : FailureText::ofLog(m_filePath, reason, read));
    if (!reason.isEmpty() || !m_source)
        return;
    emit aboutToReplace();
    m_source->takeLog(read);
    emit opened();
}

void LogLoader::endRefresh()
{
    m_aside = nullptr;
    if (m_isRefreshGivenUp)
        return; // which was told; another read may be going on
    m_progressTimer.stop();
    emit refreshingChanged();
}

/** Told at once: the read itself ends after its current line. */
void LogLoader::giveUpRefresh()
{
    if (!isRefreshing())
        return;
    m_isRefreshGivenUp = true;
    m_aside->stop();
    m_progressTimer.stop();
    emit refreshingChanged();
}

void LogLoader::cancel()
{
    giveUpRefresh();
    if (!m_isReading || !m_source)
        return;
    m_isCancelled = true;
    m_source->parser()->stop();
}

void LogLoader::takeError(const QString &reason)
{
    if (!m_isReading)
        return;
    if (m_isCancelled)
        setErrorText(tr("%1: reading was cancelled, nothing of it was kept").arg(m_filePath));
    else
        setErrorText(FailureText::ofLog(m_filePath, reason, *m_source->parser()));
}

void LogLoader::setErrorText(const QString &text)
{
    if (text == m_errorText)
        return;
    m_errorText = text;
    emit errorTextChanged();
}

void LogLoader::setRefreshError(const QString &text)
{
    if (text == m_refreshError)
        return;
    m_refreshError = text;
    emit refreshErrorChanged();
}

void LogLoader::setLoaded(bool isLoaded)
{
    if (isLoaded == m_isLoaded)
        return;
    m_isLoaded = isLoaded;
    emit loadedChanged();
}
