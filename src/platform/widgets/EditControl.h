#pragma once

// The behaviour of an "Edit" window: the text model, its keys, mouse, clipboard and
// notifications (EditControl.cpp), the lines it shows (EditLayout.cpp), and its layout,
// scrolling and painting (EditView.cpp).
// Internal to the platform; applications use CEdit or the EM_ messages.

#include "platform/base/Rect.h"
#include "platform/widgets/ControlWindow.h"
#include "platform/widgets/EditModel.h"

#include <string>
#include <vector>

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
    // `atLineEnd` puts a caret that stands where a wrapped line breaks at the end of that line
    // rather than at the start of the next.
    void Select(int anchor, int caret, bool atLineEnd = false);
    bool ReadOnly() const { return (Style() & ES_READONLY) != 0; }
    bool Multiline() const { return (Style() & ES_MULTILINE) != 0; }

    // The lines on screen (EditLayout.cpp): the text's own lines, and in a multi-line edit that
    // neither scrolls sideways (ES_AUTOHSCROLL) nor has a horizontal bar, broken between words
    // where the control's width ends.
    struct DisplayLine {
        int start = 0;
        int length = 0;       // up to the line break; a wrapped line keeps its trailing blanks
        bool wrapped = false; // the text goes on in the next line without a break
    };
    bool WrapsWords() const;
    const std::vector<DisplayLine>& Lines() const;
    // The text, the width or the font changed: the lines are laid out again when next asked.
    void Relayout() { m_linesValid = false; }
    int LineCount() const { return int(Lines().size()); }
    // The line of a position; at the break of a wrapped line, the next one.
    int LineOf(int pos) const;
    int CaretLine() const;

    // Layout and painting (EditView.cpp).
    CRect FormatRect() const;
    int LineHeight() const;
    int TextWidth(int pos, int count) const;
    int LineOffset(int line) const; // where the line starts, in client x, scroll included
    CPoint PosToPoint(int pos, bool atLineEnd = false) const;
    // The position nearest a point; `atLineEnd` tells when it is the end of a wrapped line.
    int PointToPos(CPoint point, bool* atLineEnd = nullptr) const;
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
    mutable std::vector<DisplayLine> m_lines;
    mutable bool m_linesValid = false;
    bool m_caretAtLineEnd = false;
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
