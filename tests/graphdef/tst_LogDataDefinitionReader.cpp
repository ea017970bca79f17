#include "graphdef/LogDataDefinitionReader.h"

#include "filters/LogDataSetFilter.h"
#include "support/SpecialFiles.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

#include <limits>

namespace
{

enum ByteOrder { LowByteFirst, HighByteFirst };

/** With the mark that tells the order. */
QByteArray utf16(const QString &text, ByteOrder order)
{
    QByteArray bytes;
    foreach (QChar c, QChar(0xfeff) + text) {
        const char low = char(c.cell());
        const char high = char(c.row());
        bytes.append(order == LowByteFirst ? low : high);
        bytes.append(order == LowByteFirst ? high : low);
    }
    return bytes;
}

} // namespace

/** What is read out of well-formed files; tst_LogDataDefinitionReaderBadInput has the others. */
class tst_LogDataDefinitionReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void addsNothingToTheMetaObject();
    void startsEmpty();
    void reads_data();
    void reads();
    void readsOperators_data();
    void readsOperators();
    void readsValues_data();
    void readsValues();
    void readsEncodings_data();
    void readsEncodings();
    void readsWideCharactersWhole();
    void addsToTheLists();
    void keepsTheHorizontalVariable();
    void makesActiveCriteriaWithoutAParent();
    void leavesTheCriteriaToItsCaller();
    void tellsAMissingFile();
    void refusesSpecialFiles();
    void keepsAnErrorTold();

private:
    bool read(const QByteArray &bytes);
    QString described() const;

    TempDir m_dir;
    QScopedPointer<LogDataDefinitionReader> m_reader;
};

void tst_LogDataDefinitionReader::init()
{
    m_reader.reset(new LogDataDefinitionReader);
}

void tst_LogDataDefinitionReader::cleanup()
{
    qDeleteAll(m_reader->criteria());
}

bool tst_LogDataDefinitionReader::read(const QByteArray &bytes)
{
    return m_reader->readGraphDefinition(m_dir.write(QLatin1String("definition.xml"), bytes));
}

/** All that was read: horizontal|left|right|criteria, lists with commas. */
QString tst_LogDataDefinitionReader::described() const
{
    QStringList criteria;
    foreach (const LogDataSetFilter *criterion, m_reader->criteria())
        criteria << criterion->toString();
    const QString comma = QString::fromLatin1(",");
    return m_reader->xVar() + QLatin1Char('|') + m_reader->yLeftVars().join(comma)
        + QLatin1Char('|') + m_reader->yRightVars().join(comma) + QLatin1Char('|')
        + criteria.join(comma);
}

void tst_LogDataDefinitionReader::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = LogDataDefinitionReader::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("LogDataDefinitionReader"));
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QObject"));
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QObject parent;
    QCOMPARE((new LogDataDefinitionReader(&parent))->parent(), &parent);
}

void tst_LogDataDefinitionReader::startsEmpty()
{
    QCOMPARE(described(), QString::fromLatin1("|||"));
    QCOMPARE(m_reader->errorMessage(), QString());
}

