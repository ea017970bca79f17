#include "table/LogTableViewAnalysisModel.h"

LogTableViewAnalysisModel::LogTableViewAnalysisModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void LogTableViewAnalysisModel::setColumnHeaderData(const QList<QStringList> &) { }

void LogTableViewAnalysisModel::setGridData(const QList<Observation *> &) { }

int LogTableViewAnalysisModel::rowCount(const QModelIndex &) const
{
    return 0;
}

int LogTableViewAnalysisModel::columnCount(const QModelIndex &) const
{
    return 0;
}

QVariant LogTableViewAnalysisModel::headerData(int, Qt::Orientation, int) const
{
    return QVariant();
}

QVariant LogTableViewAnalysisModel::data(const QModelIndex &, int) const
{
    return QVariant();
}

bool LogTableViewAnalysisModel::setData(const QModelIndex &, const QVariant &, int)
{
    return false;
}
