#include "ViewerUser.h"
#include "viewer/SetupFiles.h"
#include "viewer/VariableChoice.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

/** Setups saved and applied in a window. */
class tst_SetupFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void savesByTheButton();
    void addsTheSuffix();
    void changesNothingForADialogThatIsClosed();
    void appliesByTheButton();
    void tellsWhatIsLost();
    void tellsWhatFails();
    void forgetsGoodNews();
    void needsALog();
    void scrollsLongNotices();
    void fitsASmallWindow();
    void appliesTheCommandLine();
    void tellsWhatFailsOnTheCommandLine();

private:
    QString path(const char *name) const { return m_log->directory() + '/' + name; }
    SetupFiles *files() const { return m_user->find<SetupFiles>("setupFiles"); }
    QObject *dialog() const;
    bool choose(const char *button, const QString &path);
    QString notice() const { return m_user->text("noticeText"); }
    void look(const char *name);

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_SetupFiles::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_SetupFiles::init()
{
    m_log.reset(new TemporaryLog);
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

void tst_SetupFiles::cleanup()
{
    m_user.reset();
    m_log.reset();
}

QObject *tst_SetupFiles::dialog() const
{
    auto *loader = m_user->find<QObject>("setupDialog");
    return loader ? loader->property("item").value<QObject *>() : nullptr;
}

/** Types a name into the dialog that a button opens, as it is shown where Qt draws it. */
bool tst_SetupFiles::choose(const char *button, const QString &path)
{
    QFileDialog *dialog = nullptr;
    const auto isOpen = [&dialog] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            auto *candidate = qobject_cast<QFileDialog *>(widget);
            if (candidate && candidate->isVisible())
                dialog = candidate;
        }
        return dialog != nullptr;
    };
    if (!m_user->click(button) || !QTest::qWaitFor(isOpen))
        return false;
    auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
    if (!name)
        return false;
    name->setText(path);
    QSignalSpy told(files(), SIGNAL(noticeChanged()));
    QTest::keyClick(name, Qt::Key_Return);
    return waitForCount(told, 1) && !dialog->isVisible() && files()->isGood();
}

/** Pictures for people, where they ask for them. */
void tst_SetupFiles::look(const char *name)
{
    const QString directory = qEnvironmentVariable("DATALOG_TEST_PICTURES");
    if (!directory.isEmpty())
        m_user->window()->grabWindow().save(QDir(directory).filePath(name));
}

void tst_SetupFiles::savesByTheButton()
{
    QVERIFY(!dialog());
    QVERIFY(choose("saveSetupButton", path("a.json")));
    QCOMPARE(notice(), QString("a.json was saved"));
    QVERIFY(m_user->isShown("noticeText"));
    QVERIFY(QFile::exists(path("a.json")));
    QVERIFY(m_user->settled());
    look("saved.png");
    QVERIFY(m_user->click("dismissNotice"));
    QVERIFY(!m_user->isShown("noticeText"));
}

void tst_SetupFiles::addsTheSuffix()
{
    QVERIFY(choose("saveSetupButton", path("b")));
    QCOMPARE(notice(), QString("b.json was saved"));
    QVERIFY(QFile::exists(path("b.json")));
    QVERIFY(!QFile::exists(path("b")));
    // Nobody was asked about that file.
    QVERIFY(!files()->save(QUrl::fromLocalFile(path("b"))));
    QCOMPARE(notice(),
             path("b.json")
                 + ": can't be written: there is such a file already; give its whole name to "
                   "replace it");
    QVERIFY(files()->save(QUrl::fromLocalFile(path("b.json"))));
}

void tst_SetupFiles::changesNothingForADialogThatIsClosed()
{
    QVERIFY(m_user->click("saveSetupButton"));
    QVERIFY(dialog() && dialog()->property("visible").toBool());
    QMetaObject::invokeMethod(dialog(), "close");
    QVERIFY(!dialog()->property("visible").toBool());
    QVERIFY(!m_user->isShown("noticeText"));
}

void tst_SetupFiles::appliesByTheButton()
{
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    m_user->source()->setObservationRange(4);
    m_user->plot()->setSymbolsEnabled(LogViewerItem::LeftAxis, true);
    QVERIFY(choose("saveSetupButton", path("a.json")));
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    m_user->source()->setLeftVariable("RH");
    m_user->plot()->setSymbolsEnabled(LogViewerItem::LeftAxis, false);
    QVERIFY(choose("applySetupButton", path("a.json")));
    QCOMPARE(notice(), QString("a.json was applied"));
    QCOMPARE(m_user->leftValues("T"), (QVector<double>{27.5, 28.5, 29.5, 30.5}));
    // The controls tell what is set.
    QCOMPARE(m_user->item("rangeType")->property("currentIndex").toInt(), 2);
    QCOMPARE(m_user->item("rangeSize")->property("value").toInt(), 4);
    auto *leftStyle = m_user->item("leftStyle");
    QVERIFY(leftStyle->findChild<QQuickItem *>("symbols")->property("checked").toBool());
}

