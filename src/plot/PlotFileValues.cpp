// The binary records with which plots write their own data.

#include "plot/PlotFileValues.h"

#include <cstdint>
#include <cstring>

namespace {

bool WriteInt32(FILE* file, std::int32_t value) {
    return file && std::fwrite(&value, sizeof value, 1, file) == 1;
}

bool ReadInt32(FILE* file, std::int32_t* value) {
    return file && value && std::fread(value, sizeof *value, 1, file) == 1;
}

} // namespace

unsigned char pmWriteValue(FILE* file, int value) {
    return WriteInt32(file, value);
}

unsigned char pmWriteValue(FILE* file, long value) {
    // Four bytes, as on the system the format comes from: a long beyond them is cut.
    return WriteInt32(file, std::int32_t(value));
}

unsigned char pmWriteValue(FILE* file, const char* text) {
    if (!file)
        return false;
    char record[PM_STRING_RECORD] = {};
    if (text)
        std::strncpy(record, text, PM_STRING_RECORD - 1);
    return std::fwrite(record, PM_STRING_RECORD, 1, file) == 1;
}

unsigned char pmReadValue(FILE* file, int* value) {
    std::int32_t read = 0;
    if (!value || !ReadInt32(file, &read))
        return false;
    *value = read;
    return true;
}

unsigned char pmReadValue(FILE* file, long* value) {
    std::int32_t read = 0;
    if (!value || !ReadInt32(file, &read))
        return false;
    *value = read;
    return true;
}

unsigned char pmReadValue(FILE* file, char* buffer) {
    return file && buffer && std::fread(buffer, PM_STRING_RECORD, 1, file) == 1;
}
