// Any bytes as a graph definition document.

#include "FuzzTarget.h"
#include "MemoryFile.h"

#include "filters/LogDataSetFilter.h"
#include "graphdef/LogDataDefinitionReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(fuzzBytes(data, size));
    LogDataDefinitionReader reader;
    const bool isRead = reader.readGraphDefinition(file.path());
    fuzzRequire(isRead == reader.errorMessage().isEmpty(), "a failure has a message");
    const QList<LogDataSetFilter *> criteria = reader.criteria();
    for (int i = 0; i < criteria.size(); ++i) {
        criteria.at(i)->toString();
        delete criteria.at(i);
    }
    return 0;
}
