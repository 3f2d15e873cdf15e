// Answers pop-up menus in tests and records the items each menu showed.

#include "platform/testing/MenuResponder.h"

#include "platform/window/Menu.h"
#include "platform/window/WindowApi.h"

namespace {
std::string PlainTitle(const std::string& text) {
    std::string plain;
    for (size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
        if (text[i] == '&' && i + 1 < text.size())
            ++i;
        plain += text[i];
    }
    return plain;
}
} // namespace

MenuResponder::MenuResponder() {
    m_previous = SetPopupMenuAnswerer([this](const ShownPopupMenu& menu) { return Answer(menu); });
}

MenuResponder::~MenuResponder() {
    SetPopupMenuAnswerer(std::move(m_previous));
}

void MenuResponder::Choose(UINT command) {
    m_expected.push_back({Expectation::Kind::Command, command, {}, {}});
}

void MenuResponder::ChooseTitle(std::string title) {
    m_expected.push_back({Expectation::Kind::Title, 0, std::move(title), {}});
}

void MenuResponder::Dismiss() {
    m_expected.push_back({Expectation::Kind::Dismiss, 0, {}, {}});
}

void MenuResponder::Interact(Action act) {
    m_expected.push_back({Expectation::Kind::Interact, 0, {}, std::move(act)});
}

const ShownPopupMenu& MenuResponder::Last() const {
    static const ShownPopupMenu none;
    return m_menus.empty() ? none : m_menus.back();
}

std::optional<UINT> MenuResponder::Answer(const ShownPopupMenu& menu) {
    m_menus.push_back(menu);
    if (m_expected.empty())
        return 0;
    Expectation next = std::move(m_expected.front());
    m_expected.pop_front();
    switch (next.kind) {
    case Expectation::Kind::Command:
        return next.command;
    case Expectation::Kind::Title: {
        const ShownMenuItem* item = FindItem(menu.items, next.title);
        return item ? item->id : 0;
    }
    case Expectation::Kind::Dismiss:
        return 0;
    case Expectation::Kind::Interact:
        next.act(menu);
        return std::nullopt;
    }
    return 0;
}

const ShownMenuItem* MenuResponder::FindItem(const std::vector<ShownMenuItem>& items,
                                             const std::string& title) {
    for (const ShownMenuItem& item : items) {
        if (!(item.state & MF_SEPARATOR) && PlainTitle(item.text) == PlainTitle(title))
            return &item;
        if (const ShownMenuItem* found = FindItem(item.subItems, title))
            return found;
    }
    return nullptr;
}

POINT MenuResponder::ItemPoint(HWND window, HMENU menu, UINT position) {
    RECT rect{};
    if (!GetMenuItemRect(window, menu, position, &rect))
        return POINT{-1, -1};
    POINT centre{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    ScreenToClient(window, &centre);
    return centre;
}
