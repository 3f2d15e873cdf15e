#pragma once

// CSharedFile: a memory file that grows in steps as it is written and hands its bytes over as
// one movable memory block, for the clipboard or a data source.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstddef>

class ORVA_API CSharedFile {
public:
    explicit CSharedFile(UINT allocFlags = 0x2042, UINT growBytes = 4096);
    ~CSharedFile(); // frees a block not detached
    CSharedFile(const CSharedFile&) = delete;
    CSharedFile& operator=(const CSharedFile&) = delete;

    // False when the block could not grow; what was written before stays.
    bool Write(const void* bytes, std::size_t count);
    std::size_t GetLength() const { return m_length; }
    // The block, shrunk to the written length, now the caller's; null when there is none.
    HGLOBAL Detach();

private:
    UINT m_flags;
    std::size_t m_grow;
    HGLOBAL m_block = nullptr;
    std::size_t m_capacity = 0;
    std::size_t m_length = 0;
};
