// The grid store: a grid built with cells of several run-time classes, read back without a
// window, and a grid in virtual mode answered by a callback.

#include "GalleryPage.h"

#include "grid/GridCtrl.h"

#include <cstdio>
#include <cstdlib>

namespace {

// A cell that holds a number: its text is kept in the fixed form of two decimals.
class CAmountCell : public CGridCell {
    DECLARE_DYNCREATE(CAmountCell)
public:
    void SetText(LPCTSTR text) override {
        CString fixed;
        fixed.Format("%.2f", text != nullptr ? std::atof(text) : 0.0);
        CGridCell::SetText(fixed);
    }
};
IMPLEMENT_DYNCREATE(CAmountCell, CGridCell)

// A cell that cannot be edited and shows its text in capitals.
class CLabelCell : public CGridCell {
    DECLARE_DYNCREATE(CLabelCell)
public:
    void SetText(LPCTSTR text) override {
        CString upper(text != nullptr ? text : "");
        CGridCell::SetText(upper.MakeUpper());
    }
    DWORD GetState() const override { return CGridCell::GetState() | GV_STATE_READONLY; }
};
IMPLEMENT_DYNCREATE(CLabelCell, CGridCell)

const char* StateName(UINT state) {
    static char name[96];
    std::snprintf(name, sizeof(name), "0x%03X%s%s%s%s", state,
                  state & GV_STATE_FIXEDROW ? " fixed-row" : "",
                  state & GV_STATE_FIXEDCOL ? " fixed-col" : "",
                  state & GV_STATE_READONLY ? " read-only" : "",
                  state & GV_STATE_MODIFIED ? " modified" : "");
    return name;
}

void PrintCell(GalleryContext& context, CGridCtrl& grid, int row, int col) {
    CGridCellBase* cell = grid.GetCell(row, col);
    context.Print("  (%d, %d) %-12s \"%s\" state %s", row, col,
                  cell->GetRuntimeClass()->m_lpszClassName, cell->GetText(),
                  StateName(cell->GetState()));
}

BOOL AnswerVirtualCell(GV_DISPINFO* request, LPARAM) {
    if (request->item.row == 0) {
        request->item.text.Format("Station %c", 'A' + request->item.col);
    } else {
        request->item.text.Format("%.1f", request->item.row * 0.5 + request->item.col);
    }
    return TRUE;
}

void BuildGridStorePage(GalleryContext& context) {
    CGridCtrl grid(6, 4, 1, 1);
    for (int col = 1; col < 4; col++) {
        grid.SetCellType(0, col, RUNTIME_CLASS(CLabelCell));
    }
    grid.SetItemText(0, 1, "depth");
    grid.SetItemText(0, 2, "flow");
    grid.SetItemText(0, 3, "note");
    grid.SetDefaultCellType(RUNTIME_CLASS(CAmountCell));
    grid.InsertColumn("level", DT_RIGHT);
    for (int row = 1; row < grid.GetRowCount(); row++) {
        CString label;
        label.Format("%d", row);
        grid.SetItemText(row, 0, label);
        grid.SetItemText(row, 4, label + ".257");
    }
    grid.SetItemText(2, 1, "1.5");
    grid.SetItemText(2, 3, "check weir");
    grid.SetCellType(3, 2, RUNTIME_CLASS(CAmountCell));
    grid.SetItemText(3, 2, "12.3456");
    grid.SetModified(FALSE);
    grid.SetItemText(4, 4, "9");

    context.Print("Grid without a window: %d rows, %d columns, %d fixed rows, %d fixed columns",
                  grid.GetRowCount(), grid.GetColumnCount(), grid.GetFixedRowCount(),
                  grid.GetFixedColumnCount());
    context.Print("Default cell: width %d, height %d, margin %d", grid.GetDefCellWidth(),
                  grid.GetDefCellHeight(), grid.GetDefCellMargin());
    PrintCell(context, grid, 0, 0);
    PrintCell(context, grid, 0, 2);
    PrintCell(context, grid, 2, 0);
    PrintCell(context, grid, 2, 3);
    PrintCell(context, grid, 3, 2);
    PrintCell(context, grid, 4, 4);
    context.Print("Modified: grid %d, cell (4, 4) %d, cell (2, 3) %d", grid.GetModified(),
                  grid.GetModified(4, 4), grid.GetModified(2, 3));

    CGridCtrl virtualGrid;
    virtualGrid.SetVirtualMode(TRUE);
    virtualGrid.SetCallbackFunc(AnswerVirtualCell, 0);
    virtualGrid.SetRowCount(100000);
    virtualGrid.SetColumnCount(20);
    virtualGrid.SetFixedRowCount(1);
    context.Print("Virtual grid: %d rows, %d columns, no cells stored", virtualGrid.GetRowCount(),
                  virtualGrid.GetColumnCount());
    PrintCell(context, virtualGrid, 0, 3);
    PrintCell(context, virtualGrid, 99999, 19);
    context.Print("  (100000, 0) %s", virtualGrid.GetCell(100000, 0) ? "a cell" : "no cell");
}

} // namespace

GALLERY_PAGE("20-grid-store", "Grid store", BuildGridStorePage);
