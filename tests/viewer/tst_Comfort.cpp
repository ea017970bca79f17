#include "ViewerUser.h"

#include <QScreen>
#include <QTemporaryDir>

/** Keys that work everywhere, the sheet that tells them, and what is kept from run to run. */
class tst_Comfort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsAllKeysOnOneSheet();
    void opensTheSheetByItsButton();
    void scrollsTheSheetByKeys();
    void hasNoKeyTwice();
    void goesToAViewByKey();
    void givesThePlotTheKeyboard();
    void leavesTheKeyboardToAPopup();
    void leavesTheKeyboardWhereItIs_data();
    void leavesTheKeyboardWhereItIs();
    void hidesThePanelByKey();
    void hidesThePanelInTheMenu();
    void tellsItsVersion();
    void opensTheMenuByKey();
    void goesFullScreen();
    void keepsWhatTheUserChose();
    void keepsTheSizeOfTheWindow();
    void comesBackIntoSight();
    void movesSetupsIntoTheMenuWhereThereIsNoRoom();

private:
    bool isSheetOpen() const
    {
        return user().find<QObject>("helpSheet")->property("opened").toBool();
    }
    QStringList sheetTexts(const char *name) const
    {
        QStringList texts;
        collect(user().item("helpScroller"), QLatin1String(name), &texts);
        return texts;
    }
    static void collect(const QQuickItem *parent, const QString &name, QStringList *texts)
    {
        const QList<QQuickItem *> children = parent->childItems();
        for (const QQuickItem *child : children) {
            if (child->objectName() == name)
                texts->append(child->property("text").toString());
            collect(child, name, texts);
        }
    }
    ViewerUser &user() const { return *m_user; }
    /** The name of what has it. */
    QString keyboard() const
    {
        const QQuickItem *item = user().window()->activeFocusItem();
        return item ? item->objectName() : QStringLiteral("nothing");
    }
    /** Ends this run and starts another one. */
    bool restart(const QSize &size = QSize())
    {
        m_user.reset();
        m_user.reset(new ViewerUser(m_log, ViewerOptions(), size, m_directory->filePath("kept")));
        return m_user->isReady();
    }

    TemporaryLog m_log;
    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<ViewerUser> m_user;
};

void tst_Comfort::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(restart(QSize(1000, 640)));
}

void tst_Comfort::cleanup()
{
    m_user.reset();
    m_directory.reset();
}

void tst_Comfort::showsAllKeysOnOneSheet()
{
    QVERIFY(!isSheetOpen());
    user().key(Qt::Key_F1);
    QTRY_VERIFY(isSheetOpen());
    QVERIFY(user().settled());
    const QStringList keys = sheetTexts("helpKey");
    for (const char *key :
         {"F1", "Ctrl+O", "Ctrl+1", "Home", "Alt+←", "Tab", "X, L, R", "Enter", "Wheel"})
        QVERIFY2(keys.contains(QString::fromUtf8(key)), key);
    // All that the plot and the window take is there, with what it does.
    const QStringList texts = sheetTexts("helpText");
    QCOMPARE(texts.size(), keys.size());
    QVERIFY(!texts.contains(QString()));
    int listed = 0;
    const QVariantList sections = user().find<QObject>("helpSheet")->property("sections").toList();
    for (const QVariant &section : sections)
        listed += section.toMap().value("keys").toList().size();
    QCOMPARE(keys.size(), listed);
    user().key(Qt::Key_Escape);
    QTRY_VERIFY(!isSheetOpen());
}

void tst_Comfort::opensTheSheetByItsButton()
{
    QVERIFY(user().click("helpButton"));
    QTRY_VERIFY(isSheetOpen());
    QVERIFY(user().click("closeHelp"));
    QTRY_VERIFY(!isSheetOpen());
}

void tst_Comfort::scrollsTheSheetByKeys()
{
    user().window()->resize(800, 480);
    QVERIFY(user().settled());
    user().key(Qt::Key_F1);
    QTRY_VERIFY(isSheetOpen());
    const QQuickItem *scroller = user().item("helpScroller");
    QVERIFY(scroller->property("contentHeight").toReal() > scroller->height());
    for (int i = 0; i < 20; ++i)
        user().key(Qt::Key_PageDown);
    QCOMPARE(scroller->property("contentY").toReal(),
             scroller->property("contentHeight").toReal() - scroller->height());
    user().key(Qt::Key_Up);
    QVERIFY(scroller->property("contentY").toReal()
            < scroller->property("contentHeight").toReal() - scroller->height());
}

void tst_Comfort::hasNoKeyTwice()
{
    user().key(Qt::Key_F1);
    QTRY_VERIFY(isSheetOpen());
    const QVariantList sections = user().find<QObject>("helpSheet")->property("sections").toList();
    QStringList keys;
    for (int i = 0; i < 2; ++i) { // the plot's and the window's
        const QVariantList listed = sections.at(i).toMap().value("keys").toList();
        for (const QVariant &key : listed)
            keys.append(key.toMap().value("shown").toString());
    }
    QVERIFY(keys.size() > 30);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void tst_Comfort::goesToAViewByKey()
{
    QTest::keyClick(user().window(), Qt::Key_2, Qt::ControlModifier);
    QTRY_VERIFY(user().isShown("table"));
    QCOMPARE(keyboard(), QString("table"));
    QTest::keyClick(user().window(), Qt::Key_3, Qt::ControlModifier);
    QTRY_VERIFY(user().isShown("builder"));
    QCOMPARE(keyboard(), QString("builder"));
    QTest::keyClick(user().window(), Qt::Key_1, Qt::ControlModifier);
    QTRY_VERIFY(user().isShown("plot"));
    QVERIFY(!user().isShown("builder"));
    QCOMPARE(keyboard(), QString("plotArea"));
}

/** Its keys work as soon as a log is open. */
void tst_Comfort::givesThePlotTheKeyboard()
{
    QCOMPARE(keyboard(), QString("plotArea"));
    user().key(Qt::Key_Z);
    QTRY_VERIFY(user().item("pad")->property("zoomMode").toBool());
}

/** Somebody who reads the sheet closes it by a key. */
void tst_Comfort::leavesTheKeyboardToAPopup()
{
    TemporaryLog other;
    user().key(Qt::Key_F1);
    QTRY_VERIFY(isSheetOpen());
    QSignalSpy opened(user().viewer(), SIGNAL(opened()));
    user().viewer()->open(other.path());
    QVERIFY(waitForCount(opened, 1));
    QCOMPARE(keyboard(), QString("helpScroller"));
    user().key(Qt::Key_Escape);
    QTRY_VERIFY(!isSheetOpen());
}

void tst_Comfort::leavesTheKeyboardWhereItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a field") << "variableSearch";
    QTest::newRow("a list") << "variableRow0";
    QTest::newRow("a button") << "openButton";
}

