// The multiple-document frame: a frame with its menu bar holding two plot documents (the second
// active, the first not), each with its icon, and the plot's right-click menu open over the
// active one with a check, a grey item, a separator and a sub-menu. A second picture shows the
// active plot maximised: its icon and buttons on the frame's menu bar and its name in the
// frame's caption; a click on the bar's restore button then gives it back its place. A third
// shows the other plot minimised to a title bar at the client's bottom. On a display the frame
// stays, both plots restored: the menu bar's commands arrange the documents, and a right click
// opens the menu.

#include "GalleryPage.h"

#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/MdiFrame.h"
#include "platform/window/MenuResources.h"
#include "platform/window/WindowDC.h"
#include "platform/window/WindowIcons.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr UINT kFrameMenu = 3200;
constexpr UINT kPlotIcon = 128;
constexpr UINT kCmdClose = 3201;
constexpr UINT kCmdCascade = 3202;
constexpr UINT kCmdTile = 3203;
constexpr UINT kCmdNext = 3204;
constexpr UINT kCmdAbout = 3205;
constexpr UINT kCmdPlotData = 3210;
constexpr UINT kCmdFrame = 3211;
constexpr UINT kCmdLegendNone = 3212;
constexpr UINT kCmdLegendTop = 3213;
constexpr UINT kCmdLegendBottom = 3214;
constexpr UINT kCmdExport = 3215;

void RegisterResources() {
    RegisterMenuResource(
        kFrameMenu,
        {{"&File", {{"&Close Plot", kCmdClose}}},
         {"&Window",
          {{"&Cascade", kCmdCascade}, {"&Tile", kCmdTile}, {}, {"&Next Plot\tCtrl+F6", kCmdNext}}},
         {"&Help", {{"&About the Gallery...", kCmdAbout}}}});
    // A blue document with a white curve on it.
    constexpr int size = 16;
    std::vector<std::uint32_t> icon(size * size, 0);
    for (int y = 1; y < 15; ++y)
        for (int x = 2; x < 14; ++x)
            icon[size_t(y * size + x)] =
                (x == 2 || x == 13 || y == 1 || y == 14) ? 0xFF000080 : 0xFF3060C0;
    for (int x = 4; x < 12; ++x)
        icon[size_t((11 - (x - 4) * (x - 4) / 8) * size + x)] = 0xFFFFFFFF;
    RegisterIconResource(kPlotIcon, size, std::move(icon));
}

// A plot document: a curve on white, framed when the menu's "Frame Plot" is checked.
class PlotDocument : public CMDIChildWnd {
public:
    PlotDocument(int shape) : m_shape(shape) {}
    bool framed = true;
    int legend = 1; // 0 none, 1 top, 2 bottom

    void ShowMenu(CPoint screen) {
        CMenu menu;
        menu.CreatePopupMenu();
        CMenu legendMenu;
        legendMenu.CreatePopupMenu();
        legendMenu.AppendMenu(MF_STRING | (legend == 0 ? MF_CHECKED : 0), kCmdLegendNone, "NONE");
        legendMenu.AppendMenu(MF_SEPARATOR);
        legendMenu.AppendMenu(MF_STRING | (legend == 1 ? MF_CHECKED : 0), kCmdLegendTop, "Top");
        legendMenu.AppendMenu(MF_STRING | (legend == 2 ? MF_CHECKED : 0), kCmdLegendBottom,
                              "Bottom");
        menu.AppendMenu(MF_STRING | MF_GRAYED, kCmdPlotData, "Plot Data...");
        menu.AppendMenu(MF_STRING | (framed ? MF_CHECKED : 0), kCmdFrame, "&Frame Plot");
        menu.AppendMenu(MF_SEPARATOR);
        menu.AppendMenu(MF_POPUP, UINT_PTR(legendMenu.Detach()), "&Legend");
        menu.AppendMenu(MF_STRING, kCmdExport, "&Export/Print...");
        const UINT chosen =
            UINT(menu.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, this));
        if (chosen == kCmdFrame)
            framed = !framed;
        else if (chosen >= kCmdLegendNone && chosen <= kCmdLegendBottom)
            legend = int(chosen - kCmdLegendNone);
        if (chosen && IsWindow())
            Invalidate();
    }

