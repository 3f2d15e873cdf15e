#pragma once

// CGridDefaultCell: the grid holds one for each kind of position (ordinary, fixed row, fixed
// column, both). Cells take their unset format, margin and font from it, new rows and columns
// take its height and width, and its font object is shared by every cell that uses it. It has
// no state of its own and always reports itself read-only.

#include "grid/GridCell.h"
#include "platform/gdi/Font.h"

class ORVA_API CGridDefaultCell : public CGridCell {
    DECLARE_DYNCREATE(CGridDefaultCell)
public:
    CGridDefaultCell();
    ~CGridDefaultCell() override;

    void SetData(LPARAM data) override {}
    void SetState(DWORD state) override {}
    // Null changes nothing. Otherwise the font is realised and measured: the default width,
    // height and margin follow from it.
    void SetFont(const LOGFONT* logFont) override;
    void SetCoords(int row, int col) override {}

    DWORD GetState() const override { return m_state | GV_STATE_READONLY; }
    LOGFONT* GetFont() const override { return m_font; }
    CFont* GetFontObject() const override { return const_cast<CFont*>(&m_fontObject); }

    virtual DWORD GetStyle() const { return m_style; }
    virtual void SetStyle(DWORD style) { m_style = style; }
    virtual int GetWidth() const { return m_width; }
    virtual int GetHeight() const { return m_height; }
    virtual void SetWidth(int width) { m_width = width; }
    virtual void SetHeight(int height) { m_height = height; }

protected:
    int m_width;
    int m_height;
    CFont m_fontObject;
    DWORD m_style;

private:
    void MeasureFont();
};
