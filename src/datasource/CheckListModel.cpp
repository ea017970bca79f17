#include "datasource/CheckListModel.h"

CheckListModel::CheckListModel() { }

QStandardItem *CheckListModel::newItem(const QString &text)
{
    QStandardItem *item = new QStandardItem(text);
    item->setCheckable(true);
    item->setEditable(false);
    return item;
}

void CheckListModel::reset()
{
    replaceRows(QList<QStandardItem *>());
}

void CheckListModel::replaceRows(const QList<QStandardItem *> &rows)
{
    beginResetModel();
    const bool blocked = blockSignals(true);
    removeRows(0, rowCount());
    removeColumns(0, columnCount());
    for (int i = 0; i < rows.size(); ++i)
        appendRow(rows.at(i));
    blockSignals(blocked);
    endResetModel();
}

void CheckListModel::setChecked(int row, bool checked)
{
    if (QStandardItem *row0 = item(row))
        row0->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void CheckListModel::setCheckedQuietly(int row, bool checked)
{
    const bool blocked = blockSignals(true);
    setChecked(row, checked);
    blockSignals(blocked);
}

void CheckListModel::uncheckAllQuietly()
{
    for (int row = 0; row < rowCount(); ++row)
        setCheckedQuietly(row, false);
}

void CheckListModel::checkOnlyQuietly(const QString &name)
{
    for (int row = 0; row < rowCount(); ++row)
        setCheckedQuietly(row, item(row) && item(row)->text() == name);
}

bool CheckListModel::isChecked(int row) const
{
    bool isNumber = false;
    const int state = index(row, 0).data(Qt::CheckStateRole).toInt(&isNumber);
    return isNumber && state == Qt::Checked;
}

QList<int> CheckListModel::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row))
            rows.append(row);
    }
    return rows;
}

int CheckListModel::firstCheckedRow() const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row))
            return row;
    }
    return -1;
}
