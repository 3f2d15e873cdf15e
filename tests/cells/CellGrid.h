#pragma once

// A grid on screen for the typed cell tests: a child of a top-level window whose notifications
// are recorded. Columns are 80 pixels wide and rows 20 high, with one fixed row and column, so
// that cell (r, c) spans x 80c..80c+79, y 20r..20r+19 of the grid's client area.

#include "grid/GridCtrl.h"
#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// The grid's owner, as an application: it may act inside each notification it hears.
class CCellOwner : public CWnd {
public:
    std::function<void(const NMHDR& header)> onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class CellGrid : public ::testing::Test {
protected:
    static constexpr int kColumnWidth = 80;
    static constexpr int kRowHeight = 20;
    static constexpr int kRows = 6;

    CellGrid();
    ~CellGrid() override;

    // Gives every body cell of `col` the class `cellClass`.
    void UseColumnType(int col, CRuntimeClass* cellClass);
    CRect CellRect(int row, int col);
    CPoint CellCentre(int row, int col) { return CellRect(row, col).CenterPoint(); }
    // Focuses the cell with a click (from another cell), types `text` (which opens the editor) and
    // presses Return.
    void TypeInto(int row, int col, const char* text);
    HWND Grid() const { return grid.GetSafeHwnd(); }
    int Count(int code) const { return recorder->Count(UINT(code)); }

    CCellOwner parent;
    CGridCtrl grid;
    UiDriver ui;
    std::unique_ptr<NotificationRecorder> recorder;
};
