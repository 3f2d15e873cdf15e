#include "cells/GridCellIntCtrl.h"

#include <cstdio>

IMPLEMENT_DYNCREATE(CGridCellIntCtrl, CGridCell)

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
