#include "GridTestSupport.h"

#include "platform/gdi/Font.h"
#include "platform/system/SysColors.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr UINT kGridId = 4711;

class GridWindowTest : public ::testing::Test {
protected:
    CRecordingParent parent;
    CGridCtrl grid{6, 5, 1, 1};

    void SetUp() override {
        ASSERT_NE(parent.GetSafeHwnd(), nullptr);
        ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 310), &parent, kGridId));
    }
};

} // namespace

TEST_F(GridWindowTest, IsAChildOfItsOwnWindowClass) {
    char className[64] = {};
    ::GetClassName(grid.GetSafeHwnd(), className, sizeof(className));
    EXPECT_STREQ(className, "ORVAGridCtrl");
    EXPECT_EQ(grid.GetParent(), &parent);
    EXPECT_EQ(grid.GetDlgCtrlID(), int(kGridId));
    EXPECT_TRUE(grid.GetExStyle() & WS_EX_CLIENTEDGE);
    // Create sizes every row and column from the ordinary default cell.
    EXPECT_EQ(grid.GetRowHeight(5), grid.GetDefCellHeight());
    EXPECT_EQ(grid.GetColumnWidth(4), grid.GetDefCellWidth());
}

TEST_F(GridWindowTest, DeleteRowAnnouncesASelectionChangeAndDeleteColumnDoesNot) {
    parent.notifications.clear();
    EXPECT_TRUE(grid.DeleteColumn(2));
    EXPECT_TRUE(parent.notifications.empty());
    EXPECT_TRUE(grid.DeleteRow(2));
    const auto changes = parent.Of(GV_NOTIFY_SELCHANGED);
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(changes[0].row, -1);
    EXPECT_EQ(changes[0].col, -1);
    EXPECT_EQ(changes[0].id, UINT_PTR(kGridId));
}

TEST_F(GridWindowTest, ClearCellsIsABulkEditThatTheParentMayVetoPerCell) {
    grid.SetItemText(1, 1, "keep");
    grid.SetItemText(1, 2, "clear");
    grid.SetItemText(2, 2, "refused");
    parent.answer = [](const Notification& n) -> LRESULT {
        if (n.code == UINT(GV_NOTIFY_BEGINLABELEDIT) && n.row == 1 && n.col == 1) {
            return -1;
        }
        if (n.code == UINT(GV_NOTIFY_ENDLABELEDIT) && n.row == 2 && n.col == 2) {
            return -1;
        }
        return 0;
    };
    parent.notifications.clear();
    grid.ClearCells(CCellRange(1, 1, 2, 2));
    EXPECT_EQ(grid.GetItemText(1, 1), "keep");
    EXPECT_EQ(grid.GetItemText(1, 2), "");
    EXPECT_EQ(grid.GetItemText(2, 2), "refused");

    ASSERT_GE(parent.notifications.size(), 2u);
    EXPECT_EQ(parent.notifications.front().code, UINT(GV_NOTIFY_BEGINBULKEDIT));
    EXPECT_EQ(parent.notifications.back().code, UINT(GV_NOTIFY_ENDBULKEDIT));
    EXPECT_EQ(parent.notifications.back().row, 0);
    // An empty cell is not changed, so it is not announced as edited.
    for (const Notification& n : parent.Of(GV_NOTIFY_ENDLABELEDIT)) {
        EXPECT_FALSE(n.row == 2 && n.col == 1);
    }
}

TEST_F(GridWindowTest, VirtualModeAsksTheParentWhenThereIsNoCallback) {
    parent.display = [](GV_ITEM& item) {
        item.text.Format("parent %d,%d", item.row, item.col);
        item.backColor = RGB(1, 2, 3);
    };
    grid.SetVirtualMode(TRUE);
    grid.SetRowCount(1000);
    grid.SetColumnCount(3);
    parent.notifications.clear();
    CGridCellBase* cell = grid.GetCell(999, 2);
    ASSERT_NE(cell, nullptr);
    EXPECT_STREQ(cell->GetText(), "parent 999,2");
    EXPECT_EQ(cell->GetBackClr(), RGB(1, 2, 3));
    const auto requests = parent.Of(GV_NOTIFY_GETDISPINFO);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].id, UINT_PTR(kGridId));
    EXPECT_STREQ(CGridCtrl::gvdi.item.text, "parent 999,2");
}

