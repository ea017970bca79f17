#include "viewer/CommandLine.h"

#include <QtTest>

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void hasDefaults();
    void readsEverything();
    void readsRange_data();
    void readsRange();
    void readsStyle_data();
    void readsStyle();
    void readsActions_data();
    void readsActions();
    void knowsWhatWasGiven();
    void takesDefinitionFormats_data();
    void takesDefinitionFormats();
    void takesExportFormats_data();
    void takesExportFormats();
    void refuses_data();
    void refuses();
    void startsOver();
    void explains();

private:
    static QStringList arguments(const QString &text);
};

/** What a shell would make of @p text, without its quotes. */
QStringList tst_CommandLine::arguments(const QString &text)
{
    return QStringList("datalog-viewer") + text.split(' ', Qt::SkipEmptyParts);
}

void tst_CommandLine::hasDefaults()
{
    CommandLine line;
    QVERIFY(line.parse(arguments("")));
    const ViewerOptions options = line.options();
    QCOMPARE(options.action, ViewerOptions::Show);
    QCOMPARE(options.file, QString());
    QCOMPARE(options.dataSet, 1);
    QCOMPARE(options.x, QString());
    QCOMPARE(options.left, QStringList());
    QCOMPARE(options.right, QStringList());
    QCOMPARE(options.criteria.size(), 0);
    QCOMPARE(options.range, ViewerOptions::AllRows);
    QCOMPARE(options.every, 1);
    QCOMPARE(options.style, ViewerOptions::Lines);
    QCOMPARE(options.definition, QString());
    QCOMPARE(options.savedDefinition, QString());
    QCOMPARE(options.given, QStringList());
    QCOMPARE(options.exportFile, QString());
    QCOMPARE(options.size, QSize(1280, 800));
}

void tst_CommandLine::readsEverything()
{
    CommandLine line;
    QVERIFY2(line.parse(arguments("--data-set 2 --x Obs --left Tair --left RH --right CO2 "
                                  "--criterion Tair>=25.5 --criterion RH<60 --range tail:500 "
                                  "--every=3 --style both --definition a.json --save-definition "
                                  "b.xml --export plot.png --size 640x480 "
                                  "my.log")),
             qPrintable(line.errorText()));
    const ViewerOptions options = line.options();
    QCOMPARE(options.file, QString("my.log"));
    QCOMPARE(options.dataSet, 2);
    QCOMPARE(options.x, QString("Obs"));
    QCOMPARE(options.left, (QStringList{"Tair", "RH"}));
    QCOMPARE(options.right, QStringList{"CO2"});
    QCOMPARE(options.criteria.size(), 2);
    QCOMPARE(options.criteria.at(1).variable, QString("RH"));
    QCOMPARE(options.criteria.at(1).operatorIndex, 2);
    QCOMPARE(options.criteria.at(1).value, QString("60"));
    QCOMPARE(options.range, ViewerOptions::TailRows);
    QCOMPARE(options.rangeSize, 500);
    QCOMPARE(options.every, 3);
    QCOMPARE(options.style, ViewerOptions::Both);
    QCOMPARE(options.definition, QString("a.json"));
    QCOMPARE(options.savedDefinition, QString("b.xml"));
    QVERIFY(options.isGiven("style"));
    QVERIFY(options.isGiven("left"));
    QCOMPARE(options.exportFile, QString("plot.png"));
    QCOMPARE(options.size, QSize(640, 480));
}

void tst_CommandLine::readsRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("range");
    QTest::addColumn<int>("rows");

    QTest::newRow("all") << "all" << int(ViewerOptions::AllRows) << 0;
    QTest::newRow("head") << "head:1" << int(ViewerOptions::HeadRows) << 1;
    QTest::newRow("tail") << "tail:25000" << int(ViewerOptions::TailRows) << 25000;
}

void tst_CommandLine::readsRange()
{
    QFETCH(QString, text);
    CommandLine line;
    QVERIFY(line.parse({"datalog-viewer", "--range", text}));
    QTEST(int(line.options().range), "range");
    QTEST(line.options().rangeSize, "rows");
}

