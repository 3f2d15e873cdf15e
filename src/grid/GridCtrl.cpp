// Construction, the window glue and the notifications to the owner.

#include "grid/GridCtrl.h"

#include "grid/GridDropTarget.h"
#include "platform/base/Exceptions.h"
#include "platform/gdi/Font.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemParameters.h"

#include <new>

IMPLEMENT_DYNCREATE(CGridCtrl, CWnd)

GV_DISPINFO CGridCtrl::gvdi;
CGridCell CGridCtrl::cell;

namespace {

BOOL RegisterGridWindowClass() {
    WNDCLASS wndClass{};
    if (::GetClassInfo(nullptr, GRIDCTRL_CLASSNAME, &wndClass)) {
        return TRUE;
    }
    wndClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wndClass.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR(COLOR_3DFACE + 1));
    wndClass.lpszClassName = GRIDCTRL_CLASSNAME;
    return AfxRegisterClass(&wndClass);
}

} // namespace

CGridCtrl::CGridCtrl(int rows, int cols, int fixedRows, int fixedCols)
    : m_defaultCellClass(RUNTIME_CLASS(CGridCell)), m_gridLineColor(RGB(192, 192, 192)),
      m_sysTextColor(::GetSysColor(COLOR_WINDOWTEXT)),
      m_sysWindowColor(::GetSysColor(COLOR_WINDOW)), m_sysFaceColor(::GetSysColor(COLOR_3DFACE)),
      m_sysShadowColor(::GetSysColor(COLOR_3DSHADOW)) {
    RegisterGridWindowClass();
    ReadWheelScrollLines();
    SetupDefaultCells();
    SetGridBkColor(m_sysShadowColor);

    SetRowCount(rows);
    SetColumnCount(cols);
    SetFixedRowCount(fixedRows);
    SetFixedColumnCount(fixedCols);

    SetTitleTipTextClr(CLR_DEFAULT);
    SetTitleTipBackClr(CLR_DEFAULT);
    m_selectedCellMap.clear();
    m_prevSelectedCellMap.clear();
}

CGridCtrl::~CGridCtrl() {
    DeleteAllItems();
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

void CGridCtrl::SetupDefaultCells() {
    CGridDefaultCell* cells[] = {&m_cellDefault, &m_cellFixedColDef, &m_cellFixedRowDef,
                                 &m_cellFixedRowColDef};
    for (CGridDefaultCell* defaultCell : cells) {
        defaultCell->SetGrid(this);
        defaultCell->SetTextClr(m_sysTextColor);
        defaultCell->SetBackClr(defaultCell == &m_cellDefault ? m_sysWindowColor : m_sysFaceColor);
    }
}

BOOL CGridCtrl::Create(const RECT& rect, CWnd* parent, UINT id, DWORD style) {
    if (!CWnd::Create(GRIDCTRL_CLASSNAME, nullptr, style, rect, parent, id)) {
        return FALSE;
    }
    Allocating([this] {
        m_rowHeights.assign(size_t(m_rowCount), UINT(m_cellDefault.GetHeight()));
        m_colWidths.assign(size_t(m_colCount), UINT(m_cellDefault.GetWidth()));
    });
    ResetScrollBars();
    return TRUE;
}

void CGridCtrl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    Initialise();
    RegisterDropTarget();
}

void CGridCtrl::Initialise() {
    // A font change below can bring the grid back here through its window; the guard is shared
    // by all grids, which live on one thread.
    static bool initialising = false;
    if (initialising) {
        return;
    }
    initialising = true;
    if (GetSafeHwnd() != nullptr) {
        ModifyStyleEx(0, WS_EX_CLIENTEDGE);
    }
    CWnd* parent = GetSafeHwnd() != nullptr ? GetParent() : nullptr;
    CFont* font = parent != nullptr ? parent->GetFont() : nullptr;
    LOGFONT logFont{};
    if (font != nullptr && font->GetLogFont(&logFont)) {
        m_cellDefault.SetFont(&logFont);
        m_cellFixedColDef.SetFont(&logFont);
        m_cellFixedRowDef.SetFont(&logFont);
        m_cellFixedRowColDef.SetFont(&logFont);
    }
    initialising = false;
}

