// Any lines as the arguments of the viewer: ranges, sizes, criteria and all other options.

#include "FuzzTarget.h"

#include "viewer/CommandLine.h"

namespace
{

void requireOptions(const ViewerOptions &options)
{
    const bool isWhole = options.range == ViewerOptions::AllRows;
    fuzzRequire(isWhole || options.rangeSize >= 1, "rows of a range");
    fuzzRequire(options.every >= 1, "every row or fewer");
    fuzzRequire(options.dataSet >= 1, "a data set from 1 on");
    fuzzRequire(options.size.width() >= 100 && options.size.height() >= 100, "a size");
    fuzzRequire(options.size.width() <= 16384 && options.size.height() <= 16384, "a sane size");
    for (const CriterionText &criterion : options.criteria)
        fuzzRequire(criterion.isValid(), "criteria that can be applied");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QStringList arguments(QStringLiteral("datalog-viewer"));
    if (size > 0)
        arguments += QString::fromUtf8(fuzzBytes(data, size)).split(QLatin1Char('\n'));
    CommandLine commandLine;
    if (commandLine.parse(arguments))
        requireOptions(commandLine.options());
    else
        fuzzRequire(!commandLine.errorText().isEmpty(), "a refusal has a text");
    return 0;
}
