#include "ViewerUser.h"

#include "viewer/LogLoader.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>

/**
 * With a log of a million rows being read, what a user does is answered within 100 ms, told from
 * inside the event loop: from the moment something is done to the moment its frame is shown.
 */
class tst_AliveWhileReading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void answersWithinATenthOfASecond();

private:
    QScopedPointer<TemporaryLog> m_large;
};

namespace
{

const int kRows = 1000000;
const int kMostMilliseconds = 100;
const int kTries = 30; // machines are shared: what counts is when nobody else was in the way

QByteArray millionRows()
{
    QByteArray text("[Header]\nCreated\t2020-01-01\n[Data]\nSys\tSys\tAir\tAir\nObs\tTime\tT\tRH\n"
                    "-\t-\tC\t%\n");
    text.reserve(kRows * 30);
    for (int i = 1; i <= kRows; ++i)
        text += QByteArray::number(i) + "\t10:00:00\t" + QByteArray::number(i % 97) + ".5\t50\n";
    return text;
}

/** What a user does during a read, one thing after the other, and how long each answer took. */
class Probe : public QObject
{
    Q_OBJECT

public:
    explicit Probe(ViewerUser *user)
        : m_user(user)
    {
        connect(user->window(), &QQuickWindow::frameSwapped, this, &Probe::frameShown);
        connect(user->viewer(), SIGNAL(failed(QString)), SLOT(readGivenUp()));
        m_sinceTick.start();
        startTimer(5);
    }

    qint64 tab = -1;
    qint64 resize = -1;
    qint64 cancel = -1;
    qint64 longestGap = 0; ///< between two turns of the event loop

protected:
    void timerEvent(QTimerEvent *) override
    {
        // The first turns still belong to what was there before the read.
        if (m_ticks++ > 20)
            longestGap = qMax(longestGap, m_sinceTick.elapsed());
        m_sinceTick.restart();
        const bool isReading = m_user->isShown("cancelButton");
        if (isReading && m_step == Waiting && m_ticks > 40)
            changeTab();
        else if (isReading && m_step == TabShown)
            changeSize();
        else if (isReading && m_step == SizeShown)
            clickCancel();
    }

private slots:
    void frameShown()
    {
        if (m_step == TabChanged)
            note(&tab, TabShown);
        else if (m_step == SizeChanged && m_user->window()->contentItem()->width() == m_width)
            note(&resize, SizeShown);
    }
    void readGivenUp()
    {
        if (m_step == Cancelled)
            note(&cancel, Done);
    }

private:
    enum Step { Waiting, TabChanged, TabShown, SizeChanged, SizeShown, Cancelled, Done };

    void note(qint64 *answer, Step next)
    {
        *answer = m_sinceAction.elapsed();
        m_step = next;
    }
    // While a log is read nothing beside Cancel can be clicked; a program can still change the tab.
    void changeTab()
    {
        m_step = TabChanged;
        m_sinceAction.start();
        QQuickItem *tabs = m_user->item("viewTabs");
        tabs->setProperty("currentIndex", 1 - tabs->property("currentIndex").toInt());
        m_user->window()->update();
    }
    void changeSize()
    {
        m_step = SizeChanged;
        m_width = m_user->window()->width() == 900 ? 1000 : 900;
        m_sinceAction.start();
        m_user->window()->resize(m_width, 640);
    }
    void clickCancel()
    {
        m_step = Cancelled;
        m_sinceAction.start();
        QQuickItem *button = m_user->item("cancelButton");
        m_user->click(button, button->boundingRect().center());
    }

    ViewerUser *m_user;
    QElapsedTimer m_sinceTick;
    QElapsedTimer m_sinceAction;
    Step m_step = Waiting;
    int m_ticks = 0;
    int m_width = 0;
};

} // namespace

void tst_AliveWhileReading::initTestCase()
{
    m_large.reset(new TemporaryLog(millionRows(), "large.log"));
}

void tst_AliveWhileReading::answersWithinATenthOfASecond()
{
    const TemporaryLog small;
    ViewerUser user(small);
    QVERIFY(user.isReady());
    qint64 best[4] = {1000000, 1000000, 1000000, 1000000};
    for (int i = 0; i < kTries && *std::max_element(best, best + 4) >= kMostMilliseconds; ++i) {
        Probe probe(&user);
        user.viewer()->open(m_large->path());
        QTRY_VERIFY_WITH_TIMEOUT(probe.cancel >= 0, 60000);
        const qint64 times[] = {probe.tab, probe.resize, probe.cancel, probe.longestGap};
        qInfo("tab %lld ms, resize %lld ms, cancel %lld ms, longest turn %lld ms", times[0],
              times[1], times[2], times[3]);
        for (int t = 0; t < 4; ++t)
            best[t] = qMin(best[t], times[t]);
    }
    for (int t = 0; t < 4; ++t) {
        QVERIFY2(best[t] >= 0 && best[t] < kMostMilliseconds,
                 QByteArray::number(best[t]).constData());
    }
}

QTEST_MAIN(tst_AliveWhileReading)
#include "tst_AliveWhileReading.moc"
