// Cell lookup, and the virtual mode in which no cell is stored and each one is made up on
// request from the default cell and the application's answer.

#include "grid/GridCtrl.h"

CGridCellBase* CGridCtrl::GetCell(int row, int col) const {
    if (!IsValid(row, col)) {
        return nullptr;
    }
    if (!m_virtualMode) {
        GridRow* cells = RowAt(row);
        return cells != nullptr ? (*cells)[size_t(col)].get() : nullptr;
    }

    const bool fixedRow = row < m_fixedRowCount;
    const bool fixedCol = col < m_fixedColCount;
    const CGridDefaultCell* defaultCell = GetDefaultCell(fixedRow, fixedCol);
    GV_ITEM& item = gvdi.item;
    item.row = row;
    item.col = col;
    item.mask = 0xFFFFFFFF;
    item.state = 0;
    item.format = defaultCell->GetFormat();
    item.image = defaultCell->GetImage();
    item.backColor = defaultCell->GetBackClr();
    item.textColor = defaultCell->GetTextClr();
    item.param = defaultCell->GetData();
    if (const LOGFONT* font = defaultCell->GetFont()) {
        item.font = *font;
    }
    item.margin = defaultCell->GetMargin();
    // Emptied in place: the answer's text goes into the buffer of the last one, and on into
    // the shared cell's own, so that a request allocates nothing.
    item.text.Delete(0, item.text.GetLength());

    if (IsCellSelected(row, col)) {
        item.state |= GV_STATE_SELECTED;
    }
    if (fixedRow) {
        item.state |= GV_STATE_FIXED | GV_STATE_FIXEDROW;
    }
    if (fixedCol) {
        item.state |= GV_STATE_FIXED | GV_STATE_FIXEDCOL;
    }
    if (CCellID(row, col) == m_focusCell) {
        item.state |= GV_STATE_FOCUSED;
    }

    if (m_callback != nullptr) {
        m_callback(&gvdi, m_callbackData);
    } else {
        SendDisplayRequestToParent(&gvdi);
    }

    cell.SetImage(item.image);
    cell.SetState(item.state);
    cell.SetFormat(item.format);
    cell.SetData(item.param);
    cell.SetBackClr(item.backColor);
    cell.SetTextClr(item.textColor);
    cell.SetFont(&item.font);
    cell.SetMargin(item.margin);
    cell.SetText(item.text);
    cell.SetGrid(const_cast<CGridCtrl*>(this));
    return &cell;
}

void CGridCtrl::SetVirtualMode(BOOL virtualMode) {
    DeleteAllItems();
    m_virtualMode = virtualMode;
    // Switching off restores none of these.
    if (virtualMode) {
        m_editable = FALSE;
        m_sortOnClick = FALSE;
        m_autoSizeStyle = GVS_HEADER;
        m_fixedColumnSelection = FALSE;
        m_fixedRowSelection = FALSE;
    }
}

void CGridCtrl::SetCallbackFunc(GRIDCALLBACK callback, LPARAM data) {
    m_callback = callback;
    m_callbackData = data;
}
