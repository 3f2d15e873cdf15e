// The text data reader: whole lines through the C library's getline, numbers through
// std::from_chars where it reads what strtod reads, and the scanner for the rest.

#include "support/DataReader.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>

namespace {

constexpr int kPieceSize = 49; // bytes the reader took from the file at a time
constexpr int kEndOfFileMark = 26;

// Lines read per stream. Entries outlive their streams: a new stream at the same address
// takes over the count unless it is set. The user-interface thread alone uses it: no lock.
std::unordered_map<const FILE*, int>& LineCounts() {
    static std::unordered_map<const FILE*, int> counts;
    return counts;
}

bool IsSeparator(char ch) {
    return ch == ' ' || ch == ',' || ch == '\t' || ch == '\r' || ch == '\n';
}

int LeadingSeparators(std::string_view text) {
    int count = 0;
    while (count < int(text.size()) && IsSeparator(text[size_t(count)]))
        ++count;
    return count;
}

// Where the next token lies in `line`: its text, and how much of the line it uses up with
// the separators around it. False when there is no token, or its quote is not closed.
struct Token {
    std::string_view text;
    int consumed = 0;
    bool unclosedQuote = false;
};

bool FindToken(std::string_view line, Token& token) {
    const int start = LeadingSeparators(line);
    std::string_view rest = line.substr(size_t(start));
    if (rest.empty()) {
        token.consumed = int(line.size());
        return false;
    }
    if (rest.front() == '"') {
        const auto quote = rest.find('"', 1);
        if (quote == std::string_view::npos) {
            token.consumed = start + 1;
            token.unclosedQuote = true;
            return false;
        }
        token.text = rest.substr(1, quote - 1);
        rest.remove_prefix(quote + 1);
    } else {
        size_t length = 0;
        while (length < rest.size() && !IsSeparator(rest[length]))
            ++length;
        token.text = rest.substr(0, length);
        rest.remove_prefix(length);
    }
    token.consumed = int(line.size() - rest.size()) + LeadingSeparators(rest);
    return true;
}

// The conversion of the processor's truncating instructions: a value out of range gives the
// lowest integer of the width.
std::int32_t TruncateTo32(double value) {
    if (!(value > -2147483649.0 && value < 2147483648.0))
        return INT32_MIN;
    return std::int32_t(value);
}

std::int64_t TruncateTo64(double value) {
    if (!(value >= -9223372036854775808.0 && value < 9223372036854775808.0))
        return INT64_MIN;
    return std::int64_t(value);
}

// A plain decimal number, with at most a minus sign before it: from_chars reads it to the same
// value as strtod, both rounding correctly. Signs, blanks, hexadecimal, infinities and NaNs are
// left to strtod.
bool IsPlainDecimal(std::string_view token) {
    const size_t first = !token.empty() && token.front() == '-' ? 1 : 0;
    return first < token.size() &&
           ((token[first] >= '0' && token[first] <= '9') || token[first] == '.');
}

// What sscanf with "%lf" reads: strtod agrees with it whenever strtod takes the whole token;
// otherwise the scanner itself decides.
bool ScanDouble(std::string_view token, double& value) {
    if (token.empty())
        return false;
    if (IsPlainDecimal(token)) {
        const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), value);
        if (error == std::errc() && end == token.data() + token.size())
            return true;
    }
    char small[64];
    std::string large;
    const char* text = small;
    if (token.size() < sizeof small) {
        std::memcpy(small, token.data(), token.size());
        small[token.size()] = '\0';
    } else {
        large.assign(token);
        text = large.c_str();
    }
    char* end = nullptr;
    const double parsed = std::strtod(text, &end);
    if (end != text && *end == '\0') {
        value = parsed;
        return true;
    }
    return std::sscanf(text, "%lf", &value) == 1;
}

