#include "datasource/LogDataSourceItem.h"

#include "datasource/SeriesBuilder.h"
#include "model/LogDataSet.h"
#include "model/NumberText.h"
#include "model/RowGrid.h"

#include <QPointer>

namespace
{

const int kDefaultTitleLength = 10000;

enum Axis { HorizontalAxis = 0, LeftAxis = 1, RightAxis = 2 };
enum { DataSetList = 3, CriteriaList = 4 };

LogParser::LogParserType parserType(const QString &path)
{
    if (path.endsWith(QLatin1String(".csv")))
        return LogParser::CsvType;
    const bool isSpreadsheet
        = path.endsWith(QLatin1String(".xls")) || path.endsWith(QLatin1String("xlsx"));
    return isSpreadsheet ? LogParser::ExcelType : LogParser::LogType;
}

/** The names of an axis' variables, but for those that are part of the title already. */
QString axisTitle(const AxisSeries &series)
{
    QString title = QLatin1String("");
    for (AxisSeries::const_iterator it = series.constBegin(); it != series.constEnd(); ++it) {
        if (title.isEmpty())
            title += it.key(); // a missing name must not make it null
        else if (!title.contains(it.key()))
            title += QLatin1String(" - ") + it.key();
    }
    return title;
}

} // namespace

const QString LogDataSourceItem::kFilteredDelimiter = QLatin1String(kGapText);

LogDataSourceItem::LogDataSourceItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , m_tableModel(nullptr)
    , m_constTableModel(nullptr)
    , m_analysisTableModel(nullptr)
    , m_maxVariableAxisTitleLength(kDefaultTitleLength)
    , m_currentDataSetIndex(0)
{
    connectModels();
    m_observationProxy.setSourceModel(&m_tableModel);
}

LogDataSourceItem::~LogDataSourceItem()
{
    // A parser leaves its data sets to others, and there are no others than this item.
    m_parser.tabularParser().clear();
}

void LogDataSourceItem::connectModels()
{
    connect(&m_parser, SIGNAL(parsingComplete()), SIGNAL(dataUpdated()));
    connect(&m_parser, SIGNAL(parseError(QString)), SIGNAL(logFileError(QString)));
    connect(&m_dataSetModel,
            SIGNAL(itemChanged(QStandardItem*)), SLOT(dataSetUpdatedInternal(QStandardItem*)));
    connect(&m_xVariableModel, SIGNAL(itemChanged(QStandardItem*)), SLOT(updateGraphData()));
    connect(&m_yVariableModel, SIGNAL(itemChanged(QStandardItem*)), SLOT(updateGraphData()));
    connect(&m_zVariableModel, SIGNAL(itemChanged(QStandardItem*)), SLOT(updateGraphData()));
    connect(&m_activeFilterModel,
            SIGNAL(itemChanged(QStandardItem*)), SLOT(activeFiltersUpdated(QStandardItem*)));
    connect(&m_tableModel, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(updateGraphData()));
    connect(&m_tableModel, SIGNAL(hasExcludedRowsChanged()), SIGNAL(hasExcludeRowsChanged()));
}

// Loading

void LogDataSourceItem::setLogFilePath(const QString &path)
{
    QString error;
    if (m_parser.isParsing()) {
        m_parser.parseFileAtPath(path, error);
        emit logFileError(error);
        return;
    }
    m_logFilePath = path;
    m_currentDataSetIndex = 0;
    m_parser.setLogParserType(parserType(path));
    // A handler that runs between two lines may delete this item.
    const QPointer<LogDataSourceItem> self(this);
    m_parser.parseFileAtPath(path, error);
    if (!self)
        return;
    if (!error.isEmpty()) {
        emit logFileError(error);
        return;
    }
    // Nor does a data set that such a handler chose from the lists before belong to this log.
    m_currentDataSetIndex = 0;
    createItemModels();
    emit logFileLoaded();
}

void LogDataSourceItem::takeLog(LogParser &parser)
{
    if (m_parser.isParsing() || parser.isParsing())
        return;
    m_parser.take(parser);
    m_currentDataSetIndex = 0;
    createItemModels();
    emit logFileLoaded();
}

void LogDataSourceItem::createItemModels()
{
    m_xVariableModel.reset();
    m_yVariableModel.reset();
    m_zVariableModel.reset();
    m_dataSetModel.reset();
    m_dataSetNames.release();
    const QList<QStringList> columns = tabular().headerData(0);
    for (int i = 0; i < columns.size(); ++i) {
        const QString name = columns.at(i).value(1);
        m_xVariableModel.appendName(name);
        m_yVariableModel.appendName(name);
        m_zVariableModel.appendName(name);
    }
    for (int i = 0; i < tabular().dataSets().size(); ++i) {
        const QString name = QString::fromLatin1("Data Set %1").arg(i + 1);
        m_dataSetModel.appendName(name);
        m_dataSetNames.append(new PropertyWrapper(QVariant(name)));
    }
    m_dataSetModel.setCheckedQuietly(0, true);
}

