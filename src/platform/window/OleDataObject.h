#pragma once

// Data that travels by the clipboard or by drag and drop, with the framework's OLE names: a
// data source holds memory blocks by clipboard format and offers them; a data object reads
// them, from the clipboard or from the source of a drag.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <map>

using DROPEFFECT = DWORD;
constexpr DROPEFFECT DROPEFFECT_NONE = 0;
constexpr DROPEFFECT DROPEFFECT_COPY = 1;
constexpr DROPEFFECT DROPEFFECT_MOVE = 2;
constexpr DROPEFFECT DROPEFFECT_LINK = 4;
constexpr DROPEFFECT DROPEFFECT_SCROLL = 0x80000000;

class ORVA_API COleDataSource {
public:
    COleDataSource() = default;
    ~COleDataSource(); // frees the blocks it still holds
    COleDataSource(const COleDataSource&) = delete;
    COleDataSource& operator=(const COleDataSource&) = delete;

    // Takes the block, which the source frees; a second block of a format replaces the first.
    void CacheGlobalData(UINT format, HGLOBAL memory);
    // Puts the data on the clipboard. The clipboard owns this source from now on, until the
    // next source replaces it or FlushClipboard lets it go.
    void SetClipboard();
    // Lets the clipboard's source go; the data stays on the clipboard for others to paste.
    static void FlushClipboard();
    // Runs a drag and drop of this data, modal, until the left button goes up or Escape is
    // pressed, and answers the effect the drop had (DROPEFFECT_NONE when nothing was dropped).
    DROPEFFECT DoDragDrop(DWORD allowedEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE);

    bool HasFormat(UINT format) const { return m_blocks.count(format) != 0; }
    // A copy of the block of a format, which the caller frees; null when there is none.
    HGLOBAL CopyGlobalData(UINT format) const;

private:
    std::map<UINT, HGLOBAL> m_blocks;
};

class ORVA_API COleDataObject {
public:
    // Reads from the clipboard from now on.
    BOOL AttachClipboard();
    // Reads from a source, which must outlive the attachment (a drop's data).
    void Attach(const COleDataSource* source);
    void Release();
    BOOL IsDataAvailable(UINT format) const;
    // A copy of the data as a block that the caller frees; null when there is none.
    HGLOBAL GetGlobalData(UINT format) const;

private:
    const COleDataSource* m_source = nullptr;
    bool m_clipboard = false;
};
