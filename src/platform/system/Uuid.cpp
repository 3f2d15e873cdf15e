#include "platform/system/Uuid.h"

#include <array>
#include <cstdint>
#include <random>
#include <sys/random.h>

namespace {

std::array<std::uint8_t, 16> RandomBytes() {
    std::array<std::uint8_t, 16> bytes{};
    size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = getrandom(bytes.data() + filled, bytes.size() - filled, 0);
        if (got <= 0)
            break;
        filled += size_t(got);
    }
    if (filled < bytes.size()) {
        // No kernel randomness: fall back on the library's device, still unpredictable.
        std::random_device device;
        for (auto& byte : bytes)
            byte = std::uint8_t(device());
    }
    return bytes;
}

} // namespace

std::string CreateUuidString() {
    auto bytes = RandomBytes();
    bytes[6] = std::uint8_t((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = std::uint8_t((bytes[8] & 0x3F) | 0x80); // the standard's variant
    static constexpr char kHex[] = "0123456789abcdef";
    std::string text;
    text.reserve(36);
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text += '-';
        text += kHex[bytes[i] >> 4];
        text += kHex[bytes[i] & 0x0F];
    }
    return text;
}
