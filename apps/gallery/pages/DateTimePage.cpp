// Dates and times: date-and-time pickers in a dialog, in the regional short and long date, the
// time, a custom format with quoted literals, one that may be empty, and one with its month
// calendar dropped down.

#include "GalleryPage.h"

#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/Dialog.h"

#include <array>

namespace {

constexpr UINT kTemplateId = 3301;
constexpr UINT kFirstPickerId = 3310;
constexpr int kRowHeight = 20; // dialog units from one row to the next
constexpr int kFirstRow = 10;
// A fixed moment, so that the pictures are the same from run to run.
constexpr SYSTEMTIME kShown{2024, 2, 4, 29, 14, 5, 9, 0};
constexpr SYSTEMTIME kToday{2024, 2, 4, 13, 0, 0, 0, 0};

struct Row {
    const char* label;
    DWORD style;
    const char* format; // a custom format, or null for the style's
};

const std::array<Row, 6> kRows{{
    {"Short date", DTS_SHORTDATEFORMAT, nullptr},
    {"Long date", DTS_LONGDATEFORMAT, nullptr},
    {"Time", DTS_TIMEFORMAT, nullptr},
    {"Custom, quoted", DTS_SHORTDATEFORMAT, "'Due' d MMM yyyy 'at' HH':'mm"},
    {"May be empty", DTS_SHOWNONE, nullptr},
    {"Calendar open", DTS_SHORTDATEFORMAT, nullptr},
}};

void RegisterTemplate() {
    DialogTemplate dialog{
        "Dates and times", {236, kFirstRow * 2 + int(kRows.size()) * kRowHeight}, {}};
    for (size_t i = 0; i < kRows.size(); ++i) {
        const int top = kFirstRow + int(i) * kRowHeight;
        dialog.items.push_back(
            {"Static", kRows[i].label, UINT(-1), WS_VISIBLE | SS_LEFT, {8, top + 3, 84, top + 13}});
        dialog.items.push_back({DATETIMEPICK_CLASS,
                                "",
                                kFirstPickerId + UINT(i),
                                WS_VISIBLE | WS_TABSTOP | kRows[i].style,
                                {88, top, 228, top + 14}});
    }
    RegisterDialogTemplate(kTemplateId, dialog);
}

// The page's dialog with its pickers. It deletes itself when its window ends, as the gallery
// ends every window before it exits: a static dialog would outlive the drawing objects' table.
class DatesDialog : public CDialog {
public:
    DatesDialog() : CDialog(kTemplateId) {}
    std::array<CDateTimeCtrl, kRows.size()> pickers;

protected:
    void PostNcDestroy() override { delete this; }
};

void BuildDateTimePage(GalleryContext& context) {
    RegisterTemplate();
    auto* page = new DatesDialog; // deletes itself with its window
    CDialog& dialog = *page;
    if (!dialog.Create(kTemplateId)) {
        context.Print("the dialog could not be made");
        return;
    }
    dialog.SetWindowPos(nullptr, 60, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    auto& pickers = page->pickers;
    for (size_t i = 0; i < kRows.size(); ++i) {
        CDateTimeCtrl& picker = pickers[i];
        picker.SubclassDlgItem(kFirstPickerId + UINT(i), &dialog);
        picker.SetTime(&kShown);
        if (kRows[i].format)
            picker.SetFormat(kRows[i].format);
    }
    CDateTimeCtrl& custom = pickers[3];
    custom.SetFocus();
    custom.SendMessage(WM_KEYDOWN, VK_RIGHT); // the month field chosen
    dialog.ShowWindow(SW_SHOW);
    dialog.UpdateWindow();
    context.Capture(dialog.m_hWnd, "33-date-time");

    CDateTimeCtrl& dropped = pickers.back();
    dropped.SetFocus();
    dropped.SendMessage(WM_KEYDOWN, VK_F4);
    if (CMonthCalCtrl* calendar = dropped.GetMonthCalCtrl()) {
        calendar->SetToday(&kToday);
        context.Capture(calendar->m_hWnd, "33-date-time-calendar");
        COleDateTime chosen;
        calendar->GetCurSel(chosen);
        context.Print("calendar open on %s, today %d/%d/%d", chosen.Format().GetString(),
                      kToday.wMonth, kToday.wDay, kToday.wYear);
        // Closed again, so that on a display the user opens it.
        dropped.SendMessage(DTM_CLOSEMONTHCAL);
    }
    for (size_t i = 0; i < kRows.size(); ++i) {
        COleDateTime value;
        pickers[i].GetTime(value);
        context.Print("%s: %s", kRows[i].label, value.Format().GetString());
    }
}

} // namespace

GALLERY_PAGE("33-date-time", "Dates and times", BuildDateTimePage);
