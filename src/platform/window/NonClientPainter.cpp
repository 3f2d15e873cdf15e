// Draws the non-client area in the classic look: the outer frame, the caption of a top-level
// window, its menu bar (with a maximised document's controls), the sunken client edge, and the
// scroll bars.

#include "platform/window/MdiState.h"
#include "platform/window/MenuTracker.h"
#include "platform/window/NonClient.h"
#include "platform/window/ScrollBarTracking.h"
#include "platform/window/WindowIcons.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace wm {
namespace {

void DrawIcon(CDC& dc, HICON icon, const CRect& place) {
    DrawIconEx(dc.GetSafeHdc(), place.left, place.top, icon, place.Width(), place.Height(), 0,
               nullptr, DI_NORMAL);
}

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

// A glyph of the caption's buttons (SC_CLOSE, SC_MAXIMIZE, SC_RESTORE, SC_MINIMIZE), drawn in
// the button's face.
void DrawGlyph(CDC& dc, const CRect& face, UINT command) {
    const COLORREF ink = GetSysColor(COLOR_BTNTEXT);
    const CPoint c = face.CenterPoint();
    switch (command) {
    case SC_CLOSE:
        for (int i = 0; i < 7; ++i) {
            dc.FillSolidRect(c.x - 4 + i, c.y - 4 + i, 2, 1, ink);
            dc.FillSolidRect(c.x + 1 - i, c.y - 4 + i, 2, 1, ink);
        }
        break;
    case SC_RESTORE: // two overlapping windows
        dc.FillSolidRect(c.x - 2, c.y - 5, 6, 2, ink);
        dc.FillSolidRect(c.x + 3, c.y - 5, 1, 5, ink);
        dc.FillSolidRect(c.x - 4, c.y - 2, 6, 2, ink);
        dc.Draw3dRect(c.x - 4, c.y - 2, 6, 5, ink, ink);
        break;
    case SC_MAXIMIZE:
        dc.FillSolidRect(c.x - 4, c.y - 4, 9, 2, ink);
        dc.Draw3dRect(c.x - 4, c.y - 4, 9, 8, ink, ink);
        break;
    default:
        dc.FillSolidRect(c.x - 4, c.y + 2, 6, 2, ink);
        break;
    }
}

void DrawCaptionButtons(const WindowRecord& w, CDC& dc) {
    const CaptionButtons buttons = GetCaptionButtons(w);
    const std::pair<CRect, UINT> all[] = {{buttons.close, SC_CLOSE},
                                          {buttons.maximize, SC_MAXIMIZE},
                                          {buttons.minimize, SC_MINIMIZE}};
    for (const auto& [rect, command] : all) {
        if (rect.IsRectEmpty())
            continue;
        CRect face = rect;
        dc.DrawFrameControl(&face, DFC_BUTTON, DFCS_BUTTONPUSH);
        // The button of the state the window is in gives it back its size.
        const bool restores = (command == SC_MAXIMIZE && (w.style & WS_MAXIMIZE)) ||
                              (command == SC_MINIMIZE && (w.style & WS_MINIMIZE));
        DrawGlyph(dc, rect, restores ? SC_RESTORE : command);
    }
}

void DrawCaption(const WindowRecord& w, CDC& dc, const FrameMetrics& m, CRect& rect) {
    if (!m.caption)
        return;
    const bool active = ShowsActiveCaption(w);
    CRect bar(rect.left, rect.top, rect.right, rect.top + m.caption - 1);
    dc.FillSolidRect(&bar, GetSysColor(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    dc.FillSolidRect(rect.left, bar.bottom, rect.Width(), 1, GetSysColor(COLOR_3DFACE));
    CFont* font = CFont::FromHandle(HFONT(GetStockObject(DEFAULT_GUI_FONT)));
    CFont* old = dc.SelectObject(font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    CRect text = bar;
    text.DeflateRect(4, 0);
    // The small icon, or the big one made small, at the caption's left.
    if (const HICON icon = w.smallIcon ? w.smallIcon : w.bigIcon) {
        const int size = GetSystemMetrics(SM_CXSMICON);
        const int top = bar.top + (bar.Height() - size) / 2;
        DrawIcon(dc, icon, CRect(bar.left + 2, top, bar.left + 2 + size, top + size));
        text.left = bar.left + size + 4;
    }
    const CaptionButtons buttons = GetCaptionButtons(w);
    for (const CRect& button : {buttons.close, buttons.maximize, buttons.minimize})
        if (!button.IsRectEmpty())
            text.right = std::min(text.right, button.left - 2);
    dc.DrawText(w.text.c_str(), -1, &text, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    dc.SelectObject(old);
    DrawCaptionButtons(w, dc);
    rect.top += m.caption;
}

// A document without an icon of its own shows a page of text.
void DrawDocumentGlyph(CDC& dc, const CRect& place) {
    const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
    CRect page(place.left + 2, place.top + 1, place.right - 3, place.bottom - 1);
    dc.FillSolidRect(&page, GetSysColor(COLOR_WINDOW));
    dc.Draw3dRect(&page, ink, ink);
    for (int y = page.top + 4; y < page.bottom - 2; y += 2)
        dc.FillSolidRect(page.left + 2, y, page.Width() - 4, 1, GetSysColor(COLOR_3DSHADOW));
}

// The maximised document's icon and buttons on its frame's bar.
void DrawMdiBarControls(const MdiBarControls& controls, CDC& dc) {
    const WindowRecord* child = Find(controls.child);
    if (!child)
        return;
    if (const HICON icon = child->smallIcon ? child->smallIcon : child->bigIcon)
        DrawIcon(dc, icon, controls.icon);
    else
        DrawDocumentGlyph(dc, controls.icon);
    const std::pair<CRect, UINT> buttons[] = {{controls.minimize, SC_MINIMIZE},
                                              {controls.restore, SC_RESTORE},
                                              {controls.close, SC_CLOSE}};
    for (const auto& [rect, command] : buttons) {
        CRect face = rect;
        dc.DrawFrameControl(&face, DFC_BUTTON, DFCS_BUTTONPUSH);
        DrawGlyph(dc, rect, command);
    }
}

void DrawMenuBar(const WindowRecord& w, CDC& dc, const FrameMetrics& m, CRect& rect) {
    const MenuRecord* menu = m.menuBar ? FindMenu(w.menu) : nullptr;
    if (!menu)
        return;
    bool open = false;
    const MenuTracker* tracker = CurrentMenuTracker();
    const int hot = tracker ? tracker->BarHotItem(w.handle, &open) : -1;
    const CRect bar(rect.left, rect.top, rect.right, rect.top + m.menuBar);
    const MdiBarControls controls = GetMdiBarControls(w);
    if (controls.child)
        dc.FillSolidRect(&bar, GetSysColor(COLOR_MENU));
    PaintMenuBar(dc.GetSafeHdc(), *menu, controls.child ? MenuBarItemsInWindow(w) : bar, hot, open);
    if (controls.child)
        DrawMdiBarControls(controls, dc);
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

CaptionButtons GetCaptionButtons(const WindowRecord& w) {
    CaptionButtons buttons;
    const FrameMetrics m = GetFrameMetrics(w);
    if (!m.caption || !(w.style & WS_SYSMENU))
        return buttons;
    const int width = GetSystemMetrics(SM_CXSIZE) - 2;
    const int height = m.caption - 5;
    const int top = m.border + 2;
    int right = w.rect.Width() - m.border - 2;
    buttons.close = CRect(right - width, top, right, top + height);
    right = buttons.close.left - 2;
    if (w.style & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX)) {
        buttons.maximize = CRect(right - width, top, right, top + height);
        buttons.minimize = CRect(right - 2 * width, top, right - width, top + height);
    }
    return buttons;
}

bool ShowsActiveCaption(const WindowRecord& w) {
    if (w.exStyle & WS_EX_MDICHILD)
        return ActiveMdiChild(w.parent) == w.handle &&
               GetActiveWindow() == GetAncestor(w.handle, GA_ROOT);
    return GetActiveWindow() == w.handle;
}

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
