#pragma once

// The tracking of a menu: a modal loop that lasts while a pop-up menu (or a frame's menu bar)
// is open, with the mouse and the keyboard going to the menu. Each open level is a pop-up window
// of its own; one hidden window takes the capture and the keys for the whole tracking, so that
// a click anywhere reaches the menu. Internal to the window layer.

#include "platform/base/Rect.h"
#include "platform/window/MenuPainting.h"

#include <vector>

namespace wm {

struct WindowRecord;

class MenuTracker {
public:
    MenuTracker(HWND owner, UINT flags);
    ~MenuTracker();
    MenuTracker(const MenuTracker&) = delete;
    MenuTracker& operator=(const MenuTracker&) = delete;

    // Tracks a pop-up menu opened at a screen point; answers the command chosen, or 0.
    UINT TrackPopup(HMENU menu, CPoint at);
    // Tracks the menu bar of `frame`: with the pop-up of `barItem` open (its first item
    // selected when `selectFirst`), or with -1 the bar's first item selected and nothing open.
    // Answers the command chosen, or 0.
    UINT TrackBar(HWND frame, int barItem, bool selectFirst);
    void Cancel();

    // What the windows of the tracking need: input for the hidden window, and what each
    // level's window paints.
    void OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    void PaintLevel(HWND window, HDC dc) const;
    HWND InputWindow() const { return m_inputWindow; }
    // The bar item selected in `frame`'s menu bar and whether its pop-up is open; -1 when the
    // tracking is not on that bar.
    int BarHotItem(HWND frame, bool* open) const;
    // An item's rectangle in screen coordinates, if its menu is open.
    bool ItemRect(HWND window, HMENU menu, UINT position, CRect& rect) const;

private:
    struct Level {
        HMENU menu = nullptr;
        HWND window = nullptr;
        PopupLayout layout;
        int hot = -1;
    };

    UINT Run(HMENU menu, bool menuBar, CPoint at, bool selectFirst);
    void Loop();
    void Finish(UINT command);

    // Levels.
    bool OpenLevel(HMENU menu, const CRect& placed, int indexInParent);
    void CloseLevelsFrom(size_t depth);
    void SetHot(size_t depth, int item);
    void OpenSubMenu(size_t depth, bool selectFirst);
    void Choose(size_t depth, int item);

    // The bar.
    std::vector<CRect> BarItemsOnScreen() const;
    int BarItemAt(CPoint screen) const;
    int NextBarItem(int from, int step) const;
    // Selects a bar item, closing what is open; with `open`, opens its pop-up too.
    void SelectBarItem(int item, bool open, bool selectFirst);

    // Input.
    void OnMouse(UINT message, CPoint screen);
    void OnKey(UINT vk);
    void OnMnemonic(char ch);
    int LevelAt(CPoint screen) const;
    int ItemAt(const Level& level, CPoint screen) const;
    int NextSelectable(const Level& level, int from, int step) const;

    HWND m_owner;
    UINT m_flags;
    HWND m_inputWindow = nullptr;
    std::vector<Level> m_levels;
    HWND m_barFrame = nullptr;
    int m_barHot = -1;
    bool m_done = false;
    UINT m_chosen = 0;
};

// The tracking under way, or null.
MenuTracker* CurrentMenuTracker();
// The window that takes the keys while a menu is tracked, or null.
HWND MenuInputWindow();

// The frame's menu bar in window coordinates (empty without a menu), and the frame's menu.
CRect MenuBarInWindow(const WindowRecord& w);
// The part of the bar that the menu's items lay out in: all of it, but for the controls of a
// maximised document window at its ends.
CRect MenuBarItemsInWindow(const WindowRecord& w);
// Tracks the bar of `frame` with `barItem` open (-1: only the bar selected), and posts the
// command chosen to the frame.
void TrackMenuBar(HWND frame, int barItem, bool fromKeyboard);
// The bar item under a screen point, or -1.
int MenuBarItemAt(HWND frame, CPoint screen);

} // namespace wm
