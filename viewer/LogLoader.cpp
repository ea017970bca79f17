#include "viewer/LogLoader.h"

#include "viewer/FailureText.h"
#include "viewer/LocalPath.h"

#include <QFileInfo>
#include <QMetaMethod>

namespace
{

const int kProgressInterval = 50; // ms

}

LogLoader::LogLoader(QObject *parent)
    : QObject(parent)
    , m_isReading(false)
    , m_isCancelled(false)
    , m_isLoaded(false)
{
    m_progressTimer.setInterval(kProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &LogLoader::progressChanged);
}

LogLoader::~LogLoader()
{
    cancel();
}

void LogLoader::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
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

double LogLoader::bytesRead() const
{
    return m_source ? m_source->parser()->bytesRead() : 0;
}

double LogLoader::bytesTotal() const
{
    return m_source ? m_source->parser()->bytesTotal() : 0;
}

bool LogLoader::open(const QString &path)
{
    if (!m_source || m_isReading || m_source->parser()->isParsing())
        return false;
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
    // The event loop is asked after each line, and a timer makes that take longer.
    if (isSignalConnected(QMetaMethod::fromSignal(&LogLoader::progressChanged)))
        m_progressTimer.start();
    setErrorText(QString());
    setLoaded(false);
    emit filePathChanged();
    emit readingChanged();
    emit progressChanged();
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

void LogLoader::cancel()
{
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
        setErrorText(FailureText::ofLog(m_filePath, reason));
}

void LogLoader::setErrorText(const QString &text)
{
    if (text == m_errorText)
        return;
    m_errorText = text;
    emit errorTextChanged();
}

void LogLoader::setLoaded(bool isLoaded)
{
    if (isLoaded == m_isLoaded)
        return;
    m_isLoaded = isLoaded;
    emit loadedChanged();
}
