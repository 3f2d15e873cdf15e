// The floating-point cell: text normalised on the way in, parsed to a double on the way out.

#include "cells/GridCellFltCtrl.h"

#include "support/FormatDouble.h"

#include <cstdio>

IMPLEMENT_DYNCREATE(CGridCellFltCtrl, CGridCell)

namespace {

// Character positions for the text of a double and of a float.
constexpr int kDoubleWidth = 15;
constexpr int kSingleWidth = 8;

// The cell being assigned to and the source's data, which the copy's own SetData passes by;
// the SetData within SetText carries an address of its own and goes through. Single-threaded,
// as every cell.
struct Assignment {
    const CGridCellFltCtrl* cell = nullptr;
    LPARAM sourceData = 0;
};
Assignment assigning;

} // namespace

CGridCellFltCtrl& CGridCellFltCtrl::operator=(const CGridCellFltCtrl& source) {
    *this = static_cast<const CGridCellBase&>(source);
    return *this;
}

CGridCellBase& CGridCellFltCtrl::operator=(const CGridCellBase& source) {
    // The settings come first, so that the copied text takes the source's form. A plain
    // cell's data is a value and another typed cell's an address of its own type: either
    // would be read here as the address of a double. The copied text carries the value.
    if (source.IsKindOf(RUNTIME_CLASS(CGridCellFltCtrl))) {
        const auto& other = static_cast<const CGridCellFltCtrl&>(source);
        m_nPrecision = other.m_nPrecision;
        m_nMaxDecimals = other.m_nMaxDecimals;
        m_bSinglePrecision = other.m_bSinglePrecision;
    }
    assigning = {this, source.GetData()};
    CGridCell::operator=(source);
    assigning = {};
    return *this;
}

void CGridCellFltCtrl::SetText(LPCTSTR text) {
    // Blanks alone make sscanf report the end of input rather than no field: they read as 0.
    double value = 0.0;
    if (text == nullptr || *text == '\0' || std::sscanf(text, "%lf", &value) == 0) {
        m_text = "";
        return;
    }
    if (!m_bSinglePrecision) {
        SetData(reinterpret_cast<LPARAM>(&value));
        return;
    }
    float single = 0.0f;
    std::sscanf(text, "%f", &single);
    SetData(reinterpret_cast<LPARAM>(&single));
}

void CGridCellFltCtrl::SetData(LPARAM data) {
    if (this == assigning.cell && data == assigning.sourceData) {
        return;
    }
    if (data == 0) {
        m_text = "";
        return;
    }
    const double value = m_bSinglePrecision ? double(*reinterpret_cast<const float*>(data))
                                            : *reinterpret_cast<const double*>(data);
    int flags = m_bSinglePrecision ? FMT_SINGLE : 0;
    int decimals = m_nPrecision;
    if (m_nMaxDecimals >= 0) {
        decimals = m_nMaxDecimals;
        flags |= FMT_MAX_DECIMALS;
    }
    m_text =
        xgFormatDouble(value, decimals, m_bSinglePrecision ? kSingleWidth : kDoubleWidth, flags);
}

LPARAM CGridCellFltCtrl::GetData() const {
    // One value of each type for the process: the caller copies it at once. Single-threaded,
    // as every cell.
    static double doubleValue;
    static float singleValue;
    if (m_text.IsEmpty()) {
        return 0;
    }
    if (m_bSinglePrecision) {
        singleValue = 0.0f;
        std::sscanf(m_text, "%f", &singleValue);
        return reinterpret_cast<LPARAM>(&singleValue);
    }
    doubleValue = 0.0;
    std::sscanf(m_text, "%lf", &doubleValue);
    return reinterpret_cast<LPARAM>(&doubleValue);
}

void CGridCellFltCtrl::SetPrecision(int precision, bool singlePrecision, int maxDecimals) {
    m_nPrecision = precision;
    m_bSinglePrecision = singlePrecision;
    m_nMaxDecimals = maxDecimals;
}