void LogDataSourceItem::updateData()
{
    m_tableModel.setColumnHeaderData(tabular().headerData(m_currentDataSetIndex));
    m_tableModel.setGrid(tabular().grid(m_currentDataSetIndex));
    m_constTableModel.setColumnHeaderData(tabular().constHeader(m_currentDataSetIndex));
    m_constTableModel.setGridData(tabular().constData(m_currentDataSetIndex));
    emit dataUpdated();
}

void LogDataSourceItem::selectDataSet(int index)
{
    m_dataSetModel.uncheckAllQuietly();
    m_dataSetModel.setChecked(index, true);
}

void LogDataSourceItem::dataSetUpdatedInternal(QStandardItem *checkedItem)
{
    m_currentDataSetIndex = checkedItem->row();
    m_xVariableModel.uncheckAllQuietly();
    m_yVariableModel.uncheckAllQuietly();
    m_zVariableModel.uncheckAllQuietly();
    const QPointer<LogDataSourceItem> self(this);
    updateData();
    if (self)
        updateGraphData();
}

// Lists for scripts

QDeclarativeListProperty<PropertyWrapper> LogDataSourceItem::variableList()
{
    m_variableNames.replace(tabular().variables(m_currentDataSetIndex));
    return m_variableNames.property(this);
}

QDeclarativeListProperty<PropertyWrapper> LogDataSourceItem::dataSetList()
{
    QStringList names;
    const QList<LogDataSet *> dataSets = tabular().dataSets();
    for (int i = 0; i < dataSets.size(); ++i)
        names.append(dataSets.at(i)->dataSetName());
    m_dataSetNames.replace(names);
    return m_dataSetNames.property(this);
}

QDeclarativeListProperty<PropertyWrapper> LogDataSourceItem::criteriaList()
{
    return m_criteriaNames.property(this);
}

QDeclarativeListProperty<VariableGroup> LogDataSourceItem::groupList()
{
    m_groups.show(tabular().groupSet(m_currentDataSetIndex));
    return m_groups.property(this);
}

QDeclarativeListProperty<PropertyWrapper> LogDataSourceItem::constList()
{
    m_constNames.replace(tabular().constGroups(m_currentDataSetIndex));
    return m_constNames.property(this);
}

QDeclarativeListProperty<Variable> LogDataSourceItem::horizontalVariables()
{
    return m_horizontalVariables.property(this);
}

QDeclarativeListProperty<Variable> LogDataSourceItem::leftVariables()
{
    return m_leftVariables.property(this);
}

QDeclarativeListProperty<Variable> LogDataSourceItem::rightVariables()
{
    return m_rightVariables.property(this);
}

// The window over the observations

LogObservationSortFilterProxyModel *LogDataSourceItem::observationFilteredTableModel()
{
    return &m_observationProxy;
}

LogObservationSortFilterProxyModel::LogObservationSortFilterType
LogDataSourceItem::observationFilterType() const
{
    return m_observationProxy.sortFilterType();
}

void LogDataSourceItem::setObservationFilterType(
    LogObservationSortFilterProxyModel::LogObservationSortFilterType type)
{
    m_observationProxy.setSortFilterType(type);
    updateGraphData();
}

void LogDataSourceItem::setObservationRange(int rows)
{
    m_observationProxy.setRangeSize(rows);
    updateGraphData();
}

void LogDataSourceItem::setObservationFrequency(int step)
{
    m_observationProxy.setFrequency(step);
    updateGraphData();
}

// Which variables are on which axis

CheckListModel *LogDataSourceItem::variableModel(int axis)
{
    switch (axis) {
    case HorizontalAxis:
        return &m_xVariableModel;
    case LeftAxis:
        return &m_yVariableModel;
    case RightAxis:
        return &m_zVariableModel;
    default:
        return nullptr;
    }
}

void LogDataSourceItem::updateVariableSelection(int axis, int index, bool checked)
{
    if (CheckListModel *model = variableModel(axis))
        model->setChecked(index, checked);
}

QList<int> LogDataSourceItem::checkedItemList(int listIndex)
{
    if (listIndex == DataSetList)
        return m_dataSetModel.checkedRows();
    if (listIndex == CriteriaList)
        return m_activeFilterModel.checkedRows();
    const CheckListModel *model = variableModel(listIndex);
    return model ? model->checkedRows() : QList<int>();
}

void LogDataSourceItem::showGroup(AxisVariables &axis, const QString &groupName)
{
    const VariableGroup *group = tabular().groupForName(groupName, m_currentDataSetIndex);
    if (group)
        axis.show(*group, tabular().groupSet(m_currentDataSetIndex));
}

void LogDataSourceItem::setHorizontalGroup(const QString &groupName)
{
    showGroup(m_horizontalVariables, groupName);
}

void LogDataSourceItem::setLeftGroup(const QString &groupName)
{
    showGroup(m_leftVariables, groupName);
}

void LogDataSourceItem::setRightGroup(const QString &groupName)
{
    showGroup(m_rightVariables, groupName);
}

