// The typed spreadsheet: a culvert table in a resizable dialog, whose placeholder control the
// spreadsheet takes over, fitting its height to whole rows. Every column has a type: the
// culvert id is text, chainage, inverts and diameter are floats with their precision, barrels
// an integer, the material a list, the inspection a date, "surveyed" a check box, a colour, a
// "Details" button, the flow a number or a curve, and a map symbol of the application's own
// kind. A scripted user edits one cell of each kind; the dialog is captured at its design size
// and larger. In a window every editor opens and works, and the status line says what the
// application heard.
//
// Sections: the dialog's template; the dialog, as the application writes it; the user's hand
// (where cells, arrows, list items and days are); the scripted edits; the page.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "cells/ColorChooserDlg.h"
#include "cells/GridCellFltXYCrv.h"
#include "controls/DialogORVA.h"
#include "platform/system/DateTime.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/CalendarDays.h"
#include "platform/testing/ModalResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"
#include "spreadsheet/SpreadSheetORVA.h"

#include <cstdio>
#include <string>

namespace {

constexpr UINT kCulvertDialog = 4501;
constexpr UINT kSheetId = 4502;
constexpr UINT kStatusId = 4503;
constexpr UINT kCaptionId = 4504;
constexpr UINT kGripId = 4505;
constexpr int kRows = 7;
constexpr int kGrowX = 160;
constexpr int kGrowY = 110;
constexpr int kArrowInset = 3;

enum Column {
    kNumber,
    kCulvert,
    kChainage,
    kUpstream,
    kDownstream,
    kDiameter,
    kBarrels,
    kMaterial,
    kInspected,
    kSurveyed,
    kColour,
    kDetails,
    kFlow,
    kSymbol,
    kColumns
};

const char* const kHeadings[kColumns] = {
    "",         "Culvert",   "Chainage", "US invert", "DS invert", "Diameter", "Barrels",
    "Material", "Inspected", "Surveyed", "Colour",    "Details",   "Flow",     "Symbol"};
const int kWidths[kColumns] = {24, 56, 62, 64, 64, 60, 52, 116, 84, 76, 46, 56, 92, 62};
const char* const kMaterials[] = {"Concrete", "Corrugated steel", "HDPE", "Masonry"};
const char* const kFlowChoices[] = {"<constant>", "<hydrograph>", "<gauge data>"};

// ---- The dialog's template ---------------------------------------------------------------------

void RegisterCulvertTemplate() {
    DialogTemplate dialog{"Culverts of reach 3", {640, 150}, {}};
    dialog.style |= WS_THICKFRAME;
    dialog.items = {
        {"Static", "Culverts, upstream to downstream:", kCaptionId, WS_VISIBLE, {6, 5, 200, 14}},
        // The placeholder that the spreadsheet takes over.
        {GRIDCTRL_CLASSNAME,
         "",
         kSheetId,
         WS_VISIBLE | WS_TABSTOP,
         {6, 16, 634, 122},
         WS_EX_CLIENTEDGE},
        {"Static", "", kStatusId, WS_VISIBLE, {6, 130, 520, 140}},
        {"Button", "OK", IDOK, WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, {524, 128, 574, 142}},
        {"Button", "Cancel", IDCANCEL, WS_VISIBLE | WS_TABSTOP, {580, 128, 630, 142}},
        {"ScrollBar", "", kGripId, WS_VISIBLE | SBS_SIZEGRIP, {632, 142, 640, 150}},
    };
    RegisterDialogTemplate(kCulvertDialog, std::move(dialog));
}

// ---- The dialog, as the application writes it --------------------------------------------------

class CulvertDialog : public CDialogORVA {
public:
    CulvertDialog() : CDialogORVA(kCulvertDialog, nullptr) {}

    CSpreadSheetORVA sheet;
    // What the application last heard from the table, shown on the status line.
    std::string status;

protected:
    void DoDataExchange(CDataExchange* dx) override {
        CDialogORVA::DoDataExchange(dx);
        DDX_Control(dx, kSheetId, sheet);
    }

    BOOL OnInitDialog() override {
        const BOOL result = CDialogORVA::OnInitDialog();
        sheet.SetColumnCount(kColumns);
        sheet.SetFixedRowCount(1);
        sheet.SetFixedColumnCount(1);
        SetTypes();
        sheet.SetRowCount(kRows);
        for (int col = 0; col < kColumns; col++) {
            sheet.SetItemText(0, col, kHeadings[col]);
            sheet.SetColumnWidth(col, kWidths[col]);
        }
        FillRows();
        // The widths were set without the scroll bars following them.
        sheet.ResetScrollBarsNow();
        sheet.SetModified(FALSE);
        Show("Ready: click, type, or press space on a box or button.");
        return result;
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* record = reinterpret_cast<const GV_NMGRID*>(lParam);
        if (record->hdr.idFrom == kSheetId) {
            Heard(record->hdr.code, record->iRow, record->iColumn);
        }
        return CDialogORVA::OnNotify(wParam, lParam, result);
    }

