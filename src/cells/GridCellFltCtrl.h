#pragma once

// CGridCellFltCtrl: the cell of a floating point column. Its text is its only store: text
// coming in passes through a number and comes out in the cell's own format, and GetData reads
// it back out. The data slot carries the address of a double, or of a float for a cell of
// single-precision values.

#include "grid/GridCell.h"

class ORVA_API CGridCellFltCtrl : public CGridCell {
    DECLARE_DYNCREATE(CGridCellFltCtrl)
public:
    CGridCellFltCtrl() = default;
    CGridCellFltCtrl& operator=(const CGridCellFltCtrl& source);
    // Copies the format settings when the source is a float cell too, and the cell part by its
    // text: the source's data, a value or an address of another type, is never read as the
    // address of a double or float.
    CGridCellBase& operator=(const CGridCellBase& source) override;

    // Text that reads as no number empties the cell.
    void SetText(LPCTSTR text) override;
    // `data` is the address of a double (a float for a single-precision cell), or 0.
    void SetData(LPARAM data) override;
    // The address of a double (or float) shared by every float cell, good until the next
    // call; 0 when the text is empty.
    LPARAM GetData() const override;

    // Stores the format settings only; the text keeps its form until it is next set.
    // `precision` is the exact count of decimals, -1 for as many as needed; `maxDecimals`,
    // when 0 or more, is an upper limit that replaces it.
    void SetPrecision(int precision, bool singlePrecision, int maxDecimals);

protected:
    int m_nPrecision = -1;
    int m_nMaxDecimals = -1;
    bool m_bSinglePrecision = false;
};
