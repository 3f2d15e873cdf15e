#include "platform/host/SdlMessageBox.h"

#include "platform/base/Messages.h"
#include "platform/host/HeadlessHost.h"

#include <SDL2/SDL.h>

MessageBoxButtons MessageBoxButtonsOf(UINT type) {
    MessageBoxButtons set;
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        set.buttons = {{IDOK, "OK"}, {IDCANCEL, "Cancel"}};
        break;
    case MB_ABORTRETRYIGNORE:
        set.buttons = {{IDABORT, "Abort"}, {IDRETRY, "Retry"}, {IDIGNORE, "Ignore"}};
        break;
    case MB_YESNOCANCEL:
        set.buttons = {{IDYES, "Yes"}, {IDNO, "No"}, {IDCANCEL, "Cancel"}};
        break;
    case MB_YESNO:
        set.buttons = {{IDYES, "Yes"}, {IDNO, "No"}};
        break;
    case MB_RETRYCANCEL:
        set.buttons = {{IDRETRY, "Retry"}, {IDCANCEL, "Cancel"}};
        break;
    default:
        set.buttons = {{IDOK, "OK"}};
        break;
    }
    set.defaultId = DefaultMessageBoxButton(type);
    // Escape means Cancel where there is one; a lone OK answers OK. Boxes without either
    // (Yes/No, Abort/Retry/Ignore) cannot be escaped, so closing them takes the default.
    set.escapeId = set.defaultId;
    for (const MessageBoxButton& button : set.buttons)
        if (button.id == IDCANCEL || set.buttons.size() == 1)
            set.escapeId = button.id;
    return set;
}

int ShowSdlMessageBox(SDL_Window* parent, const char* text, const char* caption, UINT type) {
    const MessageBoxButtons set = MessageBoxButtonsOf(type);
    std::vector<SDL_MessageBoxButtonData> buttons;
    for (const MessageBoxButton& button : set.buttons) {
        Uint32 flags = 0;
        if (button.id == set.defaultId)
            flags |= SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT;
        if (button.id == set.escapeId)
            flags |= SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT;
        buttons.push_back({flags, button.id, button.label});
    }
    Uint32 flags = SDL_MESSAGEBOX_BUTTONS_LEFT_TO_RIGHT;
    switch (type & MB_ICONMASK) {
    case MB_ICONERROR:
        flags |= SDL_MESSAGEBOX_ERROR;
        break;
    case MB_ICONWARNING:
        flags |= SDL_MESSAGEBOX_WARNING;
        break;
    default:
        flags |= SDL_MESSAGEBOX_INFORMATION;
        break;
    }
    const SDL_MessageBoxData data{
        flags,          parent, caption ? caption : "", text ? text : "", int(buttons.size()),
        buttons.data(), nullptr};
    int chosen = -1;
    if (SDL_ShowMessageBox(&data, &chosen) != 0)
        return set.defaultId;
    return chosen < 0 ? set.escapeId : chosen;
}