void LogDataSourceItem::showOnly(CheckListModel &model, const QString &variableName)
{
    model.checkOnlyQuietly(variableName);
    updateGraphData();
}

void LogDataSourceItem::setHorizontalVariable(const QString &variableName)
{
    showOnly(m_xVariableModel, variableName);
}

void LogDataSourceItem::setLeftVariable(const QString &variableName)
{
    showOnly(m_yVariableModel, variableName);
}

void LogDataSourceItem::setRightVariable(const QString &variableName)
{
    showOnly(m_zVariableModel, variableName);
}

int LogDataSourceItem::getHorizontalGroupIndex(const QString &name)
{
    return m_groups.indexOf(name);
}

int LogDataSourceItem::getLeftGroupIndex(const QString &name)
{
    return m_groups.indexOf(name);
}

int LogDataSourceItem::getRightGroupIndex(const QString &name)
{
    return m_groups.indexOf(name);
}

int LogDataSourceItem::getHorizontalVariableIndex(const QString &name)
{
    return m_horizontalVariables.indexOf(name);
}

int LogDataSourceItem::getLeftVariableIndex(const QString &name)
{
    return m_leftVariables.indexOf(name);
}

int LogDataSourceItem::getRightVariableIndex(const QString &name)
{
    return m_rightVariables.indexOf(name);
}

// Series

void LogDataSourceItem::updateGraphData()
{
    m_axisData.clear();
    m_graphedColumns.clear();
    m_xData = QPair<QString, QVector<double>>();
    const int xColumn = m_xVariableModel.firstCheckedRow();
    if (xColumn >= 0) {
        const SeriesBuilder builder = seriesBuilder();
        const QList<int> yColumns = m_yVariableModel.checkedRows() + m_zVariableModel.checkedRows();
        builder.readAhead(QVector<int>::fromList(yColumns) << xColumn);
        setXData(builder, xColumn);
        addSeries(builder, m_yVariableModel, &LogAxisData::addYLeftAxisDataSeries);
        addSeries(builder, m_zVariableModel, &LogAxisData::addYRightAxisDataSeries);
    }
    emit graphDataUpdated();
}

SeriesBuilder LogDataSourceItem::seriesBuilder() const
{
    return SeriesBuilder(m_tableModel.grid(), plottedRows());
}

/** Rows of the table that the window lets through and that are not excluded. */
RowChoice LogDataSourceItem::plottedRows() const
{
    RowChoice shown = m_observationProxy.sourceRows();
    if (!m_tableModel.hasExcludedRows())
        return shown;
    QVector<int> rows;
    rows.reserve(shown.count());
    for (int i = 0; i < shown.count(); ++i) {
        if (!m_tableModel.rowExcluded(shown.at(i)))
            rows.append(shown.at(i));
    }
    return RowChoice(rows);
}

void LogDataSourceItem::updateXData()
{
    m_xData = QPair<QString, QVector<double>>();
    const int column = m_xVariableModel.firstCheckedRow();
    if (column >= 0)
        setXData(seriesBuilder(), column);
}

void LogDataSourceItem::updateLeftData()
{
    addSeries(seriesBuilder(), m_yVariableModel, &LogAxisData::addYLeftAxisDataSeries);
}

void LogDataSourceItem::updateRightData()
{
    addSeries(seriesBuilder(), m_zVariableModel, &LogAxisData::addYRightAxisDataSeries);
}

void LogDataSourceItem::setXData(const SeriesBuilder &builder, int column)
{
    m_graphedColumns.append(column);
    m_xData.second = builder.values(column);
    m_xData.first = tabular().variables(m_currentDataSetIndex).value(column);
}

/** Adds the curve pieces of every checked variable to one side of the axis data. */
void LogDataSourceItem::addSeries(const SeriesBuilder &builder, const CheckListModel &variables,
                                  AddPiece addPiece)
{
    const QList<int> columns = variables.checkedRows();
    for (int i = 0; i < columns.size(); ++i) {
        const QString name = variables.item(columns.at(i))->text();
        m_graphedColumns.append(columns.at(i));
        const QList<CurvePiece> pieces
            = builder.pieces(columns.at(i), m_xData.second, m_criteria.participating(name));
        for (int j = 0; j < pieces.size(); ++j)
            (m_axisData.*addPiece)(name, pieces.at(j).x, pieces.at(j).y);
    }
}

double LogDataSourceItem::transformValue(int column, const QString &text, QTime &reference) const
{
    if (column != RowGrid::TimeColumnIndex)
        return text.toDouble();
    const int seconds = NumberText::secondsOfDay(text);
    if (reference.isNull() && seconds >= 0)
        reference = QTime(0, 0, 0).addSecs(seconds);
    const int from = reference.isValid() ? QTime(0, 0, 0).secsTo(reference) : 0;
    return qMax(seconds, 0) - from;
}

QString LogDataSourceItem::YLeftAxisTitle() const
{
    return axisTitle(m_axisData.YLeftData());
}

QString LogDataSourceItem::YRightAxisTitle() const
{
    return axisTitle(m_axisData.YRightData());
}
