// Any text as a criterion of the command line.

#include "FuzzTarget.h"

#include "filters/LogDataSetFilter.h"
#include "viewer/CriterionText.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const CriterionText criterion = CriterionText::read(QString::fromUtf8(fuzzBytes(data, size)));
    if (!criterion.isValid())
        return 0;
    fuzzRequire(criterion.operatorIndex < LogDataSetFilter::operators.size(), "an operator");
    fuzzRequire(!criterion.variable.isEmpty(), "a variable");
    fuzzRequire(std::isfinite(criterion.value.toFloat()), "a finite value");
    // What was read can be written down and read again.
    const QString text = criterion.variable
        + LogDataSetFilter::operators.at(criterion.operatorIndex) + criterion.value;
    const CriterionText again = CriterionText::read(text);
    fuzzRequire(again.variable == criterion.variable, "the same variable");
    fuzzRequire(again.operatorIndex == criterion.operatorIndex, "the same operator");
    fuzzRequire(again.value == criterion.value, "the same value");
    return 0;
}