void tst_LogDataDefinitionReader::reads_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("result");

    QTest::newRow("everything") << QByteArray(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<GraphDefinition version=\"1.0\" instrument=\"RV-3140\">\n"
        "    <BottomAxis name=\"Time\"/>\n"
        "    <LeftAxis><LeftVar name=\"CO2\"/><LeftVar name=\"H2O\"/></LeftAxis>\n"
        "    <RightAxis><RightVar name=\"RH\"/></RightAxis>\n"
        "    <Criteria>\n"
        "        <Expression name=\"Tair\" op=\"1\" value=\"25.5\"/>\n"
        "        <Expression name=\"CO2\" op=\"5\" value=\"-1\"/>\n"
        "    </Criteria>\n"
        "</GraphDefinition>\n") << "Time|CO2,H2O|RH|Tair>=25.5,CO2!=-1";
    QTest::newRow("nothing") << QByteArray("<GraphDefinition/>") << "|||";
    QTest::newRow("another root and another nesting")
        << QByteArray("<any><Expression name=\"x\" op=\"2\" value=\"3\"><LeftVar name=\"l\">"
                      "<RightVar name=\"r\"/></LeftVar></Expression><BottomAxis name=\"b\"/></any>")
        << "b|l|r|x<3";
    QTest::newRow("an element as the root") << QByteArray("<LeftVar name=\"l\"/>") << "|l||";
    QTest::newRow("another version and instrument")
        << QByteArray("<GraphDefinition version=\"9\" instrument=\"?\"><LeftVar name=\"l\"/>"
                      "</GraphDefinition>")
        << "|l||";
    QTest::newRow("unknown elements")
        << QByteArray("<r><Curve name=\"c\"/><LeftVar name=\"l\"/><Axis name=\"a\"/></r>")
        << "|l||";
    QTest::newRow("names on the lists' own elements")
        << QByteArray("<r><LeftAxis name=\"1\"/><RightAxis name=\"2\"/><Criteria name=\"3\" "
                      "op=\"0\" value=\"1\"/></r>")
        << "|||";
    QTest::newRow("the placeholder")
        << QByteArray("<r><CurveAttribute name=\"TODO\"/></r>") << "|||";
    QTest::newRow("other cases") << QByteArray("<r><leftVar name=\"1\"/><LEFTVAR name=\"2\"/>"
                                               "<LeftVar Name=\"3\"/></r>")
                                 << "|||";
    QTest::newRow("no names") << QByteArray("<r><BottomAxis/><LeftVar/><RightVar other=\"\"/></r>")
                              << "|||";
    QTest::newRow("empty names") << QByteArray(
        "<r><LeftVar name=\"\"/><LeftVar name=\"\"/><RightVar name=\"\"/></r>")
                                 << "|,||";
    QTest::newRow("the last horizontal variable")
        << QByteArray("<r><BottomAxis name=\"1\"/><BottomAxis name=\"2\"/><BottomAxis/></r>")
        << "2|||";
    QTest::newRow("a name twice") << QByteArray("<r><LeftVar name=\"1\"/><LeftVar name=\"1\"/></r>")
                                  << "|1,1||";
    QTest::newRow("escapes") << QByteArray("<LeftVar name=\"&lt;&amp;&#181;&quot;\"/>")
                             << QString::fromUtf8("|<&\xc2\xb5\"||");
    QTest::newRow("comments and sections")
        << QByteArray("<r><!-- <LeftVar name=\"1\"/> --><![CDATA[<LeftVar name=\"2\"/>]]>"
                      "<?pi <LeftVar name=\"3\"/>?>text</r>")
        << "|||";
    QTest::newRow("a prefix") << QByteArray("<p:r xmlns:p=\"u\"><p:LeftVar name=\"1\"/></p:r>")
                              << "|1||";
    QTest::newRow("a prefixed name")
        << QByteArray("<p:r xmlns:p=\"u\"><LeftVar p:name=\"1\"/></p:r>") << "|||";
    QTest::newRow("expressions that lack something")
        << QByteArray("<r><Expression name=\"x\" op=\"1\"/><Expression name=\"x\" value=\"1\"/>"
                      "<Expression op=\"1\" value=\"1\"/><Expression/></r>")
        << "|||";
    QTest::newRow("an expression with more")
        << QByteArray("<Expression value=\"1\" more=\"2\" op=\"4\" name=\"x\"/>") << "|||x=1";
    QTest::newRow("an own entity")
        << QByteArray("<!DOCTYPE r [<!ENTITY g \"CO2\"><!ENTITY h \"&g;_r\">]>"
                      "<LeftVar name=\"&h;\"/>")
        << "|CO2_r||";
    QTest::newRow("lines of another system")
        << QByteArray("<r>\r\n<LeftVar\r\nname=\"1\"/>\r\n</r>\r\n") << "|1||";
    QTest::newRow("breaks in names") << QByteArray("<LeftVar name=\"a\rb\nc\"/>") << "|ab c||";
}

