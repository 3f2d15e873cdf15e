// Sorting the rows by one column: by a click on a heading or by call. Rows move whole, by
// their cell pointers and heights, and the fixed rows stay where they are.

#include "grid/GridCtrl.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace {
// The plain recursive quicksort of rows `low` to `high`: the middle row's key is the pivot and
// travels with its row; rows that compare equal are not swapped. `keyOf(row)` reads a row's key,
// `compare` orders two keys (already turned for a descending sort), `swap` exchanges two rows.
template <typename KeyOf, typename Compare, typename Swap>
void QuickSortRows(int low, int high, const KeyOf& keyOf, const Compare& compare,
                   const Swap& swap) {
    const auto pivot = keyOf((low + high) / 2);
    int lo = low;
    int hi = high;
    while (lo <= hi) {
        while (lo < high && compare(keyOf(lo), pivot) < 0) {
            lo++;
        }
        while (hi > low && compare(keyOf(hi), pivot) > 0) {
            hi--;
        }
        if (lo <= hi) {
            if (compare(keyOf(lo), keyOf(hi)) != 0) {
                swap(lo, hi);
            }
            lo++;
            hi--;
        }
    }
    if (low < hi) {
        QuickSortRows(low, hi, keyOf, compare, swap);
    }
    if (lo < high) {
        QuickSortRows(lo, high, keyOf, compare, swap);
    }
}

} // namespace

int CGridCtrl::pfnCellTextCompare(LPARAM cell1, LPARAM cell2, LPARAM) {
    const auto* first = reinterpret_cast<const CGridCellBase*>(cell1);
    const auto* second = reinterpret_cast<const CGridCellBase*>(cell2);
    if (first == nullptr || second == nullptr) {
        return 0;
    }
    const char* a = first->GetText();
    const char* b = second->GetText();
    return std::strcmp(a != nullptr ? a : "", b != nullptr ? b : "");
}

int CGridCtrl::pfnCellNumericCompare(LPARAM cell1, LPARAM cell2, LPARAM) {
    const auto* first = reinterpret_cast<const CGridCellBase*>(cell1);
    const auto* second = reinterpret_cast<const CGridCellBase*>(cell2);
    if (first == nullptr || second == nullptr) {
        return 0;
    }
    // Whole numbers only: decimals are cut.
    const long a = std::atol(first->GetText() != nullptr ? first->GetText() : "");
    const long b = std::atol(second->GetText() != nullptr ? second->GetText() : "");
    return a < b ? -1 : a > b ? 1 : 0;
}

BOOL CGridCtrl::SortTextItems(int col, BOOL ascending, LPARAM data) {
    return SortItems(pfnCellTextCompare, col, ascending, data);
}

BOOL CGridCtrl::SortItems(int col, BOOL ascending, LPARAM data) {
    // The public forms each do the opening steps, so they run twice here: harmless.
    SetSortColumn(col);
    m_ascending = ascending;
    ResetSelectedRange();
    SetFocusCell(-1, -1);
    return SortItems(m_compareFunction != nullptr ? m_compareFunction : pfnCellTextCompare, col,
                     ascending, data);
}

BOOL CGridCtrl::SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data) {
    SetSortColumn(col);
    m_ascending = ascending;
    ResetSelectedRange();
    SetFocusCell(-1, -1);
    return SortItems(compare, col, ascending, data, m_fixedRowCount, -1);
}

void CGridCtrl::SwapRows(int row1, int row2) {
    std::swap(m_rowData[size_t(row1)], m_rowData[size_t(row2)]);
    std::swap(HeightAt(row1), HeightAt(row2));
}

BOOL CGridCtrl::SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data, int low,
                          int high) {
    if (col >= m_colCount || m_virtualMode) {
        return FALSE;
    }
    if (high == -1) {
        high = m_rowCount - 1;
    }
    if (high <= low) {
        return FALSE;
    }
    if (compare == pfnCellTextCompare && SortRowsByTextKeys(col, ascending, low, high)) {
        return TRUE;
    }
    const int sign = ascending ? 1 : -1;
    QuickSortRows(
        low, high, [this, col](int row) { return LPARAM(GetCell(row, col)); },
        [compare, data, sign](LPARAM a, LPARAM b) { return sign * compare(a, b, data); },
        [this](int row1, int row2) { SwapRows(row1, row2); });
    return TRUE;
}

