// The "Edit" window class: messages, keys, mouse, clipboard and notifications of the edit
// control. Layout and painting are in EditView.cpp.
//
// Contents: registration; the message switch; keys and characters; mouse; focus; text and
// selection; clipboard and undo.

#include "platform/widgets/EditControl.h"

#include "platform/gdi/DC.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace widgets {
namespace {
const bool registered = RegisterControlClass<EditBehaviour>("Edit", CS_DBLCLKS, IDC_IBEAM);

bool KeyDown(int key) {
    return (GetKeyState(key) & 0x8000) != 0;
}
CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}
} // namespace

LRESULT EditBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE: {
        const auto* cs = reinterpret_cast<const CREATESTRUCT*>(lParam);
        m_model.SetText(cs->lpszName && !IS_INTRESOURCE(cs->lpszName) ? cs->lpszName : "");
        Relayout();
        return Default(message, wParam, lParam);
    }
    case WM_CREATE:
        ScrollToCaret();
        return 0;
    case WM_GETDLGCODE: {
        UINT code = DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;
        if (Multiline() && (Style() & ES_WANTRETURN))
            code |= DLGC_WANTALLKEYS;
        return code;
    }
    case WM_SETTEXT:
        return OnSetText(reinterpret_cast<const char*>(lParam));
    case WM_GETTEXT:
        return OnGetText(wParam, reinterpret_cast<char*>(lParam));
    case WM_GETTEXTLENGTH:
        return m_model.Length();
    case WM_SETFONT:
        Default(message, wParam, lParam);
        Relayout();
        ScrollToCaret();
        if (LOWORD(std::uintptr_t(lParam)))
            Redraw();
        return 0;
    case WM_SIZE:
        Relayout();
        ScrollToCaret();
        Redraw();
        return 0;
    case WM_ENABLE:
        Redraw();
        return 0;
    case WM_TIMER:
        if (wParam == kCaretTimer) {
            m_caretShown = !m_caretShown;
            Redraw();
        }
        return 0;
    case WM_KEYDOWN:
        OnKeyDown(UINT(wParam));
        return 0;
    case WM_CHAR:
        OnChar(UINT(wParam));
        return 0;
    case WM_LBUTTONDOWN:
        OnButtonDown(PointOf(lParam), (wParam & MK_SHIFT) != 0);
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        if (m_selecting && ::GetCapture() == Window())
            ::ReleaseCapture();
        m_selecting = false;
        return 0;
    case WM_LBUTTONDBLCLK:
        OnDoubleClick(PointOf(lParam));
        return 0;
    case WM_CAPTURECHANGED:
        m_selecting = false;
        return 0;
    case WM_VSCROLL:
        if (Multiline())
            OnVScroll(LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        if (!Multiline())
            return Default(message, wParam, lParam);
        ScrollLines(m_firstLine - GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA * kWheelLines);
        return 0;
    case WM_SETFOCUS:
        OnSetFocus();
        return 0;
    case WM_KILLFOCUS:
        OnKillFocus();
        return 0;
    case WM_CUT:
        Cut();
        return 0;
    case WM_COPY:
        Copy();
        return 0;
    case WM_PASTE:
        Paste();
        return 0;
    case WM_CLEAR:
        if (!ReadOnly() && m_model.HasSelection())
            Change("");
        return 0;
    case WM_UNDO:
    case EM_UNDO:
        Undo();
        return TRUE;
    case EM_GETSEL: {
        if (wParam)
            *reinterpret_cast<DWORD*>(wParam) = DWORD(m_model.SelStart());
        if (lParam)
            *reinterpret_cast<DWORD*>(lParam) = DWORD(m_model.SelEnd());
        return MAKELONG(WORD(std::min(m_model.SelStart(), 0xFFFF)),
                        WORD(std::min(m_model.SelEnd(), 0xFFFF)));
    }
    case EM_SETSEL: {
        // A start of -1 removes the selection; an end of -1 reaches the end of the text.
        const int start = int(wParam), end = int(lParam);
        if (start == -1)
            Select(m_model.Caret(), m_model.Caret());
        else
            Select(start, end == -1 ? m_model.Length() : end);
        return 0;
    }
    case EM_REPLACESEL:
        Change(lParam ? reinterpret_cast<const char*>(lParam) : "", false);
        if (Alive() && !wParam)
            m_model.ForgetUndo();
        return 0;
    case EM_SCROLLCARET:
        if (ScrollToCaret())
            Redraw();
        return TRUE;
    case EM_LIMITTEXT:
        m_model.SetLimit(wParam == 0 ? 0x7FFFFFFE : int(std::min<WPARAM>(wParam, 0x7FFFFFFE)));
        return 0;
    case EM_GETLIMITTEXT:
        return m_model.Limit();
    case EM_CANUNDO:
        return m_model.CanUndo();
    case EM_EMPTYUNDOBUFFER:
        m_model.ForgetUndo();
        return 0;
    case EM_GETMODIFY:
        return m_modified;
    case EM_SETMODIFY:
        m_modified = wParam != 0;
        return 0;
    case EM_SETREADONLY:
        ::SetWindowLong(Window(), GWL_STYLE,
                        LONG(wParam ? (Style() | ES_READONLY) : (Style() & ~ES_READONLY)));
        Redraw();
        return TRUE;
    case EM_SETMARGINS: {
        const int left = LOWORD(std::uintptr_t(lParam)), right = HIWORD(std::uintptr_t(lParam));
        if (wParam & EC_LEFTMARGIN)
            m_leftMargin = left == int(EC_USEFONTINFO) ? 1 : left;
        if (wParam & EC_RIGHTMARGIN)
            m_rightMargin = right == int(EC_USEFONTINFO) ? 1 : right;
        Relayout();
        ScrollToCaret();
        Redraw();
        return 0;
    }
    case EM_GETMARGINS:
        return MAKELONG(WORD(m_leftMargin), WORD(m_rightMargin));
    case EM_GETRECT:
        if (lParam)
            *reinterpret_cast<RECT*>(lParam) = FormatRect();
        return 0;
    // Lines are those on screen, as wrapping broke them.
    case EM_GETLINECOUNT:
        return LineCount();
    case EM_LINEINDEX: {
        const int line = int(wParam) == -1 ? CaretLine() : int(wParam);
        return line >= 0 && line < LineCount() ? Lines()[size_t(line)].start : -1;
    }
    case EM_LINELENGTH:
        return Lines()[size_t(int(wParam) == -1 ? CaretLine() : LineOf(int(wParam)))].length;
    case EM_LINEFROMCHAR:
        // -1: the caret's line, or the line where the selection begins.
        if (int(wParam) != -1)
            return LineOf(int(wParam));
        return m_model.HasSelection() ? LineOf(m_model.SelStart()) : CaretLine();
    case EM_GETFIRSTVISIBLELINE:
        return Multiline() ? m_firstLine : 0;
    case EM_GETLINE: {
        // The first word of the buffer holds its size; the line is not zero-terminated.
        if (!lParam || int(wParam) < 0 || int(wParam) >= LineCount())
            return 0;
        auto* buffer = reinterpret_cast<char*>(lParam);
        WORD size;
        std::memcpy(&size, buffer, sizeof size);
        const DisplayLine& line = Lines()[size_t(wParam)];
        const int start = line.start;
        const int n = std::min<int>(size, line.length);
        std::memcpy(buffer, m_model.Text().data() + start, size_t(n));
        return n;
    }
    case EM_POSFROMCHAR: {
        const CPoint p = PosToPoint(int(wParam));
        return MAKELONG(WORD(p.x), WORD(p.y));
    }
    case EM_CHARFROMPOS: {
        const int pos = PointToPos(PointOf(lParam));
        return MAKELONG(WORD(pos), WORD(LineOf(pos)));
    }
    default:
        return Default(message, wParam, lParam);
    }
}

