// A user edits every column of the spreadsheet in place with its own editor: numbers typed and
// normalised, an option picked from the list, a day from the calendar, check boxes and buttons by
// click and by space, a colour from the chooser; and a pasted block through columns of mixed
// kinds.

#include "SheetOnScreen.h"

#include "cells/ColorChooserDlg.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/InPlaceButton.h"
#include "grid/GridNotify.h"
#include "platform/system/DateTime.h"
#include "platform/system/SystemMetrics.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/CalendarDays.h"
#include "platform/testing/ClipboardText.h"
#include "platform/testing/ModalResponder.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/WindowApi.h"

namespace {

constexpr int kRow = 2;
constexpr int kArrowInset = 3; // a point this far inside a cell's top right corner
constexpr int kBoxSide = 14;
constexpr int kPureRed = 9; // the chooser's standard colour RGB(255, 0, 0)

class SpreadSheetEditingTest : public SheetOnScreen {
protected:
    void SetUp() override {
        WriteUserSetting(kInternationalKey, "sShortDate", "M/d/yyyy");
        WriteUserSetting(kInternationalKey, "sTimeFormat", "h:mm:ss tt");
        WriteUserSetting(kInternationalKey, "sShortTime", "h:mm tt");
        for (int row = 1; row < kRows; row++) {
            sheet.SetItemTextFmt(row, kName, "C-%d", row);
            sheet.SetItemText(row, kMaterial, kMaterials[0]);
        }
        sheet.SetModified(FALSE);
        recorder->Clear();
    }
    void TearDown() override { ResetUserSettings(); }

    CPoint OnArrow(int row, int col) {
        const CRect cell = CellRect(row, col);
        return CPoint(cell.right - kArrowInset, cell.top + kArrowInset);
    }
    CPoint OnBox(int row) {
        return CellRect(row, kSurveyed).TopLeft() + CPoint(kBoxSide / 2, kBoxSide / 2);
    }
    // Focuses a cell with a click, from another cell if it has the focus already.
    void Focus(int row, int col) {
        if (sheet.GetFocusCell() == CCellID(row, col)) {
            ui.Click(Sheet(), CellCentre(row + 1, kName));
        }
        ui.Click(Sheet(), CellCentre(row, col));
    }
    // The dropped list of an open combo editor is the top-level window just under its field.
    static HWND PopUpList(CComboBox& editor) {
        CRect field;
        editor.GetWindowRect(&field);
        return WindowFromPoint(CPoint(field.left + 5, field.bottom + 5));
    }
    static CPoint PopUpRow(CComboBox& editor, int index) {
        const int height = editor.GetItemHeight(0);
        return CPoint(10, index * height + height / 2);
    }
    const COleDateTime* Date(int row) {
        return reinterpret_cast<const COleDateTime*>(sheet.GetItemData(row, kInspected));
    }
};

TEST_F(SpreadSheetEditingTest, NumbersTypedIntoTheirCellsAreNormalisedOrRefused) {
    TypeInto(kRow, kBarrels, "3.7");
    EXPECT_EQ(sheet.GetItemText(kRow, kBarrels), "3");
    TypeInto(kRow, kBarrels, "many");
    EXPECT_EQ(sheet.GetItemText(kRow, kBarrels), "3");
    TypeInto(kRow, kDiameter, "1.5");
    EXPECT_EQ(sheet.GetItemText(kRow, kDiameter), "1.50");
    TypeInto(kRow, kDiameter, "wide");
    EXPECT_EQ(sheet.GetItemText(kRow, kDiameter), "");
    TypeInto(kRow, kName, "C-20");
    EXPECT_EQ(sheet.GetItemText(kRow, kName), "C-20");
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_TRUE(sheet.GetModified(kRow, kBarrels));

    // A space opens the editor on a number cell, selecting its text rather than replacing it.
    Focus(kRow, kDiameter);
    TypeInto(kRow, kDiameter, "0.6");
    Focus(kRow, kDiameter);
    ui.Type(" ");
    ASSERT_NE(OpenEditor(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), OpenEditor());
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(sheet.GetItemText(kRow, kDiameter), "0.60");
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 0);
}

