// The column type records' constructors, and their release as the type that the kind names.

#include "spreadsheet/ColType.h"

#include <utility>

namespace {

CStringArray CopyOf(const CStringArray* options) {
    CStringArray copy;
    if (options != nullptr) {
        copy.Copy(*options);
    }
    return copy;
}

const char* OrEmpty(const char* text) {
    return text != nullptr ? text : "";
}

} // namespace

EColTypeBTN::EColTypeBTN(int column, const char* text)
    : EColType(column, KIND), text(OrEmpty(text)) {}

EColTypeTOG::EColTypeTOG(int column, const char* text, bool checked)
    : EColType(column, KIND), checked(checked), text(OrEmpty(text)) {}

EColTypeCBX::EColTypeCBX(int column, CStringArray* options, bool listOnly, bool showDropArrow)
    : EColType(column, KIND), options(CopyOf(options)), listOnly(listOnly),
      showDropArrow(showDropArrow) {}

EColTypeTIM::EColTypeTIM(int column, CString text, bool showDropArrow, bool showTime,
                         bool noSeconds)
    : EColType(column, KIND), text(std::move(text)), showDropArrow(showDropArrow),
      showTime(showTime), noSeconds(noSeconds) {}

EColTypeCOL::EColTypeCOL(int column, unsigned long color)
    : EColType(column, KIND), color(DWORD(color)) {}

EColTypeFLT::EColTypeFLT(int column, int precision, bool singlePrecision, int maxDecimals)
    : EColType(column, KIND), precision(precision), maxDecimals(maxDecimals),
      singlePrecision(singlePrecision) {}

EColTypePAT::EColTypePAT(int column, unsigned long color, int pattern)
    : EColType(column, KIND), color(DWORD(color)), pattern(pattern) {}

EColTypeSYM::EColTypeSYM(int column, unsigned long color, int symbol, int size)
    : EColType(column, KIND), color(DWORD(color)), symbol(symbol), size(size) {}

EColTypeLIN::EColTypeLIN(int column, unsigned long color, int style, int width)
    : EColType(column, KIND), color(DWORD(color)), style(style), width(width) {}

EColTypePNT::EColTypePNT(int column, unsigned long color, int size)
    : EColType(column, KIND), color(DWORD(color)), size(size) {}

EColTypeFONT::EColTypeFONT(int column, unsigned long color, int font)
    : EColType(column, KIND), color(DWORD(color)), font(font) {}

EColTypeFXY::EColTypeFXY(int column, CStringArray* options, const char* text)
    : EColType(column, KIND), options(CopyOf(options)), text(OrEmpty(text)) {}

void DeleteColType(EColType* type) {
    if (type == nullptr) {
        return;
    }
    switch (type->kind) {
    case EColTypeBTN::KIND:
        delete static_cast<EColTypeBTN*>(type);
        return;
    case EColTypeTOG::KIND:
        delete static_cast<EColTypeTOG*>(type);
        return;
    case EColTypeCBX::KIND:
        delete static_cast<EColTypeCBX*>(type);
        return;
    case EColTypeTIM::KIND:
        delete static_cast<EColTypeTIM*>(type);
        return;
    case EColTypeCOL::KIND:
        delete static_cast<EColTypeCOL*>(type);
        return;
    case EColTypeINT::KIND:
        delete static_cast<EColTypeINT*>(type);
        return;
    case EColTypeFLT::KIND:
        delete static_cast<EColTypeFLT*>(type);
        return;
    case EColTypeCOLR::KIND:
        delete static_cast<EColTypeCOLR*>(type);
        return;
    case EColTypePAT::KIND:
        delete static_cast<EColTypePAT*>(type);
        return;
    case EColTypeSYM::KIND:
        delete static_cast<EColTypeSYM*>(type);
        return;
    case EColTypeLIN::KIND:
        delete static_cast<EColTypeLIN*>(type);
        return;
    case EColTypePNT::KIND:
        delete static_cast<EColTypePNT*>(type);
        return;
    case EColTypeFONT::KIND:
        delete static_cast<EColTypeFONT*>(type);
        return;
    case EColTypeFXY::KIND:
        delete static_cast<EColTypeFXY*>(type);
        return;
    default:
        delete type;
        return;
    }
}
