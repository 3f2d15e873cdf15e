#pragma once

// The types of a spreadsheet's columns: plain records that say which column they describe, which
// kind of cell its rows hold, and what that cell needs at birth. They have no behaviour and no
// virtual destructor: the integer `kind` alone tells the concrete record, and DeleteColType frees
// a record as the type its kind names. Kinds 4 and 8 to 12 make plain cells; their fields are the
// application's, which reads the kind back through CSpreadSheetORVA::GetTypeOfCol.

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/StringArray.h"
#include "platform/base/WinTypes.h"

#include <memory>

// The base, and with kind -1 the token that removes a column's type.
struct ORVA_API EColType {
    static constexpr int KIND_NONE = -1;

    EColType(int column = -1, int kind = KIND_NONE) : column(column), kind(kind) {}

    int column; // the zero-based grid column, and the key of the spreadsheet's list
    int kind;
};

// A push button with `text` as its caption.
struct ORVA_API EColTypeBTN : EColType {
    static constexpr int KIND = 0;
    EColTypeBTN(int column = -1, const char* text = "");

    CString text;
};

// A check box with `text` as its label, checked at birth when `checked`.
struct ORVA_API EColTypeTOG : EColType {
    static constexpr int KIND = 1;
    EColTypeTOG(int column = -1, const char* text = "", bool checked = false);

    bool checked;
    CString text;
};

// A choice among `options`: a drop-down list when `listOnly`, else a drop-down with a free edit
// field. Passed by pointer only.
struct ORVA_API EColTypeCBX : EColType {
    static constexpr int KIND = 2;
    // Copies the options; null leaves the list empty.
    EColTypeCBX(int column = -1, CStringArray* options = nullptr, bool listOnly = true,
                bool showDropArrow = true);
    EColTypeCBX(const EColTypeCBX&) = delete;
    EColTypeCBX& operator=(const EColTypeCBX&) = delete;

    CStringArray options;
    bool listOnly;
    bool showDropArrow;
};

// A date and time; `text` is what a new cell starts with, "^" being the present moment.
struct ORVA_API EColTypeTIM : EColType {
    static constexpr int KIND = 3;
    EColTypeTIM(int column = -1, CString text = "^", bool showDropArrow = true,
                bool showTime = true, bool noSeconds = true);

    CString text;
    bool showDropArrow;
    bool showTime;
    bool noSeconds;
};

struct ORVA_API EColTypeCOL : EColType {
    static constexpr int KIND = 4;
    EColTypeCOL(int column = -1, unsigned long color = 0);

    DWORD color;
};

// A 32-bit integer.
struct ORVA_API EColTypeINT : EColType {
    static constexpr int KIND = 5;
    EColTypeINT(int column = -1) : EColType(column, KIND) {}
};

// A floating point number; `precision` and `maxDecimals` as the float cell takes them, -1 for
// the best display. The record holds `maxDecimals` before `singlePrecision`, the constructor
// takes them the other way round.
struct ORVA_API EColTypeFLT : EColType {
    static constexpr int KIND = 6;
    EColTypeFLT(int column = -1, int precision = -1, bool singlePrecision = false,
                int maxDecimals = -1);

    int precision;
    int maxDecimals;
    bool singlePrecision;
};

// A colour, shown as the cell's background and chosen in the colour chooser.
struct ORVA_API EColTypeCOLR : EColType {
    static constexpr int KIND = 7;
    EColTypeCOLR(int column = -1) : EColType(column, KIND) {}
};

struct ORVA_API EColTypePAT : EColType {
    static constexpr int KIND = 8;
    EColTypePAT(int column = -1, unsigned long color = 0, int pattern = 0);

    DWORD color;
    int pattern;
};

struct ORVA_API EColTypeSYM : EColType {
    static constexpr int KIND = 9;
    EColTypeSYM(int column = -1, unsigned long color = 0, int symbol = 0, int size = 1);

    DWORD color;
    int symbol;
    int size;
};

struct ORVA_API EColTypeLIN : EColType {
    static constexpr int KIND = 10;
    EColTypeLIN(int column = -1, unsigned long color = 0, int style = 0, int width = 1);

    DWORD color;
    int style;
    int width;
};

struct ORVA_API EColTypePNT : EColType {
    static constexpr int KIND = 11;
    EColTypePNT(int column = -1, unsigned long color = 0, int size = 1);

    DWORD color;
    int size;
};

struct ORVA_API EColTypeFONT : EColType {
    static constexpr int KIND = 12;
    EColTypeFONT(int column = -1, unsigned long color = 0, int font = 0);

    DWORD color;
    int font;
};

// A quantity given as a number or an XY curve, with `options` for its drop-down. Passed by
// pointer only.
struct ORVA_API EColTypeFXY : EColType {
    static constexpr int KIND = 13;
    // Copies the options (null leaves the list empty) and the text.
    EColTypeFXY(int column = -1, CStringArray* options = nullptr, const char* text = "");
    EColTypeFXY(const EColTypeFXY&) = delete;
    EColTypeFXY& operator=(const EColTypeFXY&) = delete;

    CStringArray options;
    CString text;
};

// Frees a record as the concrete type its kind names, with its strings and arrays.
ORVA_API void DeleteColType(EColType* type);

struct ColTypeDeleter {
    void operator()(EColType* type) const { DeleteColType(type); }
};
// A record owned by whoever holds this.
using OwnedColType = std::unique_ptr<EColType, ColTypeDeleter>;