    void DialogResized(int deltaX, int deltaY) override {
        MoveSizeItem(int(kSheetId), 0, 0, deltaX, deltaY);
        MoveSizeItem(int(kStatusId), 0, deltaY, deltaX, 0);
        MoveSizeItem(IDOK, deltaX, deltaY, 0, 0);
        MoveSizeItem(IDCANCEL, deltaX, deltaY, 0, 0);
        MoveSizeItem(int(kGripId), deltaX, deltaY, 0, 0);
    }

private:
    void SetTypes() {
        CStringArray materials;
        AddStrings(materials, kMaterials);
        CStringArray flowChoices;
        AddStrings(flowChoices, kFlowChoices);
        sheet.SetColumnType(new EColTypeFLT(kChainage, 1));
        sheet.SetColumnType(new EColTypeFLT(kUpstream, 3));
        sheet.SetColumnType(new EColTypeFLT(kDownstream, 3));
        sheet.SetColumnType(new EColTypeFLT(kDiameter, 2));
        sheet.SetColumnType(new EColTypeINT(kBarrels));
        sheet.SetColumnType(new EColTypeCBX(kMaterial, &materials));
        sheet.SetColumnType(new EColTypeTIM(kInspected, "", true, false, true));
        sheet.SetColumnType(new EColTypeTOG(kSurveyed, "surveyed"));
        sheet.SetColumnType(new EColTypeCOLR(kColour));
        sheet.SetColumnType(new EColTypeBTN(kDetails, "Details"));
        sheet.SetColumnType(new EColTypeFXY(kFlow, &flowChoices, "0"));
        // The application's own kind: the cells stay plain and it draws the symbol's colour.
        sheet.SetColumnType(new EColTypeSYM(kSymbol, RGB(0, 0, 160), 2, 3));
    }

    void FillRows() {
        const COLORREF colours[] = {RGB(0, 0, 128),    RGB(128, 0, 0),   RGB(0, 128, 0),
                                    RGB(128, 128, 0),  RGB(0, 128, 128), RGB(128, 0, 128),
                                    RGB(192, 192, 192)};
        const char* symbols[] = {"circle", "square", "triangle"};
        for (int row = 1; row < kRows; row++) {
            sheet.SetItemTextFmt(row, kNumber, "%d", row);
            sheet.SetItemTextFmt(row, kCulvert, "C-%d", row);
            sheet.SetItemTextFmt(row, kChainage, "%g", 120.0 + 185.5 * (row - 1));
            sheet.SetItemTextFmt(row, kUpstream, "%g", 102.35 - 0.412 * row);
            sheet.SetItemTextFmt(row, kDownstream, "%g", 102.1 - 0.412 * row);
            sheet.SetItemTextFmt(row, kDiameter, "%g", 0.6 + 0.15 * (row % 4));
            sheet.SetItemTextFmt(row, kBarrels, "%d", 1 + row % 3);
            sheet.SetItemData(row, kMaterial, row % 3);
            sheet.SetItemTextFmt(row, kInspected, "%d/%d/2024", 1 + row, 3 + 2 * row);
            sheet.SetItemData(row, kSurveyed, row % 2);
            sheet.SetItemBkColour(row, kColour, colours[row - 1]);
            double flow = 1.25 * row;
            sheet.SetItemData(row, kFlow, reinterpret_cast<LPARAM>(&flow));
            sheet.SetItemText(row, kSymbol, symbols[row % 3]);
            sheet.SetItemFgColour(row, kSymbol, RGB(0, 0, 160));
        }
    }

