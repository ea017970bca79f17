#include "ViewerUser.h"
#include "viewer/FileDialogStyle.h"
#include "viewer/LocalPath.h"
#include "viewer/SetupFiles.h"
#include "viewer/ThemeColors.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QTreeView>

/** Each dialog for files begins where the last file of its kind was. */
class tst_Folders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensLogsWhereTheLastWas_data();
    void opensLogsWhereTheLastWas();
    void beginsWithTheLogOfTheCommandLine();
    void keepsTheFolderOfSetups();
    void savesPicturesWhereTheLastWent();
    void savesWhereItsDialogTells_data();
    void savesWhereItsDialogTells();
    void opensAnotherAfterAnError();
    void looksLikeTheViewer();

private:
    bool isOpen(QFileDialog **dialog) const;
    QFileDialog *dialogOf(const char *button);
    bool enter(QFileDialog *dialog, const QString &path);
    QString folder(const char *name) const { return m_folders->filePath(QString::fromUtf8(name)); }
    QString copyOfLog(const char *folderName, const QString &name) const;

    QScopedPointer<QTemporaryDir> m_folders;
    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_Folders::initTestCase()
{
    QApplication::setStyle("fusion");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_Folders::init()
{
    m_folders.reset(new QTemporaryDir);
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog);
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

void tst_Folders::cleanup()
{
    m_user.reset();
    m_log.reset();
}

QString tst_Folders::copyOfLog(const char *folderName, const QString &name) const
{
    const QString path = folder(folderName) + '/' + name;
    return QDir().mkpath(folder(folderName)) && QFile::copy(m_log->path(), path) ? path : QString();
}

bool tst_Folders::isOpen(QFileDialog **dialog) const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *candidate = qobject_cast<QFileDialog *>(widget);
        if (candidate && candidate->isVisible())
            *dialog = candidate;
    }
    return *dialog != nullptr;
}

/** The one that a button opens; null when it does not. */
QFileDialog *tst_Folders::dialogOf(const char *button)
{
    QFileDialog *dialog = nullptr;
    const auto isThere = [this, &dialog] { return isOpen(&dialog); };
    return m_user->click(button) && QTest::qWaitFor(isThere) ? dialog : nullptr;
}

/** Types a file's name into a dialog and closes it. */
bool tst_Folders::enter(QFileDialog *dialog, const QString &path)
{
    auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
    if (!name)
        return false;
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
    return QTest::qWaitFor([dialog] { return !dialog->isVisible(); });
}

void tst_Folders::opensLogsWhereTheLastWas_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("plain") << QByteArray("logs");
    QTest::newRow("beyond ASCII") << QByteArray("Me\xc3\x9fwerte \xe2\x82\xac");
    QTest::newRow("percent") << QByteArray("100% of 5%20%41");
    QTest::newRow("marks") << QByteArray("a#b?c");
}

void tst_Folders::opensLogsWhereTheLastWas()
{
    QFETCH(QByteArray, name);
    const QString log = copyOfLog(name, "other.log");
    QFileDialog *dialog = dialogOf("openButton");
    QVERIFY(dialog);
    QVERIFY(enter(dialog, log));
    QTRY_COMPARE(m_user->text("fileName"), QString("other.log"));
    dialog = dialogOf("openButton");
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().path(), folder(name));
    dialog->reject();
}

void tst_Folders::beginsWithTheLogOfTheCommandLine()
{
    QFileDialog *dialog = dialogOf("openButton");
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().path(), m_log->directory());
    dialog->reject();
    // A setup is looked for beside the log until there was another.
    QTRY_VERIFY(!dialog->isVisible());
    dialog = dialogOf("saveSetupButton");
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().path(), m_log->directory());
    dialog->reject();
}

void tst_Folders::keepsTheFolderOfSetups()
{
    QVERIFY(QDir().mkpath(folder("Aufbau #1 100%")));
    QFileDialog *dialog = dialogOf("saveSetupButton");
    QVERIFY(dialog);
    QVERIFY(enter(dialog, folder("Aufbau #1 100%") + "/a.json"));
    QTRY_COMPARE(m_user->find<SetupFiles>("setupFiles")->notice(), QString("a.json was saved"));
    for (const char *button : {"applySetupButton", "saveSetupButton"}) {
        dialog = dialogOf(button);
        QVERIFY(dialog);
        QCOMPARE(dialog->directory().path(), folder("Aufbau #1 100%"));
        dialog->reject();
        QTRY_VERIFY(!dialog->isVisible());
    }
    // Logs have their own.
    dialog = dialogOf("openButton");
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().path(), m_log->directory());
    dialog->reject();
}

