// The platform's own drawing, as the controls above it use it: text in several fonts and
// alignments, three-dimensional edges, frame controls, brushes, pens and a focus rectangle.

#include "GalleryPage.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/window/WindowDC.h"
#include "platform/window/WindowStyles.h"
#include "platform/window/Wnd.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

constexpr int kWidth = 760;
constexpr int kHeight = 540;

void MakeFont(CFont& font, int height, const char* face, int weight = FW_NORMAL,
              bool italic = false, bool underline = false) {
    LOGFONT lf{};
    lf.lfHeight = height;
    lf.lfWeight = weight;
    lf.lfItalic = italic;
    lf.lfUnderline = underline;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    font.CreateFontIndirect(&lf);
}

void Heading(CDC& dc, int x, int y, const char* text) {
    CFont bold;
    MakeFont(bold, -12, "Tahoma", FW_BOLD);
    CFont* old = dc.SelectObject(&bold);
    dc.TextOut(x, y, text, int(std::strlen(text)));
    dc.SelectObject(old);
}

// Text in a white cell framed as a grid cell is.
void Cell(CDC& dc, const CRect& r, const char* text, UINT format) {
    dc.FillSolidRect(r, GetSysColor(COLOR_WINDOW));
    CBrush frame(RGB(192, 192, 192));
    dc.FrameRect(&r, &frame);
    CRect inside = r;
    inside.DeflateRect(3, 1);
    dc.DrawText(text, -1, &inside, format);
}

void Texts(CDC& dc, int top) {
    Heading(dc, 12, top, "Text");
    struct Sample {
        int height;
        const char* face;
        int weight;
        bool italic;
        bool underline;
        const char* text;
    };
    const Sample samples[] = {
        {-11, "MS Sans Serif", FW_NORMAL, false, false, "MS Sans Serif 8 pt: Discharge 12.5 m3/s"},
        {-13, "Arial", FW_BOLD, false, false, "Arial 10 pt bold: Cross section 4+250"},
        {-16, "Times New Roman", FW_NORMAL, true, false, "Times New Roman 12 pt italic"},
        {-13, "Courier New", FW_NORMAL, false, false, "Courier New: 0123456789 iiiWWW"},
        {-12, "Tahoma", FW_NORMAL, false, true, "Tahoma underlined"},
    };
    int y = top + 20;
    for (const Sample& s : samples) {
        CFont font;
        MakeFont(font, s.height, s.face, s.weight, s.italic, s.underline);
        CFont* old = dc.SelectObject(&font);
        dc.TextOut(20, y, s.text, int(std::strlen(s.text)));
        TEXTMETRIC tm{};
        dc.GetTextMetrics(&tm);
        y += tm.tmHeight + 4;
        dc.SelectObject(old);
    }

    CFont gui;
    MakeFont(gui, -11, "MS Shell Dlg");
    CFont* old = dc.SelectObject(&gui);
    const UINT single = DT_SINGLELINE | DT_NOPREFIX;
    int x = 400, row = top + 20;
    Cell(dc, CRect(x, row, x + 110, row + 22), "Left", single | DT_LEFT | DT_VCENTER);
    Cell(dc, CRect(x + 115, row, x + 225, row + 22), "Centre", single | DT_CENTER | DT_VCENTER);
    Cell(dc, CRect(x + 230, row, x + 340, row + 22), "Right", single | DT_RIGHT | DT_VCENTER);
    row += 27;
    Cell(dc, CRect(x, row, x + 110, row + 34), "Top", single | DT_CENTER | DT_TOP);
    Cell(dc, CRect(x + 115, row, x + 225, row + 34), "Middle", single | DT_CENTER | DT_VCENTER);
    Cell(dc, CRect(x + 230, row, x + 340, row + 34), "Bottom", single | DT_CENTER | DT_BOTTOM);
    row += 39;
    Cell(dc, CRect(x, row, x + 110, row + 22), "A text too long for its cell",
         single | DT_END_ELLIPSIS | DT_VCENTER);
    Cell(dc, CRect(x + 115, row, x + 225, row + 22), "&File  &&  &Edit",
         DT_SINGLELINE | DT_VCENTER | DT_CENTER);
    Cell(dc, CRect(x + 230, row, x + 340, row + 22), "123.456",
         single | DT_RIGHT | DT_VCENTER | DT_END_ELLIPSIS);
    row += 27;
    Cell(dc, CRect(x, row, x + 340, row + 44),
         "Word wrapping: a longer note about the gauge readings of the upper reach, broken "
         "at word boundaries to fit the cell.",
         DT_WORDBREAK | DT_NOPREFIX);
    dc.SelectObject(old);
}

