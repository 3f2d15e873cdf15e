// Menus in the classic look: the raised frame of a pop-up menu, its items with the check
// column on the left, the accelerator column and the sub-menu arrow on the right, etched grey
// text, etched separators, the highlight in COLOR_HIGHLIGHT; and the flat menu bar.

#include "platform/window/MenuPainting.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace wm {
namespace {

constexpr int kFrame = 3;        // raised edge and one pixel of face around the items
constexpr int kCheckColumn = 19; // the check mark's column, left of the text
constexpr int kArrowColumn = 19; // the sub-menu arrow's column, right of the text
constexpr int kAcceleratorGap = 14;
constexpr int kBarItemPadding = 7; // each side of a bar item's text
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_LEFT;

int ItemHeight() {
    return GetSystemMetrics(SM_CYMENU) - 2;
}

int SeparatorHeight() {
    return GetSystemMetrics(SM_CYMENU) / 2;
}

HFONT MenuFont() {
    return HFONT(GetStockObject(DEFAULT_GUI_FONT));
}

// The label and the accelerator, split at the tab.
std::pair<std::string, std::string> SplitAtTab(const std::string& text) {
    const size_t tab = text.find('\t');
    if (tab == std::string::npos)
        return {text, {}};
    return {text.substr(0, tab), text.substr(tab + 1)};
}

// Measures with a context on the screen, since a layout is wanted before anything is drawn.
class MeasuringDC {
public:
    MeasuringDC() : m_dc(CreateCompatibleDC(nullptr)) { m_old = SelectObject(m_dc, MenuFont()); }
    ~MeasuringDC() {
        SelectObject(m_dc, m_old);
        DeleteDC(m_dc);
    }
    MeasuringDC(const MeasuringDC&) = delete;
    MeasuringDC& operator=(const MeasuringDC&) = delete;

    int Width(const std::string& text) const {
        CRect r(0, 0, 0, 0);
        DrawText(m_dc, text.c_str(), int(text.size()), &r, kTextFormat | DT_CALCRECT);
        return r.Width();
    }

private:
    HDC m_dc;
    HGDIOBJ m_old = nullptr;
};

// Text, etched when grey: a highlight copy one pixel down and right under the shadow colour.
void ItemText(CDC& dc, const std::string& text, CRect rect, UINT format, bool grey, bool hot) {
    if (grey && !hot) {
        dc.SetTextColor(GetSysColor(COLOR_3DHILIGHT));
        CRect light = rect + CPoint(1, 1);
        dc.DrawText(text.c_str(), int(text.size()), &light, format);
        dc.SetTextColor(GetSysColor(COLOR_GRAYTEXT));
    } else if (grey) {
        dc.SetTextColor(GetSysColor(COLOR_GRAYTEXT));
    } else {
        dc.SetTextColor(GetSysColor(hot ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT));
    }
    dc.DrawText(text.c_str(), int(text.size()), &rect, format);
}

void CheckMark(CDC& dc, const CRect& column, COLORREF colour) {
    // A tick seven pixels wide and three thick, as the classic menus draw it.
    const CPoint centre = column.CenterPoint();
    const int left = centre.x - 4;
    const int top = centre.y - 3;
    for (int i = 0; i < 7; ++i) {
        const int y = i < 3 ? top + 2 + i : top + 4 - (i - 2);
        dc.FillSolidRect(left + i, y, 1, 3, colour);
    }
}

void SubMenuArrow(CDC& dc, const CRect& column, COLORREF colour) {
    const CPoint centre = column.CenterPoint();
    for (int i = 0; i < 4; ++i)
        dc.FillSolidRect(centre.x - 2 + i, centre.y - 3 + i, 1, 7 - 2 * i, colour);
}

void Separator(CDC& dc, const CRect& rect) {
    const int y = rect.top + rect.Height() / 2 - 1;
    dc.FillSolidRect(rect.left + 1, y, rect.Width() - 2, 1, GetSysColor(COLOR_3DSHADOW));
    dc.FillSolidRect(rect.left + 1, y + 1, rect.Width() - 2, 1, GetSysColor(COLOR_3DHILIGHT));
}

} // namespace