void tst_Folders::savesPicturesWhereTheLastWent()
{
    QVERIFY(QDir().mkpath(folder("Bilder #1")));
    QObject *popup = m_user->find<QObject>("savePopup");
    const auto part = [popup](const char *name) { return popup->findChild<QQuickItem *>(name); };
    const auto path = [&part] { return part("savePath")->property("text").toString(); };
    const auto open = [this, popup] {
        return m_user->click("saveAs")
            && QTest::qWaitFor([popup] { return popup->property("opened").toBool(); })
            && m_user->settled();
    };
    const auto saveAs = [this, &part](const QString &file) {
        part("savePath")->setProperty("text", file);
        m_user->click(part("save"), part("save")->boundingRect().center());
        return QTest::qWaitFor([&part] { return part("saveDone")->isVisible(); });
    };
    QVERIFY(open());
    QCOMPARE(path(), m_log->directory() + "/test-plot.png");
    QVERIFY(saveAs(folder("Bilder #1") + "/a.png"));
    m_user->key(Qt::Key_Escape);
    QTRY_VERIFY(!popup->property("visible").toBool());

    const QString other = copyOfLog("logs", "other.log");
    m_user->viewer()->open(other);
    QTRY_COMPARE(m_user->text("fileName"), QString("other.log"));
    QVERIFY(open());
    QCOMPARE(path(), folder("Bilder #1") + "/other-plot.png");
    // Once saved beside the log, that is where the next is suggested.
    QVERIFY(saveAs(folder("logs") + "/b.png"));
    m_user->key(Qt::Key_Escape);
    QTRY_VERIFY(!popup->property("visible").toBool());
    m_user->viewer()->open(m_log->path());
    QTRY_COMPARE(m_user->text("fileName"), QString("test.log"));
    QVERIFY(open());
    QCOMPARE(path(), m_log->directory() + "/test-plot.png");
}

void tst_Folders::savesWhereItsDialogTells_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QString>("button");
    QTest::newRow("new") << false << "Save";
    QTest::newRow("there already") << true << "Replace it";
}

/** What was chosen there lands in the field, and is saved by the button only. */
void tst_Folders::savesWhereItsDialogTells()
{
    QFETCH(bool, isThere);
    const QString file = isThere ? copyOfLog("pictures", "a.png") : folder("pictures") + "/a.png";
    QVERIFY(QDir().mkpath(folder("pictures")));
    QObject *popup = m_user->find<QObject>("savePopup");
    QVERIFY(m_user->click("saveAs"));
    QTRY_VERIFY(popup->property("opened").toBool());
    QFileDialog *dialog = dialogOf("browse");
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Save as"));
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(dialog->directory().path(), m_log->directory());
    QTimer answer; // to whether a file is to be replaced, which stops all else here
    connect(&answer, &QTimer::timeout, this, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
    answer.start(20);
    QVERIFY(enter(dialog, file));
    answer.stop();
    QTRY_COMPARE(m_user->text("savePath"), file);
    QTEST(m_user->text("save"), "button");
    QCOMPARE(m_user->isShown("saveExists"), isThere);
    QVERIFY(QImage(file).isNull());
    QVERIFY(m_user->click("save"));
    QTRY_COMPARE(m_user->text("saveDone"), "Saved " + file);
    QVERIFY(!QImage(file).isNull());
}

void tst_Folders::opensAnotherAfterAnError()
{
    const TemporaryLog diary("Dear diary\n", "diary.txt");
    const QString other = copyOfLog("logs", "other.log");
    QVERIFY(m_user->drop({diary.path()}));
    QTRY_VERIFY(m_user->isShown("errorPane"));
    QFileDialog *dialog = dialogOf("openAnother");
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Open a log"));
    QCOMPARE(dialog->directory().path(), diary.directory());
    QVERIFY(enter(dialog, other));
    QTRY_COMPARE(m_user->text("fileName"), QString("other.log"));
    QTRY_VERIFY(!m_user->isShown("errorPane"));
    QCOMPARE(m_user->source()->tableModel()->rowCount(), 10);
}

void tst_Folders::looksLikeTheViewer()
{
    QFileDialog *dialog = dialogOf("openButton");
    QVERIFY(dialog);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    const auto background = [dialog] { return dialog->grab().toImage().pixelColor(4, 4); };
    QCOMPARE(background(), ThemeColors::color("page", false));
    QVERIFY(dialog->screen()->availableGeometry().contains(dialog->geometry()));
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    int count = 0;
    for (const QAbstractButton *button : buttons) {
        if (!button->isVisible())
            continue;
        ++count;
        QVERIFY2(qMin(button->width(), button->height()) >= 44, qPrintable(button->objectName()));
    }
    QVERIFY(count >= 4);
    const auto *files = dialog->findChild<QTreeView *>("treeView");
    QTRY_VERIFY(files->model()->rowCount(files->rootIndex()) > 0);
    QTRY_VERIFY(files->visualRect(files->model()->index(0, 0, files->rootIndex())).height() >= 44);
    FileDialogStyle().apply(true);
    QTRY_COMPARE(background(), ThemeColors::color("page", true));
    dialog->reject();
}

QTEST_MAIN(tst_Folders)
#include "tst_Folders.moc"
