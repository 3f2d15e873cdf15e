#pragma once

// The chart file: every stored property of a chart, in a versioned binary format of ours.
//
//   "ORVACHRT"  magic, 8 bytes
//   u32         format version (1)
//   u32         payload length in bytes
//   payload     u32 property count, then per property in ascending order of number: i32
//               number, u8 kind, and the value
//               (i32; or u32 length and bytes; or u32 count and elements of 8 or 4 bytes;
//               or u32 count and that many length-prefixed strings)
//   u32         CRC-32 of the payload
//
// All integers are little-endian. A reader refuses anything that does not check out exactly.

#include "chart/ChartProperties.h"

#include <cstdint>
#include <map>
#include <string>

ORVA_API std::string SerializeChart(const ChartProperties& properties);
// False, leaving `out` alone, for data that is truncated, foreign, corrupt or of another version.
ORVA_API bool ParseChart(const unsigned char* data, size_t size, std::map<int, PropertyValue>& out);
// The checksum the file carries over its payload (CRC-32, as zip and PNG use it).
ORVA_API std::uint32_t ChartFileChecksum(const unsigned char* data, size_t size);
ORVA_API bool StoreChartFile(const ChartProperties& properties, const char* path);
ORVA_API bool LoadChartFile(const char* path, std::map<int, PropertyValue>& out);