void Label(CDC& dc, const CRect& under, const char* text) {
    int centre = (under.left + under.right) / 2;
    int half = std::max(int(under.Width()) / 2 + 10, 30);
    CRect r(centre - half, under.bottom + 2, centre + half, under.bottom + 18);
    dc.DrawText(text, -1, &r, DT_SINGLELINE | DT_CENTER | DT_NOPREFIX);
}

void Edges(CDC& dc, int top) {
    Heading(dc, 12, top, "DrawEdge");
    struct Sample {
        UINT edge;
        UINT flags;
        const char* name;
    };
    const Sample samples[] = {
        {EDGE_RAISED, BF_RECT | BF_MIDDLE, "raised"},
        {EDGE_SUNKEN, BF_RECT, "sunken"},
        {EDGE_ETCHED, BF_RECT, "etched"},
        {EDGE_BUMP, BF_RECT, "bump"},
        {EDGE_SUNKEN, BF_RECT | BF_FLAT, "flat"},
        {EDGE_SUNKEN, BF_RECT | BF_MONO, "mono"},
        {BDR_SUNKENOUTER, BF_RECT, "thin"},
        {EDGE_RAISED, BF_BOTTOMRIGHT, "bottom-right"},
    };
    int x = 20;
    for (const Sample& s : samples) {
        CRect r(x, top + 22, x + 60, top + 52);
        dc.DrawEdge(&r, s.edge, s.flags);
        Label(dc, r, s.name);
        x += 84;
    }
}