PopupLayout LayoutPopup(const MenuRecord& menu) {
    MeasuringDC measure;
    int labelWidth = 0;
    int acceleratorWidth = 0;
    for (const MenuItem& item : menu.items) {
        if (item.IsSeparator())
            continue;
        const auto [label, accelerator] = SplitAtTab(item.text);
        labelWidth = std::max(labelWidth, measure.Width(label));
        if (!accelerator.empty())
            acceleratorWidth = std::max(acceleratorWidth, measure.Width(accelerator));
    }
    const int itemsWidth = kCheckColumn + labelWidth +
                           (acceleratorWidth ? kAcceleratorGap + acceleratorWidth : 0) +
                           kArrowColumn;
    PopupLayout layout;
    int y = kFrame;
    for (const MenuItem& item : menu.items) {
        const int height = item.IsSeparator() ? SeparatorHeight() : ItemHeight();
        layout.items.emplace_back(kFrame, y, kFrame + itemsWidth, y + height);
        y += height;
    }
    if (menu.items.empty())
        y += ItemHeight() / 2;
    layout.size = CSize(itemsWidth + 2 * kFrame, y + kFrame);
    return layout;
}

void PaintPopup(HDC hdc, const MenuRecord& menu, const PopupLayout& layout, int hotItem) {
    CDC* dc = CDC::FromHandle(hdc);
    if (!dc)
        return;
    CRect whole(CPoint(0, 0), layout.size);
    dc->FillSolidRect(&whole, GetSysColor(COLOR_MENU));
    dc->DrawEdge(&whole, EDGE_RAISED, BF_RECT);
    CFont* oldFont = dc->SelectObject(CFont::FromHandle(MenuFont()));
    dc->SetBkMode(TRANSPARENT);
    for (size_t i = 0; i < menu.items.size() && i < layout.items.size(); ++i) {
        const MenuItem& item = menu.items[i];
        const CRect& rect = layout.items[i];
        if (item.IsSeparator()) {
            Separator(*dc, rect);
            continue;
        }
        const bool hot = int(i) == hotItem;
        const bool grey = !item.IsEnabled();
        if (hot)
            dc->FillSolidRect(&rect, GetSysColor(COLOR_HIGHLIGHT));
        const COLORREF mark =
            GetSysColor(grey ? COLOR_GRAYTEXT : (hot ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT));
        const CRect checkColumn(rect.left, rect.top, rect.left + kCheckColumn, rect.bottom);
        if (item.flags & MF_CHECKED)
            CheckMark(*dc, checkColumn, mark);
        const CRect arrowColumn(rect.right - kArrowColumn, rect.top, rect.right, rect.bottom);
        if (item.IsPopup())
            SubMenuArrow(*dc, arrowColumn, mark);
        const auto [label, accelerator] = SplitAtTab(item.text);
        CRect text(checkColumn.right, rect.top, arrowColumn.left, rect.bottom);
        ItemText(*dc, label, text, kTextFormat, grey, hot);
        if (!accelerator.empty())
            ItemText(*dc, accelerator, text, DT_SINGLELINE | DT_VCENTER | DT_RIGHT, grey, hot);
    }
    dc->SelectObject(oldFont);
}

std::vector<CRect> LayoutMenuBar(const MenuRecord& menu, const CRect& bar) {
    MeasuringDC measure;
    std::vector<CRect> items;
    int x = bar.left;
    for (const MenuItem& item : menu.items) {
        const int width = item.IsSeparator()
                              ? kBarItemPadding
                              : measure.Width(MenuPlainText(item.text)) + 2 * kBarItemPadding;
        items.emplace_back(x, bar.top, x + width, bar.top + GetSystemMetrics(SM_CYMENU) - 1);
        x += width;
    }
    return items;
}

void PaintMenuBar(HDC hdc, const MenuRecord& menu, const CRect& bar, int hotItem, bool open) {
    CDC* dc = CDC::FromHandle(hdc);
    if (!dc)
        return;
    dc->FillSolidRect(&bar, GetSysColor(COLOR_MENU));
    CFont* oldFont = dc->SelectObject(CFont::FromHandle(MenuFont()));
    dc->SetBkMode(TRANSPARENT);
    const std::vector<CRect> rects = LayoutMenuBar(menu, bar);
    for (size_t i = 0; i < menu.items.size(); ++i) {
        const MenuItem& item = menu.items[i];
        if (item.IsSeparator())
            continue;
        CRect rect = rects[i];
        const bool hot = int(i) == hotItem;
        if (hot)
            dc->DrawEdge(&rect, open ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
        CRect text = rect;
        if (hot && open)
            text.OffsetRect(1, 1);
        ItemText(*dc, item.text, text, DT_SINGLELINE | DT_VCENTER | DT_CENTER, !item.IsEnabled(),
                 false);
    }
    dc->SelectObject(oldFont);
}

} // namespace wm
