// The typed spreadsheet: its list of column types, the cell factory that reads it, the space
// key on check boxes and buttons, the right-click menu and the fitting to a placeholder window.
//
// Sections: the list of column types; the cell factory; the user; the placeholder window.

#include "spreadsheet/SpreadSheetORVA.h"

#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellCombo.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridCellTimeCtrl.h"
#include "cells/GridColorCell.h"
#include "platform/window/Menu.h"

#include <algorithm>
#include <memory>

IMPLEMENT_DYNCREATE(CSpreadSheetORVA, CGridCtrl)

namespace {

// A new cell of class T that takes over every attribute of `plain`.
template <typename T> std::unique_ptr<T> Retyped(CGridCellBase& plain, std::unique_ptr<T> made) {
    *made = plain;
    return made;
}

} // namespace

CSpreadSheetORVA::CSpreadSheetORVA() : CGridCtrl(0, 0, 0, 0) {}

CSpreadSheetORVA::~CSpreadSheetORVA() = default;

// ---- The list of column types -------------------------------------------------------------

EColType* CSpreadSheetORVA::GetColType(int col) {
    for (const OwnedColType& type : m_ppColTypes) {
        if (type->column == col) {
            return type.get();
        }
    }
    return nullptr;
}

int CSpreadSheetORVA::GetTypeOfCol(int col) {
    const EColType* type = GetColType(col);
    return type != nullptr ? type->kind : EColType::KIND_NONE;
}

void CSpreadSheetORVA::ChangeColumnType(EColType* type) {
    if (type == nullptr) {
        return;
    }
    OwnedColType incoming(type);
    const int column = type->column;
    auto entry =
        std::find_if(m_ppColTypes.begin(), m_ppColTypes.end(),
                     [column](const OwnedColType& held) { return held->column == column; });
    // A removal token lives only for the rebuild below.
    OwnedColType token;
    // A record handed in again is held twice now: the entry lets go of it.
    if (entry != m_ppColTypes.end() && entry->get() == type) {
        entry->release();
    }
    if (type->kind == EColType::KIND_NONE) {
        if (entry == m_ppColTypes.end()) {
            return;
        }
        m_ppColTypes.erase(entry);
        token = std::move(incoming);
    } else if (entry != m_ppColTypes.end()) {
        *entry = std::move(incoming);
    } else {
        m_ppColTypes.push_back(std::move(incoming));
    }

    if (column < 0 || column >= m_colCount || m_virtualMode) {
        return;
    }
    for (int row = m_fixedRowCount; row < m_rowCount; row++) {
        if (GetCell(row, column) != nullptr) {
            ReplaceCell(row, column, std::unique_ptr<CGridCellBase>(CreateCell(row, column)));
        }
    }
}

void CSpreadSheetORVA::ChangeCellType(int row, int col, EColType* type) {
    if (type == nullptr) {
        return;
    }
    // The record decides the column, whatever `col` says.
    ReplaceCell(row, type->column,
                std::unique_ptr<CGridCellBase>(DoCreateCell(row, type->column, type)));
}

void CSpreadSheetORVA::ReplaceCell(int row, int col, std::unique_ptr<CGridCellBase> made) {
    // Outside the grid, or in virtual mode, the new cell is not stored and goes again.
    if (m_virtualMode || GetCell(row, col) == nullptr) {
        return;
    }
    // An editor open on the old cell writes into it when it ends: it ends before the cell goes.
    // The grid's answer to the end may change the cell, so it is looked up again.
    if (CGridCellBase* old = GetCell(row, col); old->IsEditing()) {
        old->EndEdit();
    }
    DestroyCell(row, col);
    SetCell(row, col, std::move(made));
}

void CSpreadSheetORVA::ChangeCellType(int row, int col, boost::shared_ptr<EColType> type) {
    ChangeCellType(row, col, type.get());
}

// ---- The cell factory ---------------------------------------------------------------------

CGridCellBase* CSpreadSheetORVA::CreateCell(int row, int col) {
    return DoCreateCell(row, col, GetColType(col));
}

