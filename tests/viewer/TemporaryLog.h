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
        write(text);
    }

    /** In place of what is there. */
    void write(const QByteArray &text) const { put(text, QIODevice::WriteOnly); }
    void append(const QByteArray &text) const { put(text, QIODevice::Append); }

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

    /** Rows of Obs, Time, T, RH and CO2 in the first data set only, to be grown. */
    static QByteArray oneDataSet(int rows = 10)
    {
        QByteArray text = "[Header]\nCreated\t2020-01-01\n[Data]\n"
                          "Sys\tSys\tAir\tAir\tGas\nObs\tTime\tT\tRH\tCO2\n\t-\tC\t%\tppm\n";
        for (int i = 1; i <= rows; ++i)
            text += QByteArray::number(i) + "\t10:00:00\t" + QByteArray::number(20 + i) + ".5\t"
                + QByteArray::number(50 - i) + "\t40" + QByteArray::number(i) + '\n';
        return text;
    }

    /** Both data sets with the first unit empty, as instruments write it, so that units stand
     * right. */
    static QByteArray withUnits() { return twoDataSets().replace("\n-\t", "\n\t"); }

private:
    void put(const QByteArray &text, QIODevice::OpenMode mode) const
    {
        QFile file(m_path);
        if (!file.open(mode) || file.write(text) != text.size())
            qFatal("the log of the test can't be written");
    }

    QTemporaryDir m_directory;
    QString m_path;
};

#endif