TEST_F(SpreadSheetEditingTest, AnOptionIsPickedFromTheDroppedListAndAWordIsNoOption) {
    ui.Click(Sheet(), OnArrow(kRow, kMaterial));
    auto* list = static_cast<CComboBox*>(OpenEditor());
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->GetDroppedState());
    ASSERT_EQ(list->GetCount(), int(std::size(kMaterials)));
    const CPoint steel = PopUpRow(*list, 1);
    ui.MouseMove(PopUpList(*list), steel);
    ui.Click(PopUpList(*list), steel);
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(sheet.GetItemText(kRow, kMaterial), kMaterials[1]);
    EXPECT_EQ(sheet.GetItemData(kRow, kMaterial), 1);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1);

    // A list-only column takes no word of the user's own.
    sheet.SetItemText(kRow, kMaterial, "Timber");
    EXPECT_EQ(sheet.GetItemText(kRow, kMaterial), kMaterials[1]);
}

TEST_F(SpreadSheetEditingTest, AFlowIsTypedAsANumberOrPickedAsACurveWhoseButtonTellsTheOwner) {
    auto& flow = *static_cast<CGridCellFltXYCrv*>(sheet.GetCell(kRow, kFlow));
    const CRect cell = CellRect(kRow, kFlow);
    TypeInto(kRow, kFlow, "2.25");
    EXPECT_EQ(sheet.GetItemText(kRow, kFlow), "2.25");
    EXPECT_EQ(*reinterpret_cast<const double*>(sheet.GetItemData(kRow, kFlow)), 2.25);

    // The lower half of the strip opens the choices; a pick makes the cell a curve.
    ui.Click(Sheet(), flow.GetBotRect(cell).CenterPoint());
    auto* list = static_cast<CComboBox*>(OpenEditor());
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->GetCount(), int(std::size(kFlowChoices)));
    const CPoint hydrograph = PopUpRow(*list, 1);
    ui.MouseMove(PopUpList(*list), hydrograph);
    ui.Click(PopUpList(*list), hydrograph);
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(flow.GetComboSelection(), CGridCellFltXYCrv::CHOICE_TRANSIENT);
    EXPECT_EQ(sheet.GetItemText(kRow, kFlow), kFlowChoices[1]);

    // The upper half is the button that asks the owner for the curve; nothing else changes.
    ui.Click(Sheet(), flow.GetTopRect(cell).CenterPoint());
    const auto told = recorder->Notifications(GV_NOTIFY_CELLBUTTON);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told.front().row, kRow);
    EXPECT_EQ(told.front().column, kFlow);
    EXPECT_EQ(flow.GetComboSelection(), CGridCellFltXYCrv::CHOICE_TRANSIENT);
    EXPECT_EQ(OpenEditor(), nullptr);

    // A number typed again turns it back into a constant.
    TypeInto(kRow, kFlow, "3");
    EXPECT_EQ(flow.GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(sheet.GetItemText(kRow, kFlow), "3.0");
}

TEST_F(SpreadSheetEditingTest, ADayPickedInTheCalendarBecomesTheCellsDate) {
    const COleDateTime start(2024, 3, 7, 0, 0, 0);
    sheet.SetItemData(kRow, kInspected, reinterpret_cast<LPARAM>(&start));
    ui.Click(Sheet(), OnArrow(kRow, kInspected));
    auto* picker = static_cast<CDateTimeCtrl*>(OpenEditor());
    ASSERT_NE(picker, nullptr);
    CMonthCalCtrl* calendar = picker->GetMonthCalCtrl();
    ASSERT_NE(calendar, nullptr);
    ui.Click(calendar->GetSafeHwnd(), CalendarDayPoint(*calendar, 20));
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(OpenEditor(), nullptr);
    ASSERT_NE(Date(kRow), nullptr);
    EXPECT_EQ(Date(kRow)->GetDay(), 20);
    EXPECT_EQ(Date(kRow)->GetMonth(), 3);
    EXPECT_EQ(sheet.GetItemText(kRow, kInspected).Left(9), "3/20/2024");
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1);
}

