// Combo cells: the in-place list opened by the arrow, a double click or a typed key; picking by
// mouse and keys; the list-only style refusing words that are not options, typed or pasted;
// the notifications of an edit and the editor's end.

#include "CellGrid.h"

#include "cells/GridCellCombo.h"
#include "cells/InPlaceList.h"
#include "grid/GridNotify.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/ClipboardText.h"

#include <cstring>
#include <vector>

namespace {

constexpr int kListColumn = 1; // CBS_DROPDOWNLIST: options only
constexpr int kFreeColumn = 2; // CBS_DROPDOWN: any word
constexpr int kPlainColumn = 3;
constexpr int kRow = 2;
constexpr int kOtherRow = 3;
constexpr const char* kOptions[] = {"Box", "Pipe", "Arch"};
constexpr int kPipe = 1;
constexpr int kArch = 2;
constexpr const char* kForeign = "Slab";
constexpr int kMaxDropWidth = 200;

class GridCellComboTest : public CellGrid {
protected:
    void SetUp() override {
        UseColumnType(kListColumn, RUNTIME_CLASS(CGridCellCombo));
        UseColumnType(kFreeColumn, RUNTIME_CLASS(CGridCellCombo));
        CStringArray options;
        for (const char* option : kOptions) {
            options.Add(option);
        }
        for (int row = 1; row < kRows; row++) {
            Combo(row, kListColumn)->SetOptions(options);
            Combo(row, kFreeColumn)->SetOptions(options);
            Combo(row, kFreeColumn)->SetStyle(CBS_DROPDOWN);
            grid.SetItemText(row, kListColumn, kOptions[0]);
            grid.SetItemText(row, kFreeColumn, kOptions[0]);
        }
        grid.SetModified(FALSE);
        recorder->Clear();
    }
    CGridCellCombo* Combo(int row, int col) {
        return static_cast<CGridCellCombo*>(grid.GetCell(row, col));
    }
    // The in-place list, while one is open.
    CComboBox* Editor() const {
        return static_cast<CComboBox*>(grid.GetDlgItem(IDC_INPLACE_CONTROL));
    }
    CPoint OnArrow(int row, int col) {
        const CRect rect = CellRect(row, col);
        return CPoint(rect.right - GetSystemMetrics(SM_CXVSCROLL) / 2, rect.top + 3);
    }
    // The open pop-up list is the top-level window just under the combo's field.
    HWND PopUpList() const {
        CRect field;
        Editor()->GetWindowRect(&field);
        return WindowFromPoint(CPoint(field.left + 5, field.bottom + 5));
    }
    CPoint PopUpRow(int index) const {
        const int height = Editor()->GetItemHeight(0);
        return CPoint(10, index * height + height / 2);
    }
    void Focus(int row, int col) { ui.Click(Grid(), CellCentre(row, col)); }
    // The grid's notifications of edits in `col`, in the order they came.
    std::vector<UINT> EditCodes(int col) const {
        std::vector<UINT> codes;
        for (const RecordedMessage& record : recorder->Records()) {
            const bool isEdit = record.code == UINT(GV_NOTIFY_BEGINLABELEDIT) ||
                                record.code == UINT(GV_NOTIFY_ENDLABELEDIT);
            if (record.message == WM_NOTIFY && isEdit && record.column == col) {
                codes.push_back(record.code);
            }
        }
        return codes;
    }
};

TEST_F(GridCellComboTest, AListOnlyCellTakesOptionsAndTheEmptyTextAndItsDataIsTheOptionsIndex) {
    grid.SetItemText(kRow, kListColumn, kForeign);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[0]);
    grid.SetItemText(kRow, kListColumn, kOptions[kArch]);
    EXPECT_EQ(grid.GetItemData(kRow, kListColumn), kArch);
    grid.SetItemData(kRow, kListColumn, kPipe);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);
    grid.SetItemData(kRow, kListColumn, LPARAM(std::size(kOptions))); // out of range: ignored
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);
    grid.SetItemData(kRow, kListColumn, -1);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), "");
    EXPECT_EQ(grid.GetItemData(kRow, kListColumn), -1);

    // The drop-down style takes any word, which is then no option.
    grid.SetItemText(kRow, kFreeColumn, kForeign);
    EXPECT_EQ(grid.GetItemText(kRow, kFreeColumn), kForeign);
    EXPECT_EQ(grid.GetItemData(kRow, kFreeColumn), -1);
}