    void Heard(UINT code, int row, int col) {
        const CString culvert = sheet.GetItemText(row, kCulvert);
        char line[160] = "";
        if (code == UINT(GV_NOTIFY_CELLBUTTON) && col == kDetails) {
            std::snprintf(line, sizeof line, "Details of %s asked for.", culvert.GetString());
        } else if (code == UINT(GV_NOTIFY_CELLBUTTON) && col == kFlow) {
            std::snprintf(line, sizeof line, "Flow curve of %s asked for.", culvert.GetString());
        } else if (code == UINT(GV_NOTIFY_CELLBUTTON) && col == kSurveyed) {
            std::snprintf(line, sizeof line, "%s surveyed: %s.", culvert.GetString(),
                          sheet.GetItemData(row, col) ? "yes" : "no");
        } else if (code == UINT(GV_NOTIFY_CELLBUTTON) && col == kColour) {
            const COLORREF colour = sheet.GetItemBkColour(row, col);
            std::snprintf(line, sizeof line, "%s colour: %d, %d, %d.", culvert.GetString(),
                          GetRValue(colour), GetGValue(colour), GetBValue(colour));
        } else if (code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
            std::snprintf(line, sizeof line, "%s %s: %s", culvert.GetString(), kHeadings[col],
                          sheet.GetItemText(row, col).GetString());
        } else {
            return;
        }
        Show(line);
    }

