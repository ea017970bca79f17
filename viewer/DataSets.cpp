#include "viewer/DataSets.h"

#include "datasource/CheckListModel.h"
#include "model/LogDataSet.h"
#include "viewer/DefaultVariables.h"

namespace
{

QStringList texts(const QStandardItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.item(row)->text());
    return texts;
}

/** New rows rather than new texts: the latter would compute the series for each of them. */
void listNames(QStandardItemModel *model, const QStringList &names)
{
    if (texts(*model) == names)
        return;
    model->removeRows(0, model->rowCount());
    for (const QString &name : names)
        model->appendRow(CheckListModel::newItem(name));
}

} // namespace

DataSets::DataSets(QObject *parent)
    : QObject(parent)
    , m_current(-1)
{
}

void DataSets::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    m_source = source;
    emit sourceChanged();
}

void DataSets::show(int index)
{
    if (!m_source)
        return;
    readNames();
    if (m_names.isEmpty())
        showNothing();
    if (index < 0 || index >= m_names.size())
        return;
    m_source->selectDataSet(index);
    m_current = index;
    listVariables();
    emit changed();
}

/** Of a log without data sets; the module would leave what another log had in the tables. */
void DataSets::showNothing()
{
    m_current = -1;
    m_variableNames.clear();
    m_source->tableModel()->setColumnHeaderData({});
    m_source->tableModel()->setGrid(CellGridPointer());
    m_source->constTableModel()->setColumnHeaderData({});
    m_source->constTableModel()->setGridData({});
    emit m_source->dataUpdated();
    emit changed();
}

void DataSets::choose(int index)
{
    if (!m_source || index == m_current)
        return;
    // A data set without variables has no ticks to remember.
    if (!m_variableNames.isEmpty())
        m_ticked = VariableChoice::of(m_source);
    show(index);
    const VariableChoice kept = m_ticked.among(m_variableNames);
    const bool showsNothing = kept.left.isEmpty() && kept.right.isEmpty();
    if (showsNothing && !m_ticked.isEmpty())
        DefaultVariables(m_source->parser()->tabularParser(), index).choice().applyTo(m_source);
    else
        kept.applyTo(m_source);
}

/** Counted from 1, as people and the command line do; the module's own names count from 0. */
void DataSets::readNames()
{
    m_names.clear();
    const TabularParser &log = m_source->parser()->tabularParser();
    const QList<LogDataSet *> dataSets = log.dataSets();
    for (int i = 0; i < dataSets.size(); ++i) {
        const int rows = log.grid(i)->cellCount(0);
        const QString content = rows > 0 ? tr("%L1 rows").arg(rows) : tr("no data");
        m_names.append(
            tr("%1: %2, %3")
                .arg(QString::number(i + 1), dataSets.at(i)->dataSetCreatedDate(), content));
    }
}

void DataSets::listVariables()
{
    m_variableNames = m_source->parser()->tabularParser().variables(m_current);
    listNames(m_source->xVariableModel(), m_variableNames);
    listNames(m_source->yVariableModel(), m_variableNames);
    listNames(m_source->zVariableModel(), m_variableNames);
}
