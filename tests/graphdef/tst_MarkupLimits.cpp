#include "graphdef/MarkupLimits.h"

#include "support/TestCompat.h"

/** What just fits, and what goes beyond; the same with zero bytes before or behind each byte. */
class tst_MarkupLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsLimits_data();
    void keepsLimits();
    void countsNoDeclarationsInContent();
};

namespace
{

enum Width { Narrow, LowByteFirst, HighByteFirst };

QByteArray widened(const QByteArray &bytes, Width width)
{
    QByteArray wide;
    for (int i = 0; i < bytes.size(); ++i) {
        if (width == HighByteFirst)
            wide += '\0';
        wide += bytes.at(i);
        if (width == LowByteFirst)
            wide += '\0';
    }
    return wide;
}

} // namespace

void tst_MarkupLimits::keepsLimits_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("fits");

    QTest::newRow("nothing") << QByteArray() << true;
    const QByteArray equals(MarkupLimits::MaxAttributes, '=');
    QTest::newRow("as many attributes as may be") << "<a" + equals + "/>" << true;
    QTest::newRow("one attribute more") << "<a" + equals + "=/>" << false;
    QTest::newRow("as many in each tag") << ("<a" + equals + "/>").repeated(3) << true;
    QTest::newRow("an end of a tag in a value") << "<a b=\">\"" + equals + "/>" << false;

    const QByteArray declarations(MarkupLimits::MaxDeclarations - 1, ' ');
    QTest::newRow("as many declarations as may be") << "<!A" + declarations << true;
    QTest::newRow("one byte more of declarations") << "<!A " + declarations << false;
    QTest::newRow("other declarations") << "<!ELEMENT <!NOTATION <!D " + declarations << true;

    QTest::newRow("an entity") << QByteArray("<!ENTITY a \"b\">") << true;
    QTest::newRow("an entity for declarations") << QByteArray("<!ENTITY % a \"b\">") << false;
    QTest::newRow("one with breaks") << QByteArray("<!ENTITY\n%\r\na \"b\">") << false;
    QTest::newRow("one after others") << QByteArray("<!ENTITY a \"b\"><!ENTITY\t% a") << false;
    QTest::newRow("percent signs without an entity") << QByteArray("<!DOCTYPE r> 5 % of") << true;
    QTest::newRow("percent signs in words") << QByteArray("<!ENTITY a \"%33 5% 5 %\">%b;") << true;
}

void tst_MarkupLimits::keepsLimits()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, fits);
    for (int width = Narrow; width <= HighByteFirst; ++width) {
        const QByteArray wide = widened(bytes, Width(width));
        MarkupLimits whole;
        QCOMPARE(whole.take(wide.constData(), wide.size()), fits);
        MarkupLimits inParts;
        int taken = 0;
        while (taken < wide.size() && inParts.take(wide.constData() + taken, 1))
            ++taken;
        QCOMPARE(taken == wide.size(), fits);
    }
}

void tst_MarkupLimits::countsNoDeclarationsInContent()
{
    MarkupLimits limits;
    QVERIFY(limits.take("<r>", 3));
    QCOMPARE(limits.declarations(), 0);
    QVERIFY(limits.take("<!ATTLIST", 9));
    QCOMPARE(limits.declarations(), 7);
    limits.startContent();
    const QByteArray content(MarkupLimits::MaxDeclarations, ' ');
    QVERIFY(limits.take(content.constData(), content.size()));
    QCOMPARE(limits.declarations(), 7);
}

QTEST_GUILESS_MAIN(tst_MarkupLimits)
#include "tst_MarkupLimits.moc"