// Keys and characters.

void EditBehaviour::OnKeyDown(UINT key) {
    const bool shift = KeyDown(VK_SHIFT), control = KeyDown(VK_CONTROL);
    const int caret = m_model.Caret();
    const int keptX = m_preferredX;
    m_preferredX = -1;
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT: {
        const bool left = key == VK_LEFT;
        if (!shift && !control && m_model.HasSelection()) {
            const int edge = left ? m_model.SelStart() : m_model.SelEnd();
            Select(edge, edge);
            break;
        }
        const int to = control ? (left ? m_model.WordBefore(caret) : m_model.WordAfter(caret))
                               : (left ? m_model.CharBefore(caret) : m_model.CharAfter(caret));
        m_model.MoveCaret(to, shift);
        Select(m_model.Anchor(), m_model.Caret());
        break;
    }
    case VK_HOME:
    case VK_END: {
        const bool home = key == VK_HOME;
        int to;
        bool atLineEnd = false;
        if (control || !Multiline()) {
            to = home ? 0 : m_model.Length();
        } else {
            const DisplayLine& line = Lines()[size_t(CaretLine())];
            to = line.start + (home ? 0 : line.length);
            atLineEnd = !home && line.wrapped;
        }
        m_model.MoveCaret(to, shift);
        Select(m_model.Anchor(), m_model.Caret(), atLineEnd);
        break;
    }
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT: {
        if (!Multiline()) {
            if (key == VK_UP || key == VK_DOWN)
                OnKeyDown(key == VK_UP ? VK_LEFT : VK_RIGHT);
            break;
        }
        const int page = std::max(1, FormatRect().Height() / LineHeight());
        const int step = key == VK_UP ? -1 : key == VK_DOWN ? 1 : key == VK_PRIOR ? -page : page;
        const int line = std::clamp(CaretLine() + step, 0, LineCount() - 1);
        const int x = keptX >= 0 ? keptX : PosToPoint(caret, m_caretAtLineEnd).x;
        bool atLineEnd = false;
        const int to = PointToPos(CPoint(x, PosToPoint(Lines()[size_t(line)].start).y), &atLineEnd);
        m_model.MoveCaret(to, shift);
        Select(m_model.Anchor(), m_model.Caret(), atLineEnd);
        m_preferredX = x;
        break;
    }
    case VK_DELETE:
        if (shift) {
            ::SendMessage(Window(), WM_CUT, 0, 0);
        } else if (!ReadOnly()) {
            if (!m_model.HasSelection()) {
                const int to = control ? m_model.WordAfter(caret) : m_model.CharAfter(caret);
                m_model.Select(caret, to);
            }
            Change("");
        }
        break;
    case VK_INSERT:
        if (control)
            ::SendMessage(Window(), WM_COPY, 0, 0);
        else if (shift)
            ::SendMessage(Window(), WM_PASTE, 0, 0);
        break;
    default:
        break;
    }
}

