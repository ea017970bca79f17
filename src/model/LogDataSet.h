#ifndef DATALOG_MODEL_LOGDATASET_H
#define DATALOG_MODEL_LOGDATASET_H

#include "model/CellGrid.h"
#include "model/RowStore.h"
#include "model/VariableGroupSet.h"

#include <QMap>
#include <QObject>
#include <QSet>

class Observation;
class Variable;
class VariableGroup;

/**
 * What one block of a log holds: header constants, columns with their group, variable and unit, and
 * the rows.
 *
 * Rows come in as text through appendRow() and stay so; lists of strings and Observation objects
 * are made when they are asked for. Cells and observations can also be appended one by one; they
 * follow those of the rows.
 *
 * The data set owns its observations, and its groups and variables with whoever shares groupSet().
 */
class LogDataSet : public QObject
{
    Q_OBJECT

public:
    /** @param index position of the block in its file, from 0. */
    explicit LogDataSet(int index, QObject *parent = nullptr);
    ~LogDataSet() override;

    void setCreatedDate(const QString &date) { m_createdDate = date; }
    /** Adds a value to the constant @p key, whose text before the first colon is its group. */
    void appendConstHeaderData(const QString &key, const QString &value);
    /** Adds a column. @param column its group, variable and unit. */
    void appendHeaderData(const QStringList &column);
    void appendVariable(const QString &name) { m_variables.append(name); }
    /** The group of that name, made when there is none. */
    VariableGroup *addGroup(const QString &name);
    /** A new variable at the end of a group, which is made when there is none. */
    Variable *addVariableToGroup(const QString &groupName, const QString &variableName);
    /** Adds a cell at the end of @p column; columns that are missing are made as "?" columns. */
    void appendColumnData(int column, const QString &value);
    void addObservation(const QStringList &values);
    /**
     * Appends a row to the observations and each of its cells to its column.
     * @param text the row's UTF-8 text, @p cells cells joined by @p separator, which is the same
     *        for all rows of a data set.
     */
    void appendRow(const char *text, int size, int cells, char separator);

    QString dataSetCreatedDate() const { return m_createdDate; }
    /** Keys of the header constants, in text order. */
    QStringList constHeader() const { return m_constants.keys(); }
    /** Values of the header constants, in the order of constHeader(). */
    QList<QStringList> constData() const { return m_constants.values(); }
    /** Groups of the header constants, in order of first appearance. */
    QStringList constGroups() const { return m_constGroups; }
    /** Group, variable and unit of each column. */
    QList<QStringList> headerData() const { return m_headers; }
    QList<QStringList> columnData() const;
    /** Cells of one column, none for a column that does not exist. */
    QStringList dataForColumn(int column) const;
    /** All columns for readers that need no lists; the same object until the data set grows. */
    CellGridPointer grid() const;
    QStringList variables() const { return m_variables; }
    /** All groups, in text order of their names. */
    QList<VariableGroup *> variableGroups() const;
    /** The group of that name, or null. */
    VariableGroup *groupForName(const QString &name) const;
    /** Groups and variables, to be shared by a list that may outlive the data set. */
    QSharedPointer<VariableGroupSet> groupSet() const { return m_groupSet; }
    /** The rows as objects, which the data set owns and makes when this is first called. */
    QList<Observation *> observations() const;
    /** Rows of the data set: the observations there are or would be. */
    int observationCount() const;
    /** The cells of an observation, quotes included, without the object; none without that row. */
    QStringList observationTexts(int row) const;
    /** Display name: index, created date, and the number of rows where there are columns. */
    QString dataSetName() const;
    int dataSetIndex() const { return m_index; }

private:
    void growTo(int columns);
    bool takesRows(char separator) const;
    QList<QStringList> gatherColumns() const;
    void appendRowAsLists(const QString &text, char separator);

    int m_index;
    QString m_createdDate;
    QMap<QString, QStringList> m_constants;
    QStringList m_constGroups;
    QSet<QString> m_knownConstGroups; ///< the same, to look a group up among many
    QList<QStringList> m_headers;
    QStringList m_variables;
    QSharedPointer<VariableGroupSet> m_groupSet;
    QSharedPointer<RowStore> m_rows; ///< null without rows
    QList<QStringList> m_looseCells; ///< by column, those appended one by one
    QList<QStringList> m_looseRows; ///< observations appended one by one
    mutable QList<Observation *> m_observations;
    mutable CellGridPointer m_grid; ///< null after a change
};

#endif