TEST_F(GridCellComboTest, APressOnTheArrowOpensTheListAndAPickInItStoresTheOptionAndEnds) {
    ui.Click(Grid(), OnArrow(kRow, kListColumn));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kListColumn));
    EXPECT_TRUE(Editor()->GetDroppedState());
    EXPECT_EQ(GetFocus(), Editor()->GetSafeHwnd());
    EXPECT_EQ(Editor()->GetCount(), int(std::size(kOptions)));

    const HWND list = PopUpList();
    ui.MouseMove(list, PopUpRow(kArch));
    ui.Click(list, PopUpRow(kArch));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(GetFocus(), Grid());
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kArch]);
    EXPECT_EQ(grid.GetItemData(kRow, kListColumn), kArch);
    EXPECT_TRUE(grid.GetModified(kRow, kListColumn));
    EXPECT_EQ(EditCodes(kListColumn), std::vector<UINT>{UINT(GV_NOTIFY_ENDLABELEDIT)});
    EXPECT_FALSE(Combo(kRow, kListColumn)->IsEditing());
}

TEST_F(GridCellComboTest, ADoubleClickOpensTheListWhereArrowsWalkReturnKeepsAndEscapeRestores) {
    ui.DoubleClick(Grid(), CellCentre(kRow, kListColumn));
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kArch]);
    // Return stays on the cell.
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kListColumn));

    ui.DoubleClick(Grid(), CellCentre(kRow, kListColumn));
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey(VK_UP);
    EXPECT_EQ(Editor()->GetCurSel(), kPipe);
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kArch]);
}

TEST_F(GridCellComboTest, APlainClickOrF2OpensNothingAndWithoutTheArrowOnlyADoubleClickOrAKeyDoes) {
    Focus(kRow, kListColumn);
    ui.Click(Grid(), CellCentre(kRow, kListColumn)); // the second click, away from the arrow
    EXPECT_EQ(Editor(), nullptr);
    ui.PressKey(VK_F2);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(Combo(kRow, kListColumn)->IsEditing());

    Combo(kOtherRow, kListColumn)->ShowDropArrow(false);
    Focus(kOtherRow, kListColumn);
    ui.Click(Grid(), OnArrow(kOtherRow, kListColumn));
    EXPECT_EQ(Editor(), nullptr);
    ui.Type("p");
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Editor()->GetDroppedState());
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridCellComboTest, TheArrowSitsAtTheTopOfATallCellAndOnlyOnAnEditableOne) {
    constexpr int kTallRow = 60;
    grid.SetRowHeight(kRow, kTallRow);
    grid.Invalidate();
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const CRect cell = CellRect(kRow, kListColumn);
    const int arrowFaceX = cell.right - GetSystemMetrics(SM_CXVSCROLL) + 3;
    const CPoint arrowFace(arrowFaceX, cell.top + 3);
    const CPoint belowArrow(arrowFaceX, cell.top + GetSystemMetrics(SM_CYHSCROLL) + 4);
    EXPECT_EQ(ui.Pixel(Grid(), arrowFace), face);
    EXPECT_EQ(ui.Pixel(Grid(), belowArrow), window);

    // A read-only cell shows none.
    grid.SetItemState(kOtherRow, kListColumn,
                      grid.GetItemState(kOtherRow, kListColumn) | GV_STATE_READONLY);
    grid.RedrawCell(kOtherRow, kListColumn);
    const CRect readOnly = CellRect(kOtherRow, kListColumn);
    EXPECT_EQ(ui.Pixel(Grid(), CPoint(arrowFaceX, readOnly.top + 3)), window);
}

TEST_F(GridCellComboTest, AFittedComboColumnHasRoomForTheArrowBesideTheText) {
    for (int row = 1; row < kRows; row++) {
        grid.SetItemText(row, kPlainColumn, kOptions[0]);
    }
    grid.AutoSizeColumn(kListColumn);
    grid.AutoSizeColumn(kPlainColumn);
    EXPECT_EQ(grid.GetColumnWidth(kListColumn),
              grid.GetColumnWidth(kPlainColumn) + GetSystemMetrics(SM_CXVSCROLL));
}

TEST_F(GridCellComboTest, ATypedKeyOpensTheListAndLettersThenChooseAnOptionOnly) {
    Focus(kRow, kListColumn);
    ui.Type("a");
    ASSERT_NE(Editor(), nullptr);
    ui.Type("a");
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kArch]);
    EXPECT_EQ(grid.GetItemData(kRow, kListColumn), kArch);
}

