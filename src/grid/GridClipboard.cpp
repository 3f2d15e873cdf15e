// The grid's text on the clipboard: the selection as lines of tab-separated cells, written into
// a data source and read back from a data object, and the edit commands over the two.

#include "grid/GridCtrl.h"

#include "grid/GridPasteText.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/window/SharedFile.h"

#include <cstring>
#include <memory>
#include <string>
#include <strings.h>

void CGridCtrl::CutSelectedText() {
    const CCellRange selection = GetSelectedCellRange();
    if (m_editable && IsValid(selection)) {
        ClearCells(selection);
    }
}

COleDataSource* CGridCtrl::CopyTextFromGrid() {
    const CCellRange range = GetSelectedCellRange();
    if (!IsValid(range)) {
        return nullptr;
    }
    if (m_virtualMode) {
        SendCacheHintToParent(range);
    }
    CSharedFile file(GMEM_MOVEABLE | GMEM_ZEROINIT | GMEM_DDESHARE);
    bool written = true;
    for (int row = range.minRow; row <= range.maxRow; row++) {
        if (GetRowHeight(row) == 0) {
            continue;
        }
        std::string line;
        for (int col = range.minCol; col <= range.maxCol; col++) {
            if (GetColumnWidth(col) == 0) {
                continue;
            }
            // A cell in the range that is not selected keeps its field, empty.
            CGridCellBase* cell = GetCell(row, col);
            if (cell != nullptr && (cell->GetState() & GV_STATE_SELECTED) &&
                cell->GetText() != nullptr) {
                line += cell->GetText();
            }
            if (col != range.maxCol) {
                line += '\t';
            }
        }
        if (row != range.maxRow) {
            line += "\r\n";
        }
        written = file.Write(line.data(), line.size()) && written;
    }
    written = file.Write("", 1) && written;
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(-1, -1, -1, -1));
    }
    HGLOBAL block = written ? file.Detach() : nullptr;
    if (block == nullptr) {
        return nullptr;
    }
    auto source = std::make_unique<COleDataSource>();
    source->CacheGlobalData(CF_TEXT, block);
    return source.release(); // the caller's
}

BOOL CGridCtrl::PasteTextToGrid(CCellID cell, COleDataObject* dataObject) {
    if (!IsValid(cell) || !IsCellEditable(cell) || dataObject == nullptr ||
        !dataObject->IsDataAvailable(CF_TEXT)) {
        return FALSE;
    }
    HGLOBAL block = dataObject->GetGlobalData(CF_TEXT);
    if (block == nullptr) {
        return FALSE;
    }
    std::string text;
    if (const char* bytes = static_cast<const char*>(GlobalLock(block))) {
        text.assign(bytes, strnlen(bytes, GlobalSize(block)));
        GlobalUnlock(block);
    }
    GlobalFree(block);

    const HWND self = m_hWnd;
    const PasteGrid shape{cell.row,
                          cell.col,
                          m_rowCount,
                          m_colCount,
                          [this](int row) { return GetRowHeight(row) > 0; },
                          [this](int col) { return GetColumnWidth(col) > 0; }};
    ForEachPastedField(text, shape, [this, self](int row, int col, const std::string& field) {
        if (self != nullptr && !::IsWindow(self)) {
            return false;
        }
        const UINT state = GetItemState(row, col);
        if (!m_editable || (state & (GV_STATE_READONLY | GV_STATE_DISABLED))) {
            return true; // the field meant for this cell is lost
        }
        ValidateAndModifyCellContents(row, col, field.c_str());
        // Pasted data is not selected, so that a later cut does not take it.
        SetItemState(row, col, GetItemState(row, col) & ~GV_STATE_SELECTED);
        return true;
    });
    Refresh();
    return TRUE;
}

void CGridCtrl::OnEditCut() {
    if (!m_editable) {
        return;
    }
    if (COleDataSource* source = CopyTextFromGrid()) {
        source->SetClipboard();
        CutSelectedText();
        COleDataSource::FlushClipboard();
    }
}

void CGridCtrl::OnEditCopy() {
    if (COleDataSource* source = CopyTextFromGrid()) {
        source->SetClipboard();
        COleDataSource::FlushClipboard();
    }
}

void CGridCtrl::OnEditPaste() {
    if (!m_editable) {
        return;
    }
    const CCellRange selection = GetSelectedCellRange();
    const CCellID target(selection.minRow, selection.minCol);
    if (!IsValid(target)) {
        return;
    }
    // With an editor open on the target the text goes into the editor.
    if (CGridCellBase* cell = GetCell(target); cell != nullptr && cell->IsEditing()) {
        char className[16] = "";
        const HWND editor = SafeHwnd(cell->GetEditWnd());
        if (editor != nullptr && ::GetClassName(editor, className, sizeof(className)) > 0 &&
            strcasecmp(className, "Edit") == 0) {
            ::SendMessage(editor, WM_PASTE);
        }
        return;
    }
    COleDataObject data;
    if (data.AttachClipboard()) {
        const HWND self = m_hWnd;
        SendMessageToParent(0, 0, GV_NOTIFY_BEGINBULKEDIT);
        if (::IsWindow(self)) {
            PasteTextToGrid(target, &data);
        }
        if (::IsWindow(self)) {
            SendMessageToParent(0, 0, GV_NOTIFY_ENDBULKEDIT);
        }
        data.Release();
    }
}

void CGridCtrl::OnEditSelectAll() {
    SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col, GV_NOTIFY_SELCHANGING);
    if (IsSelectable()) {
        SetSelectedRange(m_fixedRowCount, m_fixedColCount, m_rowCount - 1, m_colCount - 1);
    }
    SendMessageToParent(m_focusCell.row, m_focusCell.col, GV_NOTIFY_SELCHANGED);
}

BOOL CGridCtrl::IsEditCommandEnabled(UINT id) {
    const CCellRange selection = GetSelectedCellRange();
    const bool someSelected = IsValid(selection) && selection.Count() > 0;
    switch (id) {
    case ID_EDIT_COPY:
        return someSelected;
    case ID_EDIT_CUT:
        return m_editable && someSelected;
    case ID_EDIT_PASTE:
        return IsValid(m_focusCell) && IsCellEditable(m_focusCell) &&
               ::IsClipboardFormatAvailable(CF_TEXT);
    case ID_EDIT_SELECT_ALL:
        return IsSelectable();
    default:
        return FALSE;
    }
}

BOOL CGridCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    switch (id) {
    case ID_EDIT_COPY:
    case ID_EDIT_CUT:
    case ID_EDIT_PASTE:
    case ID_EDIT_SELECT_ALL:
        if (IsEditCommandEnabled(id)) {
            id == ID_EDIT_COPY    ? OnEditCopy()
            : id == ID_EDIT_CUT   ? OnEditCut()
            : id == ID_EDIT_PASTE ? OnEditPaste()
                                  : OnEditSelectAll();
        }
        return TRUE;
    default:
        return CWnd::OnCommand(wParam, lParam);
    }
}
