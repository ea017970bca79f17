#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

/** Loads a plugin written with the seam's macros through a real engine. */
class tst_DeclarativePlugin : public QObject
{
    Q_OBJECT

private slots:
    void typesCanBeImported_data();
    void typesCanBeImported();
};

void tst_DeclarativePlugin::typesCanBeImported_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("works");
    QTest::newRow("own module") << QByteArray("import Sample 1.0; Clock {}") << true;
    QTest::newRow("second module after the first")
        << QByteArray("import Sample 1.0; import SampleExtras 1.0; Watch {}") << true;
    QTest::newRow("wrong version") << QByteArray("import Sample 2.0; Clock {}") << false;
    QTest::newRow("no such module") << QByteArray("import Simple 1.0; Clock {}") << false;
}

void tst_DeclarativePlugin::typesCanBeImported()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, works);
    QQmlEngine engine;
    engine.addImportPath(QLatin1String(SAMPLE_IMPORTS));
    QQmlComponent component(&engine);
    component.setData(text, QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(bool(object) == works, qPrintable(component.errorString()));
}

QTEST_MAIN(tst_DeclarativePlugin)
#include "tst_DeclarativePlugin.moc"