void tst_SetupFiles::tellsWhatIsLost()
{
    m_user->source()->buildFilter(2, 1, "25.5");
    QVERIFY(files()->save(QUrl::fromLocalFile(path("a.xml"))));
    QCOMPARE(notice(),
             "a.xml was saved\n" + path("a.xml")
                 + ": XML does not keep the operator of \"T>=25.5\", which reads back as >. "
                   "A definition that ends in .json keeps everything.");
    QVERIFY(m_user->settled());
    look("lost.png");
    QVERIFY(files()->apply(QUrl::fromLocalFile(path("a.xml"))));
    QCOMPARE(notice(),
             "a.xml was applied\n" + path("a.xml")
                 + ": XML does not keep operators: these criteria read as \"T>25.5\", "
                   "whatever they were; check them");
    QCOMPARE(m_user->source()->activeFilterModel()->rowCount(), 2);
}

void tst_SetupFiles::tellsWhatFails()
{
    QVERIFY(!files()->save(QUrl::fromLocalFile(path("missing/a.json"))));
    QCOMPARE(notice(), path("missing/a.json") + ": can't be written: No such file or directory");
    QVERIFY(!files()->save(QUrl::fromLocalFile(path("a.txt"))));
    QCOMPARE(notice(),
             path("a.txt") + ": can't be written: the name of a definition ends in .json or .xml");
    QVERIFY(!files()->apply(QUrl::fromLocalFile(path("a.json"))));
    QCOMPARE(notice(), path("a.json") + ": there is no such file");
    QVERIFY(m_user->settled());
    look("failed.png");
    // The notice is in nobody's way.
    QVERIFY(m_user->clickTab("pageTabs", 1));
    QVERIFY(m_user->isForFingers("dismissNotice"));
    QVERIFY(m_user->click("dismissNotice"));
    QVERIFY(!m_user->isShown("noticeText"));
}

void tst_SetupFiles::forgetsGoodNews()
{
    QVERIFY(choose("saveSetupButton", path("a.json")));
    QTRY_VERIFY_WITH_TIMEOUT(!m_user->isShown("noticeText"), 10000);
}

void tst_SetupFiles::scrollsLongNotices()
{
    m_user->window()->resize(640, 400);
    const QString missing = path(QByteArray("no/").repeated(300) + "a.json");
    QVERIFY(!files()->apply(QUrl::fromLocalFile(missing)));
    QVERIFY(m_user->settled());
    QVERIFY(m_user->isForFingers("dismissNotice"));
    QQuickItem *scroller = nullptr;
    for (QQuickItem *item : m_user->window()->findChildren<QQuickItem *>("noticeScroller")) {
        if (item->isVisible())
            scroller = item;
    }
    QVERIFY(scroller);
    const double hidden = scroller->property("contentHeight").toDouble() - scroller->height();
    QVERIFY2(hidden > 20, qPrintable(QString::number(hidden)));
    const QPoint from = m_user->pointOf(scroller, QPointF(100, scroller->height() - 10));
    for (int i = 0; i < 20; ++i)
        m_user->drag(from, QPoint(0, -80));
    QTRY_COMPARE(scroller->property("contentY").toDouble(), hidden);
}

void tst_SetupFiles::needsALog()
{
    QSignalSpy failed(m_user->viewer(), SIGNAL(failed(QString)));
    m_user->viewer()->open(path("missing.log"));
    QVERIFY(waitForCount(failed, 1));
    QVERIFY(!m_user->item("saveSetupButton")->isEnabled());
    QVERIFY(!m_user->item("applySetupButton")->isEnabled());
}

void tst_SetupFiles::fitsASmallWindow()
{
    m_user->window()->resize(640, 400);
    m_user->source()->buildFilter(2, 1, "25.5");
    QVERIFY(files()->save(QUrl::fromLocalFile(path("a.xml"))));
    QVERIFY(m_user->settled());
    for (const char *name : {"openButton", "menuButton", "dismissNotice"})
        QVERIFY2(m_user->isForFingers(name), name);
    QVERIFY(m_user->click("menuButton"));
    QVERIFY(m_user->settled());
    for (const char *name : {"menuSaveSetup", "menuApplySetup"})
        QVERIFY2(m_user->isForFingers(name), name);
    look("small.png");
}

void tst_SetupFiles::appliesTheCommandLine()
{
    m_user->source()->buildFilter(2, 1, "25.5");
    m_user->source()->setLeftVariable("RH");
    QVERIFY(files()->save(QUrl::fromLocalFile(path("a.json"))));
    m_user.reset();
    ViewerOptions options;
    options.definition = path("a.json");
    options.savedDefinition = path("b.json");
    m_user.reset(new ViewerUser(*m_log, options));
    QVERIFY(m_user->isReady());
    QCOMPARE(notice(), QString());
    QCOMPARE(m_user->source()->activeFilterModel()->item(0)->text(), QString("T>=25.5"));
    QCOMPARE(VariableChoice::of(m_user->source()).left, QStringList{"RH"});
    QFile a(path("a.json"));
    QFile b(path("b.json"));
    QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    QCOMPARE(b.readAll(), a.readAll());
}

/** The log is shown all the same. */
void tst_SetupFiles::tellsWhatFailsOnTheCommandLine()
{
    ViewerOptions options;
    options.definition = path("a.json");
    options.savedDefinition = path("missing/b.json");
    m_user.reset(new ViewerUser(*m_log, options));
    QVERIFY(m_user->isReady());
    QCOMPARE(notice(),
             path("a.json") + ": there is no such file\n" + path("missing/b.json")
                 + ": can't be written: No such file or directory");
    QCOMPARE(m_user->curves(), 2);
    QCOMPARE(m_user->item("step")->property("value").toInt(), 1);
}

QTEST_MAIN(tst_SetupFiles)
#include "tst_SetupFiles.moc"
