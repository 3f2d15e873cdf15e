// The edit control on screen: where each character stands, scrolling that keeps the caret in
// view, the blinking caret, and painting in the control's colours.

#include "platform/widgets/EditControl.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"

#include <algorithm>
#include <cctype>

namespace widgets {
namespace {
constexpr UINT kCaretBlinkTime = 530; // the framework's default blink, in milliseconds
constexpr int kCaretWidth = 1;

// A context for measuring with the control's font, released on every path.
class MeasuringDC {
public:
    explicit MeasuringDC(HWND hwnd) : m_hwnd(hwnd), m_dc(CDC::FromHandle(::GetDC(hwnd))) {
        if (m_dc)
            m_old = m_dc->SelectObject(ControlFont(hwnd));
    }
    ~MeasuringDC() {
        if (!m_dc)
            return;
        m_dc->SelectObject(m_old);
        ::ReleaseDC(m_hwnd, m_dc->GetSafeHdc());
    }
    MeasuringDC(const MeasuringDC&) = delete;
    MeasuringDC& operator=(const MeasuringDC&) = delete;
    CDC* operator->() const { return m_dc; }
    explicit operator bool() const { return m_dc != nullptr; }

private:
    HWND m_hwnd;
    CDC* m_dc;
    CFont* m_old = nullptr;
};
} // namespace

CRect EditBehaviour::FormatRect() const {
    RECT client;
    ::GetClientRect(Window(), &client);
    CRect r(client);
    r.left += m_leftMargin;
    r.right = std::max(r.left, r.right - m_rightMargin);
    if (!Multiline()) {
        // A single line sits in the middle of a control taller than the line.
        const int spare = r.Height() - LineHeight();
        if (spare > 0)
            r.top += spare / 2;
        r.bottom = r.top + LineHeight();
    }
    return r;
}

int EditBehaviour::LineHeight() const {
    MeasuringDC dc(Window());
    TEXTMETRIC tm{};
    if (!dc || !dc->GetTextMetrics(&tm))
        return 13;
    return std::max<int>(1, tm.tmHeight);
}

int EditBehaviour::TextWidth(int pos, int count) const {
    if (count <= 0)
        return 0;
    MeasuringDC dc(Window());
    if (!dc)
        return 0;
    return dc->GetTextExtent(m_model.Text().c_str() + pos, count).cx;
}

int EditBehaviour::LineOffset(int line) const {
    const CRect format = FormatRect();
    const DisplayLine& shown = Lines()[size_t(line)];
    // The blanks where a wrapped line breaks overhang: they take no part in its alignment.
    int length = shown.length;
    while (
        shown.wrapped && length > 0 &&
        std::isblank(static_cast<unsigned char>(m_model.Text()[size_t(shown.start + length - 1)])))
        --length;
    const int width = TextWidth(shown.start, length);
    const DWORD align = Style() & (ES_CENTER | ES_RIGHT);
    // Aligned lines that fit stand still; a line wider than the control scrolls from the left.
    if (align && width < format.Width()) {
        const int spare = format.Width() - width - kCaretWidth;
        return format.left + ((align & ES_RIGHT) ? spare : spare / 2);
    }
    return format.left - m_scrollX;
}

CPoint EditBehaviour::PosToPoint(int pos, bool atLineEnd) const {
    pos = std::clamp(pos, 0, m_model.Length());
    int line = LineOf(pos);
    if (atLineEnd && line > 0 && Lines()[size_t(line)].start == pos &&
        Lines()[size_t(line - 1)].wrapped)
        --line;
    const DisplayLine& shown = Lines()[size_t(line)];
    const int x =
        LineOffset(line) + TextWidth(shown.start, std::min(pos - shown.start, shown.length));
    const int y = FormatRect().top + (line - m_firstLine) * LineHeight();
    return CPoint(x, y);
}

int EditBehaviour::PointToPos(CPoint point, bool* atLineEnd) const {
    const CRect format = FormatRect();
    int line = 0;
    if (Multiline())
        line = std::clamp(m_firstLine + (point.y - format.top) / LineHeight() -
                              (point.y < format.top ? 1 : 0),
                          0, LineCount() - 1);
    const DisplayLine& shown = Lines()[size_t(line)];
    const int x = point.x - LineOffset(line);
    if (atLineEnd)
        *atLineEnd = false;
    // The nearest boundary between characters: past the middle of a character is after it.
    int previous = 0;
    for (int i = 1; i <= shown.length; ++i) {
        const int edge = TextWidth(shown.start, i);
        if (x < (previous + edge + 1) / 2)
            return shown.start + i - 1;
        previous = edge;
    }
    if (atLineEnd)
        *atLineEnd = shown.wrapped;
    return shown.start + shown.length;
}

int EditBehaviour::WidestLine() const {
    int widest = 0;
    for (const DisplayLine& line : Lines())
        widest = std::max(widest, TextWidth(line.start, line.length));
    return widest;
}

bool EditBehaviour::ScrollToCaret() {
    const int oldX = m_scrollX, oldLine = m_firstLine;
    const CRect format = FormatRect();
    const int width = std::max(1, format.Width());
    const int caret = m_model.Caret();
    const int line = CaretLine();
    const int start = Lines()[size_t(line)].start;
    const int caretX = TextWidth(start, caret - start); // from the line's start, unscrolled
    // When the caret leaves the view, the text jumps by a quarter of the width, as the
    // framework's control does, so that typing on does not scroll at every character.
    const int jump = width / 4;
    if (caretX < m_scrollX)
        m_scrollX = std::max(0, caretX - jump);
    else if (caretX + kCaretWidth > m_scrollX + width)
        m_scrollX = caretX + kCaretWidth - width + jump;
    m_scrollX = std::clamp(m_scrollX, 0, std::max(0, WidestLine() + kCaretWidth - width));
    if (WrapsWords()) // the lines fit; only blanks at a break overhang
        m_scrollX = 0;
    if (Multiline()) {
        const int visible = std::max(1, format.Height() / LineHeight());
        if (line < m_firstLine)
            m_firstLine = line;
        else if (line >= m_firstLine + visible)
            m_firstLine = line - visible + 1;
        m_firstLine = std::clamp(m_firstLine, 0, std::max(0, LineCount() - 1));
    }
    UpdateScrollBar();
    return m_scrollX != oldX || m_firstLine != oldLine;
}

int EditBehaviour::VisibleLines() const {
    return std::max(1, FormatRect().Height() / LineHeight());
}

void EditBehaviour::UpdateScrollBar() {
    if (!Multiline() || !(Style() & WS_VSCROLL))
        return;
    // The bar stays, greyed, while all the text fits, as the framework's edit keeps it.
    SCROLLINFO info{sizeof info,
                    SIF_ALL | SIF_DISABLENOSCROLL,
                    0,
                    LineCount() - 1,
                    UINT(VisibleLines()),
                    m_firstLine,
                    0};
    ::SetScrollInfo(Window(), SB_VERT, &info, TRUE);
}

void EditBehaviour::ScrollLines(int firstLine) {
    firstLine = std::clamp(firstLine, 0, std::max(0, LineCount() - VisibleLines()));
    if (firstLine == m_firstLine)
        return;
    m_firstLine = firstLine;
    UpdateScrollBar();
    Redraw();
}

void EditBehaviour::Redraw() {
    ::InvalidateRect(Window(), nullptr, FALSE);
}

void EditBehaviour::RestartCaretBlink() {
    if (!m_focused)
        return;
    m_caretShown = true;
    ::SetTimer(Window(), kCaretTimer, kCaretBlinkTime, nullptr);
}

void EditBehaviour::Paint(CDC& dc) {
    const bool enabled = ::IsWindowEnabled(Window());
    // A read-only or disabled edit asks for the colours of static text, as the framework's does.
    const bool asStatic = !enabled || ReadOnly();
    const HBRUSH brush = ControlColors(Window(), dc, asStatic ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT,
                                       asStatic ? COLOR_3DFACE : COLOR_WINDOW, COLOR_WINDOWTEXT);
    if (!enabled)
        dc.SetTextColor(GetSysColor(COLOR_GRAYTEXT));
    RECT client;
    ::GetClientRect(Window(), &client);
    ::FillRect(dc.GetSafeHdc(), &client, brush);

    CFont* old = dc.SelectObject(ControlFont(Window()));
    const CRect format = FormatRect();
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(format.left, Multiline() ? format.top : client.top, format.right,
                         Multiline() ? format.bottom : client.bottom);
    const COLORREF text = dc.GetTextColor();
    dc.SetBkMode(TRANSPARENT);
    const int lines = LineCount();
    const int visible = Multiline() ? format.Height() / LineHeight() + 1 : 1;
    for (int line = m_firstLine; line < std::min(lines, m_firstLine + visible); ++line)
        PaintLine(dc, line, format, text);
    if (m_focused && m_caretShown) {
        const CPoint caret = PosToPoint(m_model.Caret(), m_caretAtLineEnd);
        dc.FillSolidRect(caret.x, caret.y, kCaretWidth, LineHeight(), text);
    }
    dc.RestoreDC(saved);
    dc.SelectObject(old);
}

void EditBehaviour::PaintLine(CDC& dc, int line, const CRect& format, COLORREF text) {
    const std::string& all = m_model.Text();
    const int start = Lines()[size_t(line)].start, length = Lines()[size_t(line)].length;
    const int x = LineOffset(line);
    const int y = format.top + (line - m_firstLine) * LineHeight();
    dc.SetTextColor(text);
    dc.TextOut(x, y, all.c_str() + start, length);
    // The selection shows while the control has the focus, or always with ES_NOHIDESEL.
    if (!m_model.HasSelection() || (!m_focused && !(Style() & ES_NOHIDESEL)))
        return;
    const int from = std::clamp(m_model.SelStart() - start, 0, length);
    const int to = std::clamp(m_model.SelEnd() - start, 0, length);
    if (from >= to)
        return;
    const int left = x + TextWidth(start, from);
    const int right = x + TextWidth(start, to);
    dc.FillSolidRect(left, y, right - left, LineHeight(), GetSysColor(COLOR_HIGHLIGHT));
    dc.SetTextColor(GetSysColor(COLOR_HIGHLIGHTTEXT));
    dc.TextOut(left, y, all.c_str() + start + from, to - from);
}

} // namespace widgets
