// Curve cells: a number typed in place, the pick of a choice from the drop arrow's list, the
// "..." button telling the owner, what texts mean in each mode, and the strip's drawing.

#include "CellGrid.h"

#include "cells/GridCellFltXYCrv.h"
#include "cells/InPlaceButton.h"
#include "cells/InPlaceList.h"
#include "grid/GridNotify.h"
#include "platform/base/Exceptions.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <vector>

namespace {

constexpr int kCurveColumn = 1;
constexpr int kRow = 2;
constexpr int kOtherRow = 3;
constexpr const char* kConstantWord = "<constant>";
constexpr const char* kTransientWord = "<transient>";
constexpr const char* kDataSetWord = "<data set>";
constexpr COLORREF kBlack = 0;
constexpr COLORREF kBlue = 0xFF0000;
constexpr int kEditorGap = 4;
constexpr int kBlueMargin = 64;

class GridCellFltXYCrvTest : public CellGrid {
protected:
    void SetUp() override {
        UseColumnType(kCurveColumn, RUNTIME_CLASS(CGridCellFltXYCrv));
        for (int row = 1; row < kRows; row++) {
            grid.SetItemText(row, kCurveColumn, "");
        }
        grid.SetModified(FALSE);
        recorder->Clear();
    }
    CGridCellFltXYCrv* Cell(int row) {
        return static_cast<CGridCellFltXYCrv*>(grid.GetCell(row, kCurveColumn));
    }
    CString Text(int row) const { return grid.GetItemText(row, kCurveColumn); }
    double Constant(int row) { return *reinterpret_cast<const double*>(Cell(row)->GetData()); }
    int CurveId(int row) { return *reinterpret_cast<const int*>(Cell(row)->GetData()); }

    CPoint OnButton(int row) {
        const CRect rect = CellRect(row, kCurveColumn);
        return CPoint(rect.right - GetSystemMetrics(SM_CXVSCROLL) / 2, rect.top + 4);
    }
    CPoint OnArrow(int row) {
        const CRect rect = CellRect(row, kCurveColumn);
        return CPoint(rect.right - GetSystemMetrics(SM_CXVSCROLL) / 2, rect.bottom - 4);
    }
    CWnd* Editor() const { return grid.GetDlgItem(IDC_INPLACE_CONTROL); }
    CWnd* InPlaceButton() const { return grid.GetDlgItem(IDC_INPLACE_BUTTON); }

    // Opens the list with the drop arrow and picks the option at `index` with the mouse.
    void Pick(int row, int index) {
        ui.Click(Grid(), OnArrow(row));
        auto* list = static_cast<CComboBox*>(Editor());
        ASSERT_NE(list, nullptr);
        ASSERT_TRUE(list->GetDroppedState());
        CRect field;
        list->GetWindowRect(&field);
        const HWND popUp = WindowFromPoint(CPoint(field.left + 5, field.bottom + 5));
        const int height = list->GetItemHeight(0);
        const CPoint item(10, index * height + height / 2);
        ui.MouseMove(popUp, item);
        ui.Click(popUp, item);
    }
    // The notifications of the curve column, edits and button clicks, in the order they came.
    std::vector<UINT> Heard() const {
        std::vector<UINT> codes;
        for (const RecordedMessage& record : recorder->Records()) {
            const bool ours = record.code == UINT(GV_NOTIFY_BEGINLABELEDIT) ||
                              record.code == UINT(GV_NOTIFY_ENDLABELEDIT) ||
                              record.code == UINT(GV_NOTIFY_CELLBUTTON);
            if (record.message == WM_NOTIFY && ours && record.column == kCurveColumn) {
                codes.push_back(record.code);
            }
        }
        return codes;
    }
    // The pixels of `area` of the grid whose colour is nearer blue than grey.
    int BluePixels(const CRect& area) {
        int count = 0;
        for (int y = area.top; y < area.bottom; y++) {
            for (int x = area.left; x < area.right; x++) {
                const COLORREF color = ui.Pixel(Grid(), CPoint(x, y));
                count += GetBValue(color) > GetRValue(color) + kBlueMargin ? 1 : 0;
            }
        }
        return count;
    }
    void ExpectNoEditorLeft(int row) {
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_EQ(InPlaceButton(), nullptr);
        EXPECT_FALSE(Cell(row)->IsEditing());
    }
};

TEST_F(GridCellFltXYCrvTest, ANumberTypedInPlaceIsStoredAndShownInTheCellsFormat) {
    ui.Click(Grid(), CellCentre(kRow, kCurveColumn));
    ui.Type("2.50");
    CWnd* editor = Editor();
    ASSERT_NE(editor, nullptr);
    // The editor leaves the strip in sight.
    CRect editorRect;
    editor->GetWindowRect(&editorRect);
    grid.ScreenToClient(&editorRect);
    const CRect cell = CellRect(kRow, kCurveColumn);
    EXPECT_LE(editorRect.right, cell.right - GetSystemMetrics(SM_CXVSCROLL) - kEditorGap);
    ui.PressKey(VK_RETURN);

    EXPECT_EQ(Text(kRow), "2.5");
    EXPECT_EQ(Constant(kRow), 2.5);
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlack);
    EXPECT_TRUE(grid.GetModified(kRow, kCurveColumn));
    EXPECT_EQ(Heard(),
              (std::vector<UINT>{UINT(GV_NOTIFY_BEGINLABELEDIT), UINT(GV_NOTIFY_ENDLABELEDIT)}));
    ExpectNoEditorLeft(kRow);
}

