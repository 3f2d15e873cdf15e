// A dialog that lays out its controls from the size deltas it is told of: one control keeps to
// the bottom right corner, one grows with the dialog, one stays put.

#include "controls/DialogORVA.h"

#include "platform/base/Messages.h"
#include "platform/system/SystemMetrics.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

constexpr UINT kResizableDialog = 310;
constexpr UINT kListId = 1001;
constexpr UINT kLabelId = 1002;
constexpr UINT kMissingId = 1999;
constexpr int kGrowX = 90;
constexpr int kGrowY = 40;
constexpr int kShrinkX = -30;
constexpr int kShrinkY = -15;

void RegisterTemplate() {
    RegisterDialogTemplate(kResizableDialog, {"Resizable",
                                              {160, 100},
                                              {{"", "Label", kLabelId, WS_VISIBLE, {4, 4, 60, 12}},
                                               {"", "", kListId, WS_VISIBLE, {4, 16, 150, 70}},
                                               {"", "OK", IDOK, WS_VISIBLE, {100, 76, 150, 90}}}});
}

class LayoutDialog : public CDialogORVA {
public:
    explicit LayoutDialog(int minWidth = -1, int minHeight = -1)
        : CDialogORVA(kResizableDialog, nullptr) {
        if (minWidth != -1 || minHeight != -1)
            SetMinTrackSize(minWidth, minHeight);
    }
    void DialogResized(int deltaX, int deltaY) override {
        deltas.emplace_back(deltaX, deltaY);
        MoveSizeItem(IDOK, deltaX, deltaY, 0, 0);
        MoveSizeItem(kListId, 0, 0, deltaX, deltaY);
        MoveSizeItem(kMissingId, deltaX, deltaY, 0, 0);
    }
    std::vector<std::pair<int, int>> deltas;
};

CRect WindowSize(const CWnd& wnd) {
    CRect r;
    wnd.GetWindowRect(&r);
    return r;
}

CRect ClientSize(const CWnd& wnd) {
    CRect r;
    wnd.GetClientRect(&r);
    return r;
}

// The item's rectangle in its parent's client coordinates.
CRect ItemRect(const CWnd& dialog, UINT id) {
    CRect r;
    dialog.GetDlgItem(int(id))->GetWindowRect(&r);
    dialog.ScreenToClient(&r);
    return r;
}

void Resize(CWnd& dialog, int width, int height) {
    dialog.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
}

// Asks as the window layer does: the record comes filled with the system's limits.
MINMAXINFO AskMinMax(const CWnd& dialog) {
    MINMAXINFO info{};
    info.ptMaxTrackSize = POINT{GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, LPARAM(&info));
    return info;
}

class DialogResize : public ::testing::Test {
protected:
    DialogResize() { RegisterTemplate(); }
};

} // namespace

TEST_F(DialogResize, ControlsFollowTheDialogLargerAndSmaller) {
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Create(kResizableDialog));
    const CRect design = WindowSize(dialog);
    const CRect ok = ItemRect(dialog, IDOK);
    const CRect list = ItemRect(dialog, kListId);
    const CRect label = ItemRect(dialog, kLabelId);

    Resize(dialog, design.Width() + kGrowX, design.Height() + kGrowY);
    ASSERT_EQ(dialog.deltas.size(), 1u);
    EXPECT_EQ(dialog.deltas[0], std::make_pair(kGrowX, kGrowY));
    CRect moved = ok;
    moved.OffsetRect(kGrowX, kGrowY);
    EXPECT_EQ(ItemRect(dialog, IDOK), moved);
    CRect grown = list;
    grown.right += kGrowX;
    grown.bottom += kGrowY;
    EXPECT_EQ(ItemRect(dialog, kListId), grown);
    EXPECT_EQ(ItemRect(dialog, kLabelId), label);

    // Back towards the design size: the deltas are taken from the last size seen.
    Resize(dialog, design.Width() + kGrowX + kShrinkX, design.Height() + kGrowY + kShrinkY);
    ASSERT_EQ(dialog.deltas.size(), 2u);
    EXPECT_EQ(dialog.deltas[1], std::make_pair(kShrinkX, kShrinkY));
    CRect okNow = ok;
    okNow.OffsetRect(kGrowX + kShrinkX, kGrowY + kShrinkY);
    EXPECT_EQ(ItemRect(dialog, IDOK), okNow);
    EXPECT_EQ(ItemRect(dialog, kListId).Width(), list.Width() + kGrowX + kShrinkX);
    EXPECT_EQ(ItemRect(dialog, kListId).Height(), list.Height() + kGrowY + kShrinkY);
    dialog.DestroyWindow();
}

