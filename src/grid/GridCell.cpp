#include "grid/GridCell.h"

#include "cells/InPlaceEdit.h"
#include "grid/GridCtrl.h"

#include <cstring>
#include <memory>

IMPLEMENT_DYNCREATE(CGridCell, CGridCellBase)

CGridCell::CGridCell() : m_font(nullptr) {
    CGridCell::Reset();
}

CGridCell::~CGridCell() {
    delete m_font;
}

CGridCell& CGridCell::operator=(const CGridCell& source) {
    CGridCellBase::operator=(source);
    return *this;
}

void CGridCell::SetFont(const LOGFONT* logFont) {
    if (logFont == nullptr) {
        delete m_font;
        m_font = nullptr;
        return;
    }
    if (m_font == nullptr) {
        m_font = new LOGFONT;
    }
    *m_font = *logFont;
}

DWORD CGridCell::GetFormat() const {
    if (m_format == 0xFFFFFFFF) {
        if (CGridCellBase* defaultCell = GetDefaultCell()) {
            return defaultCell->GetFormat();
        }
    }
    return m_format;
}

UINT CGridCell::GetMargin() const {
    if (m_margin == 0xFFFFFFFF) {
        if (CGridCellBase* defaultCell = GetDefaultCell()) {
            return defaultCell->GetMargin();
        }
    }
    return m_margin;
}

LOGFONT* CGridCell::GetFont() const {
    if (m_font == nullptr) {
        if (CGridCellBase* defaultCell = GetDefaultCell()) {
            return defaultCell->GetFont();
        }
    }
    return m_font;
}

CFont* CGridCell::GetFontObject() const {
    if (m_font == nullptr) {
        CGridCellBase* defaultCell = GetDefaultCell();
        return defaultCell != nullptr ? defaultCell->GetFontObject() : nullptr;
    }
    // One object for every cell with a font of its own, remade when a cell asks for another
    // font: painting a row of cells in one font realises it once. Nobody may keep the pointer.
    // Shared without a lock, as the grid runs on one thread.
    static CFont fontObject;
    static LOGFONT realised{};
    if (fontObject.GetSafeHandle() == nullptr ||
        std::memcmp(&realised, m_font, sizeof(LOGFONT)) != 0) {
        fontObject.DeleteObject();
        fontObject.CreateFontIndirect(m_font);
        realised = *m_font;
    }
    return &fontObject;
}

void CGridCell::Reset() {
    CGridCellBase::Reset();
    m_text.Empty();
    m_data = 0;
    m_image = -1;
    m_format = 0xFFFFFFFF;
    m_textColor = CLR_DEFAULT;
    m_backColor = CLR_DEFAULT;
    delete m_font;
    m_font = nullptr;
    m_margin = 0xFFFFFFFF;
    m_editing = FALSE;
    m_grid = nullptr;
    m_editWnd = nullptr;
}

BOOL CGridCell::Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
    if (m_editing) {
        // Typing on a cell whose editor is open goes to the editor.
        if (m_editWnd != nullptr) {
            m_editWnd->SendMessage(WM_CHAR, ch);
        }
        return TRUE;
    }
    const DWORD format = GetFormat();
    const DWORD alignment = (format & DT_RIGHT)    ? ES_RIGHT
                            : (format & DT_CENTER) ? ES_CENTER
                                                   : ES_LEFT;
    m_editing = TRUE;
    // The editor owns itself and goes with its window; the cell only points at it.
    m_editWnd = new CInPlaceEdit(GetGrid(), rect, alignment, id, row, col, CString(GetText()), ch);
    return TRUE;
}

void CGridCell::EndEdit() {
    if (m_editWnd != nullptr && m_editWnd->IsKindOf(RUNTIME_CLASS(CInPlaceEdit))) {
        static_cast<CInPlaceEdit*>(m_editWnd)->EndEdit();
    }
}

void CGridCell::OnEndEdit() {
    m_editing = FALSE;
    m_editWnd = nullptr;
}
