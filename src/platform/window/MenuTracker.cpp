// Menu tracking: the modal loop, the levels of pop-up windows, the menu bar's selection, and
// what the mouse and the keys do while a menu is open.
//
// Sections: the windows of the tracking; the loop and its end; levels; the bar; input;
// the handle-level calls (TrackPopupMenu, EndMenu, GetMenuItemRect, the answerer).

#include "platform/window/MenuTracker.h"

#include "platform/gdi/DC.h"
#include "platform/host/Host.h"
#include "platform/system/SystemMetrics.h"
#include "platform/window/Input.h"
#include "platform/window/PopupMenuAnswerer.h"
#include "platform/window/WindowRecord.h"

#include <cctype>

namespace wm {
namespace {

constexpr const char* kMenuClass = "#32768";
constexpr int kSubMenuOverlap = 3; // a sub-menu covers its parent's frame, as in the classic look

// One tracking at a time: the user-interface thread's.
MenuTracker*& Current() {
    static MenuTracker* current = nullptr;
    return current;
}

PopupMenuAnswerer& Answerer() {
    static PopupMenuAnswerer& answerer = *new PopupMenuAnswerer;
    return answerer;
}

bool IsMouseMessage(UINT message) {
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

LRESULT MenuWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MenuTracker* tracker = Current();
    switch (message) {
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(hwnd, &ps);
        if (tracker)
            tracker->PaintLevel(hwnd, dc);
        EndPaint(hwnd, &ps);
        return 0;
    }
    case WM_ERASEBKGND:
        return 1;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_CAPTURECHANGED:
        // Someone else took the mouse: the menu cannot go on.
        if (tracker && hwnd == tracker->InputWindow() && HWND(lParam) != hwnd)
            tracker->Cancel();
        return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_SYSCHAR:
        if (tracker && hwnd == tracker->InputWindow())
            tracker->OnInput(message, wParam, lParam);
        return 0;
    default:
        if (IsMouseMessage(message) && tracker && hwnd == tracker->InputWindow()) {
            tracker->OnInput(message, wParam, lParam);
            return 0;
        }
        return DefWindowProc(hwnd, message, wParam, lParam);
    }
}

void RegisterMenuClass() {
    static bool registered = false;
    if (registered)
        return;
    WNDCLASS cls{};
    cls.lpfnWndProc = MenuWindowProc;
    cls.hCursor = LoadCursor(nullptr, IDC_ARROW);
    cls.lpszClassName = kMenuClass;
    registered = RegisterClass(&cls) != FALSE;
}

CRect ScreenArea() {
    return CRect(0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
}

// Keeps a menu's rectangle on the screen: it goes to the other side of `avoid` (the item or
// point that opened it) when it does not fit, and is pushed in as a last resort.
CRect FitOnScreen(CRect rect, const CRect& avoid, bool besideAvoid) {
    const CRect screen = ScreenArea();
    if (rect.right > screen.right) {
        const int x =
            besideAvoid ? avoid.left - rect.Width() + kSubMenuOverlap : screen.right - rect.Width();
        rect.OffsetRect(x - rect.left, 0);
    }
    if (rect.bottom > screen.bottom) {
        const int y = besideAvoid ? screen.bottom - rect.Height() : avoid.top - rect.Height();
        rect.OffsetRect(0, y - rect.top);
    }
    rect.OffsetRect(std::max<LONG>(0, screen.left - rect.left),
                    std::max<LONG>(0, screen.top - rect.top));
    return rect;
}

std::vector<ShownMenuItem> DescribeItems(HMENU menu, int depth = 0) {
    std::vector<ShownMenuItem> shown;
    const MenuRecord* record = FindMenu(menu);
    if (!record || depth > 16)
        return shown;
    for (const MenuItem& item : record->items) {
        ShownMenuItem s;
        s.text = item.text;
        s.id = item.IsPopup() ? 0 : item.id;
        s.state = item.flags | (item.IsPopup() ? MF_POPUP : 0);
        if (item.IsPopup())
            s.subItems = DescribeItems(item.subMenu, depth + 1);
        shown.push_back(std::move(s));
    }
    return shown;
}

// The enabled item with this command in the menu or its enabled sub-menus.
bool CanChoose(HMENU menu, UINT command, int depth = 0) {
    const MenuRecord* record = FindMenu(menu);
    if (!record || depth > 16)
        return false;
    for (const MenuItem& item : record->items) {
        if (item.IsSeparator() || !item.IsEnabled())
            continue;
        if (item.IsPopup() ? CanChoose(item.subMenu, command, depth + 1) : item.id == command)
            return true;
    }
    return false;
}

} // namespace

MenuTracker* CurrentMenuTracker() {
    return Current();
}

HWND MenuInputWindow() {
    return Current() ? Current()->InputWindow() : nullptr;
}

MenuTracker::MenuTracker(HWND owner, UINT flags) : m_owner(owner), m_flags(flags) {}

MenuTracker::~MenuTracker() {
    CloseLevelsFrom(0);
    if (m_inputWindow)
        DestroyWindow(m_inputWindow);
    if (Current() == this)
        Current() = nullptr;
}

// ---- The loop and its end ----

UINT MenuTracker::TrackPopup(HMENU menu, CPoint at) {
    return Run(menu, false, at, false);
}

UINT MenuTracker::TrackBar(HWND frame, int barItem, bool selectFirst) {
    m_barFrame = frame;
    m_barHot = barItem;
    return Run(GetMenu(frame), true, CPoint(), selectFirst);
}

UINT MenuTracker::Run(HMENU menu, bool menuBar, CPoint at, bool selectFirst) {
    if (Current() || !FindMenu(menu))
        return 0;
    Current() = this;
    RegisterMenuClass();
    // The hidden window at the screen's origin has client coordinates that are screen ones.
    m_inputWindow =
        CreateWindowEx(0, kMenuClass, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    SetCapture(m_inputWindow);
    const bool notify = !(m_flags & TPM_NONOTIFY);
    if (notify) {
        SendMessage(m_owner, WM_ENTERMENULOOP, menuBar ? FALSE : TRUE, 0);
        if (menuBar)
            SendMessage(m_owner, WM_INITMENU, WPARAM(menu), 0);
    }
    if (!IsWindow(m_owner) || !FindMenu(menu)) {
        Finish(0);
    } else if (menuBar) {
        if (m_barHot >= 0)
            SelectBarItem(m_barHot, true, selectFirst);
        else
            SelectBarItem(NextBarItem(-1, 1), false, false);
    } else {
        const PopupLayout layout = LayoutPopup(*FindMenu(menu));
        CRect rect(at, layout.size);
        if (m_flags & TPM_CENTERALIGN)
            rect.OffsetRect(-rect.Width() / 2, 0);
        else if (m_flags & TPM_RIGHTALIGN)
            rect.OffsetRect(-rect.Width(), 0);
        if (m_flags & TPM_VCENTERALIGN)
            rect.OffsetRect(0, -rect.Height() / 2);
        else if (m_flags & TPM_BOTTOMALIGN)
            rect.OffsetRect(0, -rect.Height());
        if (!OpenLevel(menu, FitOnScreen(rect, CRect(at, CSize(1, 1)), false), 0))
            Finish(0);
    }
    if (!m_done && Answerer()) {
        ShownPopupMenu shown;
        shown.owner = m_owner;
        shown.window = m_levels.empty() ? nullptr : m_levels.front().window;
        shown.menu = menu;
        shown.at = at;
        shown.flags = m_flags;
        shown.menuBar = menuBar;
        shown.items = DescribeItems(menu);
        if (const std::optional<UINT> answer = Answerer()(shown); answer && !m_done)
            Finish(*answer && FindMenu(menu) && CanChoose(menu, *answer) ? *answer : 0);
    }
    Loop();
    CloseLevelsFrom(0);
    if (GetCapture() == m_inputWindow)
        ReleaseCapture();
    DestroyWindow(m_inputWindow);
    m_inputWindow = nullptr;
    Current() = nullptr;
    if (WindowRecord* frame = Find(m_barFrame))
        InvalidateFrame(*frame);
    if (notify && IsWindow(m_owner))
        SendMessage(m_owner, WM_EXITMENULOOP, menuBar ? FALSE : TRUE, 0);
    return m_chosen;
}

void MenuTracker::Loop() {
    // The menu waits for the user; where nobody can give input (headless), it closes with
    // nothing chosen once what is queued is done, rather than wait for ever.
    while (!m_done) {
        if (!IsWindow(m_inputWindow) || !IsWindow(m_owner)) {
            Finish(0);
            break;
        }
        MSG msg;
        if (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message == WM_QUIT) {
                PostQuitMessage(int(msg.wParam));
                Finish(0);
                break;
            }
            TranslateMessage(&msg);
            DispatchMessage(&msg);
            continue;
        }
        if (!GetHost().HasUser() || !GetHost().WaitForEvents(NextTimerDueTime()))
            Finish(0);
    }
}

void MenuTracker::Finish(UINT command) {
    if (m_done)
        return;
    m_done = true;
    m_chosen = command;
}

void MenuTracker::Cancel() {
    Finish(0);
}

// ---- Levels ----

bool MenuTracker::OpenLevel(HMENU menu, const CRect& placed, int indexInParent) {
    if (!(m_flags & TPM_NONOTIFY))
        SendMessage(m_owner, WM_INITMENUPOPUP, WPARAM(menu), MAKELPARAM(WORD(indexInParent), 0));
    const MenuRecord* record = FindMenu(menu);
    if (!record || m_done)
        return false;
    Level level;
    level.menu = menu;
    level.layout = LayoutPopup(*record);
    const CRect rect(placed.TopLeft(), level.layout.size);
    level.window = CreateWindowEx(WS_EX_TOPMOST, kMenuClass, "", WS_POPUP, rect.left, rect.top,
                                  rect.Width(), rect.Height(), nullptr, nullptr, nullptr, nullptr);
    if (!level.window)
        return false;
    m_levels.push_back(level);
    SetWindowPos(level.window, HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return true;
}

void MenuTracker::CloseLevelsFrom(size_t depth) {
    while (m_levels.size() > depth) {
        const HWND window = m_levels.back().window;
        m_levels.pop_back();
        DestroyWindow(window);
    }
    if (depth > 0 && depth <= m_levels.size()) {
        // The parent's item that had the sub-menu open stays selected.
        InvalidateRect(m_levels[depth - 1].window, nullptr, FALSE);
    }
}

void MenuTracker::SetHot(size_t depth, int item) {
    Level& level = m_levels[depth];
    if (level.hot == item)
        return;
    for (int changed : {level.hot, item})
        if (changed >= 0 && size_t(changed) < level.layout.items.size())
            InvalidateRect(level.window, &level.layout.items[size_t(changed)], FALSE);
    level.hot = item;
    const MenuRecord* record = FindMenu(level.menu);
    if (item >= 0 && record && size_t(item) < record->items.size() && !(m_flags & TPM_NONOTIFY)) {
        const MenuItem& it = record->items[size_t(item)];
        const UINT idOrIndex = it.IsPopup() ? UINT(item) : it.id;
        SendMessage(m_owner, WM_MENUSELECT,
                    MAKEWPARAM(WORD(idOrIndex), WORD(it.flags | (it.IsPopup() ? MF_POPUP : 0))),
                    LPARAM(level.menu));
    }
}

void MenuTracker::OpenSubMenu(size_t depth, bool selectFirst) {
    const Level& level = m_levels[depth];
    const MenuRecord* record = FindMenu(level.menu);
    if (!record || level.hot < 0 || size_t(level.hot) >= record->items.size())
        return;
    const MenuItem& item = record->items[size_t(level.hot)];
    if (!item.IsPopup() || !item.IsEnabled())
        return;
    CloseLevelsFrom(depth + 1);
    RECT window;
    GetWindowRect(level.window, &window);
    const CRect itemOnScreen =
        level.layout.items[size_t(level.hot)] + CPoint(window.left, window.top);
    const MenuRecord* sub = FindMenu(item.subMenu);
    if (!sub)
        return;
    const CRect rect(
        CPoint(itemOnScreen.right - kSubMenuOverlap, itemOnScreen.top - kSubMenuOverlap),
        LayoutPopup(*sub).size);
    if (OpenLevel(item.subMenu, FitOnScreen(rect, itemOnScreen, true), level.hot) && selectFirst)
        SetHot(m_levels.size() - 1, NextSelectable(m_levels.back(), -1, 1));
}

void MenuTracker::Choose(size_t depth, int item) {
    const MenuRecord* record = FindMenu(m_levels[depth].menu);
    if (!record || item < 0 || size_t(item) >= record->items.size())
        return;
    const MenuItem& chosen = record->items[size_t(item)];
    if (chosen.IsSeparator() || chosen.IsPopup() || !chosen.IsEnabled())
        return;
    Finish(chosen.id);
}

void MenuTracker::PaintLevel(HWND window, HDC dc) const {
    for (const Level& level : m_levels)
        if (level.window == window)
            if (const MenuRecord* record = FindMenu(level.menu))
                PaintPopup(dc, *record, level.layout, level.hot);
}

bool MenuTracker::ItemRect(HWND, HMENU menu, UINT position, CRect& rect) const {
    for (const Level& level : m_levels) {
        if (level.menu != menu || position >= level.layout.items.size())
            continue;
        RECT window;
        GetWindowRect(level.window, &window);
        rect = level.layout.items[position] + CPoint(window.left, window.top);
        return true;
    }
    return false;
}

// ---- The bar ----

std::vector<CRect> MenuTracker::BarItemsOnScreen() const {
    const WindowRecord* frame = Find(m_barFrame);
    const MenuRecord* bar = frame ? FindMenu(frame->menu) : nullptr;
    if (!bar)
        return {};
    std::vector<CRect> items = LayoutMenuBar(*bar, MenuBarItemsInWindow(*frame));
    for (CRect& r : items)
        r.OffsetRect(WindowOrigin(*frame));
    return items;
}

int MenuTracker::BarItemAt(CPoint screen) const {
    const std::vector<CRect> items = BarItemsOnScreen();
    for (size_t i = 0; i < items.size(); ++i)
        if (items[i].PtInRect(screen))
            return int(i);
    return -1;
}

int MenuTracker::NextBarItem(int from, int step) const {
    const WindowRecord* frame = Find(m_barFrame);
    const MenuRecord* bar = frame ? FindMenu(frame->menu) : nullptr;
    const int count = bar ? int(bar->items.size()) : 0;
    for (int i = 1; i <= count; ++i) {
        const int candidate = ((from + step * i) % count + count) % count;
        if (!bar->items[size_t(candidate)].IsSeparator())
            return candidate;
    }
    return -1;
}

void MenuTracker::SelectBarItem(int item, bool open, bool selectFirst) {
    CloseLevelsFrom(0);
    m_barHot = item;
    WindowRecord* frame = Find(m_barFrame);
    if (frame)
        InvalidateFrame(*frame);
    const MenuRecord* bar = frame ? FindMenu(frame->menu) : nullptr;
    if (!open || !bar || item < 0 || size_t(item) >= bar->items.size())
        return;
    const MenuItem& entry = bar->items[size_t(item)];
    if (!entry.IsEnabled())
        return;
    if (!entry.IsPopup()) {
        // A command on the bar itself is chosen by opening it.
        Finish(entry.id);
        return;
    }
    const std::vector<CRect> items = BarItemsOnScreen();
    const MenuRecord* sub = FindMenu(entry.subMenu);
    if (!sub || size_t(item) >= items.size())
        return;
    const CRect& anchor = items[size_t(item)];
    const CRect rect(CPoint(anchor.left, anchor.bottom), LayoutPopup(*sub).size);
    if (OpenLevel(entry.subMenu, FitOnScreen(rect, anchor, false), item) && selectFirst)
        SetHot(m_levels.size() - 1, NextSelectable(m_levels.back(), -1, 1));
}

int MenuTracker::BarHotItem(HWND frame, bool* open) const {
    if (frame != m_barFrame || !frame)
        return -1;
    if (open)
        *open = !m_levels.empty();
    return m_barHot;
}

// ---- Input ----

void MenuTracker::OnInput(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_done)
        return;
    if (IsMouseMessage(message)) {
        POINT screen{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ClientToScreen(m_inputWindow, &screen);
        OnMouse(message, screen);
    } else if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN) {
        OnKey(UINT(wParam));
    } else if (message == WM_CHAR || message == WM_SYSCHAR) {
        OnMnemonic(char(std::tolower(int(wParam & 0xFF))));
    }
}

int MenuTracker::LevelAt(CPoint screen) const {
    for (size_t i = m_levels.size(); i-- > 0;) {
        RECT window;
        if (GetWindowRect(m_levels[i].window, &window) && CRect(window).PtInRect(screen))
            return int(i);
    }
    return -1;
}

int MenuTracker::ItemAt(const Level& level, CPoint screen) const {
    RECT window;
    GetWindowRect(level.window, &window);
    const CPoint p = screen - CPoint(window.left, window.top);
    for (size_t i = 0; i < level.layout.items.size(); ++i)
        if (level.layout.items[i].PtInRect(p))
            return int(i);
    return -1;
}

int MenuTracker::NextSelectable(const Level& level, int from, int step) const {
    const MenuRecord* record = FindMenu(level.menu);
    const int count = record ? int(record->items.size()) : 0;
    for (int i = 1; i <= count; ++i) {
        const int candidate =
            (((from < 0 && step < 0 ? count : from) + step * i) % count + count) % count;
        if (!record->items[size_t(candidate)].IsSeparator())
            return candidate;
    }
    return -1;
}

void MenuTracker::OnMouse(UINT message, CPoint screen) {
    const int depth = LevelAt(screen);
    const MenuRecord* record = depth >= 0 ? FindMenu(m_levels[size_t(depth)].menu) : nullptr;
    const int item = record ? ItemAt(m_levels[size_t(depth)], screen) : -1;
    const MenuItem* entry =
        item >= 0 && size_t(item) < record->items.size() ? &record->items[size_t(item)] : nullptr;
    switch (message) {
    case WM_MOUSEMOVE:
        if (entry) {
            const size_t d = size_t(depth);
            // Moving within the item whose sub-menu is open keeps the sub-menu.
            if (d + 1 < m_levels.size() && m_levels[d].hot == item)
                return;
            CloseLevelsFrom(d + 1);
            SetHot(d, entry->IsSeparator() ? -1 : item);
            if (entry->IsPopup())
                OpenSubMenu(d, false);
        } else if (depth < 0 && m_barFrame && !m_levels.empty()) {
            const int barItem = BarItemAt(screen);
            if (barItem >= 0 && barItem != m_barHot)
                SelectBarItem(barItem, true, false);
        }
        return;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
        if (depth >= 0)
            return;
        if (m_barFrame) {
            const int barItem = BarItemAt(screen);
            if (barItem >= 0) {
                // A second click on the open item closes the menu.
                if (barItem == m_barHot && !m_levels.empty())
                    Finish(0);
                else
                    SelectBarItem(barItem, true, false);
                return;
            }
        }
        Finish(0);
        return;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
        if (message == WM_RBUTTONUP && !(m_flags & TPM_RIGHTBUTTON))
            return;
        if (entry)
            Choose(size_t(depth), item);
        return;
    default:
        return;
    }
}

void MenuTracker::OnKey(UINT vk) {
    if (vk == VK_MENU || vk == VK_F10) {
        Finish(0);
        return;
    }
    if (m_levels.empty()) {
        // Only the bar is selected.
        if (vk == VK_LEFT || vk == VK_RIGHT)
            SelectBarItem(NextBarItem(m_barHot, vk == VK_RIGHT ? 1 : -1), false, false);
        else if (vk == VK_DOWN || vk == VK_UP || vk == VK_RETURN)
            SelectBarItem(m_barHot, true, true);
        else if (vk == VK_ESCAPE)
            Finish(0);
        return;
    }
    const size_t depth = m_levels.size() - 1;
    Level& level = m_levels[depth];
    const MenuRecord* record = FindMenu(level.menu);
    const MenuItem* hot = record && level.hot >= 0 && size_t(level.hot) < record->items.size()
                              ? &record->items[size_t(level.hot)]
                              : nullptr;
    switch (vk) {
    case VK_UP:
    case VK_DOWN:
        SetHot(depth, NextSelectable(level, level.hot, vk == VK_DOWN ? 1 : -1));
        return;
    case VK_RIGHT:
        if (hot && hot->IsPopup() && hot->IsEnabled())
            OpenSubMenu(depth, true);
        else if (m_barFrame)
            SelectBarItem(NextBarItem(m_barHot, 1), true, true);
        return;
    case VK_LEFT:
        if (depth > 0)
            CloseLevelsFrom(depth);
        else if (m_barFrame)
            SelectBarItem(NextBarItem(m_barHot, -1), true, true);
        return;
    case VK_RETURN:
        if (hot && hot->IsPopup())
            OpenSubMenu(depth, true);
        else if (hot && hot->IsEnabled() && !hot->IsSeparator())
            Choose(depth, level.hot);
        else
            Finish(0);
        return;
    case VK_ESCAPE:
        if (depth > 0)
            CloseLevelsFrom(depth);
        else if (m_barFrame)
            SelectBarItem(m_barHot, false, false);
        else
            Finish(0);
        return;
    default:
        return;
    }
}

void MenuTracker::OnMnemonic(char ch) {
    if (!ch || ch == '\r' || ch == 27)
        return;
    if (m_levels.empty()) {
        const WindowRecord* frame = Find(m_barFrame);
        const MenuRecord* bar = frame ? FindMenu(frame->menu) : nullptr;
        for (size_t i = 0; bar && i < bar->items.size(); ++i)
            if (MenuMnemonic(bar->items[i].text) == ch) {
                SelectBarItem(int(i), true, true);
                return;
            }
        return;
    }
    const size_t depth = m_levels.size() - 1;
    Level& level = m_levels[depth];
    const MenuRecord* record = FindMenu(level.menu);
    if (!record)
        return;
    std::vector<int> matches;
    for (size_t i = 0; i < record->items.size(); ++i)
        if (!record->items[i].IsSeparator() && MenuMnemonic(record->items[i].text) == ch)
            matches.push_back(int(i));
    if (matches.empty())
        return;
    if (matches.size() > 1) {
        // Several items share the letter: each press selects the next of them.
        const auto next = std::upper_bound(matches.begin(), matches.end(), level.hot);
        SetHot(depth, next == matches.end() ? matches.front() : *next);
        return;
    }
    const int item = matches.front();
    SetHot(depth, item);
    const MenuItem& entry = record->items[size_t(item)];
    if (entry.IsPopup())
        OpenSubMenu(depth, true);
    else if (entry.IsEnabled())
        Choose(depth, item);
}

} // namespace wm

