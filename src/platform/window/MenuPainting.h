#pragma once

// Where the items of a menu lie and how they look, in the classic look of the system colour
// and metrics tables: pop-up menus in their own windows, and a frame's menu bar. Internal to the
// window layer.

#include "platform/base/Rect.h"
#include "platform/window/MenuRecord.h"

#include <vector>

namespace wm {

// A pop-up menu's window size and its items' rectangles in that window.
struct PopupLayout {
    CSize size;
    std::vector<CRect> items;
};
PopupLayout LayoutPopup(const MenuRecord& menu);
void PaintPopup(HDC dc, const MenuRecord& menu, const PopupLayout& layout, int hotItem);

// The bar's items in a rectangle of the frame's window coordinates; the bar's height is one
// line of SM_CYMENU (the bar does not wrap).
std::vector<CRect> LayoutMenuBar(const MenuRecord& menu, const CRect& bar);
// `hotItem` is drawn raised, or pushed in when `open`.
void PaintMenuBar(HDC dc, const MenuRecord& menu, const CRect& bar, int hotItem, bool open);

} // namespace wm
