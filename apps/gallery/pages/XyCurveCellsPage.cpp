// Curve cells: the inflow and tailwater of a culvert's load cases, each given as a constant, a
// transient curve or a data set, with a disabled case and a column too narrow for the strip. A
// scripted user types a constant, picks a transient curve from a drop arrow's list (captured
// open; the table's owner supplies the curve as an application does) and presses a "..."
// button (captured pressed). In a window the list, the button and the editor work for real.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "cells/GridCellFltXYCrv.h"
#include "cells/InPlaceButton.h"
#include "grid/GridCtrl.h"
#include "platform/testing/UiDriver.h"
#include "platform/widgets/ComboBox.h"

namespace {

constexpr int kRows = 7;
constexpr int kCols = 4;
enum Column { kCase, kInflow, kTailwater, kPeak };
constexpr int kNarrowWidth = 12;
// The application's numbers of its transient curves.
constexpr int kDesignHydrograph = 3;
constexpr int kPickedHydrograph = 8;

// The table's owner: supplies a curve when one is picked, and counts the curve edits asked for,
// as the application would open its curve editor for them.
class CLoadCaseFrame : public CWnd {
public:
    CGridCtrl* grid = nullptr;
    int curveEditsAsked = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* record = reinterpret_cast<const GV_NMGRID*>(lParam);
        *result = 0;
        if (record->hdr.code == UINT(GV_NOTIFY_CELLBUTTON)) {
            curveEditsAsked++;
        } else if (record->hdr.code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
            SupplyPickedCurve(record->iRow, record->iColumn);
        }
        return TRUE;
    }

private:
    void SupplyPickedCurve(int row, int col) {
        CGridCellBase* base = grid != nullptr ? grid->GetCell(row, col) : nullptr;
        if (base == nullptr || !base->IsKindOf(RUNTIME_CLASS(CGridCellFltXYCrv))) {
            return;
        }
        auto* cell = static_cast<CGridCellFltXYCrv*>(base);
        if (cell->GetComboSelection() == CGridCellFltXYCrv::CHOICE_TRANSIENT) {
            int curve = kPickedHydrograph;
            cell->SetData(reinterpret_cast<LPARAM>(&curve));
        }
    }
};

struct XyCurveCellsPage {
    CLoadCaseFrame frame;
    CGridCtrl grid{kRows, kCols, 1, 1};
};

CGridCellFltXYCrv* Curve(CGridCtrl& grid, int row, int col) {
    return static_cast<CGridCellFltXYCrv*>(grid.GetCell(row, col));
}

void GiveConstant(CGridCtrl& grid, int row, int col, double value) {
    CGridCellFltXYCrv* cell = Curve(grid, row, col);
    cell->SetComboSelection(CGridCellFltXYCrv::CHOICE_CONSTANT);
    cell->SetData(reinterpret_cast<LPARAM>(&value));
}

void GiveCurve(CGridCtrl& grid, int row, int col, int curve) {
    CGridCellFltXYCrv* cell = Curve(grid, row, col);
    cell->SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    cell->SetData(reinterpret_cast<LPARAM>(&curve));
}

void GiveDataSet(CGridCtrl& grid, int row, int col, const char* name) {
    CGridCellFltXYCrv* cell = Curve(grid, row, col);
    const CString dataSet = name;
    cell->SetComboSelection(CGridCellFltXYCrv::CHOICE_DATASET);
    cell->SetData(reinterpret_cast<LPARAM>(&dataSet));
}

void FillTable(CGridCtrl& grid) {
    const char* headings[kCols] = {"Load case", "Inflow (m3/s)", "Tailwater (m)", "Pk"};
    const char* cases[kRows - 1] = {"Q2",         "Q10",       "Q100 design",
                                    "Q100 gauge", "PMF (off)", "Dam break"};
    for (int col = 0; col < kCols; col++) {
        grid.SetItemText(0, col, headings[col]);
    }
    for (int row = 1; row < kRows; row++) {
        grid.SetItemText(row, kCase, cases[row - 1]);
        for (int col : {kInflow, kTailwater, kPeak}) {
            grid.SetCellType(row, col, RUNTIME_CLASS(CGridCellFltXYCrv));
            Curve(grid, row, col)->SetText("");
        }
        GiveConstant(grid, row, kTailwater, 1.25 + 0.35 * row);
        GiveConstant(grid, row, kPeak, row);
    }
    GiveConstant(grid, 1, kInflow, 12.5);
    GiveConstant(grid, 2, kInflow, 31.0);
    GiveCurve(grid, 3, kInflow, kDesignHydrograph);
    GiveDataSet(grid, 4, kInflow, "Gauge 2019");
    GiveConstant(grid, 5, kInflow, 1840.75);
    grid.SetItemState(5, kInflow, grid.GetItemState(5, kInflow) | GV_STATE_DISABLED);
    GiveConstant(grid, 6, kInflow, 0.000125);
    GiveCurve(grid, 6, kTailwater, kDesignHydrograph);
}

