#pragma once

// The library's byte string: a std::basic_string with a printf-style Format. It crosses the
// exported interface by value; an empty string stands for no text.

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <iterator>
#include <string>
#include <utility>

namespace zvk {

template <typename CT> class CStdStr : public std::basic_string<CT> {
public:
    using Base = std::basic_string<CT>;
    using Base::Base;

    CStdStr() = default;
    CStdStr(const Base& text) : Base(text) {}
    CStdStr(Base&& text) noexcept : Base(std::move(text)) {}

    // Replaces the content with the formatted text. Larger buffers are tried while the text
    // does not fit; beyond the last one the text is cut. Formatting is of bytes: only the
    // char instantiation is used.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3))) {
        va_list arguments;
        va_start(arguments, format);
        FormatV(format, arguments);
        va_end(arguments);
    }

    void FormatV(const char* format, va_list arguments) {
        static constexpr int kBufferSizes[] = {2049, 6145, 12289, 20481, 30721, 43009};
        for (int size : kBufferSizes) {
            Base buffer(size_t(size), CT{});
            va_list copy;
            va_copy(copy, arguments);
            const int written = std::vsnprintf(buffer.data(), size_t(size), format, copy);
            va_end(copy);
            if (written < 0) {
                this->clear();
                return;
            }
            if (written < size || size == kBufferSizes[std::size(kBufferSizes) - 1]) {
                buffer.resize(size_t(std::min(written, size - 1)));
                Base::operator=(std::move(buffer));
                return;
            }
        }
    }
};

using CStdStringA = CStdStr<char>;

} // namespace zvk
