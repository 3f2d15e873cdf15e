#include "platform/host/Clipboard.h"

#include "platform/host/GlobalMemory.h"
#include "platform/host/Host.h"

#include <cstring>
#include <map>
#include <string>

namespace {
// The clipboard of the process; the user-interface thread alone touches it.
struct ClipboardState {
    bool open = false;
    HWND openedBy = nullptr;
    HWND owner = nullptr;
    std::map<UINT, HANDLE> formats;
    std::string publishedText; // the text last given to the host
    std::map<std::string, UINT> registered;
};

ClipboardState& State() {
    static ClipboardState& state = *new ClipboardState;
    return state;
}

HGLOBAL TextBlock(const std::string& text) {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(block), text.c_str(), text.size() + 1);
    GlobalUnlock(block);
    return block;
}

std::string TextOf(HANDLE data) {
    const HGLOBAL block = static_cast<HGLOBAL>(data);
    const std::size_t size = GlobalSize(block);
    const char* bytes = static_cast<const char*>(GlobalLock(block));
    if (!bytes)
        return {};
    std::string text(bytes, strnlen(bytes, size));
    GlobalUnlock(block);
    return text;
}

void FreeData(UINT format, HANDLE data) {
    // Blocks are freed here; other handles (images) belong to the gdi objects they are.
    if (GlobalSize(static_cast<HGLOBAL>(data)))
        GlobalFree(static_cast<HGLOBAL>(data));
    (void)format;
}

// Text placed on the system clipboard by another program replaces what this process holds.
void TakeSystemText() {
    ClipboardState& s = State();
    const auto text = GetHost().GetClipboardText();
    if (!text || *text == s.publishedText)
        return;
    for (auto& [format, data] : s.formats)
        FreeData(format, data);
    s.formats.clear();
    s.formats[CF_TEXT] = TextBlock(*text);
    s.publishedText = *text;
    s.owner = nullptr;
}
} // namespace

BOOL OpenClipboard(HWND owner) {
    ClipboardState& s = State();
    if (s.open)
        return FALSE;
    s.open = true;
    s.openedBy = owner;
    TakeSystemText();
    return TRUE;
}

BOOL CloseClipboard() {
    ClipboardState& s = State();
    if (!s.open)
        return FALSE;
    s.open = false;
    return TRUE;
}

BOOL EmptyClipboard() {
    ClipboardState& s = State();
    if (!s.open)
        return FALSE;
    for (auto& [format, data] : s.formats)
        FreeData(format, data);
    s.formats.clear();
    s.owner = s.openedBy;
    s.publishedText.clear();
    GetHost().SetClipboardText("");
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE data) {
    ClipboardState& s = State();
    if (!s.open || !data || format == 0)
        return nullptr;
    if (auto it = s.formats.find(format); it != s.formats.end() && it->second != data)
        FreeData(format, it->second);
    s.formats[format] = data;
    if (format == CF_TEXT) {
        s.publishedText = TextOf(data);
        GetHost().SetClipboardText(s.publishedText);
    }
    return data;
}

HANDLE GetClipboardData(UINT format) {
    ClipboardState& s = State();
    if (!s.open)
        return nullptr;
    const auto it = s.formats.find(format);
    return it == s.formats.end() ? nullptr : it->second;
}

BOOL IsClipboardFormatAvailable(UINT format) {
    if (!State().open)
        TakeSystemText();
    return State().formats.count(format) > 0;
}

UINT RegisterClipboardFormat(LPCSTR name) {
    if (!name || !*name)
        return 0;
    auto& registered = State().registered;
    const auto [it, inserted] = registered.emplace(name, UINT(0xC000 + registered.size()));
    return it->second;
}

HWND GetClipboardOwner() {
    return State().owner;
}

int CountClipboardFormats() {
    return int(State().formats.size());
}
