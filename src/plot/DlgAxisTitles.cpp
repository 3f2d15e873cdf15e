// The axis titles dialog, laid out in dialog units of its font.

#include "plot/DlgAxisTitles.h"

#include "platform/window/DialogTemplate.h"
#include "platform/window/WindowStyles.h"

namespace {

constexpr UINT kNoId = 0xFFFF; // labels and the group box are never addressed

DialogTemplate AxisTitlesTemplate() {
    constexpr DWORD shown = WS_VISIBLE;
    constexpr DWORD field = shown | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL;
    DialogTemplate t;
    t.caption = "Axis Titles";
    t.size = {192, 101};
    t.fontFace = "MS Sans Serif";
    t.pointSize = 8;
    // Places as left, top, right, bottom; in the order of the Tab key.
    t.items = {
        {"Button", "Axis Titles", kNoId, shown | BS_GROUPBOX, {5, 5, 185, 75}},
        {"Static", "X Axis:", kNoId, shown | SS_LEFT, {10, 25, 40, 33}},
        {"Edit", "", UINT(CDlgAxisTitles::IDC_X_TITLE), field | WS_GROUP, {45, 22, 150, 36}},
        {"Static", "Y Axis:", kNoId, shown | SS_LEFT, {10, 45, 42, 53}},
        {"Edit", "", UINT(CDlgAxisTitles::IDC_Y_TITLE), field, {45, 42, 150, 56}},
        {"Button",
         "OK",
         UINT(IDOK),
         shown | WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON,
         {75, 80, 125, 94}},
        {"Button",
         "Cancel",
         UINT(IDCANCEL),
         shown | WS_TABSTOP | BS_PUSHBUTTON,
         {135, 80, 185, 94}},
    };
    return t;
}

} // namespace

CDlgAxisTitles::CDlgAxisTitles(CWnd* parent) : CDialogORVA(IDD, parent) {
    InitModalIndirect(AxisTitlesTemplate(), parent);
}

void CDlgAxisTitles::DoDataExchange(CDataExchange* dx) {
    CDialogORVA::DoDataExchange(dx);
    DDX_Text(dx, IDC_X_TITLE, m_xTitle);
    DDX_Text(dx, IDC_Y_TITLE, m_yTitle);
}
