// The "Static" window class: text aligned left, centred or right (with word wrap), simple text,
// rectangles, frames and etched lines, and a bitmap; clicks reach the parent only with SS_NOTIFY.

#include "platform/widgets/ControlWindow.h"
#include "platform/widgets/Static.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"

#include <string>

namespace widgets {
namespace {

class StaticBehaviour : public ControlBehaviour {
public:
    using ControlBehaviour::ControlBehaviour;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    DWORD Kind() const { return Style() & SS_TYPEMASK; }
    void Paint(CDC& dc) override;
    void PaintText(CDC& dc, const CRect& client);
    void PaintBitmap(CDC& dc);

    HANDLE m_image = nullptr;
};

const bool registered = RegisterControlClass<StaticBehaviour>("Static", 0, IDC_ARROW);

std::string TextOf(HWND hwnd) {
    std::string text(size_t(::GetWindowTextLength(hwnd)), '\0');
    ::GetWindowText(hwnd, text.data(), int(text.size()) + 1);
    return text;
}

LRESULT StaticBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_NCHITTEST:
        // Without SS_NOTIFY a static is part of its parent's surface for the mouse.
        if (!(Style() & SS_NOTIFY))
            return HTTRANSPARENT;
        return Default(message, wParam, lParam);
    case WM_LBUTTONDOWN:
        if (Style() & SS_NOTIFY)
            NotifyParent(STN_CLICKED);
        return 0;
    case STM_SETIMAGE: {
        if (wParam != IMAGE_BITMAP)
            return 0;
        const HANDLE previous = m_image;
        m_image = reinterpret_cast<HANDLE>(lParam);
        ::InvalidateRect(Window(), nullptr, TRUE);
        return reinterpret_cast<LRESULT>(previous);
    }
    case STM_GETIMAGE:
        return wParam == IMAGE_BITMAP ? reinterpret_cast<LRESULT>(m_image) : 0;
    case WM_SETTEXT:
    case WM_ENABLE: {
        const LRESULT result = Default(message, wParam, lParam);
        ::InvalidateRect(Window(), nullptr, TRUE);
        return result;
    }
    default:
        return Default(message, wParam, lParam);
    }
}

void StaticBehaviour::Paint(CDC& dc) {
    const HBRUSH brush =
        ControlColors(Window(), dc, WM_CTLCOLORSTATIC, COLOR_3DFACE, COLOR_WINDOWTEXT);
    RECT clientRect;
    ::GetClientRect(Window(), &clientRect);
    CRect client(clientRect);
    switch (Kind()) {
    case SS_BLACKRECT:
    case SS_GRAYRECT:
    case SS_WHITERECT: {
        static const int colours[] = {COLOR_WINDOWFRAME, COLOR_3DSHADOW, COLOR_WINDOW};
        dc.FillSolidRect(&client, GetSysColor(colours[Kind() - SS_BLACKRECT]));
        return;
    }
    case SS_BLACKFRAME:
    case SS_GRAYFRAME:
    case SS_WHITEFRAME: {
        static const int colours[] = {COLOR_WINDOWFRAME, COLOR_3DSHADOW, COLOR_WINDOW};
        ::FillRect(dc.GetSafeHdc(), &clientRect, brush);
        const COLORREF c = GetSysColor(colours[Kind() - SS_BLACKFRAME]);
        dc.Draw3dRect(&client, c, c);
        return;
    }
    case SS_ETCHEDHORZ:
    case SS_ETCHEDVERT:
    case SS_ETCHEDFRAME: {
        ::FillRect(dc.GetSafeHdc(), &clientRect, brush);
        const UINT sides = Kind() == SS_ETCHEDHORZ   ? BF_TOP
                           : Kind() == SS_ETCHEDVERT ? BF_LEFT
                                                     : BF_RECT;
        dc.DrawEdge(&client, EDGE_ETCHED, sides);
        return;
    }
    default:
        break;
    }
    ::FillRect(dc.GetSafeHdc(), &clientRect, brush);
    if (Kind() == SS_BITMAP)
        PaintBitmap(dc);
    else
        PaintText(dc, client);
}

void StaticBehaviour::PaintText(CDC& dc, const CRect& client) {
    const std::string text = TextOf(Window());
    if (text.empty())
        return;
    UINT format = DT_EXPANDTABS;
    switch (Kind()) {
    case SS_CENTER:
        format |= DT_CENTER | DT_WORDBREAK;
        break;
    case SS_RIGHT:
        format |= DT_RIGHT | DT_WORDBREAK;
        break;
    case SS_SIMPLE:
        format |= DT_LEFT | DT_SINGLELINE;
        break;
    case SS_LEFTNOWORDWRAP:
        format |= DT_LEFT;
        break;
    default:
        format |= DT_LEFT | DT_WORDBREAK;
        break;
    }
    if (Style() & SS_NOPREFIX)
        format |= DT_NOPREFIX;
    if (Style() & SS_CENTERIMAGE)
        format = (format & ~DT_WORDBREAK) | DT_SINGLELINE | DT_VCENTER;
    if (Style() & SS_ENDELLIPSIS)
        format |= DT_END_ELLIPSIS;
    CFont* old = dc.SelectObject(ControlFont(Window()));
    dc.SetBkMode(TRANSPARENT);
    CRect r = client;
    if (!::IsWindowEnabled(Window())) {
        // The classic engraved look of disabled text.
        CRect light = r;
        light.OffsetRect(1, 1);
        dc.SetTextColor(GetSysColor(COLOR_3DHILIGHT));
        dc.DrawText(text.c_str(), -1, &light, format);
        dc.SetTextColor(GetSysColor(COLOR_GRAYTEXT));
    }
    dc.DrawText(text.c_str(), -1, &r, format);
    dc.SelectObject(old);
}

void StaticBehaviour::PaintBitmap(CDC& dc) {
    const HBITMAP bitmap = static_cast<HBITMAP>(m_image);
    BITMAP info{};
    if (!bitmap || !::GetObject(bitmap, sizeof info, &info))
        return;
    CDC memory;
    if (!memory.CreateCompatibleDC(&dc))
        return;
    CBitmap* old = memory.SelectObject(CBitmap::FromHandle(bitmap));
    dc.BitBlt(0, 0, info.bmWidth, info.bmHeight, &memory, 0, 0, SRCCOPY);
    memory.SelectObject(old);
}

} // namespace
} // namespace widgets
