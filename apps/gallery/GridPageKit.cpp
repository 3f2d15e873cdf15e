// Shared set-up and hand positions of the gallery's pages of grids.

#include "GridPageKit.h"

#include "cells/GridCellCheckbox.h"
#include "grid/GridCtrl.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/UiDriver.h"
#include "platform/widgets/ComboBox.h"
#include "platform/window/WindowApi.h"

namespace {
// How far in from the cell's top or bottom a strip point lies: clear of the grid lines.
constexpr int kStripInset = 3;
// Where in a dropped list's item the hand goes: clear of its left edge.
constexpr int kListItemX = 10;
} // namespace

void CreateFramedGrid(CWnd& frame, CGridCtrl& grid, const char* title, const CRect& place) {
    frame.CreateEx(0, nullptr, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, place.left, place.top,
                   place.Width(), place.Height(), nullptr, nullptr);
    CRect client;
    frame.GetClientRect(&client);
    grid.Create(client, &frame, 1);
}

void AddStrings(CStringArray& list, std::span<const char* const> texts) {
    for (const char* text : texts) {
        list.Add(text);
    }
}

CPoint CellCentre(CGridCtrl& grid, int row, int col) {
    CRect rect;
    grid.GetCellRect(row, col, &rect);
    return rect.CenterPoint();
}

CPoint CheckBoxCentre(CGridCtrl& grid, int row, int col) {
    CRect cell;
    grid.GetCellRect(row, col, &cell);
    return CGridCellCheckbox::BoxRect(cell).CenterPoint();
}

CPoint StripPoint(CGridCtrl& grid, int row, int col, StripEnd end) {
    CRect rect;
    grid.GetCellRect(row, col, &rect);
    const int x = rect.right - GetSystemMetrics(SM_CXVSCROLL) / 2;
    return CPoint(x, end == StripEnd::kTop ? rect.top + kStripInset : rect.bottom - kStripInset);
}

CComboBox* InPlaceCombo(CGridCtrl& grid) {
    return static_cast<CComboBox*>(grid.GetDlgItem(IDC_INPLACE_CONTROL));
}

HWND DroppedList(CComboBox& combo) {
    CRect list;
    combo.GetDroppedControlRect(&list);
    return WindowFromPoint(list.TopLeft() + CPoint(2, 2));
}

CPoint ListItemPoint(CComboBox& combo, int index) {
    const int height = combo.GetItemHeight(0);
    return CPoint(kListItemX, index * height + height / 2);
}

void PickListItem(UiDriver& ui, CComboBox& combo, int index) {
    const HWND list = DroppedList(combo);
    const CPoint item = ListItemPoint(combo, index);
    ui.MouseMove(list, item);
    ui.Click(list, item);
}
