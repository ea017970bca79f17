#include "viewer/NameSuggestions.h"

#include <QCoreApplication>
#include <QVector>

#include <algorithm>

namespace
{

const int kMostSuggestions = 3;

struct Candidate {
    int distance;
    QString name;
};

/** A third of the letters may be wrong: at least one, but never all. */
int tolerance(const QString &name)
{
    return qBound(0, name.size() - 1, qMax(1, (name.size() + 1) / 3));
}

int likelyDistance(const QString &name, const QString &candidate)
{
    const bool isBeginning = !name.isEmpty() && candidate.startsWith(name, Qt::CaseInsensitive);
    return isBeginning ? 0 : NameSuggestions::editDistance(name, candidate);
}

} // namespace

namespace NameSuggestions
{

int editDistance(const QString &a, const QString &b)
{
    const QString from = a.toCaseFolded();
    const QString to = b.toCaseFolded();
    // Three rows of the table of distances between beginnings of the names.
    QVector<int> beforeLast(to.size() + 1);
    QVector<int> last(to.size() + 1);
    QVector<int> row(to.size() + 1);
    for (int j = 0; j <= to.size(); ++j)
        row[j] = j;
    for (int i = 1; i <= from.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (int j = 1; j <= to.size(); ++j) {
            const int replaced = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = qMin(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[to.size()];
}

QStringList closest(const QString &name, const QStringList &names)
{
    QVector<Candidate> near;
    for (const QString &candidate : names) {
        const int distance = likelyDistance(name, candidate);
        if (distance <= tolerance(name))
            near.append({distance, candidate});
    }
    std::stable_sort(near.begin(), near.end(), [](const Candidate &a, const Candidate &b) {
        return a.distance < b.distance;
    });
    QStringList result;
    for (const Candidate &candidate : near) {
        // Without any slip there is no need to guess further.
        if (near.first().distance == 0 && candidate.distance > 0)
            break;
        if (result.size() < kMostSuggestions && !result.contains(candidate.name))
            result.append(candidate.name);
    }
    return result;
}

QString joined(const QStringList &names)
{
    if (names.size() < 2)
        return names.value(0);
    const QStringList head = names.mid(0, names.size() - 1);
    return QCoreApplication::translate("NameSuggestions", "%1 or %2")
        .arg(head.join(QStringLiteral(", ")), names.last());
}

} // namespace NameSuggestions