CGridCellBase* CSpreadSheetORVA::DoCreateCell(int row, int col, EColType* type) {
    std::unique_ptr<CGridCellBase> plain(CGridCtrl::CreateCell(row, col));
    if (plain == nullptr || type == nullptr || row < m_fixedRowCount || col < m_fixedColCount) {
        return plain.release();
    }
    // The order of each kind's steps matters: the copy runs the new class's setters over the
    // plain cell's attributes.
    switch (type->kind) {
    case EColTypeBTN::KIND: {
        auto made = Retyped(*plain, std::make_unique<CGridCellButton>());
        made->SetText(static_cast<EColTypeBTN*>(type)->text);
        made->SetState(made->GetState() | GV_STATE_READONLY);
        return made.release();
    }
    case EColTypeTOG::KIND: {
        const auto* toggle = static_cast<EColTypeTOG*>(type);
        auto made = Retyped(*plain, std::make_unique<CGridCellCheckbox>());
        made->SetText(toggle->text);
        made->SetState(made->GetState() | GV_STATE_READONLY);
        made->SetData(toggle->checked);
        return made.release();
    }
    case EColTypeCBX::KIND: {
        auto* combo = static_cast<EColTypeCBX*>(type);
        auto made = std::make_unique<CGridCellCombo>();
        made->ShowDropArrow(combo->showDropArrow);
        // The options come after the copy, whose data 0 would otherwise pick the first one.
        made = Retyped(*plain, std::move(made));
        made->SetOptions(combo->options);
        made->SetStyle(combo->listOnly ? CBS_DROPDOWNLIST : CBS_DROPDOWN);
        return made.release();
    }
    case EColTypeTIM::KIND: {
        const auto* time = static_cast<EColTypeTIM*>(type);
        auto made = std::make_unique<CGridCellTimeCtrl>();
        made->ShowDropArrow(time->showDropArrow);
        made->SetNoSeconds(time->noSeconds);
        made = Retyped(*plain, std::move(made));
        made->SetShowTime(time->showTime);
        const CString plainText = plain->GetText();
        made->SetText(!plainText.IsEmpty() ? plainText : time->text);
        return made.release();
    }
    case EColTypeINT::KIND:
        return Retyped(*plain, std::make_unique<CGridCellIntCtrl>()).release();
    case EColTypeFLT::KIND: {
        const auto* number = static_cast<EColTypeFLT*>(type);
        auto made = Retyped(*plain, std::make_unique<CGridCellFltCtrl>());
        made->SetPrecision(number->precision, number->singlePrecision, number->maxDecimals);
        return made.release();
    }
    case EColTypeCOLR::KIND: {
        auto made = Retyped(*plain, std::make_unique<CGridColorCell>());
        made->SetState(made->GetState() | GV_STATE_READONLY);
        return made.release();
    }
    case EColTypeFXY::KIND: {
        auto* curve = static_cast<EColTypeFXY*>(type);
        auto made = Retyped(*plain, std::make_unique<CGridCellFltXYCrv>());
        made->SetOptions(curve->options);
        made->SetText(curve->text);
        return made.release();
    }
    default:
        // Kinds 4 and 8 to 12 are the application's to draw: their cells stay plain.
        return plain.release();
    }
}

// ---- The user -----------------------------------------------------------------------------

void CSpreadSheetORVA::OnEditCell(int row, int col, CPoint point, UINT ch) {
    CGridCellBase* cell = GetCell(row, col);
    if (ch == VK_SPACE && cell != nullptr && !cell->IsDisabled()) {
        if (cell->IsKindOf(RUNTIME_CLASS(CGridCellCheckbox))) {
            cell->SetData(!cell->GetData());
            Invalidate(TRUE);
            if (cell->GetGrid() != nullptr) {
                SendMessageToParent(row, col, GV_NOTIFY_CELLBUTTON);
            }
            return;
        }
        if (cell->IsKindOf(RUNTIME_CLASS(CGridCellButton))) {
            if (cell->GetGrid() != nullptr) {
                SendMessageToParent(row, col, GV_NOTIFY_CELLBUTTON);
            }
            return;
        }
    }
    CGridCtrl::OnEditCell(row, col, point, ch);
}

void CSpreadSheetORVA::OnRClick(int row, int col, CPoint point) {
    if (m_bRClickToParent) {
        SendMessageToParent(row, col, NM_RCLICK);
        return;
    }
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr) {
        return;
    }
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_SHEET_CUT, "Cut");
    menu.AppendMenu(MF_STRING, ID_SHEET_COPY, "Copy");
    menu.AppendMenu(MF_STRING, ID_SHEET_PASTE, "Paste");
    if (cell->IsReadOnly()) {
        menu.EnableMenuItem(ID_SHEET_CUT, MF_BYCOMMAND | MF_DISABLED | MF_GRAYED);
        menu.EnableMenuItem(ID_SHEET_PASTE, MF_BYCOMMAND | MF_DISABLED | MF_GRAYED);
    }
    ClientToScreen(&point);
    const HWND self = m_hWnd;
    const UINT chosen = menu.TrackPopupMenu(TPM_RETURNCMD, point.x, point.y, this);
    // The menu's loop ran other messages: the grid may be gone.
    if (!::IsWindow(self)) {
        return;
    }
    switch (chosen) {
    case ID_SHEET_CUT:
        OnEditCut();
        break;
    case ID_SHEET_COPY:
        OnEditCopy();
        break;
    case ID_SHEET_PASTE:
        OnEditPaste();
        break;
    default:
        break;
    }
}

void CSpreadSheetORVA::MapItem(bool show) {
    ShowWindow(show ? SW_SHOW : SW_HIDE);
}

// ---- The placeholder window ---------------------------------------------------------------

void CSpreadSheetORVA::PreSubclassWindow() {
    CGridCtrl::PreSubclassWindow();
    FitHeightToRows();
}

void CSpreadSheetORVA::FitHeightToRows() {
    CRect client;
    GetClientRect(&client);
    const int height = client.Height();
    const int font = GetDefCellHeight();
    if (font < 1) {
        return;
    }
    // Of the heights near the font's, the one that leaves the smallest part row; the font's own
    // on a tie, and of the others the first tried.
    int best = font;
    int remainder = height % font;
    for (const int candidate : {font - 1, font + 1, font + 2, font + 3}) {
        if (candidate >= 1 && height % candidate < remainder) {
            best = candidate;
            remainder = height % candidate;
        }
    }
    SetDefCellHeight(best);
    client.bottom -= remainder;
    ClientToScreen(&client);
    if (CWnd* parent = GetParent()) {
        parent->ScreenToClient(&client);
    }
    MoveWindow(&client, TRUE);
}