void tst_LogDataDefinitionReader::reads()
{
    QFETCH(QByteArray, xml);
    QVERIFY2(read(xml), qPrintable(m_reader->errorMessage()));
    QTEST(described(), "result");
    QCOMPARE(m_reader->errorMessage(), QString());
}

void tst_LogDataDefinitionReader::readsOperators_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("filterOperator");

    for (int i = 0; i < 6; ++i)
        QTest::newRow(QByteArray::number(i).constData()) << QString::number(i) << i;
    QTest::newRow("percent-encoded") << "%33" << 3;
    QTest::newRow("percent-encoded in two") << "%30%35" << 5;
    QTest::newRow("as the writer writes it") << "&gt;=" << 0;
    QTest::newRow("not equal as the writer writes it") << "!=" << 0;
    QTest::newRow("nothing") << "" << 0;
    QTest::newRow("a fraction") << "1.5" << 0;
    QTest::newRow("hexadecimal") << "0x3" << 0;
    QTest::newRow("blanks around") << " 3 " << 3;
    QTest::newRow("an unknown one") << "17" << 17;
    QTest::newRow("a negative one") << "-1" << -1;
    QTest::newRow("more than fits") << "99999999999" << 0;
    QTest::newRow("a percent sign alone") << "%" << 0;
    QTest::newRow("a bad percent code") << "%zz" << 0;
    QTest::newRow("a percent-encoded zero byte") << "%00" << 0;
}

void tst_LogDataDefinitionReader::readsOperators()
{
    QFETCH(QString, text);
    QVERIFY(read(("<Expression name=\"x\" op=\"" + text.toLatin1() + "\" value=\"1\"/>")));
    QCOMPARE(m_reader->criteria().size(), 1);
    QTEST(m_reader->criteria().first()->filterOperator(), "filterOperator");
}

void tst_LogDataDefinitionReader::readsValues_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<float>("value");

    QTest::newRow("integer") << QByteArray("400") << 400.0f;
    QTest::newRow("exponent") << QByteArray("1e3") << 1000.0f;
    QTest::newRow("narrowed") << QByteArray("0.1") << 0.1f;
    QTest::newRow("more than six digits") << QByteArray("1234567") << 1234567.0f;
    QTest::newRow("no number") << QByteArray("abc") << 0.0f;
    QTest::newRow("nothing") << QByteArray() << 0.0f;
    QTest::newRow("a comma") << QByteArray("2,5") << 0.0f;
    QTest::newRow("too large") << QByteArray("1e300") << std::numeric_limits<float>::infinity();
}

void tst_LogDataDefinitionReader::readsValues()
{
    QFETCH(QByteArray, text);
    QVERIFY(read("<Expression name=\"x\" op=\"0\" value=\"" + text + "\"/>"));
    QCOMPARE(m_reader->criteria().size(), 1);
    QTEST(m_reader->criteria().first()->value(), "value");
}

void tst_LogDataDefinitionReader::readsEncodings_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("UTF-8") << QByteArray("<LeftVar name=\"\xc2\xb5\"/>");
    QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf<LeftVar name=\"\xc2\xb5\"/>");
    QTest::newRow("Latin-1") << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                                           "<LeftVar name=\"\xb5\"/>");
    const QString text = QString::fromUtf8("<LeftVar name=\"\xc2\xb5\"/>");
    QTest::newRow("UTF-16, low byte first") << utf16(text, LowByteFirst);
    QTest::newRow("UTF-16, high byte first") << utf16(text, HighByteFirst);
    const QString lines = QString::fromUtf8("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<r>\r\n"
                                            "<LeftVar name=\"\xc2\xb5\"/>\r\n</r>\r\n");
    QTest::newRow("lines of another system, low byte first") << utf16(lines, LowByteFirst);
    QTest::newRow("lines of another system, high byte first") << utf16(lines, HighByteFirst);
}

void tst_LogDataDefinitionReader::readsEncodings()
{
    QFETCH(QByteArray, bytes);
    QVERIFY2(read(bytes), qPrintable(m_reader->errorMessage()));
    QCOMPARE(described(), QString::fromUtf8("|\xc2\xb5||"));
}

