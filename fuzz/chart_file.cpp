// Feeds arbitrary bytes to the chart file reader: it must refuse or accept, never crash, and
// what it accepts must write back to the same bytes.

#include "chart/ChartFile.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::map<int, PropertyValue> loaded;
    if (!ParseChart(data, size, loaded))
        return 0;
    ChartProperties properties;
    properties.Replace(loaded);
    const std::string again = SerializeChart(properties);
    if (again.size() != size || again.compare(0, size, reinterpret_cast<const char*>(data), size))
        std::abort();
    return 0;
}
