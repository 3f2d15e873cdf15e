#pragma once

// The two value types through which the grid names cells: one cell, and an inclusive
// rectangle of cells. Coordinates are zero-based and count the fixed rows and columns.

#include "platform/base/Export.h"

class ORVA_API CCellID {
public:
    int row;
    int col;

    // (-1, -1) is no cell: the unset focus, selection start and click-down cell.
    CCellID(int nRow = -1, int nCol = -1) : row(nRow), col(nCol) {}

    bool operator==(const CCellID& other) const { return row == other.row && col == other.col; }
    bool operator!=(const CCellID& other) const { return !(*this == other); }
};

class ORVA_API CCellRange {
public:
    // (-1, -1, -1, -1) is no range.
    CCellRange(int nMinRow = -1, int nMinCol = -1, int nMaxRow = -1, int nMaxCol = -1)
        : minRow(nMinRow), minCol(nMinCol), maxRow(nMaxRow), maxCol(nMaxCol) {}
    CCellRange(const CCellRange& other) = default;
    CCellRange& operator=(const CCellRange& other);

    int minRow;
    int minCol;
    int maxRow;
    int maxCol;

    void Set(int nMinRow = -1, int nMinCol = -1, int nMaxRow = -1, int nMaxCol = -1);
    // All bounds non-negative and not inverted; whether it fits a grid is the grid's question.
    bool IsValid() const;
    // Bounds only: the default range holds (-1, -1), so test IsValid first where that matters.
    bool InRange(int row, int col) const;
    bool InRange(const CCellID& cell) const { return InRange(cell.row, cell.col); }

    int GetMinRow() const { return minRow; }
    int GetMinCol() const { return minCol; }
    int GetMaxRow() const { return maxRow; }
    int GetMaxCol() const { return maxCol; }
    int Count() const { return (maxRow - minRow + 1) * (maxCol - minCol + 1); }
    CCellID GetTopLeft() const { return CCellID(minRow, minCol); }

    bool operator==(const CCellRange& other) const;
    bool operator!=(const CCellRange& other) const { return !(*this == other); }
};
