// Text drawn from its kept glyphs looks exactly as Pango draws it, and the same again the second
// time, whatever its script, font and size. Pango itself draws texts too long to keep: with
// trailing blanks a left-to-right text becomes one, and its glyphs stay where they were. Texts
// keep their own extents while many more come than are kept.

#include "DrawingFixture.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr int kTop = 5;
constexpr int kAgain = 43;     // where the same text is drawn a second time
constexpr int kReference = 81; // where Pango draws it
constexpr int kBand = kAgain - kTop;
constexpr size_t kBlanksPastTheLongestKept = 300;

// Latin with accents, Greek, Cyrillic, right-to-left Arabic and Hebrew, CJK from fallback
// fonts, a combining accent, a ligature, a tab and a zero-width space, and a mixed line.
const char* const kTexts[] = {"Hello, world",
                              "12.05",
                              "\xC3\x9Cn\xC3\xAF str\xC3\x9F",
                              "\xCE\x91\xCE\xB2\xCE\xB3 \xCE\xBB\xCF\x8C\xCE\xB3",
                              "\xD0\x96\xD0\xB8\xD0\xB7\xD0\xBD\xD1\x8C",
                              "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7",
                              "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
                              "\xE6\xBC\xA2\xE5\xAD\x97",
                              "e\xCC\x81t office",
                              "A\tB x\xE2\x80\x8By",
                              "abc \xD9\x85\xD8\xB1\xD8\xAD 123"};
// Blanks after a right-to-left text go before it, and after a text from a fallback font they
// change the line's height.
bool BlanksMove(const std::string& text) {
    // Lead bytes of Hebrew, Arabic and CJK letters.
    return text.find_first_of("\xD7\xD8\xD9\xE6") != std::string::npos;
}
const char* const kFaces[] = {"Arial", "Times New Roman", "Courier New"};
const int kHeights[] = {-11, -20};

class RepeatedTextTest : public DrawingTest {
protected:
    int DifferingPixels(int top, int otherTop) const {
        int differing = 0;
        for (int y = 0; y < kBand; ++y)
            for (int x = 0; x < kWidth; ++x)
                differing += Pixel(x, top + y) != Pixel(x, otherTop + y) ? 1 : 0;
        return differing;
    }
};

TEST_F(RepeatedTextTest, TextDrawnAgainHasTheSamePixels) {
    for (const char* face : kFaces) {
        for (const int height : kHeights) {
            for (const BYTE italic : {BYTE(0), BYTE(1)}) {
                LOGFONT lf{};
                lf.lfHeight = height;
                lf.lfItalic = italic;
                std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
                CFont font;
                font.CreateFontIndirect(&lf);
                CFont* old = dc.SelectObject(&font);
                for (const char* text : kTexts) {
                    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), RGB(255, 255, 255));
                    dc.TextOut(2, kTop, text);
                    dc.TextOut(2, kAgain, text);
                    EXPECT_FALSE(Ink(CRect(0, kAgain, kWidth, kAgain + kBand)).IsRectEmpty());
                    EXPECT_EQ(DifferingPixels(kTop, kAgain), 0)
                        << face << " " << height << " " << int(italic) << " " << text;
                    if (BlanksMove(text))
                        continue;
                    dc.TextOut(2, kReference,
                               std::string(text).append(kBlanksPastTheLongestKept, ' ').c_str());
                    EXPECT_EQ(DifferingPixels(kTop, kReference), 0)
                        << "against Pango: " << face << " " << height << " " << int(italic) << " "
                        << text;
                }
                dc.SelectObject(old);
            }
        }
    }
}

// Far more texts than are kept, of widths that differ from their neighbours', measured again in
// the reverse order and then forwards: each answer is the text's own, whether it was kept or
// shaped anew after its place went to another text.
TEST_F(RepeatedTextTest, ExtentsStayTheTextsOwnWhileKeptTextsAreReplaced) {
    constexpr int kTexts = 20000;
    auto text = [](int i) {
        return std::string(std::size_t(i % 11 + 1), 'W') + std::string(std::size_t(i % 7), 'i') +
               std::to_string(i);
    };
    std::vector<CSize> first;
    first.reserve(kTexts);
    for (int i = 0; i < kTexts; ++i)
        first.push_back(dc.GetTextExtent(text(i).c_str()));
    int wrong = 0;
    for (int i = kTexts - 1; i >= 0; --i)
        wrong += dc.GetTextExtent(text(i).c_str()) != first[std::size_t(i)] ? 1 : 0;
    for (int i = 0; i < kTexts; i += 3)
        wrong += dc.GetTextExtent(text(i).c_str()) != first[std::size_t(i)] ? 1 : 0;
    EXPECT_EQ(wrong, 0);
    EXPECT_NE(first[0], first[1]);
}

} // namespace