TEST_F(GridCellFltXYCrvTest, TextThatIsNoNumberLeavesTheConstantShowingSoTheCellNeverEmpties) {
    TypeInto(kRow, kCurveColumn, "7.25");
    TypeInto(kRow, kCurveColumn, "abc");
    EXPECT_EQ(Text(kRow), "7.25");
    EXPECT_EQ(Constant(kRow), 7.25);

    // Emptied in the editor (the first Backspace opens it on the old text): the stored
    // constant shows again.
    TypeInto(kRow, kCurveColumn, "\b\b\b\b");
    EXPECT_EQ(Text(kRow), "7.25");
    grid.SetItemText(kRow, kCurveColumn, "");
    EXPECT_EQ(Text(kRow), "7.25");
    ExpectNoEditorLeft(kRow);
}

TEST_F(GridCellFltXYCrvTest, EachChoiceIsPickedFromTheListAndTheOwnerSuppliesItsValue) {
    constexpr int kCurve = 42;
    const CString dataSet = "Flows 1998";
    TypeInto(kRow, kCurveColumn, "3.5");
    recorder->Clear();

    // The application reads the choice in the end of the edit and supplies the value.
    std::vector<int> choicesHeard;
    parent.onNotify = [&](const NMHDR& header) {
        if (header.code != UINT(GV_NOTIFY_ENDLABELEDIT)) {
            return;
        }
        CGridCellFltXYCrv* cell = Cell(kRow);
        choicesHeard.push_back(cell->GetComboSelection());
        if (cell->GetComboSelection() == CGridCellFltXYCrv::CHOICE_TRANSIENT) {
            int curve = kCurve;
            cell->SetData(reinterpret_cast<LPARAM>(&curve));
        } else if (cell->GetComboSelection() == CGridCellFltXYCrv::CHOICE_DATASET) {
            cell->SetData(reinterpret_cast<LPARAM>(&dataSet));
        }
    };

    Pick(kRow, CGridCellFltXYCrv::CHOICE_TRANSIENT);
    EXPECT_EQ(Text(kRow), kTransientWord);
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlue);
    EXPECT_EQ(CurveId(kRow), kCurve);
    ExpectNoEditorLeft(kRow);

    Pick(kRow, CGridCellFltXYCrv::CHOICE_DATASET);
    EXPECT_EQ(Text(kRow), kDataSetWord);
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlue);
    EXPECT_EQ(Cell(kRow)->GetData(), 0); // the name is the application's to keep

    // Back to the constant: the old one comes back, in black.
    Pick(kRow, CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(Text(kRow), "3.5");
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlack);
    EXPECT_EQ(Constant(kRow), 3.5);

    // A pick is no label edit opened by the grid: only its end is heard.
    EXPECT_EQ(choicesHeard, (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(Heard(), std::vector<UINT>(3, UINT(GV_NOTIFY_ENDLABELEDIT)));
    ExpectNoEditorLeft(kRow);
}

TEST_F(GridCellFltXYCrvTest, ANumberTypedInAnotherModeMakesAConstantAndTheCurveStaysStored) {
    constexpr int kCurve = 7;
    Cell(kRow)->SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    int curve = kCurve;
    Cell(kRow)->SetData(reinterpret_cast<LPARAM>(&curve));

    TypeInto(kRow, kCurveColumn, "12");
    EXPECT_EQ(Cell(kRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(Text(kRow), "12.0");
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlack);

    Cell(kRow)->SetComboText(kTransientWord);
    EXPECT_EQ(CurveId(kRow), kCurve);
    EXPECT_EQ(Text(kRow), kTransientWord);
    // A word typed in the transient mode is no number: the constant shows, in black, and the
    // choice stays.
    TypeInto(kRow, kCurveColumn, "abc");
    EXPECT_EQ(Cell(kRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_TRANSIENT);
    EXPECT_EQ(Text(kRow), "12.0");
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlack);
}

TEST_F(GridCellFltXYCrvTest, AWordOfAChoiceThatIsNotPickedCountsForNothingInTheConstantMode) {
    grid.SetItemText(kRow, kCurveColumn, "1.5");
    grid.SetItemText(kRow, kCurveColumn, kTransientWord);
    EXPECT_EQ(Cell(kRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(Text(kRow), "");
    EXPECT_EQ(Cell(kRow)->GetTextClr(), kBlue);
    EXPECT_EQ(Constant(kRow), 1.5);

    // A list closed without a change leaves the pick pending, and the next text is taken for
    // a pick, wherever it comes from.
    Cell(kOtherRow)->SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    ui.Click(Grid(), OnArrow(kOtherRow));
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    grid.SetItemText(kOtherRow, kCurveColumn, kDataSetWord);
    EXPECT_EQ(Cell(kOtherRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_DATASET);
    EXPECT_EQ(Text(kOtherRow), kDataSetWord);
}

TEST_F(GridCellFltXYCrvTest, TheButtonTellsTheOwnerOnAReleaseOverItAndChangesNothing) {
    TypeInto(kRow, kCurveColumn, "4");
    recorder->Clear();

    ui.MouseDown(Grid(), OnButton(kRow));
    ASSERT_NE(InPlaceButton(), nullptr);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kCurveColumn));
    ui.MouseUp(Grid(), OnButton(kRow));
    ASSERT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    const RecordedMessage told = recorder->Notifications(GV_NOTIFY_CELLBUTTON).front();
    EXPECT_EQ(told.row, kRow);
    EXPECT_EQ(told.column, kCurveColumn);
    EXPECT_EQ(Text(kRow), "4.0");
    EXPECT_EQ(Cell(kRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    ExpectNoEditorLeft(kRow);

    // Pressed, then released away from it: no click.
    ui.MouseDown(Grid(), OnButton(kRow));
    ASSERT_NE(InPlaceButton(), nullptr);
    ui.MouseMove(Grid(), CellCentre(kOtherRow, kCurveColumn + 1), MK_LBUTTON);
    ui.MouseUp(Grid(), CellCentre(kOtherRow, kCurveColumn + 1));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(Heard(), std::vector<UINT>{UINT(GV_NOTIFY_CELLBUTTON)});
    ExpectNoEditorLeft(kRow);
}

TEST_F(GridCellFltXYCrvTest, ADisabledCellOpensNeitherTheListNorTheButtonNorTheEditor) {
    grid.SetItemState(kRow, kCurveColumn,
                      grid.GetItemState(kRow, kCurveColumn) | GV_STATE_DISABLED);
    ui.Click(Grid(), OnArrow(kRow));
    ui.Click(Grid(), OnButton(kRow));
    ui.Click(Grid(), CellCentre(kRow, kCurveColumn));
    ui.Click(Grid(), CellCentre(kRow, kCurveColumn));
    ExpectNoEditorLeft(kRow);
    EXPECT_TRUE(Heard().empty());
    EXPECT_EQ(Text(kRow), "0.0");
}

TEST_F(GridCellFltXYCrvTest, SelectionsOutsideTheOptionsAndDataForMissingWordsAreRefused) {
    CGridCellFltXYCrv* cell = Cell(kRow);
    grid.SetItemText(kRow, kCurveColumn, "8");
    cell->SetComboSelection(5);
    cell->SetComboText("<curve>");
    EXPECT_EQ(cell->GetComboSelection(), CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(Text(kRow), "8.0");

    // Clearing by data empties the text only.
    cell->SetData(0);
    EXPECT_EQ(Text(kRow), "");
    EXPECT_EQ(Constant(kRow), 8.0);

    // With its word gone, a transient curve cannot be given.
    CStringArray constantOnly;
    constantOnly.Add("number");
    constantOnly.Add("curve");
    cell->SetOptions(constantOnly);
    cell->SetComboText("curve");
    ASSERT_EQ(cell->GetComboSelection(), CGridCellFltXYCrv::CHOICE_TRANSIENT);
    constantOnly.RemoveAt(1);
    cell->SetOptions(constantOnly);
    int curve = 3;
    bool thrown = false;
    try {
        cell->SetData(reinterpret_cast<LPARAM>(&curve));
    } catch (CInvalidArgException* e) {
        thrown = true;
        e->Delete();
    }
    EXPECT_TRUE(thrown);
}

TEST_F(GridCellFltXYCrvTest, ACopiedCellKeepsItsChoiceAndValuesAndAPlainCellGivesOnlyItsText) {
    constexpr int kCurve = 11;
    // A constant that its text only approximates.
    const double third = 1.0 / 3.0;
    Cell(kRow)->SetData(reinterpret_cast<LPARAM>(&third));
    Cell(kRow)->SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    int curve = kCurve;
    Cell(kRow)->SetData(reinterpret_cast<LPARAM>(&curve));

    *Cell(kOtherRow) = *Cell(kRow);
    EXPECT_EQ(Cell(kOtherRow)->GetComboSelection(), CGridCellFltXYCrv::CHOICE_TRANSIENT);
    EXPECT_EQ(CurveId(kOtherRow), kCurve);
    EXPECT_EQ(Text(kOtherRow), kTransientWord);
    EXPECT_EQ(Cell(kOtherRow)->GetTextClr(), kBlue);
    Cell(kOtherRow)->SetComboSelection(CGridCellFltXYCrv::CHOICE_CONSTANT);
    EXPECT_EQ(Constant(kOtherRow), third);

    // A plain cell's data is a value, never read as an address.
    grid.SetItemText(kRow, kCurveColumn + 1, "9.75");
    grid.SetItemData(kRow, kCurveColumn + 1, 12345);
    *Cell(kOtherRow) = *grid.GetCell(kRow, kCurveColumn + 1);
    EXPECT_EQ(Text(kOtherRow), "9.75");
    EXPECT_EQ(Constant(kOtherRow), 9.75);
}

TEST_F(GridCellFltXYCrvTest, TheStripShowsAButtonOverAnArrowWithTheLabelGreyForAConstant) {
    const CRect cell = CellRect(kRow, kCurveColumn);
    const CRect top = Cell(kRow)->GetTopRect(cell);
    const CRect bottom = Cell(kRow)->GetBotRect(cell);
    EXPECT_EQ(top.Width(), GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(top.bottom, bottom.top);
    EXPECT_EQ(bottom.bottom, cell.bottom);

    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    grid.Invalidate();
    EXPECT_EQ(ui.Pixel(Grid(), CPoint(top.left + 2, top.top + 2)), face);
    EXPECT_EQ(ui.Pixel(Grid(), CPoint(bottom.left + 2, bottom.bottom - 3)), face);
    EXPECT_EQ(ui.Pixel(Grid(), CPoint(top.left - 3, top.top + 2)), window);

    // The "..." label takes the cell's blue text colour only when the choice is a curve.
    EXPECT_EQ(BluePixels(top), 0);
    Cell(kRow)->SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    grid.Invalidate();
    EXPECT_GT(BluePixels(top), 0);

    // A cell narrower than the strip's limit shows none of it, and the geometry shrinks.
    constexpr int kNarrow = 8;
    grid.SetColumnWidth(kCurveColumn, kNarrow);
    grid.Invalidate();
    const CRect narrow = CellRect(kRow, kCurveColumn);
    EXPECT_EQ(Cell(kRow)->GetTopRect(narrow).Width(), narrow.Width() - 1);
    EXPECT_EQ(ui.Pixel(Grid(), CPoint(narrow.left + 3, narrow.top + 3)), window);
}

} // namespace
