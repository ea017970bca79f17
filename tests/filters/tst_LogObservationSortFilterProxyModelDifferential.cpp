#include "filters/ChangingTable.h"
#include "filters/ListedProxy.h"
#include "filters/MoveRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"

#include <QItemSelectionModel>

#include <random>

typedef LogObservationSortFilterProxyModel Proxy;

namespace
{

/** A model with all that hangs on it while it changes: persistent indexes, a selection. */
class Watched
{
public:
    explicit Watched(QSortFilterProxyModel *proxy)
        : m_proxy(proxy)
        , m_tester(proxy)
        , m_selection(proxy)
        , m_moves(proxy)
    {
    }
    QItemSelectionModel *selection() { return &m_selection; }
    void hold(int row, int column) { m_held << m_proxy->index(row, column); }
    /** All that can be seen of the model, and what was seen since the last call. */
    QString text();

private:
    QStringList rows() const;
    QStringList headers() const;
    QStringList backwards() const;

    QSortFilterProxyModel *m_proxy;
    ModelTester m_tester;
    QItemSelectionModel m_selection;
    QList<QPersistentModelIndex> m_held;
    MoveRecorder m_moves;
};

QString cell(const QModelIndex &index)
{
    return QString::fromLatin1("%1,%2").arg(index.row()).arg(index.column());
}

QStringList Watched::rows() const
{
    QStringList texts;
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        const QModelIndex first = m_proxy->index(row, 0);
        const QModelIndex second = first.sibling(row, 1);
        texts << QString::fromLatin1("%1:%2%3/%4")
                     .arg(m_proxy->mapToSource(second).row())
                     .arg(second.data().toString())
                     .arg(QLatin1String(first.data(Qt::CheckStateRole).toBool() ? "x" : ""))
                     .arg(int(first.flags()));
    }
    return texts;
}

QStringList Watched::headers() const
{
    QStringList texts;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        texts << m_proxy->headerData(row, Qt::Vertical).toString();
    for (int column = 0; column < m_proxy->columnCount(); ++column)
        texts << m_proxy->headerData(column, Qt::Horizontal).toString();
    return texts;
}

QStringList Watched::backwards() const
{
    QStringList texts;
    const QAbstractItemModel *source = m_proxy->sourceModel();
    for (int row = 0; row < source->rowCount(); ++row)
        texts << cell(m_proxy->mapFromSource(source->index(row, 1)));
    return texts;
}

QString Watched::text()
{
    QStringList held;
    foreach (const QPersistentModelIndex &index, m_held)
        held << cell(index);
    QStringList selected;
    foreach (const QModelIndex &index, m_selection.selectedIndexes())
        selected << cell(index);
    selected.sort();
    QStringList parts;
    parts << rows().join(QLatin1String(" ")) << headers().join(QLatin1String(" "))
          << backwards().join(QLatin1String(" ")) << held.join(QLatin1String(" "))
          << selected.join(QLatin1String(" ")) << m_moves.taken()
          << QString::number(m_proxy->hasChildren());
    return parts.join(QLatin1String("\n"));
}

} // namespace

/**
 * Random changes of settings, order and source, after each of which the range filter has to show
 * what the plain one shows, at the same places, with the same indexes held and selected.
 */
class tst_LogObservationSortFilterProxyModelDifferential : public QObject
{
    Q_OBJECT

private slots:
    void randomChanges_data();
    void randomChanges();

private:
    void compareRun(quint32 seed);
    QString changeBoth();
    QString changeSettings();
    QString changeOrder();
    QString changeSource();
    QString changeShape();
    void holdSome(Watched *real, Watched *plain);
    int below(int count) { return int(m_random() % quint32(count)); }

    std::mt19937 m_random;
    ChangingTable *m_source;
    Proxy *m_real;
    ListedProxy *m_plain;
    int m_compared;
    int m_comparedBySteps;
};

void tst_LogObservationSortFilterProxyModelDifferential::randomChanges_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int seed = 0; seed < 60; seed += 20)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void tst_LogObservationSortFilterProxyModelDifferential::randomChanges()
{
    QFETCH(int, firstSeed);
    m_compared = 0;
    m_comparedBySteps = 0;
    for (int seed = firstSeed; seed < firstSeed + 20; ++seed) {
        compareRun(quint32(seed));
        if (QTest::currentTestFailed())
            return;
    }
    // Both ways of mapping have to come up.
    QVERIFY2(m_comparedBySteps > m_compared / 10,
             QByteArray::number(m_comparedBySteps).constData());
    QVERIFY2(m_comparedBySteps < m_compared * 9 / 10,
             QByteArray::number(m_comparedBySteps).constData());
}

