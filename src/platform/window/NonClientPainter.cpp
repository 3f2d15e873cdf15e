// Draws the non-client area in the classic look: the outer frame, the caption of a top-level
// window, its menu bar, the sunken client edge, and the scroll bars.

#include "platform/window/MenuTracker.h"
#include "platform/window/ScrollBarTracking.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

namespace wm {
namespace {

void DrawOuterFrame(const WindowRecord& w, CDC& dc, const FrameMetrics& m, CRect& rect) {
    if (!m.border)
        return;
    if (m.border == 1) {
        dc.Draw3dRect(&rect, GetSysColor(COLOR_WINDOWFRAME), GetSysColor(COLOR_WINDOWFRAME));
        rect.DeflateRect(1, 1);
        return;
    }
    CRect edge = rect;
    dc.DrawEdge(&edge, EDGE_RAISED, BF_RECT);
    for (int i = 2; i < m.border; ++i) {
        edge.DeflateRect(i == 2 ? 2 : 1, i == 2 ? 2 : 1);
        dc.Draw3dRect(&edge, GetSysColor(COLOR_3DFACE), GetSysColor(COLOR_3DFACE));
    }
    (void)w;
    rect.DeflateRect(m.border, m.border);
}

void DrawCaption(const WindowRecord& w, CDC& dc, const FrameMetrics& m, CRect& rect) {
    if (!m.caption)
        return;
    const bool active = GetActiveWindow() == w.handle;
    CRect bar(rect.left, rect.top, rect.right, rect.top + m.caption - 1);
    dc.FillSolidRect(&bar, GetSysColor(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    dc.FillSolidRect(rect.left, bar.bottom, rect.Width(), 1, GetSysColor(COLOR_3DFACE));
    CFont* font = CFont::FromHandle(HFONT(GetStockObject(DEFAULT_GUI_FONT)));
    CFont* old = dc.SelectObject(font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    CRect text = bar;
    text.DeflateRect(4, 0);
    dc.DrawText(w.text.c_str(), -1, &text, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    dc.SelectObject(old);
    rect.top += m.caption;
}

void DrawMenuBar(const WindowRecord& w, CDC& dc, const FrameMetrics& m, CRect& rect) {
    const MenuRecord* menu = m.menuBar ? FindMenu(w.menu) : nullptr;
    if (!menu)
        return;
    bool open = false;
    const MenuTracker* tracker = CurrentMenuTracker();
    const int hot = tracker ? tracker->BarHotItem(w.handle, &open) : -1;
    PaintMenuBar(dc.GetSafeHdc(), *menu,
                 CRect(rect.left, rect.top, rect.right, rect.top + m.menuBar), hot, open);
    rect.top += m.menuBar;
}

void DrawEdges(const WindowRecord& w, CDC& dc, CRect& rect) {
    if (w.exStyle & WS_EX_CLIENTEDGE) {
        dc.DrawEdge(&rect, EDGE_SUNKEN, BF_RECT);
        rect.DeflateRect(GetSystemMetrics(SM_CXEDGE), GetSystemMetrics(SM_CYEDGE));
    }
    if (w.exStyle & WS_EX_STATICEDGE) {
        dc.DrawEdge(&rect, BDR_SUNKENOUTER, BF_RECT);
        rect.DeflateRect(1, 1);
    }
}

} // namespace

void DrawFrame(const WindowRecord& w, HDC windowDC) {
    CDC* dc = CDC::FromHandle(windowDC);
    if (!dc)
        return;
    const FrameMetrics m = GetFrameMetrics(w);
    CRect rect(CPoint(0, 0), w.rect.Size());
    DrawOuterFrame(w, *dc, m, rect);
    DrawCaption(w, *dc, m, rect);
    DrawMenuBar(w, *dc, m, rect);
    DrawEdges(w, *dc, rect);
    DrawScrollBars(w, windowDC);
}

} // namespace wm
