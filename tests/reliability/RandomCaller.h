#ifndef DATALOG_TESTS_RELIABILITY_RANDOMCALLER_H
#define DATALOG_TESTS_RELIABILITY_RANDOMCALLER_H

#include "ArgumentPool.h"
#include "Stage.h"

#include <QObject>
#include <QStringList>

/**
 * A script gone mad: it uses every object of a stage in any order, loads logs, deletes objects and
 * makes them anew, and lets events run, in which it goes on calling. The same for the same seed.
 */
class RandomCaller : public QObject
{
    Q_OBJECT

public:
    /**
     * @param directory where files may be read and written.
     * @param logs paths to load.
     */
    RandomCaller(quint32 seed, const QString &directory, const QStringList &logs);

    ~RandomCaller() override;

    /** Makes one call, or a few when events run calls of their own. */
    void step();
    int calls() const { return m_calls; }
    /** What does not hold; empty while all does. */
    QString broken() const;
    /** The last calls, for somebody to see what led there. */
    QStringList history() const { return m_history; }

public Q_SLOTS:
    /** Connected to the objects' signals: a handler that makes calls. */
    void react();

protected:
    void customEvent(QEvent *event) override;

private:
    void call();
    void use(int index);
    void load();
    void remove();
    void letEventsRun();
    void resize(QObject *object);
    void keepInDirectory(QObject *object);
    void connectAll(QObject *object);
    QObject *anyObject();
    void note(const QString &text);

    ArgumentPool m_pool;
    QString m_directory;
    QStringList m_logs;
    QStringList m_history;
    int m_calls;
    int m_depth; ///< of calls made by events and handlers during calls
    Stage m_stage; ///< the first to go: its objects still emit signals then
};

#endif
