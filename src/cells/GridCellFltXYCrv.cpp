// The XY curve cell: a constant, a transient curve or a data set in one cell, with the "..."
// button and the drop arrow of the choices in a strip at its right edge.

#include "cells/GridCellFltXYCrv.h"

#include "cells/CellDropArrow.h"
#include "cells/InPlaceButton.h"
#include "cells/InPlaceList.h"
#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "support/FormatDouble.h"

#include <cstdio>

IMPLEMENT_DYNCREATE(CGridCellFltXYCrv, CGridCell)

namespace {

constexpr COLORREF kChoiceColor = 0xFF0000;
constexpr COLORREF kConstantColor = 0;
// Taken from the button face for a greyed "..." label.
constexpr COLORREF kDisabledShift = 0x444450;
// Room kept between the text editor and the strip.
constexpr int kEditorGap = 4;
constexpr int kFormatWidth = 15;
constexpr const char* kButtonLabel = "...";

// The curve cell being copied into and its source's data: while they are set, SetData of that
// value on that cell is the copy's and is skipped, as the value belongs to another cell and may
// be no address at all. Single-threaded by design.
struct Assignment {
    const CGridCellFltXYCrv* cell = nullptr;
    LPARAM sourceData = 0;
};
Assignment assigning;

CString FormatConstant(double value) {
    return xgFormatDouble(value, -1, kFormatWidth, 0);
}

} // namespace

CGridCellFltXYCrv::CGridCellFltXYCrv() {
    m_Options.Add("<constant>");
    m_Options.Add("<transient>");
    m_Options.Add("<data set>");
}

CGridCellFltXYCrv& CGridCellFltXYCrv::operator=(const CGridCellFltXYCrv& source) {
    *this = static_cast<const CGridCellBase&>(source);
    return *this;
}

CGridCellBase& CGridCellFltXYCrv::operator=(const CGridCellBase& source) {
    if (this == &source) {
        return *this;
    }
    // Another cell's data is a value or an address of its own: the copied text carries it.
    assigning = {this, source.GetData()};
    CGridCell::operator=(source);
    assigning = {};
    if (source.IsKindOf(RUNTIME_CLASS(CGridCellFltXYCrv))) {
        // The text went through SetText, which reads it by this cell's choice and rounds a
        // constant to its text: the source's state is taken as it stands instead.
        const auto& other = static_cast<const CGridCellFltXYCrv&>(source);
        m_nCurveId = other.m_nCurveId;
        m_dConstant = other.m_dConstant;
        m_strDataSet = other.m_strDataSet;
        m_Options.Copy(other.m_Options);
        m_nSelection = other.m_nSelection;
        m_text = other.m_text;
        SetTextClr(other.GetTextClr());
    }
    return *this;
}

void CGridCellFltXYCrv::SetText(LPCTSTR text) {
    const char* incoming = text != nullptr ? text : "";
    if (m_bPickPending) {
        const int picked = IndexFromComboText(incoming);
        if (picked != -1) {
            m_nSelection = picked;
        }
        m_bPickPending = false;
    }
    SetTextClr(kConstantColor);

    CString shown(incoming);
    const int index = IndexFromComboText(incoming);
    // In the constant mode the word of a choice that was not picked does not count.
    if (m_nSelection == CHOICE_CONSTANT && index != -1) {
        shown.Empty();
    }
    if (!shown.IsEmpty() && std::sscanf(shown, "%lf", &m_dConstant) == 1 && index != m_nSelection) {
        // A number typed in any mode makes the cell a constant.
        m_nSelection = CHOICE_CONSTANT;
        SetData(reinterpret_cast<LPARAM>(&m_dConstant));
        return;
    }
    if (index >= 1) {
        SetTextClr(kChoiceColor);
        m_text = shown;
    } else {
        m_text = FormatConstant(m_dConstant);
    }
}

void CGridCellFltXYCrv::SetData(LPARAM data) {
    if (this == assigning.cell && data == assigning.sourceData) {
        return;
    }
    if (data == 0) {
        m_text.Empty();
        return;
    }
    switch (m_nSelection) {
    case CHOICE_CONSTANT:
        m_dConstant = *reinterpret_cast<const double*>(data);
        m_text = FormatConstant(m_dConstant);
        SetTextClr(kConstantColor);
        break;
    case CHOICE_TRANSIENT:
        // The word is taken first: too few options throw before anything is stored.
        m_text = m_Options[CHOICE_TRANSIENT];
        m_nCurveId = *reinterpret_cast<const int*>(data);
        SetTextClr(kChoiceColor);
        break;
    case CHOICE_DATASET:
        m_text = m_Options[CHOICE_DATASET];
        m_strDataSet = *reinterpret_cast<const CString*>(data);
        SetTextClr(kChoiceColor);
        break;
    default:
        m_text.Empty();
        break;
    }
}

LPARAM CGridCellFltXYCrv::GetData() const {
    switch (m_nSelection) {
    case CHOICE_CONSTANT:
        return reinterpret_cast<LPARAM>(&m_dConstant);
    case CHOICE_TRANSIENT:
        return reinterpret_cast<LPARAM>(&m_nCurveId);
    default:
        // The data set's name is written only: the application keeps its own copy.
        return 0;
    }
}

CRect CGridCellFltXYCrv::GetTopRect(CRect rect) const {
    const int width = DropArrowSize(rect).cx;
    return CRect(rect.right - width, rect.top, rect.right, (rect.top + rect.bottom) / 2);
}

