// The common behaviour of the form's edit controls: keys, focus, the multi state and the fixed
// font.

#include "controls/EditORVA.h"

#include "platform/base/Messages.h"
#include "platform/gdi/GdiTypes.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"
#include "support/FormatDouble.h"

IMPLEMENT_DYNAMIC(CEditORVA, CEdit)

namespace {
// The fixed-pitch font of UseFixedFont: 12 by 7 pixels, light.
constexpr LONG kFixedFontHeight = 12;
constexpr LONG kFixedFontWidth = 7;
} // namespace

CEditORVA::CEditORVA() = default;

CEditORVA::~CEditORVA() {
    // The window must not keep a font that dies with this object.
    if (m_savedFont && IsWindow())
        SendMessage(WM_SETFONT, WPARAM(m_savedFont), FALSE);
}

void CEditORVA::MapItem(bool show) {
    ShowWindow(show ? SW_SHOW : SW_HIDE);
}

void CEditORVA::SetValue(double value, int prec) {
    SetWindowText(xgFormatDouble(value, prec, 15, 0));
}

void CEditORVA::SetValue(int value) {
    CString text;
    text.Format("%d", value);
    SetWindowText(text);
}

void CEditORVA::SetMulti(bool multi) {
    m_multi = multi;
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CEditORVA::UseFixedFont(bool on) {
    if (on == m_fixedFont)
        return;
    if (IsWindow()) {
        if (on) {
            LOGFONT lf{};
            lf.lfHeight = kFixedFontHeight;
            lf.lfWidth = kFixedFontWidth;
            lf.lfWeight = FW_LIGHT;
            lf.lfCharSet = DEFAULT_CHARSET;
            lf.lfOutPrecision = OUT_TT_PRECIS;
            lf.lfQuality = DRAFT_QUALITY;
            lf.lfPitchAndFamily = FIXED_PITCH | FF_SWISS;
            m_fixedFontObject.DeleteObject();
            m_fixedFontObject.CreateFontIndirect(&lf);
            m_savedFont = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
            SendMessage(WM_SETFONT, WPARAM(HFONT(m_fixedFontObject)), TRUE);
        } else if (m_savedFont) {
            SendMessage(WM_SETFONT, WPARAM(m_savedFont), TRUE);
            m_savedFont = nullptr;
            m_fixedFontObject.DeleteObject();
        }
    }
    m_fixedFont = on;
}

BOOL CEditORVA::PreTranslateMessage(MSG* msg) {
    if (msg->message == WM_KEYDOWN) {
        switch (msg->wParam) {
        case VK_TAB:
            break;
        case VK_RETURN:
            // Enter commits by taking the focus away; the dialog then sees the key too.
            if (!(GetStyle() & ES_MULTILINE)) {
                const HWND self = m_hWnd;
                ::SetFocus(nullptr);
                // Leaving the control runs its handlers and those of bound controls, which may
                // have destroyed it.
                if (CWnd::FromHandlePermanent(self) != this)
                    return FALSE;
            }
            break;
        case VK_ESCAPE:
            if (CurrentText() == m_oldText)
                break; // nothing to undo: the dialog may cancel
            [[fallthrough]];
        default:
            // The control, not the dialog or the application's accelerators, gets the key.
            ::TranslateMessage(msg);
            ::DispatchMessage(msg);
            return TRUE;
        }
    }
    return CEdit::PreTranslateMessage(msg);
}

void CEditORVA::OnKeyDown(UINT ch, UINT repeat, UINT flags) {
    if (ch == VK_ESCAPE && CurrentText() != m_oldText) {
        SetWindowText(m_oldText);
        return;
    }
    CEdit::OnKeyDown(ch, repeat, flags);
}

void CEditORVA::OnSetFocus(CWnd* oldWnd) {
    m_oldText = CurrentText();
    CEdit::OnSetFocus(oldWnd);
    SelectAllAfterTab();
    m_hasFocus = true;
}

void CEditORVA::OnKillFocus(CWnd* newWnd) {
    if (KeyIsDown(VK_ESCAPE))
        SetWindowText(m_oldText);
    m_hasFocus = false;
    CEdit::OnKillFocus(newWnd);
}

void CEditORVA::OnMouseMove(UINT flags, CPoint point) {
    if (CWnd* parent = GetParent()) {
        const HWND self = m_hWnd;
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(WORD(GetDlgCtrlID()), WORD(EN_EDIT_MOUSEMOVE)),
                            LPARAM(self));
        // The parent may have destroyed the control in answer.
        if (CWnd::FromHandlePermanent(self) != this)
            return;
    }
    CEdit::OnMouseMove(flags, point);
}

bool CEditORVA::KeyIsDown(int virtualKey) {
    return ::GetKeyState(virtualKey) < 0;
}

void CEditORVA::SelectAllAfterTab() {
    if (KeyIsDown(VK_TAB))
        SendMessage(EM_SETSEL, 0, LPARAM(GetWindowTextLength()));
}

CString CEditORVA::CurrentText() const {
    CString text;
    GetWindowText(text);
    return text;
}
