#include "viewer/SessionRestorer.h"

#include "PlottedLog.h"
#include "viewer/SessionJson.h"

#include <QtTest>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>

class tst_SessionRestorer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void changesNothingThatIsNotTold();
    void tellsWhatTheLogHasNot_data();
    void tellsWhatTheLogHasNot();
    void keepsCriteriaOfOtherDataSets();
    void replacesCriteria();
    void choosesAmongAlike();
    void givesUnknownAlikeUp();
    void leavesExcludedRowsOfAnotherLogOut();
    void excludesInALogThatGrew();
    void tellsTheTableOnce();
    void takesADefinitionAsAScriptMadeIt();
    void hidesWhatWasHidden();

private:
    SessionState read(const char *json);
    QStringList apply(const SessionState &state);
    QStringList checked(QStandardItemModel *model);

    QScopedPointer<PlottedLog> m_log;
};

void tst_SessionRestorer::init()
{
    m_log.reset(new PlottedLog);
    m_log->view.setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_log->source.setObservationFilterType(LogObservationSortFilterProxyModel::All);
}

SessionState tst_SessionRestorer::read(const char *json)
{
    SessionState state;
    SessionJson reader;
    const QByteArray text
        = QByteArray("{\"format\": \"DataLog session\", \"version\": 1, ") + json + "}";
    if (!reader.read(text, &state))
        qWarning("%s", qPrintable(reader.errorText()));
    return state;
}

QStringList tst_SessionRestorer::apply(const SessionState &state)
{
    SessionRestorer restorer(&m_log->dataSets, &m_log->view);
    restorer.apply(state);
    return restorer.remarks();
}

QStringList tst_SessionRestorer::checked(QStandardItemModel *model)
{
    QStringList names;
    const QList<SessionVariable> variables = SessionVariables::checked(*model);
    for (const SessionVariable &variable : variables)
        names.append(variable.name);
    return names;
}

void tst_SessionRestorer::changesNothingThatIsNotTold()
{
    m_log->dataSets.show(1);
    m_log->addCriterion("T", 1, 2);
    m_log->exclude(1);
    m_log->view.setAxisScale(LogViewerItem::LeftAxis, 1, 2);
    m_log->source.setObservationFrequency(3);
    m_log->source.updateVariableSelection(0, 0, true);
    m_log->source.updateVariableSelection(1, 3, true);
    const QByteArray before = SessionJson::text(m_log->state());
    QCOMPARE(apply(SessionState()), QStringList());
    QCOMPARE(SessionJson::text(m_log->state()), before);
}

void tst_SessionRestorer::tellsWhatTheLogHasNot_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("remarks");
    QTest::addColumn<QStringList>("left");

    const auto row
        = [](const char *name, const char *json, const QStringList &remarks,
             const QStringList &left) { QTest::newRow(name) << QString(json) << remarks << left; };
    row("nothing", "\"left\": {\"variables\": [\"T\"]}", {}, {"T"});
    row("variable", "\"left\": {\"variables\": [\"T\", \"t\"]}",
        {"there is no variable \"t\" in data set 1"}, {"T"});
    row("on two axes", "\"left\": {\"variables\": [\"Q\"]}, \"right\": {\"variables\": [\"Q\"]}",
        {"there is no variable \"Q\" in data set 1"}, {});
    row("variables",
        "\"left\": {\"variables\": [\"A\", \"RH\", \"B\"]}, \"x\": {\"variables\": [\"C\"]}",
        {"there are no variables \"C\", \"A\", \"B\" in data set 1"}, {"RH"});
    row("many", "\"left\": {\"variables\": [\"A\", \"B\", \"C\", \"D\", \"E\", \"F\", \"%1\"]}",
        {"there are no variables \"A\", \"B\", \"C\", \"D\", \"E\" and 2 more in data set 1"}, {});
    row("data set", "\"dataSet\": {\"number\": 3}, \"left\": {\"variables\": [\"T\"]}",
        {"there is no data set 3; the log has 2"}, {"T"});
    row("variable of the other data set",
        "\"dataSet\": {\"number\": 2}, \"left\": {\"variables\": [\"T\", \"RH\"]}",
        {"there is no variable \"RH\" in data set 2"}, {"T"});
    row("criteria",
        "\"criteria\": [{\"variable\": \"Q\", \"operator\": \">\", \"value\": 1},"
        "{\"variable\": \"Q\", \"operator\": \"<\", \"value\": 3},"
        "{\"variable\": \"co2\", \"operator\": \"<\", \"value\": 3}]",
        {"the log has no variable for its criteria on \"Q\""}, {});
    row("bounds",
        "\"graphDefinition\": {\"scaling\": {\"yleft\": {\"min\": \"low\", \"max\": \"9\"}}}",
        {"the bounds of yleft are no numbers"}, {});
    row("infinite bounds",
        "\"graphDefinition\": {\"scaling\": {\"xbottom\": {\"min\": \"0\", \"max\": \"inf\"}}}",
        {"the bounds of xbottom are no numbers"}, {});
    row("rows", "\"excludedRows\": \"2, 9-2000000000\"",
        {"some of its excluded rows lie beyond the last row, which is 10"}, {});
}

void tst_SessionRestorer::tellsWhatTheLogHasNot()
{
    QFETCH(QString, json);
    const SessionState state = read(json.toUtf8());
    QTEST(apply(state), "remarks");
    QTEST(checked(m_log->source.yVariableModel()), "left");
}

void tst_SessionRestorer::keepsCriteriaOfOtherDataSets()
{
    m_log->dataSets.show(1);
    QCOMPARE(apply(read("\"criteria\": [{\"variable\": \"RH\", \"operator\": \"<=\","
                        "\"value\": 45, \"active\": false}]")),
             QStringList());
    QCOMPARE(m_log->state().criteria.size(), 1);
    QVERIFY(!m_log->state().criteria.at(0).isActive);
}

