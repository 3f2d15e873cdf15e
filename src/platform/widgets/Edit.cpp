// CEdit's wrappers over the edit control's messages.

#include "platform/widgets/Edit.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("Edit", nullptr, style, rect, parent, id);
}

BOOL CEdit::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::CreateEx(exStyle, "Edit", nullptr, style | WS_CHILD, rect, parent, id);
}

DWORD CEdit::GetSel() const {
    return DWORD(SendMessage(EM_GETSEL));
}

void CEdit::GetSel(int& start, int& end) const {
    DWORD s = 0, e = 0;
    SendMessage(EM_GETSEL, WPARAM(&s), LPARAM(&e));
    start = int(s);
    end = int(e);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll) {
    SetSel(int(short(LOWORD(selection))), int(short(HIWORD(selection))), noScroll);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    SendMessage(EM_SETSEL, WPARAM(start), LPARAM(end));
    if (!noScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCSTR newText, BOOL canUndo) {
    SendMessage(EM_REPLACESEL, WPARAM(canUndo), LPARAM(newText));
}

void CEdit::Clear() {
    SendMessage(WM_CLEAR);
}
void CEdit::Copy() {
    SendMessage(WM_COPY);
}
void CEdit::Cut() {
    SendMessage(WM_CUT);
}
void CEdit::Paste() {
    SendMessage(WM_PASTE);
}
BOOL CEdit::Undo() {
    return BOOL(SendMessage(EM_UNDO));
}
BOOL CEdit::CanUndo() const {
    return BOOL(SendMessage(EM_CANUNDO));
}
void CEdit::EmptyUndoBuffer() {
    SendMessage(EM_EMPTYUNDOBUFFER);
}

void CEdit::LimitText(int maxChars) {
    SendMessage(EM_LIMITTEXT, WPARAM(maxChars));
}
void CEdit::SetLimitText(UINT maxChars) {
    SendMessage(EM_SETLIMITTEXT, WPARAM(maxChars));
}
UINT CEdit::GetLimitText() const {
    return UINT(SendMessage(EM_GETLIMITTEXT));
}
BOOL CEdit::GetModify() const {
    return BOOL(SendMessage(EM_GETMODIFY));
}
void CEdit::SetModify(BOOL modified) {
    SendMessage(EM_SETMODIFY, WPARAM(modified));
}
BOOL CEdit::SetReadOnly(BOOL readOnly) {
    return BOOL(SendMessage(EM_SETREADONLY, WPARAM(readOnly)));
}
void CEdit::SetMargins(UINT left, UINT right) {
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(WORD(left), WORD(right)));
}
DWORD CEdit::GetMargins() const {
    return DWORD(SendMessage(EM_GETMARGINS));
}
void CEdit::GetRect(LPRECT rect) const {
    SendMessage(EM_GETRECT, 0, LPARAM(rect));
}

int CEdit::GetLineCount() const {
    return int(SendMessage(EM_GETLINECOUNT));
}
int CEdit::LineIndex(int line) const {
    return int(SendMessage(EM_LINEINDEX, WPARAM(line)));
}
int CEdit::LineLength(int charIndex) const {
    return int(SendMessage(EM_LINELENGTH, WPARAM(charIndex)));
}
int CEdit::LineFromChar(int charIndex) const {
    return int(SendMessage(EM_LINEFROMCHAR, WPARAM(charIndex)));
}
int CEdit::GetFirstVisibleLine() const {
    return int(SendMessage(EM_GETFIRSTVISIBLELINE));
}
int CEdit::GetLine(int line, LPSTR buffer, int maxLength) const {
    if (!buffer || maxLength < int(sizeof(WORD)))
        return 0;
    const WORD size = WORD(std::min(maxLength, 0xFFFF));
    std::memcpy(buffer, &size, sizeof size);
    return int(SendMessage(EM_GETLINE, WPARAM(line), LPARAM(buffer)));
}
CPoint CEdit::PosFromChar(UINT charIndex) const {
    const auto packed = std::uintptr_t(SendMessage(EM_POSFROMCHAR, WPARAM(charIndex)));
    return CPoint(short(LOWORD(packed)), short(HIWORD(packed)));
}
int CEdit::CharFromPos(CPoint point) const {
    return int(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(WORD(point.x), WORD(point.y))));
}
