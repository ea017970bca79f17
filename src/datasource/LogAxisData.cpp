#include "datasource/LogAxisData.h"

#include <QDebug>

LogAxisData::LogAxisData(QObject *parent)
    : QObject(parent)
{
}

void LogAxisData::addYLeftAxisDataSeries(const QString &name, const QVector<double> &x,
                                         const QVector<double> &y)
{
    m_xLeft[name].append(x);
    m_yLeft[name].append(y);
}

void LogAxisData::addYRightAxisDataSeries(const QString &name, const QVector<double> &x,
                                          const QVector<double> &y)
{
    m_xRight[name].append(x);
    m_yRight[name].append(y);
}

void LogAxisData::clear()
{
    m_xLeft.clear();
    m_xRight.clear();
    m_yLeft.clear();
    m_yRight.clear();
}

void LogAxisData::print(const QString &name)
{
    qDebug() << "Printing Variable --" << name;
    qDebug() << m_yLeft.value(name);
    qDebug() << "---------------------------------------";
}
