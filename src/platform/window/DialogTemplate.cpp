// The table of dialog templates, the dialog font and the conversion of dialog units.

#include "platform/window/DialogTemplate.h"

#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"

#include <cstring>
#include <map>
#include <utility>

namespace {

constexpr char kAverageWidthSample[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kSampleLetters = 26; // the sample is twice the alphabet: the rounding halves it
constexpr int kPointsPerInch = 72;

std::map<UINT, DialogTemplate>& Templates() {
    static std::map<UINT, DialogTemplate>& templates = *new std::map<UINT, DialogTemplate>;
    return templates;
}

// a * b / c rounded to the nearest integer, halves away from zero.
int Scale(int a, int b, int c) {
    const long long product = static_cast<long long>(a) * b;
    const long long half = c / 2;
    return int(product >= 0 ? (product + half) / c : (product - half) / c);
}

} // namespace

void RegisterDialogTemplate(UINT templateId, DialogTemplate dialogTemplate) {
    Templates()[templateId] = std::move(dialogTemplate);
}

const DialogTemplate* FindDialogTemplate(UINT templateId) {
    auto it = Templates().find(templateId);
    return it == Templates().end() ? nullptr : &it->second;
}

HFONT CreateDialogFont(const DialogTemplate& dialogTemplate) {
    HDC screen = CreateCompatibleDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    DeleteDC(screen);
    LOGFONT lf{};
    lf.lfHeight = -Scale(dialogTemplate.pointSize, dpi, kPointsPerInch);
    lf.lfWeight = FW_NORMAL;
    std::strncpy(lf.lfFaceName, dialogTemplate.fontFace.c_str(), LF_FACESIZE - 1);
    return CreateFontIndirect(&lf);
}

SIZE DialogBaseUnitsOf(HFONT font) {
    HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, font);
    SIZE sample{};
    GetTextExtentPoint32(dc, kAverageWidthSample, int(std::strlen(kAverageWidthSample)), &sample);
    TEXTMETRIC metrics{};
    GetTextMetrics(dc, &metrics);
    SelectObject(dc, old);
    DeleteDC(dc);
    return SIZE{(sample.cx / kSampleLetters + 1) / 2, metrics.tmHeight};
}

void DialogUnitsToPixels(SIZE baseUnits, RECT* rect) {
    rect->left = Scale(rect->left, baseUnits.cx, 4);
    rect->right = Scale(rect->right, baseUnits.cx, 4);
    rect->top = Scale(rect->top, baseUnits.cy, 8);
    rect->bottom = Scale(rect->bottom, baseUnits.cy, 8);
}
