// Data sources and data objects: text in a clipboard format, to the clipboard or a drag.

#include "platform/window/OleDataObject.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <cstring>
#include <memory>

namespace {

HGLOBAL CopyBlock(HGLOBAL block) {
    const std::size_t size = GlobalSize(block);
    const void* bytes = GlobalLock(block);
    if (bytes == nullptr) {
        return nullptr;
    }
    HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE, size);
    if (void* target = copy != nullptr ? GlobalLock(copy) : nullptr) {
        std::memcpy(target, bytes, size);
        GlobalUnlock(copy);
    }
    GlobalUnlock(block);
    return copy;
}

// The source that the clipboard holds; the user-interface thread alone touches it.
std::unique_ptr<COleDataSource>& ClipboardSource() {
    static std::unique_ptr<COleDataSource>& source = *new std::unique_ptr<COleDataSource>;
    return source;
}

} // namespace

COleDataSource::~COleDataSource() {
    for (const auto& [format, block] : m_blocks) {
        GlobalFree(block);
    }
}

void COleDataSource::CacheGlobalData(UINT format, HGLOBAL memory) {
    if (memory == nullptr) {
        return;
    }
    if (auto found = m_blocks.find(format); found != m_blocks.end()) {
        GlobalFree(found->second);
    }
    m_blocks[format] = memory;
}

void COleDataSource::SetClipboard() {
    if (::OpenClipboard(nullptr)) {
        ::EmptyClipboard();
        for (const auto& [format, block] : m_blocks) {
            if (HGLOBAL copy = CopyBlock(block);
                copy != nullptr && ::SetClipboardData(format, copy) == nullptr) {
                GlobalFree(copy);
            }
        }
        ::CloseClipboard();
    }
    std::unique_ptr<COleDataSource>& held = ClipboardSource();
    if (held.get() != this) {
        held.reset(this);
    }
}

void COleDataSource::FlushClipboard() {
    ClipboardSource().reset();
}

HGLOBAL COleDataSource::CopyGlobalData(UINT format) const {
    const auto found = m_blocks.find(format);
    return found != m_blocks.end() ? CopyBlock(found->second) : nullptr;
}

BOOL COleDataObject::AttachClipboard() {
    Release();
    m_clipboard = true;
    return TRUE;
}

void COleDataObject::Attach(const COleDataSource* source) {
    Release();
    m_source = source;
}

void COleDataObject::Release() {
    m_source = nullptr;
    m_clipboard = false;
}

BOOL COleDataObject::IsDataAvailable(UINT format) const {
    if (m_source != nullptr) {
        return m_source->HasFormat(format);
    }
    return m_clipboard && ::IsClipboardFormatAvailable(format);
}

HGLOBAL COleDataObject::GetGlobalData(UINT format) const {
    if (m_source != nullptr) {
        return m_source->CopyGlobalData(format);
    }
    if (!m_clipboard || !::OpenClipboard(nullptr)) {
        return nullptr;
    }
    HANDLE data = ::GetClipboardData(format);
    HGLOBAL copy = data != nullptr ? CopyBlock(static_cast<HGLOBAL>(data)) : nullptr;
    ::CloseClipboard();
    return copy;
}
