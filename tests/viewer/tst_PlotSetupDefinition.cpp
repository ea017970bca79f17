#include "viewer/PlotSetup.h"

#include "PlottedLog.h"
#include "viewer/SessionJson.h"

#include <QtTest>

/** A definition beside the other options of a command line. */
class tst_PlotSetupDefinition : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void appliesADefinition();
    void letsOptionsWin_data();
    void letsOptionsWin();
    void letsTheDataSetWin();
    void dropsNothingForTheSameDataSet();
    void checksOptionsAgainstTheDefinitionsDataSet();
    void keepsXmlQuietAboutCriteriaThatAreNotUsed();
    void goesOnWithoutADefinition();
    void savesWhatIsSetUp();
    void appliesAndSavesOnlyOnce();

private:
    QString write(const QString &name, const QByteArray &text) const;
    void apply(const ViewerOptions &options, PlottedLog *log);
    static ViewerOptions options(const QString &definition, const QStringList &given);

    QScopedPointer<QTemporaryDir> m_directory;
    QStringList m_failures;
    QStringList m_remarks;
    QStringList m_usageErrors;
    QString m_session; ///< of another window, style and choice than a viewer starts with
};

Q_DECLARE_METATYPE(ViewerOptions)

void tst_PlotSetupDefinition::init()
{
    m_directory.reset(new QTemporaryDir);
    m_session = write("a.json",
                      "{\"format\": \"DataLog session\", \"version\": 1,"
                      "\"dataSet\": {\"number\": 1, \"created\": \"2020-01-01\"},"
                      "\"x\": {\"variables\": [\"Time\"]},"
                      "\"left\": {\"variables\": [\"RH\"]},"
                      "\"right\": {\"variables\": [\"T\"]},"
                      "\"criteria\": [{\"variable\": \"T\", \"operator\": \"<\", \"value\": 30}],"
                      "\"window\": {\"rows\": \"tail\", \"size\": 6, \"step\": 2},"
                      "\"excludedRows\": \"5\","
                      "\"graphDefinition\": {\"yleft\": {\"lines\": false, \"symbols\": true}}}");
}

