#include "graphdef/GuardedXmlDevice.h"

#include "support/TestCompat.h"

#include <QBuffer>

/** Where the limits of documents lie: what just fits is read, what goes beyond is an error. */
class tst_GuardedXmlDevice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsLimits_data();
    void keepsLimits();
    void passesBytesThrough();
    void takesNoBytes();
};

namespace
{

QByteArray attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "=\"\"";
    return text;
}

QByteArray declared(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + " CDATA \"x\"";
    return text;
}

QByteArray entityOf(int length, int references, int padding)
{
    return "<!DOCTYPE r [<!ENTITY a \"" + QByteArray(length, 'x') + "\">]><r>"
        + QByteArray("&a;").repeated(references) + QByteArray(padding, ' ') + "</r>";
}

} // namespace

void tst_GuardedXmlDevice::keepsLimits_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("fits");

    const int most = MarkupLimits::MaxAttributes;
    QTest::newRow("as many attributes as may be") << "<r" + attributes(most) + "/>" << true;
    QTest::newRow("one attribute more") << "<r" + attributes(most + 1) + "/>" << false;
    QTest::newRow("as many in each of three tags") << "<r><a" + attributes(most) + "/><a"
            + attributes(most) + "/><a" + attributes(most)
            + "/></r>" << true;
    const int names = GuardedXmlDevice::MaxNamespaces;
    QTest::newRow("as many namespaces as may be")
        << "<r>" + QByteArray("<a xmlns=\"u\"/>").repeated(names) + "</r>" << true;
    QTest::newRow("one namespace more")
        << "<r>" + QByteArray("<a xmlns=\"u\"/>").repeated(names + 1) + "</r>" << false;
    const QByteArray wide = "<a" + attributes(1000) + "/>";
    const int tags = GuardedXmlDevice::MaxComparisons / (1000 * 1000);
    QTest::newRow("many tags of many attributes") << "<r>" + wide.repeated(tags) + "</r>" << true;
    QTest::newRow("one such tag more") << "<r>" + wide.repeated(tags + 1) + "</r>" << false;
    const QByteArray defaults = "<!DOCTYPE r [<!ATTLIST a" + declared(1000) + ">]>";
    QTest::newRow("attributes by default") << defaults + "<r><a/><a/></r>" << true;
    QTest::newRow("more and more attributes by default")
        << defaults + "<r>" + QByteArray("<a/>").repeated(tags + 1) + "</r>" << false;
    QTest::newRow("declarations in a document of many elements") << "<!DOCTYPE r [<!ATTLIST a"
            + declared(3000) + ">]><r>" + QByteArray("<b/>").repeated(200000)
            + "</r>" << false;
    QTest::newRow("a long document without entities")
        << "<r>" + QByteArray(100000, ' ') + "</r>" << true;
    QTest::newRow("entities in a short document") << entityOf(1000, 1000, 0) << true;
    QTest::newRow("entities in a longer document") << entityOf(1000, 1000, 100000) << false;
}

void tst_GuardedXmlDevice::keepsLimits()
{
    QFETCH(QByteArray, xml);
    QFETCH(bool, fits);
    QBuffer source(&xml);
    QVERIFY(source.open(QIODevice::ReadOnly));
    GuardedXmlDevice device(&source);
    QXmlStreamReader reader(&device);
    while (!reader.atEnd()) {
        reader.readNext();
        device.check(reader);
    }
    QCOMPARE(reader.errorString(),
             QString::fromLatin1(fits ? "" : "The document is too large or too complex."));
}

void tst_GuardedXmlDevice::passesBytesThrough()
{
    QByteArray bytes("any \0 bytes \xff\r\n", 15);
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadOnly));
    GuardedXmlDevice device(&source);
    QVERIFY(device.isSequential());
    QCOMPARE(device.readAll(), bytes);
}

void tst_GuardedXmlDevice::takesNoBytes()
{
    QByteArray bytes("kept");
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadWrite));
    GuardedXmlDevice device(&source);
    QVERIFY(!device.isWritable());
    QCOMPARE(bytes, QByteArray("kept"));
}

QTEST_GUILESS_MAIN(tst_GuardedXmlDevice)
#include "tst_GuardedXmlDevice.moc"
