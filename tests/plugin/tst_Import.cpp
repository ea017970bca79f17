#include "support/TestCompat.h"

#include <QApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

/** The built plugin, imported through the engine by scripts. */
class tst_Import : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void failsWithTheEnginesError_data();
    void failsWithTheEnginesError();
    void registersWrappers();
    void tellsEnumerations();
    void createsWhatEnumerationsComeFrom();
    void bringsItsImages();
    void tellsWhyALogCannotBeRead();
    void fillsTheLists();
    void plotsWhatIsTickedInTheLists();
    void recordsTheGraphDefinition();
    void convertsEnumeratorArguments();
    void listsCriteria();
    void listsAreEmptyBeforeALoad();
    void registersMetaTypes();
    void survivesTheSourceOfItsViews();
    void followsATextFile();

private:
    QVariant call(const char *function);
    QQuickItem *item(const char *name) const;
    void load();
    QString writeLog(const char *name, const QByteArray &text);
    QObject *create(const QByteArray &script);
    void clickRow(QQuickItem *list, int row);

    QTemporaryDir m_dir;
    QScopedPointer<QQuickView> m_view;
    QString m_errors;
};

namespace
{

const char kLog[] = "[Header]\n"
                    "Created:\t2026-03-01\n"
                    "Sys:Name:\tChamber\n"
                    "Gas:Zero:\t1.5\n"
                    "[Data]\n"
                    "Sys\tSys\tGas\tAir\tAir\n"
                    "Obs\tTime\tCO2\tTair\tRH\n"
                    "\ts\tppm\tC\t%\n"
                    "1\t10:00:00\t400\t20.5\t50\n"
                    "2\t10:00:30\t410\t21.5\t51\n"
                    "3\t10:01:00\t420\t22.5\t52\n";

} // namespace

void tst_Import::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void tst_Import::init()
{
    m_view.reset(new QQuickView);
    m_view->engine()->addImportPath(QLatin1String(DATALOG_BINARY_DIR "/imports"));
    m_view->setSource(QUrl::fromLocalFile(QLatin1String(DATALOG_SCRIPTS_DIR "/MainRoad.qml")));
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    QVERIFY2(m_view->rootObject(), qPrintable(m_view->errors().value(0).toString()));
}

void tst_Import::cleanup()
{
    m_view.reset();
}

QVariant tst_Import::call(const char *function)
{
    QVariant result;
    if (!QMetaObject::invokeMethod(m_view->rootObject(), function, Q_RETURN_ARG(QVariant, result)))
        return QLatin1String("there is no such function");
    return result;
}

QQuickItem *tst_Import::item(const char *name) const
{
    return m_view->rootObject()->property(name).value<QQuickItem *>();
}

QString tst_Import::writeLog(const char *name, const QByteArray &text)
{
    const QString path = m_dir.filePath(QLatin1String(name));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("the log can't be written");
    return path;
}

void tst_Import::load()
{
    QSignalSpy loaded(item("source"), SIGNAL(logFileLoaded()));
    item("source")->setProperty("logFilePath", writeLog("main.log", kLog));
    QCOMPARE(loaded.count(), 1);
}

/** The object that a script makes, null with m_errors set when it can't. */
QObject *tst_Import::create(const QByteArray &script)
{
    QQmlComponent component(m_view->engine());
    component.setData(script, QUrl(QLatin1String("file:///script.qml")));
    QObject *object = component.create();
    m_errors = component.errorString();
    return object;
}

void tst_Import::failsWithTheEnginesError_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("error");
    QTest::newRow("a version that does not exist")
        << QByteArray("import DataLog 2.0\nPropertyWrapper {}")
        << QString::fromLatin1("module \"DataLog\" version 2.0 is not installed");
    QTest::newRow("a version that does not exist, of the enumerations")
        << QByteArray("import DataLog 1.0\nimport DataLogEnums 2.0\nPropertyWrapper {}")
        << QString::fromLatin1("module \"DataLogEnums\" version 2.0 is not installed");
    QTest::newRow("an unknown module")
        << QByteArray("import DataLogs 1.0\nPropertyWrapper {}")
        << QString::fromLatin1("module \"DataLogs\" is not installed");
    QTest::newRow("an unknown type") << QByteArray("import DataLog 1.0\nLogItem {}")
                                     << QString::fromLatin1("LogItem is not a type");
    const char *const unregistered[] = {"LogDataSet",
                                        "Constant",
                                        "Observation",
                                        "LogParser",
                                        "TabularParser",
                                        "LogAxisData",
                                        "LogTableViewModel",
                                        "LogConstTableViewModel",
                                        "LogTableViewPlottedModel",
                                        "LogTableViewAnalysisModel",
                                        "LogDataSetFilter"};
    for (const char *type : unregistered) {
        QTest::newRow(type) << QByteArray(QByteArray("import DataLog 1.0\n") + type + " {}")
                            << QString(QLatin1String(type) + QLatin1String(" is not a type"));
    }
}

