// Random user events (mouse anywhere, keys, typing, the wheel, the clipboard shortcuts) on
// grids with merged cells, hidden lines, fixed cells and virtual mode, with the grid's
// invariants checked after each. ORVA_STORM_EVENTS sets the number of events for each grid.

#include "GridOnScreen.h"

#include <cstdlib>
#include <random>
#include <string>

namespace {

constexpr int kDefaultEvents = 1500;
constexpr unsigned kSeed = 20261123;
// More than the farthest a storm point strays past the grid's edges.
constexpr int kMargin = 40;

int StormEvents() {
    const char* wanted = std::getenv("ORVA_STORM_EVENTS");
    return wanted != nullptr && std::atoi(wanted) > 0 ? std::atoi(wanted) : kDefaultEvents;
}

enum class Shape { MergedAndHidden, Virtual, ListModeWithDrag, FormWithReadOnly };

class GridEventStormTest : public GridOnScreen, public ::testing::WithParamInterface<Shape> {
protected:
    std::mt19937 random{kSeed};

    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    void Build(Shape shape) {
        if (shape == Shape::Virtual) {
            grid.SetVirtualMode(TRUE);
            parent.display = [](GV_ITEM& item) { item.text.Format("%d:%d", item.row, item.col); };
        }
        Open(30, 12, 320, 200);
        // Away from the host window's frame, so that points past the grid's edges land in the
        // host's client area and never on its caption or close box.
        grid.SetWindowPos(nullptr, kMargin, kMargin, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        if (shape != Shape::Virtual) {
            for (int row = 1; row < 30; row++) {
                for (int col = 1; col < 12; col++) {
                    grid.SetItemText(row, col, row % 3 == 0 ? "" : "12");
                }
            }
        }
        switch (shape) {
        case Shape::MergedAndHidden:
            grid.MergeCells(2, 2, 4, 3);
            grid.MergeCells(0, 5, 0, 6);
            grid.SetRowHeight(6, 0);
            grid.SetColumnWidth(4, 0);
            grid.SetColumnWidth(11, 0);
            grid.SetHeaderSort(TRUE);
            break;
        case Shape::Virtual:
            grid.SetColumnWidth(3, 0);
            break;
        case Shape::ListModeWithDrag:
            grid.SetListMode(TRUE);
            grid.EnableDragAndDrop(TRUE);
            grid.SetFixedColumnCount(2);
            grid.SetRowHeight(29, 0);
            break;
        case Shape::FormWithReadOnly:
            grid.EnableCustomTabs(TRUE);
            for (int row = 1; row < 30; row += 4) {
                grid.SetItemState(row, 2, grid.GetItemState(row, 2) | GV_STATE_READONLY);
            }
            grid.EnableHiddenColUnhide(FALSE);
            grid.EnableColumnHide(FALSE);
            break;
        }
    }

    CPoint AnyPoint() {
        const CRect client = Client();
        // Mostly inside, sometimes past the edges, and often near a divider of the headings.
        // Each draw is a statement of its own: the order of a call's arguments is the
        // compiler's, and every build must play the same storm from the same seed.
        switch (Pick(4)) {
        case 0: {
            const CPoint point = PickPoint(client.right + 60, client.bottom + 60);
            return CPoint(point.x - 30, point.y - 30);
        }
        case 1: {
            const int divider = 1 + Pick(6);
            const CPoint near = PickPoint(5, kHeight);
            return CPoint(kWidth * divider + near.x - 2, near.y);
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
        static const UINT keys[] = {VK_LEFT, VK_RIGHT,  VK_UP,     VK_DOWN, VK_PRIOR,
                                    VK_NEXT, VK_HOME,   VK_END,    VK_TAB,  VK_DELETE,
                                    VK_F2,   VK_RETURN, VK_ESCAPE, VK_BACK};
        static const UINT shortcuts[] = {'C', 'X', 'V', 'A', VK_INSERT};
        const UINT modifiers = Pick(4) == 0 ? MK_SHIFT : Pick(6) == 0 ? MK_CONTROL : 0;
        const int kind = Pick(12);
        last = std::to_string(kind) + "/" + std::to_string(modifiers) + "/" +
               std::to_string(grid.GetMouseMode());
        switch (kind) {
        case 0:
            ui.MouseDown(Grid(), AnyPoint(), VK_LBUTTON, modifiers);
            break;
        case 1:
            ui.MouseUp(Grid(), AnyPoint(), VK_LBUTTON, modifiers);
            break;
        case 2:
            ui.MouseMove(Grid(), AnyPoint(), modifiers);
            break;
        case 3:
            ui.Click(Grid(), AnyPoint(), modifiers);
            break;
        case 4:
            ui.DoubleClick(Grid(), AnyPoint());
            break;
        case 5:
            ui.RightClick(Grid(), AnyPoint());
            break;
        case 6:
            ui.Wheel(Grid(), AnyPoint(), Pick(2) == 0 ? WHEEL_DELTA : -WHEEL_DELTA);
            break;
        case 7:
        case 8:
            ui.PressKey(keys[Pick(int(std::size(keys)))], modifiers & ~MK_CONTROL);
            break;
        case 9:
            ui.Type(std::string(1, "ab1,\t 9-."[Pick(9)]).c_str());
            break;
        case 10:
            ui.PressKey(shortcuts[Pick(int(std::size(shortcuts)))], MK_CONTROL);
            break;
        default:
            ui.Advance(25 * UINT(1 + Pick(4)));
            break;
        }
    }

    void ExpectInvariants(int event) {
        ASSERT_TRUE(::IsWindow(Grid())) << "event " << event << " last " << last;
        ASSERT_FALSE(Client().IsRectEmpty()) << "event " << event << " last " << last;
        const CCellID focus = grid.GetFocusCell();
        ASSERT_TRUE(focus == CCellID() || grid.IsValid(focus)) << "event " << event;
        if (!grid.GetVirtualMode()) {
            int selected = 0;
            for (int row = 0; row < grid.GetRowCount(); row++) {
                for (int col = 0; col < grid.GetColumnCount(); col++) {
                    const bool bit = (grid.GetItemState(row, col) & GV_STATE_SELECTED) != 0;
                    const bool mapped =
                        grid.m_selectedCellMap.count(CGridProbe::SelectionKey(row, col)) != 0;
                    ASSERT_EQ(bit, mapped) << "event " << event << " at " << row << "," << col;
                    selected += bit ? 1 : 0;
                }
            }
            ASSERT_EQ(selected, grid.GetSelectedCount()) << "event " << event;
        }
        for (const auto& [key, cell] : grid.m_selectedCellMap) {
            ASSERT_TRUE(grid.IsValid(cell)) << "event " << event;
        }
        for (const int bar : {SB_HORZ, SB_VERT}) {
            int minimum = 0;
            int maximum = 0;
            grid.GetScrollRange(bar, &minimum, &maximum);
            const int position = grid.GetScrollPos32(bar);
            ASSERT_GE(position, 0) << "event " << event;
            ASSERT_LE(position, std::max(maximum, 0)) << "event " << event;
        }
        // The only child a grid may have is one editor, which holds the keyboard focus (so
        // that losing it will end the edit) and belongs to a cell that is editing.
        int children = 0;
        for (CWnd* child = grid.GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT)) {
            children++;
            ASSERT_EQ(CWnd::GetFocus(), child) << "event " << event << " last " << last;
            bool owned = grid.GetVirtualMode();
            for (int row = 0; row < grid.GetRowCount() && !owned; row++) {
                for (int col = 0; col < grid.GetColumnCount(); col++) {
                    CGridCellBase* cell = grid.GetCell(row, col);
                    owned = owned || (cell->IsEditing() && cell->GetEditWnd() == child);
                }
            }
            ASSERT_TRUE(owned) << "event " << event << " last " << last;
        }
        ASSERT_LE(children, 1) << "event " << event << " last " << last;
        // And no cell thinks it is editing once its editor has gone.
        int editing = 0;
        for (int row = 0; row < grid.GetRowCount() && !grid.GetVirtualMode(); row++) {
            for (int col = 0; col < grid.GetColumnCount(); col++) {
                editing += grid.GetCell(row, col)->IsEditing() ? 1 : 0;
            }
        }
        if (!grid.GetVirtualMode()) {
            ASSERT_EQ(editing, children) << "event " << event << " last " << last;
        }
    }
};

TEST_P(GridEventStormTest, InvariantsHoldAfterEveryEvent) {
    Build(GetParam());
    const int events = StormEvents();
    for (int event = 0; event < events; event++) {
        PlayOne();
        ExpectInvariants(event);
        if (HasFatalFailure()) {
            return;
        }
    }
    ui.MouseUp(Grid(), CPoint(5, 5));
    ui.PressKey(VK_ESCAPE);
    grid.EndEditing();
    ui.Pump();
    EXPECT_EQ(grid.GetWindow(GW_CHILD), nullptr); // no editor left behind
}

INSTANTIATE_TEST_SUITE_P(Shapes, GridEventStormTest,
                         ::testing::Values(Shape::MergedAndHidden, Shape::Virtual,
                                           Shape::ListModeWithDrag, Shape::FormWithReadOnly));

} // namespace