void tst_LogObservationSortFilterProxyModelDifferential::compareRun(quint32 seed)
{
    m_random.seed(seed);
    ChangingTable source;
    Proxy realProxy;
    realProxy.setSourceModel(&source);
    ListedProxy plainProxy(&source);
    m_source = &source;
    m_real = &realProxy;
    m_plain = &plainProxy;
    Watched real(m_real);
    Watched plain(m_plain);
    QStringList changes;
    for (int i = 0; i < 60; ++i) {
        changes << changeBoth();
        const QString told
            = QString::fromLatin1("seed %1: %2\n").arg(seed).arg(changes.join(QLatin1String(", ")));
        const QString expected = plain.text();
        const QString found = real.text();
        if (found != expected)
            QFAIL(qPrintable(told + expected + QLatin1String("\n--- but\n") + found));
        ++m_compared;
        const QModelIndex first = m_real->index(0, 0);
        m_comparedBySteps += first.isValid() && !first.internalPointer();
        holdSome(&real, &plain);
    }
}

/** @return what was changed. */
QString tst_LogObservationSortFilterProxyModelDifferential::changeBoth()
{
    const int kind = below(20);
    if (kind < 12)
        return changeSettings();
    if (kind < 15) {
        const int rows = below(3) == 0 ? below(4) : below(60);
        m_source->reset(rows);
        return QString::fromLatin1("reset to %1").arg(rows);
    }
    if (kind < 17)
        return changeOrder();
    return below(2) == 0 ? changeSource() : changeShape();
}

QString tst_LogObservationSortFilterProxyModelDifferential::changeSettings()
{
    const int kind = below(6);
    const int value = kind == 0 ? below(4) : kind < 4 ? below(70) - 3 : 1 + below(3);
    if (kind == 0) {
        m_real->setSortFilterType(Proxy::LogObservationSortFilterType(value));
        m_plain->setSortFilterType(value);
        return QString::fromLatin1("type %1").arg(value);
    }
    if (kind < 4) {
        m_real->setRangeSize(value);
        m_plain->setRangeSize(value);
        return QString::fromLatin1("range %1").arg(value);
    }
    m_real->setFrequency(value);
    m_plain->setFrequency(value);
    return QString::fromLatin1("step %1").arg(value);
}

QString tst_LogObservationSortFilterProxyModelDifferential::changeOrder()
{
    const int column = below(5) - 1;
    const Qt::SortOrder order = below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
    QSortFilterProxyModel *const proxies[] = {m_real, m_plain};
    const int kind = below(4);
    for (QSortFilterProxyModel *proxy : proxies) {
        if (kind == 0)
            proxy->setDynamicSortFilter(column < 2);
        else if (kind == 1)
            proxy->setFilterRegExp(QString::number(column));
        else
            proxy->sort(column > 2 ? -1 : column, order);
    }
    return QString::fromLatin1("order, kind %1, column %2, %3").arg(kind).arg(column).arg(order);
}

QString tst_LogObservationSortFilterProxyModelDifferential::changeSource()
{
    const int rows = m_source->rowCount();
    if (rows == 0)
        return QString::fromLatin1("nothing");
    const int row = below(rows);
    const int kind = below(4);
    if (kind == 0)
        m_source->changeKeys(row, qMin(row + below(5), rows - 1));
    else if (kind == 1)
        m_source->announceHeader(row, qMin(row + below(5), rows - 1));
    else
        m_source->setData(m_source->index(row, 0), below(2), Qt::CheckStateRole);
    return QString::fromLatin1("cells, kind %1, row %2").arg(kind).arg(row);
}

QString tst_LogObservationSortFilterProxyModelDifferential::changeShape()
{
    const int rows = m_source->rowCount();
    const int row = below(rows + 1);
    const int kind = below(8);
    if (kind == 0)
        m_source->insertRows(row, 1 + below(9));
    else if (kind == 1 && row < rows)
        m_source->removeRows(row, 1 + below(rows - row));
    else if (kind == 2 && row < rows)
        m_source->moveToEnd(row);
    else if (kind == 3)
        m_source->turnAround();
    else if (kind == 4)
        m_source->insertColumns(m_source->columnCount(), 1);
    else if (kind == 5 && m_source->columnCount() > 2)
        m_source->removeColumns(m_source->columnCount() - 1, 1);
    else if (kind == 6)
        m_real->removeRows(below(m_plain->rowCount() + 1), 1 + below(3));
    else if (kind == 7)
        m_real->insertRows(below(m_plain->rowCount() + 1), 2);
    return QString::fromLatin1("shape, kind %1, row %2").arg(kind).arg(row);
}

void tst_LogObservationSortFilterProxyModelDifferential::holdSome(Watched *real, Watched *plain)
{
    const int rows = m_plain->rowCount();
    if (rows == 0 || below(3) > 0)
        return;
    const int row = below(rows);
    const int last = row + below(rows - row);
    const int column = below(2);
    real->hold(row, column);
    plain->hold(row, column);
    const QItemSelectionModel::SelectionFlags flags
        = below(2) == 0 ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Toggle;
    real->selection()->select(QItemSelection(m_real->index(row, 0), m_real->index(last, 1)), flags);
    plain->selection()->select(QItemSelection(m_plain->index(row, 0), m_plain->index(last, 1)),
                               flags);
}

QTEST_GUILESS_MAIN(tst_LogObservationSortFilterProxyModelDifferential)
#include "tst_LogObservationSortFilterProxyModelDifferential.moc"
