#include "platform/system/SysColors.h"

#include <array>

namespace {

using ColorTable = std::array<COLORREF, COLOR_COUNT>;

constexpr ColorTable kClassicScheme = {
    RGB(212, 208, 200), // COLOR_SCROLLBAR
    RGB(58, 110, 165),  // COLOR_BACKGROUND
    RGB(10, 36, 106),   // COLOR_ACTIVECAPTION
    RGB(128, 128, 128), // COLOR_INACTIVECAPTION
    RGB(212, 208, 200), // COLOR_MENU
    RGB(255, 255, 255), // COLOR_WINDOW
    RGB(0, 0, 0),       // COLOR_WINDOWFRAME
    RGB(0, 0, 0),       // COLOR_MENUTEXT
    RGB(0, 0, 0),       // COLOR_WINDOWTEXT
    RGB(255, 255, 255), // COLOR_CAPTIONTEXT
    RGB(212, 208, 200), // COLOR_ACTIVEBORDER
    RGB(212, 208, 200), // COLOR_INACTIVEBORDER
    RGB(128, 128, 128), // COLOR_APPWORKSPACE
    RGB(10, 36, 106),   // COLOR_HIGHLIGHT
    RGB(255, 255, 255), // COLOR_HIGHLIGHTTEXT
    RGB(212, 208, 200), // COLOR_3DFACE
    RGB(128, 128, 128), // COLOR_3DSHADOW
    RGB(128, 128, 128), // COLOR_GRAYTEXT
    RGB(0, 0, 0),       // COLOR_BTNTEXT
    RGB(212, 208, 200), // COLOR_INACTIVECAPTIONTEXT
    RGB(255, 255, 255), // COLOR_3DHILIGHT
    RGB(64, 64, 64),    // COLOR_3DDKSHADOW
    RGB(212, 208, 200), // COLOR_3DLIGHT
    RGB(0, 0, 0),       // COLOR_INFOTEXT
    RGB(255, 255, 225), // COLOR_INFOBK
    RGB(181, 181, 181), // 25, unused by the system
    RGB(0, 0, 128),     // COLOR_HOTLIGHT
    RGB(166, 202, 240), // COLOR_GRADIENTACTIVECAPTION
    RGB(192, 192, 192), // COLOR_GRADIENTINACTIVECAPTION
    RGB(10, 36, 106),   // COLOR_MENUHILIGHT
    RGB(212, 208, 200), // COLOR_MENUBAR
};

// The live table; the user-interface thread is the only reader and writer, so no lock.
ColorTable& LiveColors() {
    static ColorTable colors = kClassicScheme;
    return colors;
}

bool IsInTable(int index) {
    return index >= 0 && index < COLOR_COUNT;
}

} // namespace

COLORREF GetSysColor(int index) {
    return IsInTable(index) ? LiveColors()[index] : 0;
}

BOOL SetSysColors(int count, const int* elements, const COLORREF* values) {
    if (count < 0 || (count > 0 && (elements == nullptr || values == nullptr)))
        return FALSE;
    BOOL allSet = TRUE;
    for (int i = 0; i < count; ++i) {
        if (IsInTable(elements[i]))
            LiveColors()[elements[i]] = values[i];
        else
            allSet = FALSE;
    }
    return allSet;
}

void RestoreDefaultSysColors() {
    LiveColors() = kClassicScheme;
}
