// Pixel probes on a painted grid: selection and focus colours, grid lines, fixed cell edges,
// the sort arrow, disabled cells and merged blocks.

#include "GridOnScreen.h"

#include "platform/gdi/Bitmap.h"
#include "platform/gdi/ImageList.h"
#include "platform/system/SysColors.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

using GridPaintingTest = GridOnScreen;

bool Near(COLORREF a, COLORREF b, int tolerance = 40) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= tolerance &&
           std::abs(GetGValue(a) - GetGValue(b)) <= tolerance &&
           std::abs(GetBValue(a) - GetBValue(b)) <= tolerance;
}

// Ink of black text: every channel dark, so that a saturated colour does not count.
bool Dark(COLORREF color) {
    return GetRValue(color) < 128 && GetGValue(color) < 128 && GetBValue(color) < 128;
}

// The pixels of cell (row, col) of an unscrolled grid, shrunk by `inset` on all sides.
CRect Cell(int row, int col, int inset = 0) {
    CRect rect(col * 50, row * 20, col * 50 + 50, row * 20 + 20);
    rect.DeflateRect(inset, inset);
    return rect;
}

} // namespace

TEST_F(GridPaintingTest, ASelectedCellShowsTheSelectionColours) {
    Open(6, 6);
    grid.SetItemText(2, 2, "WWW");
    grid.SetSelectedRange(2, 2, 2, 2);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    EXPECT_EQ(Pixel(Cell(2, 2).left + 1, Cell(2, 2).top + 1), highlight);
    EXPECT_GT(CountPixels(Cell(2, 2, 2),
                          [](COLORREF c) { return Near(c, GetSysColor(COLOR_HIGHLIGHTTEXT)); }),
              0)
        << "the text takes the selection text colour";
    EXPECT_EQ(Pixel(Cell(2, 3).left + 1, Cell(2, 3).top + 1), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridPaintingTest, TheFocusCellIsFramedInItsTextColourAndMarksTheFillCorner) {
    Open(6, 6);
    grid.SetFocusCell(2, 2);
    const CRect focus = Cell(2, 2);
    EXPECT_EQ(Pixel(focus.left, focus.top), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(Pixel(focus.left + 3, focus.top + 3), GetSysColor(COLOR_WINDOW));

    // Selected, it takes the selection colours, framed in the selection text colour, and as the
    // corner of a continuous selection it shows the fill handle.
    grid.SetSelectedRange(1, 1, 2, 2);
    grid.RedrawCell(2, 2);
    EXPECT_EQ(Pixel(focus.left, focus.top), GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(Pixel(focus.left + 3, focus.top + 3), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(Pixel(focus.right - 4, focus.bottom - 4), RGB(255, 255, 255));
    EXPECT_EQ(Pixel(focus.right - 7, focus.bottom - 7), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(GridPaintingTest, HeadingsOfTheFocusRowAndColumnAreSunk) {
    Open(6, 6);
    const COLORREF raised = GetSysColor(COLOR_3DHILIGHT);
    EXPECT_EQ(Pixel(Cell(3, 0).left, Cell(3, 0).top + 5), raised);
    grid.SetFocusCell(3, 2);
    EXPECT_NE(Pixel(Cell(3, 0).left, Cell(3, 0).top + 5), raised);
    EXPECT_NE(Pixel(Cell(0, 2).left + 5, Cell(0, 2).top), raised);
    EXPECT_EQ(Pixel(Cell(4, 0).left, Cell(4, 0).top + 5), raised);
    EXPECT_EQ(Pixel(Cell(0, 3).left + 5, Cell(0, 3).top), raised);
}

TEST_F(GridPaintingTest, GridLinesLieOnTheLastPixelOfEachCellAndCanBeTurnedOff) {
    Open(6, 6);
    const COLORREF line = grid.GetGridColor();
    EXPECT_EQ(Pixel(Cell(2, 2).right - 1, Cell(2, 2).top + 5), line);
    EXPECT_EQ(Pixel(Cell(2, 2).left + 5, Cell(2, 2).bottom - 1), line);
    EXPECT_EQ(Pixel(Cell(2, 2).right - 2, Cell(2, 2).top + 5), GetSysColor(COLOR_WINDOW));
    // Fixed cells draw a raised edge instead.
    EXPECT_EQ(Pixel(Cell(0, 2).right - 1, Cell(0, 2).top + 5), GetSysColor(COLOR_3DDKSHADOW));

    grid.SetGridLines(GVL_NONE);
    EXPECT_EQ(Pixel(Cell(2, 2).right - 1, Cell(2, 2).top + 5), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(Pixel(Cell(0, 2).right - 1, Cell(0, 2).top + 5), GetSysColor(COLOR_3DFACE))
        << "fixed cells are flat without lines";

    grid.SetGridLines(GVL_HORZ);
    EXPECT_EQ(Pixel(Cell(2, 2).right - 1, Cell(2, 2).top + 5), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(Pixel(Cell(2, 2).left + 5, Cell(2, 2).bottom - 1), line);
}

TEST_F(GridPaintingTest, ADisabledCellStoresTheFaceColourWhenDrawn) {
    Open(6, 6);
    grid.EnableCell(2, 2, FALSE);
    EXPECT_EQ(grid.GetItemBkColour(2, 2), CLR_DEFAULT);
    grid.Invalidate();
    EXPECT_EQ(Pixel(Cell(2, 2).left + 3, Cell(2, 2).top + 3), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(grid.GetItemBkColour(2, 2), GetSysColor(COLOR_3DFACE));
    grid.EnableCell(2, 2, TRUE);
    grid.Invalidate();
    EXPECT_EQ(Pixel(Cell(2, 2).left + 3, Cell(2, 2).top + 3), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridPaintingTest, ADisabledWindowIsGreyedWithTheApplicationsMask) {
    Open(6, 6);
    COLORREF hatch[64];
    for (int i = 0; i < 64; i++) {
        hatch[i] = ((i / 8 + i % 8) % 2) ? RGB(255, 255, 255) : RGB(0, 0, 0);
    }
    RegisterBitmapResource("DISABLE_MASK", 8, 8, hatch);
    grid.EnableWindow(FALSE);
    grid.Invalidate();
    const CRect heading = Cell(0, 2, 4);
    EXPECT_GT(CountPixels(heading, [](COLORREF c) { return c == RGB(255, 255, 255); }), 0)
        << "fixed cells are greyed too";
    EXPECT_GT(CountPixels(heading, [](COLORREF c) { return c == GetSysColor(COLOR_3DFACE); }), 0);
}

TEST_F(GridPaintingTest, TheSortArrowNeedsRoomInItsColumn) {
    Open(4, 4);
    grid.SetColumnWidth(2, 80);
    grid.SetSortColumn(2);
    const COLORREF shadow = GetSysColor(COLOR_3DSHADOW);
    auto arrowPixels = [&](int width) {
        return CountPixels(CRect(50 + 50 + 2, 2, 50 + 50 + width - 2, 18),
                           [shadow](COLORREF c) { return c == shadow; });
    };
    EXPECT_GT(arrowPixels(80), 0);
    grid.SetColumnWidth(2, 10);
    grid.Invalidate();
    EXPECT_EQ(arrowPixels(10), 0);
}

TEST_F(GridPaintingTest, AnAmpersandIsShownAsItIs) {
    Open(4, 4);
    grid.SetColumnWidth(1, 120);
    grid.SetColumnWidth(2, 120);
    grid.SetItemText(1, 1, "AB");
    grid.SetItemText(1, 2, "A&B");
    grid.Invalidate();
    auto inkWidth = [&](int left) {
        for (int x = left + 118; x >= left; x--) {
            for (int y = 22; y < 38; y++) {
                if (Dark(Pixel(x, y))) {
                    return x - left;
                }
            }
        }
        return -1;
    };
    const int plain = inkWidth(50);
    const int withAmpersand = inkWidth(170);
    ASSERT_GT(plain, 0);
    EXPECT_GT(withAmpersand, plain + 4) << "the ampersand takes room of its own";
}

TEST_F(GridPaintingTest, AMergedBlockIsDrawnOnceOverItsInnerLines) {
    Open(6, 6);
    grid.SetItemText(2, 2, "WWWW");
    grid.SetItemBkColour(1, 1, RGB(255, 255, 200));
    grid.MergeCells(1, 1, 2, 2);
    const COLORREF line = grid.GetGridColor();
    const COLORREF fill = RGB(255, 255, 200);
    // The inner lines are covered; the lines around the block stay.
    EXPECT_EQ(Pixel(Cell(1, 1).right - 1, Cell(1, 1).top + 5), fill);
    EXPECT_EQ(Pixel(Cell(1, 1).left + 5, Cell(1, 1).bottom - 1), fill);
    EXPECT_EQ(Pixel(Cell(2, 2).right - 1, Cell(2, 2).top + 5), line);
    EXPECT_EQ(Pixel(Cell(2, 2).left + 5, Cell(2, 2).bottom - 1), line);
    // The covered cell's text does not show: the block shows the top-left cell's.
    EXPECT_EQ(CountPixels(CRect(51, 21, 148, 58), [](COLORREF c) { return Dark(c); }), 0);
    // A covered cell asked directly draws nothing.
    EXPECT_FALSE(grid.RedrawCell(2, 2));

    grid.UnMergeCells(1, 1, 1, 1);
    EXPECT_EQ(Pixel(Cell(1, 1).right - 1, Cell(1, 1).top + 5), line);
    EXPECT_GT(CountPixels(Cell(2, 2, 1), [](COLORREF c) { return Dark(c); }), 0);
}

TEST_F(GridPaintingTest, AFullRepaintDrawsTheSelectedFocusCellInTheSelectionColours) {
    Open(10, 6);
    grid.SetSelectedRange(4, 2, 8, 4);
    grid.SetFocusCell(8, 4);
    grid.Refresh();
    const CRect focus = Cell(8, 4);
    EXPECT_EQ(Pixel(focus.left + 3, focus.top + 3), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(Pixel(focus.left, focus.top), GetSysColor(COLOR_HIGHLIGHTTEXT));
}

TEST_F(GridPaintingTest, AnImageComesBeforeTheTextAndMovesIt) {
    Open(4, 4);
    grid.SetColumnWidth(1, 120);
    COLORREF red[16 * 16];
    std::fill(std::begin(red), std::end(red), RGB(255, 0, 0));
    RegisterBitmapResource("GRID_TEST_IMAGE", 16, 16, red);
    CBitmap picture;
    ASSERT_TRUE(picture.LoadBitmap("GRID_TEST_IMAGE"));
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1));
    ASSERT_EQ(images.Add(&picture, RGB(255, 0, 255)), 0);
    grid.SetImageList(&images);
    grid.SetItemText(1, 1, "W");
    grid.SetItemImage(1, 1, 0);

    const int margin = grid.GetDefCellMargin();
    CRect text;
    ASSERT_TRUE(grid.GetTextRect(1, 1, &text));
    EXPECT_EQ(text.left, 50 + margin + 16 + 1);
    const CSize plain = grid.GetCell(1, 2)->GetCellExtent(nullptr);
    grid.SetItemText(1, 2, "W");
    EXPECT_EQ(grid.GetCell(1, 1)->GetCellExtent(nullptr).cx,
              grid.GetCell(1, 2)->GetCellExtent(nullptr).cx + 16);
    EXPECT_GT(plain.cx, 0);

    grid.Invalidate();
    EXPECT_EQ(Pixel(50 + margin + 4, 20 + 4), RGB(255, 0, 0));
    // The text starts after the picture.
    EXPECT_EQ(CountPixels(CRect(50, 21, 50 + margin + 16, 39), [](COLORREF c) { return Dark(c); }),
              0);
    EXPECT_GT(CountPixels(CRect(50 + margin + 16, 21, 169, 39), [](COLORREF c) { return Dark(c); }),
              0);
    grid.SetImageList(nullptr);
}