void tst_CommandLine::readsStyle_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("style");

    QTest::newRow("lines") << "lines" << 1;
    QTest::newRow("symbols") << "symbols" << 2;
    QTest::newRow("both") << "both" << 3;
}

void tst_CommandLine::readsStyle()
{
    QFETCH(QString, text);
    CommandLine line;
    QVERIFY(line.parse({"datalog-viewer", "--style", text}));
    QTEST(int(line.options().style), "style");
}

void tst_CommandLine::readsActions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("action");

    QTest::newRow("help") << "--help" << int(ViewerOptions::ShowHelp);
    QTest::newRow("short help") << "-h" << int(ViewerOptions::ShowHelp);
    QTest::newRow("version") << "--version" << int(ViewerOptions::ShowVersion);
    QTest::newRow("short version") << "-v" << int(ViewerOptions::ShowVersion);
    QTest::newRow("help beside what is wrong")
        << "--help --every 0" << int(ViewerOptions::ShowHelp);
}

void tst_CommandLine::readsActions()
{
    QFETCH(QString, text);
    CommandLine line;
    QVERIFY(line.parse(arguments(text)));
    QTEST(int(line.options().action), "action");
}

void tst_CommandLine::knowsWhatWasGiven()
{
    CommandLine line;
    QVERIFY(line.parse(arguments("--every 1 --left Tair --left RH --range all")));
    QCOMPARE(line.options().given, (QStringList{"left", "range", "every"}));
    QVERIFY(line.options().isGiven("every"));
    QVERIFY(!line.options().isGiven("right"));
    QVERIFY(line.parse(arguments("")));
    QCOMPARE(line.options().given, QStringList());
}

void tst_CommandLine::takesDefinitionFormats_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("session") << "a.json";
    QTest::newRow("xml") << "a.xml";
    QTest::newRow("capitals") << "A.JSON";
    QTest::newRow("mixed") << "a.Xml";
    QTest::newRow("path with dots") << "../some.where/my.plot.json";
}

void tst_CommandLine::takesDefinitionFormats()
{
    QFETCH(QString, file);
    CommandLine line;
    QVERIFY(line.parse({"datalog-viewer", "--definition", file, "--save-definition", file}));
    QCOMPARE(line.options().definition, file);
    QCOMPARE(line.options().savedDefinition, file);
}

void tst_CommandLine::takesExportFormats_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("png") << "a.png";
    QTest::newRow("svg") << "a.svg";
    QTest::newRow("pdf") << "a.pdf";
    QTest::newRow("capitals") << "A.PNG";
    QTest::newRow("path with dots") << "../some.where/my.plot.png";
}

void tst_CommandLine::takesExportFormats()
{
    QFETCH(QString, file);
    CommandLine line;
    QVERIFY(line.parse({"datalog-viewer", "--export", file}));
    QCOMPARE(line.options().exportFile, file);
}

