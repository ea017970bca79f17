#include "filters/RowChoice.h"

#include "support/TestCompat.h"

class tst_RowChoice : public QObject
{
    Q_OBJECT

private slots:
    void toldBySteps_data();
    void toldBySteps();
    void listed_data();
    void listed();
};

namespace
{

QString textOf(const QVector<int> &rows)
{
    QStringList texts;
    for (int i = 0; i < rows.size(); ++i)
        texts << QString::number(rows.at(i));
    return texts.join(QLatin1String(" "));
}

QVector<int> rowsOf(const QString &text)
{
    QVector<int> rows;
    foreach (const QString &row, text.split(QLatin1Char(' ')))
        rows << row.toInt();
    return text.isEmpty() ? QVector<int>() : rows;
}

/** The rows asked for one by one. */
QString askedOneByOne(const RowChoice &choice)
{
    QVector<int> rows;
    for (int i = 0; i < choice.count(); ++i)
        rows << choice.at(i);
    return textOf(rows);
}

} // namespace

void tst_RowChoice::toldBySteps_data()
{
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<bool>("isAllOfSix");
    QTest::newRow("all") << 0 << 6 << 1 << QString::fromLatin1("0 1 2 3 4 5") << true;
    QTest::newRow("too few") << 0 << 5 << 1 << QString::fromLatin1("0 1 2 3 4") << false;
    QTest::newRow("too many") << 0 << 7 << 1 << QString::fromLatin1("0 1 2 3 4 5 6") << false;
    QTest::newRow("as many, further down")
        << 1 << 7 << 1 << QString::fromLatin1("1 2 3 4 5 6") << false;
    QTest::newRow("as many, in steps")
        << 0 << 12 << 2 << QString::fromLatin1("0 2 4 6 8 10") << false;
    QTest::newRow("none") << 3 << 3 << 1 << QString::fromLatin1("") << false;
}

void tst_RowChoice::toldBySteps()
{
    QFETCH(int, begin);
    QFETCH(int, end);
    QFETCH(int, step);
    QFETCH(QString, rows);
    QFETCH(bool, isAllOfSix);
    const RowChoice choice(SteppedRows(begin, begin, end, step));
    QCOMPARE(askedOneByOne(choice), rows);
    QCOMPARE(textOf(choice.toVector()), rows);
    QCOMPARE(choice.isAllOf(6), isAllOfSix);
    QCOMPARE(choice.isAllOf(0), rows.isEmpty());
}

void tst_RowChoice::listed_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<bool>("isAllOfThree");
    QTest::newRow("all") << QString::fromLatin1("0 1 2") << true;
    QTest::newRow("another order") << QString::fromLatin1("0 2 1") << false;
    QTest::newRow("one left out") << QString::fromLatin1("0 2") << false;
    QTest::newRow("none") << QString::fromLatin1("") << false;
}

void tst_RowChoice::listed()
{
    QFETCH(QString, rows);
    QFETCH(bool, isAllOfThree);
    const RowChoice choice(rowsOf(rows));
    QCOMPARE(askedOneByOne(choice), rows);
    QCOMPARE(textOf(choice.toVector()), rows);
    QCOMPARE(choice.isAllOf(3), isAllOfThree);
    QCOMPARE(choice.isAllOf(0), rows.isEmpty());
}

QTEST_GUILESS_MAIN(tst_RowChoice)
#include "tst_RowChoice.moc"
