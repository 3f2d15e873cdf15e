#include "CellGrid.h"

BOOL CCellOwner::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (onNotify) {
        onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    }
    return CWnd::OnNotify(wParam, lParam, result);
}

CellGrid::CellGrid() {
    parent.CreateEx(0, AfxRegisterWndClass(0), "cells", WS_OVERLAPPEDWINDOW, CRect(0, 0, 640, 400),
                    nullptr, 0);
    grid.SetRowCount(kRows);
    grid.SetColumnCount(5);
    grid.SetFixedRowCount(1);
    grid.SetFixedColumnCount(1);
    grid.Create(CRect(0, 0, 600, 300), &parent, 1);
    for (int row = 0; row < kRows; row++) {
        grid.SetRowHeight(row, kRowHeight, FALSE);
    }
    for (int col = 0; col < grid.GetColumnCount(); col++) {
        grid.SetColumnWidth(col, kColumnWidth);
    }
    recorder = std::make_unique<NotificationRecorder>(parent.GetSafeHwnd());
    parent.ShowWindow(SW_SHOW);
    ui.Pump();
}

CellGrid::~CellGrid() {
    recorder.reset();
    parent.DestroyWindow();
}

void CellGrid::UseColumnType(int col, CRuntimeClass* cellClass) {
    for (int row = grid.GetFixedRowCount(); row < grid.GetRowCount(); row++) {
        ASSERT_TRUE(grid.SetCellType(row, col, cellClass));
    }
}

CRect CellGrid::CellRect(int row, int col) {
    CRect rect;
    EXPECT_TRUE(grid.GetCellRect(row, col, &rect)) << row << "," << col;
    return rect;
}

void CellGrid::TypeInto(int row, int col, const char* text) {
    // A click on the focus cell would open the editor with the caret after the old text.
    if (grid.GetFocusCell() == CCellID(row, col)) {
        ui.Click(Grid(), CellCentre(row == 1 ? row + 1 : row - 1, col));
    }
    ui.Click(Grid(), CellCentre(row, col));
    ui.Type(text);
    ui.PressKey(VK_RETURN);
}
