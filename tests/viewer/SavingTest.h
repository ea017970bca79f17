#ifndef DATALOG_TESTS_VIEWER_SAVINGTEST_H
#define DATALOG_TESTS_VIEWER_SAVINGTEST_H

#include "PlotWindow.h"

/** A test with a window that shows a log, and the hands of a user on what saves its plot. */
class SavingTest : public QObject
{
    Q_OBJECT

protected:
    void open(const QByteArray &log, const ViewerOptions &options = ViewerOptions())
    {
        m_log.reset(new TemporaryLog(log));
        m_window.reset(new PlotWindow(options));
        QVERIFY(m_window->open(m_log->path()));
    }
    void close()
    {
        m_window.reset();
        m_log.reset();
    }
    QString path(const QString &name) const { return m_log->directory() + '/' + name; }
    QObject *popup() const { return m_window->window()->findChild<QObject *>("savePopup"); }
    QQuickItem *part(const char *name) const { return popup()->findChild<QQuickItem *>(name); }
    QString text(const char *name) const { return part(name)->property("text").toString(); }

    void openPopup()
    {
        QVERIFY(m_window->click("saveAs"));
        QTRY_VERIFY(popup()->property("opened").toBool());
    }
    /** By keys: down from the first one. */
    void choose(int kind)
    {
        part("saveKind")->forceActiveFocus();
        m_window->key(Qt::Key_Home);
        for (int i = 0; i < kind; ++i)
            m_window->key(Qt::Key_Down);
        QCOMPARE(part("saveKind")->property("currentIndex").toInt(), kind);
    }
    void setPath(const QString &path)
    {
        QVERIFY(m_window->click(part("savePath")));
        QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
        m_window->type(path);
    }
    void setSize(const char *spinBox, int pixels)
    {
        QVERIFY(m_window->click(part(spinBox)));
        QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
        m_window->type(QString::number(pixels));
        m_window->key(Qt::Key_Return);
        QCOMPARE(part(spinBox)->property("value").toInt(), pixels);
    }
    void save()
    {
        QVERIFY(m_window->settle());
        QVERIFY(m_window->click(part("save")));
    }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
};

#endif