namespace {
// A row's place in a sort by text: the first eight bytes of the text packed so that comparing
// the integers compares the bytes as strcmp does, and the text itself for what they leave
// equal. Sorting these small records in one array spares each comparison the walk through a
// row and a cell to a string.
struct TextSortKey {
    std::uint64_t prefix = 0;
    const char* rest = nullptr; // past the first eight bytes; null when the text is shorter
    int row = 0;
};

TextSortKey MakeTextSortKey(const char* text, int row) {
    TextSortKey key;
    key.row = row;
    int length = 0;
    for (; length < 8 && text[length] != '\0'; length++) {
        key.prefix |= std::uint64_t(static_cast<unsigned char>(text[length])) << (56 - 8 * length);
    }
    if (length == 8) {
        key.rest = text + 8;
    }
    return key;
}

// Answers as strcmp would on the two whole texts.
int CompareTextSortKeys(const TextSortKey& a, const TextSortKey& b) {
    if (a.prefix != b.prefix) {
        return a.prefix < b.prefix ? -1 : 1;
    }
    // Equal prefixes: both texts are shorter than eight bytes (and equal), or neither is.
    return a.rest != nullptr ? std::strcmp(a.rest, b.rest) : 0;
}
} // namespace

bool CGridCtrl::SortRowsByTextKeys(int col, BOOL ascending, int low, int high) {
    std::vector<TextSortKey> keys;
    keys.reserve(size_t(high - low + 1));
    for (int row = low; row <= high; row++) {
        const CGridCellBase* cell = GetCell(row, col);
        if (cell == nullptr) {
            return false; // a missing cell compares equal to all: only the plain walk keeps that
        }
        const char* text = cell->GetText();
        keys.push_back(MakeTextSortKey(text != nullptr ? text : "", row));
    }
    // The same quicksort as on the rows, so that equal texts end in the same order.
    const int sign = ascending ? 1 : -1;
    QuickSortRows(
        low, high, [&keys, low](int row) { return keys[size_t(row - low)]; },
        [sign](const TextSortKey& a, const TextSortKey& b) {
            return sign * CompareTextSortKeys(a, b);
        },
        [&keys, low](int row1, int row2) {
            std::swap(keys[size_t(row1 - low)], keys[size_t(row2 - low)]);
        });

    std::vector<std::unique_ptr<GridRow>> rows;
    std::vector<UINT> heights;
    rows.reserve(keys.size());
    heights.reserve(keys.size());
    for (const TextSortKey& key : keys) {
        rows.push_back(std::move(m_rowData[size_t(key.row)]));
        heights.push_back(HeightAt(key.row));
    }
    for (size_t i = 0; i < keys.size(); i++) {
        m_rowData[size_t(low) + i] = std::move(rows[i]);
        HeightAt(low + int(i)) = heights[i];
    }
    return true;
}

void CGridCtrl::OnFixedRowClick(CCellID& cell) {
    if (!IsValid(cell)) {
        return;
    }
    if (m_sortOnClick) {
        const HCURSOR previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        const BOOL ascending = cell.col == m_sortColumn ? !m_ascending : TRUE;
        SortItems(cell.col, ascending, 0);
        Invalidate();
        ::SetCursor(previous);
    }
    if (m_fixedRowSelection) {
        m_mouseMode = cell.col < m_fixedColCount ? MOUSE_SELECT_ALL : MOUSE_SELECT_COL;
        OnSelecting(cell);
    }
}

void CGridCtrl::OnFixedColumnClick(CCellID& cell) {
    if (!IsValid(cell) || !m_fixedColumnSelection) {
        return;
    }
    m_mouseMode = cell.row < m_fixedRowCount ? MOUSE_SELECT_ALL : MOUSE_SELECT_ROW;
    OnSelecting(cell);
}
