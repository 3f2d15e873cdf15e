#pragma once

// CGridCellIntCtrl: the cell of an integer column. Its text is its only store: text coming in
// is normalised to a 32-bit integer, and GetData reads it back out. The data slot carries the
// address of an int, not a value.

#include "grid/GridCell.h"

class ORVA_API CGridCellIntCtrl : public CGridCell {
    DECLARE_DYNCREATE(CGridCellIntCtrl)
public:
    CGridCellIntCtrl() = default;
    // Copies the cell part by its text: the source's data, a value or an address of another
    // type, is never read as the address of an int.
    CGridCellBase& operator=(const CGridCellBase& source) override;

    // Out-of-range numbers clamp; text that reads as no integer leaves the cell as it was.
    void SetText(LPCTSTR text) override;
    // `data` is the address of an int, or 0 for an empty cell.
    void SetData(LPARAM data) override;
    // The address of an int shared by every integer cell, good until the next call; 0 when
    // the text is empty.
    LPARAM GetData() const override;
};