// ---- The handle-level calls ----

using namespace wm;

PopupMenuAnswerer SetPopupMenuAnswerer(PopupMenuAnswerer answerer) {
    PopupMenuAnswerer previous = std::move(Answerer());
    Answerer() = std::move(answerer);
    return previous;
}

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    if (!FindMenu(menu) || !IsWindow(owner) || CurrentMenuTracker())
        return FALSE;
    MenuTracker tracker(owner, flags);
    const UINT command = tracker.TrackPopup(menu, CPoint(x, y));
    if (flags & TPM_RETURNCMD)
        return BOOL(command);
    // The owner may have gone while the menu was open.
    if (command && IsWindow(owner))
        PostMessage(owner, WM_COMMAND, MAKEWPARAM(WORD(command), 0), 0);
    return TRUE;
}

BOOL EndMenu() {
    if (MenuTracker* tracker = CurrentMenuTracker())
        tracker->Cancel();
    return TRUE;
}

BOOL GetMenuItemRect(HWND window, HMENU menu, UINT position, RECT* rect) {
    if (!rect)
        return FALSE;
    CRect found;
    const WindowRecord* frame = Find(window);
    const MenuRecord* bar = frame && frame->menu == menu ? FindMenu(menu) : nullptr;
    if (bar) {
        const std::vector<CRect> items = LayoutMenuBar(*bar, MenuBarItemsInWindow(*frame));
        if (position >= items.size())
            return FALSE;
        *rect = items[position] + WindowOrigin(*frame);
        return TRUE;
    }
    MenuTracker* tracker = CurrentMenuTracker();
    if (!tracker || !tracker->ItemRect(window, menu, position, found))
        return FALSE;
    *rect = found;
    return TRUE;
}
