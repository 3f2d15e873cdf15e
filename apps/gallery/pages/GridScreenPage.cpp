// The grid on screen: a channel survey table of a few hundred rows with fixed headings, a
// merged group heading, colours and fonts, a selection with the focus cell and its fill
// handle, a sorted column and a hidden one.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "grid/GridCtrl.h"

#include <cstdio>
#include <cstring>

namespace {

constexpr int kRows = 302; // two heading rows and 300 stations
constexpr int kCols = 10;

struct GridScreenPage {
    CWnd frame;
    CGridCtrl grid{kRows, kCols, 2, 1};
};

LOGFONT FontOf(CGridCtrl& grid, int row, int col, LONG weight, BYTE italic) {
    LOGFONT font = *grid.GetItemFont(row, col);
    font.lfWeight = weight;
    font.lfItalic = italic;
    return font;
}

void FillHeadings(CGridCtrl& grid) {
    const char* names[kCols] = {"Station",    "Chainage (m)", "Invert (m)", "Bed width (m)",
                                "Side slope", "Manning n",    "Depth (m)",  "Flow (m3/s)",
                                "Velocity",   "Note"};
    for (int col = 0; col < kCols; col++) {
        grid.SetItemText(1, col, names[col]);
        grid.SetItemFormat(1, col, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
    grid.SetItemText(0, 0, "Survey");
    grid.SetItemText(0, 1, "Geometry");
    grid.SetItemText(0, 6, "Hydraulics");
    grid.SetItemText(0, 9, "Remarks & checks");
    for (int col : {0, 1, 6, 9}) {
        grid.SetItemFormat(0, col, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        const LOGFONT bold = FontOf(grid, 0, col, 700, 0);
        grid.SetItemFont(0, col, &bold);
    }
    grid.MergeCells(0, 1, 0, 5);
    grid.MergeCells(0, 6, 0, 8);
    grid.MergeCells(0, 9, 1, 9);
    grid.MergeCells(0, 0, 1, 0);
}

void FillStations(CGridCtrl& grid) {
    const UINT right = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
    for (int row = 2; row < kRows; row++) {
        const int station = row - 1;
        const double chainage = station * 25.0;
        const double invert = 102.40 - chainage * 0.0012;
        const double depth = 1.2 + 0.35 * ((station * 7) % 11) / 10.0;
        const double width = 4.0 + (station / 40) * 0.5;
        const double area = depth * (width + 2.0 * depth);
        const double flow = 18.5 + (station % 13) * 0.25;
        grid.SetItemTextFmt(row, 0, "ST-%03d", station);
        grid.SetItemTextFmt(row, 1, "%.1f", chainage);
        grid.SetItemTextFmt(row, 2, "%.3f", invert);
        grid.SetItemTextFmt(row, 3, "%.2f", width);
        grid.SetItemText(row, 4, "1:2");
        grid.SetItemText(row, 5, "0.030");
        grid.SetItemTextFmt(row, 6, "%.2f", depth);
        grid.SetItemTextFmt(row, 7, "%.2f", flow);
        grid.SetItemTextFmt(row, 8, "%.2f", flow / area);
        for (int col = 1; col < 9; col++) {
            grid.SetItemFormat(row, col, right);
        }
        if (flow / area > 0.9) {
            grid.SetItemFgColour(row, 8, RGB(192, 0, 0));
        }
    }
    grid.SetItemText(5, 9, "Culvert inlet");
    grid.SetItemText(9, 9, "Check & repair lining");
    grid.SetItemBkColour(9, 9, RGB(255, 242, 204));
    grid.SetItemText(12, 9, "Bridge pier");
    grid.SetItemBkColour(12, 9, RGB(221, 235, 247));
    const LOGFONT italic = FontOf(grid, 12, 9, 400, 1);
    grid.SetItemFont(12, 9, &italic);
    for (int col = 1; col < 9; col++) {
        grid.SetItemBkColour(14, col, RGB(226, 239, 218));
    }
    grid.EnableCell(16, 2, FALSE);
    grid.SetModified(FALSE);
}

void BuildGridScreenPage(GalleryContext& context) {
    // Windows of the gallery live as long as the program.
    static GridScreenPage page;
    CGridCtrl& grid = page.grid;
    CreateFramedGrid(page.frame, grid, "Channel survey", CRect(30, 30, 810, 510));

    FillHeadings(grid);
    FillStations(grid);
    grid.AutoSizeColumns();
    grid.SetColumnWidth(0, 72);
    grid.SetColumnWidth(5, 0); // Manning's n is the same everywhere: hidden
    grid.ExpandColumnToFit(9);
    grid.SetSortAscending(TRUE);
    grid.SetSortColumn(0);
    grid.SetSelectedRange(4, 2, 8, 4);
    grid.SetFocusCell(8, 4);
    grid.Refresh();

    CRect block;
    grid.GetCellRect(0, 1, &block);
    const CCellRange visible = grid.GetVisibleNonFixedCellRange();
    context.Print("Grid of %d rows and %d columns, %d fixed rows and %d fixed column",
                  grid.GetRowCount(), grid.GetColumnCount(), grid.GetFixedRowCount(),
                  grid.GetFixedColumnCount());
    context.Print("Rows %d to %d and columns %d to %d in view; scroll bars: vertical %d, "
                  "horizontal %d",
                  visible.minRow, visible.maxRow, visible.minCol, visible.maxCol,
                  grid.IsVisibleVScroll(), grid.IsVisibleHScroll());
    context.Print("Merged heading \"%s\" spans x %d to %d; hidden column 5 has width %d",
                  grid.GetItemText(0, 1).GetString(), block.left, block.right,
                  grid.GetColumnWidth(5));
    const CCellRange selection = grid.GetSelectedCellRange();
    context.Print("Selection (%d, %d)-(%d, %d), %d cells, continuous %d; focus (%d, %d)",
                  selection.minRow, selection.minCol, selection.maxRow, selection.maxCol,
                  grid.GetSelectedCount(), grid.IsSelectedContinuous(), grid.GetFocusCell().row,
                  grid.GetFocusCell().col);
    context.Capture(page.frame.GetSafeHwnd(), "30-grid-screen");
}

} // namespace

GALLERY_PAGE("30-grid-screen", "Grid on screen", BuildGridScreenPage);