// The curve cell's "..." button is the upper half of its strip, the list's arrow the lower.
CPoint OnButton(CGridCtrl& grid, int row, int col) {
    return StripPoint(grid, row, col, StripEnd::kTop);
}

CPoint OnArrow(CGridCtrl& grid, int row, int col) {
    return StripPoint(grid, row, col, StripEnd::kBottom);
}

const char* ChoiceName(int choice) {
    switch (choice) {
    case CGridCellFltXYCrv::CHOICE_CONSTANT:
        return "constant";
    case CGridCellFltXYCrv::CHOICE_TRANSIENT:
        return "transient curve";
    default:
        return "data set";
    }
}

void PlayTheUser(XyCurveCellsPage& page, GalleryContext& context) {
    CGridCtrl& grid = page.grid;
    UiDriver ui;
    const HWND window = grid.GetSafeHwnd();

    // Q2's inflow, typed in place.
    ui.Click(window, CellCentre(grid, 1, kInflow));
    ui.Type("18.750");
    context.Capture(page.frame.GetSafeHwnd(), "44-xy-cells-typing");
    ui.PressKey(VK_RETURN);

    // Q10's inflow becomes a transient curve, picked from its list.
    ui.Click(window, OnArrow(grid, 2, kInflow));
    CComboBox* list = InPlaceCombo(grid);
    if (list == nullptr) {
        context.Print("The list of choices did not open");
        return;
    }
    context.Capture(page.frame.GetSafeHwnd(), "44-xy-cells-open");
    context.Capture(DroppedList(*list), "44-xy-cells-list");
    PickListItem(ui, *list, CGridCellFltXYCrv::CHOICE_TRANSIENT);

    // The design case's curve button, held down, then released over it.
    ui.MouseDown(window, OnButton(grid, 3, kInflow));
    context.Capture(page.frame.GetSafeHwnd(), "44-xy-cells-button");
    ui.MouseUp(window, OnButton(grid, 3, kInflow));
    ui.Click(window, CellCentre(grid, 4, kTailwater));

    for (int row = 1; row <= 3; row++) {
        CGridCellFltXYCrv* cell = Curve(grid, row, kInflow);
        const int choice = cell->GetComboSelection();
        if (choice == CGridCellFltXYCrv::CHOICE_CONSTANT) {
            context.Print("%s inflow: %s %g", grid.GetItemText(row, kCase).GetString(),
                          ChoiceName(choice), *reinterpret_cast<const double*>(cell->GetData()));
        } else {
            context.Print("%s inflow: %s #%d", grid.GetItemText(row, kCase).GetString(),
                          ChoiceName(choice), *reinterpret_cast<const int*>(cell->GetData()));
        }
    }
    context.Print("Curve edits asked for: %d", page.frame.curveEditsAsked);
}

void BuildXyCurveCellsPage(GalleryContext& context) {
    // Windows of the gallery live as long as the program.
    static XyCurveCellsPage page;
    CGridCtrl& grid = page.grid;
    CreateFramedGrid(page.frame, grid, "Culvert load cases - curve cells", CRect(80, 80, 500, 300));
    page.frame.grid = &grid;
    FillTable(grid);
    grid.AutoSizeColumns();
    grid.SetColumnWidth(kPeak, kNarrowWidth); // too narrow for the strip
    grid.ExpandColumnToFit(kTailwater);
    grid.Refresh();

    PlayTheUser(page, context);
    context.Capture(page.frame.GetSafeHwnd(), "44-xy-cells");
}

} // namespace

GALLERY_PAGE("44-xy-cells", "Curve cells", BuildXyCurveCellsPage);