CRect CGridCellFltXYCrv::GetBotRect(CRect rect) const {
    const int width = DropArrowSize(rect).cx;
    return CRect(rect.right - width, (rect.top + rect.bottom) / 2, rect.right, rect.bottom);
}

BOOL CGridCellFltXYCrv::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    if (IsEditing()) {
        return TRUE; // the editor lies over the cell
    }
    const int saved = dc->SaveDC();
    const BOOL result = CGridCell::Draw(dc, row, col, rect, eraseBackground);

    // A cell too small for the strip shows none of it, and still answers clicks.
    const int edgeX = ::GetSystemMetrics(SM_CXEDGE);
    const int edgeY = ::GetSystemMetrics(SM_CYEDGE);
    if (rect.Width() > 2 * edgeX + 8 && rect.Height() > 2 * edgeY) {
        DrawDropArrow(dc, GetBotRect(rect));
        CRect button = GetTopRect(rect);
        dc->DrawFrameControl(&button, DFC_BUTTON, DFCS_BUTTONPUSH);
        // The dots sit on the baseline: raised, they look centred in the small button.
        button.OffsetRect(0, -2 * edgeY);
        dc->SelectObject(GetFontObject());
        dc->SetBkMode(TRANSPARENT);
        COLORREF labelColor = GetTextClr();
        if (labelColor == CLR_DEFAULT && GetDefaultCell() != nullptr) {
            labelColor = GetDefaultCell()->GetTextClr();
        }
        // The curve button means nothing while the choice is the constant.
        if (m_nSelection == CHOICE_CONSTANT || IsDisabled()) {
            labelColor = ::GetSysColor(COLOR_BTNFACE) - kDisabledShift;
        }
        dc->SetTextColor(labelColor);
        dc->DrawText(kButtonLabel, &button,
                     DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
    dc->RestoreDC(saved);
    return result;
}

BOOL CGridCellFltXYCrv::GetTextRect(LPRECT rect) {
    if (rect == nullptr) {
        return FALSE;
    }
    const int stripWidth = DropArrowSize(CRect(*rect)).cx;
    CGridCell::GetTextRect(rect);
    rect->right -= stripWidth;
    return TRUE;
}

CSize CGridCellFltXYCrv::GetCellExtent(CDC* dc) {
    CSize extent = CGridCell::GetCellExtent(dc);
    extent.cx += ::GetSystemMetrics(SM_CXVSCROLL);
    return extent;
}

BOOL CGridCellFltXYCrv::Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
    if (ch == VK_LBUTTON && !m_bEnabled) {
        return FALSE;
    }
    rect.right -= DropArrowSize(rect).cx + kEditorGap;
    return CGridCell::Edit(row, col, rect, point, id, ch);
}

BOOL CGridCellFltXYCrv::OnClickDown(CPoint point, int row, int col) {
    m_bEnabled = !IsDisabled();
    CGridCtrl* grid = GetGrid();
    CRect rect;
    if (grid == nullptr || !grid->GetCellRect(row, col, &rect) || !m_bEnabled) {
        return FALSE;
    }
    // `point` is relative to the cell, and so are the halves of the strip measured here.
    const CRect cell(0, 0, rect.Width(), rect.Height());
    if (GetTopRect(cell).PtInRect(point)) {
        grid->SetFocusCell(row, col);
        CRect button = GetTopRect(rect);
        // The button takes the press at the same spot, in its own coordinates.
        CPoint pressed(point.x - GetTopRect(cell).left, point.y);
        // The button owns itself from here on; the application hears of its click.
        new CInPlaceButton(kButtonLabel, GetFontObject(), button, BS_PUSHBUTTON, IDC_INPLACE_BUTTON,
                           VK_LBUTTON, pressed, grid, row, col);
        return TRUE;
    }
    if (GetBotRect(cell).PtInRect(point)) {
        m_bPickPending = true;
        // The list owns itself and goes with its window; the cell only points at it. No text
        // editor opens, so the cell is not editing while the list is open.
        m_editWnd =
            new CInPlaceList(grid, rect, CBS_DROPDOWNLIST, IDC_INPLACE_CONTROL, row, col,
                             GetTextClr(), GetBackClr(), m_Options, CString(GetText()), VK_LBUTTON);
        return TRUE;
    }
    return CGridCell::OnClickDown(point, row, col);
}

void CGridCellFltXYCrv::SetComboSelection(int index) {
    if (index < 0 || index >= m_Options.GetSize()) {
        return;
    }
    m_nSelection = index;
    switch (index) {
    case CHOICE_CONSTANT:
        SetData(reinterpret_cast<LPARAM>(&m_dConstant));
        break;
    case CHOICE_TRANSIENT:
        SetData(reinterpret_cast<LPARAM>(&m_nCurveId));
        break;
    case CHOICE_DATASET:
        SetData(reinterpret_cast<LPARAM>(&m_strDataSet));
        break;
    default:
        break;
    }
}

void CGridCellFltXYCrv::SetComboText(const char* text) {
    const int index = IndexFromComboText(text);
    if (index != -1) {
        SetComboSelection(index);
    }
}

void CGridCellFltXYCrv::SetOptions(CStringArray& options) {
    m_Options.Copy(options);
}

void CGridCellFltXYCrv::GetOptions(CStringArray& options) const {
    options.Copy(m_Options);
}

int CGridCellFltXYCrv::IndexFromComboText(const char* text) const {
    const char* wanted = text != nullptr ? text : "";
    for (int i = 0; i < m_Options.GetSize(); i++) {
        if (m_Options[i] == wanted) {
            return i;
        }
    }
    return -1;
}