void FrameControls(CDC& dc, int top) {
    Heading(dc, 12, top, "DrawFrameControl");
    struct Sample {
        UINT type;
        UINT state;
        int width;
        const char* name;
    };
    const Sample samples[] = {
        {DFC_BUTTON, DFCS_BUTTONPUSH, 60, "push"},
        {DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_PUSHED, 60, "pushed"},
        {DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_FLAT, 60, "flat"},
        {DFC_BUTTON, DFCS_BUTTONCHECK, 13, "check"},
        {DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED, 13, "checked"},
        {DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED | DFCS_INACTIVE, 13, "inactive"},
        {DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED | DFCS_FLAT, 13, "flat"},
        {DFC_SCROLL, DFCS_SCROLLUP, 16, "up"},
        {DFC_SCROLL, DFCS_SCROLLDOWN, 16, "down"},
        {DFC_SCROLL, DFCS_SCROLLLEFT, 16, "left"},
        {DFC_SCROLL, DFCS_SCROLLRIGHT | DFCS_PUSHED, 16, "pushed"},
        {DFC_SCROLL, DFCS_SCROLLCOMBOBOX, 16, "combo"},
        {DFC_SCROLL, DFCS_SCROLLDOWN | DFCS_INACTIVE, 16, "inactive"},
    };
    int x = 20;
    for (const Sample& s : samples) {
        int height = s.type == DFC_BUTTON && s.width > 20 ? 24 : s.width;
        CRect r(x, top + 22, x + s.width, top + 22 + height);
        dc.DrawFrameControl(&r, s.type, s.state);
        if (s.state & DFCS_BUTTONPUSH) {
            CRect text = r;
            dc.DrawText("OK", -1, &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        }
        Label(dc, CRect(x, r.top, x + s.width, top + 46), s.name);
        x += s.type == DFC_BUTTON && s.width < 20 ? 52 : s.width + 28;
    }
}

void BrushesAndPens(CDC& dc, int top) {
    Heading(dc, 12, top, "Brushes, pens and focus");
    // A monochrome checker pattern takes the text and background colours.
    const WORD checker[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    CBitmap bits;
    bits.CreateBitmap(8, 8, 1, 1, checker);
    CBrush pattern;
    pattern.CreatePatternBrush(&bits);
    COLORREF oldText = dc.SetTextColor(RGB(0, 64, 128));
    COLORREF oldBk = dc.SetBkColor(RGB(255, 255, 255));
    CRect box(20, top + 22, 80, top + 82);
    dc.FillRect(&box, &pattern);
    dc.SetTextColor(oldText);
    dc.SetBkColor(oldBk);
    Label(dc, box, "pattern");

    const int hatches[] = {HS_HORIZONTAL, HS_CROSS, HS_FDIAGONAL, HS_DIAGCROSS};
    int x = 100;
    for (int hatch : hatches) {
        CBrush brush(hatch, RGB(160, 0, 0));
        CRect r(x, top + 22, x + 40, top + 82);
        dc.FillSolidRect(r, RGB(255, 255, 255));
        int oldMode = dc.SetBkMode(TRANSPARENT);
        dc.FillRect(&r, &brush);
        dc.SetBkMode(oldMode);
        x += 50;
    }
    Label(dc, CRect(100, top + 22, 290, top + 82), "hatches");

    struct PenSample {
        int style;
        int width;
        COLORREF color;
    };
    const PenSample pens[] = {{PS_SOLID, 0, RGB(0, 0, 0)},      {PS_SOLID, 1, RGB(0, 0, 192)},
                              {PS_SOLID, 3, RGB(0, 128, 0)},    {PS_SOLID, 6, RGB(192, 96, 0)},
                              {PS_DASH, 1, RGB(0, 0, 0)},       {PS_DOT, 1, RGB(0, 0, 0)},
                              {PS_DASHDOT, 1, RGB(128, 0, 128)}};
    int y = top + 26;
    int oldMode = dc.SetBkMode(TRANSPARENT);
    for (const PenSample& p : pens) {
        CPen pen(p.style, p.width, p.color);
        CPen* old = dc.SelectObject(&pen);
        dc.MoveTo(320, y);
        dc.LineTo(470, y);
        dc.SelectObject(old);
        y += 9;
    }
    dc.SetBkMode(oldMode);
    Label(dc, CRect(320, top + 22, 470, top + 82), "pens 0, 1, 3, 6, dash, dot, dash-dot");

    CBrush fill(RGB(255, 255, 200));
    CPen outline(PS_SOLID, 1, RGB(0, 0, 128));
    CBrush* oldBrush = dc.SelectObject(&fill);
    CPen* oldPen = dc.SelectObject(&outline);
    dc.Ellipse(500, top + 22, 560, top + 82);
    const POINT triangle[] = {{600, top + 80}, {630, top + 24}, {660, top + 80}};
    dc.Polygon(triangle, 3);
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);

    CRect focus(680, top + 22, 740, top + 82);
    dc.FillSolidRect(focus, GetSysColor(COLOR_WINDOW));
    CRect inner = focus;
    inner.DeflateRect(4, 4);
    dc.DrawFocusRect(&inner);
    Label(dc, focus, "focus");
}

} // namespace

// Draws every sample into `client`; the page's window calls it from its paint handler.
void DrawPlatformSamples(CDC& dc, const CRect& client) {
    dc.FillSolidRect(client, GetSysColor(COLOR_3DFACE));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
    CFont gui;
    MakeFont(gui, -11, "MS Shell Dlg");
    CFont* old = dc.SelectObject(&gui);
    Texts(dc, 10);
    Edges(dc, 200);
    FrameControls(dc, 290);
    BrushesAndPens(dc, 380);
    dc.SelectObject(old);
}

namespace {

class DrawingWindow : public CWnd {
public:
    void OnPaint() override {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        DrawPlatformSamples(dc, client);
    }
};

void BuildPlatformDrawing(GalleryContext& context) {
    // The window lives as long as the gallery, which captures and shows it after this call.
    static std::unique_ptr<DrawingWindow> window;
    window = std::make_unique<DrawingWindow>();
    if (!window->CreateEx(0, nullptr, "Platform drawing", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40,
                          kWidth, kHeight, nullptr, nullptr)) {
        context.Print("platform drawing: the window could not be created");
        return;
    }
    window->UpdateWindow();
    context.Capture(window->m_hWnd, "10-platform-drawing");
    CClientDC dc(window.get());
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    context.Print("platform drawing: system font %ld px high, 96 DPI = %d", long(tm.tmHeight),
                  dc.GetDeviceCaps(LOGPIXELSY));
}

} // namespace

GALLERY_PAGE("10-platform-drawing", "Platform drawing", BuildPlatformDrawing);
