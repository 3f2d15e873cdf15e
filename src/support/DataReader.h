#pragma once

// Reading line-oriented text data: `daGetLine` reads the next line of a file, and the line is
// then eaten from the left one token at a time. Tokens are separated by runs of blanks,
// commas, tabs, carriage returns and line feeds; a token in double quotes may hold them.
// Each file has a line counter, kept by the stream's address, which tells the caller where a
// failure lies: it starts at -1 unless the caller sets it, and counts every line read.

#include "platform/base/Export.h"
#include "platform/base/String.h"

#include <cstdio>

// Replaces `line` by the next line, without its line end and trailing carriage returns; bytes
// of 0 and above 127 are dropped. False at the end of the file, and on a last line that holds
// only the end-of-file mark (byte 26), which is then left alone in `line`.
ORVA_API bool daGetLine(CString& line, FILE* file);
// Lines read so far, or -1 if the file was never counted.
ORVA_API int daGetLineCount(FILE* file);
ORVA_API void daSetLineCount(FILE* file, int count);

// Takes the next token from `line` into `text`: 1, or 0 if there is none or a quote is not
// closed (then `line` has lost its opening quote).
ORVA_API int daGetText(CString& line, CString& text);

// Each takes the next token as its type: 1, or 0 with `line` and the value unchanged if the
// token does not begin with a number. The integer types truncate toward zero.
ORVA_API int daReadData(CString& line, CString& text);
ORVA_API int daReadData(CString& line, double& value);
ORVA_API int daReadData(CString& line, float& value);
ORVA_API int daReadData(CString& line, int& value);
ORVA_API int daReadData(CString& line, unsigned int& value);
ORVA_API int daReadData(CString& line, unsigned char& value);
ORVA_API int daReadData(CString& line, bool& value);
ORVA_API int daReadData(CString& line, double* value);
ORVA_API int daReadData(CString& line, float* value);
ORVA_API int daReadData(CString& line, int* value);
ORVA_API int daReadData(CString& line, unsigned int* value);
ORVA_API int daReadData(CString& line, unsigned char* value);
ORVA_API int daReadData(CString& line, bool* value);
