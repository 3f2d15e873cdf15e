#pragma once

// CGridCellButton: a cell drawn as a push button with its text as the caption. A press inside
// it lays a CInPlaceButton over the cell; a click tells the grid's owner by
// GV_NOTIFY_CELLBUTTON.

#include "grid/GridCell.h"

class ORVA_API CGridCellButton : public CGridCell {
    DECLARE_DYNCREATE(CGridCellButton)
public:
    using CGridCell::operator=;

    BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE) override;
    // `point` is relative to the cell; a press within 4 pixels of either side edge is refused.
    BOOL OnClickDown(CPoint point, int row, int col) override;

protected:
    // Rewritten at each press: a disabled cell refuses it.
    BOOL m_bEnabled = FALSE;
};
