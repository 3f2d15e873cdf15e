// A growable memory file whose contents can be handed over as a global memory block.

#include "platform/window/SharedFile.h"

#include "platform/host/GlobalMemory.h"

#include <cstring>

CSharedFile::CSharedFile(UINT allocFlags, UINT growBytes)
    : m_flags(allocFlags), m_grow(growBytes > 0 ? growBytes : 4096) {}

CSharedFile::~CSharedFile() {
    if (m_block != nullptr) {
        GlobalFree(m_block);
    }
}

namespace {

// A new block of `size` bytes holding the first `used` bytes of `old`, which is freed.
HGLOBAL Regrow(HGLOBAL old, std::size_t used, std::size_t size, UINT flags) {
    HGLOBAL block = GlobalAlloc(flags, size);
    if (block == nullptr) {
        return nullptr;
    }
    if (old != nullptr) {
        void* target = GlobalLock(block);
        const void* source = GlobalLock(old);
        if (target != nullptr && source != nullptr && used > 0) {
            std::memcpy(target, source, used);
        }
        GlobalUnlock(old);
        GlobalUnlock(block);
        GlobalFree(old);
    }
    return block;
}

} // namespace

bool CSharedFile::Write(const void* bytes, std::size_t count) {
    if (count == 0) {
        return true;
    }
    if (m_length + count > m_capacity) {
        const std::size_t wanted = m_length + count;
        const std::size_t capacity = (wanted + m_grow - 1) / m_grow * m_grow;
        HGLOBAL grown = Regrow(m_block, m_length, capacity, m_flags);
        if (grown == nullptr) {
            return false;
        }
        m_block = grown;
        m_capacity = capacity;
    }
    auto* target = static_cast<char*>(GlobalLock(m_block));
    if (target == nullptr) {
        return false;
    }
    std::memcpy(target + m_length, bytes, count);
    GlobalUnlock(m_block);
    m_length += count;
    return true;
}

HGLOBAL CSharedFile::Detach() {
    if (m_block == nullptr) {
        return nullptr;
    }
    HGLOBAL shrunk =
        m_length == m_capacity ? m_block : Regrow(m_block, m_length, m_length, m_flags);
    if (shrunk == nullptr) {
        return nullptr; // the block stays with the file, which frees it
    }
    m_block = nullptr;
    m_capacity = m_length = 0;
    return shrunk;
}
