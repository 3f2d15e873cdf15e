#pragma once

// The grid window the painting benchmarks draw: a visible pop-up whose full-HD client area a
// grid fills, with one fixed row and one fixed column and every column of one width.

#include "grid/GridCtrl.h"

constexpr int kClientWidth = 1920;
constexpr int kClientHeight = 1080;
constexpr int kRowHeight = 20;
constexpr int kColWidth = 64;
constexpr int kCols = 40;

struct FullHdGrid {
    CWnd frame;
    CGridCtrl grid;

    FullHdGrid() {
        frame.CreateEx(0, nullptr, "bench", WS_POPUP | WS_VISIBLE, 0, 0, kClientWidth + 40,
                       kClientHeight + 40, nullptr, nullptr);
        grid.Create(CRect(0, 0, kClientWidth, kClientHeight), &frame, 1, WS_CHILD | WS_VISIBLE);
    }

    // `rows` rows whose cells the grid stores.
    void MakeStored(int rows) {
        grid.SetRowCount(rows);
        grid.SetColumnCount(kCols);
        grid.SetFixedRowCount(1);
        grid.SetFixedColumnCount(1);
        grid.SetDefCellHeight(kRowHeight);
        SetColumnWidths();
    }

    // `rows` rows in virtual mode, each cell's text given by `answer` when it is drawn.
    void MakeVirtual(int rows, GRIDCALLBACK answer) {
        grid.SetVirtualMode(TRUE);
        grid.SetCallbackFunc(answer, 0);
        grid.SetDefCellHeight(kRowHeight);
        grid.SetRowCount(rows);
        grid.SetColumnCount(kCols);
        grid.SetFixedRowCount(1);
        grid.SetFixedColumnCount(1);
        SetColumnWidths();
        grid.SendMessage(WM_SIZE);
    }

    void ScrollToMiddle() { grid.SetScrollPos32(SB_VERT, grid.GetRowCount() / 2 * kRowHeight); }

    void Repaint() {
        grid.Invalidate();
        grid.UpdateWindow();
    }

private:
    void SetColumnWidths() {
        for (int col = 0; col < kCols; col++) {
            grid.SetColumnWidth(col, kColWidth);
        }
    }
};
