#include "declarative/DeclarativeTypes.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

/** A program whose application object can't carry widgets. */
class tst_UnavailableTypes : public QObject
{
    Q_OBJECT

private slots:
    void widgetsAreNotAvailable();
    void scriptsAreToldTheReason();
};

void tst_UnavailableTypes::widgetsAreNotAvailable()
{
    QVERIFY(!widgetsAvailable());
}

void tst_UnavailableTypes::scriptsAreToldTheReason()
{
    registerUnavailableType("Shop", 1, 0, "Counter", QLatin1String("Counter needs a QApplication"));
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Shop 1.0\nCounter {}", QUrl());
    QVERIFY(component.isError());
    QCOMPARE(component.errors().first().line(), 2);
    QVERIFY2(component.errorString().contains(QLatin1String("Counter needs a QApplication")),
             qPrintable(component.errorString()));
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    tst_UnavailableTypes test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_UnavailableTypes.moc"