protected:
    void OnPaint() override {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, GetSysColor(COLOR_WINDOW));
        CRect plot = client;
        plot.DeflateRect(24, legend == 1 ? 28 : 14, 14, legend == 2 ? 34 : 20);
        if (framed)
            dc.Draw3dRect(&plot, RGB(0, 0, 0), RGB(0, 0, 0));
        CPen pen(PS_SOLID, 2, m_shape ? RGB(192, 0, 0) : RGB(0, 0, 192));
        CPen* old = dc.SelectObject(&pen);
        for (int i = 0; i <= 40; ++i) {
            const double t = i / 40.0;
            const double v = m_shape ? t * (1 - t) * 4 : (1 - t) * (1 - t);
            const CPoint p(plot.left + int(t * plot.Width()),
                           plot.bottom - 4 - int(v * (plot.Height() - 8)));
            if (i == 0)
                dc.MoveTo(p);
            else
                dc.LineTo(p);
        }
        dc.SelectObject(old);
        if (legend) {
            CString title;
            GetWindowText(title);
            dc.SetBkMode(TRANSPARENT);
            CFont* oldFont =
                dc.SelectObject(CFont::FromHandle(HFONT(GetStockObject(DEFAULT_GUI_FONT))));
            CRect text(plot.left, legend == 1 ? 6 : plot.bottom + 10, plot.right,
                       legend == 1 ? 24 : plot.bottom + 28);
            dc.DrawText(title, &text, DT_CENTER | DT_SINGLELINE | DT_VCENTER);
            dc.SelectObject(oldFont);
        }
    }
    void OnContextMenu(CWnd*, CPoint screen) override { ShowMenu(screen); }

private:
    int m_shape;
};

class PlotFrame : public CMDIFrameWnd {
protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        CMDIChildWnd* active = MDIGetActive();
        switch (LOWORD(wParam)) {
        case kCmdClose:
            if (active)
                active->SendMessage(WM_CLOSE);
            return TRUE;
        case kCmdCascade:
            MDICascade();
            return TRUE;
        case kCmdTile:
            MDITile();
            return TRUE;
        case kCmdNext:
            MDINext();
            return TRUE;
        default:
            return CMDIFrameWnd::OnCommand(wParam, lParam);
        }
    }
};

std::string TitleOf(CWnd& wnd) {
    CString title;
    wnd.GetWindowText(title);
    return title.GetString();
}

// Prints a screen point as "at <name> <x> <y>" relative to the frame's corner, for a script
// that clicks it on a display.
void PrintPlace(GalleryContext& context, CWnd& frame, const char* name, CPoint screen) {
    CRect outer;
    frame.GetWindowRect(&outer);
    context.Print("at %s %d %d", name, int(screen.x - outer.left), int(screen.y - outer.top));
}

// The middle of a caption button of a document window (HTMAXBUTTON, ...), in screen points.
CPoint CaptionButton(CWnd& document, LRESULT button) {
    CRect outer;
    document.GetWindowRect(&outer);
    for (int y = outer.top; y < outer.top + GetSystemMetrics(SM_CYCAPTION) * 2; ++y)
        for (int x = outer.left; x < outer.right; ++x)
            if (document.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, y)) == button)
                return CPoint(x + 6, y + 6);
    return outer.CenterPoint();
}

