#include "declarative/DeclarativeItem.h"
#include "declarative/DeclarativeList.h"
#include "declarative/DeclarativeTypes.h"
#include "support/TestCompat.h"

#include <QQmlComponent>
#include <QQmlEngine>

/** Something that a list holds. */
class Fruit : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)

public:
    explicit Fruit(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    void setName(const QString &name) { m_name = name; }
    QString name() const { return m_name; }

private:
    QString m_name;
};

/** An item with lists, one over its own functions and one over the engine's. */
class Basket : public QDeclarativeItem
{
    Q_OBJECT
    Q_PROPERTY(QDeclarativeListProperty<Fruit> fruits READ fruits CONSTANT)
    Q_PROPERTY(QDeclarativeListProperty<Fruit> more READ more CONSTANT)

public:
    explicit Basket(QDeclarativeItem *parent = nullptr)
        : QDeclarativeItem(parent)
    {
        setFlag(QGraphicsItem::ItemHasNoContents, false);
        const QStringList names = QString::fromLatin1("apple pear plum").split(QLatin1Char(' '));
        for (int i = 0; i < names.size(); ++i) {
            m_fruits << new Fruit(this);
            m_fruits.last()->setName(names.at(i));
        }
    }

    QDeclarativeListProperty<Fruit> fruits()
    {
        return QDeclarativeListProperty<Fruit>(this, &m_fruits, nullptr, count, at, nullptr);
    }
    QDeclarativeListProperty<Fruit> more() { return declarativeListOver(this, &m_fruits); }

private:
    static QList<Fruit *> *listOf(QDeclarativeListProperty<Fruit> *property)
    {
        return static_cast<QList<Fruit *> *>(property->data);
    }
    static int count(QDeclarativeListProperty<Fruit> *property) { return listOf(property)->size(); }
    static Fruit *at(QDeclarativeListProperty<Fruit> *property, int index)
    {
        return listOf(property)->at(index);
    }

    QList<Fruit *> m_fruits;
};

class tst_DeclarativeTypes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metaTypes_data();
    void metaTypes();
    void scripts_data();
    void scripts();
    void secondNameInAnotherModule();
    void versionThatWasNotRegistered();
    void widgetsAreAvailable();
};

void tst_DeclarativeTypes::initTestCase()
{
    QVERIFY(registerDeclarativeType<Fruit>("Shop", 1, 0, "Fruit") >= 0);
    QVERIFY(registerDeclarativeType<Basket>("Shop", 1, 0, "Basket") >= 0);
    QVERIFY(registerDeclarativeType<Basket>("ShopExtras", 1, 0, "OtherName") >= 0);
}

void tst_DeclarativeTypes::metaTypes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("pointer") << QByteArray("Fruit*");
    QTest::newRow("list") << QByteArray("QDeclarativeListProperty<Fruit>");
    QTest::newRow("pointer to item") << QByteArray("Basket*");
    QTest::newRow("list of items") << QByteArray("QDeclarativeListProperty<Basket>");
}

void tst_DeclarativeTypes::metaTypes()
{
    QFETCH(QByteArray, name);
    QVERIFY(QMetaType::type(name.constData()) != 0);
}

void tst_DeclarativeTypes::scripts_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("length") << "fruits.length" << QVariant(3);
    QTest::newRow("element") << "fruits[1].name" << QVariant(QLatin1String("pear"));
    QTest::newRow("beyond the end") << "fruits[3] === undefined" << QVariant(true);
    QTest::newRow("engine's functions") << "more[2].name" << QVariant(QLatin1String("plum"));
    QTest::newRow("engine's functions, length") << "more.length" << QVariant(3);
}

void tst_DeclarativeTypes::scripts()
{
    QFETCH(QString, expression);
    QFETCH(QVariant, value);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(QString::fromLatin1("import Shop 1.0; Basket { property var value: %1 }")
                          .arg(expression)
                          .toUtf8(),
                      QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("value"), value);
}

void tst_DeclarativeTypes::secondNameInAnotherModule()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import ShopExtras 1.0; OtherName {}", QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QVERIFY(qobject_cast<Basket *>(object.data()));
}

void tst_DeclarativeTypes::versionThatWasNotRegistered()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Shop 2.0; Basket {}", QUrl());
    QVERIFY(component.isError());
}

void tst_DeclarativeTypes::widgetsAreAvailable()
{
    QVERIFY(widgetsAvailable());
}

QTEST_MAIN(tst_DeclarativeTypes)
#include "tst_DeclarativeTypes.moc"
