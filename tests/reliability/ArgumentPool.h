#ifndef DATALOG_TESTS_RELIABILITY_ARGUMENTPOOL_H
#define DATALOG_TESTS_RELIABILITY_ARGUMENTPOOL_H

#include <QStringList>
#include <QVariantMap>

#include <random>

/** Arguments as scripts might pass them: what a log has by chance, and every extreme. */
class ArgumentPool
{
public:
    explicit ArgumentPool(quint32 seed);

    /** Names that mean something: of variables, groups, files. */
    void setNames(const QStringList &names) { m_names = names; }

    int below(int count) { return int(m_random() % unsigned(count)); }
    bool once(int in) { return below(in) == 0; }
    int integer();
    double real();
    bool flag() { return once(2); }
    QString string();
    QVariant variant();
    QVariantMap map(int depth = 0);
    /** A width or height; some are no numbers, or larger than any screen. */
    double length();

private:
    std::mt19937 m_random;
    QStringList m_names;
};

#endif
