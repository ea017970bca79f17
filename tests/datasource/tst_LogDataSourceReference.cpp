// The series of random logs, against the same series worked out the long way: text by text, as the
// window shows them.

#include "datasource/SourceFixture.h"

#include <random>

class tst_LogDataSourceReference : public QObject
{
    Q_OBJECT

private slots:
    void randomLogs_data();
    void randomLogs();

private:
    std::mt19937 m_random;

    int below(int count) { return int(m_random() % unsigned(count)); }
    QByteArray pick(const char *texts);
    QByteArray randomRow(int columns);
    QByteArray randomBlock();
    void choose(LogDataSourceItem &source);
    void addRandomCriterion(LogDataSourceItem &source);
};

namespace
{

/** The long way: lists of texts, one pass over them for every step. */
class Reference
{
public:
    explicit Reference(LogDataSourceItem &source)
        : m_source(source)
    {
        const QList<int> checked = source.checkedItemList(0);
        if (checked.isEmpty())
            return;
        columns << checked.first();
        readX(checked.first());
        addSide(source.checkedItemList(1), *source.yVariableModel(), xLeft, yLeft);
        addSide(source.checkedItemList(2), *source.zVariableModel(), xRight, yRight);
    }

    QString xName;
    QVector<double> x;
    QVector<int> columns;
    AxisSeries xLeft;
    AxisSeries yLeft;
    AxisSeries xRight;
    AxisSeries yRight;

private:
    QStringList cells(int column) const
    {
        const LogObservationSortFilterProxyModel &shown = *m_source.observationFilteredTableModel();
        QStringList texts;
        for (int row = 0; row < shown.rowCount(); ++row) {
            const int tableRow = shown.mapToSource(shown.index(row, 0)).row();
            if (!m_source.tableModel()->rowExcluded(tableRow))
                texts << shown.data(shown.index(row, column + 1)).toString();
        }
        return texts;
    }

    static int seconds(const QTime &time)
    {
        return time.isValid() ? QTime(0, 0, 0).secsTo(time) : 0;
    }

    static double number(int column, const QString &cell, QTime &reference)
    {
        if (column != 1)
            return cell.toDouble();
        // Hours, minutes and seconds, whatever else the engine takes for a time.
        const QTime time = cell.size() < 8 ? QTime() : QTime::fromString(cell, Qt::TextDate);
        if (reference.isNull())
            reference = time;
        return seconds(time) - seconds(reference);
    }

    void readX(int column)
    {
        QTime reference;
        foreach (const QString &cell, cells(column))
            x << number(column, cell, reference);
        xName = m_source.parser()
                    ->tabularParser()
                    .variables(m_source.currentDataSetIndex())
                    .value(column);
    }

    static bool accepts(const LogDataSetFilter &filter, float value)
    {
        const QString comparison = LogDataSetFilter::operators.at(filter.filterOperator());
        if (comparison == QLatin1String(">"))
            return value > filter.value();
        if (comparison == QLatin1String(">="))
            return value >= filter.value();
        if (comparison == QLatin1String("<"))
            return value < filter.value();
        if (comparison == QLatin1String("<="))
            return value <= filter.value();
        if (comparison == QLatin1String("="))
            return value == filter.value();
        return value != filter.value();
    }

    QStringList filtered(const QString &name, const QStringList &texts) const
    {
        QStringList result = texts;
        const QStandardItemModel &model = *m_source.activeFilterModel();
        for (int row = 0; row < model.rowCount(); ++row) {
            const LogDataSetFilter &filter = *model.item(row)->data().value<LogDataSetFilter *>();
            if (filter.variable().toLower() != name.toLower() || !filter.active())
                continue;
            for (int i = 0; i < texts.size(); ++i) {
                if (!accepts(filter, texts.at(i).toFloat()))
                    result[i] = QLatin1String("---");
            }
        }
        return result;
    }

    void addSide(const QList<int> &rows, const QStandardItemModel &model, AxisSeries &xPieces,
                 AxisSeries &yPieces)
    {
        foreach (int row, rows) {
            columns << row;
            const QString name = model.item(row)->text();
            const QStringList texts = filtered(name, cells(row));
            QTime reference;
            QVector<double> pieceX;
            QVector<double> pieceY;
            for (int i = 0; i <= texts.size(); ++i) {
                if (i < texts.size() && texts.at(i) != QLatin1String("---")) {
                    pieceX << x.at(i);
                    pieceY << number(row, texts.at(i), reference);
                } else if (!pieceX.isEmpty()) {
                    xPieces[name] << pieceX;
                    yPieces[name] << pieceY;
                    pieceX.clear();
                    pieceY.clear();
                }
            }
        }
    }

