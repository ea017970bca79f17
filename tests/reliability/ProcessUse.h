#ifndef DATALOG_TESTS_RELIABILITY_PROCESSUSE_H
#define DATALOG_TESTS_RELIABILITY_PROCESSUSE_H

#include <QDir>
#include <QFile>
#include <QObject>

#include <malloc.h>

/** What this process holds at a moment. */
struct ProcessUse {
    qint64 heap; ///< bytes handed out by the allocator; 0 where a sanitizer replaced it
    qint64 resident; ///< bytes in memory
    int descriptors; ///< open files
    int objects; ///< below the objects asked for

    static ProcessUse now(const QObjectList &roots = QObjectList())
    {
        ProcessUse use;
        use.heap = qint64(mallinfo2().uordblks);
        use.resident = residentBytes();
        use.descriptors = QDir(QLatin1String("/proc/self/fd"))
                              .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                              .size();
        use.objects = 0;
        for (int i = 0; i < roots.size(); ++i)
            use.objects += 1 + roots.at(i)->findChildren<QObject *>().size();
        return use;
    }

    QString text() const
    {
        return QString::fromLatin1("heap %1, resident %2, descriptors %3, objects %4")
            .arg(heap)
            .arg(resident)
            .arg(descriptors)
            .arg(objects);
    }

private:
    static qint64 residentBytes()
    {
        QFile file(QLatin1String("/proc/self/statm"));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QList<QByteArray> pages = file.readAll().split(' ');
        return pages.value(1).toLongLong() * 4096;
    }
};

#endif
