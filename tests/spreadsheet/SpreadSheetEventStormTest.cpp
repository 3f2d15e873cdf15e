// Random user events on a spreadsheet with a column of every kind: the mouse anywhere, keys,
// typing, the wheel, the clipboard shortcuts and the right-click menu's commands. After each
// event no editor is left behind or unknown to its cell; after each burst every cell is still of
// its column's class, and every value reads back as itself through its cell. ORVA_STORM_EVENTS
// sets the number of events.

#include "SheetOnScreen.h"

#include "cells/GridCellCheckbox.h"
#include "cells/GridCellCombo.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/InPlaceButton.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/MenuResponder.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>

namespace {

constexpr int kDefaultEvents = 2000;
constexpr int kBurst = 8;
constexpr unsigned kSeed = 20261124;
constexpr int kStormRows = 30;
// More than the farthest a storm point strays past the spreadsheet's edges.
constexpr int kMargin = 40;

int StormEvents() {
    const char* wanted = std::getenv("ORVA_STORM_EVENTS");
    return wanted != nullptr && std::atoi(wanted) > 0 ? std::atoi(wanted) : kDefaultEvents;
}

// Whether `window` is `ancestor` or lies under it by parents and owners: an editor's own list,
// calendar or edit field.
bool BelongsTo(CWnd* window, CWnd* ancestor) {
    for (CWnd* up = window; up != nullptr;) {
        if (up == ancestor) {
            return true;
        }
        CWnd* parent = up->GetParent();
        up = parent != nullptr ? parent : up->GetOwner();
    }
    return false;
}

// Whether the editor `child` has the keyboard focus, or its calendar, which is a pop-up of the
// top-level window, has it.
bool HoldsTheFocus(CWnd* child) {
    if (BelongsTo(CWnd::GetFocus(), child)) {
        return true;
    }
    auto* picker = dynamic_cast<CDateTimeCtrl*>(child);
    CMonthCalCtrl* calendar = picker != nullptr ? picker->GetMonthCalCtrl() : nullptr;
    return calendar != nullptr && calendar->GetSafeHwnd() == ::GetFocus();
}

class SpreadSheetEventStormTest : public SheetOnScreen {
protected:
    void SetUp() override {
        WriteUserSetting(kInternationalKey, "sShortDate", "M/d/yyyy");
        sheet.SetWindowPos(nullptr, kMargin, kMargin, 420, 200, SWP_NOZORDER);
        sheet.SetRowCount(kStormRows);
        for (int row = 1; row < kStormRows; row++) {
            sheet.SetItemTextFmt(row, kName, "C-%d", row);
            sheet.SetItemTextFmt(row, kBarrels, "%d", row % 4);
            sheet.SetItemTextFmt(row, kDiameter, "%g", 0.3 * row);
            sheet.SetItemText(row, kMaterial, kMaterials[row % 3]);
            sheet.SetItemText(row, kInspected, row % 2 ? "3/7/2024" : "");
            sheet.SetItemBkColour(row, kColour, RGB(row * 8, 128, 0));
        }
    }
    void TearDown() override { ResetUserSettings(); }

    std::mt19937 random{kSeed};
    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    CPoint AnyPoint() {
        const CPoint point = PointAnywhere();
        last += " at " + std::to_string(point.x) + "," + std::to_string(point.y);
        return point;
    }
    CPoint PointAnywhere() {
        CRect client;
        sheet.GetClientRect(&client);
        // Mostly inside, sometimes past the edges, often near a cell's top right corner where the
        // drop arrows are, down to the grid line beside them.
        // Each draw is a statement of its own: the order of a call's arguments is the
        // compiler's, and every build must play the same storm from the same seed.
        switch (Pick(5)) {
        case 0: {
            const CPoint point = PickPoint(client.right + 60, client.bottom + 60);
            return CPoint(point.x - 30, point.y - 30);
        }
        case 1: {
            const int column = 1 + Pick(5);
            const int leftOfDivider = 1 + Pick(6);
            const int row = 1 + Pick(8);
            const int belowDivider = Pick(6);
            return CPoint(kColumnWidth * column - leftOfDivider, kRowHeight * row + belowDivider);
        }
        case 2: {
            const CCellRange shown = sheet.GetVisibleNonFixedCellRange();
            if (!shown.IsValid()) {
                return client.CenterPoint();
            }
            const int row = shown.minRow + Pick(shown.maxRow - shown.minRow + 1);
            const int col = shown.minCol + Pick(shown.maxCol - shown.minCol + 1);
            CRect cell;
            if (!sheet.GetCellRect(row, col, &cell)) {
                return client.CenterPoint();
            }
            const CPoint corner = PickPoint(3, 4);
            return CPoint(cell.right - corner.x, cell.top + corner.y);
        }
        default:
            return PickPoint(client.right, client.bottom);
        }
    }