/** Characters that have the byte of a carriage return in them. */
void tst_LogDataDefinitionReader::readsWideCharactersWhole()
{
    const QString name = QString::fromUtf8("\xc4\x8d\xe0\xb4\x85");
    const QString text = QString::fromUtf8("<LeftVar name=\"%1\"/>").arg(name);
    QVERIFY(read(utf16(text, LowByteFirst)));
    QVERIFY(read(utf16(text, HighByteFirst)));
    QCOMPARE(m_reader->yLeftVars(), QStringList() << name << name);
}

void tst_LogDataDefinitionReader::addsToTheLists()
{
    const QByteArray xml("<r><BottomAxis name=\"b\"/><LeftVar name=\"l\"/><RightVar name=\"r\"/>"
                         "<Expression name=\"x\" op=\"0\" value=\"1\"/></r>");
    QVERIFY(read(xml));
    QVERIFY(read(xml));
    QCOMPARE(described(), QString::fromLatin1("b|l,l|r,r|x>1,x>1"));
}

void tst_LogDataDefinitionReader::keepsTheHorizontalVariable()
{
    QVERIFY(read("<BottomAxis name=\"1\"/>"));
    QVERIFY(read("<r><BottomAxis/><LeftVar name=\"l\"/></r>"));
    QCOMPARE(m_reader->xVar(), QString::fromLatin1("1"));
    QVERIFY(read("<BottomAxis name=\"2\"/>"));
    QCOMPARE(m_reader->xVar(), QString::fromLatin1("2"));
}

void tst_LogDataDefinitionReader::makesActiveCriteriaWithoutAParent()
{
    QVERIFY(read("<Expression name=\"x\" op=\"0\" value=\"1\"/>"));
    QVERIFY(!m_reader->criteria().first()->parent());
    // As every criterion that is made to be added.
    QVERIFY(m_reader->criteria().first()->active());
}

void tst_LogDataDefinitionReader::leavesTheCriteriaToItsCaller()
{
    QScopedPointer<LogDataDefinitionReader> reader(new LogDataDefinitionReader);
    const QString path = m_dir.write(QLatin1String("definition.xml"),
                                     "<Expression name=\"x\" op=\"0\" value=\"1\"/>");
    QVERIFY(reader->readGraphDefinition(path));
    const QScopedPointer<LogDataSetFilter> criterion(reader->criteria().first());
    reader.reset();
    QCOMPARE(criterion->toString(), QString::fromLatin1("x>1"));
}

void tst_LogDataDefinitionReader::tellsAMissingFile()
{
    QVERIFY(!m_reader->readGraphDefinition(QLatin1String("/nowhere/%1.xml")));
    QCOMPARE(m_reader->errorMessage(),
             QString::fromLatin1("Failed to open file at path /nowhere/%1.xml"));
    QVERIFY(!m_reader->readGraphDefinition(m_dir.path()));
    QCOMPARE(m_reader->errorMessage(),
             QLatin1String("Failed to open file at path ") + m_dir.path());
    QCOMPARE(described(), QString::fromLatin1("|||"));
}

/** Pipes that nobody writes to, devices without an end and the like. */
void tst_LogDataDefinitionReader::refusesSpecialFiles()
{
    const TempDir dir;
    const SpecialFiles files(dir);
    foreach (const QString &name, files.names()) {
        const QString path = dir.filePath(name);
        QVERIFY2(!m_reader->readGraphDefinition(path), qPrintable(name));
        QCOMPARE(m_reader->errorMessage(), QLatin1String("Failed to open file at path ") + path);
    }
    QVERIFY(files.areThere());
}

void tst_LogDataDefinitionReader::keepsAnErrorTold()
{
    QVERIFY(!m_reader->readGraphDefinition(QLatin1String("/nowhere")));
    QVERIFY(read("<r/>"));
    QCOMPARE(m_reader->errorMessage(), QString::fromLatin1("Failed to open file at path /nowhere"));
}

QTEST_GUILESS_MAIN(tst_LogDataDefinitionReader)
#include "tst_LogDataDefinitionReader.moc"
