#include "plugin/DataLogTypes.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>

/** Registration by a program that needs no plugin. */
class tst_DataLogTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersUnderAnyUri();
    void registersInOrder();
};

namespace
{

const char *const kTypes[] = {"DataLog",
                              "LogViewerItem",
                              "LogTableViewItem",
                              "LogDataSourceItem",
                              "LogVariableListItem",
                              "LogDataSetListItem",
                              "LogDataFilterBuilderItem",
                              "LogDataSetFilterListItem",
                              "PropertyWrapper",
                              "VariableGroup",
                              "Variable"};

} // namespace

void tst_DataLogTypes::registersUnderAnyUri()
{
    registerDataLogTypes("Some.Instrument");
    QQmlEngine engine;
    for (const char *type : kTypes) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Some.Instrument 1.0\n") + type + " {}", QUrl());
        const QScopedPointer<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QVERIFY(object->inherits(type));
    }
}

void tst_DataLogTypes::registersInOrder()
{
    registerDataLogTypes("Ordered.Instrument");
    QList<int> ids; // which the engine counts up
    for (const char *type : kTypes)
        ids << qmlTypeId("Ordered.Instrument", 1, 0, type);
    for (const char *type : {"ObservationFilterRange", "LogViewerAxis"})
        ids << qmlTypeId("DataLogEnums", 1, 0, type);
    QCOMPARE(ids.size(), 13);
    QVERIFY(!ids.contains(-1));
    for (int i = 1; i < ids.size(); ++i)
        QVERIFY2(ids.at(i - 1) < ids.at(i), qPrintable(QString::number(i)));
}

QTEST_MAIN(tst_DataLogTypes)
#include "tst_DataLogTypes.moc"