    CPoint PickPoint(int width, int height) {
        const int x = Pick(width);
        const int y = Pick(height);
        return CPoint(x, y);
    }

    std::string last;
    void PlayOne() {
        static const UINT keys[] = {VK_LEFT,   VK_RIGHT, VK_UP,     VK_DOWN,   VK_PRIOR,
                                    VK_NEXT,   VK_HOME,  VK_END,    VK_TAB,    VK_F2,
                                    VK_DELETE, VK_BACK,  VK_RETURN, VK_ESCAPE, VK_SPACE};
        static const UINT shortcuts[] = {'C', 'X', 'V', 'A'};
        static const UINT commands[] = {ID_SHEET_CUT, ID_SHEET_COPY, ID_SHEET_PASTE, 0};
        const UINT modifiers = Pick(5) == 0 ? MK_SHIFT : Pick(8) == 0 ? MK_CONTROL : 0;
        const int kind = Pick(13);
        last = std::to_string(kind) + "/" + std::to_string(modifiers);
        switch (kind) {
        case 0:
            ui.MouseDown(Sheet(), AnyPoint(), VK_LBUTTON, modifiers);
            break;
        case 1:
            ui.MouseUp(Sheet(), AnyPoint(), VK_LBUTTON, modifiers);
            break;
        case 2:
            ui.MouseMove(Sheet(), AnyPoint(), modifiers);
            break;
        case 3:
        case 4:
            ui.Click(Sheet(), AnyPoint(), modifiers);
            break;
        case 5:
            ui.DoubleClick(Sheet(), AnyPoint());
            break;
        case 6:
            menus.Choose(commands[Pick(int(std::size(commands)))]);
            ui.RightClick(Sheet(), AnyPoint());
            break;
        case 7:
            ui.Wheel(Sheet(), AnyPoint(), Pick(2) == 0 ? WHEEL_DELTA : -WHEEL_DELTA);
            break;
        case 8:
        case 9:
            ui.PressKey(keys[Pick(int(std::size(keys)))], modifiers & ~MK_CONTROL);
            break;
        case 10:
            ui.Type(std::string(1, "aS1,\t 9-./^"[Pick(11)]).c_str());
            break;
        case 11:
            ui.PressKey(shortcuts[Pick(int(std::size(shortcuts)))], MK_CONTROL);
            break;
        default:
            ui.Advance(25 * UINT(1 + Pick(4)));
            break;
        }
    }

    void ExpectNoEditorAstray(int event) {
        int children = 0;
        for (CWnd* child = sheet.GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT)) {
            children++;
            // An editor holds the keyboard focus, or its list or calendar does, so that losing
            // it will end the edit.
            ASSERT_TRUE(HoldsTheFocus(child)) << "event " << event << " " << last;
            if (child->GetDlgCtrlID() == int(IDC_INPLACE_BUTTON)) {
                continue; // the press on a box or button, until its release or the focus goes
            }
            // A cell knows its editor, but a list-only combo shows none (it has no edit field),
            // and the curve cell's list is not a text edit. A cell that knows its editor says it
            // is editing, but for the curve cell's list, which is no edit.
            bool owned = false;
            for (int row = 0; row < sheet.GetRowCount() && !owned; row++) {
                for (int col = 0; col < sheet.GetColumnCount() && !owned; col++) {
                    CGridCellBase* cell = sheet.GetCell(row, col);
                    CWnd* editor = cell->GetEditWnd();
                    owned = editor != nullptr ? BelongsTo(editor, child)
                                              : cell->IsEditing() && col == kMaterial;
                    if (owned && col != kFlow) {
                        ASSERT_TRUE(cell->IsEditing())
                            << "event " << event << " " << last << " at " << row << "," << col;
                    }
                }
            }
            ASSERT_TRUE(owned) << "event " << event << " " << last << " "
                               << child->GetRuntimeClass()->m_lpszClassName;
        }
        ASSERT_LE(children, 1) << "event " << event << " " << last;
    }