TEST_F(DialogResize, OnlyRealChangesOfAnOpenDialogAreReported) {
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Create(kResizableDialog));
    const CRect design = WindowSize(dialog);
    const CRect client = ClientSize(dialog);

    // Moving without sizing, and sizing twice to the same size, report one change.
    dialog.SetWindowPos(nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Resize(dialog, design.Width() + kGrowX, design.Height());
    Resize(dialog, design.Width() + kGrowX, design.Height());
    ASSERT_EQ(dialog.deltas.size(), 1u);
    EXPECT_EQ(dialog.deltas[0], std::make_pair(kGrowX, 0));

    // Minimised and restored as a host reports it: neither is a change of layout.
    dialog.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED,
                       MAKELPARAM(WORD(client.Width() + kGrowX), WORD(client.Height())));
    EXPECT_EQ(dialog.deltas.size(), 1u);
    dialog.DestroyWindow();
}

TEST_F(DialogResize, SizesBeforeInitialisationAreNotReported) {
    // A dialog that creates itself and sizes its window before it is initialised.
    class SelfSizing : public CDialogORVA {
    public:
        SelfSizing() : CDialogORVA(kResizableDialog, nullptr) {}
        BOOL OnInitDialog() override {
            SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
            sizedBefore = resized;
            return CDialogORVA::OnInitDialog();
        }
        void DialogResized(int, int) override { ++resized; }
        int resized = 0;
        int sizedBefore = -1;
    } dialog;
    ASSERT_TRUE(dialog.Create(kResizableDialog));
    EXPECT_EQ(dialog.sizedBefore, 0);
    // The size set before initialisation is the design size that the minimum is taken from.
    const MINMAXINFO info = AskMinMax(dialog);
    EXPECT_EQ(info.ptMinTrackSize.x, 400);
    EXPECT_EQ(info.ptMinTrackSize.y, 300);
    Resize(dialog, 400, 300);
    EXPECT_EQ(dialog.resized, 0);
    dialog.DestroyWindow();
}

TEST_F(DialogResize, MinimumIsTheDesignSizeUnlessTheClassSetsOne) {
    {
        LayoutDialog dialog;
        ASSERT_TRUE(dialog.Create(kResizableDialog));
        const CRect design = WindowSize(dialog);
        const MINMAXINFO info = AskMinMax(dialog);
        EXPECT_EQ(info.ptMinTrackSize.x, design.Width());
        EXPECT_EQ(info.ptMinTrackSize.y, design.Height());
        // The rest of the record keeps what the system put there.
        EXPECT_EQ(info.ptMaxTrackSize.x, GetSystemMetrics(SM_CXMAXTRACK));
        dialog.DestroyWindow();
    }
    {
        constexpr int kMinWidth = 100, kMinHeight = 50;
        LayoutDialog dialog(kMinWidth, kMinHeight);
        ASSERT_TRUE(dialog.Create(kResizableDialog));
        const MINMAXINFO info = AskMinMax(dialog);
        EXPECT_EQ(info.ptMinTrackSize.x, kMinWidth);
        EXPECT_EQ(info.ptMinTrackSize.y, kMinHeight);
        dialog.DestroyWindow();
    }
}

TEST_F(DialogResize, HalfAMinimumTurnsLimitAndReportsOff) {
    constexpr int kMinHeight = 50;
    LayoutDialog dialog(-1, kMinHeight);
    ASSERT_TRUE(dialog.Create(kResizableDialog));
    const MINMAXINFO defaults = [] {
        CWnd plain;
        plain.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        MINMAXINFO info = AskMinMax(plain);
        plain.DestroyWindow();
        return info;
    }();
    const MINMAXINFO info = AskMinMax(dialog);
    EXPECT_EQ(info.ptMinTrackSize.x, defaults.ptMinTrackSize.x);
    EXPECT_EQ(info.ptMinTrackSize.y, defaults.ptMinTrackSize.y);
    Resize(dialog, 500, 400);
    EXPECT_TRUE(dialog.deltas.empty());
    dialog.DestroyWindow();
}

TEST(MoveSizeItem, MovesAnyWindowsChildAndIgnoresWhatIsMissing) {
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "Parent", WS_POPUP | WS_CAPTION, 50, 60, 300, 200,
                                nullptr, nullptr));
    CWnd child;
    ASSERT_TRUE(
        child.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 20, 60, 40), &parent, kListId));
    MoveSizeItem(&parent, kListId, 5, 7, 11, 13);
    EXPECT_EQ(ItemRect(parent, kListId), CRect(15, 27, 76, 60));
    MoveSizeItem(&parent, &child, -5, -7, -11, -13);
    EXPECT_EQ(ItemRect(parent, kListId), CRect(10, 20, 60, 40));
    MoveSizeItem(&parent, kMissingId, 5, 5, 5, 5);
    MoveSizeItem(nullptr, &child, 5, 5, 5, 5);
    MoveSizeItem(&parent, static_cast<CWnd*>(nullptr), 5, 5, 5, 5);
    EXPECT_EQ(ItemRect(parent, kListId), CRect(10, 20, 60, 40));
    parent.DestroyWindow();
}
