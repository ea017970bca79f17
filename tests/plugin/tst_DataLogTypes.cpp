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
};

void tst_DataLogTypes::registersUnderAnyUri()
{
    registerDataLogTypes("Some.Instrument");
    QQmlEngine engine;
    const char *const types[] = {"DataLog",
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
    for (const char *type : types) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Some.Instrument 1.0\n") + type + " {}", QUrl());
        const QScopedPointer<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QVERIFY(object->inherits(type));
    }
}

QTEST_MAIN(tst_DataLogTypes)
#include "tst_DataLogTypes.moc"
