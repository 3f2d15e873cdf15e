#pragma once

// CEdit: the edit control ("Edit" window class), single or multi-line, with the framework's
// EM_ messages. The member functions are thin wrappers over the messages, so an application may
// use either. A derived class sees every message in its On... handlers first; Default() reaches
// the control's own behaviour.

#include "platform/window/Wnd.h"

class ORVA_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit() = default;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Selection: start and end as character positions; a start of -1 removes the selection, an
    // end of -1 reaches the end of the text.
    DWORD GetSel() const;
    void GetSel(int& start, int& end) const;
    void SetSel(DWORD selection, BOOL noScroll = FALSE);
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCSTR newText, BOOL canUndo = FALSE);
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL Undo();
    BOOL CanUndo() const;
    void EmptyUndoBuffer();

    void LimitText(int maxChars = 0);
    void SetLimitText(UINT maxChars);
    UINT GetLimitText() const;
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    void SetMargins(UINT left, UINT right);
    DWORD GetMargins() const;
    void GetRect(LPRECT rect) const;

    int GetLineCount() const;
    int LineIndex(int line = -1) const;
    int LineLength(int charIndex = -1) const;
    int LineFromChar(int charIndex = -1) const;
    int GetFirstVisibleLine() const;
    int GetLine(int line, LPSTR buffer, int maxLength) const;
    CPoint PosFromChar(UINT charIndex) const;
    int CharFromPos(CPoint point) const;
};
