// Text on the clipboard, put and read as another program would.

#include "platform/testing/ClipboardText.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <cstring>

bool PutTextOnClipboard(const char* text) {
    if (!OpenClipboard(nullptr)) {
        return false;
    }
    EmptyClipboard();
    const size_t size = std::strlen(text) + 1;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(block), text, size);
    GlobalUnlock(block);
    SetClipboardData(CF_TEXT, block);
    CloseClipboard();
    return true;
}

std::string TextOnClipboard() {
    std::string text;
    if (!OpenClipboard(nullptr)) {
        return text;
    }
    if (HANDLE data = GetClipboardData(CF_TEXT)) {
        text = static_cast<const char*>(GlobalLock(static_cast<HGLOBAL>(data)));
        GlobalUnlock(static_cast<HGLOBAL>(data));
    }
    CloseClipboard();
    return text;
}
