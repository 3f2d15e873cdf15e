#pragma once

// CGridColorCell: the cell of a colour column. It is a read-only cell whose colour is the
// background the application gives it. A double click opens the colour chooser on that colour;
// a colour chosen there becomes the background, marks the cell modified and tells the grid's
// owner by GV_NOTIFY_CELLBUTTON, as a button cell would.

#include "grid/GridCell.h"

class ORVA_API CGridColorCell : public CGridCell {
    DECLARE_DYNCREATE(CGridColorCell)
public:
    using CGridCell::operator=;

    void OnDblClick(CPoint point, int row, int col) override;
};
