#ifndef DATALOG_DATASOURCE_LOGDATASOURCEITEM_H
#define DATALOG_DATASOURCE_LOGDATASOURCEITEM_H

#include "datasource/AxisVariables.h"
#include "datasource/CheckListModel.h"
#include "datasource/GroupList.h"
#include "datasource/LogAxisData.h"
#include "datasource/WrapperList.h"
#include "declarative/DeclarativeItem.h"
#include "declarative/DeclarativeList.h"
#include "filters/Criteria.h"
#include "filters/LogDataSetFilter.h"
#include "filters/LogObservationSortFilterProxyModel.h"
#include "graphdef/GraphDefinition.h"
#include "parsing/LogParser.h"
#include "table/LogConstTableViewModel.h"
#include "table/LogTableViewAnalysisModel.h"
#include "table/LogTableViewModel.h"

#include <QPair>
#include <QTime>
#include <QVariantMap>

class SeriesBuilder;

/**
 * The central item: it loads a log, keeps what is chosen of it, and computes the series to plot.
 *
 * Scripts drive it through its properties and slots; the view items read its models and series. It
 * draws nothing. Axes are numbered 0 horizontal, 1 left, 2 right.
 *
 * After logFileLoaded() the models list the data sets and variables, but no data set is shown
 * until selectDataSet() is called. The list properties announce no change: read them again.
 */
class LogDataSourceItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_PROPERTY(QString logFilePath READ logFilePath WRITE setLogFilePath NOTIFY logFilePathChanged)
    Q_PROPERTY(int maxVariableAxisTitleLength READ maxVariableAxisTitleLength WRITE
                   setMaxVariableAxisTitleLength NOTIFY maxVariableAxisTitleLengthChanged)
    Q_PROPERTY(int observationRange READ observationRange WRITE setObservationRange NOTIFY
                   observationRangeChanged)
    Q_PROPERTY(int observationFrequency READ observationFrequency WRITE setObservationFrequency
                   NOTIFY observationFrequencyChanged)
    Q_PROPERTY(LogObservationSortFilterProxyModel::LogObservationSortFilterType
                   observationFilterType READ observationFilterType WRITE setObservationFilterType
                       NOTIFY observationFilterTypeChanged)
    Q_PROPERTY(bool hasExcludedRows READ hasExcludedRows NOTIFY hasExcludeRowsChanged)
    Q_PROPERTY(QDeclarativeListProperty<PropertyWrapper> variableList READ variableList NOTIFY
                   variableListChanged)
    Q_PROPERTY(QDeclarativeListProperty<PropertyWrapper> dataSetList READ dataSetList NOTIFY
                   dataSetListChanged)
    Q_PROPERTY(QDeclarativeListProperty<PropertyWrapper> criteriaList READ criteriaList NOTIFY
                   criteriaListChanged)
    Q_PROPERTY(
        QDeclarativeListProperty<VariableGroup> groupList READ groupList NOTIFY groupListChanged)
    Q_PROPERTY(
        QDeclarativeListProperty<PropertyWrapper> constList READ constList NOTIFY constListChanged)
    Q_PROPERTY(QDeclarativeListProperty<Variable> horizontalVariables READ horizontalVariables
                   NOTIFY horizontalVariablesChanged)
    Q_PROPERTY(QDeclarativeListProperty<Variable> leftVariables READ leftVariables NOTIFY
                   leftVariablesChanged)
    Q_PROPERTY(QDeclarativeListProperty<Variable> rightVariables READ rightVariables NOTIFY
                   rightVariablesChanged)

