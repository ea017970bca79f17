#ifndef DATALOG_VIEWER_VARIABLETABLE_H
#define DATALOG_VIEWER_VARIABLETABLE_H

#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"
#include "viewer/VariableTicks.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QTimer>

/**
 * The variables of the data set that is shown, group by group, with the axes that each is on and
 * the colours of its curves; or those of them that a user searches for.
 *
 * The axes are numbered as the data source does: 0 horizontal, 1 left, 2 right.
 */
class VariableTable : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(DataSets *dataSets READ dataSets WRITE setDataSets NOTIFY dataSetsChanged)
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(bool chosenOnly READ isChosenOnly WRITE setChosenOnly NOTIFY chosenOnlyChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QString xName READ xName NOTIFY ticksChanged)
    Q_PROPERTY(int leftCount READ leftCount NOTIFY ticksChanged)
    Q_PROPERTY(int rightCount READ rightCount NOTIFY ticksChanged)

public:
    enum Role {
        NameRole = Qt::UserRole + 1, ///< a text also where the log has none
        GroupRole,
        UnitRole,
        OnXRole,
        OnLeftRole,
        OnRightRole,
        LeftColorRole,
        RightColorRole
    };
    /** So many curves are put on an axis at once; more can't be told apart, but take long. */
    static const int MostAtOnce = 50;

    explicit VariableTable(QObject *parent = nullptr);

    DataSets *dataSets() const { return m_dataSets; }
    void setDataSets(DataSets *dataSets);
    /** The plot, whose colours are shown. */
    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    QString search() const { return m_search; }
    /** Lists those whose name, group or unit, taken together, have each of the words in @p text. */
    void setSearch(const QString &text);
    bool isChosenOnly() const { return m_isChosenOnly; }
    /** Lists only those that are on an axis now; others stay listed when they leave it later. */
    void setChosenOnly(bool isChosenOnly);
    int count() const { return m_listed.size(); }
    /** Empty without a horizontal variable. */
    QString xName() const;
    int leftCount() const { return m_ticks[1].count(); }
    int rightCount() const { return m_ticks[2].count(); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /**
     * Puts the variable of a row on an axis, or takes it away. Of the horizontal axis it takes the
     * place of the variable there, and is not taken away.
     */
    Q_INVOKABLE void toggle(int row, int axis);
    /** Puts the listed variables on an axis; returns how many of them were too many. */
    Q_INVOKABLE int chooseListed(int axis);
    Q_INVOKABLE void chooseNone(int axis);
    /** Leaves on an axis only those that came last, as many as the plot has colours for. */
    Q_INVOKABLE void chooseLatest(int axis);

signals:
    void dataSetsChanged();
    void viewChanged();
    void searchChanged();
    void chosenOnlyChanged();
    void countChanged();
    void ticksChanged();

private:
    struct Variable {
        int column; ///< in the log
        QString name;
        QString group;
        QString unit;

        bool operator==(const Variable &other) const
        {
            return column == other.column && name == other.name && group == other.group
                && unit == other.unit;
        }
    };

    LogDataSourceItem *source() const { return m_dataSets ? m_dataSets->source() : nullptr; }
    QStandardItemModel *model(int axis) const;
    void follow();
    void readVariables();
    QVector<Variable> shownVariables() const;
    void readTicks();
    void list();
    QVector<int> wanted() const;
    bool isWanted(const Variable &variable, const QStringList &words) const;
    QString color(int axis, const Variable &variable) const;
    void tick(int axis, const QVector<int> &columns);
    void tellRows(const QVector<int> &roles = QVector<int>());

    QPointer<DataSets> m_dataSets;
    QPointer<LogDataSourceItem> m_followed;
    QPointer<LogViewerItem> m_view;
    QTimer m_recolor;
    QString m_search;
    bool m_isChosenOnly;
    QVector<Variable> m_variables; ///< group by group
    QVector<int> m_listed; ///< positions among the variables
    VariableTicks m_ticks[3];
};

#endif
