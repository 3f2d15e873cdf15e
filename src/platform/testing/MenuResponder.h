#pragma once

// Answers pop-up menus (and menu bars entered) for a test or a headless run while it lives:
// each menu that opens takes the next expectation queued, and is recorded with its items as it
// showed them. With nothing queued a menu closes with nothing chosen, as if dismissed.

#include "platform/base/Export.h"
#include "platform/window/PopupMenuAnswerer.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

class ORVA_API MenuResponder {
public:
    using Action = std::function<void(const ShownPopupMenu& menu)>;

    MenuResponder();
    ~MenuResponder(); // restores the answerer it replaced
    MenuResponder(const MenuResponder&) = delete;
    MenuResponder& operator=(const MenuResponder&) = delete;

    // What the next menu gets: a command chosen, an item chosen by its title (without the '&'
    // markers and the accelerator; sub-menus are searched too), or nothing.
    void Choose(UINT command);
    void ChooseTitle(std::string title);
    void Dismiss();
    // Plays the user: `act` runs while the menu is open (its window is `menu.window`) and
    // drives it through the UI driver; the menu then follows that input.
    void Interact(Action act);

    const std::vector<ShownPopupMenu>& Menus() const { return m_menus; }
    int Count() const { return int(m_menus.size()); }
    // The last menu shown; an empty record when none was.
    const ShownPopupMenu& Last() const;

    // The item with this title in a shown list or its sub-lists, or null.
    static const ShownMenuItem* FindItem(const std::vector<ShownMenuItem>& items,
                                         const std::string& title);
    // The centre of an item of an open menu (or of `window`'s menu bar), in the client
    // coordinates of `window`: where the UI driver clicks it.
    static POINT ItemPoint(HWND window, HMENU menu, UINT position);

private:
    struct Expectation {
        enum class Kind { Command, Title, Dismiss, Interact } kind;
        UINT command = 0;
        std::string title;
        Action act;
    };
    std::optional<UINT> Answer(const ShownPopupMenu& menu);

    std::deque<Expectation> m_expected;
    std::vector<ShownPopupMenu> m_menus;
    PopupMenuAnswerer m_previous;
};
