// Pastes arbitrary bytes into a grid as clipboard text, starting at a cell chosen by the first
// two bytes, over a grid with hidden rows and columns and a read-only cell. The paste must end
// without a crash, never grow the grid, and leave only whole fields in cells: trimmed, with
// no separator inside.

#include "grid/GridCtrl.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kRows = 9;
constexpr int kCols = 7;

CGridCtrl& Grid() {
    static CGridCtrl& grid = *new CGridCtrl(kRows, kCols, 1, 1);
    static bool shaped = [] {
        grid.SetRowHeight(3, 0);
        grid.SetColumnWidth(4, 0);
        grid.SetItemState(5, 5, grid.GetItemState(5, 5) | GV_STATE_READONLY);
        return true;
    }();
    (void)shaped;
    return grid;
}

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) {
        return 0;
    }
    CGridCtrl& grid = Grid();
    for (int row = 0; row < kRows; row++) {
        for (int col = 0; col < kCols; col++) {
            grid.SetItemText(row, col, "");
        }
    }
    const CCellID first(data[0] % kRows, data[1] % kCols);
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size - 2 + 1);
    auto* bytes = static_cast<char*>(GlobalLock(block));
    std::memcpy(bytes, data + 2, size - 2);
    bytes[size - 2] = '\0';
    GlobalUnlock(block);
    COleDataSource source;
    source.CacheGlobalData(CF_TEXT, block);
    COleDataObject object;
    object.Attach(&source);
    grid.PasteTextToGrid(first, &object);

    Check(grid.GetRowCount() == kRows && grid.GetColumnCount() == kCols);
    for (int row = 0; row < kRows; row++) {
        for (int col = 0; col < kCols; col++) {
            const CString text = grid.GetItemText(row, col);
            const char* chars = text.GetString();
            const size_t length = std::strlen(chars);
            Check(std::strpbrk(chars, "\t,\n") == nullptr);
            Check(length == 0 || (!std::isspace(static_cast<unsigned char>(chars[0])) &&
                                  !std::isspace(static_cast<unsigned char>(chars[length - 1]))));
        }
    }
    Check(grid.GetItemText(5, 5).IsEmpty() || first.row > 5);
    return 0;
}
