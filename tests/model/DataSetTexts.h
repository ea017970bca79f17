#ifndef DATALOG_TESTS_MODEL_DATASETTEXTS_H
#define DATALOG_TESTS_MODEL_DATASETTEXTS_H

// Data sets made of, and shown as, one text.

#include "model/LogDataSet.h"
#include "model/Observation.h"
#include "model/Variable.h"
#include "model/VariableGroup.h"

#include <QtTest>

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/** A list from a text: cells between bars. */
inline QStringList cells(const char *utf8)
{
    return text(utf8).split(QLatin1Char('|'));
}

/** Lists as one text: cells between bars, lists between slashes. */
inline QString shown(const QList<QStringList> &lists)
{
    QStringList texts;
    foreach (const QStringList &list, lists)
        texts.append(list.join(QLatin1String("|")));
    return texts.join(QLatin1String("/"));
}

inline QString shownRows(const LogDataSet &dataSet)
{
    QList<QStringList> rows;
    foreach (const Observation *observation, dataSet.observations())
        rows.append(observation->values());
    return shown(rows);
}

inline QString groupNames(const LogDataSet &dataSet)
{
    QStringList names;
    foreach (const VariableGroup *group, dataSet.variableGroups())
        names.append(group->option());
    return names.join(QLatin1String("|"));
}

inline QString variableNames(const VariableGroup *group)
{
    QStringList names;
    foreach (const Variable *variable, group->variables())
        names.append(variable->option());
    return names.join(QLatin1String("|"));
}

/** A column as a reader of logs adds it. */
inline void addColumn(LogDataSet &dataSet, const char *group, const char *variable,
                      const char *unit)
{
    dataSet.appendHeaderData(QStringList() << text(group) << text(variable) << text(unit));
    dataSet.appendVariable(text(variable));
    dataSet.addGroup(text(group));
    dataSet.addVariableToGroup(text(group), text(variable));
}

inline void addRow(LogDataSet &dataSet, const QString &row, char separator = '|')
{
    const QByteArray utf8 = row.toUtf8();
    dataSet.appendRow(utf8.constData(), utf8.size(), utf8.count(separator) + 1, separator);
}

inline void addRow(LogDataSet &dataSet, const char *row, char separator = '|')
{
    addRow(dataSet, text(row), separator);
}

/** The same row, cell by cell. */
inline void addCells(LogDataSet &dataSet, const QStringList &row)
{
    for (int column = 0; column < row.size(); ++column) {
        QString cell = row.at(column);
        if (column == 1)
            cell.remove(QLatin1Char('"'));
        dataSet.appendColumnData(column, cell);
    }
    dataSet.addObservation(row);
}

/** The number of columns is one however it is asked, and every reader sees the same cells. */
inline void isConsistent(const LogDataSet &dataSet)
{
    const QList<QStringList> columns = dataSet.columnData();
    QCOMPARE(columns.size(), dataSet.headerData().size());
    QCOMPARE(dataSet.grid()->toLists(), columns);
    for (int column = 0; column < columns.size(); ++column)
        QCOMPARE(dataSet.dataForColumn(column), columns.at(column));
    const QList<Observation *> observations = dataSet.observations();
    QCOMPARE(dataSet.observationCount(), observations.size());
    for (int row = 0; row < observations.size(); ++row)
        QCOMPARE(dataSet.observationTexts(row), observations.at(row)->values());
}

#endif
