// The edit control's text, selection, words, lines and undo.

#include "platform/widgets/EditModel.h"

#include <algorithm>
#include <cctype>

namespace widgets {

void EditModel::SetText(std::string_view text) {
    m_text.assign(text);
    m_anchor = m_caret = 0;
    m_undo.valid = false;
}

std::string EditModel::SelectedText() const {
    return m_text.substr(size_t(SelStart()), size_t(SelEnd() - SelStart()));
}

int EditModel::Clamp(int pos) const {
    pos = std::clamp(pos, 0, Length());
    if (pos > 0 && pos < Length() && m_text[size_t(pos - 1)] == '\r' && m_text[size_t(pos)] == '\n')
        --pos;
    return pos;
}

void EditModel::Select(int anchor, int caret) {
    m_anchor = Clamp(anchor);
    m_caret = Clamp(caret);
}

bool EditModel::ReplaceSelection(std::string_view text, bool typing) {
    const int start = SelStart();
    const int removed = SelEnd() - start;
    const int room = std::max(0, m_limit - (Length() - removed));
    const bool fits = int(text.size()) <= room;
    if (!fits)
        text = text.substr(0, size_t(room));
    if (text.empty() && removed == 0)
        return fits;
    const bool continues =
        typing && m_undo.valid && m_undo.typing && !HasSelection() && m_undo.typingEnd == m_caret;
    if (!continues) {
        m_undo = UndoState{true, m_text, m_anchor, m_caret, typing, 0};
    }
    m_text.replace(size_t(start), size_t(removed), text);
    m_anchor = m_caret = start + int(text.size());
    m_undo.typingEnd = m_caret;
    return fits;
}

bool EditModel::Undo() {
    if (!m_undo.valid)
        return false;
    std::swap(m_text, m_undo.text);
    std::swap(m_anchor, m_undo.anchor);
    std::swap(m_caret, m_undo.caret);
    m_undo.typing = false;
    return true;
}

int EditModel::CharBefore(int pos) const {
    pos = Clamp(pos);
    if (pos >= 2 && m_text[size_t(pos - 2)] == '\r' && m_text[size_t(pos - 1)] == '\n')
        return pos - 2;
    return std::max(0, pos - 1);
}

int EditModel::CharAfter(int pos) const {
    pos = Clamp(pos);
    if (pos + 1 < Length() && m_text[size_t(pos)] == '\r' && m_text[size_t(pos + 1)] == '\n')
        return pos + 2;
    return std::min(Length(), pos + 1);
}

bool EditModel::IsWordChar(int pos) const {
    const unsigned char c = static_cast<unsigned char>(m_text[size_t(pos)]);
    return !std::isspace(c);
}

// A word is a run of characters that are not blanks; moving by words stops at the start of
// each, as the framework's edit control does.
int EditModel::WordBefore(int pos) const {
    pos = Clamp(pos);
    while (pos > 0 && !IsWordChar(pos - 1))
        --pos;
    while (pos > 0 && IsWordChar(pos - 1))
        --pos;
    return Clamp(pos);
}

int EditModel::WordAfter(int pos) const {
    pos = Clamp(pos);
    if (pos < Length() && (m_text[size_t(pos)] == '\r' || m_text[size_t(pos)] == '\n'))
        return CharAfter(pos);
    while (pos < Length() && IsWordChar(pos))
        ++pos;
    while (pos < Length() && !IsWordChar(pos) && m_text[size_t(pos)] != '\r' &&
           m_text[size_t(pos)] != '\n')
        ++pos;
    return Clamp(pos);
}

void EditModel::WordAround(int pos, int& start, int& end) const {
    pos = Clamp(pos);
    start = end = pos;
    if (Length() == 0)
        return;
    const int probe = pos < Length() ? pos : pos - 1;
    const bool word = IsWordChar(probe);
    start = end = probe;
    const auto same = [&](int i) {
        const char c = m_text[size_t(i)];
        return IsWordChar(i) == word && c != '\r' && c != '\n';
    };
    if (!same(probe)) {
        start = pos;
        end = pos;
        return;
    }
    while (start > 0 && same(start - 1))
        --start;
    while (end < Length() && same(end))
        ++end;
}

int EditModel::LineCount() const {
    return 1 + int(std::count(m_text.begin(), m_text.end(), '\n'));
}

int EditModel::LineFromPos(int pos) const {
    pos = std::clamp(pos, 0, Length());
    return int(std::count(m_text.begin(), m_text.begin() + pos, '\n'));
}

int EditModel::LineStart(int line) const {
    if (line <= 0)
        return 0;
    int seen = 0;
    for (int i = 0; i < Length(); ++i)
        if (m_text[size_t(i)] == '\n' && ++seen == line)
            return i + 1;
    return Length();
}

int EditModel::LineLength(int line) const {
    const int start = LineStart(line);
    int end = start;
    while (end < Length() && m_text[size_t(end)] != '\n')
        ++end;
    if (end > start && m_text[size_t(end - 1)] == '\r')
        --end;
    return end - start;
}

} // namespace widgets
