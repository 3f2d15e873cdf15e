// Text drawn from its kept glyphs looks exactly as Pango draws it, and the same again the second
// time, whatever its script, font and size, and it measures as Pango lays it out: Pango itself
// lays out and draws every text that may wrap. Texts keep their own extents while many more come
// than are kept.

#include "DrawingFixture.h"

#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kTop = 5;
constexpr int kAgain = 43;     // where the same text is drawn a second time
constexpr int kReference = 81; // where Pango draws it
constexpr int kBand = kAgain - kTop;

// Latin with accents, Greek, Cyrillic, right-to-left Arabic and Hebrew, CJK from fallback
// fonts, a combining accent, a ligature, a tab and a zero-width space, mixed lines, kerned
// pairs, and a soft hyphen with a no-break space.
const char* const kTexts[] = {"Hello, world",
                              "12.05",
                              "AVATAR To WAVE, Ty Yo",
                              "x\xC2\xAD y\xC2\xA0z \xE2\x80\x8B!",
                              "abc \xE6\xBC\xA2\xE5\xAD\x97 xyz",
                              "\xC3\x9Cn\xC3\xAF str\xC3\x9F",
                              "\xCE\x91\xCE\xB2\xCE\xB3 \xCE\xBB\xCF\x8C\xCE\xB3",
                              "\xD0\x96\xD0\xB8\xD0\xB7\xD0\xBD\xD1\x8C",
                              "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7",
                              "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
                              "\xE6\xBC\xA2\xE5\xAD\x97",
                              "e\xCC\x81t office",
                              "A\tB x\xE2\x80\x8By",
                              "abc \xD9\x85\xD8\xB1\xD8\xAD 123"};
const char* const kFaces[] = {"Arial", "Times New Roman", "Courier New"};
const int kHeights[] = {-11, -20};

class RepeatedTextTest : public DrawingTest {
protected:
    // The width of the text as Pango lays it out where it may wrap, in a line wide enough.
    int LaidOutWidth(const char* text) {
        CRect bounds(0, 0, 4000, 0);
        dc.DrawText(text, -1, &bounds, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        return bounds.Width();
    }

    // Pango's drawing of the text where TextOut(2, top) puts it. A line just as wide as the text
    // keeps a right-to-left paragraph, which Pango aligns to the right, where it starts.
    void DrawLaidOut(const char* text, int top) {
        CRect line(2, top, 2 + LaidOutWidth(text), top + kBand);
        dc.DrawText(text, -1, &line, DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
    }

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
                    // Wrapped text has its tabs turned to blanks.
                    if (std::strchr(text, '\t') != nullptr)
                        continue;
                    EXPECT_EQ(dc.GetTextExtent(text).cx, LaidOutWidth(text))
                        << face << " " << height << " " << int(italic) << " " << text;
                    DrawLaidOut(text, kReference);
                    EXPECT_EQ(DifferingPixels(kTop, kReference), 0)
                        << "against Pango: " << face << " " << height << " " << int(italic) << " "
                        << text;
                }
                dc.SelectObject(old);
            }
        }
    }
}

// Short texts as a table shows them, each new, of any printable characters or of numbers and
// signs alone, in plain and bold italic faces: every one measures and looks as Pango lays it out.
TEST_F(RepeatedTextTest, NewPlainTextsMatchPangoInWidthAndPixels) {
    constexpr char kNumeric[] = "0123456789.,-+ %()";
    std::mt19937 random(16);
    std::uniform_int_distribution<int> printable(' ', '~');
    std::uniform_int_distribution<size_t> numeric(0, sizeof kNumeric - 2);
    std::uniform_int_distribution<int> length(1, 12);
    for (const char* face : kFaces)
        for (const bool boldItalic : {false, true}) {
            LOGFONT lf{};
            lf.lfHeight = -15;
            lf.lfWeight = boldItalic ? FW_BOLD : FW_NORMAL;
            lf.lfItalic = boldItalic;
            std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
            CFont font;
            font.CreateFontIndirect(&lf);
            CFont* old = dc.SelectObject(&font);
            for (int i = 0; i < 200; ++i) {
                std::string text;
                for (int n = length(random); n > 0; --n)
                    text += i % 2 == 0 ? char(printable(random)) : kNumeric[numeric(random)];
                ASSERT_EQ(dc.GetTextExtent(text.c_str()).cx, LaidOutWidth(text.c_str()))
                    << face << " [" << text << "]";
                dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), RGB(255, 255, 255));
                dc.TextOut(2, kTop, text.c_str());
                DrawLaidOut(text.c_str(), kReference);
                ASSERT_EQ(DifferingPixels(kTop, kReference), 0) << face << " [" << text << "]";
            }
            dc.SelectObject(old);
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
