// Any bytes as a session.

#include "FuzzTarget.h"

#include "filters/LogDataSetFilter.h"
#include "viewer/SessionJson.h"

#include <cmath>

namespace
{

void requireState(const SessionState &state)
{
    fuzzRequire(state.dataSet >= 0, "a data set from 1 on, or none");
    fuzzRequire(state.rangeType >= -1 && state.rangeType <= 2, "a range that there is");
    fuzzRequire(state.rangeSize >= -1 && state.step >= 0, "a window that can be");
    for (const SessionCriterion &criterion : state.criteria) {
        const int index = criterion.operatorIndex;
        fuzzRequire(index >= 0 && index < LogDataSetFilter::operators.size(), "an operator");
        fuzzRequire(!std::isnan(criterion.value), "a number");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    SessionJson json;
    SessionState state;
    const bool isRead = json.read(fuzzBytes(data, size), &state);
    fuzzRequire(isRead == json.errorText().isEmpty(), "a refusal has a text");
    if (!isRead)
        return 0;
    requireState(state);
    // What was read can be kept, and comes back the same.
    const QByteArray text = SessionJson::text(state);
    SessionJson again;
    SessionState back;
    fuzzRequire(again.read(text, &back), "what is kept can be read");
    fuzzRequire(SessionJson::text(back) == text, "nothing gets lost");
    return 0;
}
