#include "plot/LogViewerItem.h"

#include "support/LoadedLog.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

/** Colours that are handed out and given back. */
class tst_LogViewerItemColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void givesBackAnOrderOfTicks();
    void dropsThoseThatAreNotOnTheAxis();
    void keepsTheAxesApart();
    void hasNoneOnTheBottomAxis();

private:
    typedef QMap<QString, QString> Colors;

    void check(int row, bool on) { m_log->source->updateVariableSelection(1, row, on); }
    QString color(const char *name)
    {
        return m_item->hexColorForAxisAndVariableName(1, QLatin1String(name));
    }

    QScopedPointer<LoadedLog> m_log;
    QScopedPointer<LogViewerItem> m_item;
};

void tst_LogViewerItemColors::init()
{
    m_log.reset(new LoadedLog("[Header]\nCreated\tx\n[Data]\nS\tS\tS\tS\nObs\tTime\tA\tB\n"
                              "-\t-\t-\t-\n1\t10:00:00\t1\t2\n2\t10:00:01\t3\t4\n"));
    m_item.reset(new LogViewerItem);
    m_item->setDataSource(m_log->source.data());
    m_item->setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_log->plot(0, 3);
    check(2, true);
}

void tst_LogViewerItemColors::cleanup()
{
    m_item.reset();
    m_log.reset();
}

void tst_LogViewerItemColors::givesBackAnOrderOfTicks()
{
    QCOMPARE(color("B"), QString::fromLatin1("#D90C00"));
    const Colors colors = m_item->variableColors(LogViewerItem::LeftAxis);
    QCOMPARE(colors.size(), 2);
    check(3, false);
    check(2, false);
    check(2, true);
    check(3, true);
    QCOMPARE(color("B"), QString::fromLatin1("#FF0000"));
    m_item->setVariableColors(LogViewerItem::LeftAxis, colors);
    m_item->updatePlot();
    QCOMPARE(color("A"), QString::fromLatin1("#FF0000"));
    QCOMPARE(color("B"), QString::fromLatin1("#D90C00"));
    QCOMPARE(m_item->variableColors(LogViewerItem::LeftAxis), colors);
}

void tst_LogViewerItemColors::dropsThoseThatAreNotOnTheAxis()
{
    Colors colors;
    colors.insert(QLatin1String("Q"), QLatin1String("#D90C00"));
    colors.insert(QLatin1String("B"), QLatin1String("#123456"));
    m_item->setVariableColors(LogViewerItem::LeftAxis, colors);
    m_item->updatePlot();
    QCOMPARE(color("Q"), QString::fromLatin1("#333"));
    QCOMPARE(color("B"), QString::fromLatin1("#123456"));
    QCOMPARE(color("A"), QString::fromLatin1("#D90C00"));
}

void tst_LogViewerItemColors::keepsTheAxesApart()
{
    const Colors left = m_item->variableColors(LogViewerItem::LeftAxis);
    Colors colors;
    colors.insert(QLatin1String("A"), QLatin1String("#123456"));
    m_item->setVariableColors(LogViewerItem::RightAxis, colors);
    QCOMPARE(m_item->variableColors(LogViewerItem::RightAxis), colors);
    QCOMPARE(m_item->variableColors(LogViewerItem::LeftAxis), left);
}

void tst_LogViewerItemColors::hasNoneOnTheBottomAxis()
{
    m_item->setVariableColors(LogViewerItem::BottomAxis,
                              m_item->variableColors(LogViewerItem::LeftAxis));
    QVERIFY(m_item->variableColors(LogViewerItem::BottomAxis).isEmpty());
}

QTEST_MAIN(tst_LogViewerItemColors)
#include "tst_LogViewerItemColors.moc"
