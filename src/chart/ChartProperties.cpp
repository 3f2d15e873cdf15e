#include "chart/ChartProperties.h"

#include "chart/ChartPropertyIds.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>

namespace {

// Bounds what a single call may make the chart allocate: bad input fails instead.
constexpr int kMaxElements = 1 << 27;
constexpr size_t kStringBuffer = 1024;

const std::vector<double> kNoDoubles;
const std::vector<std::int32_t> kNoInts;
const std::vector<std::string> kNoStrings;
const std::string kNoText;

// Reads one item of a string array: up to a tab, a zero byte or the end of the items.
std::vector<std::string> SplitItems(const char* text, int count) {
    std::vector<std::string> items;
    if (!text)
        return items;
    std::string item;
    for (const char* c = text; int(items.size()) < count; ++c) {
        if (*c == '\0') {
            if (!item.empty())
                items.push_back(item);
            break;
        }
        if (*c == '\t') {
            items.push_back(item);
            item.clear();
        } else {
            item += *c;
        }
    }
    return items;
}

bool IsScalarDouble(int number) {
    using namespace chartprop;
    switch (number) {
    case YMinimum:
    case YMaximum:
    case DateTimeBase:
    case XMinimum:
    case XMaximum:
    case XTickUnit:
    case XMinorTickUnit:
        return true;
    default:
        return false;
    }
}

} // namespace

PropertyKind KindOfProperty(int number) {
    using namespace chartprop;
    switch (number) {
    case MainTitle:
    case SubTitle:
    case FontName:
    case XAxisTitle:
    case YAxisTitle:
        return PropertyKind::String;
    case CurveNames:
    case PointLabels:
    case LegendTexts:
        return PropertyKind::Strings;
    case CurveColours:
    case LegendColours:
        return PropertyKind::Colours;
    case LegendCurves:
    case LegendSymbols:
    case AnnotationColours:
    case AnnotationTypes:
    case CurveSymbols:
    case CurveLineTypes:
        return PropertyKind::Ints;
    case XData:
    case YData:
    case AppendY:
    case YMinimum:
    case FitCoefficients:
    case YMaximum:
    case DateTimeBase:
    case 3268:
    case RubberX:
    case RubberY:
    case XMinimum:
    case XMaximum:
    case XTickUnit:
    case XMinorTickUnit:
    case 3656:
    case AppendX:
        return PropertyKind::Double;
    case HotSpot:
    case MousePosition:
        return PropertyKind::Record;
    default:
        return PropertyKind::Int;
    }
}

PropertyValue& ChartProperties::SlotSlow(int number) {
    auto [it, inserted] = m_values.try_emplace(number);
    if (inserted)
        it->second.kind = KindOfProperty(number);
    m_cache[unsigned(number) % 8] = {number, &it->second};
    return it->second;
}

int ChartProperties::SetInt(int number, int value) {
    if (KindOfProperty(number) != PropertyKind::Int)
        return 0;
    Slot(number).integer = value;
    return 1;
}

int ChartProperties::GetInt(int number) const {
    auto it = m_values.find(number);
    return it != m_values.end() && it->second.kind == PropertyKind::Int ? it->second.integer : 0;
}

int ChartProperties::SetString(int number, const char* text) {
    if (KindOfProperty(number) != PropertyKind::String)
        return 0;
    // Callers hand over fixed buffers padded with zeros: the text ends at the first zero.
    Slot(number).text = text ? std::string(text, strnlen(text, kStringBuffer)) : std::string();
    return 1;
}

