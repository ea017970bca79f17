#include "parsing/DataLog.h"

#include "support/OutputCapture.h"
#include "support/SpecialFiles.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

/** Pipes, devices and the like, which must neither hold the user interface nor fill the memory. */
class tst_DataLogSpecialFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void refusesToRead();
    void refusesToAppend();
    void readsNoneThatTakesAFilesPlace();
    void followsWhatTakesAPipesPlace();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    void replace(const char *name, const char *replacement) const;

    QScopedPointer<TempDir> m_dir;
    QScopedPointer<SpecialFiles> m_files;
};

void tst_DataLogSpecialFiles::init()
{
    m_dir.reset(new TempDir);
    m_files.reset(new SpecialFiles(*m_dir));
    m_dir->write(QLatin1String("file"), "a\n");
}

void tst_DataLogSpecialFiles::replace(const char *name, const char *replacement) const
{
    QCOMPARE(rename(QFile::encodeName(path(replacement)).constData(),
                    QFile::encodeName(path(name)).constData()),
             0);
}

void tst_DataLogSpecialFiles::refusesToRead()
{
    foreach (const QString &name, m_files->names()) {
        DataLog log;
        log.setContents(QLatin1String("kept"));
        OutputCapture output;
        QVERIFY2(!log.openReadOnly(m_dir->path(), name), qPrintable(name));
        QCOMPARE(output.text(),
                 "***Error: Failed to open " + QFile::encodeName(m_dir->filePath(name)) + '\n');
        log.refresh();
        log.updateContents(m_dir->filePath(name));
        QCOMPARE(log.contents(), QString::fromLatin1("kept"));
        QCOMPARE(log.filename(), name);
    }
    QVERIFY(m_files->areThere());
}

void tst_DataLogSpecialFiles::refusesToAppend()
{
    foreach (const QString &name, m_files->names()) {
        DataLog log;
        OutputCapture output;
        QVERIFY2(!log.open(m_dir->path(), name), qPrintable(name));
        log.refresh();
        QCOMPARE(log.contents(), QString());
        QCOMPARE(output.text(), QByteArray());
    }
    QVERIFY(m_files->areThere());
}

/** The watched file, and one that is open for appending and read by hand. */
void tst_DataLogSpecialFiles::readsNoneThatTakesAFilesPlace()
{
    DataLog appending;
    QVERIFY(appending.open(m_dir->path(), QLatin1String("file")));
    appending.refresh();
    DataLog log;
    QVERIFY(log.openReadOnly(m_dir->path(), QLatin1String("file")));
    QCOMPARE(log.contents() + appending.contents(), QString::fromLatin1("a\na\n"));
    replace("file", "pipe");
    appending.refresh();
    QCOMPARE(appending.contents(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(log.contents().isEmpty(), 60000);
    QFile::remove(path("file"));
    QFile::link(QLatin1String("/dev/zero"), path("file"));
    log.refresh();
    QCOMPARE(log.contents(), QString());
}

void tst_DataLogSpecialFiles::followsWhatTakesAPipesPlace()
{
    DataLog log;
    QVERIFY(log.openReadOnly(m_dir->path(), QLatin1String("file")));
    replace("file", "pipe");
    QTRY_VERIFY_WITH_TIMEOUT(log.contents().isEmpty(), 60000);
    m_dir->write(QLatin1String("new"), "b\n");
    replace("file", "new");
    QTRY_VERIFY_WITH_TIMEOUT(log.contents() == QLatin1String("b\n"), 60000);
}

QTEST_GUILESS_MAIN(tst_DataLogSpecialFiles)
#include "tst_DataLogSpecialFiles.moc"