void tst_CommandLine::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QStringList &arguments, const char *error) {
        QTest::newRow(name) << arguments << QString::fromUtf8(error);
    };
    row("unknown option", {"--lfet", "T"}, "there is no option \"lfet\"; did you mean --left?");
    row("nothing like it", {"--quux"}, "there is no option \"quux\"");
    row("one dash", {"-q"}, "there is no option \"q\"");
    row("two files", {"a.log", "b.log"}, "one file can be opened at a time, not 2");
    row("empty file name", {""}, "the name of the file is empty");
    row("value missing", {"--x"}, "Missing value after '--x'.");
    row("empty x", {"--x="}, "--x needs the name of a variable");
    row("empty left", {"--left", ""}, "--left needs the name of a variable");
    row("empty right", {"--right", ""}, "--right needs the name of a variable");
    row("data set 0", {"--data-set", "0"}, "--data-set needs a number from 1 on, not \"0\"");
    row("data set, no number", {"--data-set", "two"},
        "--data-set needs a number from 1 on, not \"two\"");
    row("data set, too large", {"--data-set", "99999999999"},
        "--data-set needs a number from 1 on, not \"99999999999\"");
    row("every 0", {"--every", "0"}, "--every needs a number from 1 on, not \"0\"");
    row("every, negative", {"--every", "-2"}, "--every needs a number from 1 on, not \"-2\"");
    row("every, fraction", {"--every", "1.5"}, "--every needs a number from 1 on, not \"1.5\"");
    row("criterion", {"--criterion", "warm"},
        "\"warm\" is no criterion; write one such as \"Tair>=25.5\", with one of "
        "> >= < <= = != and a number");
    row("range", {"--range", "middle:3"},
        "--range takes all, head:N or tail:N with N from 1 on, not \"middle:3\"");
    row("range without number", {"--range", "head"},
        "--range takes all, head:N or tail:N with N from 1 on, not \"head\"");
    row("range of none", {"--range", "tail:0"},
        "--range takes all, head:N or tail:N with N from 1 on, not \"tail:0\"");
    row("range with too much", {"--range", "head:3:4"},
        "--range takes all, head:N or tail:N with N from 1 on, not \"head:3:4\"");
    row("style", {"--style", "dots"}, "--style takes lines, symbols or both, not \"dots\"");
    row("definition of another kind", {"--definition", "plot.txt"},
        "--definition needs a file name that ends in .json or .xml, not \"plot.txt\"");
    row("definition without suffix", {"--definition", "json"},
        "--definition needs a file name that ends in .json or .xml, not \"json\"");
    row("definition without name", {"--definition", "a/.json"},
        "--definition needs a file name that ends in .json or .xml, not \"a/.json\"");
    row("empty definition", {"--definition="},
        "--definition needs a file name that ends in .json or .xml, not \"\"");
    row("saved definition of another kind", {"--save-definition", "plot.yaml"},
        "--save-definition needs a file name that ends in .json or .xml, not \"plot.yaml\"");
    row("export of another kind", {"--export", "plot.gif"},
        "--export needs a file name that ends in .png, .svg, .pdf or .csv, not \"plot.gif\"");
    row("export without suffix", {"--export", "png"},
        "--export needs a file name that ends in .png, .svg, .pdf or .csv, not \"png\"");
    row("export without name", {"--export", ".png"},
        "--export needs a file name that ends in .png, .svg, .pdf or .csv, not \".png\"");
    row("size", {"--size", "big"},
        "--size needs a size such as 1280x800, each side from 100 to 16384, not \"big\"");
    row("size, one side", {"--size", "800"},
        "--size needs a size such as 1280x800, each side from 100 to 16384, not \"800\"");
    row("size, three sides", {"--size", "800x600x2"},
        "--size needs a size such as 1280x800, each side from 100 to 16384, not \"800x600x2\"");
    row("size, too small", {"--size", "800x99"},
        "--size needs a size such as 1280x800, each side from 100 to 16384, not \"800x99\"");
    row("size, too large", {"--size", "16385x800"},
        "--size needs a size such as 1280x800, each side from 100 to 16384, not \"16385x800\"");
}

void tst_CommandLine::refuses()
{
    QFETCH(QStringList, arguments);
    CommandLine line;
    QVERIFY(!line.parse(QStringList("datalog-viewer") + arguments));
    QTEST(line.errorText(), "error");
}

void tst_CommandLine::startsOver()
{
    CommandLine line;
    QVERIFY(line.parse(arguments("--left Tair --every 4")));
    QVERIFY(!line.parse(arguments("--every 0")));
    QVERIFY(line.parse(arguments("--left RH")));
    QCOMPARE(line.errorText(), QString());
    QCOMPARE(line.options().left, QStringList{"RH"});
    QCOMPARE(line.options().every, 1);
}

void tst_CommandLine::explains()
{
    const QString text = CommandLine().helpText();
    const QStringList options{
        "--data-set", "--x",       "--left",       "--right",          "--criterion",
        "--range",    "--every",   "--style",      "--export",         "--size",
        "--help",     "--version", "--definition", "--save-definition"};
    for (const QString &option : options)
        QVERIFY2(text.contains(option + ' '), qPrintable(option));
    QVERIFY(!text.contains(" -x "));
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