void tst_Comfort::leavesTheKeyboardWhereItIs()
{
    QFETCH(QString, name);
    QQuickItem *item = user().item(qPrintable(name));
    QVERIFY(item);
    item->forceActiveFocus();
    QCOMPARE(keyboard(), name);
    QSignalSpy opened(user().viewer(), SIGNAL(opened()));
    user().key(Qt::Key_F5);
    QVERIFY(waitForCount(opened, 1));
    QCOMPARE(keyboard(), name);
}

void tst_Comfort::hidesThePanelByKey()
{
    QVERIFY(user().isShown("dataSetChoice"));
    const qreal width = user().plot()->width();
    user().key(Qt::Key_F9);
    QTRY_VERIFY(!user().isShown("dataSetChoice"));
    QTRY_VERIFY(user().plot()->width() > width + 200);
    user().key(Qt::Key_F9);
    QTRY_VERIFY(user().isShown("dataSetChoice"));
}

void tst_Comfort::hidesThePanelInTheMenu()
{
    QVERIFY(user().click("menuButton"));
    QVERIFY(user().click("panelSwitch"));
    QTRY_VERIFY(!user().isShown("dataSetChoice"));
    QVERIFY(user().click("panelSwitch"));
    QTRY_VERIFY(user().isShown("dataSetChoice"));
}

void tst_Comfort::tellsItsVersion()
{
    const QString before = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion("7.8.9");
    QVERIFY(restart(QSize(1000, 640)));
    QVERIFY(user().click("menuButton"));
    QVERIFY(user().settled());
    QCOMPARE(user().text("versionText"), QString("DataLog 7.8.9"));
    QCoreApplication::setApplicationVersion(before);
}

void tst_Comfort::opensTheMenuByKey()
{
    user().key(Qt::Key_F10);
    QTRY_VERIFY(user().find<QObject>("viewMenu")->property("opened").toBool());
    user().key(Qt::Key_Escape);
    QTRY_VERIFY(!user().find<QObject>("viewMenu")->property("opened").toBool());
}

void tst_Comfort::goesFullScreen()
{
    user().key(Qt::Key_F11);
    QTRY_COMPARE(user().window()->visibility(), QWindow::FullScreen);
    user().key(Qt::Key_F11);
    QTRY_VERIFY(user().window()->visibility() != QWindow::FullScreen);
}

void tst_Comfort::keepsWhatTheUserChose()
{
    user().key(Qt::Key_F9);
    QVERIFY(user().clickTab("viewTabs", 1));
    QVERIFY(user().click("columnsButton"));
    QVERIFY(user().click("compactRows"));
    QVERIFY(restart(QSize(1000, 640)));
    QVERIFY(!user().isShown("dataSetChoice"));
    QVERIFY(user().clickTab("viewTabs", 1));
    QVERIFY(user().click("columnsButton"));
    QVERIFY(user().settled());
    QVERIFY(user().item("compactRows")->property("checked").toBool());
}

void tst_Comfort::keepsTheSizeOfTheWindow()
{
    user().window()->setGeometry(60, 40, 820, 500);
    QTRY_COMPARE(user().window()->geometry(), QRect(60, 40, 820, 500));
    QVERIFY(restart());
    QTRY_COMPARE(user().window()->geometry(), QRect(60, 40, 820, 500));
}

void tst_Comfort::comesBackIntoSight()
{
    const QSize screen = user().window()->screen()->availableSize();
    Preferences preferences;
    QWindow window;
    window.resize(300, 200);
    WindowPlace place(&window, &preferences);
    preferences.setValue("window/geometry", QRect(9000, 40, 820, 500));
    place.show();
    QCOMPARE(window.size(), QSize(300, 200));
    QVERIFY(window.x() < 2000);
    preferences.setValue("window/geometry", QRect(0, 0, 30000, 400));
    place.show();
    QTRY_COMPARE(window.width(), screen.width());
    preferences.setValue("window/geometry", "nonsense");
    place.show();
    QCOMPARE(window.width(), screen.width());
}

void tst_Comfort::movesSetupsIntoTheMenuWhereThereIsNoRoom()
{
    QVERIFY(user().isShown("saveSetupButton"));
    user().window()->resize(800, 480);
    QTRY_VERIFY(!user().isShown("saveSetupButton"));
    QVERIFY(user().click("menuButton"));
    QVERIFY(user().settled());
    QVERIFY(user().isForFingers("menuSaveSetup"));
    QVERIFY(user().isForFingers("menuApplySetup"));
    QVERIFY(user().click("menuHelp"));
    QTRY_VERIFY(isSheetOpen());
}

QTEST_MAIN(tst_Comfort)
#include "tst_Comfort.moc"
