#include "support/DataReader.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <unordered_map>

namespace {

constexpr char kSeparators[] = " ,\t\r\n";
constexpr int kChunkSize = 50;
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

void Append(CString& line, const char* chunk, int length) {
    if (length > 0)
        line += CString(chunk, length);
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

// What sscanf with "%lf" reads: strtod agrees with it whenever strtod takes the whole token;
// otherwise the scanner itself decides.
bool ScanDouble(const CString& token, double& value) {
    const char* text = token;
    if (*text == '\0')
        return false;
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
    line.Empty();
    if (file == nullptr || std::feof(file))
        return false;
    char chunk[kChunkSize];
    int used = 0;
    bool read = true;
    while (true) {
        const int ch = getc_unlocked(file);
        if (ch == EOF) {
            if (used == 0 || (used == 1 && chunk[0] == char(kEndOfFileMark))) {
                read = false;
                if (used == 1)
                    line.Empty();
            }
            break;
        }
        if (ch == 0 || ch > 127)
            continue;
        chunk[used++] = char(ch);
        if (ch == '\n') {
            Append(line, chunk, used - 1);
            used = 0;
            line.TrimRight('\r');
            break;
        }
        if (used == kChunkSize - 1) {
            Append(line, chunk, used);
            used = 0;
        }
    }
    if (used > 0) {
        Append(line, chunk, used);
        line.TrimRight('\r');
    }
    if (!read)
        return false;
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
    std::string_view rest = line.View();
    rest.remove_prefix(size_t(LeadingSeparators(rest)));
    if (rest.empty()) {
        line.Empty();
        return 0;
    }
    if (rest.front() == '"') {
        rest.remove_prefix(1);
        const auto quote = rest.find('"');
        if (quote == std::string_view::npos) {
            line = CString(rest);
            return 0;
        }
        text = CString(rest.substr(0, quote));
        rest.remove_prefix(quote + 1);
    } else {
        const auto separator = rest.find_first_of(kSeparators);
        text = CString(rest.substr(0, separator));
        rest.remove_prefix(separator == std::string_view::npos ? rest.size() : separator);
    }
    rest.remove_prefix(size_t(LeadingSeparators(rest)));
    line = CString(rest);
    return 1;
}

int daReadData(CString& line, CString& text) {
    return daGetText(line, text) == 1 ? 1 : 0;
}

int daReadData(CString& line, double& value) {
    const CString kept = line;
    CString token;
    daGetText(line, token);
    if (ScanDouble(token, value))
        return 1;
    line = kept;
    return 0;
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