TEST_F(SpreadSheetEditingTest, ACheckBoxTogglesByClickAndBySpaceAndTellsTheOwnerEachTime) {
    ui.Click(Sheet(), OnBox(kRow));
    EXPECT_EQ(sheet.GetItemData(kRow, kSurveyed), 1);
    ASSERT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);

    // The owner finds the new state already in the cell when it hears of the space.
    LPARAM heard = -1;
    parent.onNotify = [&](const NMHDR& header) {
        if (header.code == UINT(GV_NOTIFY_CELLBUTTON)) {
            heard = sheet.GetItemData(kRow, kSurveyed);
        }
    };
    ASSERT_EQ(sheet.GetFocusCell(), CCellID(kRow, kSurveyed));
    ui.Type(" ");
    EXPECT_EQ(sheet.GetItemData(kRow, kSurveyed), 0);
    EXPECT_EQ(heard, 0);
    ui.Type(" ");
    EXPECT_EQ(sheet.GetItemData(kRow, kSurveyed), 1);
    const auto told = recorder->Notifications(GV_NOTIFY_CELLBUTTON);
    ASSERT_EQ(told.size(), 3u);
    EXPECT_EQ(told.back().row, kRow);
    EXPECT_EQ(told.back().column, kSurveyed);
    // None of it is a text edit, and no editor opens.
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 0);
    EXPECT_EQ(sheet.GetItemText(kRow, kSurveyed), "surveyed");

    // A disabled box takes no space: it reaches the grid, whose read-only state stops it.
    sheet.EnableCell(kRow, kSurveyed, FALSE);
    ui.Type(" ");
    EXPECT_EQ(sheet.GetItemData(kRow, kSurveyed), 1);
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 3);
    EXPECT_EQ(OpenEditor(), nullptr);
}

TEST_F(SpreadSheetEditingTest, AButtonAnswersAClickAndASpaceButNotWhenDisabled) {
    ui.Click(Sheet(), CellCentre(kRow, kDetails));
    ASSERT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(sheet.GetFocusCell(), CCellID(kRow, kDetails));
    ui.Type(" ");
    const auto told = recorder->Notifications(GV_NOTIFY_CELLBUTTON);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told.back().row, kRow);
    EXPECT_EQ(told.back().column, kDetails);
    EXPECT_EQ(sheet.GetItemText(kRow, kDetails), "Details");
    EXPECT_EQ(OpenEditor(), nullptr);

    // A press released outside the button is no click.
    ui.MouseDown(Sheet(), CellCentre(kRow + 1, kDetails));
    ui.MouseUp(Sheet(), CellCentre(kRow + 3, kName));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 2);

    sheet.EnableCell(kRow, kDetails, FALSE);
    Focus(kRow, kDetails);
    ui.Type(" ");
    ui.Click(Sheet(), CellCentre(kRow, kDetails));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 2);
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 0);
}

TEST_F(SpreadSheetEditingTest, AColourPickedInTheChooserBecomesTheBackground) {
    ModalResponder modal;
    modal.Next()
        .Run([](CDialog& dialog, UiDriver& driver) {
            auto& chooser = static_cast<CColorChooserDlg&>(dialog);
            driver.Click(chooser.GetSafeHwnd(), chooser.SwatchRect(kPureRed).CenterPoint());
        })
        .Press(IDOK);
    ui.DoubleClick(Sheet(), CellCentre(kRow, kColour));
    ASSERT_EQ(modal.Count(), 1);
    EXPECT_EQ(sheet.GetItemBkColour(kRow, kColour), RGB(255, 0, 0));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    // The colour cell is read-only: typing on it opens no editor.
    ui.Type("x");
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 0);
}

