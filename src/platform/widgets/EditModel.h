#pragma once

// The text of an edit control without its window: the text, the selection as an anchor and a
// caret, the limit of its length, lines, words, and one level of undo. Positions are byte
// offsets; a line break is "\r\n" and the caret never stands inside one.

#include <string>
#include <string_view>

namespace widgets {

class EditModel {
public:
    const std::string& Text() const { return m_text; }
    int Length() const { return int(m_text.size()); }
    // Replaces the whole text, caret at the start, undo forgotten.
    void SetText(std::string_view text);

    int Anchor() const { return m_anchor; }
    int Caret() const { return m_caret; }
    int SelStart() const { return std::min(m_anchor, m_caret); }
    int SelEnd() const { return std::max(m_anchor, m_caret); }
    bool HasSelection() const { return m_anchor != m_caret; }
    std::string SelectedText() const;
    // Positions are clamped to the text and kept out of line breaks.
    void Select(int anchor, int caret);
    void MoveCaret(int caret, bool extend) { Select(extend ? m_anchor : caret, caret); }

    // The most bytes the text may hold.
    int Limit() const { return m_limit; }
    void SetLimit(int limit) { m_limit = limit; }

    // Puts `text` in place of the selection, cut short to stay within the limit; the caret
    // follows the insertion. Answers false when the text had to be cut short. `typing` merges
    // the change with the one before into one undo step while the caret moves on from it.
    bool ReplaceSelection(std::string_view text, bool typing = false);
    bool CanUndo() const { return m_undo.valid; }
    // Goes back to the text before the last change; a second undo redoes it.
    bool Undo();
    void ForgetUndo() { m_undo.valid = false; }

    // Neighbours of a position: one character (a line break counts as one), a word.
    int CharBefore(int pos) const;
    int CharAfter(int pos) const;
    int WordBefore(int pos) const;
    int WordAfter(int pos) const;
    // The word (or the run of blanks) around a position, for a double click.
    void WordAround(int pos, int& start, int& end) const;

    // Lines, broken at "\r\n" (and a lone "\n").
    int LineCount() const;
    int LineFromPos(int pos) const;
    int LineStart(int line) const;
    int LineLength(int line) const;

private:
    int Clamp(int pos) const;
    bool IsWordChar(int pos) const;

    struct UndoState {
        bool valid = false;
        std::string text;
        int anchor = 0, caret = 0;
        bool typing = false; // the change was typing that may go on
        int typingEnd = 0;   // where the caret stood after it
    };

    std::string m_text;
    int m_anchor = 0;
    int m_caret = 0;
    int m_limit = 30000;
    UndoState m_undo;
};

} // namespace widgets
