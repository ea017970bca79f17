#ifndef DATALOG_TESTS_DATASOURCE_SOURCEFIXTURE_H
#define DATALOG_TESTS_DATASOURCE_SOURCEFIXTURE_H

#include "datasource/LogDataSourceItem.h"
#include "support/LogText.h"
#include "support/SignalRecorder.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

/** A data source, the recorder of its signals, and a directory for the logs it reads. */
class SourceFixture
{
public:
    SourceFixture()
        : source(new LogDataSourceItem)
        , recorder(source.data())
        , errors(source.data(), SIGNAL(logFileError(QString)))
    {
    }

    /** Reads a log; no data set is shown yet. */
    void load(const QByteArray &log, const char *name = "log.txt")
    {
        source->setLogFilePath(dir.write(QLatin1String(name), log));
    }

    /** Reads a log and shows its first data set with all observations; forgets the signals. */
    void show(const QByteArray &log)
    {
        load(log);
        source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
        source->selectDataSet(0);
        recorder.take();
    }

    void exclude(int row, bool excluded = true)
    {
        source->tableModel()->setData(source->tableModel()->index(row, 0),
                                      excluded ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }

    TempDir dir;
    QScopedPointer<LogDataSourceItem> source;
    SignalRecorder recorder;
    QSignalSpy errors;
};

/** Texts of a list model's rows, separated by commas. */
inline QString rowTexts(const QAbstractItemModel *model)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, 0).data().toString();
    return texts.join(QLatin1String(","));
}

/** Cells of one column of a table, separated by commas. */
inline QString columnTexts(const QAbstractItemModel *model, int column)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, column).data().toString();
    return texts.join(QLatin1String(","));
}

/** What a script reads of a list property's elements, separated by commas. */
template <class T> QString valueTexts(QDeclarativeListProperty<T> list)
{
    QStringList texts;
    for (int i = 0; i < list.count(&list); ++i)
        texts << list.at(&list, i)->value().toString();
    return texts.join(QLatin1String(","));
}

inline QString numberTexts(const QVector<double> &numbers)
{
    QStringList texts;
    for (int i = 0; i < numbers.size(); ++i)
        texts << QString::number(numbers.at(i));
    return texts.join(QLatin1String(","));
}

template <class List> QString intTexts(const List &numbers)
{
    QStringList texts;
    for (int i = 0; i < numbers.size(); ++i)
        texts << QString::number(numbers.at(i));
    return texts.join(QLatin1String(","));
}

/** The rows of the data sets that are ticked, separated by commas. */
inline QString checkedDataSets(const SourceFixture &fixture)
{
    return intTexts(fixture.source->checkedItemList(3));
}

/** Curve pieces, such as "co2 1,2|3;H2O 4": pieces separated by "|", variables by ";". */
inline QString seriesText(const AxisSeries &series)
{
    QStringList variables;
    for (AxisSeries::const_iterator it = series.constBegin(); it != series.constEnd(); ++it) {
        QStringList pieces;
        for (int i = 0; i < it.value().size(); ++i)
            pieces << numberTexts(it.value().at(i));
        variables << it.key() + QLatin1Char(' ') + pieces.join(QLatin1String("|"));
    }
    return variables.join(QLatin1String(";"));
}

/** A text to compare with one that stands in a test's source. */
inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

#endif