int ChartProperties::GetString(int number, char* buffer) const {
    if (!buffer || KindOfProperty(number) != PropertyKind::String)
        return 0;
    const std::string& text = Text(number);
    const size_t length = std::min(text.size(), kStringBuffer - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return int(length);
}

int ChartProperties::SetArray(int number, const void* values, int count) {
    if (count < 0 || count > kMaxElements || (count > 0 && !values))
        return 0;
    const PropertyKind kind = KindOfProperty(number);
    switch (kind) {
    case PropertyKind::Double: {
        const auto* first = static_cast<const double*>(values);
        if (IsScalarDouble(number) && values) {
            // A float property holds one value, whatever count comes with it.
            Slot(number).doubles.assign(first, first + 1);
            return 1;
        }
        Slot(number).doubles.assign(first, first + count);
        return 1;
    }
    case PropertyKind::Ints:
    case PropertyKind::Colours: {
        const auto* first = static_cast<const std::int32_t*>(values);
        Slot(number).ints.assign(first, first + count);
        return 1;
    }
    case PropertyKind::Strings:
        Slot(number).strings = SplitItems(static_cast<const char*>(values), count);
        return 1;
    case PropertyKind::String:
        return SetString(number, count > 0 ? static_cast<const char*>(values) : "");
    case PropertyKind::Int:
        if (count < 1)
            return 0;
        Slot(number).integer = *static_cast<const std::int32_t*>(values);
        return 1;
    case PropertyKind::Record:
        return 0;
    }
    return 0;
}

int ChartProperties::GetArray(int number, void* out) const {
    const PropertyKind kind = KindOfProperty(number);
    auto it = m_values.find(number);
    const PropertyValue* value = it != m_values.end() ? &it->second : nullptr;
    switch (kind) {
    case PropertyKind::Double: {
        const auto& doubles = value ? value->doubles : kNoDoubles;
        if (out && !doubles.empty())
            std::memcpy(out, doubles.data(), doubles.size() * sizeof(double));
        return int(doubles.size() * sizeof(double));
    }
    case PropertyKind::Ints:
    case PropertyKind::Colours:
    case PropertyKind::Record: {
        const auto& ints = value ? value->ints : kNoInts;
        if (out && !ints.empty())
            std::memcpy(out, ints.data(), ints.size() * sizeof(std::int32_t));
        return int(ints.size() * sizeof(std::int32_t));
    }
    case PropertyKind::Strings: {
        // 16-bit characters, every item followed by a tab; the size counts characters.
        size_t characters = 0;
        auto* wide = static_cast<std::uint16_t*>(out);
        for (const std::string& item : value ? value->strings : kNoStrings) {
            for (char c : item) {
                if (wide)
                    wide[characters] = static_cast<unsigned char>(c);
                ++characters;
            }
            if (wide)
                wide[characters] = '\t';
            ++characters;
        }
        return int(characters);
    }
    case PropertyKind::String: {
        const std::string& text = value ? value->text : kNoText;
        if (out) {
            std::memcpy(out, text.data(), text.size());
            static_cast<char*>(out)[text.size()] = '\0';
        }
        return int(text.size() + 1);
    }
    case PropertyKind::Int:
        if (out) {
            const std::int32_t integer = value ? value->integer : 0;
            std::memcpy(out, &integer, sizeof integer);
        }
        return int(sizeof(std::int32_t));
    }
    return -1;
}

int ChartProperties::SetElement(int number, int index, const void* value) {
    if (index < 0 || index >= kMaxElements || !value)
        return 0;
    const PropertyKind kind = KindOfProperty(number);
    const auto grow = [index](auto& items) {
        // std::vector doubles its capacity as it grows: appending one element at a time
        // costs amortised constant time.
        if (size_t(index) == items.size())
            items.emplace_back();
        else if (size_t(index) > items.size())
            items.resize(size_t(index) + 1);
    };
    switch (kind) {
    case PropertyKind::Double: {
        auto& doubles = Slot(number).doubles;
        grow(doubles);
        std::memcpy(&doubles[size_t(index)], value, sizeof(double));
        return 1;
    }
    case PropertyKind::Ints:
    case PropertyKind::Colours: {
        auto& ints = Slot(number).ints;
        grow(ints);
        std::memcpy(&ints[size_t(index)], value, sizeof(std::int32_t));
        return 1;
    }
    case PropertyKind::Strings: {
        auto& strings = Slot(number).strings;
        grow(strings);
        const char* text = static_cast<const char*>(value);
        strings[size_t(index)].assign(text, strnlen(text, kStringBuffer));
        return 1;
    }
    default:
        return 0;
    }
}

int ChartProperties::GetElement(int number, int index, void* out) const {
    if (index < 0 || !out)
        return 0;
    auto it = m_values.find(number);
    if (it == m_values.end())
        return 0;
    const PropertyValue& value = it->second;
    switch (value.kind) {
    case PropertyKind::Double:
        if (size_t(index) >= value.doubles.size())
            return 0;
        std::memcpy(out, &value.doubles[size_t(index)], sizeof(double));
        return 1;
    case PropertyKind::Ints:
    case PropertyKind::Colours:
    case PropertyKind::Record:
        if (size_t(index) >= value.ints.size())
            return 0;
        std::memcpy(out, &value.ints[size_t(index)], sizeof(std::int32_t));
        return 1;
    case PropertyKind::Strings: {
        if (size_t(index) >= value.strings.size())
            return 0;
        const std::string& text = value.strings[size_t(index)];
        std::memcpy(out, text.c_str(), text.size() + 1);
        return 1;
    }
    default:
        return 0;
    }
}

const std::vector<double>& ChartProperties::Doubles(int number) const {
    auto it = m_values.find(number);
    return it != m_values.end() ? it->second.doubles : kNoDoubles;
}

std::vector<double>& ChartProperties::MutableDoubles(int number) {
    return Slot(number).doubles;
}

double ChartProperties::Double(int number, double fallback) const {
    const auto& doubles = Doubles(number);
    return doubles.empty() ? fallback : doubles.front();
}

const std::vector<std::int32_t>& ChartProperties::Ints(int number) const {
    auto it = m_values.find(number);
    return it != m_values.end() ? it->second.ints : kNoInts;
}

int ChartProperties::Int(int number, int fallback) const {
    auto it = m_values.find(number);
    return it != m_values.end() && it->second.kind == PropertyKind::Int ? it->second.integer
                                                                        : fallback;
}

int ChartProperties::IntElement(int number, size_t index, int fallback) const {
    const auto& ints = Ints(number);
    return index < ints.size() ? ints[index] : fallback;
}

const std::string& ChartProperties::Text(int number) const {
    auto it = m_values.find(number);
    return it != m_values.end() ? it->second.text : kNoText;
}

const std::vector<std::string>& ChartProperties::Strings(int number) const {
    auto it = m_values.find(number);
    return it != m_values.end() ? it->second.strings : kNoStrings;
}

void ChartProperties::SetRecord(int number, const std::vector<std::int32_t>& values) {
    Slot(number).ints = values;
}

const DataExtents& ChartProperties::Extents(size_t count, bool withX) const {
    if (m_extents && m_extents->count == count && m_extents->withX == withX)
        return m_extents->extents;
    const auto& xs = Doubles(chartprop::XData);
    const auto& ys = Doubles(chartprop::YData);
    const size_t available = std::min(ys.size(), withX ? xs.size() : ys.size());
    DataExtents e{HUGE_VAL, -HUGE_VAL, HUGE_VAL, -HUGE_VAL};
    // Missing and infinite values fail the one test; NaN fails every comparison.
    const auto usable = [](double v) {
        return v != chartprop::MissingValue && std::fabs(v) <= DBL_MAX;
    };
    for (size_t i = 0; i < std::min(count, available); ++i) {
        const double y = ys[i];
        if (y == chartprop::MissingValue)
            continue;
        if (usable(y)) {
            e.yLow = std::min(e.yLow, y);
            e.yHigh = std::max(e.yHigh, y);
        }
        if (withX && usable(xs[i])) {
            e.xLow = std::min(e.xLow, xs[i]);
            e.xHigh = std::max(e.xHigh, xs[i]);
        }
    }
    m_extents = KeptExtents{count, withX, e};
    return m_extents->extents;
}

void ChartProperties::SetDoubles(int number, std::vector<double> values) {
    Slot(number).doubles = std::move(values);
}
