#include "graphdef/EntityExpansion.h"

#include "support/TestCompat.h"

/** How long entities get, told without making them that long. */
class tst_EntityExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheLongest_data();
    void tellsTheLongest();
};

namespace
{

/** Entities named e0, e1 and so on, each as told but the last, which is "x". */
QByteArray chain(int length, const char *pattern)
{
    QByteArray declarations;
    for (int i = 0; i < length - 1; ++i) {
        declarations += QByteArray("<!ENTITY e") + QByteArray::number(i) + " \""
            + QByteArray(pattern).replace('#', QByteArray::number(i + 1)) + "\">";
    }
    return declarations + "<!ENTITY e" + QByteArray::number(length - 1) + " \"x\">";
}

} // namespace

void tst_EntityExpansion::tellsTheLongest_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<qint64>("shortest"); // what it tells lies between these
    QTest::addColumn<qint64>("longest");

    const qint64 limit = EntityExpansion::MaxLength;
    QTest::newRow("none") << QByteArray() << qint64(0) << qint64(0);
    QTest::newRow("empty") << QByteArray("<!ENTITY a \"\">") << qint64(1) << qint64(1);
    QTest::newRow("one") << QByteArray("<!ENTITY a \"12345\">") << qint64(5) << qint64(5);
    QTest::newRow("the longest") << QByteArray("<!ENTITY a \"1\"><!ENTITY b \"123\">") << qint64(3)
                                 << qint64(3);
    QTest::newRow("the first of a name")
        << QByteArray("<!ENTITY a \"1\"><!ENTITY a \"123\">") << qint64(1) << qint64(1);
    QTest::newRow("a reference forward")
        << QByteArray("<!ENTITY a \"&b;&b;\"><!ENTITY b \"12345\">") << qint64(10) << qint64(16);
    QTest::newRow("a reference back")
        << QByteArray("<!ENTITY b \"12345\"><!ENTITY a \"&b;&b;\">") << qint64(10) << qint64(16);
    QTest::newRow("an unknown one") << QByteArray("<!ENTITY a \"&b;\">") << qint64(1) << qint64(3);
    QTest::newRow("itself") << QByteArray("<!ENTITY a \"&a;\">") << qint64(1) << qint64(3);
    QTest::newRow("no end") << QByteArray("<!ENTITY a \"&#38;b\">") << qint64(2) << qint64(7);
    QTest::newRow("a chain") << chain(900, "&e#;") << qint64(1) << qint64(7 * 900);
    QTest::newRow("doubled 20 times")
        << chain(21, "&e#;&e#;") << qint64(1 << 20) << qint64(20 << 20);
    QTest::newRow("doubled often") << chain(900, "&e#;&e#;") << limit << limit;
    QTest::newRow("too many") << chain(EntityExpansion::MaxEntities + 1, "1") << limit << limit;
}

void tst_EntityExpansion::tellsTheLongest()
{
    QFETCH(QByteArray, declarations);
    QFETCH(qint64, shortest);
    QFETCH(qint64, longest);
    QXmlStreamReader reader("<!DOCTYPE r [" + declarations + "]><r/>");
    while (!reader.atEnd() && !reader.isDTD())
        reader.readNext();
    QVERIFY2(reader.isDTD(), qPrintable(reader.errorString()));
    const qint64 told = EntityExpansion(reader.entityDeclarations()).longest();
    QVERIFY2(told >= shortest && told <= longest, qPrintable(QString::number(told)));
}

QTEST_GUILESS_MAIN(tst_EntityExpansion)
#include "tst_EntityExpansion.moc"