TEST_F(GridWindowTest, TakesItsParentsFontAndItsMeasure) {
    CRecordingParent host;
    LOGFONT big{};
    big.lfHeight = -32;
    std::strcpy(big.lfFaceName, "Arial");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&big));
    host.SetFont(&font);
    CGridCtrl other(2, 2);
    const int before = other.GetDefCellHeight();
    ASSERT_TRUE(other.Create(CRect(0, 0, 200, 100), &host, 1));
    EXPECT_EQ(other.GetDefaultCell(TRUE, TRUE)->GetFont()->lfHeight, -32);
    EXPECT_GT(other.GetDefCellHeight(), before);
    EXPECT_EQ(other.GetRowHeight(1), other.GetDefCellHeight());
}

TEST_F(GridWindowTest, TakesOverAPlaceholderWindowWithItsParentsFont) {
    CRecordingParent host;
    LOGFONT big{};
    big.lfHeight = -28;
    std::strcpy(big.lfFaceName, "Arial");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&big));
    host.SetFont(&font);
    const HWND placeholder = ::CreateWindowEx(
        0, GRIDCTRL_CLASSNAME, "", WS_CHILD | WS_VISIBLE, 0, 0, 200, 100, host.GetSafeHwnd(),
        reinterpret_cast<HMENU>(UINT_PTR(77)), nullptr, nullptr);
    ASSERT_NE(placeholder, nullptr);
    CGridCtrl other(2, 2);
    ASSERT_TRUE(other.SubclassDlgItem(77, &host));
    EXPECT_EQ(other.GetDefaultCell(TRUE, TRUE)->GetFont()->lfHeight, -28);
    EXPECT_TRUE(other.GetExStyle() & WS_EX_CLIENTEDGE);
}

TEST_F(GridWindowTest, SystemColourChangesReachOnlyColoursStillAtTheSystemValue) {
    grid.GetDefaultCell(TRUE, FALSE)->SetTextClr(RGB(200, 0, 0));
    const int elements[] = {COLOR_WINDOWTEXT, COLOR_WINDOW, COLOR_3DFACE, COLOR_3DSHADOW};
    const COLORREF values[] = {RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3), RGB(4, 4, 4)};
    ::SetSysColors(4, elements, values);
    grid.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(grid.GetTextColor(), RGB(1, 1, 1));
    EXPECT_EQ(grid.GetTextBkColor(), RGB(2, 2, 2));
    EXPECT_EQ(grid.GetDefaultCell(TRUE, FALSE)->GetTextClr(), RGB(200, 0, 0));
    EXPECT_EQ(grid.GetDefaultCell(FALSE, TRUE)->GetTextClr(), RGB(1, 1, 1));
    EXPECT_NE(grid.GetFixedBkColor(), RGB(3, 3, 3)) << "fixed backgrounds do not follow";
    EXPECT_EQ(grid.GetGridBkColor(), RGB(4, 4, 4));

    // The new values are remembered: the next change follows from them.
    const COLORREF text[] = {RGB(5, 5, 5)};
    ::SetSysColors(1, elements, text);
    grid.SendMessage(WM_SETTINGCHANGE);
    EXPECT_EQ(grid.GetTextColor(), RGB(5, 5, 5));
    ::RestoreDefaultSysColors();
}

TEST_F(GridWindowTest, InsertedColumnsAreAsWideAsTheirHeadings) {
    const int shortColumn = grid.InsertColumn("x");
    const int longColumn = grid.InsertColumn("a much longer heading");
    EXPECT_GT(grid.GetColumnWidth(longColumn), grid.GetColumnWidth(shortColumn));
    // Four margins around the text: the margin is the width of a space.
    EXPECT_GT(grid.GetColumnWidth(shortColumn), 4 * grid.GetDefCellMargin());

    // Without a window there is nothing to measure with: the default cell's width serves.
    CGridCtrl headless(2, 2);
    const int column = headless.InsertColumn("a much longer heading");
    EXPECT_EQ(headless.GetColumnWidth(column), headless.GetDefCellWidth());
}