QString tst_PlotSetupDefinition::write(const QString &name, const QByteArray &text) const
{
    QFile file(m_directory->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("the file of the test can't be written");
    return file.fileName();
}

void tst_PlotSetupDefinition::apply(const ViewerOptions &options, PlottedLog *log)
{
    PlotSetup setup(options);
    QSignalSpy failed(&setup, SIGNAL(failed(QString)));
    QSignalSpy remarked(&setup, SIGNAL(remarked(QString)));
    QSignalSpy wrong(&setup, SIGNAL(usageError(QString)));
    const bool isApplied = setup.apply(&log->dataSets, &log->view);
    QCOMPARE(isApplied, wrong.isEmpty());
    const auto texts = [](const QSignalSpy &spy) {
        QStringList texts;
        for (const QList<QVariant> &arguments : spy)
            texts << arguments.at(0).toString();
        return texts;
    };
    m_failures = texts(failed);
    m_remarks = texts(remarked);
    m_usageErrors = texts(wrong);
}

ViewerOptions tst_PlotSetupDefinition::options(const QString &definition, const QStringList &given)
{
    ViewerOptions options;
    options.definition = definition;
    options.given = given;
    return options;
}

void tst_PlotSetupDefinition::appliesADefinition()
{
    PlottedLog log;
    apply(options(m_session, {}), &log);
    QCOMPARE(m_failures + m_remarks, QStringList());
    QCOMPARE(log.source.xData().first, QString("Time"));
    QCOMPARE(log.source.YLeftData().value("RH").value(0), (QVector<double>{43, 41}));
    QCOMPARE(log.source.YRightData().value("T").value(0), (QVector<double>{27.5, 29.5}));
    QVERIFY(!log.view.linesEnabled(LogViewerItem::LeftAxis));
    QVERIFY(log.view.symbolsEnabled(LogViewerItem::LeftAxis));
    QVERIFY(log.view.linesEnabled(LogViewerItem::RightAxis));
}

void tst_PlotSetupDefinition::letsOptionsWin_data()
{
    QTest::addColumn<ViewerOptions>("options");
    QTest::addColumn<QString>("summary");

    ViewerOptions none;
    QTest::newRow("none") << none << "Time; RH; T; T<30; 2 6 2; 0 1 1 0; 5";
    const auto row
        = [](const char *name, const char *given, ViewerOptions options, const char *summary) {
              options.given << given;
              QTest::newRow(name) << options << summary;
          };
    ViewerOptions x;
    x.x = "Obs";
    row("x", "x", x, "Obs; RH; T; T<30; 2 6 2; 0 1 1 0; 5");
    ViewerOptions left;
    left.left << "CO2";
    row("left", "left", left, "Time; CO2; T; T<30; 2 6 2; 0 1 1 0; 5");
    ViewerOptions right;
    right.right << "CO2";
    row("right", "right", right, "Time; RH; CO2; T<30; 2 6 2; 0 1 1 0; 5");
    ViewerOptions criterion;
    criterion.criteria << CriterionText::read("RH>=1");
    row("criterion", "criterion", criterion, "Time; RH; T; RH>=1; 2 6 2; 0 1 1 0; 5");
    ViewerOptions range;
    range.range = ViewerOptions::HeadRows;
    range.rangeSize = 3;
    row("range", "range", range, "Time; RH; T; T<30; 1 3 2; 0 1 1 0; 5");
    row("all rows", "range", ViewerOptions(), "Time; RH; T; T<30; 0 50 2; 0 1 1 0; 5");
    row("every", "every", ViewerOptions(), "Time; RH; T; T<30; 2 6 1; 0 1 1 0; 5");
    row("style", "style", ViewerOptions(), "Time; RH; T; T<30; 2 6 2; 1 0 1 0; 5");
    row("data set", "data-set", ViewerOptions(), "Time; RH; T; T<30; 2 6 2; 0 1 1 0; 5");
}

void tst_PlotSetupDefinition::letsOptionsWin()
{
    QFETCH(ViewerOptions, options);
    options.definition = m_session;
    PlottedLog log;
    apply(options, &log);
    QCOMPARE(m_failures + m_remarks + m_usageErrors, QStringList());
    const SessionState state = log.state();
    const VariableChoice choice = VariableChoice::of(&log.source);
    QStringList criteria;
    for (int row = 0; row < log.source.activeFilterModel()->rowCount(); ++row)
        criteria << log.source.activeFilterModel()->item(row)->text();
    const QString window
        = QString("%1 %2 %3").arg(state.rangeType).arg(state.rangeSize).arg(state.step);
    const QString style = QString("%1 %2 %3 %4")
                              .arg(log.view.linesEnabled(LogViewerItem::LeftAxis))
                              .arg(log.view.symbolsEnabled(LogViewerItem::LeftAxis))
                              .arg(log.view.linesEnabled(LogViewerItem::RightAxis))
                              .arg(log.view.symbolsEnabled(LogViewerItem::RightAxis));
    const QStringList summary{choice.x.join(','),
                              choice.left.join(','),
                              choice.right.join(','),
                              criteria.join(','),
                              window,
                              style,
                              state.excludedRows.text()};
    QTEST(summary.join("; "), "summary");
}

void tst_PlotSetupDefinition::letsTheDataSetWin()
{
    ViewerOptions given = options(m_session, {"data-set"});
    given.dataSet = 2;
    PlottedLog log;
    apply(given, &log);
    QCOMPARE(m_remarks,
             (QStringList{m_session + ": its excluded rows are of data set 1 and were left out",
                          m_session + ": there is no variable \"RH\" in data set 2"}));
    QCOMPARE(log.dataSets.current(), 1);
    QVERIFY(!log.source.hasExcludedRows());
    QCOMPARE(VariableChoice::of(&log.source).right, QStringList{"T"});
}

void tst_PlotSetupDefinition::dropsNothingForTheSameDataSet()
{
    PlottedLog log;
    apply(options(m_session, {"data-set"}), &log);
    QCOMPARE(m_remarks, QStringList());
    QCOMPARE(log.state().excludedRows.text(), QString("5"));
}

void tst_PlotSetupDefinition::checksOptionsAgainstTheDefinitionsDataSet()
{
    const QString session = write("b.json",
                                  "{\"format\": \"DataLog session\", \"version\": 1,"
                                  "\"dataSet\": {\"number\": 2}}");
    ViewerOptions given = options(session, {"left"});
    given.left << "RH";
    PlottedLog log;
    apply(given, &log);
    QCOMPARE(m_usageErrors,
             QStringList{"there is no variable \"RH\" in data set 2; it has Obs, Time, CO2, T"});
    given.left = QStringList{"CO2"};
    apply(given, &log);
    QCOMPARE(m_usageErrors, QStringList());
    QCOMPARE(log.dataSets.current(), 1);
    QCOMPARE(VariableChoice::of(&log.source).left, QStringList{"CO2"});
}

void tst_PlotSetupDefinition::keepsXmlQuietAboutCriteriaThatAreNotUsed()
{
    const QString xml = write(
        "a.xml", "<a><LeftVar name=\"T\"/><Expression name=\"T\" op=\">=\" value=\"1\"/></a>");
    PlottedLog log;
    apply(options(xml, {}), &log);
    QCOMPARE(m_remarks.size(), 1);
    ViewerOptions given = options(xml, {"criterion"});
    given.criteria << CriterionText::read("T<3");
    PlottedLog other;
    apply(given, &other);
    QCOMPARE(m_remarks, QStringList());
    QCOMPARE(other.source.activeFilterModel()->rowCount(), 1);
}

void tst_PlotSetupDefinition::goesOnWithoutADefinition()
{
    ViewerOptions given = options(m_directory->filePath("missing.json"), {"every"});
    given.every = 3;
    PlottedLog log;
    apply(given, &log);
    QCOMPARE(m_failures, QStringList{given.definition + ": there is no such file"});
    QCOMPARE(VariableChoice::of(&log.source).left, QStringList{"T"});
    QCOMPARE(log.source.observationFrequency(), 3);
}

void tst_PlotSetupDefinition::savesWhatIsSetUp()
{
    ViewerOptions given = options(m_session, {"left"});
    given.left << "CO2";
    given.savedDefinition = m_directory->filePath("b.json");
    PlottedLog log;
    apply(given, &log);
    QCOMPARE(m_failures + m_remarks, QStringList());
    QFile file(given.savedDefinition);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), SessionJson::text(log.state()));
    given.savedDefinition = m_directory->filePath("missing/b.json");
    apply(given, &log);
    QCOMPARE(m_failures,
             QStringList{given.savedDefinition + ": can't be written: No such file or directory"});
}

/** Like the other options, they are about the log that was named with them. */
void tst_PlotSetupDefinition::appliesAndSavesOnlyOnce()
{
    ViewerOptions given = options(m_session, {});
    given.savedDefinition = m_directory->filePath("b.json");
    PlottedLog log;
    PlotSetup setup(given);
    QVERIFY(setup.apply(&log.dataSets, &log.view));
    QVERIFY(QFile::remove(given.savedDefinition));
    QVERIFY(setup.apply(&log.dataSets, &log.view));
    QCOMPARE(VariableChoice::of(&log.source).left, QStringList{"T"});
    QVERIFY(!QFile::exists(given.savedDefinition));
}

QTEST_MAIN(tst_PlotSetupDefinition)
#include "tst_PlotSetupDefinition.moc"
