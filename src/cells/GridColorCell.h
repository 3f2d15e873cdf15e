#pragma once

// CGridColorCell: the cell of a colour column. It is a plain read-only cell whose colour is
// the background the application gives it; its own class lets the spreadsheet tell it apart.

#include "grid/GridCell.h"

class ORVA_API CGridColorCell : public CGridCell {
    DECLARE_DYNCREATE(CGridColorCell)
public:
    using CGridCell::operator=;
};
