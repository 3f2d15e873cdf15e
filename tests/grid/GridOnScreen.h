#pragma once

// A grid on screen for the geometry, selection and painting tests: a child of a top-level
// window, with even sizes so that every cell's pixels are known. Columns are 50 pixels wide and
// rows 20 high; cell (r, c) of a grid that is not scrolled spans x 50c..50c+49, y 20r..20r+19.

#include "GridTestSupport.h"

#include "platform/testing/UiDriver.h"

#include <gtest/gtest.h>

// Opens the protected operations that the tests drive directly.
class CGridProbe : public CGridCtrl {
public:
    using CGridCtrl::CGridCtrl;
    using CGridCtrl::GetCellRangeRect;
    using CGridCtrl::GetTopleftNonFixedCell;
    using CGridCtrl::m_prevSelectedCellMap;
    using CGridCtrl::m_selectedCellMap;
    using CGridCtrl::m_selectionStartCell;
    using CGridCtrl::OnSelecting;
    using CGridCtrl::SelectCells;
    using CGridCtrl::SelectColumns;
    using CGridCtrl::SelectionKey;
};

class GridOnScreen : public ::testing::Test {
protected:
    static constexpr int kWidth = 50;
    static constexpr int kHeight = 20;

    CRecordingParent parent;
    CGridProbe grid;
    UiDriver ui;

    // A grid of `rows` by `cols` with one fixed row and column, whose client area is
    // `clientWidth` by `clientHeight`.
    void Open(int rows, int cols, int clientWidth = 400, int clientHeight = 300);

    CRect Client() const;
    // The middle of a cell as the grid places it now, for clicking it.
    CPoint CellCentre(int row, int col);
    HWND Grid() const { return grid.GetSafeHwnd(); }
    COLORREF Pixel(int x, int y) { return ui.Pixel(grid.GetSafeHwnd(), CPoint(x, y)); }
    // How many pixels of `rect` (exclusive of its right and bottom) the test accepts.
    template <typename Test> int CountPixels(const CRect& rect, Test test) {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; y++) {
            for (int x = rect.left; x < rect.right; x++) {
                count += test(Pixel(x, y)) ? 1 : 0;
            }
        }
        return count;
    }
};
