#ifndef DATALOG_TESTS_SUPPORT_MODELTESTER_H
#define DATALOG_TESTS_SUPPORT_MODELTESTER_H

#include <QAbstractItemModel>
#include <QtTest>

/**
 * Watches a model for as long as it lives and fails the running test when the model breaks the
 * rules of its base class. The watcher comes with Qt 5; on Qt 4.8 nothing is watched, which loses
 * nothing: the same models are watched on the other engine.
 */
#if QT_VERSION >= 0x050b00
#include <QAbstractItemModelTester>

class ModelTester
{
public:
    explicit ModelTester(QAbstractItemModel *model)
        : m_tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
    }

private:
    QAbstractItemModelTester m_tester;
};
#else
class ModelTester
{
public:
    explicit ModelTester(QAbstractItemModel *) { }
};
#endif

#endif