void tst_Import::failsWithTheEnginesError()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, error);
    QVERIFY(!create(script));
    QVERIFY2(m_errors.contains(error), qPrintable(m_errors));
}

void tst_Import::registersWrappers()
{
    const char *const types[] = {"PropertyWrapper", "VariableGroup", "Variable"};
    for (size_t i = 0; i < sizeof types / sizeof *types; ++i) {
        const QScopedPointer<QObject> object(create(QByteArray("import DataLog 1.0\n") + types[i]
                                                    + " { value: 2.5; option: \"o\" }"));
        QVERIFY2(object, qPrintable(m_errors));
        QCOMPARE(object->property("value").toDouble(), 2.5);
        QCOMPARE(object->property("option").toString(), QString::fromLatin1("o"));
    }
}

void tst_Import::tellsEnumerations()
{
    QCOMPARE(call("enumerations").toString(), QString::fromLatin1("0,1,2,0,1,2,0,1,2,0,1,2"));
}

void tst_Import::createsWhatEnumerationsComeFrom()
{
    const QScopedPointer<QObject> window(create("import DataLog 1.0\nimport DataLogEnums 1.0\n"
                                                "ObservationFilterRange { frequency: 3 }"));
    QVERIFY2(window, qPrintable(m_errors));
    QCOMPARE(window->property("frequency").toInt(), 3);
    const QScopedPointer<QObject> plot(
        create("import DataLog 1.0\nimport DataLogEnums 1.0\nLogViewerAxis { width: 10 }"));
    QVERIFY2(plot, qPrintable(m_errors));
    QVERIFY(plot->inherits("LogViewerItem"));
}

void tst_Import::bringsItsImages()
{
    QVERIFY(!QImage(QLatin1String(":datalog/images/checkbox_full.png")).isNull());
    QVERIFY(!QImage(QLatin1String(":datalog/images/checkbox_empty.png")).isNull());
}

void tst_Import::tellsWhyALogCannotBeRead()
{
    item("source")->setProperty("logFilePath", writeLog("no.log", "Time\tValue\n"));
    QCOMPARE(m_view->rootObject()->property("loadError").toString(),
             QString::fromLatin1("Log File must start with [Header] section."));
}

void tst_Import::fillsTheLists()
{
    load();
    QCOMPARE(call("variableNames").toString(), QString::fromLatin1("Obs,Time,CO2,Tair,RH"));
    QCOMPARE(call("dataSetNames").toString(), QString::fromLatin1("0: 2026-03-01 #Obs=3"));
    QCOMPARE(call("groupNames").toString(), QString::fromLatin1("Air,Gas,Sys"));
    QCOMPARE(call("constNames").toString(), QString::fromLatin1("Created,Sys,Gas"));
    QMetaObject::invokeMethod(item("source"), "setLeftGroup",
                              Q_ARG(QString, QString::fromLatin1("Air")));
    QCOMPARE(call("leftGroupVariables").toString(), QString::fromLatin1("Tair,RH"));
}

void tst_Import::listsAreEmptyBeforeALoad()
{
    QCOMPARE(call("variableNames").toString(), QString());
    QCOMPARE(call("dataSetNames").toString(), QString());
    QCOMPARE(call("groupNames").toString(), QString());
    QCOMPARE(call("constNames").toString(), QString());
    QCOMPARE(call("criteriaNames").toString(), QString());
    QCOMPARE(call("leftGroupVariables").toString(), QString());
}

/** Clicks the check box of a row, as a finger would. */
void tst_Import::clickRow(QQuickItem *list, int row)
{
    const int rowHeight = QFontMetrics(QApplication::font()).height();
    const QPointF inList(10, 1 + row * rowHeight + rowHeight / 2);
    QTest::mouseClick(m_view.data(), Qt::LeftButton, Qt::NoModifier,
                      list->mapToScene(inList).toPoint());
}

void tst_Import::plotsWhatIsTickedInTheLists()
{
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
    load();
    call("drawLines");
    QMetaObject::invokeMethod(item("source"), "setHorizontalVariable",
                              Q_ARG(QString, QString::fromLatin1("Obs")));
    QSignalSpy plotted(item("plot"), SIGNAL(plotUpdated()));
    clickRow(item("leftList"), 2);
    QTRY_COMPARE(plotted.count(), 1);
    QString color;
    QMetaObject::invokeMethod(item("plot"), "hexColorForAxisAndVariableName",
                              Q_RETURN_ARG(QString, color), Q_ARG(int, 1),
                              Q_ARG(QString, QString::fromLatin1("CO2")));
    QCOMPARE(color, QString::fromLatin1("#D90C00"));
    clickRow(item("leftList"), 3);
    QTRY_COMPARE(plotted.count(), 2);
    QList<int> rows;
    QMetaObject::invokeMethod(item("source"), "checkedItemList", Q_RETURN_ARG(QList<int>, rows),
                              Q_ARG(int, 1));
    QCOMPARE(rows, QList<int>() << 2 << 3);
    clickRow(item("leftList"), 2);
    QTRY_COMPARE(plotted.count(), 3);
}