void EditBehaviour::OnChar(UINT ch) {
    constexpr UINT ctrlA = 1, ctrlC = 3, ctrlV = 0x16, ctrlX = 0x18, ctrlZ = 0x1A;
    switch (ch) {
    case ctrlA:
        Select(0, m_model.Length());
        return;
    case ctrlC:
        ::SendMessage(Window(), WM_COPY, 0, 0);
        return;
    case ctrlV:
        ::SendMessage(Window(), WM_PASTE, 0, 0);
        return;
    case ctrlX:
        ::SendMessage(Window(), WM_CUT, 0, 0);
        return;
    case ctrlZ:
        ::SendMessage(Window(), WM_UNDO, 0, 0);
        return;
    default:
        break;
    }
    if (ReadOnly())
        return;
    if (ch == '\b') {
        if (!m_model.HasSelection()) {
            const int caret = m_model.Caret();
            m_model.Select(m_model.CharBefore(caret), caret);
        }
        Change("", true);
        return;
    }
    if (ch == '\r' || ch == '\n') {
        if (Multiline())
            Change("\r\n", true);
        return;
    }
    if (ch == '\t') {
        if (Multiline())
            Change("\t", true);
        return;
    }
    if (ch < 0x20 || ch == 0x7F || ch > 0xFF)
        return;
    char c = char(ch);
    if ((Style() & ES_NUMBER) && !std::isdigit(static_cast<unsigned char>(c)))
        return;
    if (Style() & ES_UPPERCASE)
        c = char(std::toupper(static_cast<unsigned char>(c)));
    else if (Style() & ES_LOWERCASE)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    Change(std::string_view(&c, 1), true);
}

void EditBehaviour::OnVScroll(UINT request) {
    if (!Notify(EN_VSCROLL))
        return;
    switch (request) {
    case SB_LINEUP:
        ScrollLines(m_firstLine - 1);
        break;
    case SB_LINEDOWN:
        ScrollLines(m_firstLine + 1);
        break;
    case SB_PAGEUP:
        ScrollLines(m_firstLine - VisibleLines());
        break;
    case SB_PAGEDOWN:
        ScrollLines(m_firstLine + VisibleLines());
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
        SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
        ::GetScrollInfo(Window(), SB_VERT, &info);
        ScrollLines(info.nTrackPos);
        break;
    }
    case SB_TOP:
        ScrollLines(0);
        break;
    case SB_BOTTOM:
        ScrollLines(LineCount());
        break;
    default:
        break;
    }
}

// Mouse.

