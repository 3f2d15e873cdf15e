#include "platform/host/GlobalMemory.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace {
struct Block {
    std::vector<std::byte> bytes;
    int locks = 0;
};

// Live blocks by handle, so that a stale or foreign handle is refused rather than followed.
// Shared by the process: the user-interface thread alone uses the clipboard.
std::unordered_map<HGLOBAL, std::unique_ptr<Block>>& Blocks() {
    static std::unordered_map<HGLOBAL, std::unique_ptr<Block>>& blocks =
        *new std::unordered_map<HGLOBAL, std::unique_ptr<Block>>;
    return blocks;
}

Block* Lookup(HGLOBAL memory) {
    const auto it = Blocks().find(memory);
    return it == Blocks().end() ? nullptr : it->second.get();
}
} // namespace

HGLOBAL GlobalAlloc(UINT, std::size_t bytes) {
    auto block = std::make_unique<Block>();
    block->bytes.assign(bytes ? bytes : 1, std::byte{0});
    const HGLOBAL handle = reinterpret_cast<HGLOBAL>(block.get());
    Blocks().emplace(handle, std::move(block));
    return handle;
}

LPVOID GlobalLock(HGLOBAL memory) {
    Block* block = Lookup(memory);
    if (!block)
        return nullptr;
    ++block->locks;
    return block->bytes.data();
}

BOOL GlobalUnlock(HGLOBAL memory) {
    Block* block = Lookup(memory);
    if (!block || block->locks == 0)
        return FALSE;
    return --block->locks > 0;
}

std::size_t GlobalSize(HGLOBAL memory) {
    const Block* block = Lookup(memory);
    return block ? block->bytes.size() : 0;
}

HGLOBAL GlobalFree(HGLOBAL memory) {
    return Blocks().erase(memory) ? nullptr : memory;
}
