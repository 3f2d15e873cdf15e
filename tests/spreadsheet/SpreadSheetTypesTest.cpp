// The spreadsheet's cell factory and its list of types: cells born typed or rebuilt by a change
// of a column's type, the fixed cells left plain, the removal token, and single cells retyped.

#include "SheetOnScreen.h"

#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellCombo.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridCellTimeCtrl.h"
#include "cells/GridColorCell.h"
#include "platform/system/DateTime.h"

#include <boost/make_shared.hpp>

namespace {

class SpreadSheetTypesTest : public SheetOnScreen {
protected:
    bool IsOf(int row, int col, CRuntimeClass* cellClass) {
        CGridCellBase* cell = sheet.GetCell(row, col);
        return cell != nullptr && cell->GetRuntimeClass() == cellClass;
    }
    void ExpectColumnOf(int col, CRuntimeClass* cellClass) {
        for (int row = sheet.GetFixedRowCount(); row < sheet.GetRowCount(); row++) {
            EXPECT_TRUE(IsOf(row, col, cellClass)) << row << "," << col;
        }
    }
};

TEST_F(SpreadSheetTypesTest, CellsAreBornOfTheirColumnsClassAndHeadersStayPlain) {
    for (int col = 0; col < kColumns; col++) {
        ExpectColumnOf(col, ClassOfColumn(col));
        EXPECT_TRUE(IsOf(0, col, RUNTIME_CLASS(CGridCell))) << col;
    }
    // Rows that come later are typed as well.
    const int added = sheet.InsertRow("new");
    ASSERT_GE(added, 0);
    sheet.SetRowCount(kRows + 3);
    for (int col = 0; col < kColumns; col++) {
        ExpectColumnOf(col, ClassOfColumn(col));
    }

    // Born read-only are exactly those that handle their own clicks.
    for (int col = 1; col < kColumns; col++) {
        const bool ownClicks = col == kSurveyed || col == kDetails || col == kColour;
        EXPECT_EQ(sheet.GetItemState(2, col) & GV_STATE_READONLY ? 1 : 0, ownClicks ? 1 : 0) << col;
    }
    EXPECT_EQ(sheet.GetItemText(2, kDetails), "Details");
    EXPECT_EQ(sheet.GetItemText(2, kSurveyed), "surveyed");
    EXPECT_EQ(sheet.GetItemData(2, kSurveyed), 0);
    // A combo cell is born empty, not on its first option, and knows the options.
    EXPECT_EQ(sheet.GetItemText(2, kMaterial), "");
    EXPECT_EQ(sheet.GetItemData(2, kMaterial), -1);
    EXPECT_TRUE(sheet.SetItemText(2, kMaterial, kMaterials[1]));
    EXPECT_EQ(sheet.GetItemData(2, kMaterial), 1);
    // The curve column took its words and its starting text at birth.
    auto* flow = static_cast<CGridCellFltXYCrv*>(sheet.GetCell(2, kFlow));
    EXPECT_EQ(sheet.GetItemText(2, kFlow), "1.5");
    EXPECT_EQ(flow->GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    CStringArray words;
    flow->GetOptions(words);
    ASSERT_EQ(words.GetSize(), int(std::size(kFlowChoices)));
    EXPECT_EQ(words[1], kFlowChoices[1]);
    // The float column took its precision at birth.
    sheet.SetItemText(2, kDiameter, "1.5");
    EXPECT_EQ(sheet.GetItemText(2, kDiameter), "1.50");
    // The application's own kinds are kept and reported, over plain cells.
    EXPECT_EQ(sheet.GetTypeOfCol(kSymbol), EColTypeSYM::KIND);
    const auto* symbol = static_cast<const EColTypeSYM*>(sheet.GetColType(kSymbol));
    ASSERT_NE(symbol, nullptr);
    EXPECT_EQ(symbol->symbol, 3);
    EXPECT_EQ(sheet.GetTypeOfCol(kName), EColType::KIND_NONE);
    EXPECT_EQ(sheet.GetColType(kName), nullptr);
}

TEST_F(SpreadSheetTypesTest, ATypedColumnInTheFixedColumnsOrBeyondTheGridMakesNoTypedCell) {
    sheet.ChangeColumnType(new EColTypeINT(0));
    EXPECT_EQ(sheet.GetTypeOfCol(0), EColTypeINT::KIND);
    ExpectColumnOf(0, RUNTIME_CLASS(CGridCell));

    // Stored all the same, it takes effect when the grid grows so far.
    sheet.ChangeColumnType(new EColTypeBTN(kColumns, "Go"));
    EXPECT_EQ(sheet.GetTypeOfCol(kColumns), EColTypeBTN::KIND);
    sheet.SetColumnCount(kColumns + 1);
    ExpectColumnOf(kColumns, RUNTIME_CLASS(CGridCellButton));
    EXPECT_EQ(sheet.GetItemText(3, kColumns), "Go");
}

TEST_F(SpreadSheetTypesTest, AChangeOfAColumnsTypeRebuildsItsCellsEmptyAndKeepsOneRecord) {
    sheet.SetItemText(2, kName, "C-2");
    sheet.SetItemText(2, kBarrels, "3");
    sheet.SetItemText(0, kBarrels, "Barrels");

    sheet.ChangeColumnType(new EColTypeFLT(kName, 1));
    ExpectColumnOf(kName, RUNTIME_CLASS(CGridCellFltCtrl));
    EXPECT_EQ(sheet.GetItemText(2, kName), ""); // the old content is not carried over
    sheet.SetItemText(2, kName, "2");
    EXPECT_EQ(sheet.GetItemText(2, kName), "2.0");

    // Twice on one column: one entry, the newer record.
    auto* newer = new EColTypeCBX(kBarrels);
    sheet.ChangeColumnType(new EColTypeTOG(kBarrels, "x"));
    sheet.ChangeColumnType(newer);
    EXPECT_EQ(sheet.GetColType(kBarrels), newer);
    ExpectColumnOf(kBarrels, RUNTIME_CLASS(CGridCellCombo));
    EXPECT_EQ(sheet.GetItemText(2, kBarrels), "");
    EXPECT_EQ(sheet.GetItemText(0, kBarrels), "Barrels"); // the header is not touched
    // The record handed in again is still the column's.
    sheet.ChangeColumnType(newer);
    EXPECT_EQ(sheet.GetColType(kBarrels), newer);
    ExpectColumnOf(kBarrels, RUNTIME_CLASS(CGridCellCombo));
    // And turned into a removal token by a derived spreadsheet, it takes the type away.
    newer->kind = EColType::KIND_NONE;
    sheet.ChangeColumnType(newer);
    EXPECT_EQ(sheet.GetColType(kBarrels), nullptr);
    ExpectColumnOf(kBarrels, RUNTIME_CLASS(CGridCell));
}

TEST_F(SpreadSheetTypesTest, TheRemovalTokenTurnsATypedColumnPlainAndLeavesAnUntypedOneAlone) {
    sheet.SetItemText(3, kName, "kept");
    sheet.ChangeColumnType(new EColType(kName, EColType::KIND_NONE));
    EXPECT_EQ(sheet.GetItemText(3, kName), "kept");
    EXPECT_EQ(sheet.GetTypeOfCol(kName), EColType::KIND_NONE);

    sheet.SetItemText(3, kBarrels, "7");
    sheet.ChangeColumnType(new EColType(kBarrels, EColType::KIND_NONE));
    ExpectColumnOf(kBarrels, RUNTIME_CLASS(CGridCell));
    EXPECT_EQ(sheet.GetItemText(3, kBarrels), "");
    sheet.SetItemText(3, kBarrels, "seven");
    EXPECT_EQ(sheet.GetItemText(3, kBarrels), "seven");

    // After the last record goes every column answers -1.
    for (int col = 0; col < kColumns; col++) {
        sheet.SetColumnType(new EColType(col, EColType::KIND_NONE));
    }
    for (int col = 0; col < kColumns; col++) {
        EXPECT_EQ(sheet.GetTypeOfCol(col), EColType::KIND_NONE) << col;
        ExpectColumnOf(col, RUNTIME_CLASS(CGridCell));
    }
    // And a type set again starts the list anew.
    sheet.SetColumnType(new EColTypeCOLR(kColour));
    ExpectColumnOf(kColour, RUNTIME_CLASS(CGridColorCell));
}

TEST_F(SpreadSheetTypesTest, ASingleCellTakesTheRecordsColumnAndKindWithoutChangingTheColumn) {
    sheet.SetItemText(4, kDiameter, "2.5");
    CStringArray shapes{"Box", "Pipe"};
    EColTypeCBX combo(kDiameter, &shapes, false, true);
    // The column argument is not read: the record's column decides.
    sheet.ChangeCellType(4, kName, &combo);
    EXPECT_TRUE(IsOf(4, kDiameter, RUNTIME_CLASS(CGridCellCombo)));
    EXPECT_TRUE(IsOf(4, kName, RUNTIME_CLASS(CGridCell)));
    EXPECT_EQ(sheet.GetItemText(4, kDiameter), "");
    EXPECT_EQ(sheet.GetTypeOfCol(kDiameter), EColTypeFLT::KIND);
    EXPECT_TRUE(IsOf(3, kDiameter, RUNTIME_CLASS(CGridCellFltCtrl)));
    // A drop-down takes any word; the record stays the caller's and is still whole.
    sheet.SetItemText(4, kDiameter, "Slab");
    EXPECT_EQ(sheet.GetItemText(4, kDiameter), "Slab");
    EXPECT_EQ(combo.options.GetSize(), 2);

    // Held by a shared pointer for the call only.
    auto toggle = boost::make_shared<EColTypeTOG>(kDiameter, "on", true);
    sheet.ChangeCellType(5, kDiameter, toggle);
    EXPECT_EQ(toggle.use_count(), 1);
    EXPECT_TRUE(IsOf(5, kDiameter, RUNTIME_CLASS(CGridCellCheckbox)));
    EXPECT_EQ(sheet.GetItemData(5, kDiameter), 1);
    EXPECT_TRUE(sheet.GetItemState(5, kDiameter) & GV_STATE_READONLY);

    // A row outside the grid, a header row, a missing record: nothing breaks, nothing typed.
    EColTypeINT number(kName);
    sheet.ChangeCellType(kRows + 5, kName, &number);
    sheet.ChangeCellType(-1, kName, &number);
    sheet.ChangeCellType(0, kName, &number);
    EXPECT_TRUE(IsOf(0, kName, RUNTIME_CLASS(CGridCell)));
    sheet.ChangeCellType(2, kName, static_cast<EColType*>(nullptr));
    EXPECT_TRUE(IsOf(2, kName, RUNTIME_CLASS(CGridCell)));
}

TEST_F(SpreadSheetTypesTest, ADateColumnStartsFromItsRecordsTextTheCaretBeingThePresent) {
    // Without seconds the present is read back to the minute.
    const COleDateTime before = COleDateTime::GetCurrentTime() - COleDateTimeSpan(0, 0, 1, 1);
    sheet.ChangeColumnType(new EColTypeTIM(kInspected));
    const COleDateTime after = COleDateTime::GetCurrentTime() + COleDateTimeSpan(0, 0, 0, 1);
    for (int row = 1; row < kRows; row++) {
        const auto* value =
            reinterpret_cast<const COleDateTime*>(sheet.GetItemData(row, kInspected));
        ASSERT_NE(value, nullptr) << row;
        EXPECT_GE(*value, before);
        EXPECT_LE(*value, after);
        EXPECT_FALSE(sheet.GetItemText(row, kInspected).IsEmpty());
    }
    sheet.ChangeColumnType(new EColTypeTIM(kInspected, ""));
    EXPECT_EQ(sheet.GetItemData(2, kInspected), 0);
}

TEST_F(SpreadSheetTypesTest, AVirtualSpreadsheetStoresTypesButNoCells) {
    sheet.SetVirtualMode(TRUE);
    sheet.SetRowCount(5);
    sheet.SetColumnCount(4);
    sheet.ChangeColumnType(new EColTypeINT(2));
    EColTypeBTN button(2, "b");
    sheet.ChangeCellType(2, 2, &button);
    EXPECT_EQ(sheet.GetTypeOfCol(2), EColTypeINT::KIND);
    EXPECT_NE(sheet.GetCell(2, 2), nullptr); // the made-up cell of virtual mode survives
}

} // namespace
