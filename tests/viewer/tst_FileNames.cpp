#include "TemporaryLog.h"
#include "ViewerProcess.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <dirent.h>

/** The viewer opens, writes and names files whatever bytes their names are of. */
class tst_FileNames : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void opensAndWrites_data();
    void opensAndWrites();
    void opensAndWritesWithoutLanguage_data();
    void opensAndWritesWithoutLanguage();
    void namesWhatIsMissing_data();
    void namesWhatIsMissing();

private:
    bool makeLog(const QByteArray &name) const;
    QSet<QByteArray> names() const;
    int run(const QList<QByteArray> &arguments);

    QScopedPointer<TempDir> m_directory;
    QByteArray m_errors;
    QString m_language;
};

namespace
{

/** A word that a shell reads as just these bytes: printf takes octal numbers. */
QByteArray shellWord(const QByteArray &bytes)
{
    QByteArray word = "\"$(printf %b '";
    for (const char byte : bytes)
        word += "\\0" + QByteArray::number(uchar(byte), 8).rightJustified(3, '0');
    return word + "')\"";
}

void nameRows()
{
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("dash") << QByteArray("-rf");
    QTest::newRow("option") << QByteArray("--help");
    QTest::newRow("blanks") << QByteArray("  two  blanks ");
    QTest::newRow("quotes") << QByteArray("\"a\" 'b' `c`");
    QTest::newRow("shell") << QByteArray("$(touch x);a&&b|c>d<e*?[f]~!#");
    QTest::newRow("backslash") << QByteArray("a\\b\\n");
    QTest::newRow("line feed") << QByteArray("a\nb\tc");
    QTest::newRow("control") << QByteArray("a\x01\x1b[2Jb");
    QTest::newRow("percent") << QByteArray("%1%2%20%s");
    QTest::newRow("address") << QByteArray("file:x");
    QTest::newRow("resource") << QByteArray("qrc:x");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80");
    QTest::newRow("Latin-1") << QByteArray("caf\xe9");
    QTest::newRow("cut UTF-8") << QByteArray("a\xe2\x82");
    QTest::newRow("half of a pair") << QByteArray("\xed\xa0\x80");
    QTest::newRow("all high bytes") << QByteArray("\x80\x90\xa0\xb0\xc0\xd0\xe0\xf0\xff");
}

} // namespace

void tst_FileNames::init()
{
    m_directory.reset(new TempDir);
    m_language = "C.UTF-8";
}

bool tst_FileNames::makeLog(const QByteArray &name) const
{
    const QString plain = m_directory->write("plain", TemporaryLog::twoDataSets());
    return std::rename(QFile::encodeName(plain).constData(),
                       (QFile::encodeName(m_directory->path()) + '/' + name).constData())
        == 0;
}

/** As the system has them. */
QSet<QByteArray> tst_FileNames::names() const
{
    QSet<QByteArray> names;
    DIR *const directory = opendir(QFile::encodeName(m_directory->path()).constData());
    while (const dirent *entry = readdir(directory))
        names.insert(entry->d_name);
    closedir(directory);
    return names - QSet<QByteArray>{".", ".."};
}

int tst_FileNames::run(const QList<QByteArray> &arguments)
{
    QByteArray command = "exec \"$VIEWER\"";
    for (const QByteArray &argument : arguments)
        command += ' ' + shellWord(argument);
    ViewerProcess viewer(m_directory->path());
    viewer.setVariable("LC_ALL", m_language);
    viewer.setVariable("VIEWER", DATALOG_VIEWER);
    const int status = viewer.run({"-c", QString::fromLatin1(command)}, "/bin/sh");
    m_errors = viewer.errorBytes();
    return status;
}

void tst_FileNames::opensAndWrites_data()
{
    nameRows();
}

void tst_FileNames::opensAndWrites()
{
    QFETCH(QByteArray, name);
    QVERIFY(makeLog(name));
    const QByteArray csv = name + ".csv";
    const QByteArray session = name + ".json";
    QCOMPARE(run({"--export=" + csv, "--save-definition=" + session, "--", name}), 0);
    QCOMPARE(m_errors, QByteArray());
    QCOMPARE(names(), (QSet<QByteArray>{name, csv, session}));
    // What was written is found again, and replaced.
    QCOMPARE(run({"--export=" + csv, "--definition=" + session, "--", name}), 0);
    QCOMPARE(m_errors, QByteArray());
    QCOMPARE(names(), (QSet<QByteArray>{name, csv, session}));
}

void tst_FileNames::opensAndWritesWithoutLanguage_data()
{
    nameRows();
}

void tst_FileNames::opensAndWritesWithoutLanguage()
{
    m_language = "C";
    opensAndWrites();
}

void tst_FileNames::namesWhatIsMissing_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");

    QTest::newRow("dash") << QByteArray("-rf") << QByteArray("-rf");
    QTest::newRow("blanks") << QByteArray(" a  b ") << QByteArray(" a  b ");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9") << QByteArray("\xc3\xa9");
    QTest::newRow("Latin-1") << QByteArray("caf\xe9.log") << QByteArray("caf?.log");
}

void tst_FileNames::namesWhatIsMissing()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, shown);
    QCOMPARE(run({"--export=plot.png", "--", name}), 1);
    QCOMPARE(m_errors, "datalog-viewer: " + shown + ": there is no such file\n");
    QCOMPARE(names(), QSet<QByteArray>());
}

QTEST_GUILESS_MAIN(tst_FileNames)
#include "tst_FileNames.moc"