void EditBehaviour::OnButtonDown(CPoint point, bool extend) {
    const HWND hwnd = Window();
    if (::GetFocus() != hwnd) {
        ::SetFocus(hwnd);
        if (!Alive()) // a focus handler may have closed the control
            return;
    }
    bool atLineEnd = false;
    const int pos = PointToPos(point, &atLineEnd);
    Select(extend ? m_model.Anchor() : pos, pos, atLineEnd);
    m_selecting = true;
    ::SetCapture(hwnd);
}

void EditBehaviour::OnMouseMove(CPoint point) {
    if (!m_selecting)
        return;
    bool atLineEnd = false;
    const int pos = PointToPos(point, &atLineEnd);
    Select(m_model.Anchor(), pos, atLineEnd);
}

void EditBehaviour::OnDoubleClick(CPoint point) {
    int start, end;
    m_model.WordAround(PointToPos(point), start, end);
    Select(start, end);
}

// Focus.

void EditBehaviour::OnSetFocus() {
    m_focused = true;
    RestartCaretBlink();
    Redraw();
    Notify(EN_SETFOCUS);
}

void EditBehaviour::OnKillFocus() {
    m_focused = false;
    m_caretShown = false;
    ::KillTimer(Window(), kCaretTimer);
    if (m_selecting && ::GetCapture() == Window())
        ::ReleaseCapture();
    Redraw();
    Notify(EN_KILLFOCUS);
}

// Text and selection.

LRESULT EditBehaviour::OnSetText(const char* text) {
    m_model.SetText(text ? text : "");
    Relayout();
    m_caretAtLineEnd = false;
    m_modified = false;
    m_scrollX = 0;
    m_firstLine = 0;
    ScrollToCaret();
    Redraw();
    // A multi-line control does not announce text set by the program.
    if (!Multiline() && Notify(EN_UPDATE))
        Notify(EN_CHANGE);
    return TRUE;
}

LRESULT EditBehaviour::OnGetText(WPARAM maxCount, char* buffer) const {
    if (!buffer || maxCount == 0)
        return 0;
    const size_t n = std::min<size_t>(m_model.Text().size(), maxCount - 1);
    std::memcpy(buffer, m_model.Text().data(), n);
    buffer[n] = '\0';
    return LRESULT(n);
}

void EditBehaviour::Select(int anchor, int caret, bool atLineEnd) {
    m_model.Select(anchor, caret);
    m_caretAtLineEnd = atLineEnd;
    ScrollToCaret();
    RestartCaretBlink();
    Redraw();
}

bool EditBehaviour::Change(std::string_view text, bool typing) {
    const std::string before = m_model.Text();
    const bool fits = m_model.ReplaceSelection(text, typing);
    const bool changed = m_model.Text() != before;
    m_caretAtLineEnd = false;
    Relayout();
    ScrollToCaret();
    RestartCaretBlink();
    Redraw();
    if (!fits && !Notify(EN_MAXTEXT))
        return false;
    if (!changed)
        return true;
    m_modified = true;
    return Notify(EN_UPDATE) && Notify(EN_CHANGE);
}

// Clipboard and undo.

void EditBehaviour::Copy() const {
    if (!m_model.HasSelection() || (Style() & ES_PASSWORD) || !::OpenClipboard(Window()))
        return;
    const std::string text = m_model.SelectedText();
    ::EmptyClipboard();
    if (HGLOBAL memory = ::GlobalAlloc(0, text.size() + 1)) {
        std::memcpy(::GlobalLock(memory), text.c_str(), text.size() + 1);
        ::GlobalUnlock(memory);
        ::SetClipboardData(CF_TEXT, memory);
    }
    ::CloseClipboard();
}

void EditBehaviour::Cut() {
    if (ReadOnly() || !m_model.HasSelection())
        return;
    Copy();
    Change("");
}

void EditBehaviour::Paste() {
    if (ReadOnly() || !::OpenClipboard(Window()))
        return;
    std::string text;
    if (HANDLE data = ::GetClipboardData(CF_TEXT)) {
        if (const auto* chars =
                static_cast<const char*>(::GlobalLock(static_cast<HGLOBAL>(data)))) {
            text = chars;
            ::GlobalUnlock(static_cast<HGLOBAL>(data));
        }
    }
    ::CloseClipboard();
    if (!Multiline()) // a single line keeps what comes before the first line break
        text = text.substr(0, text.find_first_of("\r\n"));
    Change(text);
}

void EditBehaviour::Undo() {
    if (ReadOnly() || !m_model.Undo())
        return;
    m_caretAtLineEnd = false;
    Relayout();
    ScrollToCaret();
    Redraw();
    m_modified = true;
    if (Notify(EN_UPDATE))
        Notify(EN_CHANGE);
}

} // namespace widgets