TEST_F(SpreadSheetEditingTest, ACellRetypedWhileItsEditorIsOpenEndsTheEditFirst) {
    const COleDateTime start(2024, 3, 7, 0, 0, 0);
    sheet.SetItemData(kRow, kInspected, reinterpret_cast<LPARAM>(&start));
    ui.Click(Sheet(), OnArrow(kRow, kInspected));
    ASSERT_NE(OpenEditor(), nullptr);
    // The picker writes its date into the cell as it ends: the cell must still be there.
    sheet.ChangeColumnType(new EColTypeINT(kInspected));
    ui.Pump();
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(sheet.GetCell(kRow, kInspected)->GetRuntimeClass(), RUNTIME_CLASS(CGridCellIntCtrl));
    EXPECT_EQ(sheet.GetItemText(kRow, kInspected), "");

    TypeInto(kRow, kName, "x");
    Focus(kRow, kName);
    ui.Type("y");
    ASSERT_NE(OpenEditor(), nullptr);
    EColTypeBTN button(kName, "Go");
    sheet.ChangeCellType(kRow, kName, &button);
    ui.Pump();
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_EQ(sheet.GetItemText(kRow, kName), "Go");
    ui.Click(Sheet(), CellCentre(kRow + 1, kBarrels));
    EXPECT_EQ(sheet.GetItemText(kRow, kName), "Go");
}

TEST_F(SpreadSheetEditingTest, AListOpenedWhileTheScrollBarIsHeldClosesWhenTheBarIsLetGo) {
    sheet.SetRowCount(4 * kRows); // rows enough for a vertical scroll bar
    Focus(kRow, kMaterial);
    CRect client;
    sheet.GetClientRect(&client);
    const CPoint downArrow(client.right + GetSystemMetrics(SM_CXVSCROLL) / 2,
                           client.bottom - GetSystemMetrics(SM_CYVSCROLL) / 2);
    ui.MouseDown(Sheet(), downArrow);
    ui.Type("S");
    ASSERT_NE(OpenEditor(), nullptr);
    // Letting the bar go ends the scroll, and the edit with it: the list goes at once, not with
    // whatever input comes next.
    ui.MouseUp(Sheet(), downArrow);
    EXPECT_EQ(OpenEditor(), nullptr);
    EXPECT_FALSE(sheet.GetCell(kRow, kMaterial)->IsEditing());
}

TEST_F(SpreadSheetEditingTest, APastedBlockGoesThroughEachColumnsCell) {
    sheet.SetItemData(kRow, kSurveyed, 1);
    PutTextOnClipboard("C-9\t4.9\t0.6\tSlab\t3/1/2024\tno\tgone\n"
                       "C-10\t-2\tx\tSteel\t12/24/2025\n");
    Focus(kRow, kName);
    ui.PressKey('V', MK_CONTROL);

    EXPECT_EQ(sheet.GetItemText(kRow, kName), "C-9");
    EXPECT_EQ(sheet.GetItemText(kRow, kBarrels), "4");
    EXPECT_EQ(sheet.GetItemText(kRow, kDiameter), "0.60");
    EXPECT_EQ(sheet.GetItemText(kRow, kMaterial), kMaterials[0]); // no option: refused
    ASSERT_NE(Date(kRow), nullptr);
    EXPECT_EQ(Date(kRow)->GetMonth(), 3);
    EXPECT_EQ(Date(kRow)->GetDay(), 1);
    // Read-only cells keep their content and the fields meant for them are lost.
    EXPECT_EQ(sheet.GetItemText(kRow, kSurveyed), "surveyed");
    EXPECT_EQ(sheet.GetItemData(kRow, kSurveyed), 1);
    EXPECT_EQ(sheet.GetItemText(kRow, kDetails), "Details");

    EXPECT_EQ(sheet.GetItemText(kRow + 1, kName), "C-10");
    EXPECT_EQ(sheet.GetItemText(kRow + 1, kBarrels), "-2");
    EXPECT_EQ(sheet.GetItemText(kRow + 1, kDiameter), "");
    EXPECT_EQ(sheet.GetItemText(kRow + 1, kMaterial), kMaterials[1]);
    ASSERT_NE(Date(kRow + 1), nullptr);
    EXPECT_EQ(Date(kRow + 1)->GetYear(), 2025);
    EXPECT_EQ(Count(GV_NOTIFY_BEGINBULKEDIT), 1);
    EXPECT_EQ(Count(GV_NOTIFY_ENDBULKEDIT), 1);
}

} // namespace