    void ExpectCellsOfTheirKind(int event) {
        int selected = 0;
        for (int row = 0; row < sheet.GetRowCount(); row++) {
            for (int col = 0; col < sheet.GetColumnCount(); col++) {
                CGridCellBase* cell = sheet.GetCell(row, col);
                ASSERT_NE(cell, nullptr);
                selected += cell->IsSelected() ? 1 : 0;
                const bool body = row >= 1 && col >= 1;
                ASSERT_EQ(cell->GetRuntimeClass(),
                          body ? ClassOfColumn(col) : RUNTIME_CLASS(CGridCell))
                    << "event " << event << " at " << row << "," << col;
                if (body && !cell->IsEditing()) {
                    ExpectReadsBackAsItself(*cell, col, event);
                }
            }
        }
        ASSERT_EQ(selected, sheet.GetSelectedCount()) << "event " << event;
        const CCellID focus = sheet.GetFocusCell();
        ASSERT_TRUE(focus == CCellID() || sheet.IsValid(focus)) << "event " << event;
    }

    void ExpectReadsBackAsItself(CGridCellBase& cell, int col, int event) {
        const CString text = cell.GetText();
        switch (col) {
        case kBarrels:
            if (!text.IsEmpty()) {
                ASSERT_EQ(std::to_string(std::atoi(text)), text.GetString()) << "event " << event;
            }
            break;
        case kDiameter:
            if (!text.IsEmpty()) {
                char* end = nullptr;
                std::strtod(text, &end);
                ASSERT_EQ(*end, '\0') << "event " << event << " text " << text.GetString();
            }
            break;
        case kMaterial:
            ASSERT_TRUE(text.IsEmpty() || cell.GetData() >= 0)
                << "event " << event << " text " << text.GetString();
            break;
        case kSurveyed:
            ASSERT_TRUE(cell.GetData() == 0 || cell.GetData() == 1) << "event " << event;
            break;
        case kFlow: {
            // The word of a choice, a number, or nothing, which is what a curve's word pasted
            // over a constant leaves. What the text means depends on the choice and the way it
            // came, so it is not read back.
            CStringArray words;
            static_cast<CGridCellFltXYCrv&>(cell).GetOptions(words);
            if (!text.IsEmpty() && std::find(words.begin(), words.end(), text) == words.end()) {
                char* end = nullptr;
                std::strtod(text, &end);
                ASSERT_EQ(*end, '\0') << "event " << event << " text " << text.GetString();
            }
            return;
        }
        default:
            break;
        }
        // Whatever a cell holds, it takes again unchanged.
        cell.SetText(text);
        ASSERT_EQ(CString(cell.GetText()), text) << "event " << event << " column " << col;
    }

    MenuResponder menus;
};

TEST_F(SpreadSheetEventStormTest, NoEditorIsLeftBehindAndEveryCellKeepsItsKind) {
    const int events = StormEvents();
    for (int event = 0; event < events; event++) {
        PlayOne();
        ASSERT_TRUE(::IsWindow(Sheet())) << "event " << event << " " << last;
        // An editor gone astray may be closed by the very next event: it is looked for after
        // each one.
        ExpectNoEditorAstray(event);
        if (HasFatalFailure()) {
            return;
        }
        if (event % kBurst == kBurst - 1) {
            ExpectCellsOfTheirKind(event);
            if (HasFatalFailure()) {
                return;
            }
            recorder->Clear(); // a long storm would otherwise keep every notification
        }
    }
    ui.MouseUp(Sheet(), CPoint(5, 5));
    ui.PressKey(VK_ESCAPE);
    sheet.EndEditing();
    ui.Click(Sheet(), CPoint(5, 5));
    ui.Pump();
    EXPECT_EQ(OpenEditor(), nullptr);
    for (int col = 1; col < kColumns; col++) {
        EXPECT_EQ(sheet.GetTypeOfCol(col),
                  col == kName ? EColType::KIND_NONE : sheet.GetColType(col)->kind);
    }
}

} // namespace