void CGridCtrl::ReadWheelScrollLines() {
    m_rowsPerWheelNotch = 3;
    OSVERSIONINFO version{};
    version.dwOSVersionInfoSize = sizeof(version);
    if (::GetVersionEx(&version) && !(version.dwPlatformId == 1 && version.dwMinorVersion == 0)) {
        UINT lines = 3;
        if (::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0)) {
            m_rowsPerWheelNotch = int(lines);
        }
    }
}

void CGridCtrl::OnSysColorChange() {
    CWnd::OnSysColorChange();
    FollowSystemColours();
}

void CGridCtrl::OnSettingChange(UINT flags, LPCTSTR section) {
    CWnd::OnSettingChange(flags, section);
    FollowSystemColours();
    ReadWheelScrollLines();
}

void CGridCtrl::FollowSystemColours() {
    const COLORREF textColor = ::GetSysColor(COLOR_WINDOWTEXT);
    const COLORREF windowColor = ::GetSysColor(COLOR_WINDOW);
    const COLORREF faceColor = ::GetSysColor(COLOR_3DFACE);
    const COLORREF shadowColor = ::GetSysColor(COLOR_3DSHADOW);
    // Only colours still at the old system value follow; the fixed defaults start at the face
    // colour and so keep what they have.
    CGridDefaultCell* cells[] = {&m_cellDefault, &m_cellFixedRowDef, &m_cellFixedColDef,
                                 &m_cellFixedRowColDef};
    for (CGridDefaultCell* defaultCell : cells) {
        if (defaultCell->GetTextClr() == m_sysTextColor) {
            defaultCell->SetTextClr(textColor);
        }
        if (defaultCell->GetBackClr() == m_sysWindowColor) {
            defaultCell->SetBackClr(windowColor);
        }
    }
    if (GetGridBkColor() == m_sysShadowColor) {
        SetGridBkColor(shadowColor);
    }
    m_sysTextColor = textColor;
    m_sysWindowColor = windowColor;
    m_sysFaceColor = faceColor;
    m_sysShadowColor = shadowColor;
}

void CGridCtrl::SetRedraw(BOOL allowDraw, BOOL resetScrollBars) {
    const BOOL wasAllowed = m_allowDraw;
    m_allowDraw = allowDraw;
    if (allowDraw && !wasAllowed) {
        if (resetScrollBars) {
            ResetScrollBars();
        }
        Refresh();
    }
}

void CGridCtrl::Refresh() {
    if (GetSafeHwnd() != nullptr && m_allowDraw) {
        Invalidate();
    }
}

bool CGridCtrl::Allocating(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (CMemoryException* exception) {
        exception->ReportError();
        exception->Delete();
    } catch (const std::bad_alloc&) {
        CMemoryException().ReportError();
    }
    return false;
}

CWnd* CGridCtrl::NotifyTarget() const {
    CWnd* target = GetOwner();
    if (target == nullptr) {
        target = GetParent();
    }
    return target != nullptr && target->GetSafeHwnd() != nullptr ? target : nullptr;
}

LRESULT CGridCtrl::SendNotification(NMHDR& header, UINT code) const {
    CWnd* owner = GetSafeHwnd() != nullptr ? NotifyTarget() : nullptr;
    if (owner == nullptr) {
        return 0;
    }
    header.hwndFrom = m_hWnd;
    header.idFrom = UINT_PTR(GetDlgCtrlID());
    header.code = code;
    return owner->SendMessage(WM_NOTIFY, WPARAM(header.idFrom), LPARAM(&header));
}

LRESULT CGridCtrl::SendMessageToParent(int row, int col, int code) const {
    GV_NMGRID record{};
    record.iRow = row;
    record.iColumn = col;
    return SendNotification(record.hdr, UINT(code));
}

LRESULT CGridCtrl::SendDisplayRequestToParent(GV_DISPINFO* dispInfo) const {
    return dispInfo != nullptr ? SendNotification(dispInfo->hdr, UINT(GV_NOTIFY_GETDISPINFO)) : 0;
}

LRESULT CGridCtrl::SendCacheHintToParent(const CCellRange& range) const {
    GV_CACHEHINT record{};
    record.range = range;
    return SendNotification(record.hdr, UINT(GV_NOTIFY_CACHEHINT));
}
