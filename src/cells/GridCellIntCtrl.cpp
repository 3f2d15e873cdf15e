// The integer cell: text normalised on the way in, parsed to an int on the way out.

#include "cells/GridCellIntCtrl.h"

#include <cstdio>

IMPLEMENT_DYNCREATE(CGridCellIntCtrl, CGridCell)

namespace {

// The cell being assigned to, whose SetData the copy passes by. Single-threaded, as every cell.
const CGridCellIntCtrl* assigning = nullptr;

} // namespace

CGridCellBase& CGridCellIntCtrl::operator=(const CGridCellBase& source) {
    // A plain cell's data is a value and another typed cell's an address of its own type:
    // either would be read here as the address of an int. The copied text carries the value.
    assigning = this;
    CGridCell::operator=(source);
    assigning = nullptr;
    return *this;
}

void CGridCellIntCtrl::SetText(LPCTSTR text) {
    CString trimmed(text != nullptr ? text : "");
    trimmed.TrimLeft();
    if (trimmed.IsEmpty()) {
        CGridCell::SetText("");
        return;
    }
    // The double only guards the range; the integer itself is read as an integer, so a
    // fraction is cut and an exponent is ignored.
    double value = 0.0;
    std::sscanf(trimmed, "%lf", &value);
    if (value > 2147483647.0) {
        CGridCell::SetText("2147483647");
        return;
    }
    if (value < -2147483648.0) {
        CGridCell::SetText("-2147483648");
        return;
    }
    int integer = 0;
    if (std::sscanf(trimmed, "%d", &integer) != 1) {
        return;
    }
    CString normalised;
    normalised.Format("%d", integer);
    CGridCell::SetText(normalised);
}

void CGridCellIntCtrl::SetData(LPARAM data) {
    if (this == assigning) {
        return;
    }
    if (data == 0) {
        SetText("");
        return;
    }
    CString text;
    text.Format("%d", *reinterpret_cast<const int*>(data));
    SetText(text);
}

LPARAM CGridCellIntCtrl::GetData() const {
    // One value for the process: the caller copies it at once. Single-threaded, as every cell.
    static int value;
    if (m_text.IsEmpty()) {
        return 0;
    }
    value = 0;
    std::sscanf(m_text, "%d", &value);
    return reinterpret_cast<LPARAM>(&value);
}