// The active plot maximised, pictured, and restored by a click on the bar's restore button.
void ShowMaximized(GalleryContext& context, PlotFrame& frame, PlotDocument& document,
                   UiDriver& driver) {
    frame.MDIMaximize(&document);
    driver.Pump();
    context.Print("maximised: the frame's caption reads \"%s\"", TitleOf(frame).c_str());
    context.Capture(frame, "32-mdi-frame-maximized");
    // The restore button is the second from the bar's right end, just above the client.
    CRect client;
    frame.GetClientRect(&client);
    const int height = GetSystemMetrics(SM_CYMENU) - 4;
    const int width = height + 2;
    CPoint restore(client.right - 4 - width - width / 2, -GetSystemMetrics(SM_CYMENU) / 2);
    driver.Click(frame, restore);
    frame.ClientToScreen(&restore);
    PrintPlace(context, frame, "bar-restore", restore);
    BOOL maximized = TRUE;
    frame.MDIGetActive(&maximized);
    context.Print("after a click on the bar's restore button: %s, the caption reads \"%s\"",
                  maximized ? "still maximised" : "restored", TitleOf(frame).c_str());
}

void BuildMdiFramePage(GalleryContext& context) {
    RegisterResources();
    static PlotFrame frame;
    frame.Create(nullptr, "ORVAUtil Plots", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                 CRect(40, 40, 680, 520), nullptr, MAKEINTRESOURCE(kFrameMenu));
    const HICON icon = LoadIcon(nullptr, MAKEINTRESOURCE(kPlotIcon));
    frame.SendMessage(WM_SETICON, ICON_SMALL, LPARAM(icon));

    PlotDocument* documents[2] = {new PlotDocument(0), new PlotDocument(1)};
    const char* titles[2] = {"Deflection", "Bending moment"};
    for (int i = 0; i < 2; ++i) {
        documents[i]->Create(nullptr, titles[i],
                             WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | WS_CLIPSIBLINGS,
                             CFrameWnd::rectDefault, &frame);
        documents[i]->SendMessage(WM_SETICON, ICON_BIG, LPARAM(icon));
        documents[i]->SendMessage(WM_SETICON, ICON_SMALL, LPARAM(icon));
    }
    documents[1]->SetWindowPos(nullptr, 150, 110, 420, 280, SWP_NOZORDER | SWP_NOACTIVATE);
    UiDriver driver;
    driver.Pump();

    BOOL maximized = FALSE;
    CMDIChildWnd* active = frame.MDIGetActive(&maximized);
    CString activeTitle;
    if (active)
        active->GetWindowText(activeTitle);
    context.Print("documents: 2, active \"%s\"%s; menu bar items: %u", activeTitle.GetString(),
                  maximized ? " (maximised)" : "", frame.GetMenu()->GetMenuItemCount());

    // The right-click menu over the active plot, with its Legend sub-menu open.
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        const HMENU menu = shown.menu;
        driver.MouseMove(shown.window, MenuResponder::ItemPoint(shown.window, menu, 3));
        driver.MouseMove(shown.window,
                         MenuResponder::ItemPoint(shown.window, GetSubMenu(menu, 3), 2));
        context.CaptureScreen(frame, "32-mdi-frame");
        EndMenu();
    });
    CPoint at(260, 150);
    documents[1]->ClientToScreen(&at);
    documents[1]->ShowMenu(at);
    ShowMaximized(context, frame, *documents[1], driver);

    documents[0]->SendMessage(WM_SYSCOMMAND, SC_MINIMIZE);
    driver.Pump();
    context.Capture(frame, "32-mdi-frame-minimized");
    documents[0]->SendMessage(WM_SYSCOMMAND, SC_RESTORE);
    frame.MDIActivate(documents[1]);
    driver.Pump();
    PrintPlace(context, frame, "plot-maximize", CaptionButton(*documents[1], HTMAXBUTTON));
    for (const ShownMenuItem& item : menus.Last().items)
        context.Print("  menu item \"%s\"%s%s%s", item.text.c_str(),
                      item.state & MF_CHECKED ? " checked" : "",
                      item.state & MF_GRAYED ? " grey" : "",
                      item.state & MF_POPUP ? " (sub-menu)" : "");
}

} // namespace

GALLERY_PAGE("32-mdi-frame", "Multiple-document frame, menu bar and pop-up menu",
             BuildMdiFramePage);