    LogDataSourceItem &m_source;
};

/** Every digit, so that NaN equals NaN and 0 does not equal -0. */
QString exactText(const QVector<double> &numbers)
{
    QStringList texts;
    for (int i = 0; i < numbers.size(); ++i)
        texts << QString::number(numbers.at(i), 'g', 17);
    return texts.join(QLatin1String(","));
}

QString exactText(const AxisSeries &series)
{
    QString result;
    for (AxisSeries::const_iterator it = series.constBegin(); it != series.constEnd(); ++it) {
        result += it.key() + QLatin1Char(':');
        for (int i = 0; i < it.value().size(); ++i)
            result += exactText(it.value().at(i)) + QLatin1Char('|');
        result += QLatin1Char(';');
    }
    return result;
}

} // namespace

QByteArray tst_LogDataSourceReference::pick(const char *texts)
{
    const QList<QByteArray> list = QByteArray(texts).split(' ');
    return list.at(below(list.size()));
}

QByteArray tst_LogDataSourceReference::randomRow(int columns)
{
    // Now and then a remark, a row that is too short or one that is too long.
    const int shape = below(10);
    const int cells = shape == 0 ? below(3) : shape == 1 ? below(columns + 3) : columns;
    QList<QByteArray> row;
    for (int column = 0; column < cells; ++column) {
        if (column == 1)
            row << pick("10:00:00 10:00:05 \"10:00:07\" 23:59:59 00:00:01 10:00:00.750 10:00 "
                        "25:00:00 noon 7 ~ --- \"---\"");
        else
            row << pick("0 1 2 3 5 -3.5 1e2 7.25 -0 abc --- ~ nan inf 1e39 \"5\" ---- 0x5");
    }
    QByteArray text;
    for (int i = 0; i < row.size(); ++i)
        text += (i > 0 ? " " : "") + row.at(i);
    return text;
}

QByteArray tst_LogDataSourceReference::randomBlock()
{
    const int columns = 1 + below(6);
    QByteArray groups("G");
    QByteArray variables(pick("Obs a"));
    for (int column = 1; column < columns; ++column) {
        groups += ' ' + pick("G H");
        variables += ' ' + (column == 1 ? pick("Time time a") : pick("a A b co2 CO2 b"));
    }
    QByteArray rows;
    const int count = below(30);
    for (int row = 0; row < count; ++row)
        rows += (row > 0 ? "|" : "") + randomRow(columns);
    return logBlock(groups, variables, rows);
}

void tst_LogDataSourceReference::addRandomCriterion(LogDataSourceItem &source)
{
    LogDataSetFilter::Builder builder;
    builder.variable(QString::fromLatin1(pick("a B co2 Time obs")))
        .filterOperator(below(6))
        .value(float(pick("0 1 5 -3.5 7.25 100").toDouble()));
    LogDataSetFilter *filter = new LogDataSetFilter(&builder, nullptr);
    filter->setActive(below(4) > 0);
    source.addFilter(filter);
}

void tst_LogDataSourceReference::choose(LogDataSourceItem &source)
{
    source.clearCriteria();
    for (int criteria = below(4); criteria > 0; --criteria)
        addRandomCriterion(source);
    for (int axis = 0; axis < 3; ++axis) {
        for (int row = 0; row < source.xVariableModel()->rowCount(); ++row)
            source.updateVariableSelection(axis, row, below(2) == 0);
    }
    LogTableViewModel &table = *source.tableModel();
    for (int row = 0; row < table.rowCount(); ++row) {
        if (below(8) == 0)
            table.setData(table.index(row, 0), Qt::Checked, Qt::CheckStateRole);
    }
    source.setObservationFilterType(
        LogObservationSortFilterProxyModel::LogObservationSortFilterType(below(3)));
    source.setObservationFrequency(below(5) > 1 ? 1 : below(8) - 3);
    source.setObservationRange(below(40) - 3);
}

void tst_LogDataSourceReference::randomLogs_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 100; ++seed)
        QTest::newRow("seed " + QByteArray::number(seed)) << seed;
}

void tst_LogDataSourceReference::randomLogs()
{
    QFETCH(int, seed);
    m_random.seed(unsigned(seed));
    SourceFixture f;
    QByteArray log;
    const int blocks = 1 + below(3);
    for (int i = 0; i < blocks; ++i)
        log += randomBlock();
    f.load(log);
    for (int round = 0; round < 10; ++round) {
        f.source->selectDataSet(below(blocks));
        choose(*f.source);
        const Reference expected(*f.source);
        QCOMPARE(f.source->xData().first, expected.xName);
        QCOMPARE(exactText(f.source->xData().second), exactText(expected.x));
        QCOMPARE(f.source->graphedColumns(), expected.columns);
        QCOMPARE(exactText(f.source->XLeftData()), exactText(expected.xLeft));
        QCOMPARE(exactText(f.source->YLeftData()), exactText(expected.yLeft));
        QCOMPARE(exactText(f.source->XRightData()), exactText(expected.xRight));
        QCOMPARE(exactText(f.source->YRightData()), exactText(expected.yRight));
    }
}

QTEST_MAIN(tst_LogDataSourceReference)
#include "tst_LogDataSourceReference.moc"
