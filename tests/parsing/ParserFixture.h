#ifndef DATALOG_TESTS_PARSING_PARSERFIXTURE_H
#define DATALOG_TESTS_PARSING_PARSERFIXTURE_H

#include "model/LogDataSet.h"
#include "model/Observation.h"
#include "model/Variable.h"
#include "model/VariableGroup.h"
#include "parsing/LogParser.h"
#include "support/TempDir.h"

/** Cells as one text, so that a data row can tell what it expects: a|b|c. */
inline QString shown(const QStringList &cells)
{
    return cells.join(QLatin1String("|"));
}

/** Rows as one text: a|b/c|d. No rows give an empty text, as does one row of an empty cell. */
inline QString shown(const QList<QStringList> &rows)
{
    QStringList texts;
    for (int i = 0; i < rows.size(); ++i)
        texts.append(shown(rows.at(i)));
    return texts.join(QLatin1String("/"));
}

/** The observations' cells. */
inline QList<QStringList> valuesOf(const QList<Observation *> &observations)
{
    QList<QStringList> rows;
    for (int i = 0; i < observations.size(); ++i)
        rows.append(observations.at(i)->values());
    return rows;
}

/** A row for each group: its name, then its variables' names. */
inline QList<QStringList> namesOf(const QList<VariableGroup *> &groups)
{
    QList<QStringList> rows;
    for (int i = 0; i < groups.size(); ++i) {
        QStringList names(groups.at(i)->option());
        const QList<Variable *> variables = groups.at(i)->variables();
        for (int v = 0; v < variables.size(); ++v)
            names.append(variables.at(v)->option());
        rows.append(names);
    }
    return rows;
}

/** A parser and the files that it reads; what it has read goes with it. */
class ParserFixture
{
public:
    explicit ParserFixture(LogParser::LogParserType type = LogParser::CsvType)
    {
        parser.setLogParserType(type);
    }
    ~ParserFixture() { parser.tabularParser().clear(); }

    /** Parses a file of these bytes; returns the error message. */
    QString parse(const QByteArray &bytes)
    {
        return parsePath(dir.write(QLatin1String("file.log"), bytes));
    }
    QString parsePath(const QString &path)
    {
        QString error = QLatin1String("not set");
        parser.parseFileAtPath(path, error);
        return error;
    }
    const TabularParser &table() const { return parser.tabularParser(); }
    int count() const { return table().dataSets().size(); }

    TempDir dir;
    LogParser parser;
};

#endif