public:
    /** "---", which stands for a filtered value; curves break there. */
    static const QString kFilteredDelimiter;

    explicit LogDataSourceItem(QDeclarativeItem *parent = nullptr);
    ~LogDataSourceItem() override;

    QString logFilePath() const { return m_logFilePath; }
    /**
     * Reads the log at @p path: by commas when it ends in .csv, through the conversion script when
     * it ends in .xls or xlsx, else by tabs. Emits logFileLoaded() or one logFileError(). Refused
     * with logFileError() while another log is being read.
     */
    void setLogFilePath(const QString &path);
    int maxVariableAxisTitleLength() const { return m_maxVariableAxisTitleLength; }
    void setMaxVariableAxisTitleLength(int length) { m_maxVariableAxisTitleLength = length; }
    int observationRange() const { return m_observationProxy.rangeSize(); }
    void setObservationRange(int rows);
    int observationFrequency() const { return m_observationProxy.frequency(); }
    void setObservationFrequency(int step);
    LogObservationSortFilterProxyModel::LogObservationSortFilterType observationFilterType() const;
    void
    setObservationFilterType(LogObservationSortFilterProxyModel::LogObservationSortFilterType type);
    bool hasExcludedRows() const { return m_tableModel.hasExcludedRows(); }

    // Each read of a list makes its objects anew and deletes those of the read before, except for
    // groups and variables, which live as long as their data set or a list that shows them.
    QDeclarativeListProperty<PropertyWrapper> variableList();
    QDeclarativeListProperty<PropertyWrapper> dataSetList();
    QDeclarativeListProperty<PropertyWrapper> criteriaList();
    QDeclarativeListProperty<VariableGroup> groupList();
    QDeclarativeListProperty<PropertyWrapper> constList();
    QDeclarativeListProperty<Variable> horizontalVariables();
    QDeclarativeListProperty<Variable> leftVariables();
    QDeclarativeListProperty<Variable> rightVariables();

    // The models live as long as the item.
    LogTableViewModel *tableModel() { return &m_tableModel; }
    LogConstTableViewModel *constTableModel() { return &m_constTableModel; }
    LogObservationSortFilterProxyModel *observationFilteredTableModel();
    LogTableViewAnalysisModel *analysisTableModel() { return &m_analysisTableModel; }
    QStandardItemModel *dataSetModel() { return &m_dataSetModel; }
    QStandardItemModel *xVariableModel() { return &m_xVariableModel; }
    QStandardItemModel *yVariableModel() { return &m_yVariableModel; }
    QStandardItemModel *zVariableModel() { return &m_zVariableModel; }
    QStandardItemModel *activeFilterModel() { return &m_activeFilterModel; }

    /** The horizontal variable's name and values. */
    QPair<QString, QVector<double>> xData() const { return m_xData; }
    AxisSeries XLeftData() const { return m_axisData.XLeftData(); }
    AxisSeries YLeftData() const { return m_axisData.YLeftData(); }
    AxisSeries XRightData() const { return m_axisData.XRightData(); }
    AxisSeries YRightData() const { return m_axisData.YRightData(); }
    QString YLeftAxisTitle() const;
    QString YRightAxisTitle() const;
    /** Rows of the variable models that are plotted: horizontal, then left, then right. */
    QVector<int> graphedColumns() const { return m_graphedColumns; }

    void updateXData();
    void updateLeftData();
    void updateRightData();
    /**
     * A cell's text as a number. Column 1 is the clock time: seconds since @p reference, which is
     * set from the text while it is null.
     */
    double transformValue(int column, const QString &text, QTime &reference) const;

    /** Adds a criterion and takes it over; null is ignored. */
    void addFilter(LogDataSetFilter *filter);
    /** Drops a criterion and deletes it, whether it was added or not. */
    void removeFilter(LogDataSetFilter *filter);
    /** @p values with kFilteredDelimiter in place of those that fail a criterion. */
    QList<QString> applyFilters(const QString &variableName, QList<QString> &values);
    void updateActiveFilterModel();

    /** For programs: progress of a read and a way to stop it; see LogParser. */
    LogParser *parser() { return &m_parser; }
    /**
     * For programs: takes over what another parser has read of the log at logFilePath(), as if it
     * had been read here just now; so what is shown stays until a read has succeeded. Does nothing
     * while a log is being read.
     */
    void takeLog(LogParser &parser);
    int currentDataSetIndex() const { return m_currentDataSetIndex; }

