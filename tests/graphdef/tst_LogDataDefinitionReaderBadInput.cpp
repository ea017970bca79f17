#include "graphdef/LogDataDefinitionReader.h"

#include "filters/LogDataSetFilter.h"
#include "graphdef/GuardedXmlDevice.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QScopedPointer>
#include <QUrl>

/** Files that are no definitions, cut short or made to harm: an error or a result, and soon. */
class tst_LogDataDefinitionReaderBadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void refusesWhatIsNoXml_data();
    void refusesWhatIsNoXml();
    void keepsWhatCameBeforeAnError();
    void refusesAFileCutShort();
    void survivesAnyByteAnywhere();
    void nestsAMillionDeep_data();
    void nestsAMillionDeep();
    void readsHugeValues();
    void refusesExpansion_data();
    void refusesExpansion();
    void refusesEncodingsThatHideMarkup_data();
    void refusesEncodingsThatHideMarkup();
    void readsNoOtherFiles_data();
    void readsNoOtherFiles();
    void refusesWhatWouldTakeForever_data();
    void refusesWhatWouldTakeForever();

private:
    bool read(const QByteArray &bytes);

    TempDir m_dir;
    QElapsedTimer m_timer;
    QScopedPointer<LogDataDefinitionReader> m_reader;
};

namespace
{

const char kDefinition[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<GraphDefinition version=\"1.0\" instrument=\"RV-3140\">\n"
                           "    <BottomAxis name=\"Time\"/>\n"
                           "    <LeftAxis>\n"
                           "        <LeftVar name=\"\xc2\xb5&lt;\"/>\n"
                           "    </LeftAxis>\n"
                           "    <RightAxis/>\n"
                           "    <Criteria>\n"
                           "        <Expression name=\"CO2\" op=\"%33\" value=\"1.5\"/>\n"
                           "    </Criteria>\n"
                           "</GraphDefinition>";
const char kTooLarge[] = "The document is too large or too complex.";

/** Ten entities, each ten times the one before, down to the text "a". */
QByteArray laughs()
{
    QByteArray declarations = "<!ENTITY a \"lol\">";
    for (char name = 'b'; name <= 'j'; ++name) {
        const QByteArray before = QByteArray("&") + char(name - 1) + ';';
        declarations += QByteArray("<!ENTITY ") + name + " \"" + before.repeated(10) + "\">";
    }
    return declarations;
}

QByteArray withDeclarations(const QByteArray &declarations, const QByteArray &content)
{
    return "<!DOCTYPE r [" + declarations + "]>" + content;
}

/** Attributes or declarations by number, such as a0="" a1="". */
QByteArray numbered(const QByteArray &pattern, int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += QByteArray(pattern).replace('#', QByteArray::number(i));
    return text;
}

} // namespace

void tst_LogDataDefinitionReaderBadInput::init()
{
    m_reader.reset(new LogDataDefinitionReader);
}

void tst_LogDataDefinitionReaderBadInput::cleanup()
{
    qDeleteAll(m_reader->criteria());
}

bool tst_LogDataDefinitionReaderBadInput::read(const QByteArray &bytes)
{
    // Writing over a file may wait for the disk, and some tests write thousands.
    QFile::remove(m_dir.filePath(QLatin1String("definition.xml")));
    const QString path = m_dir.write(QLatin1String("definition.xml"), bytes);
    m_timer.start();
    return m_reader->readGraphDefinition(path);
}

void tst_LogDataDefinitionReaderBadInput::refusesWhatIsNoXml_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \n\n ");
    QTest::newRow("text") << QByteArray("[Header]\nLeftVar name=1\n");
    QTest::newRow("JSON") << QByteArray("{\"yleft\": {}}");
    QTest::newRow("zero bytes") << QByteArray(5000, '\0');
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("no UTF-8") << QByteArray("<LeftVar name=\"\xb5\"/>");
    QTest::newRow("an unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"none\"?><LeftVar name=\"1\"/>");
    QTest::newRow("half of a UTF-16 character") << QByteArray("\xff\xfe<\0r\0/\0>", 9);
    QTest::newRow("two roots") << QByteArray("<r/><r/>");
    QTest::newRow("a wrong end") << QByteArray("<r></s>");
    QTest::newRow("no quotes") << QByteArray("<LeftVar name=1/>");
    QTest::newRow("an attribute twice") << QByteArray("<BottomAxis name=\"1\" name=\"2\"/>");
    QTest::newRow("an unknown entity") << QByteArray("<LeftVar name=\"&none;\"/>");
    QTest::newRow("a control character") << QByteArray("<LeftVar name=\"\x01\"/>");
    QTest::newRow("a coded control character") << QByteArray("<LeftVar name=\"&#1;\"/>");
}

void tst_LogDataDefinitionReaderBadInput::refusesWhatIsNoXml()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!read(bytes));
    QVERIFY(!m_reader->errorMessage().isEmpty());
    QCOMPARE(m_reader->yLeftVars(), QStringList());
    QCOMPARE(m_reader->xVar(), QString());
}