void tst_SessionRestorer::replacesCriteria()
{
    m_log->addCriterion("T", 0, 1);
    apply(read("\"criteria\": [{\"variable\": \"RH\", \"operator\": \"=\", \"value\": 45}]"));
    QCOMPARE(m_log->source.activeFilterModel()->rowCount(), 1);
    QCOMPARE(m_log->source.activeFilterModel()->item(0)->text(), QString("RH=45"));
    apply(read("\"criteria\": []"));
    QCOMPARE(m_log->source.activeFilterModel()->rowCount(), 0);
}

void tst_SessionRestorer::choosesAmongAlike()
{
    m_log.reset(new PlottedLog("[Header]\nCreated\tx\n[Data]\nS\tS\tA\tB\tC\nObs\tTime\tT\tT\tT\n"
                               "-\t-\t-\t-\t-\n1\t10:00:00\t1\t2\t3\n"));
    apply(read("\"left\": {\"variables\": [{\"name\": \"T\", \"occurrence\": 2}]},"
               "\"right\": {\"variables\": [{\"name\": \"T\", \"occurrence\": 3}, \"T\"]}"));
    QCOMPARE(m_log->source.checkedItemList(1), QList<int>{3});
    QCOMPARE(m_log->source.checkedItemList(2), (QList<int>{2, 4}));
    const SessionState state = m_log->state();
    QCOMPARE(state.axes[SessionState::Left].variables.at(0).occurrence, 2);
    QCOMPARE(state.axes[SessionState::Right].variables.at(1).occurrence, 3);
}

void tst_SessionRestorer::givesUnknownAlikeUp()
{
    QCOMPARE(apply(read("\"left\": {\"variables\": [{\"name\": \"T\", \"occurrence\": 2}]}")),
             QStringList{"there is no variable \"T\" in data set 1"});
    QCOMPARE(m_log->source.checkedItemList(1), QList<int>());
}

void tst_SessionRestorer::leavesExcludedRowsOfAnotherLogOut()
{
    m_log->exclude(4);
    QCOMPARE(apply(read("\"dataSet\": {\"number\": 1, \"created\": \"1999-01-01\"},"
                        "\"excludedRows\": \"2-3\"")),
             QStringList{"its excluded rows belong to another log and were left out"});
    QCOMPARE(m_log->state().excludedRows.text(), QString("5"));
}

void tst_SessionRestorer::excludesInALogThatGrew()
{
    m_log->exclude(4);
    QCOMPARE(apply(read("\"dataSet\": {\"number\": 1, \"created\": \"2020-01-01\"},"
                        "\"excludedRows\": \"2-3\"")),
             QStringList());
    QCOMPARE(m_log->state().excludedRows.text(), QString("2-3"));
    QCOMPARE(apply(read("\"excludedRows\": \"\"")), QStringList());
    QVERIFY(!m_log->source.hasExcludedRows());
}

void tst_SessionRestorer::tellsTheTableOnce()
{
    QSignalSpy changed(m_log->source.tableModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    QSignalSpy has(&m_log->source, SIGNAL(hasExcludeRowsChanged()));
    apply(read("\"excludedRows\": \"1, 4-9\""));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(has.count(), 1);
}

/** With a group and a variable, and with bounds of six digits. */
void tst_SessionRestorer::takesADefinitionAsAScriptMadeIt()
{
    QCOMPARE(
        apply(read("\"graphDefinition\": {\"scaling\": {\"yleft\": {\"min\": \"1.5\","
                   "\"max\": \"2.5e+01\"}, \"xbottom\": {\"autoscale\": true, \"min\": \"3\"}},"
                   "\"xbottom\": {\"group\": \"Sys\", \"variable\": \"Obs\"},"
                   "\"yleft\": {\"group\": \"Air\", \"variable\": \"RH\", \"symbols\": true}}")),
        QStringList());
    QCOMPARE(m_log->source.xData().first, QString("Obs"));
    QCOMPARE(m_log->source.YLeftData().keys(), QStringList{"RH"});
    QVERIFY(m_log->view.symbolsEnabled(LogViewerItem::LeftAxis));
    QVERIFY(m_log->view.linesEnabled(LogViewerItem::LeftAxis));
    QwtPlot *plot = m_log->view.plot();
    plot->updateAxes();
    QCOMPARE(plot->axisScaleDiv(QwtPlot::yLeft).lowerBound(), 1.5);
    QCOMPARE(plot->axisScaleDiv(QwtPlot::yLeft).upperBound(), 25.0);
    QVERIFY(plot->axisAutoScale(QwtPlot::xBottom));
    const QVariantMap left = m_log->source.graphDefinition().value("yleft").toMap();
    QCOMPARE(left.value("group").toString(), QString("Air"));
}

void tst_SessionRestorer::hidesWhatWasHidden()
{
    apply(read("\"x\": {\"variables\": [\"Obs\"]},"
               "\"left\": {\"variables\": [\"T\", \"RH\"], \"hidden\": [\"RH\", \"Q\"]},"
               "\"criteria\": [{\"variable\": \"RH\", \"operator\": \"!=\", \"value\": 45}]"));
    const QwtPlotItemList curves = m_log->view.plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    QCOMPARE(curves.size(), 3);
    for (const QwtPlotItem *curve : curves)
        QCOMPARE(curve->isVisible(), curve->title().text() == "T");
    QCOMPARE(m_log->state().axes[SessionState::Left].hidden, QStringList{"RH"});
}

QTEST_MAIN(tst_SessionRestorer)
#include "tst_SessionRestorer.moc"