public Q_SLOTS:
    void clearCriteria();
    void clearExcludedPoints();
    void updateVariableSelection(int axis, int index, bool checked);
    void selectDataSet(int index);
    void buildFilter(int variableIndex, int opIndex, const QString &stringValue);
    void updateCriteriaSelection(int index, bool checked);
    /** Checked rows of a model: 0 to 2 the axes' variables, 3 data sets, 4 criteria. */
    QList<int> checkedItemList(int listIndex);
    void setHorizontalGroup(const QString &groupName);
    void setLeftGroup(const QString &groupName);
    void setRightGroup(const QString &groupName);
    void setHorizontalVariable(const QString &variableName);
    void setLeftVariable(const QString &variableName);
    void setRightVariable(const QString &variableName);
    QVariantMap graphDefinition();
    void setGraphDefinition(const QVariantMap &map);
    void reloadGraphDataVariables();
    void setHorizontalAutoscale(bool autoOn);
    void setLeftAutoscale(bool autoOn);
    void setRightAutoscale(bool autoOn);
    void setLeftLines(bool isOn);
    void setRightLines(bool isOn);
    void setLeftSymbols(bool isOn);
    void setRightSymbols(bool isOn);
    void setHorizontalMin(const QString &min);
    void setLeftMin(const QString &min);
    void setRightMin(const QString &min);
    void setHorizontalMax(const QString &max);
    void setLeftMax(const QString &max);
    void setRightMax(const QString &max);
    void setHorizontalGroupVariable(const QString &group, const QString &variable);
    void setLeftGroupVariable(const QString &group, const QString &variable);
    void setRightGroupVariable(const QString &group, const QString &variable);
    int getHorizontalGroupIndex(const QString &name);
    int getLeftGroupIndex(const QString &name);
    int getRightGroupIndex(const QString &name);
    int getHorizontalVariableIndex(const QString &name);
    int getLeftVariableIndex(const QString &name);
    int getRightVariableIndex(const QString &name);

Q_SIGNALS:
    void logFileLoaded();
    void logFileError(const QString &error);
    void logFilePathChanged(const QString &path);
    void dataUpdated();
    void dataUpdateFailed(const QString &);
    void graphDataUpdated();
    void maxVariableAxisTitleLengthChanged();
    void dataSetUpdated();
    void criteriaUpdated();
    void graphDefinitionChanged();
    void variableListChanged();
    void dataSetListChanged();
    void criteriaListChanged();
    void groupListChanged();
    void constListChanged();
    void horizontalVariablesChanged();
    void leftVariablesChanged();
    void rightVariablesChanged();
    void excludedPointsCleared();
    void observationRangeChanged();
    void observationFrequencyChanged();
    void observationFilterTypeChanged();
    void hasExcludeRowsChanged();

private Q_SLOTS:
    void dataSetUpdatedInternal(QStandardItem *checkedItem);
    void activeFiltersUpdated(QStandardItem *checkedItem);
    void updateData();
    void updateGraphData();

private:
    typedef void (LogAxisData::*AddPiece)(const QString &name, const QVector<double> &x,
                                          const QVector<double> &y);

    const TabularParser &tabular() const { return m_parser.tabularParser(); }
    void connectModels();
    void createItemModels();
    CheckListModel *variableModel(int axis);
    void showGroup(AxisVariables &axis, const QString &groupName);
    void showOnly(CheckListModel &model, const QString &variableName);
    RowChoice plottedRows() const;
    SeriesBuilder seriesBuilder() const;
    void setXData(const SeriesBuilder &builder, int column);
    void addSeries(const SeriesBuilder &builder, const CheckListModel &variables,
                   AddPiece addPiece);

    LogTableViewModel m_tableModel;
    LogConstTableViewModel m_constTableModel;
    LogObservationSortFilterProxyModel m_observationProxy;
    QVector<int> m_graphedColumns;
    LogTableViewAnalysisModel m_analysisTableModel;
    QString m_logFilePath;
    int m_maxVariableAxisTitleLength;
    LogParser m_parser;
    int m_currentDataSetIndex;
    LogAxisData m_axisData;
    QPair<QString, QVector<double>> m_xData;
    CheckListModel m_dataSetModel;
    CheckListModel m_xVariableModel;
    CheckListModel m_yVariableModel;
    CheckListModel m_zVariableModel;
    CheckListModel m_activeFilterModel;
    GraphDefinition m_graphDefinition;
    AxisVariables m_horizontalVariables;
    AxisVariables m_leftVariables;
    AxisVariables m_rightVariables;
    WrapperList m_variableNames;
    WrapperList m_dataSetNames;
    WrapperList m_constNames;
    GroupList m_groups;
    WrapperList m_criteriaNames;
    Criteria m_criteria;
};

#endif
