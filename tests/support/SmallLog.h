#ifndef DATALOG_TESTS_SUPPORT_SMALLLOG_H
#define DATALOG_TESTS_SUPPORT_SMALLLOG_H

#include "datasource/LogDataSourceItem.h"

#include <QScopedPointer>
#include <QStringList>
#include <QTemporaryFile>

/** A data source that shows all observations of a log as small as a test needs. */
class SmallLog
{
public:
    /**
     * @param table rows separated by "|", cells by blanks; the first row has the names. The second
     * column is the clock time.
     */
    explicit SmallLog(const char *table)
        : source(new LogDataSourceItem)
    {
        load(table);
    }

    void load(const char *table)
    {
        const QStringList rows = QString::fromUtf8(table).split(QLatin1Char('|'));
        QString text = QLatin1String("[Header]\nCreated\tnow\n[Data]\n");
        text += line(QString(rows.first()).replace(QRegExp(QLatin1String("[^ ]+")), group()));
        text += line(rows.first());
        text += line(QString(rows.first()).replace(QRegExp(QLatin1String("[^ ]+")), group()));
        for (int i = 1; i < rows.size(); ++i)
            text += line(rows.at(i));
        QTemporaryFile file;
        if (!file.open())
            qFatal("No temporary file");
        file.write(text.toUtf8());
        file.flush();
        source->setLogFilePath(file.fileName());
        source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
        source->selectDataSet(0);
    }

    /** Checks variables by name, separated by blanks; axes count 0 horizontal, 1 left, 2 right. */
    void check(int axis, const char *names, bool on = true)
    {
        foreach (const QString &name, QString::fromUtf8(names).split(QLatin1Char(' '))) {
            const QList<QStandardItem *> items = source->xVariableModel()->findItems(name);
            if (items.size() != 1)
                qFatal("No variable %s", qPrintable(name));
            source->updateVariableSelection(axis, items.first()->row(), on);
        }
    }

    void uncheck(int axis, const char *names) { check(axis, names, false); }

    QScopedPointer<LogDataSourceItem> source;

private:
    static QString group() { return QLatin1String("Group"); }

    static QString line(QString cells)
    {
        return cells.replace(QLatin1Char(' '), QLatin1Char('\t')) + QLatin1Char('\n');
    }
};

#endif
