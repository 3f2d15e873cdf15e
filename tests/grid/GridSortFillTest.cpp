// Sorting by a click on a heading and by call, and the fill handle: the series rules, a fill
// by dragging the handle, and a copy down the column by double-clicking it.

#include "GridOnScreen.h"

#include "support/FormatDouble.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

class GridSortFillTest : public GridOnScreen {
protected:
    std::vector<std::string> Column(int col) const {
        std::vector<std::string> texts;
        for (int row = grid.GetFixedRowCount(); row < grid.GetRowCount(); row++) {
            texts.push_back(grid.GetItemText(row, col).GetString());
        }
        return texts;
    }
    void FillColumn(int col, std::vector<const char*> texts) {
        for (size_t i = 0; i < texts.size(); i++) {
            grid.SetItemText(int(i) + 1, col, texts[i]);
        }
    }
    // The fill handle of the focus cell, just inside its bottom-right corner.
    CPoint Handle(int row, int col) {
        CRect rect;
        grid.GetTextRect(row, col, &rect);
        return CPoint(rect.right - 1, rect.bottom - 1);
    }
};

TEST_F(GridSortFillTest, HeadingClicksSortUpThenDownAndAnotherHeadingStartsUp) {
    Open(4, 3);
    grid.SetHeaderSort(TRUE);
    grid.SetItemText(0, 1, "heading");
    FillColumn(1, {"b", "a", "c"});
    FillColumn(2, {"2", "1", "3"});
    grid.SetRowHeight(2, 33); // heights travel with their rows

    ui.Click(Grid(), CellCentre(0, 1));
    EXPECT_EQ(Column(1), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(Column(2), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(grid.GetRowHeight(1), 33);
    EXPECT_EQ(grid.GetItemText(0, 1), "heading");
    EXPECT_EQ(grid.GetSortColumn(), 1);
    EXPECT_TRUE(grid.GetSortAscending());

    ui.Click(Grid(), CellCentre(0, 1));
    EXPECT_EQ(Column(1), (std::vector<std::string>{"c", "b", "a"}));
    EXPECT_FALSE(grid.GetSortAscending());
    ui.Click(Grid(), CellCentre(0, 2));
    EXPECT_EQ(Column(2), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_TRUE(grid.GetSortAscending());
}

TEST_F(GridSortFillTest, NumbersSortAsTextUnlessACompareFunctionSaysOtherwise) {
    Open(5, 2);
    grid.SetFixedRowCount(2); // two heading rows stay put
    grid.SetItemText(1, 1, "second heading");
    FillColumn(1, {"second heading", "9", "10", "1.9"});
    EXPECT_TRUE(grid.SortTextItems(1, TRUE));
    EXPECT_EQ(Column(1), (std::vector<std::string>{"1.9", "10", "9"}));

    grid.SetCompareFunction(CGridCtrl::pfnCellNumericCompare);
    EXPECT_TRUE(grid.SortItems(1, TRUE));
    EXPECT_EQ(Column(1), (std::vector<std::string>{"1.9", "9", "10"}));
    EXPECT_EQ(grid.GetItemText(1, 1), "second heading");

    EXPECT_FALSE(grid.SortItems(5, TRUE)); // no such column
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    EXPECT_EQ(grid.GetSelectedCount(), 0);
}

// The text sort compares with strcmp; a compare function doing the same must give the very
// same rows, ties included (their order shows in the second column), both ways.
int CompareAsStrcmp(LPARAM cell1, LPARAM cell2, LPARAM) {
    return std::strcmp(reinterpret_cast<const CGridCellBase*>(cell1)->GetText(),
                       reinterpret_cast<const CGridCellBase*>(cell2)->GetText());
}

TEST(GridTextSort, OrdersRowsAsTheSameQuicksortWithStrcmpDoes) {
    // Short texts, texts that share their first eight bytes, bytes above 127, empty texts and
    // many ties.
    const std::vector<std::string> texts = {
        "pipe-0042", "pipe-0041", "b",     "",          "pipe-004", "\xE9t\xE9", "b",
        "pipe-0042", "a",         "pipe-", "\xE9t\xE9", "zz",       "pipe-0042", "",
        "culvert",   "b",         "a",     "pipe-0041", "culverts", "Z"};
    for (const BOOL ascending : {TRUE, FALSE}) {
        CGridCtrl byText(int(texts.size()) + 1, 2, 1, 0);
        CGridCtrl byFunction(int(texts.size()) + 1, 2, 1, 0);
        for (size_t i = 0; i < texts.size(); i++) {
            for (CGridCtrl* grid : {&byText, &byFunction}) {
                grid->SetItemText(int(i) + 1, 0, texts[i].c_str());
                grid->SetItemText(int(i) + 1, 1, std::to_string(i).c_str());
            }
        }
        byText.SortTextItems(0, ascending);
        byFunction.SortItems(CompareAsStrcmp, 0, ascending);
        for (int row = 1; row <= int(texts.size()); row++) {
            EXPECT_EQ(byText.GetItemText(row, 0), byFunction.GetItemText(row, 0)) << row;
            EXPECT_EQ(byText.GetItemText(row, 1), byFunction.GetItemText(row, 1)) << row;
        }
        for (int row = 2; row <= int(texts.size()); row++) {
            const int order =
                std::strcmp(byText.GetItemText(row - 1, 0), byText.GetItemText(row, 0));
            EXPECT_TRUE(ascending ? order <= 0 : order >= 0) << row;
        }
    }
}

TEST_F(GridSortFillTest, TheSeriesStepFollowsItsRules) {
    // A number comes back in the grid's one number format.
    auto number = [](double value) { return xgFormatDouble(value, -1, 15, 0); };
    struct Case {
        const char* nearText;
        const char* farText;
        CString next;
    };
    const Case cases[] = {{"2", "1", number(3)},     {"2.5", "2.5", number(2.5)},
                          {"B", "A", "A"},           {"-3", "5", number(-5)},
                          {"-5", "-3", number(-7)},  {"4", "0", number(8)},
                          {"0", "0", number(0)},     {"", "7", "7"},
                          {"12", "12a", number(12)}, {"3", "1E5", "1E5"},
                          {"5", "+3", "+3"},         {"Mon", "Tue", "Tue"}};
    for (const Case& c : cases) {
        EXPECT_EQ(CGridCtrl::NextInSeries(c.nearText, c.farText), c.next)
            << c.nearText << " after " << c.farText;
    }
}

TEST_F(GridSortFillTest, DraggingTheHandleCarriesTheSeriesOnAndStepsOverReadOnlyCells) {
    Open(9, 3);
    FillColumn(1, {"1", "2"});
    FillColumn(2, {"A", "B"});
    grid.SetItemText(5, 1, "10");
    grid.SetItemState(5, 1, grid.GetItemState(5, 1) | GV_STATE_READONLY);
    ui.Click(Grid(), CellCentre(1, 1));
    ui.Click(Grid(), CellCentre(2, 2), MK_SHIFT);
    ui.Click(Grid(), CellCentre(1, 1));
    ui.Drag(Grid(), CellCentre(1, 1), CellCentre(2, 2));
    ASSERT_EQ(grid.GetFocusCell(), CCellID(2, 2));
    parent.notifications.clear();

    ui.MouseDown(Grid(), Handle(2, 2));
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_AUTOFILL);
    ui.MouseMove(Grid(), CellCentre(4, 2));
    ui.MouseMove(Grid(), CellCentre(6, 2));
    ui.MouseUp(Grid(), CellCentre(6, 2));

    // The read-only cell keeps its value, and the series goes on from it.
    auto number = [](double value) { return std::string(xgFormatDouble(value, -1, 15, 0)); };
    EXPECT_EQ(Column(1),
              (std::vector<std::string>{"1", "2", number(3), number(4), "10", number(16), "", ""}));
    EXPECT_EQ(Column(2), (std::vector<std::string>{"A", "B", "A", "B", "A", "B", "", ""}));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 1, 6, 2));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(6, 2));
    EXPECT_EQ(int(parent.Of(GV_NOTIFY_ENDLABELEDIT).size()), 7);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST_F(GridSortFillTest, AnEvenDragFillsAcrossAndASingleValueRepeats) {
    Open(4, 5);
    grid.SetItemText(1, 1, "2.5");
    ui.Click(Grid(), CellCentre(1, 1));
    ui.Drag(Grid(), Handle(1, 1), CellCentre(2, 2), 0, 1); // one row and one column: across
    EXPECT_EQ(grid.GetItemText(1, 2), xgFormatDouble(2.5, -1, 15, 0));
    EXPECT_EQ(grid.GetItemText(2, 1), "");
}

