#include "chart/ChartFile.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

namespace {

constexpr char kMagic[8] = {'O', 'R', 'V', 'A', 'C', 'H', 'R', 'T'};
constexpr std::uint32_t kVersion = 1;
constexpr size_t kMaxFileSize = size_t(1) << 30;

} // namespace

std::uint32_t ChartFileChecksum(const unsigned char* data, size_t size) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> t{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t c = i;
            for (int k = 0; k < 8; ++k)
                c = c & 1 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    std::uint32_t crc = 0xFFFFFFFFu;
    for (size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFu;
}

namespace {

void PutU32(std::string& out, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        out += char((value >> (8 * i)) & 0xFF);
}

void PutBytes(std::string& out, const void* data, size_t size) {
    out.append(static_cast<const char*>(data), size);
}

class Reader {
public:
    Reader(const unsigned char* data, size_t size) : m_data(data), m_size(size) {}
    bool U32(std::uint32_t& value) {
        if (m_size - m_pos < 4)
            return false;
        value = 0;
        for (int i = 0; i < 4; ++i)
            value |= std::uint32_t(m_data[m_pos + i]) << (8 * i);
        m_pos += 4;
        return true;
    }
    bool U8(std::uint8_t& value) {
        if (m_pos >= m_size)
            return false;
        value = m_data[m_pos++];
        return true;
    }
    // Copies `count` items of `itemSize` bytes, refusing counts the data cannot hold before
    // anything is allocated.
    template <typename T> bool Items(std::vector<T>& items, std::uint32_t count) {
        if ((m_size - m_pos) / sizeof(T) < count)
            return false;
        items.resize(count);
        if (count)
            std::memcpy(items.data(), m_data + m_pos, count * sizeof(T));
        m_pos += count * sizeof(T);
        return true;
    }
    bool Text(std::string& text) {
        std::uint32_t length = 0;
        if (!U32(length) || m_size - m_pos < length)
            return false;
        text.assign(reinterpret_cast<const char*>(m_data + m_pos), length);
        m_pos += length;
        return true;
    }
    bool AtEnd() const { return m_pos == m_size; }
    size_t Remaining() const { return m_size - m_pos; }

private:
    const unsigned char* m_data;
    size_t m_size;
    size_t m_pos = 0;
};

} // namespace

std::string SerializeChart(const ChartProperties& properties) {
    std::string payload;
    std::uint32_t count = 0;
    for (const auto& [number, value] : properties.All())
        count += value.kind != PropertyKind::Record;
    PutU32(payload, count);
    for (const auto& [number, value] : properties.All()) {
        if (value.kind == PropertyKind::Record)
            continue; // mouse state, not part of the chart
        PutU32(payload, std::uint32_t(number));
        payload += char(value.kind);
        switch (value.kind) {
        case PropertyKind::Int:
            PutU32(payload, std::uint32_t(value.integer));
            break;
        case PropertyKind::String:
            PutU32(payload, std::uint32_t(value.text.size()));
            payload += value.text;
            break;
        case PropertyKind::Double:
            PutU32(payload, std::uint32_t(value.doubles.size()));
            PutBytes(payload, value.doubles.data(), value.doubles.size() * sizeof(double));
            break;
        case PropertyKind::Ints:
        case PropertyKind::Colours:
            PutU32(payload, std::uint32_t(value.ints.size()));
            PutBytes(payload, value.ints.data(), value.ints.size() * sizeof(std::int32_t));
            break;
        case PropertyKind::Strings:
            PutU32(payload, std::uint32_t(value.strings.size()));
            for (const std::string& text : value.strings) {
                PutU32(payload, std::uint32_t(text.size()));
                payload += text;
            }
            break;
        case PropertyKind::Record:
            break;
        }
    }
    std::string file(kMagic, sizeof kMagic);
    PutU32(file, kVersion);
    PutU32(file, std::uint32_t(payload.size()));
    file += payload;
    PutU32(file, ChartFileChecksum(reinterpret_cast<const unsigned char*>(payload.data()),
                                   payload.size()));
    return file;
}

bool ParseChart(const unsigned char* data, size_t size, std::map<int, PropertyValue>& out) {
    if (!data || size < sizeof kMagic + 12 || std::memcmp(data, kMagic, sizeof kMagic) != 0)
        return false;
    Reader header(data + sizeof kMagic, 8);
    std::uint32_t version = 0, length = 0;
    header.U32(version);
    header.U32(length);
    if (version != kVersion || size - sizeof kMagic - 12 != length)
        return false;
    const unsigned char* payload = data + sizeof kMagic + 8;
    Reader crcReader(payload + length, 4);
    std::uint32_t crc = 0;
    crcReader.U32(crc);
    if (crc != ChartFileChecksum(payload, length))
        return false;

    Reader reader(payload, length);
    std::uint32_t count = 0;
    if (!reader.U32(count) || count > reader.Remaining() / 5)
        return false;
    std::map<int, PropertyValue> values;
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint32_t number = 0, items = 0;
        std::uint8_t kind = 0;
        if (!reader.U32(number) || !reader.U8(kind))
            return false;
        PropertyValue value;
        value.kind = KindOfProperty(int(number));
        // Properties come in ascending order, as they are written: one file, one form.
        if (kind != std::uint8_t(value.kind) || value.kind == PropertyKind::Record ||
            (!values.empty() && int(number) <= values.rbegin()->first))
            return false;
        bool ok = true;
        switch (value.kind) {
        case PropertyKind::Int: {
            std::uint32_t integer = 0;
            ok = reader.U32(integer);
            value.integer = std::int32_t(integer);
            break;
        }
        case PropertyKind::String:
            ok = reader.Text(value.text);
            break;
        case PropertyKind::Double:
            ok = reader.U32(items) && reader.Items(value.doubles, items);
            break;
        case PropertyKind::Ints:
        case PropertyKind::Colours:
            ok = reader.U32(items) && reader.Items(value.ints, items);
            break;
        case PropertyKind::Strings:
            ok = reader.U32(items) && items <= reader.Remaining() / 4;
            for (std::uint32_t k = 0; ok && k < items; ++k) {
                value.strings.emplace_back();
                ok = reader.Text(value.strings.back());
            }
            break;
        case PropertyKind::Record:
            ok = false;
            break;
        }
        if (!ok)
            return false;
        values.emplace(int(number), std::move(value));
    }
    if (!reader.AtEnd())
        return false;
    out = std::move(values);
    return true;
}

bool StoreChartFile(const ChartProperties& properties, const char* path) {
    if (!path)
        return false;
    const std::string bytes = SerializeChart(properties);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), std::streamsize(bytes.size()));
    file.close();
    return bool(file);
}

bool LoadChartFile(const char* path, std::map<int, PropertyValue>& out) {
    if (!path)
        return false;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    if (size < 0 || size_t(size) > kMaxFileSize)
        return false;
    file.seekg(0);
    std::string bytes(size_t(size), '\0');
    if (!file.read(bytes.data(), size))
        return false;
    return ParseChart(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), out);
}
