// Merged cells: a block of cells shown as one. Every cell stays in the store with its contents;
// the top-left cell carries the block and the others point to it. There is no list of blocks.

#include "grid/GridCtrl.h"

void CGridCtrl::MergeCells(int minRow, int minCol, int maxRow, int maxCol) {
    // Blocks live in stored cells. The made-up cell of virtual mode is one object for every
    // position, so marking it would hide them all.
    if (m_virtualMode) {
        return;
    }
    const CCellID topLeft(minRow, minCol);
    for (int row = minRow; row <= maxRow; row++) {
        for (int col = minCol; col <= maxCol; col++) {
            CGridCellBase* cell = GetCell(row, col);
            if (cell == nullptr) {
                continue;
            }
            cell->Show(false);
            if (CCellID(row, col) == topLeft) {
                cell->SetMergeRange(CCellRange(minRow, minCol, maxRow, maxCol));
            } else {
                cell->SetMergeCellID(topLeft);
            }
        }
    }
    Refresh();
}

void CGridCtrl::UnMergeCells(int minRow, int minCol, int maxRow, int maxCol) {
    // A block dissolves only through its top-left cell; a covered cell in the range is freed
    // alone.
    if (m_virtualMode) {
        return;
    }
    for (int row = minRow; row <= maxRow; row++) {
        for (int col = minCol; col <= maxCol; col++) {
            CGridCellBase* cell = GetCell(row, col);
            if (cell == nullptr) {
                continue;
            }
            if (!cell->IsMerged()) {
                cell->UnMerge();
                continue;
            }
            const CCellRange block = cell->GetMergeRange();
            for (int r = block.maxRow; r >= block.minRow; r--) {
                for (int c = block.maxCol; c >= block.minCol; c--) {
                    if (CGridCellBase* covered = GetCell(r, c)) {
                        covered->UnMerge();
                    }
                }
            }
        }
    }
    Refresh();
}

void CGridCtrl::MergeSelectedCells() {
    const CCellRange range = GetSelectedCellRange();
    if (range.maxRow > range.minRow || range.maxCol > range.minCol) {
        MergeCells(range.minRow, range.minCol, range.maxRow, range.maxCol);
    }
}

void CGridCtrl::UnMergeSelectedCells() {
    const CCellRange range = GetSelectedCellRange();
    UnMergeCells(range.minRow, range.minCol, range.maxRow, range.maxCol);
}

CCellID CGridCtrl::GetMergeCellID(CCellID cell) {
    CGridCellBase* found = GetCell(cell);
    if (found != nullptr && found->IsMergeWithOthers()) {
        return found->GetMergeCellID();
    }
    return cell;
}

int CGridCtrl::GetMergeCellWidth(CCellID cell) {
    const CCellID topLeft = GetMergeCellID(cell);
    CGridCellBase* found = GetCell(topLeft);
    if (found == nullptr || !found->IsMerged()) {
        return GetColumnWidth(cell.col);
    }
    const CCellRange block = found->GetMergeRange();
    int width = 0;
    for (int col = block.maxCol; col >= block.minCol; col--) {
        width += GetColumnWidth(col);
    }
    return width;
}

int CGridCtrl::GetMergeCellHeight(CCellID cell) {
    const CCellID topLeft = GetMergeCellID(cell);
    CGridCellBase* found = GetCell(topLeft);
    if (found == nullptr || !found->IsMerged()) {
        return GetRowHeight(cell.row);
    }
    const CCellRange block = found->GetMergeRange();
    int height = 0;
    for (int row = block.maxRow; row >= block.minRow; row--) {
        height += GetRowHeight(row);
    }
    return height;
}
