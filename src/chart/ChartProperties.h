#pragma once

// The chart's state: numbered properties of a fixed kind each. The kind of a number comes from
// the engine's table; numbers it does not know are integers. The store answers the byte-level
// operations of the chart interface and gives the engine typed access.

#include "chart/ChartPropertyIds.h"
#include "platform/base/Export.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

enum class PropertyKind : std::uint8_t {
    Int = 1,
    Double = 2, // an array of doubles; a "float property" is one of one element
    String = 3,
    Ints = 4,
    Colours = 5,
    Strings = 6,
    Record = 7, // a few integers the chart writes and callers read
};

ORVA_API PropertyKind KindOfProperty(int number);

struct PropertyValue {
    PropertyKind kind = PropertyKind::Int;
    int integer = 0;
    std::string text;
    std::vector<double> doubles;
    std::vector<std::int32_t> ints; // Ints, Colours and Record
    std::vector<std::string> strings;
};

// The lowest and highest X and Y of the data; an extent is empty while its low lies above its
// high.
struct DataExtents {
    double xLow, xHigh, yLow, yHigh;
};

class ORVA_API ChartProperties {
public:
    ChartProperties() = default;
    ChartProperties(const ChartProperties& other) : m_values(other.m_values) {}
    ChartProperties& operator=(const ChartProperties& other) {
        m_values = other.m_values;
        ClearCache();
        return *this;
    }

    // The interface's operations. Results: 1 or a size on success, 0 or -1 on failure.
    int SetInt(int number, int value);
    int GetInt(int number) const;
    int SetString(int number, const char* text);
    int GetString(int number, char* buffer) const; // buffer of 1024 bytes
    int SetArray(int number, const void* values, int count);
    int GetArray(int number, void* out) const;
    int SetElement(int number, int index, const void* value);
    int GetElement(int number, int index, void* out) const;

    // Typed access for the engine; absent properties read as empty or as the fallback.
    bool Has(int number) const { return m_values.count(number) != 0; }
    const std::vector<double>& Doubles(int number) const;
    std::vector<double>& MutableDoubles(int number);
    double Double(int number, double fallback) const;
    const std::vector<std::int32_t>& Ints(int number) const;
    int Int(int number, int fallback) const;
    int IntElement(int number, size_t index, int fallback) const;
    const std::string& Text(int number) const;
    const std::vector<std::string>& Strings(int number) const;
    void SetRecord(int number, const std::vector<std::int32_t>& values);
    void SetDoubles(int number, std::vector<double> values);
    void Remove(int number) {
        ClearCache();
        m_values.erase(number);
    }

    // The extents of the first `count` points of the data, leaving out missing and infinite
    // values, and each X whose Y is missing; X only `withX`. Kept until the data change, so
    // that a repaint does not go over a million points again.
    const DataExtents& Extents(size_t count, bool withX) const;

    const std::map<int, PropertyValue>& All() const { return m_values; }
    void Replace(std::map<int, PropertyValue> values) {
        ClearCache();
        m_values = std::move(values);
    }

private:
    PropertyValue& Slot(int number) {
        if (number == chartprop::XData || number == chartprop::YData)
            m_extents.reset();
        CacheEntry& entry = m_cache[unsigned(number) % 8];
        return entry.value && entry.number == number ? *entry.value : SlotSlow(number);
    }
    PropertyValue& SlotSlow(int number);
    std::map<int, PropertyValue> m_values;
    // Recently written properties by number modulo eight: a push writes the same few arrays a
    // million times. Map nodes stay put, so only removal clears it.
    struct CacheEntry {
        int number = 0;
        PropertyValue* value = nullptr;
    };
    void ClearCache() {
        for (CacheEntry& entry : m_cache)
            entry = {};
        m_extents.reset();
    }
    CacheEntry m_cache[8];
    struct KeptExtents {
        size_t count;
        bool withX;
        DataExtents extents;
    };
    mutable std::optional<KeptExtents> m_extents;
};
