#include "plot/AxisColors.h"

#include "declarative/TextCompat.h"
#include "support/TestCompat.h"

class tst_AxisColors : public QObject
{
    Q_OBJECT

private slots:
    void update_data();
    void update();
    void fallback();
};

void tst_AxisColors::update_data()
{
    QTest::addColumn<QString>("steps"); // the names on the axis, step by step
    QTest::addColumn<QString>("expected");

    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("in the order given") << "B A C"
                                        << "A=1 B=0 C=2";
    QTest::newRow("no slot twice") << "A B C D E"
                                   << "A=0 B=1 C=2 D=3 E=4";
    QTest::newRow("who stays keeps, who comes takes the lowest") << "A B C|B C D"
                                                                 << "B=1 C=2 D=0";
    QTest::newRow("two lowest") << "A B C D|B D|B D X Y"
                                << "B=1 D=3 X=0 Y=2";
    QTest::newRow("gone is forgotten") << "A B|B|A B"
                                       << "A=0 B=1";
    QTest::newRow("leaving and coming in one step") << "A B|C B"
                                                    << "B=1 C=0";
    QTest::newRow("all gone") << "A B|"
                              << "";
    QTest::newRow("a sixth has none") << "A B C D E F"
                                      << "A=0 B=1 C=2 D=3 E=4";
    QTest::newRow("a sixth takes no slot from a later one") << "A B C D E F|B C D E"
                                                            << "B=1 C=2 D=3 E=4";
    QTest::newRow("a sixth gets the slot that gets free") << "A B C D E F|A B D E F"
                                                          << "A=0 B=1 D=3 E=4 F=2";
    QTest::newRow("a seventh waits on") << "A B C D E F G|A B D E F G"
                                        << "A=0 B=1 D=3 E=4 F=2";
}

void tst_AxisColors::update()
{
    QFETCH(QString, steps);
    QFETCH(QString, expected);
    const QStringList palette = QString::fromLatin1("0 1 2 3 4").split(QLatin1Char(' '));
    QMap<QString, QString> colors;
    foreach (const QString &step, steps.split(QLatin1Char('|')))
        AxisColors::update(&colors, step.split(QLatin1Char(' '), Compat::SkipEmptyParts), palette);
    QStringList result;
    foreach (const QString &name, colors.keys())
        result << name + QLatin1Char('=') + colors.value(name);
    QCOMPARE(result.join(QLatin1String(" ")), expected);
}

void tst_AxisColors::fallback()
{
    QCOMPARE(AxisColors::fallback(), QString::fromLatin1("#333"));
}

QTEST_MAIN(tst_AxisColors)
#include "tst_AxisColors.moc"
