// Feeds arbitrary bytes to the chart file reader: it must refuse or accept, never crash, and
// what it accepts must write back to the same bytes. The bytes go in twice: as a whole file,
// and as the payload of a file with a valid header and checksum, so that mutations reach the
// property records behind the checksum.

#include "chart/ChartFile.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void PutU32(std::string& out, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        out += char((value >> (8 * i)) & 0xFF);
}

void Check(const std::string& file) {
    std::map<int, PropertyValue> loaded;
    if (!ParseChart(reinterpret_cast<const unsigned char*>(file.data()), file.size(), loaded))
        return;
    ChartProperties properties;
    properties.Replace(loaded);
    if (SerializeChart(properties) != file)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Check(bytes);
    std::string wrapped = "ORVACHRT";
    PutU32(wrapped, 1);
    PutU32(wrapped, std::uint32_t(size));
    wrapped += bytes;
    PutU32(wrapped, ChartFileChecksum(data, size));
    Check(wrapped);
    return 0;
}
