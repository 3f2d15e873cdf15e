#pragma once

// The behaviour of an "Edit" window: the text model, its keys, mouse, clipboard and
// notifications (EditControl.cpp), and its layout, scrolling and painting (EditView.cpp).
// Internal to the platform; applications use CEdit or the EM_ messages.

#include "platform/base/Rect.h"
#include "platform/widgets/ControlWindow.h"
#include "platform/widgets/EditModel.h"

#include <string>

class CDC;

namespace widgets {

class EditBehaviour : public ControlBehaviour {
public:
    explicit EditBehaviour(HWND hwnd) : ControlBehaviour(hwnd) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // Messages (EditControl.cpp).
    void OnKeyDown(UINT key);
    void OnChar(UINT ch);
    void OnButtonDown(CPoint point, bool extend);
    void OnMouseMove(CPoint point);
    void OnDoubleClick(CPoint point);
    void OnSetFocus();
    void OnKillFocus();
    LRESULT OnSetText(const char* text);
    LRESULT OnGetText(WPARAM maxCount, char* buffer) const;
    void Copy() const;
    void Paste();
    void Cut();
    void Undo();
    // Replaces the selection with `text` and tells the parent; false if the window went.
    bool Change(std::string_view text, bool typing = false);
    bool Notify(UINT code) { return NotifyParent(code); }
    void Select(int anchor, int caret);
    bool ReadOnly() const { return (Style() & ES_READONLY) != 0; }
    bool Multiline() const { return (Style() & ES_MULTILINE) != 0; }

    // Layout and painting (EditView.cpp).
    CRect FormatRect() const;
    int LineHeight() const;
    int TextWidth(int pos, int count) const;
    int LineOffset(int line) const; // where the line starts, in client x, scroll included
    CPoint PosToPoint(int pos) const;
    int PointToPos(CPoint point) const;
    int WidestLine() const;
    // Scrolls so that the caret is in view; true if the view moved.
    bool ScrollToCaret();
    // The lines of a multi-line edit: how many show, the scroll bar, and scrolling the view
    // without moving the caret.
    int VisibleLines() const;
    void UpdateScrollBar();
    void ScrollLines(int firstLine);
    void OnVScroll(UINT request);
    void Redraw();
    void RestartCaretBlink();
    void Paint(CDC& dc) override;
    void PaintLine(CDC& dc, int line, const CRect& format, COLORREF text);

    static constexpr UINT_PTR kCaretTimer = 0xEC01; // clear of the ids a derived class picks
    static constexpr int kWheelLines = 3;

    EditModel m_model;
    bool m_focused = false;
    bool m_caretShown = false;
    bool m_selecting = false; // the mouse is extending the selection
    bool m_modified = false;
    int m_scrollX = 0;   // pixels scrolled to the left
    int m_firstLine = 0; // first line shown (multi-line)
    int m_leftMargin = 1;
    int m_rightMargin = 1;
    int m_preferredX = -1; // the x that Up and Down keep, while they repeat
};

} // namespace widgets
