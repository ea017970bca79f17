#ifndef DATALOG_DATASOURCE_CHECKLISTMODEL_H
#define DATALOG_DATASOURCE_CHECKLISTMODEL_H

#include <QStandardItemModel>

/**
 * A list of checkable names.
 *
 * The quiet changes block the model's signals, so that a bulk change does not run for each row what
 * is connected to itemChanged(); whoever makes one tells the views afterwards.
 */
class CheckListModel : public QStandardItemModel
{
public:
    CheckListModel();

    /** A new unchecked item, not in the model yet, that users can check but not rename. */
    static QStandardItem *newItem(const QString &text);
    void appendName(const QString &text) { appendRow(newItem(text)); }
    /**
     * Empties the model with a reset, as clear() does. Unlike clear() it is safe inside a handler
     * of this model's own change signals, whose indexes still lead to the root item.
     */
    void reset();
    /** Resets the model to these rows, which it takes over. */
    void replaceRows(const QList<QStandardItem *> &rows);

    /** Checks or unchecks a row, signals and all; a row that does not exist is ignored. */
    void setChecked(int row, bool checked);
    void setCheckedQuietly(int row, bool checked);
    void uncheckAllQuietly();
    /** Checks every row of that name and unchecks all others. */
    void checkOnlyQuietly(const QString &name);

    bool isChecked(int row) const;
    /** The checked rows, ascending. */
    QList<int> checkedRows() const;
    /** The first checked row, -1 when there is none. */
    int firstCheckedRow() const;
};

#endif
