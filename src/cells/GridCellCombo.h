#pragma once

// CGridCellCombo: a cell whose value is one of a list of options, edited in place by a
// CInPlaceList. A drop-down arrow at the top right of the cell opens the list. In the list-only
// style the cell refuses any text that is not an option, so paste and fill cannot put a foreign
// word in it. The data is the index of the option the text matches.

#include "grid/GridCell.h"
#include "platform/base/StringArray.h"
#include "platform/window/WindowStyles.h"

class ORVA_API CGridCellCombo : public CGridCell {
    DECLARE_DYNCREATE(CGridCellCombo)
public:
    CGridCellCombo() = default;
    using CGridCell::operator=;

    // Replaces the options with copies of `options`, in their order.
    void SetOptions(CStringArray& options);
    // CBS_DROPDOWN takes any text; CBS_DROPDOWNLIST (the start) takes options and "" only.
    void SetStyle(DWORD style) { m_dwStyle = style; }
    DWORD GetStyle() const { return m_dwStyle; }
    void ShowDropArrow(bool show) { m_bShowDropArrow = show; }

    void SetText(LPCTSTR text) override;
    // -1 empties the cell, an option's index shows it; any other value is ignored.
    void SetData(LPARAM data) override;
    // The index of the first option equal to the text; -1 if none.
    LPARAM GetData() const override;
    // The open editor's edit field; null when none is open or the style is list-only.
    CWnd* GetEditWnd() const override;

    BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE) override;
    BOOL GetTextRect(LPRECT rect) override;
    CSize GetCellExtent(CDC* dc) override;

    // Opens the list for the arrow, a double click or a typed key, never for a plain click.
    BOOL Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) override;
    void EndEdit() override;

    // `point` is relative to the cell; only a press on the arrow opens the list.
    BOOL OnClickDown(CPoint point, int row, int col) override;
    void OnDblClick(CPoint point, int row, int col) override;

protected:
    CStringArray m_Options;
    DWORD m_dwStyle = CBS_DROPDOWNLIST;
    // Set while a press on the arrow or a double click is opening the list.
    bool m_bOpening = false;
    bool m_bShowDropArrow = true;

private:
    bool IsListOnly() const { return (m_dwStyle & 0x3) == CBS_DROPDOWNLIST; }
    bool IsEditableAt(int row, int col) const;
};
