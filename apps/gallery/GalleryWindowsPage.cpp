// The window manager's own page: frames, borders, client edges and scroll bars in the classic
// look, children clipped to their parents, and what the windows report of their geometry.

#include "GalleryPage.h"

#include "platform/system/SysColors.h"
#include "platform/window/WindowDC.h"
#include "platform/window/Wnd.h"

#include <memory>
#include <vector>

namespace {

// A child that fills its client area with a colour and writes its name in it.
class SwatchWnd : public CWnd {
public:
    SwatchWnd(COLORREF colour, const char* label) : m_colour(colour), m_label(label) {}

protected:
    void OnPaint() override {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, m_colour);
        dc.SetBkMode(TRANSPARENT);
        CFont* old = dc.SelectObject(CFont::FromHandle(HFONT(GetStockObject(DEFAULT_GUI_FONT))));
        client.DeflateRect(4, 2);
        dc.DrawText(m_label, -1, &client, DT_LEFT | DT_TOP | DT_WORDBREAK);
        dc.SelectObject(old);
    }

private:
    COLORREF m_colour;
    const char* m_label;
};

struct WindowsPage {
    CWnd frame;
    std::vector<std::unique_ptr<SwatchWnd>> children;

    SwatchWnd* Add(CWnd* parent, const CRect& rect, DWORD style, DWORD exStyle, COLORREF colour,
                   const char* label) {
        auto child = std::make_unique<SwatchWnd>(colour, label);
        child->CreateEx(exStyle, nullptr, label, WS_CHILD | WS_VISIBLE | style, rect, parent,
                        UINT(children.size() + 1));
        children.push_back(std::move(child));
        return children.back().get();
    }
};

void SetBar(CWnd* wnd, int bar, int max, int page, int pos) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, max, UINT(page), pos, 0};
    wnd->SetScrollInfo(bar, &si);
}

void BuildWindowsPage(GalleryContext& context) {
    static WindowsPage page;
    page.frame.CreateEx(0, nullptr, "Windows, frames and scroll bars",
                        WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 560, 360, nullptr, nullptr);
    const COLORREF white = GetSysColor(COLOR_WINDOW);

    SwatchWnd* scrolled = page.Add(&page.frame, CRect(10, 10, 270, 170), WS_VSCROLL | WS_HSCROLL,
                                   WS_EX_CLIENTEDGE, white, "Client edge, both scroll bars");
    SetBar(scrolled, SB_VERT, 999, 100, 300);
    SetBar(scrolled, SB_HORZ, 199, 150, 0);

    page.Add(&page.frame, CRect(280, 10, 540, 90), 0, 0, RGB(255, 255, 224), "No frame");
    page.Add(&page.frame, CRect(280, 100, 540, 170), WS_BORDER, 0, RGB(224, 240, 255),
             "WS_BORDER: one black pixel");

    SwatchWnd* disabled =
        page.Add(&page.frame, CRect(10, 180, 270, 310), WS_VSCROLL, WS_EX_CLIENTEDGE, white,
                 "A bar with nothing to scroll, kept disabled");
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL, 0, 9, 20, 0, 0};
    disabled->SetScrollInfo(SB_VERT, &si);

    SwatchWnd* parent = page.Add(&page.frame, CRect(280, 180, 540, 310), 0, WS_EX_STATICEDGE,
                                 RGB(230, 230, 230), "Static edge; its child overhangs");
    page.Add(parent, CRect(150, 60, 330, 200), WS_BORDER, 0, RGB(200, 230, 200),
             "Clipped to the parent");

    CRect client;
    scrolled->GetClientRect(&client);
    context.Print("scrolled child: client %d x %d inside 260 x 160, vertical position %d of %d",
                  client.Width(), client.Height(), scrolled->GetScrollPos(SB_VERT),
                  scrolled->GetScrollLimit(SB_VERT));
    page.frame.GetClientRect(&client);
    context.Print("frame: client %d x %d inside 560 x 360", client.Width(), client.Height());
    context.Capture(page.frame.m_hWnd, "15-platform-windows");
}

} // namespace

GALLERY_PAGE("15-platform-windows", "Windows, frames and scroll bars", BuildWindowsPage);