TEST_F(GridSortFillTest, DoubleClickingTheHandleCopiesOverTheFilledCellsBelow) {
    Open(7, 3);
    FillColumn(1, {"top", "x", "", "y", "z", "w"});
    grid.SetRowHeight(5, 0);
    ui.Click(Grid(), CellCentre(1, 1));
    ui.DoubleClick(Grid(), Handle(1, 1));
    EXPECT_EQ(Column(1), (std::vector<std::string>{"top", "top", "", "top", "z", "top"}));
    EXPECT_FALSE(grid.IsItemEditing(1, 1));
}

TEST_F(GridSortFillTest, AutoFillBuildsAGridThatFillsTheWindow) {
    CGridCtrl filled;
    ASSERT_TRUE(filled.Create(CRect(0, 0, 200, 100), &parent, 3, WS_CHILD | WS_VISIBLE));
    CRect window;
    CRect client;
    filled.GetWindowRect(&window);
    filled.GetClientRect(&client);
    // A client area of 200 by 100, the borders aside.
    filled.MoveWindow(0, 0, 200 + window.Width() - client.Width(),
                      100 + window.Height() - client.Height());
    filled.SetDefCellWidth(50);
    filled.SetDefCellHeight(20);
    filled.AutoFill();
    EXPECT_EQ(filled.GetColumnCount(), 5);
    EXPECT_EQ(filled.GetRowCount(), 6);
    EXPECT_EQ(filled.GetFixedRowCount(), 1);
    EXPECT_EQ(filled.GetFixedColumnCount(), 1);
}

} // namespace
