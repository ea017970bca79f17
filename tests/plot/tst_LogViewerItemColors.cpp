#include "plot/PlotFixture.h"

/** The variables' colours: how they are chosen, told, handed out and given back. */
class tst_LogViewerItemColors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void colorsFollowTheVariables();
    void colorsStayWhileTheAxisIsOff();
    void moreThanFiveVariables();
    void sameNameOnBothAxes();
    void hexColor();
    void rangeOfHexColorAxes();
    void givesBackAnOrderOfTicks();
    void dropsThoseThatAreNotOnTheAxis();
    void keepsTheAxesApart();
    void hasNoneOnTheBottomAxis();

private:
    typedef QMap<QString, QString> Colors;

    void showBThenA();
    QString color(const char *name)
    {
        return m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String(name));
    }

    QScopedPointer<PlotFixture> m_plot;
};

void tst_LogViewerItemColors::init()
{
    m_plot.reset(new PlotFixture);
}

void tst_LogViewerItemColors::cleanup()
{
    m_plot.reset();
}

// Chosen by the item

void tst_LogViewerItemColors::colorsFollowTheVariables()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B C", "");
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("A=#d90c00 B=#ff0000 C=#ff0700"));
    m_plot->log.uncheck(1, "A");
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("B=#ff0000 C=#ff0700"));
    m_plot->log.check(1, "E");
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("B=#ff0000 C=#ff0700 E=#d90c00"));
    m_plot->log.check(1, "A");
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("A=#ff7d38 B=#ff0000 C=#ff0700 E=#d90c00"));
}

void tst_LogViewerItemColors::colorsStayWhileTheAxisIsOff()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B", "");
    m_plot->item.setLinesEnabled(kLeft, false);
    m_plot->log.uncheck(1, "A");
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#D90C00"));
    m_plot->item.setLinesEnabled(kLeft, true);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("A")),
             QString::fromLatin1("#333"));
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("B=#ff0000"));
}

void tst_LogViewerItemColors::moreThanFiveVariables()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B C D E F G", "");
    QCOMPARE(m_plot->colorsText(),
             QString::fromLatin1("A=#d90c00 B=#ff0000 C=#ff0700 D=#ff7d38 "
                                 "E=#ffab7e F=#333333 G=#333333"));
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("F")),
             QString::fromLatin1("#333"));
    m_plot->log.uncheck(1, "B");
    QCOMPARE(m_plot->colorsText(),
             QString::fromLatin1("A=#d90c00 C=#ff0700 D=#ff7d38 E=#ffab7e "
                                 "F=#ff0000 G=#333333"));
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("F")),
             QString::fromLatin1("#FF0000"));
}

void tst_LogViewerItemColors::sameNameOnBothAxes()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "A B", "B");
    QCOMPARE(m_plot->colorsText(), QString::fromLatin1("A=#d90c00 B=#ff0000 B=#002e00"));
}

void tst_LogViewerItemColors::hexColor()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "A B C D E", "A B C D E");
    const char *const left[] = {"#D90C00", "#FF0000", "#FF0700", "#FF7D38", "#FFAB7E"};
    const char *const right[] = {"#002E00", "#0C6400", "#428000", "#54B100", "#BFE88F"};
    for (int i = 0; i < 5; ++i) {
        const QString name(QChar::fromLatin1(char('A' + i)));
        QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, name),
                 QString::fromLatin1(left[i]));
        QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(2, name),
                 QString::fromLatin1(right[i]));
    }
}

void tst_LogViewerItemColors::rangeOfHexColorAxes()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    const QString none = QLatin1String("#333");
    const QString a = QLatin1String("A");
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(0, a), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(0, QLatin1String("Obs")), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(2, a), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(3, a), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(-1, a), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QLatin1String("a")), none);
    QCOMPARE(m_plot->item.hexColorForAxisAndVariableName(1, QString()), none);
}

// Handed out and given back

void tst_LogViewerItemColors::showBThenA()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "B", "");
    m_plot->log.check(1, "A");
}

void tst_LogViewerItemColors::givesBackAnOrderOfTicks()
{
    showBThenA();
    QCOMPARE(color("B"), QString::fromLatin1("#D90C00"));
    const Colors colors = m_plot->item.variableColors(kLeft);
    QCOMPARE(colors.size(), 2);
    m_plot->log.uncheck(1, "B A");
    m_plot->log.check(1, "A B");
    QCOMPARE(color("B"), QString::fromLatin1("#FF0000"));
    m_plot->item.setVariableColors(kLeft, colors);
    m_plot->item.updatePlot();
    QCOMPARE(color("A"), QString::fromLatin1("#FF0000"));
    QCOMPARE(color("B"), QString::fromLatin1("#D90C00"));
    QCOMPARE(m_plot->item.variableColors(kLeft), colors);
}

void tst_LogViewerItemColors::dropsThoseThatAreNotOnTheAxis()
{
    showBThenA();
    Colors colors;
    colors.insert(QLatin1String("Q"), QLatin1String("#D90C00"));
    colors.insert(QLatin1String("B"), QLatin1String("#123456"));
    m_plot->item.setVariableColors(kLeft, colors);
    m_plot->item.updatePlot();
    QCOMPARE(color("Q"), QString::fromLatin1("#333"));
    QCOMPARE(color("B"), QString::fromLatin1("#123456"));
    QCOMPARE(color("A"), QString::fromLatin1("#D90C00"));
}

void tst_LogViewerItemColors::keepsTheAxesApart()
{
    showBThenA();
    const Colors left = m_plot->item.variableColors(kLeft);
    Colors colors;
    colors.insert(QLatin1String("A"), QLatin1String("#123456"));
    m_plot->item.setVariableColors(kRight, colors);
    QCOMPARE(m_plot->item.variableColors(kRight), colors);
    QCOMPARE(m_plot->item.variableColors(kLeft), left);
}

void tst_LogViewerItemColors::hasNoneOnTheBottomAxis()
{
    showBThenA();
    m_plot->item.setVariableColors(kBottom, m_plot->item.variableColors(kLeft));
    QVERIFY(m_plot->item.variableColors(kBottom).isEmpty());
}

QTEST_MAIN(tst_LogViewerItemColors)
#include "tst_LogViewerItemColors.moc"