void tst_LogDataDefinitionReaderBadInput::keepsWhatCameBeforeAnError()
{
    QVERIFY(!read("<r><LeftVar name=\"1\"/><RightVar name=\"2\"/></wrong><LeftVar name=\"3\"/>"));
    QCOMPARE(m_reader->errorMessage(), QString::fromLatin1("Opening and ending tag mismatch."));
    QCOMPARE(m_reader->yLeftVars(), QStringList() << QLatin1String("1"));
    QCOMPARE(m_reader->yRightVars(), QStringList() << QLatin1String("2"));
}

/** After each byte of a good file but the last. */
void tst_LogDataDefinitionReaderBadInput::refusesAFileCutShort()
{
    const QByteArray whole(kDefinition);
    QVERIFY(read(whole));
    for (int size = 0; size < whole.size(); ++size) {
        cleanup();
        init();
        QVERIFY2(!read(whole.left(size)), QByteArray::number(size).constData());
        QCOMPARE(m_reader->errorMessage(), QString::fromLatin1("Premature end of document."));
        QCOMPARE(m_reader->criteria().size(), whole.left(size).contains("1.5\"/>") ? 1 : 0);
    }
}

/** Each byte of a good file replaced by some that mean something, and by some that do not. */
void tst_LogDataDefinitionReaderBadInput::survivesAnyByteAnywhere()
{
    const QByteArray whole(kDefinition);
    const QByteArray bytes("<>&\"'/=%!?-[]\0\x01\x7f\xc2\xff\n ", 20);
    int results[2] = {0, 0};
    for (int at = 0; at < whole.size(); ++at) {
        for (int i = 0; i < bytes.size(); ++i) {
            QByteArray changed = whole;
            changed[at] = bytes.at(i);
            cleanup();
            init();
            const bool isRead = read(changed);
            ++results[isRead];
            QCOMPARE(m_reader->errorMessage().isEmpty(), isRead);
        }
    }
    QVERIFY(results[false] > 0);
    QVERIFY(results[true] > 0);
}

void tst_LogDataDefinitionReaderBadInput::nestsAMillionDeep_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QString>("error");

    QTest::newRow("closed") << QByteArray("<a>") << QByteArray("</a>") << "";
    QTest::newRow("of the format") << QByteArray("<LeftAxis>") << QByteArray("</LeftAxis>") << "";
    QTest::newRow("never closed") << QByteArray("<a>") << QByteArray()
                                  << "Premature end of document.";
}

void tst_LogDataDefinitionReaderBadInput::nestsAMillionDeep()
{
    const int depth = 1000000;
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, end);
    QFETCH(QString, error);
    QCOMPARE(read(start.repeated(depth) + "<LeftVar name=\"1\"/>" + end.repeated(depth)),
             error.isEmpty());
    QCOMPARE(m_reader->errorMessage(), error);
    QCOMPARE(m_reader->yLeftVars(), QStringList() << QLatin1String("1"));
}

void tst_LogDataDefinitionReaderBadInput::readsHugeValues()
{
    const QByteArray huge(20 * 1000 * 1000, 'x');
    QVERIFY(read("<r><LeftVar name=\"" + huge + "\"/><!--" + huge + "--></r>"));
    QCOMPARE(m_reader->yLeftVars().first().size(), huge.size());
    cleanup();
    init();
    QVERIFY(read("<Expression name=\"" + huge + "\" op=\"" + huge + "\" value=\"" + huge + "\"/>"));
    QCOMPARE(m_reader->criteria().first()->filterOperator(), 0);
    QCOMPARE(m_reader->criteria().first()->variable().size(), huge.size());
}

void tst_LogDataDefinitionReaderBadInput::refusesExpansion_data()
{
    QTest::addColumn<QByteArray>("xml");

    QTest::newRow("a billion in a text") << withDeclarations(laughs(), "<r>&j;</r>");
    QTest::newRow("a billion in a value") << withDeclarations(laughs(), "<LeftVar name=\"&j;\"/>");
    QTest::newRow("a billion in a default value")
        << withDeclarations(laughs() + "<!ATTLIST LeftVar name CDATA \"&j;\">", "<LeftVar/>");
    QTest::newRow("itself") << withDeclarations("<!ENTITY a \"&a;\">", "<LeftVar name=\"&a;\"/>");
    QTest::newRow("each other") << withDeclarations("<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">",
                                                    "<LeftVar name=\"&a;\"/>");
    const QByteArray page = "<!ENTITY a \"" + QByteArray(4000, 'x') + "\">";
    const QByteArray references = QByteArray("&a;").repeated(400000);
    QTest::newRow("a page, often, in a text")
        << withDeclarations(page, "<r>" + references + "</r>");
    QTest::newRow("a page, often, in a value")
        << withDeclarations(page, "<LeftVar name=\"" + references + "\"/>");
    QByteArray deeper = "<!ENTITY % a \"<!-- -->\">";
    for (char name = 'b'; name <= 'j'; ++name) {
        const QByteArray before = QByteArray("&#37;") + char(name - 1) + ';';
        deeper += QByteArray("<!ENTITY % ") + name + " \"" + before.repeated(10) + "\">";
    }
    QTest::newRow("a billion declarations") << withDeclarations(deeper + "%j;", "<r/>");
    QTest::newRow("a page of declarations, often") << withDeclarations(
        "<!ENTITY % a \"" + QByteArray(4000, ' ') + "\">" + QByteArray("%a;").repeated(1000000),
        "<r/>");
    QTest::newRow("a long chain") << withDeclarations(numbered("<!ENTITY e0# \"&e0#0;\">", 50000),
                                                      "<r>&e01;</r>");
}

