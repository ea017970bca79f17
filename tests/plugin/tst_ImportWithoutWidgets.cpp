#include "support/TestCompat.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

/** The plugin in a program that can't show widgets: it says so and does no harm. */
class tst_ImportWithoutWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowToHelp();
};

namespace
{

const char kWarning[]
    = "DataLog: its views are widgets, which this program can't show. Create a QApplication "
      "instead of a QGuiApplication or QCoreApplication before the module is imported.";

} // namespace

void tst_ImportWithoutWidgets::saysHowToHelp()
{
    QQmlEngine engine;
    engine.addImportPath(QLatin1String(DATALOG_BINARY_DIR "/imports"));
    QTest::ignoreMessage(QtWarningMsg, kWarning);
    const char *const others[] = {"LogDataSourceItem", "DataLog"};
    for (size_t i = 0; i < sizeof others / sizeof *others; ++i) {
        QQmlComponent other(&engine);
        other.setData(QByteArray("import DataLog 1.0\n") + others[i] + " {}", QUrl());
        const QScopedPointer<QObject> made(other.create());
        QVERIFY2(made, qPrintable(other.errorString()));
    }

    const char *const views[]
        = {"LogViewerItem",      "LogTableViewItem",         "LogVariableListItem",
           "LogDataSetListItem", "LogDataFilterBuilderItem", "LogDataSetFilterListItem"};
    for (size_t i = 0; i < sizeof views / sizeof *views; ++i) {
        QQmlComponent view(&engine);
        view.setData(QByteArray("import DataLog 1.0\n") + views[i] + " {}", QUrl());
        QVERIFY(view.isError());
        QVERIFY2(view.errorString().contains(QLatin1String(kWarning)),
                 qPrintable(view.errorString()));
    }
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    tst_ImportWithoutWidgets test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ImportWithoutWidgets.moc"
