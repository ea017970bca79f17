#include "support/TestCompat.h"

#include <QApplication>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

/** The smallest script, run as a user would: by an engine that imports the built module. */
class tst_MinimalScript : public QObject
{
    Q_OBJECT

private slots:
    void isTheSameForBothEngines();
    void plots();
    void tellsWhatWentWrong();

private:
    QQuickItem *create(const QString &logFile);
    QObject *find(const QObject &root, const char *className) const;

    QQmlEngine m_engine;
};

namespace
{

QString script(int engine)
{
    return QString::fromLatin1(DATALOG_SOURCE_DIR "/examples/minimal/MinimalQuick%1.qml")
        .arg(engine);
}

QStringList lines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringList();
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

} // namespace

QQuickItem *tst_MinimalScript::create(const QString &logFile)
{
    m_engine.addImportPath(QLatin1String(DATALOG_BINARY_DIR "/imports"));
    QQmlComponent component(&m_engine, QUrl::fromLocalFile(script(2)));
    QVariantMap properties;
    properties.insert(QLatin1String("logFile"), logFile);
    auto *item = qobject_cast<QQuickItem *>(component.createWithInitialProperties(properties));
    if (!item)
        qWarning("%s", qPrintable(component.errorString()));
    return item;
}

QObject *tst_MinimalScript::find(const QObject &root, const char *className) const
{
    const QObjectList all = root.findChildren<QObject *>();
    for (QObject *object : all) {
        if (qstrcmp(object->metaObject()->className(), className) == 0)
            return object;
    }
    return nullptr;
}

void tst_MinimalScript::isTheSameForBothEngines()
{
    const QStringList quick1 = lines(script(1));
    const QStringList quick2 = lines(script(2));
    QVERIFY(quick1.size() > 10);
    QCOMPARE(quick1.size(), quick2.size());
    QStringList differing;
    for (int i = 0; i < quick1.size(); ++i) {
        if (quick1.at(i) != quick2.at(i))
            differing << quick1.at(i) << quick2.at(i);
    }
    QCOMPARE(differing.join(QLatin1String(", ")),
             QString::fromLatin1("import QtQuick 1.1, import QtQuick 2.15"));
}

void tst_MinimalScript::plots()
{
    const QString log = QLatin1String(DATALOG_SOURCE_DIR "/examples/logs/climate-chamber.log");
    const QScopedPointer<QQuickItem> item(create(log));
    QVERIFY(item);
    QQuickWindow window;
    window.resize(item->size().toSize());
    item->setParentItem(window.contentItem());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QObject *source = find(*item, "LogDataSourceItem");
    QObject *plot = find(*item, "LogViewerItem");
    QVERIFY(source && plot);
    QList<int> left;
    QVERIFY(QMetaObject::invokeMethod(source, "checkedItemList", Q_RETURN_ARG(QList<int>, left),
                                      Q_ARG(int, 1)));
    QCOMPARE(left, QList<int>() << 6);
    QString color;
    QVERIFY(QMetaObject::invokeMethod(plot, "hexColorForAxisAndVariableName",
                                      Q_RETURN_ARG(QString, color), Q_ARG(int, 1),
                                      Q_ARG(QString, QLatin1String("Tair"))));
    QCOMPARE(color, QString::fromLatin1("#D90C00"));

    const QImage image = window.grabWindow();
    int colored = 0;
    for (int x = 200; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            colored += image.pixelColor(x, y) == QColor(color) ? 1 : 0;
    }
    QVERIFY(colored > 50);
}

void tst_MinimalScript::tellsWhatWentWrong()
{
    const QScopedPointer<QQuickItem> item(create(QLatin1String("missing.log")));
    QVERIFY(item);
    QObject *message = find(*item, "QQuickText");
    QVERIFY(message);
    QCOMPARE(message->property("text").toString(),
             QString::fromLatin1("LogParser: Failed to open file at path missing.log for "
                                 "reading."));
}

QTEST_MAIN(tst_MinimalScript)
#include "tst_MinimalScript.moc"
