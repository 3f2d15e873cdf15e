// The PNG encoder: signature, header, one data chunk deflated by zlib, end.

#include "platform/gdi/canvas/PngWriter.h"

#include <zlib.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

constexpr unsigned char kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr unsigned char kColourRgb = 2;
constexpr unsigned char kColourRgba = 6;
constexpr unsigned char kFilterNone = 0;
constexpr unsigned char kFilterUp = 2;
constexpr int kDeflateLevel = 1;
constexpr int kDeflateWindowBits = 15;
constexpr int kDeflateMemoryLevel = 8;
constexpr size_t kOutputStep = 64 * 1024;

void PutBigEndian(std::string& out, std::uint32_t value) {
    const char bytes[] = {char(value >> 24), char(value >> 16), char(value >> 8), char(value)};
    out.append(bytes, sizeof bytes);
}

// Appends a chunk whose data the caller has already put after an eight-byte gap at `start`.
void CloseChunk(std::string& out, size_t start, const char type[4]) {
    const auto length = std::uint32_t(out.size() - start - 8);
    const char bytes[] = {char(length >> 24), char(length >> 16), char(length >> 8), char(length)};
    std::memcpy(&out[start], bytes, 4);
    std::memcpy(&out[start + 4], type, 4);
    const auto* typeAndData = reinterpret_cast<const Bytef*>(out.data() + start + 4);
    PutBigEndian(out, std::uint32_t(crc32(0, typeAndData, uInt(length + 4))));
}

size_t OpenChunk(std::string& out) {
    const size_t start = out.size();
    out.append(8, '\0');
    return start;
}

bool IsOpaque(const unsigned char* pixels, int width, int height, int stride) {
    for (int y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(pixels + size_t(y) * stride);
        std::uint32_t all = 0xFF000000u;
        for (int x = 0; x < width; ++x)
            all &= row[x];
        if (all != 0xFF000000u)
            return false;
    }
    return true;
}

// One row in PNG byte order, alpha divided out as Cairo's writer divides it.
void ConvertRow(const std::uint32_t* argb, int width, bool withAlpha, unsigned char* out) {
    if (!withAlpha) {
        for (int x = 0; x < width; ++x, out += 3) {
            out[0] = (unsigned char)(argb[x] >> 16);
            out[1] = (unsigned char)(argb[x] >> 8);
            out[2] = (unsigned char)(argb[x]);
        }
        return;
    }
    for (int x = 0; x < width; ++x, out += 4) {
        const std::uint32_t pixel = argb[x];
        const std::uint32_t alpha = pixel >> 24;
        if (alpha == 0) {
            std::memset(out, 0, 4);
            continue;
        }
        const auto unpremultiply = [alpha](std::uint32_t channel) {
            return (unsigned char)((channel * 255 + alpha / 2) / alpha);
        };
        out[0] = unpremultiply((pixel >> 16) & 0xFF);
        out[1] = unpremultiply((pixel >> 8) & 0xFF);
        out[2] = unpremultiply(pixel & 0xFF);
        out[3] = (unsigned char)alpha;
    }
}

// zlib's stream, ended however the encoding ends.
class Deflater {
public:
    Deflater() {
        m_ok = deflateInit2(&m_stream, kDeflateLevel, Z_DEFLATED, kDeflateWindowBits,
                            kDeflateMemoryLevel, Z_RLE) == Z_OK;
    }
    ~Deflater() {
        if (m_ok)
            deflateEnd(&m_stream);
    }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    bool Ok() const { return m_ok; }

    // Compresses `size` bytes onto the end of `out`; `last` finishes the stream.
    bool Put(const unsigned char* data, size_t size, bool last, std::string& out) {
        m_stream.next_in = const_cast<Bytef*>(data);
        m_stream.avail_in = uInt(size);
        const int flush = last ? Z_FINISH : Z_NO_FLUSH;
        for (;;) {
            m_stream.next_out = m_buffer.data();
            m_stream.avail_out = uInt(m_buffer.size());
            const int status = deflate(&m_stream, flush);
            if (status == Z_STREAM_ERROR)
                return false;
            out.append(reinterpret_cast<const char*>(m_buffer.data()),
                       m_buffer.size() - m_stream.avail_out);
            if (last ? status == Z_STREAM_END : m_stream.avail_in == 0 && m_stream.avail_out != 0)
                return true;
        }
    }

private:
    z_stream m_stream{};
    bool m_ok = false;
    std::vector<unsigned char> m_buffer = std::vector<unsigned char>(kOutputStep);
};

} // namespace

std::string EncodePng(const unsigned char* pixels, int width, int height, int stride) {
    if (pixels == nullptr || width <= 0 || height <= 0)
        return {};
    const bool withAlpha = !IsOpaque(pixels, width, height, stride);
    const size_t rowBytes = size_t(width) * (withAlpha ? 4 : 3);

    std::string png(reinterpret_cast<const char*>(kSignature), sizeof kSignature);
    const size_t header = OpenChunk(png);
    PutBigEndian(png, std::uint32_t(width));
    PutBigEndian(png, std::uint32_t(height));
    const char depthColourAndMethods[] = {8, char(withAlpha ? kColourRgba : kColourRgb), 0, 0, 0};
    png.append(depthColourAndMethods, sizeof depthColourAndMethods);
    CloseChunk(png, header, "IHDR");

    Deflater deflater;
    if (!deflater.Ok())
        return {};
    const size_t data = OpenChunk(png);
    // Each row leaves as its filter byte and its difference from the row above.
    std::vector<unsigned char> previous(rowBytes, 0), current(rowBytes), filtered(rowBytes + 1);
    for (int y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(pixels + size_t(y) * stride);
        ConvertRow(row, width, withAlpha, current.data());
        filtered[0] = y == 0 ? kFilterNone : kFilterUp;
        for (size_t i = 0; i < rowBytes; ++i)
            filtered[i + 1] = (unsigned char)(current[i] - previous[i]);
        if (!deflater.Put(filtered.data(), filtered.size(), y == height - 1, png))
            return {};
        current.swap(previous);
    }
    CloseChunk(png, data, "IDAT");
    CloseChunk(png, OpenChunk(png), "IEND");
    return png;
}
