// The grid in the user's hands: a pipe schedule that a scripted user edits through the UI
// driver. It selects and types into cells, is refused by the application on a locked column,
// fills a series with the fill handle, sorts by a click on a heading, and copies a block and
// pastes it lower down. In a window the same grid takes the mouse and the keys for real.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "grid/GridCtrl.h"
#include "platform/testing/UiDriver.h"

namespace {

constexpr int kRows = 10;
constexpr int kCols = 6;
constexpr int kLockedCol = 5;

// The grid's owner: refuses edits of the locked column, as an application validates.
class CScheduleFrame : public CWnd {
public:
    int vetoed = 0;
    int changed = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* record = reinterpret_cast<const GV_NMGRID*>(lParam);
        *result = 0;
        if (record->hdr.code == UINT(GV_NOTIFY_BEGINLABELEDIT) && record->iColumn == kLockedCol) {
            vetoed++;
            *result = -1;
        }
        if (record->hdr.code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
            changed++;
        }
        return TRUE;
    }
};

struct GridEditingPage {
    CScheduleFrame frame;
    CGridCtrl grid{kRows, kCols, 1, 1};
};

void FillSchedule(CGridCtrl& grid) {
    const char* headings[kCols] = {"Pipe",     "Length (m)", "Diameter (mm)",
                                   "Material", "Slope %",    "Checked by"};
    for (int col = 0; col < kCols; col++) {
        grid.SetItemText(0, col, headings[col]);
    }
    const char* materials[] = {"PVC", "Concrete", "Clay", "Steel"};
    const int lengths[] = {42, 18, 65, 27, 33, 51, 36};
    // The last two pipes are not measured yet: their length and diameter come by a paste.
    for (int row = 1; row < kRows; row++) {
        grid.SetItemTextFmt(row, 0, "P-%02d", row);
        if (row <= 7) {
            grid.SetItemTextFmt(row, 1, "%d", lengths[row - 1]);
            grid.SetItemTextFmt(row, 2, "%d", 150 + 75 * (row % 3));
        }
        grid.SetItemText(row, 3, materials[row % 4]);
        grid.SetItemText(row, kLockedCol, "J. Smith");
        for (int col = 1; col < 5; col++) {
            grid.SetItemFormat(row, col, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        }
    }
}

// What a user does, through the same input as a real mouse and keyboard; the report says
// what came of each step.
void PlayTheUser(CGridCtrl& grid, CScheduleFrame& frame, GalleryContext& context) {
    UiDriver ui;
    const HWND window = grid.GetSafeHwnd();
    // Select a cell and type over it; Tab carries the edit on to the next cell.
    ui.Click(window, CellCentre(grid, 2, 1));
    ui.Type("24");
    ui.PressKey(VK_TAB);
    ui.Type("300");
    ui.PressKey(VK_RETURN);
    context.Print("Typed: P-02 is now %s m long, %s mm across", grid.GetItemText(2, 1).GetString(),
                  grid.GetItemText(2, 2).GetString());
    // The application refuses the locked column: no editor opens.
    ui.Click(window, CellCentre(grid, 3, kLockedCol));
    ui.Type("me");
    context.Print("Locked column: refused %d times, text still \"%s\"", frame.vetoed,
                  grid.GetItemText(3, kLockedCol).GetString());
    // A series: two slopes, selected, and the fill handle dragged down to the last row.
    ui.Click(window, CellCentre(grid, 1, 4));
    ui.Type("0.5\r");
    ui.Click(window, CellCentre(grid, 2, 4));
    ui.Type("0.75\r");
    ui.Drag(window, CellCentre(grid, 1, 4), CellCentre(grid, 2, 4));
    CRect handle;
    grid.GetTextRect(2, 4, &handle);
    ui.Drag(window, CPoint(handle.right - 1, handle.bottom - 1), CellCentre(grid, kRows - 1, 4));
    CString slopes;
    for (int row = 1; row < kRows; row++) {
        slopes += grid.GetItemText(row, 4) + " ";
    }
    context.Print("Filled slopes: %s", slopes.GetString());
    // Copy two pipes' length and diameter, and paste them for the two not yet measured.
    ui.Drag(window, CellCentre(grid, 1, 1), CellCentre(grid, 2, 2));
    ui.PressKey('C', MK_CONTROL);
    ui.Click(window, CellCentre(grid, 8, 1));
    ui.PressKey('V', MK_CONTROL);
    context.Print("Pasted: P-08 %s / %s, P-09 %s / %s", grid.GetItemText(8, 1).GetString(),
                  grid.GetItemText(8, 2).GetString(), grid.GetItemText(9, 1).GetString(),
                  grid.GetItemText(9, 2).GetString());
    // Sort by diameter with a click on its heading, and pick a pipe.
    ui.Click(window, CellCentre(grid, 0, 2));
    ui.Click(window, CellCentre(grid, 4, 3));
    context.Print("Sorted by column %d, ascending %d; %d changes heard in all",
                  grid.GetSortColumn(), grid.GetSortAscending(), frame.changed);
}

// Where a point of the grid lies from the top-left corner of its top-level window, for a
// script that works the window with real input.
void PrintPlace(GalleryContext& context, CGridCtrl& grid, const char* name, CPoint point) {
    CRect frame;
    grid.GetTopLevelParent()->GetWindowRect(&frame);
    grid.ClientToScreen(&point);
    context.Print("at %s %d %d", name, int(point.x - frame.left), int(point.y - frame.top));
}

void BuildGridEditingPage(GalleryContext& context) {
    // Windows of the gallery live as long as the program.
    static GridEditingPage page;
    CGridCtrl& grid = page.grid;
    CreateFramedGrid(page.frame, grid, "Pipe schedule - editing", CRect(40, 40, 660, 300));
    grid.SetHeaderSort(TRUE);
    grid.EnableDragAndDrop(TRUE);
    FillSchedule(grid);
    grid.AutoSizeColumns();
    grid.ExpandColumnToFit(kLockedCol);
    grid.Refresh();

    PlayTheUser(grid, page.frame, context);

    CRect divider;
    grid.GetCellRect(0, 1, &divider);
    PrintPlace(context, grid, "edit-cell", CellCentre(grid, 6, 3));
    PrintPlace(context, grid, "divider", CPoint(divider.right + 1, divider.CenterPoint().y));
    PrintPlace(context, grid, "length-heading", CellCentre(grid, 0, 1));
    context.Capture(page.frame.GetSafeHwnd(), "41-grid-editing");
}

} // namespace

GALLERY_PAGE("41-grid-editing", "Grid editing", BuildGridEditingPage);
