#include "grid/CellRange.h"

CCellRange& CCellRange::operator=(const CCellRange& other) {
    if (this != &other) {
        Set(other.minRow, other.minCol, other.maxRow, other.maxCol);
    }
    return *this;
}

void CCellRange::Set(int nMinRow, int nMinCol, int nMaxRow, int nMaxCol) {
    minRow = nMinRow;
    minCol = nMinCol;
    maxRow = nMaxRow;
    maxCol = nMaxCol;
}

bool CCellRange::IsValid() const {
    return minRow >= 0 && minCol >= 0 && maxRow >= 0 && maxCol >= 0 && minRow <= maxRow &&
           minCol <= maxCol;
}

bool CCellRange::InRange(int row, int col) const {
    return minRow <= row && row <= maxRow && minCol <= col && col <= maxCol;
}

bool CCellRange::operator==(const CCellRange& other) const {
    return minRow == other.minRow && minCol == other.minCol && maxRow == other.maxRow &&
           maxCol == other.maxCol;
}
