// Taking over a dialog's placeholder window: the spreadsheet picks a default row height near its
// font's that fills the client height with whole rows, and takes the size of the rows it shows.
// Also showing and hiding the control, and its scroll bars brought up to date on request.

#include "platform/gdi/Font.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowApi.h"
#include "spreadsheet/SpreadSheetORVA.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr UINT kPlaceholderId = 77;
constexpr int kFontHeight = -13; // a font whose default row height is 22 pixels
constexpr int kFontRowHeight = 22;
constexpr int kLeft = 10;
constexpr int kTop = 20;
constexpr int kWidth = 200;
constexpr int kEdge = 2; // the client edge on each side

class SpreadSheetPlaceholderTest : public ::testing::Test {
protected:
    SpreadSheetPlaceholderTest() {
        host.CreateEx(0, AfxRegisterWndClass(0), "dialog", WS_OVERLAPPEDWINDOW,
                      CRect(0, 0, 400, 700), nullptr, 0);
        LOGFONT logFont{};
        logFont.lfHeight = kFontHeight;
        std::strcpy(logFont.lfFaceName, "MS Shell Dlg");
        font.CreateFontIndirect(&logFont);
        host.SetFont(&font);
    }
    ~SpreadSheetPlaceholderTest() override { host.DestroyWindow(); }

    // A placeholder with a client edge, as a dialog template makes it, of this client height.
    HWND Placeholder(int clientHeight) {
        return ::CreateWindowEx(WS_EX_CLIENTEDGE, GRIDCTRL_CLASSNAME, "", WS_CHILD | WS_VISIBLE,
                                kLeft, kTop, kWidth, clientHeight + 2 * kEdge, host.GetSafeHwnd(),
                                reinterpret_cast<HMENU>(UINT_PTR(kPlaceholderId)), nullptr,
                                nullptr);
    }
    // The control's window in its parent's client coordinates.
    static CRect PlaceOf(CWnd& control) {
        CRect place;
        control.GetWindowRect(&place);
        control.GetParent()->ScreenToClient(&place);
        return place;
    }

    CWnd host;
    CFont font;
    UiDriver ui;
};

TEST_F(SpreadSheetPlaceholderTest, ThePlainGridOfThisFontHasTheRowHeightTheCasesStartFrom) {
    ASSERT_NE(Placeholder(100), nullptr);
    CGridCtrl plain;
    ASSERT_TRUE(plain.SubclassDlgItem(kPlaceholderId, &host));
    EXPECT_EQ(plain.GetDefCellHeight(), kFontRowHeight);
}

TEST_F(SpreadSheetPlaceholderTest,
       TheRowHeightLeavingTheLeastPartRowIsChosenAndTheWindowShrinksToIt) {
    struct Case {
        int clientHeight;
        int rowHeight;
        int windowHeight;
    };
    const Case cases[] = {
        {100, 25, 100}, // remainders 12, 16, 8, 4, 0 for 22, 21, 23, 24, 25
        {88, 22, 88},   // already whole rows of the font's height
        {105, 21, 105}, // the first one tried, one less, wins outright
        {552, 23, 552}, // 23 and 24 both fit: the earlier tried keeps it
        {30, 25, 25},   // no height fits: the least part row, 5 pixels, goes
    };
    for (const Case& c : cases) {
        ASSERT_NE(Placeholder(c.clientHeight), nullptr);
        CSpreadSheetORVA sheet;
        ASSERT_TRUE(sheet.SubclassDlgItem(kPlaceholderId, &host));
        EXPECT_EQ(sheet.GetDefCellHeight(), c.rowHeight) << c.clientHeight;
        // The window takes the place of what was its client area, less the part row.
        EXPECT_EQ(PlaceOf(sheet),
                  CRect(kLeft + kEdge, kTop + kEdge, kLeft + kEdge + kWidth - 2 * kEdge,
                        kTop + kEdge + c.windowHeight))
            << c.clientHeight;
        sheet.SetColumnCount(2);
        sheet.SetRowCount(3);
        EXPECT_EQ(sheet.GetRowHeight(2), c.rowHeight);
        sheet.DestroyWindow();
    }
}

TEST_F(SpreadSheetPlaceholderTest, ScrollBarsFollowSizesChangedWithoutThemOnRequest) {
    ASSERT_NE(Placeholder(100), nullptr);
    CSpreadSheetORVA sheet;
    ASSERT_TRUE(sheet.SubclassDlgItem(kPlaceholderId, &host));
    sheet.SetColumnCount(2);
    sheet.SetRowCount(3);
    EXPECT_FALSE(sheet.IsVisibleVScroll());
    for (int row = 0; row < 3; row++) {
        sheet.SetRowHeight(row, 200, FALSE);
    }
    EXPECT_FALSE(sheet.IsVisibleVScroll());
    sheet.ResetScrollBarsNow();
    EXPECT_TRUE(sheet.IsVisibleVScroll());
}

} // namespace
