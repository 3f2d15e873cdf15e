#pragma once

// Reading the grid's clipboard text: lines end at "\n" (a "\r" before it goes with it), and
// the fields of a line end at a tab or a comma. Each field is handed over with the cell it is
// meant for, counted from a first cell and passing over hidden rows and columns; fields that
// fall past the last row or column are dropped.

#include <functional>
#include <string>

struct PasteGrid {
    int firstRow;
    int firstCol;
    int rowCount;
    int colCount;
    std::function<bool(int row)> rowShown;
    std::function<bool(int col)> colShown;
};

// Calls `put` with each field, trimmed of white space on both sides, and its cell, until `put`
// answers false.
void ForEachPastedField(const std::string& text, const PasteGrid& grid,
                        const std::function<bool(int row, int col, const std::string& field)>& put);
