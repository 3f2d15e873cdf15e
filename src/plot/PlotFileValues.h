#pragma once

// The two record forms with which a plot writes its own data into a file that the application
// opened: a 4-byte integer in the machine's order, and a string of exactly 1024 bytes whose
// text ends at its first zero byte. Each answers true only if the whole record went through.

#include "platform/base/Export.h"

#include <cstdio>

constexpr int PM_STRING_RECORD = 1024;

ORVA_API unsigned char pmWriteValue(FILE* file, int value);
ORVA_API unsigned char pmWriteValue(FILE* file, long value);
// The text with its zero must fit the record: a longer text is the caller's fault.
ORVA_API unsigned char pmWriteValue(FILE* file, const char* text);
ORVA_API unsigned char pmReadValue(FILE* file, int* value);
ORVA_API unsigned char pmReadValue(FILE* file, long* value);
// `buffer` holds PM_STRING_RECORD bytes.
ORVA_API unsigned char pmReadValue(FILE* file, char* buffer);
