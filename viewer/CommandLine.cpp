#include "viewer/CommandLine.h"

#include "viewer/DefinitionFormat.h"
#include "viewer/NameSuggestions.h"
#include "viewer/PlotFormat.h"

#include <QRegularExpression>

namespace
{

const int kLeastSide = 100;
const int kMostSide = 16384;

/** A whole number of at least 1, or 0 where @p text is none. */
int count(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]+$"));
    return digits.match(text).hasMatch() ? text.toInt() : 0;
}

} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(
        tr("Shows the plots of a data log. Without FILE it opens a bundled sample."));
    m_parser.addPositionalArgument(QStringLiteral("FILE"), tr("The log to open."),
                                   QStringLiteral("[FILE]"));
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Says all this.")});
    m_parser.addOption({{QStringLiteral("v"), QStringLiteral("version")}, tr("Says the version.")});
    addOption("data-set", tr("Data set to show, counted from 1."), "N", &CommandLine::readDataSet);
    addOption("x", tr("Horizontal variable."), "NAME", &CommandLine::readX);
    addOption("left", tr("Variable of the left axis; may be given several times."), "NAME",
              &CommandLine::readLeft);
    addOption("right", tr("Variable of the right axis; may be given several times."), "NAME",
              &CommandLine::readRight);
    addOption("criterion",
              tr("Keeps only values such as \"Tair>=25.5\"; may be given several times. Operators: "
                 "> >= < <= = !="),
              "TEXT", &CommandLine::readCriterion);
    addOption("range", tr("Rows to show: all, head:N (the first N) or tail:N (the last N)."),
              "RANGE", &CommandLine::readRange);
    addOption("every", tr("Shows every K-th of these rows."), "K", &CommandLine::readEvery);
    addOption("style", tr("Draws curves as lines, symbols or both."), "STYLE",
              &CommandLine::readStyle);
    addOption("definition",
              tr("Applies a saved definition (%1); options given beside it win over it.")
                  .arg(DefinitionFormat::suffixes()),
              "FILE", &CommandLine::readDefinition);
    addOption("save-definition",
              tr("Writes what is shown into FILE: everything as .json, variables and criteria as "
                 ".xml."),
              "FILE", &CommandLine::readSaveDefinition);
    addOption("export",
              tr("Draws the plot, or with .csv writes its data, into FILE (%1) and exits.")
                  .arg(PlotFormat::suffixes()),
              "FILE", &CommandLine::readExport);
    addOption("size", tr("Size of the exported plot in pixels, 1280x800 unless told."),
              "WIDTHxHEIGHT", &CommandLine::readSize);
}

void CommandLine::addOption(const char *name, const QString &description, const char *valueName,
                            Reader reader)
{
    const QString option = QLatin1String(name);
    m_parser.addOption({option, description, QLatin1String(valueName)});
    m_entries.append({option, reader});
}

bool CommandLine::parse(const QStringList &arguments)
{
    m_options = ViewerOptions();
    m_errorText.clear();
    if (!m_parser.parse(arguments))
        return fail(unknownOptionText());
    if (m_parser.isSet(QStringLiteral("help")))
        m_options.action = ViewerOptions::ShowHelp;
    else if (m_parser.isSet(QStringLiteral("version")))
        m_options.action = ViewerOptions::ShowVersion;
    else
        return readOptions() && readFile();
    return true;
}

/** The parser shows options of one letter with one dash, though they have two like all others. */
QString CommandLine::helpText() const
{
    return m_parser.helpText().replace(QStringLiteral("\n  -x <NAME>  "),
                                       QStringLiteral("\n  --x <NAME> "));
}

bool CommandLine::readOptions()
{
    for (const Entry &entry : m_entries) {
        const QStringList values = m_parser.values(entry.name);
        if (!values.isEmpty())
            m_options.given.append(entry.name);
        for (const QString &value : values) {
            if (!(this->*entry.reader)(value))
                return false;
        }
    }
    return true;
}

bool CommandLine::readFile()
{
    const QStringList files = m_parser.positionalArguments();
    if (files.size() > 1)
        return fail(tr("one file can be opened at a time, not %1").arg(files.size()));
    m_options.file = files.value(0);
    if (!files.isEmpty() && m_options.file.isEmpty())
        return fail(tr("the name of the file is empty"));
    return true;
}

bool CommandLine::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

