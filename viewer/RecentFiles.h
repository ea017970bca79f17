#ifndef DATALOG_VIEWER_RECENTFILES_H
#define DATALOG_VIEWER_RECENTFILES_H

#include <QAbstractListModel>
#include <QStringList>

/** The logs that were opened lately, the latest first, as the user's settings keep them. */
class RecentFiles : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        PathRole = Qt::UserRole + 1,
        NameRole,
        FolderRole,
        IsThereRole ///< at the last refresh()
    };
    /** So many are kept. */
    static const int Most = 12;

    explicit RecentFiles(QObject *parent = nullptr);

    int count() const { return m_paths.size(); }
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /** Keeps no such file: it goes with the program. */
    void leaveOut(const QString &path) { m_leftOut = path; }
    /** Puts a file first; false for the one that is left out. */
    Q_INVOKABLE bool add(const QString &path);
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void clear();
    /** Takes over what other windows added, and looks which files there are. */
    Q_INVOKABLE void refresh();
    /** Whether a file stands there now. */
    Q_INVOKABLE bool isThere(const QString &path) const;

signals:
    void countChanged();

private:
    void show(const QStringList &paths);
    void keep(const QStringList &paths);

    QString m_leftOut;
    QStringList m_paths;
    QList<bool> m_areThere;
};

#endif
