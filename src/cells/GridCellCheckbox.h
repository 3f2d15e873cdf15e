#pragma once

// CGridCellCheckbox: a cell that shows a check box at its top-left corner and its text as the
// box's label. The check state is the cell's data (0 unchecked, anything else checked). A press
// on the box lays a CInPlaceButton over it, which toggles the data on a click.

#include "grid/GridCell.h"

class ORVA_API CGridCellCheckbox : public CGridCell {
    DECLARE_DYNCREATE(CGridCellCheckbox)
public:
    using CGridCell::operator=;

    BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE) override;
    // `point` is relative to the cell; only a press on the box counts.
    BOOL OnClickDown(CPoint point, int row, int col) override;

    // The box of a cell at `cellRect`: a square 1 pixel in from the top-left corner, of 14
    // pixels or less in a small cell.
    static CRect BoxRect(const CRect& cellRect);

protected:
    // Rewritten at each press: a disabled cell refuses it.
    BOOL m_bEnabled = FALSE;
};