void tst_Import::recordsTheGraphDefinition()
{
    QCOMPARE(call("definition").toString(),
             QString::fromLatin1("{\"scaling\":{},\"xbottom\":{},\"yleft\":{},\"yright\":{}}"));
    call("drawLines");
    call("fixScale");
    QCOMPARE(call("definition").toString(),
             QString::fromLatin1("{\"scaling\":{\"yleft\":{\"max\":\"45\",\"min\":\"-5\"}},"
                                 "\"xbottom\":{},\"yleft\":{\"lines\":true},"
                                 "\"yright\":{\"lines\":true}}"));
}

void tst_Import::convertsEnumeratorArguments()
{
    load();
    QCOMPARE(item("source")->property("observationFilterType").toInt(), 1);
    call("showAll");
    QCOMPARE(item("source")->property("observationFilterType").toInt(), 0);
}

void tst_Import::listsCriteria()
{
    load();
    QMetaObject::invokeMethod(item("source"), "buildFilter", Q_ARG(int, 3), Q_ARG(int, 1),
                              Q_ARG(QString, QString::fromLatin1("21.5")));
    QCOMPARE(call("criteriaNames").toString(), QString::fromLatin1("Tair>=21.5"));
}

void tst_Import::registersMetaTypes()
{
    const char *const types[] = {"DataLog",
                                 "LogViewerItem",
                                 "LogTableViewItem",
                                 "LogObservationSortFilterProxyModel",
                                 "LogDataSourceItem",
                                 "LogVariableListItem",
                                 "LogDataSetListItem",
                                 "LogDataFilterBuilderItem",
                                 "LogDataSetFilterListItem",
                                 "PropertyWrapper",
                                 "VariableGroup",
                                 "Variable"};
    for (size_t i = 0; i < sizeof types / sizeof *types; ++i) {
        QVERIFY2(QMetaType::type(QByteArray(types[i]) + '*'), types[i]);
        QVERIFY2(QMetaType::type(QByteArray("QDeclarativeListProperty<") + types[i] + '>'),
                 types[i]);
    }
}

void tst_Import::survivesTheSourceOfItsViews()
{
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
    load();
    call("drawLines");
    delete item("source");
    QSignalSpy plotted(item("plot"), SIGNAL(plotUpdated()));
    call("fixScale");
    QMetaObject::invokeMethod(item("plot"), "updatePlot");
    QCOMPARE(plotted.count(), 1);
    clickRow(item("leftList"), 1);
    m_view->resize(500, 300);
    QVERIFY(item("leftList"));
}

/** To the end: the handler runs once more when the item is deleted, which closes the file. */
void tst_Import::followsATextFile()
{
    const QString path = writeLog("text.txt", "a\nb");
    QScopedPointer<QObject> log(create("import QtQuick 2.15\nimport DataLog 1.0\n"
                                       "DataLog {\n"
                                       "    property string shown: \"<\" + contents + \">\"\n"
                                       "    property var lengths: []\n"
                                       "    onContentsChanged: lengths.push(contents.length)\n"
                                       "    function allLengths() { return lengths.join(\",\") }\n"
                                       "}"));
    QVERIFY2(log, qPrintable(m_errors));
    bool isOpen = false;
    QMetaObject::invokeMethod(log.data(), "openReadOnly", Q_RETURN_ARG(bool, isOpen),
                              Q_ARG(QString, m_dir.path()),
                              Q_ARG(QString, QLatin1String("text.txt")));
    QVERIFY(isOpen);
    QCOMPARE(log->property("shown").toString(), QString::fromLatin1("<a\nb\n>"));
    QVariant lengths;
    QMetaObject::invokeMethod(log.data(), "allLengths", Q_RETURN_ARG(QVariant, lengths));
    QCOMPARE(lengths.toString(), QString::fromLatin1("0,2,4"));
    QVERIFY(!log->setProperty("contents", QLatin1String("written")));

    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    QCOMPARE(file.write("\nc"), qint64(2));
    file.close();
    QSignalSpy changes(log.data(), SIGNAL(contentsChanged()));
    while (log->property("shown").toString() != QLatin1String("<a\nb\nc\n>"))
        QVERIFY(changes.wait());
    changes.clear();
    log.reset();
    QCOMPARE(changes.count(), 1);
}

QTEST_MAIN(tst_Import)
#include "tst_Import.moc"