QString CommandLine::unknownOptionText() const
{
    const QStringList unknown = m_parser.unknownOptionNames();
    if (unknown.isEmpty())
        return m_parser.errorText();
    QStringList names{QStringLiteral("help"), QStringLiteral("version")};
    for (const Entry &entry : m_entries)
        names.append(entry.name);
    QStringList near = NameSuggestions::closest(unknown.first(), names);
    near.replaceInStrings(QRegularExpression(QStringLiteral("^")), QStringLiteral("--"));
    if (near.isEmpty())
        return tr("there is no option \"%1\"").arg(unknown.first());
    return tr("there is no option \"%1\"; did you mean %2?")
        .arg(unknown.first(), NameSuggestions::joined(near));
}

// The options' values

bool CommandLine::readDataSet(const QString &value)
{
    m_options.dataSet = count(value);
    return m_options.dataSet > 0
        || fail(tr("--data-set needs a number from 1 on, not \"%1\"").arg(value));
}

bool CommandLine::readX(const QString &value)
{
    m_options.x = value;
    return !value.isEmpty() || fail(tr("--x needs the name of a variable"));
}

bool CommandLine::readLeft(const QString &value)
{
    m_options.left.append(value);
    return !value.isEmpty() || fail(tr("--left needs the name of a variable"));
}

bool CommandLine::readRight(const QString &value)
{
    m_options.right.append(value);
    return !value.isEmpty() || fail(tr("--right needs the name of a variable"));
}

bool CommandLine::readCriterion(const QString &value)
{
    const CriterionText criterion = CriterionText::read(value);
    m_options.criteria.append(criterion);
    return criterion.isValid()
        || fail(tr("\"%1\" is no criterion; write one such as \"Tair>=25.5\", with one of "
                   "> >= < <= = != and a number")
                    .arg(value));
}

bool CommandLine::readRange(const QString &value)
{
    const QString kind = value.section(QLatin1Char(':'), 0, 0);
    const int rows = count(value.section(QLatin1Char(':'), 1));
    if (value == QLatin1String("all"))
        m_options.range = ViewerOptions::AllRows;
    else if (kind == QLatin1String("head") && rows > 0)
        m_options.range = ViewerOptions::HeadRows;
    else if (kind == QLatin1String("tail") && rows > 0)
        m_options.range = ViewerOptions::TailRows;
    else
        return fail(
            tr("--range takes all, head:N or tail:N with N from 1 on, not \"%1\"").arg(value));
    m_options.rangeSize = rows;
    return true;
}

bool CommandLine::readEvery(const QString &value)
{
    m_options.every = count(value);
    return m_options.every > 0
        || fail(tr("--every needs a number from 1 on, not \"%1\"").arg(value));
}

bool CommandLine::readStyle(const QString &value)
{
    if (value == QLatin1String("lines"))
        m_options.style = ViewerOptions::Lines;
    else if (value == QLatin1String("symbols"))
        m_options.style = ViewerOptions::Symbols;
    else if (value == QLatin1String("both"))
        m_options.style = ViewerOptions::Both;
    else
        return fail(tr("--style takes lines, symbols or both, not \"%1\"").arg(value));
    return true;
}

bool CommandLine::readDefinition(const QString &value)
{
    m_options.definition = value;
    return DefinitionFormat::ofFile(value) != DefinitionFormat::Unknown
        || fail(tr("--definition needs a file name that ends in %1, not \"%2\"")
                    .arg(DefinitionFormat::suffixes(), value));
}

bool CommandLine::readSaveDefinition(const QString &value)
{
    m_options.savedDefinition = value;
    return DefinitionFormat::ofFile(value) != DefinitionFormat::Unknown
        || fail(tr("--save-definition needs a file name that ends in %1, not \"%2\"")
                    .arg(DefinitionFormat::suffixes(), value));
}

bool CommandLine::readExport(const QString &value)
{
    m_options.exportFile = value;
    return PlotFormat::ofFile(value) != PlotFormat::Unknown
        || fail(tr("--export needs a file name that ends in %1, not \"%2\"")
                    .arg(PlotFormat::suffixes(), value));
}

bool CommandLine::readSize(const QString &value)
{
    const QStringList sides = value.split(QLatin1Char('x'));
    const int width = count(sides.value(0));
    const int height = count(sides.value(1));
    const bool isInside = qMin(width, height) >= kLeastSide && qMax(width, height) <= kMostSide;
    m_options.size = QSize(width, height);
    return (sides.size() == 2 && isInside)
        || fail(tr("--size needs a size such as 1280x800, each side from %1 to %2, not \"%3\"")
                    .arg(kLeastSide)
                    .arg(kMostSide)
                    .arg(value));
}
