#include "ArgumentPool.h"

#include <limits>

namespace
{

typedef std::numeric_limits<double> Real;

const int kIntegers[] = {-1, 0, 1, 2, 3, 4, 5, 7, 33, 1000, 65536, 0x7fffffff, -0x7fffffff - 1};
const double kReals[] = {0.0,
                         -0.0,
                         1.0,
                         -1.0,
                         2.5,
                         1e-9,
                         1e17,
                         1.7e308,
                         -1.7e308,
                         Real::denorm_min(),
                         Real::quiet_NaN(),
                         Real::infinity(),
                         -Real::infinity()};
const double kLengths[] = {0.0,
                           1.0,
                           0.5,
                           80.0,
                           200.0,
                           400.0,
                           799.0,
                           3000.0,
                           -40.0,
                           1e6,
                           Real::quiet_NaN(),
                           Real::infinity()};
const char *const kTexts[] = {"",
                              "0",
                              "-1",
                              "nan",
                              "inf",
                              "-1e400",
                              "1,5",
                              "---",
                              "a\tb",
                              "\"quoted\" 'text'",
                              "line\nfeed\r\n",
                              " blanks ",
                              "%1 %2 %n",
                              "<b>bold</b>&amp;",
                              "(a+)+$",
                              "[",
                              "*\\",
                              "\xf0\x9f\x98\x80",
                              "\xe2\x80\xae"
                              "right to left",
                              "..",
                              "/dev/zero",
                              "xls",
                              ".csv"};
const char *const kKeys[]
    = {"scaling", "xbottom", "yleft",   "yright", "variable", "group", "auto",
       "min",     "max",     "symbols", "lines",  "left",     "right", "bottom"};

template <typename T, int N> const T &oneOf(const T (&values)[N], ArgumentPool &pool)
{
    return values[pool.below(N)];
}

} // namespace

ArgumentPool::ArgumentPool(quint32 seed)
    : m_random(seed)
{
}

int ArgumentPool::integer()
{
    return once(2) ? below(6) : oneOf(kIntegers, *this);
}

double ArgumentPool::real()
{
    return once(2) ? below(2000) / 10.0 - 50.0 : oneOf(kReals, *this);
}

double ArgumentPool::length()
{
    return once(10) ? oneOf(kLengths, *this) : 20.0 * below(12);
}

QString ArgumentPool::string()
{
    if (!m_names.isEmpty() && !once(4))
        return m_names.at(below(m_names.size()));
    switch (below(30)) {
    case 0:
        return QString();
    case 1:
        return QString(QChar(0xd800)) + QLatin1Char('x');
    case 2:
        return QString(QChar(0xdc00)) + QChar(0);
    case 3:
        return once(10) ? QString(1 << 20, QLatin1Char('m')) : QString(300, QLatin1Char('.'));
    default:
        return QString::fromUtf8(oneOf(kTexts, *this));
    }
}

QVariant ArgumentPool::variant()
{
    switch (below(7)) {
    case 0:
        return QVariant();
    case 1:
        return integer();
    case 2:
        return real();
    case 3:
        return flag();
    case 4:
        return QVariantList() << integer() << string();
    default:
        return string();
    }
}

QVariantMap ArgumentPool::map(int depth)
{
    QVariantMap map;
    for (int entries = below(8); entries > 0; --entries) {
        const QString key = once(6) ? string() : QString::fromLatin1(oneOf(kKeys, *this));
        map.insert(key, depth < 2 && once(2) ? QVariant(this->map(depth + 1)) : variant());
    }
    return map;
}
