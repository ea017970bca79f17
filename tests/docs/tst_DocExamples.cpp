#include "docs/DocExample.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QDirIterator>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>

/**
 * Every example of the documentation runs, in a folder that holds the sample logs, and prints what
 * it says that it prints, without any warning.
 */
class tst_DocExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void printsWhatItSays_data();
    void printsWhatItSays();

private:
    void addPages(const QString &folder, QDirIterator::IteratorFlag flag);

    QTemporaryDir m_folder;
    QString m_startFolder;
};

namespace
{

QStringList &printed()
{
    static QStringList texts;
    return texts;
}

QStringList &troubles()
{
    static QStringList texts;
    return texts;
}

void collect(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const bool isPlatform = text.startsWith(QLatin1String("This plugin does not support"));
    if (type == QtDebugMsg)
        printed() << text;
    else if (!isPlatform)
        troubles() << text;
}

/** Puts the message handler back, however a test ends. */
struct Collector {
    Collector() { previous = qInstallMessageHandler(collect); }
    ~Collector() { qInstallMessageHandler(previous); }
    QtMessageHandler previous;
};

} // namespace

void tst_DocExamples::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QDir logs(QLatin1String(DATALOG_SOURCE_DIR "/examples/logs"));
    const QStringList names
        = logs.entryList(QStringList() << QLatin1String("*.log") << QLatin1String("*.csv"));
    QVERIFY(names.size() >= 3);
    for (const QString &name : names)
        QVERIFY(QFile::copy(logs.filePath(name), m_folder.filePath(name)));
    m_startFolder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void tst_DocExamples::cleanupTestCase()
{
    QDir::setCurrent(m_startFolder);
}

void tst_DocExamples::addPages(const QString &folder, QDirIterator::IteratorFlag flag)
{
    QDirIterator pages(QLatin1String(DATALOG_SOURCE_DIR "/") + folder,
                       QStringList() << QLatin1String("*.md"), QDir::Files, flag);
    while (pages.hasNext()) {
        const QList<DocExample> examples = DocExample::ofPage(pages.next());
        for (const DocExample &example : examples) {
            const QByteArray name
                = pages.fileName().toUtf8() + ':' + QByteArray::number(example.line);
            QTest::newRow(name.constData()) << example.script << example.printed();
        }
    }
}

void tst_DocExamples::printsWhatItSays_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("expected");
    addPages(QLatin1String("."), QDirIterator::NoIteratorFlags);
    addPages(QLatin1String("docs"), QDirIterator::Subdirectories);
}

void tst_DocExamples::printsWhatItSays()
{
    QFETCH(QString, script);
    QFETCH(QStringList, expected);
    QVERIFY2(!expected.isEmpty(), "an example has to print something");
    printed().clear();
    troubles().clear();
    QQmlEngine engine;
    engine.addImportPath(QLatin1String(DATALOG_BINARY_DIR "/imports"));
    QQmlComponent component(&engine);
    component.setData(script.toUtf8(),
                      QUrl::fromLocalFile(m_folder.filePath(QLatin1String("example.qml"))));
    {
        const Collector collector;
        const QScopedPointer<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(printed().size() >= expected.size(), 10000);
    }
    QCOMPARE(printed().join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
    QCOMPARE(troubles().join(QLatin1Char('\n')), QString());
}

QTEST_MAIN(tst_DocExamples)
#include "tst_DocExamples.moc"
