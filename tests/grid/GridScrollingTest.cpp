// Scrolling a grid by lines moves the cells still in view and draws only the lines that come
// into view; the picture is the one a full repaint gives, fixed rows and columns included.

#include "GridOnScreen.h"

#include <vector>

namespace {

using GridScrollingTest = GridOnScreen;

constexpr int kClientWidth = 400;
constexpr int kClientHeight = 300;
constexpr int kRows = 60;
constexpr int kCols = 30;

std::vector<COLORREF> Picture(UiDriver& ui, HWND grid, const CRect& client) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < client.bottom; y++) {
        for (int x = 0; x < client.right; x++) {
            pixels.push_back(ui.Pixel(grid, CPoint(x, y)));
        }
    }
    return pixels;
}

TEST_F(GridScrollingTest, LineScrollsShowWhatAFullRepaintShows) {
    Open(kRows, kCols, kClientWidth, kClientHeight);
    for (int row = 0; row < kRows; row++) {
        for (int col = 0; col < kCols; col++) {
            grid.SetItemTextFmt(row, col, "%d:%d", row, col);
        }
    }
    grid.SetSelectedRange(CCellRange(3, 2, 5, 4));
    grid.SetFocusCell(4, 3);
    grid.Invalidate();
    const HWND hwnd = grid.GetSafeHwnd();
    const CRect client = Client(); // less the scroll bars

    struct Step {
        UINT message;
        UINT code;
        CRect exposed; // the band that must be drawn anew
    };
    const CRect bottomBand(0, client.bottom - kHeight, client.right, client.bottom);
    const CRect rightBand(client.right - kWidth, 0, client.right, client.bottom);
    const Step steps[] = {
        {WM_VSCROLL, SB_LINEDOWN, bottomBand},
        {WM_VSCROLL, SB_LINEDOWN, bottomBand},
        {WM_VSCROLL, SB_LINEUP, CRect(0, kHeight, client.right, 2 * kHeight)},
        {WM_HSCROLL, SB_LINEDOWN, rightBand},
        {WM_HSCROLL, SB_LINEUP, CRect(kWidth, 0, 2 * kWidth, client.bottom)},
    };
    for (const Step& step : steps) {
        ui.Pump();
        grid.SendMessage(step.message, step.code);
        CRect update;
        grid.GetUpdateRect(&update);
        EXPECT_EQ(update, step.exposed) << step.message << " " << step.code;
        const std::vector<COLORREF> scrolled = Picture(ui, hwnd, client);
        grid.Invalidate();
        EXPECT_TRUE(scrolled == Picture(ui, hwnd, client)) << step.message << " " << step.code;
    }
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(2, 1));
}

TEST_F(GridScrollingTest, APageScrollDrawsTheWholeScrollingArea) {
    Open(kRows, kCols, kClientWidth, kClientHeight);
    ui.Pump();
    grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    CRect update;
    grid.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(0, kHeight, Client().right, Client().bottom));
}

} // namespace
