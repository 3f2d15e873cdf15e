#include "platform/system/SystemParameters.h"

#include "platform/system/SystemMetrics.h"
#include "platform/system/UserSettings.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr UINT kDefaultWheelLines = 3;
constexpr LONG kEightPointHeight = -11; // 8 points at 96 DPI
constexpr LONG kNormalWeight = 400;
constexpr LONG kBoldWeight = 700;

LOGFONT ClassicFont(LONG weight) {
    LOGFONT font{};
    font.lfHeight = kEightPointHeight;
    font.lfWeight = weight;
    std::strcpy(font.lfFaceName, "Tahoma");
    return font;
}

// The desktop setting as decimal text; "-1" asks for page scrolling.
UINT WheelScrollLines() {
    CString text;
    if (!ReadUserSetting(kDesktopKey, "WheelScrollLines", text) || text.IsEmpty())
        return kDefaultWheelLines;
    char* end = nullptr;
    const long lines = std::strtol(text, &end, 10);
    if (end == static_cast<const char*>(text))
        return kDefaultWheelLines;
    return lines < 0 ? WHEEL_PAGESCROLL : UINT(lines);
}

BOOL FillNonClientMetrics(UINT param, NONCLIENTMETRICS* metrics) {
    if (metrics == nullptr)
        return FALSE;
    const UINT size = metrics->cbSize;
    if ((size != sizeof(NONCLIENTMETRICS) && size != NONCLIENTMETRICS_V1_SIZE) ||
        (param != 0 && param != size))
        return FALSE;
    NONCLIENTMETRICS full{};
    full.cbSize = size;
    full.iBorderWidth = 1;
    full.iScrollWidth = GetSystemMetrics(SM_CXVSCROLL);
    full.iScrollHeight = GetSystemMetrics(SM_CYHSCROLL);
    full.iCaptionWidth = GetSystemMetrics(SM_CXSIZE);
    full.iCaptionHeight = GetSystemMetrics(SM_CYSIZE);
    full.lfCaptionFont = ClassicFont(kBoldWeight);
    full.iSmCaptionWidth = GetSystemMetrics(SM_CXSMSIZE);
    full.iSmCaptionHeight = GetSystemMetrics(SM_CYSMSIZE);
    full.lfSmCaptionFont = ClassicFont(kBoldWeight);
    full.iMenuWidth = GetSystemMetrics(SM_CXMENUSIZE);
    full.iMenuHeight = GetSystemMetrics(SM_CYMENUSIZE);
    full.lfMenuFont = ClassicFont(kNormalWeight);
    full.lfStatusFont = ClassicFont(kNormalWeight);
    full.lfMessageFont = ClassicFont(kNormalWeight);
    std::memcpy(metrics, &full, size);
    return TRUE;
}

} // namespace

BOOL SystemParametersInfo(UINT action, UINT param, void* data, UINT) {
    switch (action) {
    case SPI_GETWHEELSCROLLLINES:
        if (data == nullptr)
            return FALSE;
        *static_cast<UINT*>(data) = WheelScrollLines();
        return TRUE;
    case SPI_GETNONCLIENTMETRICS:
        return FillNonClientMetrics(param, static_cast<NONCLIENTMETRICS*>(data));
    default:
        return FALSE;
    }
}

BOOL GetVersionEx(OSVERSIONINFO* info) {
    if (info == nullptr || info->dwOSVersionInfoSize != sizeof(OSVERSIONINFO))
        return FALSE;
    info->dwMajorVersion = 6;
    info->dwMinorVersion = 1;
    info->dwBuildNumber = 7601;
    info->dwPlatformId = VER_PLATFORM_WIN32_NT;
    std::memset(info->szCSDVersion, 0, sizeof(info->szCSDVersion));
    return TRUE;
}
