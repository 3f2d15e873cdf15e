// Text drawn again looks exactly as it did the first time, whatever its script, font and size:
// the second drawing comes from the kept shapes and glyphs, the first from Pango itself.

#include "DrawingFixture.h"

#include <cstring>
#include <string>

namespace {

constexpr int kTop = 5;
constexpr int kAgain = 60; // where the same text is drawn a second time
constexpr int kBand = kAgain - kTop;

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
const char* const kFaces[] = {"Arial", "Times New Roman", "Courier New"};
const int kHeights[] = {-11, -20};

class RepeatedTextTest : public DrawingTest {};

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
                    int differing = 0;
                    for (int y = kTop; y < kAgain; ++y)
                        for (int x = 0; x < kWidth; ++x)
                            differing += Pixel(x, y) != Pixel(x, y + kBand) ? 1 : 0;
                    EXPECT_EQ(differing, 0)
                        << face << " " << height << " " << int(italic) << " " << text;
                }
                dc.SelectObject(old);
            }
        }
    }
}

} // namespace
