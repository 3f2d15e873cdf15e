#include "grid/GridCellBase.h"

#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/window/WindowApi.h"

IMPLEMENT_DYNCREATE(CGridCellBase, CObject)

CGridCellBase::CGridCellBase() {
    CGridCellBase::Reset();
}

CGridCellBase* CGridCellBase::GetDefaultCell() const {
    CGridCtrl* grid = GetGrid();
    if (grid == nullptr) {
        return nullptr;
    }
    return grid->GetDefaultCell(IsFixedRow(), IsFixedCol());
}

CGridCellBase& CGridCellBase::operator=(const CGridCellBase& source) {
    if (this == &source) {
        return *this;
    }
    SetGrid(source.GetGrid());
    SetText(source.GetText());
    SetImage(source.GetImage());
    SetData(source.GetData());
    SetState(source.GetState());
    SetFormat(source.GetFormat());
    SetTextClr(source.GetTextClr());
    SetBackClr(source.GetBackClr());
    SetFont(source.IsDefaultFont() ? nullptr : source.GetFont());
    SetMargin(source.GetMargin());
    SetMergeCellID(source.GetMergeCellID());
    m_mergeRange = source.GetMergeRange();
    m_hide = !source.IsShow();
    return *this;
}

void CGridCellBase::Reset() {
    m_state = 0;
    m_hide = false;
    m_hasMergeCell = false;
    m_mergeRange.Set(-1, -1, -1, -1);
    m_mergeCell = CCellID(-1, -1);
}

BOOL CGridCellBase::PrintCell(CDC* dc, int row, int col, CRect rect) {
    return Draw(dc, row, col, rect, TRUE);
}

BOOL CGridCellBase::OnSetCursor() {
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

void CGridCellBase::SetMergeCellID(CCellID cell) {
    m_mergeCell = cell;
    m_hasMergeCell = cell.row != -1;
}

void CGridCellBase::UnMerge() {
    m_hide = false;
    m_mergeRange.Set(-1, -1, -1, -1);
    m_hasMergeCell = false;
    m_mergeCell = CCellID(-1, -1);
}

LRESULT CGridCellBase::SendMessageToParent(int row, int col, int code) {
    CGridCtrl* grid = GetGrid();
    if (grid == nullptr || grid->GetSafeHwnd() == nullptr) {
        return 0;
    }
    return grid->SendMessageToParent(row, col, code);
}
