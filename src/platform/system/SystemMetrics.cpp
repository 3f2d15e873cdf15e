#include "platform/system/SystemMetrics.h"

namespace {

constexpr int kScreenWidth = 1920;
constexpr int kScreenHeight = 1080;
constexpr int kCaptionHeight = 19;

} // namespace

int GetSystemMetrics(int index) {
    switch (index) {
    case SM_CXSCREEN:
    case SM_CXFULLSCREEN:
    case SM_CXVIRTUALSCREEN:
        return kScreenWidth;
    case SM_CYSCREEN:
    case SM_CYVIRTUALSCREEN:
        return kScreenHeight;
    case SM_CYFULLSCREEN:
        return kScreenHeight - kCaptionHeight;
    case SM_CXVSCROLL:
    case SM_CYHSCROLL:
        return 17;
    case SM_CYVSCROLL:
    case SM_CXHSCROLL:
    case SM_CYVTHUMB:
    case SM_CXHTHUMB:
    case SM_CXSMICON:
    case SM_CYSMICON:
        return 16;
    case SM_CYCAPTION:
    case SM_CYMENU:
        return kCaptionHeight;
    case SM_CXBORDER:
    case SM_CYBORDER:
    case SM_CXFOCUSBORDER:
    case SM_CYFOCUSBORDER:
    case SM_MOUSEPRESENT:
    case SM_MOUSEWHEELPRESENT:
    case SM_CMONITORS:
        return 1;
    case SM_CXDLGFRAME:
    case SM_CYDLGFRAME:
        return 3;
    case SM_CXICON:
    case SM_CYICON:
    case SM_CXCURSOR:
    case SM_CYCURSOR:
        return 32;
    case SM_CXMIN:
    case SM_CXMINTRACK:
        return 112;
    case SM_CYMIN:
    case SM_CYMINTRACK:
        return 27;
    case SM_CXSIZE:
    case SM_CYSIZE:
    case SM_CXMENUSIZE:
    case SM_CYMENUSIZE:
        return 18;
    case SM_CXSIZEFRAME:
    case SM_CYSIZEFRAME:
    case SM_CXDOUBLECLK:
    case SM_CYDOUBLECLK:
    case SM_CXDRAG:
    case SM_CYDRAG:
        return 4;
    case SM_CXICONSPACING:
    case SM_CYICONSPACING:
        return 75;
    case SM_CMOUSEBUTTONS:
        return 3;
    case SM_CXEDGE:
    case SM_CYEDGE:
        return 2;
    case SM_CYSMCAPTION:
        return 15;
    case SM_CXSMSIZE:
        return 12;
    case SM_CYSMSIZE:
        return 14;
    case SM_CXMAXTRACK:
        return kScreenWidth + 12;
    case SM_CYMAXTRACK:
        return kScreenHeight + 12;
    case SM_CXMAXIMIZED:
        return kScreenWidth + 8;
    case SM_CYMAXIMIZED:
        return kScreenHeight + 8;
    case SM_CXMENUCHECK:
    case SM_CYMENUCHECK:
        return 13;
    default:
        return 0;
    }
}
