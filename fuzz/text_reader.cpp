// Feeds arbitrary bytes to the text data reader as a file: every line is eaten token by token
// with all the readers until they stop. The reader must end, never crash, and never let a
// byte of 0 or above 127 through.

#include "support/DataReader.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void CheckBytes(const CString& text) {
    for (unsigned char ch : text.View())
        if (ch == 0 || ch > 127)
            std::abort();
}

void EatLine(CString line) {
    // Each reader in turn; a failed number leaves the line as it was, so fall back on the text
    // reader, which always shortens it or ends.
    for (;;) {
        const int before = line.GetLength();
        double value = 0;
        int integer = 0;
        unsigned int whole = 0;
        bool flag = false;
        CString text;
        if (daReadData(line, value) + daReadData(line, integer) + daReadData(line, whole) +
                daReadData(line, flag) ==
            0) {
            if (daGetText(line, text) == 0 && line.GetLength() >= before)
                return;
        }
        CheckBytes(text);
        if (line.GetLength() > before)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::string content(reinterpret_cast<const char*>(data), size);
    FILE* file = fmemopen(content.empty() ? nullptr : content.data(), content.size(), "r");
    if (file == nullptr)
        return 0;
    daSetLineCount(file, 0);
    CString line;
    int lines = 0;
    while (daGetLine(line, file)) {
        CheckBytes(line);
        EatLine(line);
        if (++lines != daGetLineCount(file))
            std::abort();
    }
    std::fclose(file);
    return 0;
}
