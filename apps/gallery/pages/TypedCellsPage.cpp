// Typed cells: a culvert table whose columns are integer, float, check box, button and colour
// cells. A scripted user types numbers that the cells normalise, ticks a box, presses a button
// and picks a colour in the chooser, which is captured as well. In a window every cell takes
// the mouse and the keys for real.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "cells/ColorChooserDlg.h"
#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridColorCell.h"
#include "grid/GridCtrl.h"
#include "platform/testing/ModalResponder.h"
#include "platform/testing/UiDriver.h"

namespace {

constexpr int kRows = 7;
constexpr int kCols = 7;
enum Column { kName, kBarrels, kSpan, kSlope, kInspected, kDetails, kColour };

// The table's owner: counts the presses of cell buttons, as an application would act on them.
class CCulvertFrame : public CWnd {
public:
    int buttonPresses = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* record = reinterpret_cast<const GV_NMGRID*>(lParam);
        *result = 0;
        if (record->hdr.code == UINT(GV_NOTIFY_CELLBUTTON)) {
            buttonPresses++;
        }
        return TRUE;
    }
};

struct TypedCellsPage {
    CCulvertFrame frame;
    CGridCtrl grid{kRows, kCols, 1, 1};
};

void FillTable(CGridCtrl& grid) {
    const char* headings[kCols] = {"Culvert",   "Barrels", "Span (m)", "Slope",
                                   "Inspected", "Details", "Colour"};
    const COLORREF colours[] = {RGB(0, 0, 128),   RGB(128, 0, 0),   RGB(0, 128, 0),
                                RGB(128, 128, 0), RGB(0, 128, 128), RGB(128, 0, 128)};
    for (int col = 0; col < kCols; col++) {
        grid.SetItemText(0, col, headings[col]);
    }
    for (int row = 1; row < kRows; row++) {
        grid.SetCellType(row, kBarrels, RUNTIME_CLASS(CGridCellIntCtrl));
        grid.SetCellType(row, kSpan, RUNTIME_CLASS(CGridCellFltCtrl));
        grid.SetCellType(row, kSlope, RUNTIME_CLASS(CGridCellFltCtrl));
        grid.SetCellType(row, kInspected, RUNTIME_CLASS(CGridCellCheckbox));
        grid.SetCellType(row, kDetails, RUNTIME_CLASS(CGridCellButton));
        grid.SetCellType(row, kColour, RUNTIME_CLASS(CGridColorCell));
        static_cast<CGridCellFltCtrl*>(grid.GetCell(row, kSpan))->SetPrecision(2, false, -1);
        static_cast<CGridCellFltCtrl*>(grid.GetCell(row, kSlope))->SetPrecision(-1, true, 4);
        for (int col : {kInspected, kDetails, kColour}) {
            grid.SetItemState(row, col, grid.GetItemState(row, col) | GV_STATE_READONLY);
        }
        grid.SetItemTextFmt(row, kName, "C-%d", row);
        grid.SetItemTextFmt(row, kBarrels, "%d", 1 + row % 3);
        grid.SetItemTextFmt(row, kSpan, "%g", 0.9 + 0.3 * row);
        grid.SetItemTextFmt(row, kSlope, "%g", 0.0125 * row);
        grid.SetItemText(row, kInspected, row % 2 ? "yes" : "no");
        grid.SetItemData(row, kInspected, row % 2);
        grid.SetItemText(row, kDetails, "Edit...");
        grid.SetItemBkColour(row, kColour, colours[row - 1]);
    }
}

void PlayTheUser(TypedCellsPage& page, GalleryContext& context) {
    CGridCtrl& grid = page.grid;
    UiDriver ui;
    const HWND window = grid.GetSafeHwnd();
    // Numbers typed in come out in each column's own form.
    ui.Click(window, CellCentre(grid, 2, kBarrels));
    ui.Type("3.7\r");
    ui.Click(window, CellCentre(grid, 2, kSpan));
    ui.Type("1.5\r");
    ui.Click(window, CellCentre(grid, 2, kSlope));
    ui.Type("1/8\r");
    context.Print("Typed 3.7, 1.5 and 1/8: barrels %s, span %s, slope %s",
                  grid.GetItemText(2, kBarrels).GetString(), grid.GetItemText(2, kSpan).GetString(),
                  grid.GetItemText(2, kSlope).GetString());
    // A tick in the box of row 2, and a press of row 3's button.
    ui.Click(window, CheckBoxCentre(grid, 2, kInspected));
    ui.Click(window, CellCentre(grid, 3, kDetails));
    context.Print("Row 2 inspected: %d; button presses heard: %d",
                  int(grid.GetItemData(2, kInspected)), page.frame.buttonPresses);
    // A colour from the chooser, which is captured while it is open.
    ModalResponder modal;
    modal.Next()
        .Run([&context](CDialog& dialog, UiDriver& driver) {
            auto& chooser = static_cast<CColorChooserDlg&>(dialog);
            driver.Click(chooser.GetSafeHwnd(), chooser.SwatchRect(11).CenterPoint());
            context.Capture(chooser.GetSafeHwnd(), "42-colour-chooser");
        })
        .Press(IDOK);
    ui.DoubleClick(window, CellCentre(grid, 4, kColour));
    ui.Click(window, CellCentre(grid, 5, kName));
    const COLORREF chosen = grid.GetItemBkColour(4, kColour);
    context.Print("Row 4 colour: %d,%d,%d", GetRValue(chosen), GetGValue(chosen),
                  GetBValue(chosen));
}

void BuildTypedCellsPage(GalleryContext& context) {
    // Windows of the gallery live as long as the program.
    static TypedCellsPage page;
    CGridCtrl& grid = page.grid;
    CreateFramedGrid(page.frame, grid, "Culverts - typed cells", CRect(60, 60, 620, 260));
    FillTable(grid);
    grid.AutoSizeColumns();
    grid.SetColumnWidth(kInspected, 80);
    grid.SetColumnWidth(kDetails, 80);
    grid.ExpandColumnToFit(kColour);
    grid.Refresh();

    PlayTheUser(page, context);
    context.Capture(page.frame.GetSafeHwnd(), "42-typed-cells");
}

} // namespace

GALLERY_PAGE("42-typed-cells", "Typed cells", BuildTypedCellsPage);
