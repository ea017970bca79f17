#include "datasource/WrapperList.h"
#include "support/TestCompat.h"

#include <QPointer>
#include <QScopedPointer>

typedef QDeclarativeListProperty<PropertyWrapper> ListProperty;

class tst_WrapperList : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void replaceMakesAWrapperForEachName();
    void replaceDeletesTheWrappersBefore();
    void releasedWrappersLiveUntilTheEventLoop();
    void releasedWrappersGoWithTheList();
    void wrappersGoWithTheList();
    void listPropertyReadsTheList();
    void scriptsCannotAppend();
    void clearingThePropertyDeletesNothingAtOnce();
};

namespace
{

QStringList names(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(','));
}

void runDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void tst_WrapperList::startsEmpty()
{
    WrapperList list;
    QVERIFY(list.wrappers().isEmpty());
    ListProperty property = list.property(this);
    QCOMPARE(property.count(&property), 0);
    QVERIFY(!property.at(&property, 0));
}

void tst_WrapperList::replaceMakesAWrapperForEachName()
{
    WrapperList list;
    list.replace(names("co2,,co2"));
    QCOMPARE(list.wrappers().size(), 3);
    for (int i = 0; i < 3; ++i) {
        const PropertyWrapper *wrapper = list.wrappers().at(i);
        const QString name = QLatin1String(i == 1 ? "" : "co2");
        QCOMPARE(wrapper->value(), QVariant(name));
        QCOMPARE(wrapper->option(), name);
    }
    QVERIFY(list.wrappers().at(0) != list.wrappers().at(2));
}

void tst_WrapperList::replaceDeletesTheWrappersBefore()
{
    WrapperList list;
    list.replace(names("a,b"));
    const QPointer<PropertyWrapper> first(list.wrappers().at(0));
    const QPointer<PropertyWrapper> second(list.wrappers().at(1));
    list.replace(names("a"));
    QVERIFY(!first);
    QVERIFY(!second);
    QCOMPARE(list.wrappers().size(), 1);
    list.replace(QStringList());
    QVERIFY(list.wrappers().isEmpty());
}

void tst_WrapperList::releasedWrappersLiveUntilTheEventLoop()
{
    WrapperList list;
    list.replace(names("a,b"));
    const QPointer<PropertyWrapper> first(list.wrappers().at(0));
    list.release();
    QVERIFY(list.wrappers().isEmpty());
    QVERIFY(first);
    QCOMPARE(first->option(), QString::fromLatin1("a"));
    list.append(new PropertyWrapper(QVariant(1)));
    const QPointer<PropertyWrapper> next(list.wrappers().at(0));
    runDeferredDeletes();
    QVERIFY(!first);
    QVERIFY(next);
}

void tst_WrapperList::releasedWrappersGoWithTheList()
{
    QScopedPointer<WrapperList> list(new WrapperList);
    list->replace(names("a"));
    const QPointer<PropertyWrapper> wrapper(list->wrappers().at(0));
    list->release();
    QVERIFY(wrapper);
    list.reset();
    QVERIFY(!wrapper);
    runDeferredDeletes();
}

void tst_WrapperList::wrappersGoWithTheList()
{
    QScopedPointer<WrapperList> list(new WrapperList);
    list->replace(names("a"));
    list->append(new PropertyWrapper(QVariant(1)));
    const QPointer<PropertyWrapper> first(list->wrappers().at(0));
    const QPointer<PropertyWrapper> last(list->wrappers().at(1));
    list.reset();
    QVERIFY(!first);
    QVERIFY(!last);
}

void tst_WrapperList::listPropertyReadsTheList()
{
    WrapperList list;
    list.replace(names("a,b"));
    ListProperty property = list.property(this);
    QCOMPARE(property.object, static_cast<QObject *>(this));
    QCOMPARE(property.count(&property), 2);
    QCOMPARE(property.at(&property, 1), list.wrappers().at(1));
    QVERIFY(!property.at(&property, 2));
    QVERIFY(!property.at(&property, -1));
    list.replace(names("c"));
    QCOMPARE(property.count(&property), 1);
    QCOMPARE(property.at(&property, 0)->option(), QString::fromLatin1("c"));
}

void tst_WrapperList::scriptsCannotAppend()
{
    WrapperList list;
    list.replace(names("a"));
    ListProperty property = list.property(this);
    PropertyWrapper wrapper;
    property.append(&property, &wrapper);
    QCOMPARE(property.count(&property), 1);
}

void tst_WrapperList::clearingThePropertyDeletesNothingAtOnce()
{
    WrapperList list;
    list.replace(names("a"));
    const QPointer<PropertyWrapper> wrapper(list.wrappers().at(0));
    ListProperty property = list.property(this);
    property.clear(&property);
    QCOMPARE(property.count(&property), 0);
    QVERIFY(wrapper);
}

QTEST_GUILESS_MAIN(tst_WrapperList)
#include "tst_WrapperList.moc"