template <typename Target, typename Convert>
int ReadConverted(CString& line, Target& target, Convert convert) {
    double value = 0.0;
    if (!daReadData(line, value))
        return 0;
    target = convert(value);
    return 1;
}

template <typename Target> int ReadThrough(CString& line, Target* target) {
    return target != nullptr ? daReadData(line, *target) : 0;
}

} // namespace

bool daGetLine(CString& line, FILE* file) {
    if (file == nullptr || std::feof(file)) {
        line.Empty();
        return false;
    }
    // The buffer of the C library's getline, kept from line to line; single-threaded.
    static char* raw = nullptr;
    static size_t capacity = 0;
    const ssize_t read = getline(&raw, &capacity, file);
    if (read <= 0) {
        line.Empty();
        return false;
    }
    const bool ended = raw[read - 1] == '\n';
    // The line goes into the string's own buffer, which it keeps from line to line.
    char* text = line.GetBufferSetLength(int(read));
    int kept = 0;
    for (ssize_t i = 0; i < read - (ended ? 1 : 0); ++i) {
        const auto ch = static_cast<unsigned char>(raw[i]);
        if (ch != 0 && ch <= 127)
            text[kept++] = char(ch);
    }
    line.ReleaseBuffer(kept);
    if (!ended) {
        // The text was taken in pieces of 49 bytes, and the end of the file counts as a line
        // end only while a piece is being filled: the count of bytes in the last piece decides.
        const int lastPiece = kept % kPieceSize;
        if (lastPiece == 0)
            return false;
        if (lastPiece == 1 && text[kept - 1] == char(kEndOfFileMark)) {
            line = CString(char(kEndOfFileMark));
            return false;
        }
    }
    line.TrimRight('\r');
    auto [entry, inserted] = LineCounts().try_emplace(file, -1);
    ++entry->second;
    return true;
}

int daGetLineCount(FILE* file) {
    const auto found = LineCounts().find(file);
    return found != LineCounts().end() ? found->second : -1;
}

void daSetLineCount(FILE* file, int count) {
    LineCounts()[file] = count;
}

int daGetText(CString& line, CString& text) {
    text.Empty();
    Token token;
    const bool found = FindToken(line.View(), token);
    if (found)
        text = CString(token.text);
    line.Delete(0, token.consumed);
    return found ? 1 : 0;
}

int daReadData(CString& line, CString& text) {
    return daGetText(line, text) == 1 ? 1 : 0;
}

int daReadData(CString& line, double& value) {
    // A token that is not a number is not consumed; so the line is cut only after the read.
    Token token;
    if (!FindToken(line.View(), token) || !ScanDouble(token.text, value))
        return 0;
    line.Delete(0, token.consumed);
    return 1;
}

int daReadData(CString& line, float& value) {
    return ReadConverted(line, value, [](double v) { return float(v); });
}

int daReadData(CString& line, int& value) {
    return ReadConverted(line, value, [](double v) { return int(TruncateTo32(v)); });
}

int daReadData(CString& line, unsigned int& value) {
    return ReadConverted(line, value,
                         [](double v) { return static_cast<unsigned int>(TruncateTo64(v)); });
}

int daReadData(CString& line, unsigned char& value) {
    return ReadConverted(line, value,
                         [](double v) { return static_cast<unsigned char>(TruncateTo32(v)); });
}

int daReadData(CString& line, bool& value) {
    return ReadConverted(line, value, [](double v) { return TruncateTo32(v) != 0; });
}

int daReadData(CString& line, double* value) {
    return ReadThrough(line, value);
}
int daReadData(CString& line, float* value) {
    return ReadThrough(line, value);
}
int daReadData(CString& line, int* value) {
    return ReadThrough(line, value);
}
int daReadData(CString& line, unsigned int* value) {
    return ReadThrough(line, value);
}
int daReadData(CString& line, unsigned char* value) {
    return ReadThrough(line, value);
}
int daReadData(CString& line, bool* value) {
    return ReadThrough(line, value);
}