void tst_LogDataDefinitionReaderBadInput::refusesExpansion()
{
    QFETCH(QByteArray, xml);
    QVERIFY(!read(xml));
    QVERIFY(!m_reader->errorMessage().isEmpty());
    QCOMPARE(m_reader->yLeftVars(), QStringList());
    QVERIFY2(m_timer.elapsed() < 40000, qPrintable(QString::number(m_timer.elapsed())));
}

void tst_LogDataDefinitionReaderBadInput::refusesEncodingsThatHideMarkup_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("one that shifts")
        << QByteArray("UTF-7") << "<LeftVar" + numbered(" a#+AD0-\"\"", 200000) + "/>";
    // The letters are others, so what follows the declaration is nonsense or nothing.
    QTest::newRow("of a mainframe") << QByteArray("IBM037") << QByteArray(200000, '\x7e');
    QTest::newRow("one that packs") << QByteArray("BOCU-1") << QByteArray(200000, '\x8d');
}

/** Whether the engine knows such an encoding or not. */
void tst_LogDataDefinitionReaderBadInput::refusesEncodingsThatHideMarkup()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, content);
    QVERIFY(!read("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + content));
    QCOMPARE(m_reader->errorMessage(),
             QString::fromLatin1("Encoding %1 is unsupported").arg(QLatin1String(encoding)));
    QVERIFY2(m_timer.elapsed() < 40000, qPrintable(QString::number(m_timer.elapsed())));
}

void tst_LogDataDefinitionReaderBadInput::readsNoOtherFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRead");

    QTest::newRow("in a text") << QByteArray("<r>&f;<LeftVar name=\"1\"/></r>") << true;
    QTest::newRow("in a value") << QByteArray("<LeftVar name=\"&f;\"/>") << false;
}

void tst_LogDataDefinitionReaderBadInput::readsNoOtherFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isRead);
    const QString other = m_dir.write(QLatin1String("other.xml"), "<LeftVar name=\"other\"/>");
    const QByteArray entity
        = "<!ENTITY f SYSTEM \"" + QUrl::fromLocalFile(other).toEncoded() + "\">";
    QCOMPARE(read(withDeclarations(entity, content)), isRead);
    QVERIFY(!m_reader->yLeftVars().contains(QLatin1String("other")));
}

void tst_LogDataDefinitionReaderBadInput::refusesWhatWouldTakeForever_data()
{
    QTest::addColumn<QByteArray>("xml");

    QTest::newRow("attributes") << QByteArray("<LeftVar" + numbered(" a#=\"\"", 200000) + "/>");
    QTest::newRow("attributes that try to hide")
        << QByteArray("<LeftVar" + numbered(" a#=\">\"", 200000) + "/>");
    QTest::newRow("attributes by default")
        << withDeclarations("<!ATTLIST r" + numbered(" a# CDATA \"x\"", 200000) + ">", "<r/>");
    QTest::newRow("attributes without a default") << withDeclarations(
        "<!ATTLIST r" + numbered(" a# CDATA @IMPLIED", 200000).replace('@', '#') + ">", "<r/>");
    QTest::newRow("attributes of many elements")
        << withDeclarations(numbered("<!ATTLIST r# a CDATA \"x\">", 200000), "<r/>");
    QTest::newRow("namespaces") << QByteArray("<a xmlns:p=\"u\">").repeated(100000)
            + QByteArray("</a>").repeated(100000);
    QTest::newRow("size") << QByteArray("<r><!--") + QByteArray(GuardedXmlDevice::MaxBytes, ' ')
            + "--></r>";
}

void tst_LogDataDefinitionReaderBadInput::refusesWhatWouldTakeForever()
{
    QFETCH(QByteArray, xml);
    QVERIFY(!read(xml));
    QCOMPARE(m_reader->errorMessage(), QString::fromLatin1(kTooLarge));
    QVERIFY2(m_timer.elapsed() < 40000, qPrintable(QString::number(m_timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_LogDataDefinitionReaderBadInput)
#include "tst_LogDataDefinitionReaderBadInput.moc"
