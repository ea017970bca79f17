#include "RandomCaller.h"

#include "Invariants.h"
#include "ScriptCall.h"

#include "declarative/DeclarativeItem.h"
#include "parsing/DataLog.h"
#include "support/MetaMethodText.h"

#include <QCoreApplication>
#include <QEvent>

namespace
{

const int kDeepest = 3;
const int kRemembered = 30;
const char kNames[]
    = "Obs,Time,a,b,A,co2,H2O,Gas,Sys,G,1,2,3,400,Tair,?,Remarks,Sys:Name,\"10:00:01\"";

} // namespace

RandomCaller::RandomCaller(quint32 seed, const QString &directory, const QStringList &logs)
    : m_pool(seed)
    , m_directory(directory)
    , m_logs(logs)
    , m_calls(0)
    , m_depth(0)
    , m_stage(m_pool.once(8))
{
    m_pool.setNames(QString::fromLatin1(kNames).split(QLatin1Char(',')));
    for (int i = 0; i < m_stage.size(); ++i)
        connectAll(m_stage.object(i));
    load();
}

RandomCaller::~RandomCaller()
{
    m_depth = kDeepest; // no calls on what is going away
}

void RandomCaller::connectAll(QObject *object)
{
    static const char *const signalNames[] = {SIGNAL(logFileLoaded()),
                                                     SIGNAL(logFileError(QString)),
                                                            SIGNAL(dataUpdated()),
                                                                   SIGNAL(graphDataUpdated()),
                                                                          SIGNAL(dataSetUpdated()),
                                                                                 SIGNAL(criteriaUpdated()),
                                                                                        SIGNAL(plotUpdated()),
                                                                                               SIGNAL(contentsChanged()),
                                                                                                      SIGNAL(valueChanged())};
    for (size_t i = 0; i < sizeof signalNames / sizeof signalNames[0]; ++i) {
        if (object->metaObject()->indexOfSignal(signalNames[i] + 1) >= 0)
            connect(object, signalNames[i], SLOT(react()));
    }
}

void RandomCaller::react()
{
    if (m_depth < kDeepest && m_pool.once(6))
        call();
}

void RandomCaller::customEvent(QEvent *)
{
    if (m_depth < kDeepest)
        call();
}

void RandomCaller::step()
{
    call();
}

void RandomCaller::call()
{
    ++m_calls;
    ++m_depth;
    const int kind = m_pool.below(100);
    if (kind < 1)
        load();
    else if (kind < 3)
        remove();
    else if (kind < 6)
        letEventsRun();
    else
        use(m_pool.below(m_stage.size()));
    --m_depth;
}

QObject *RandomCaller::anyObject()
{
    return m_stage.object(m_pool.below(m_stage.size()));
}

void RandomCaller::note(const QString &text)
{
    m_history << QString(m_depth, QLatin1Char(' ')) + text;
    if (m_history.size() > kRemembered)
        m_history.removeFirst();
}

void RandomCaller::use(int index)
{
    if (!m_stage.object(index)) {
        m_stage.make(index);
        connectAll(m_stage.object(index));
    }
    QObject *object = m_stage.object(index);
    const ScriptCall::Interface own(*object->metaObject());
    const int members = own.methods.size() + own.properties.size();
    const int member = m_pool.below(members + 1);
    keepInDirectory(object);
    note(QString::fromLatin1("%1 %2").arg(index).arg(
        QLatin1String(object->metaObject()->className())));
    if (member == members) {
        resize(object);
    } else if (member < own.methods.size()) {
        const QMetaMethod method = object->metaObject()->method(own.methods.at(member));
        m_history.last() += QLatin1String(" call ") + metaMethodSignature(method);
        ScriptCall::invoke(object, method, m_pool);
    } else {
        const int property = own.properties.at(member - own.methods.size());
        const QMetaProperty told = object->metaObject()->property(property);
        m_history.last() += QLatin1String(" property ") + QLatin1String(told.name());
        // Mostly a source, so that the views have something to show.
        QObject *foreign = m_pool.once(4) ? anyObject() : m_stage.object(m_pool.below(2));
        ScriptCall::useProperty(object, told, m_pool, foreign);
    }
}

/** A text file is only ever looked for in the directory, whatever its name. */
void RandomCaller::keepInDirectory(QObject *object)
{
    if (DataLog *file = qobject_cast<DataLog *>(object))
        file->setFilepath(m_directory);
}

void RandomCaller::resize(QObject *object)
{
    QDeclarativeItem *item = qobject_cast<QDeclarativeItem *>(object);
    if (!item)
        return;
    const double width = m_pool.length();
    const double height = m_pool.length();
    note(QString::fromLatin1("size %1 x %2").arg(width).arg(height));
    item->setWidth(width);
    item->setHeight(height);
    item->setVisible(!m_pool.once(4));
}

void RandomCaller::load()
{
    LogDataSourceItem *source = qobject_cast<LogDataSourceItem *>(m_stage.object(m_pool.below(2)));
    if (!source)
        return;
    const QString path = m_logs.at(m_pool.below(m_logs.size()));
    note(QLatin1String("load ") + path);
    // Handled between two lines of the log.
    for (int i = m_pool.below(4); i > 0; --i)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    const QPointer<LogDataSourceItem> loaded(source);
    source->setLogFilePath(path);
    if (loaded && !m_pool.once(4))
        loaded->selectDataSet(0);
}

/** As scripts do, which is later; at once where nobody stands on the object's own functions. */
void RandomCaller::remove()
{
    QObject *object = anyObject();
    if (!object)
        return;
    note(QLatin1String("delete ") + QLatin1String(object->metaObject()->className()));
    if (m_depth == 1)
        delete object;
    else
        object->deleteLater();
}

void RandomCaller::letEventsRun()
{
    note(QLatin1String("events"));
    for (int i = m_pool.below(3); i > 0; --i)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    QCoreApplication::processEvents();
    if (m_depth == 1)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString RandomCaller::broken() const
{
    const QList<LogDataSourceItem *> sources = m_stage.sources();
    for (int i = 0; i < sources.size(); ++i) {
        const QString broken = Invariants::broken(*sources.at(i));
        if (!broken.isEmpty())
            return broken;
    }
    return QString();
}
