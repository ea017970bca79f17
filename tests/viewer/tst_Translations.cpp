#include "ViewerUser.h"
#include "viewer/Translations.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

/** German, whole and shown to those who read it. */
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasATranslationOfEveryText();
    void wouldMissOne();
    void keepsPlaceholders();
    void followsTheLocale_data();
    void followsTheLocale();
    void speaksGermanInTheWindow();
    void takesTheFirstKnownLanguage_data();
    void takesTheFirstKnownLanguage();

private:
    struct Message {
        QString source;
        QString text;
        bool isFinished;
    };

    static QString source(const char *path) { return QString(DATALOG_SOURCE_DIR) + '/' + path; }
    static QList<Message> messages(const QString &file)
    {
        QList<Message> found;
        QFile device(file);
        if (!device.open(QIODevice::ReadOnly))
            return found;
        QXmlStreamReader xml(&device);
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == "message")
                found.append(Message());
            else if (xml.name() == "source")
                found.last().source = xml.readElementText();
            else if (xml.name() == "translation") {
                found.last().isFinished = !xml.attributes().hasAttribute("type");
                found.last().text = xml.readElementText();
            }
        }
        return found;
    }
    /** The messages of a copy of the translation after all texts of @p folders were looked for. */
    QList<Message> updated(const QStringList &folders)
    {
        const QString copy = m_directory.filePath("datalog-viewer_de.ts");
        QFile::remove(copy);
        if (!QFile::copy(source("viewer/translations/datalog-viewer_de.ts"), copy))
            return QList<Message>();
        QProcess lupdate;
        lupdate.setWorkingDirectory(DATALOG_SOURCE_DIR);
        lupdate.start(DATALOG_LUPDATE,
                      folders
                          + QStringList{"-silent", "-I", ".", "-I", "src", "-extensions",
                                        "cpp,h,qml", "-locations", "none", "-ts", copy});
        if (!lupdate.waitForFinished() || lupdate.exitCode() != 0)
            return QList<Message>();
        return messages(copy);
    }
    static QStringList unfinished(const QList<Message> &messages)
    {
        QStringList texts;
        for (const Message &message : messages) {
            if (!message.isFinished || message.text.isEmpty())
                texts.append(message.source);
        }
        return texts;
    }

    QTemporaryDir m_directory;
};

void tst_Translations::hasATranslationOfEveryText()
{
    const QList<Message> all = updated({"viewer", "src"});
    QVERIFY(all.size() > 300);
    QCOMPARE(unfinished(all), QStringList());
}

void tst_Translations::wouldMissOne()
{
    QFile added(m_directory.filePath("Added.qml"));
    QVERIFY(added.open(QIODevice::WriteOnly));
    QVERIFY(added.write("import QtQuick 2.15\nText { text: qsTr(\"No one knows this\") }\n") > 0);
    added.close();
    QCOMPARE(unfinished(updated({"viewer", "src", added.fileName()})),
             QStringList("No one knows this"));
}

void tst_Translations::keepsPlaceholders()
{
    const QRegularExpression placeholder("%L?[0-9]");
    const auto placeholders = [&placeholder](const QString &text) {
        QStringList found;
        QRegularExpressionMatchIterator it = placeholder.globalMatch(text);
        while (it.hasNext())
            found.append(it.next().captured());
        found.sort();
        return found;
    };
    const QList<Message> all = messages(source("viewer/translations/datalog-viewer_de.ts"));
    QVERIFY(!all.isEmpty());
    for (const Message &message : all)
        QVERIFY2(placeholders(message.source) == placeholders(message.text),
                 qPrintable(message.source));
}

void tst_Translations::followsTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("text");
    QTest::newRow("German") << "de_DE.UTF-8"
                            << "" << QString::fromUtf8("Das zu öffnende Protokoll");
    QTest::newRow("Austrian") << "de_AT.UTF-8"
                              << ""
                              << "Sagt die Version";
    QTest::newRow("English") << "en_US.UTF-8"
                             << ""
                             << "Says the version";
    QTest::newRow("none") << "C"
                          << ""
                          << "Says the version";
    QTest::newRow("unknown") << "tlh_DE.UTF-8"
                             << ""
                             << "Says the version";
    QTest::newRow("English before German") << "en_US.UTF-8"
                                           << "en:de"
                                           << "Says the version";
    QTest::newRow("German second") << "fr_FR.UTF-8"
                                   << "fr:de"
                                   << "Sagt die Version";
}

void tst_Translations::followsTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, languages);
    QFETCH(QString, text);
    QProcess viewer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    environment.insert("LANGUAGE", languages);
    viewer.setProcessEnvironment(environment);
    viewer.start(DATALOG_VIEWER, {"--help"});
    QVERIFY(viewer.waitForFinished());
    const QString help = QString::fromLocal8Bit(viewer.readAllStandardOutput());
    QVERIFY2(help.contains(text), qPrintable(help));
    viewer.start(DATALOG_VIEWER, {"--every", "0"});
    QVERIFY(viewer.waitForFinished());
    QCOMPARE(viewer.exitCode(), 2);
    const QByteArray error = viewer.readAllStandardError();
    QCOMPARE(error.contains("braucht eine Zahl ab 1"), !text.startsWith("Says"));
}

void tst_Translations::speaksGermanInTheWindow()
{
    const Translations german({"de-DE"});
    const TemporaryLog log;
    ViewerUser user(log);
    QVERIFY(user.isReady());
    QCOMPARE(user.text("openButton"), QString::fromUtf8("Öffnen…"));
    user.key(Qt::Key_F1);
    QTRY_VERIFY(user.isShown("closeHelp"));
    QCOMPARE(user.text("closeHelp"), QString::fromUtf8("Schließen"));
    QVERIFY(user.click("closeHelp"));
    QTRY_VERIFY(!user.isShown("closeHelp"));
    // The module's own texts as well.
    QVERIFY(user.clickTab("viewTabs", 1));
    QCOMPARE(user.source()->tableModel()->headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Ausschließen"));
    const TemporaryLog nonsense("nonsense\n");
    QSignalSpy failed(user.viewer(), SIGNAL(failed(QString)));
    user.viewer()->open(nonsense.path());
    QVERIFY(waitForCount(failed, 1));
    QCOMPARE(user.text("errorText"),
             nonsense.path() + ": Ein Protokoll muss mit dem Abschnitt [Header] beginnen.");
}

void tst_Translations::takesTheFirstKnownLanguage_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QStringList() << "Menu";
    QTest::newRow("German") << QStringList{"de"} << QString::fromUtf8("Menü");
    QTest::newRow("no path") << QStringList{"../de", "/"} << "Menu";
    QTest::newRow("English first") << QStringList{"en-GB", "de"} << "Menu";
}

void tst_Translations::takesTheFirstKnownLanguage()
{
    QFETCH(QStringList, languages);
    QFETCH(QString, text);
    {
        const Translations translations(languages);
        QCOMPARE(QCoreApplication::translate("TopBar", "Menu"), text);
    }
    QCOMPARE(QCoreApplication::translate("TopBar", "Menu"), QString("Menu"));
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
