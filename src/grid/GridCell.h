#pragma once

// CGridCell: the ordinary text cell and the base of every typed cell. What it has not set for
// itself (format, margin, font) it takes from the grid's default cell of its kind, in the
// getters only. Its colours do not fall back: CLR_DEFAULT tells callers that the cell has
// none of its own, and drawing resolves them.

#include "grid/GridCellBase.h"

class ORVA_API CGridCell : public CGridCellBase {
    DECLARE_DYNCREATE(CGridCell)
public:
    CGridCell();
    ~CGridCell() override;
    CGridCell(const CGridCell&) = delete;
    CGridCell& operator=(const CGridCell& source);
    using CGridCellBase::operator=;

    void SetText(LPCTSTR text) override { m_text = text; }
    void SetImage(int image) override { m_image = image; }
    void SetData(LPARAM data) override { m_data = data; }
    void SetFormat(DWORD format) override { m_format = format; }
    void SetTextClr(COLORREF color) override { m_textColor = color; }
    void SetBackClr(COLORREF color) override { m_backColor = color; }
    // Null drops the cell's own font, so that it takes the default again.
    void SetFont(const LOGFONT* logFont) override;
    void SetMargin(UINT margin) override { m_margin = margin; }
    void SetGrid(CGridCtrl* grid) override { m_grid = grid; }

    LPCTSTR GetText() const override { return m_text.GetString(); }
    int GetImage() const override { return m_image; }
    LPARAM GetData() const override { return m_data; }
    DWORD GetFormat() const override;
    COLORREF GetTextClr() const override { return m_textColor; }
    COLORREF GetBackClr() const override { return m_backColor; }
    LOGFONT* GetFont() const override;
    // With a font of its own, a process-wide font object, remade whenever a cell asks for a
    // different font: the result is good only until the next call on any cell.
    CFont* GetFontObject() const override;
    CGridCtrl* GetGrid() const override { return m_grid; }
    CWnd* GetEditWnd() const override { return m_editWnd; }
    UINT GetMargin() const override;

    BOOL IsDefaultFont() const override { return m_font == nullptr; }
    BOOL IsEditing() const override { return m_editing; }

    void Reset() override;

    BOOL Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) override;
    void EndEdit() override;
    void OnEndEdit() override;

protected:
    CString m_text;
    LPARAM m_data;
    int m_image;
    DWORD m_format;
    COLORREF m_textColor;
    COLORREF m_backColor;
    LOGFONT* m_font;
    UINT m_margin;
    BOOL m_editing;
    CGridCtrl* m_grid;
    CWnd* m_editWnd;
};