TEST_F(GridCellComboTest, ADropDownTakesATypedWordThatIsNoOptionAndTabMovesOn) {
    Focus(kRow, kFreeColumn);
    ui.Type(kForeign);
    ASSERT_NE(Editor(), nullptr);
    ASSERT_NE(Combo(kRow, kFreeColumn)->GetEditWnd(), nullptr);
    ui.PressKey(VK_TAB);
    EXPECT_EQ(grid.GetItemText(kRow, kFreeColumn), kForeign);
    EXPECT_EQ(grid.GetItemData(kRow, kFreeColumn), -1);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kPlainColumn));
    // The next cell is a text cell, whose editor Tab opened.
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);

    // Control with an arrow in the field ends the edit and carries it on to the next row.
    ui.DoubleClick(Grid(), CellCentre(kRow, kFreeColumn));
    ASSERT_NE(Editor(), nullptr);
    ui.Type("x");
    ui.PressKey(VK_DOWN, MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(kRow, kFreeColumn), CString(kForeign) + "x");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kOtherRow, kFreeColumn));
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetItemText(kOtherRow, kFreeColumn), kOptions[0]);

    // A pick in a drop-down's list leaves the field open for typing on.
    ui.Click(Grid(), OnArrow(kOtherRow, kFreeColumn));
    ASSERT_NE(Editor(), nullptr);
    const HWND list = PopUpList();
    ui.MouseMove(list, PopUpRow(kArch));
    ui.Click(list, PopUpRow(kArch));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_FALSE(Editor()->GetDroppedState());
    ui.PressKey(VK_END); // the picked text is selected, as after any pick
    ui.Type("es");
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetItemText(kOtherRow, kFreeColumn), CString(kOptions[kArch]) + "es");
}

TEST_F(GridCellComboTest, APastedWordThatIsNoOptionIsRefusedByAListOnlyCellAlone) {
    PutTextOnClipboard(kForeign);
    Focus(kRow, kListColumn);
    ui.PressKey('V', MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[0]);
    Focus(kRow, kFreeColumn);
    ui.PressKey('V', MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(kRow, kFreeColumn), kForeign);

    PutTextOnClipboard(kOptions[kPipe]);
    Focus(kRow, kListColumn);
    ui.PressKey('V', MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);

    // An open list-only editor has no field to paste into; a drop-down's field takes it.
    PutTextOnClipboard(kForeign);
    ui.Click(Grid(), OnArrow(kRow, kListColumn));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Combo(kRow, kListColumn)->GetEditWnd(), nullptr);
    ui.PressKey('V', MK_CONTROL);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);

    ui.DoubleClick(Grid(), CellCentre(kOtherRow, kFreeColumn));
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey('A', MK_CONTROL);
    ui.PressKey('V', MK_CONTROL);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(kOtherRow, kFreeColumn), kForeign);
}

TEST_F(GridCellComboTest, TheApplicationHearsTheEditInOrderAndMayRefuseIt) {
    Focus(kRow, kListColumn);
    recorder->Clear();
    ui.Type("p");
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(EditCodes(kListColumn),
              (std::vector<UINT>{UINT(GV_NOTIFY_BEGINLABELEDIT), UINT(GV_NOTIFY_ENDLABELEDIT)}));
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);

    // A refusal puts the old option back, and the editor goes all the same.
    recorder->Answer(UINT(GV_NOTIFY_ENDLABELEDIT), -1);
    ui.DoubleClick(Grid(), CellCentre(kRow, kListColumn));
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(kRow, kListColumn), kOptions[kPipe]);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(Combo(kRow, kListColumn)->IsEditing());
}

TEST_F(GridCellComboTest, TheClosedFieldCoversTheCellUpToItsGridLinesAndTheListDropsBelowIt) {
    constexpr int kTallRow = 40;
    grid.SetRowHeight(kOtherRow, kTallRow);
    for (const CCellID at : {CCellID(kRow, kListColumn), CCellID(kRow, kFreeColumn),
                             CCellID(kOtherRow, kListColumn)}) {
        const CRect cell = CellRect(at.row, at.col);
        ui.Click(Grid(), OnArrow(at.row, at.col));
        ASSERT_NE(Editor(), nullptr);
        CRect field;
        Editor()->GetWindowRect(&field);
        grid.ScreenToClient(&field);
        // The cell's rectangle holds its grid lines, its last column and row, which stay in view.
        EXPECT_EQ(field, CRect(cell.left, cell.top, cell.right, cell.bottom))
            << at.row << "," << at.col;
        // Every option shows in the open list, right under the field.
        CRect list;
        ::GetWindowRect(PopUpList(), &list);
        grid.ScreenToClient(&list);
        EXPECT_EQ(list.top, field.bottom);
        EXPECT_GE(list.Height(), int(std::size(kOptions)) * Editor()->GetItemHeight(0));
        ui.PressKey(VK_ESCAPE);
        EXPECT_EQ(Editor(), nullptr);
    }
}

TEST_F(GridCellComboTest, TheListIsNeverWiderThanTwoHundredPixels) {
    CStringArray options;
    options.Add("A very long option that would not fit in any reasonable drop-down list");
    Combo(kRow, kFreeColumn)->SetOptions(options);
    ui.Click(Grid(), OnArrow(kRow, kFreeColumn));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->GetDroppedWidth(), kMaxDropWidth);
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
}

} // namespace
