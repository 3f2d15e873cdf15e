#pragma once

// What the gallery's pages of grids share: a top-level frame that a grid fills, string lists
// for option cells, and where a scripted user's hand goes on a grid's cells and on the list an
// in-place combo drops.

#include "platform/base/Rect.h"
#include "platform/base/StringArray.h"
#include "platform/base/WinTypes.h"

#include <span>

class CComboBox;
class CGridCtrl;
class CWnd;
class UiDriver;

// Makes `frame` a visible overlapped window with `title` at `place` (screen coordinates) and
// `grid`, with control id 1, filling its client area.
void CreateFramedGrid(CWnd& frame, CGridCtrl& grid, const char* title, const CRect& place);

// Adds the texts to a string list, the form in which option cells and column types take their
// choices.
void AddStrings(CStringArray& list, std::span<const char* const> texts);

// The centre of a cell, in the grid's client area.
CPoint CellCentre(CGridCtrl& grid, int row, int col);

// The centre of a check box cell's box, in the grid's client area.
CPoint CheckBoxCentre(CGridCtrl& grid, int row, int col);

// A point in the strip of a cell's drop arrow or button, a scroll bar wide at the cell's right
// edge, a few pixels in from the cell's top or bottom.
enum class StripEnd { kTop, kBottom };
CPoint StripPoint(CGridCtrl& grid, int row, int col, StripEnd end);

// The combo editing a cell of the grid in place, or null when none is open.
CComboBox* InPlaceCombo(CGridCtrl& grid);
// The top-level window of the combo's dropped list.
HWND DroppedList(CComboBox& combo);
// Moves onto item `index` of the combo's dropped list and clicks it, as a hand picks.
void PickListItem(UiDriver& ui, CComboBox& combo, int index);
// Item `index` of the dropped list, in the list window's client area.
CPoint ListItemPoint(CComboBox& combo, int index);
