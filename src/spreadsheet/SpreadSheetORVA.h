#pragma once

// CSpreadSheetORVA: the grid that the application puts on its dialogs, whose columns have types.
// It keeps one EColType record per typed column and makes every cell below the fixed rows and
// right of the fixed columns of its column's cell class. The space key toggles check boxes and
// presses buttons, a right click offers Cut, Copy and Paste, and when it takes over a dialog's
// placeholder window it fits its height to a whole number of rows.

#include "grid/GridCtrl.h"
#include "spreadsheet/ColType.h"

#include <boost/shared_ptr.hpp>

#include <memory>
#include <vector>

// The commands of the right-click menu.
constexpr UINT ID_SHEET_CUT = 1;
constexpr UINT ID_SHEET_COPY = 2;
constexpr UINT ID_SHEET_PASTE = 3;

class ORVA_API CSpreadSheetORVA : public CGridCtrl {
    DECLARE_DYNCREATE(CSpreadSheetORVA)
public:
    CSpreadSheetORVA();
    ~CSpreadSheetORVA() override;

    // Take ownership of `type` and rebuild the column's cells, which start empty. A record of
    // kind -1 removes the column's type.
    void SetColumnType(EColType* type) { ChangeColumnType(type); }
    void ChangeColumnType(EColType* type);
    // Replace the one cell at (row, type->column) by an empty cell of the record's kind; `col`
    // is not read. The record stays with the caller, and the column's type is unchanged.
    void ChangeCellType(int row, int col, EColType* type);
    void ChangeCellType(int row, int col, boost::shared_ptr<EColType> type);
    // The kind of the column's type, or -1 when it has none.
    int GetTypeOfCol(int col);

    void MapItem(bool show);
    void ResetScrollBarsNow() { ResetScrollBars(); }

    void OnEditCell(int row, int col, CPoint point, UINT ch) override;

protected:
    // The column's record, valid until its type next changes; null when it has none.
    EColType* GetColType(int col);
    CGridCellBase* CreateCell(int row, int col) override;
    // The grid's own cell for the position, turned into the cell class of `type`.
    CGridCellBase* DoCreateCell(int row, int col, EColType* type);
    void OnRClick(int row, int col, CPoint point) override;
    // Fits the height to whole rows of a default row height chosen near the font's.
    void PreSubclassWindow() override;

    // In order of arrival, at most one per column.
    std::vector<OwnedColType> m_ppColTypes;
    // While true a right click goes to the owner as NM_RCLICK and shows no menu.
    bool m_bRClickToParent = false;

private:
    // Puts `made` in the place of the cell at (row, col), which goes; nothing happens where
    // there is no cell to replace.
    void ReplaceCell(int row, int col, std::unique_ptr<CGridCellBase> made);
    void FitHeightToRows();
};
