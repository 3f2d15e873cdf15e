// The lines an edit control shows: one for each line of its text, and in a control that wraps,
// each of those broken where the next word would run past the control's width. Blanks at a
// break stay at the end of the line, where they may overhang; a word wider than the control is
// broken where it fills the line.

#include "platform/widgets/EditControl.h"

#include "platform/gdi/DC.h"

#include <algorithm>

namespace widgets {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// Measures texts in the control's font through one context.
class Measure {
public:
    explicit Measure(HWND hwnd) : m_hwnd(hwnd), m_dc(CDC::FromHandle(::GetDC(hwnd))) {
        if (m_dc)
            m_old = m_dc->SelectObject(ControlFont(hwnd));
    }
    ~Measure() {
        if (!m_dc)
            return;
        m_dc->SelectObject(m_old);
        ::ReleaseDC(m_hwnd, m_dc->GetSafeHdc());
    }
    Measure(const Measure&) = delete;
    Measure& operator=(const Measure&) = delete;
    int Width(const char* text, int count) const {
        return m_dc && count > 0 ? m_dc->GetTextExtent(text, count).cx : 0;
    }

private:
    HWND m_hwnd;
    CDC* m_dc;
    CFont* m_old = nullptr;
};

// The most characters from `text` (at least one) that fit in `width`.
int FittingCount(const Measure& measure, const char* text, int count, int width) {
    int low = 1, high = count; // the answer lies in [low, high]
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (measure.Width(text, middle) <= width)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

} // namespace

bool EditBehaviour::WrapsWords() const {
    return Multiline() && !(Style() & (ES_AUTOHSCROLL | WS_HSCROLL));
}

const std::vector<EditBehaviour::DisplayLine>& EditBehaviour::Lines() const {
    if (m_linesValid)
        return m_lines;
    m_lines.clear();
    const std::string& text = m_model.Text();
    const int width = WrapsWords() ? FormatRect().Width() : 0;
    const Measure measure(Window());
    for (int line = 0; line < m_model.LineCount(); ++line) {
        int start = m_model.LineStart(line);
        const int end = start + m_model.LineLength(line);
        while (width > 0 && start < end) {
            // No character is narrower than a pixel, so no more than `width` of them fit: a long
            // paragraph is measured a line at a time, not to its end.
            const int probe = std::min(end - start, width + 1);
            if (probe == end - start && measure.Width(text.c_str() + start, probe) <= width)
                break;
            int cut = start + FittingCount(measure, text.c_str() + start, probe, width);
            if (IsBlank(text[size_t(cut)])) {
                while (cut < end && IsBlank(text[size_t(cut)]))
                    ++cut; // the blanks overhang
            } else {
                int word = cut;
                while (word > start && !IsBlank(text[size_t(word - 1)]))
                    --word;
                if (word > start)
                    cut = word; // the whole word goes to the next line
            }
            if (cut >= end)
                break;
            m_lines.push_back({start, cut - start, true});
            start = cut;
        }
        m_lines.push_back({start, end - start, false});
    }
    m_linesValid = true;
    return m_lines;
}

int EditBehaviour::LineOf(int pos) const {
    const std::vector<DisplayLine>& lines = Lines();
    const auto after = std::upper_bound(lines.begin(), lines.end(), pos,
                                        [](int p, const DisplayLine& l) { return p < l.start; });
    return std::max(0, int(after - lines.begin()) - 1);
}

int EditBehaviour::CaretLine() const {
    const int caret = m_model.Caret();
    const int line = LineOf(caret);
    if (m_caretAtLineEnd && line > 0 && Lines()[size_t(line)].start == caret &&
        Lines()[size_t(line - 1)].wrapped)
        return line - 1;
    return line;
}

} // namespace widgets