    void Show(const std::string& line) {
        status = line;
        SetDlgItemText(kStatusId, line.c_str());
        // For whoever watches the gallery's output on a display.
        std::printf("spreadsheet: %s\n", line.c_str());
        std::fflush(stdout);
    }
};

// ---- The user's hand ---------------------------------------------------------------------------

// Where the user clicks a cell, scrolled into view first.
CPoint Centre(CSpreadSheetORVA& sheet, int row, int col) {
    sheet.EnsureVisible(row, col);
    return CellCentre(sheet, row, col);
}

CPoint OnArrow(CSpreadSheetORVA& sheet, int row, int col) {
    sheet.EnsureVisible(row, col);
    CRect rect;
    sheet.GetCellRect(row, col, &rect);
    return CPoint(rect.right - kArrowInset, rect.top + kArrowInset);
}

void PickFromList(UiDriver& ui, CSpreadSheetORVA& sheet, int index) {
    if (CComboBox* list = InPlaceCombo(sheet)) {
        PickListItem(ui, *list, index);
    }
}

// The open date editor's calendar, or null.
CMonthCalCtrl* DroppedCalendar(CSpreadSheetORVA& sheet) {
    auto* picker = static_cast<CDateTimeCtrl*>(sheet.GetWindow(GW_CHILD));
    return picker != nullptr ? picker->GetMonthCalCtrl() : nullptr;
}

void PickDay(UiDriver& ui, CSpreadSheetORVA& sheet, int day) {
    if (CMonthCalCtrl* calendar = DroppedCalendar(sheet)) {
        ui.Click(calendar->GetSafeHwnd(), CalendarDayPoint(*calendar, day));
        ui.PressKey(VK_RETURN);
    }
}

// Prints where a user at the screen finds the cells, arrows, list items and calendar days of
// the last row, as "at <name> <x> <y>" from the dialog window's corner, for the scripts that
// drive the gallery with real input. The list and the calendar are opened to be measured and
// closed again unchanged.
void ReportPlaces(CulvertDialog& dialog, GalleryContext& context) {
    CSpreadSheetORVA& sheet = dialog.sheet;
    const int row = kRows - 1;
    CRect frame;
    dialog.GetWindowRect(&frame);
    const auto report = [&](const char* name, HWND window, CPoint point) {
        ::ClientToScreen(window, &point);
        context.Print("at %s %d %d", name, point.x - frame.left, point.y - frame.top);
    };
    const HWND window = sheet.GetSafeHwnd();
    report("diameter-cell", window, Centre(sheet, row, kDiameter));
    report("details-button", window, Centre(sheet, row - 1, kDetails));
    report("surveyed-box", window, CheckBoxCentre(sheet, row, kSurveyed));

    UiDriver ui;
    report("material-arrow", window, OnArrow(sheet, row, kMaterial));
    ui.Click(window, OnArrow(sheet, row, kMaterial));
    if (CComboBox* list = InPlaceCombo(sheet)) {
        report("material-hdpe", DroppedList(*list), ListItemPoint(*list, 2));
        ui.PressKey(VK_ESCAPE);
    }
    report("inspected-arrow", window, OnArrow(sheet, row, kInspected));
    ui.Click(window, OnArrow(sheet, row, kInspected));
    if (CMonthCalCtrl* calendar = DroppedCalendar(sheet)) {
        report("inspected-day-28", calendar->GetSafeHwnd(), CalendarDayPoint(*calendar, 28));
    }
    ui.Click(window, Centre(sheet, 1, kCulvert));
}

// ---- The scripted edits ------------------------------------------------------------------------

void TypeInto(UiDriver& ui, CSpreadSheetORVA& sheet, int row, int col, const char* text) {
    ui.Click(sheet.GetSafeHwnd(), Centre(sheet, row, col));
    ui.Type(text);
    ui.PressKey(VK_RETURN);
}

void PlayTheUser(CulvertDialog& dialog, GalleryContext& context) {
    CSpreadSheetORVA& sheet = dialog.sheet;
    const HWND window = sheet.GetSafeHwnd();
    UiDriver ui;
    // Numbers, normalised by their columns.
    TypeInto(ui, sheet, 2, kDiameter, "1.2");
    TypeInto(ui, sheet, 3, kBarrels, "4.6");
    TypeInto(ui, sheet, 4, kUpstream, "101.1");
    TypeInto(ui, sheet, 5, kFlow, "2.75");
    TypeInto(ui, sheet, 6, kSymbol, "diamond");
    context.Print(
        "typed 1.2, 4.6, 101.1, 2.75, diamond: diameter %s, barrels %s, invert %s, "
        "flow %s, symbol %s",
        sheet.GetItemText(2, kDiameter).GetString(), sheet.GetItemText(3, kBarrels).GetString(),
        sheet.GetItemText(4, kUpstream).GetString(), sheet.GetItemText(5, kFlow).GetString(),
        sheet.GetItemText(6, kSymbol).GetString());
    // A material from the list, a day from the calendar, a curve for a flow.
    ui.Click(window, OnArrow(sheet, 2, kMaterial));
    PickFromList(ui, sheet, 1);
    ui.Click(window, OnArrow(sheet, 4, kInspected));
    PickDay(ui, sheet, 21);
    auto* flow = static_cast<CGridCellFltXYCrv*>(sheet.GetCell(3, kFlow));
    sheet.EnsureVisible(3, kFlow);
    CRect flowRect;
    sheet.GetCellRect(3, kFlow, &flowRect);
    ui.Click(window, flow->GetBotRect(flowRect).CenterPoint());
    PickFromList(ui, sheet, 1);
    context.Print(
        "picked: material %s, inspected %s, flow %s", sheet.GetItemText(2, kMaterial).GetString(),
        sheet.GetItemText(4, kInspected).GetString(), sheet.GetItemText(3, kFlow).GetString());
    // A box ticked by a click, another by space; a colour from the chooser; the buttons.
    sheet.EnsureVisible(2, kSurveyed);
    ui.Click(window, CheckBoxCentre(sheet, 2, kSurveyed));
    ui.Click(window, Centre(sheet, 4, kSurveyed));
    ui.Type(" ");
    ModalResponder modal;
    modal.Next()
        .Run([](CDialog& chooser, UiDriver& driver) {
            auto& colours = static_cast<CColorChooserDlg&>(chooser);
            driver.Click(colours.GetSafeHwnd(), colours.SwatchRect(12).CenterPoint());
        })
        .Press(IDOK);
    ui.DoubleClick(window, Centre(sheet, 3, kColour));
    sheet.EnsureVisible(3, kFlow);
    sheet.GetCellRect(3, kFlow, &flowRect);
    ui.Click(window, flow->GetTopRect(flowRect).CenterPoint());
    context.Print("heard: %s", dialog.status.c_str());
    ui.Click(window, Centre(sheet, 6, kDetails));
    context.Print("surveyed: row 2 %d, row 4 %d; heard last: %s",
                  int(sheet.GetItemData(2, kSurveyed)), int(sheet.GetItemData(4, kSurveyed)),
                  dialog.status.c_str());
    ui.Click(window, Centre(sheet, 1, kCulvert));
}

// ---- The page ----------------------------------------------------------------------------------

void BuildSpreadsheetPage(GalleryContext& context) {
    RegisterCulvertTemplate();
    static CulvertDialog dialog; // gallery windows live as long as the program
    if (!dialog.Create(kCulvertDialog)) {
        context.Print("culvert table: the dialog could not be made");
        return;
    }
    dialog.SetWindowPos(nullptr, 30, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.ShowWindow(SW_SHOW);
    CRect placeholder;
    dialog.sheet.GetWindowRect(&placeholder);
    context.Print("placeholder fitted: %d pixels high, whole rows of %d pixels",
                  placeholder.Height(), dialog.sheet.GetDefCellHeight());

    PlayTheUser(dialog, context);
    context.Capture(dialog.GetSafeHwnd(), "45-spreadsheet");

    CRect design;
    dialog.GetWindowRect(&design);
    dialog.SetWindowPos(nullptr, 0, 0, design.Width() + kGrowX, design.Height() + kGrowY,
                        SWP_NOMOVE | SWP_NOZORDER);
    context.Capture(dialog.GetSafeHwnd(), "45-spreadsheet-wide");
    ReportPlaces(dialog, context);
}

} // namespace

GALLERY_PAGE("45-spreadsheet", "Typed spreadsheet", BuildSpreadsheetPage);
