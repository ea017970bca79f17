#ifndef DATALOG_TESTS_VIEWER_TEMPORARYLOG_H
#define DATALOG_TESTS_VIEWER_TEMPORARYLOG_H

#include <QFile>
#include <QTemporaryDir>

/** A log in a file of its own, which goes with this object. */
class TemporaryLog
{
public:
    explicit TemporaryLog(const QByteArray &text = twoDataSets(),
                          const QString &name = QStringLiteral("test.log"))
        : m_path(m_directory.filePath(name))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("the log of the test can't be written");
    }

    QString path() const { return m_path; }
    QString directory() const { return m_directory.path(); }

    /** Ten rows of Obs, Time, T, RH and CO2, then three rows in which CO2 and T changed places. */
    static QByteArray twoDataSets()
    {
        QByteArray text = "[Header]\nCreated\t2020-01-01\n[Data]\n"
                          "Sys\tSys\tAir\tAir\tGas\nObs\tTime\tT\tRH\tCO2\n-\t-\tC\t%\tppm\n";
        for (int i = 1; i <= 10; ++i) {
            const QByteArray n = QByteArray::number(i);
            text += n + "\t10:00:" + (i < 10 ? "0" : "") + n + "\t" + QByteArray::number(20 + i)
                + ".5\t" + QByteArray::number(50 - i) + "\t40" + n + "\n";
        }
        text += "[Header]\nCreated\t2020-01-02\n[Data]\n"
                "Sys\tSys\tGas\tAir\nObs\tTime\tCO2\tT\n-\t-\tppm\tC\n"
                "1\t11:00:00\t500\t1.5\n2\t11:00:01\t501\t2.5\n3\t11:00:02\t502\t3.5\n";
        return text;
    }

    /** The same with the first unit empty, as instruments write it, so that units stand right. */
    static QByteArray withUnits() { return twoDataSets().replace("\n-\t", "\n\t"); }

private:
    QTemporaryDir m_directory;
    QString m_path;
};

#endif
