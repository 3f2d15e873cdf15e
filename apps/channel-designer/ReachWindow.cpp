// The reach window: the sheet inside it, and the way from an edited cell to the plots.

#include "ReachWindow.h"

#include "FlowDialog.h"
#include "HydrographDialog.h"

#include "grid/GridNotify.h"
#include "platform/window/WindowApi.h"

#include <cstdio>

namespace {

constexpr UINT kSheetId = 100;
// Posted when a cell's edit ends: by the time it arrives the cell holds its final value.
constexpr UINT WM_READ_SHEET = WM_APP + 1;
// Posted by the buttons of the sheet, with the row: their dialogs open once the button has gone.
constexpr UINT WM_EDIT_HYDROGRAPH = WM_APP + 3;
constexpr UINT WM_CALCULATE_FLOW = WM_APP + 4;

} // namespace

ReachWindow::ReachWindow(std::unique_ptr<ReachDocument> document)
    : m_document(std::move(document)) {}

int ReachWindow::OnCreate(LPCREATESTRUCT createStruct) {
    if (CMDIChildWnd::OnCreate(createStruct) == -1)
        return -1;
    CRect client;
    GetClientRect(&client);
    if (!m_sheet.Create(client, this, kSheetId))
        return -1;
    m_sheet.Configure();
    m_sheet.Show(m_document->reach);
    m_document->sheet = &m_sheet;
    return 0;
}

void ReachWindow::OnSize(UINT type, int cx, int cy) {
    CMDIChildWnd::OnSize(type, cx, cy);
    if (m_sheet.GetSafeHwnd() && type != SIZE_MINIMIZED)
        m_sheet.MoveWindow(0, 0, cx, cy);
}

void ReachWindow::OnSetFocus(CWnd* oldWnd) {
    if (m_sheet.GetSafeHwnd())
        m_sheet.SetFocus();
    else
        CMDIChildWnd::OnSetFocus(oldWnd);
}

size_t ReachWindow::FocusSection() const {
    const CCellID focus = m_sheet.GetFocusCell();
    return focus.row >= 1 && size_t(focus.row) <= m_document->reach.sections.size()
               ? size_t(focus.row - 1)
               : 0;
}

BOOL ReachWindow::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const auto* cell = reinterpret_cast<const GV_NMGRID*>(lParam);
    if (header->idFrom == kSheetId && header->code == UINT(GV_NOTIFY_CELLBUTTON) &&
        (cell->iColumn == SectionSheet::kInflow || cell->iColumn == SectionSheet::kCalculate)) {
        PostMessage(cell->iColumn == SectionSheet::kInflow ? WM_EDIT_HYDROGRAPH : WM_CALCULATE_FLOW,
                    WPARAM(cell->iRow));
        *result = 0;
        return TRUE;
    }
    if (header->idFrom == kSheetId && (header->code == UINT(GV_NOTIFY_ENDLABELEDIT) ||
                                       header->code == UINT(GV_NOTIFY_CELLBUTTON))) {
        PostMessage(WM_READ_SHEET);
        *result = 0; // every edit is accepted: the sheet's cells keep their values in range
        return TRUE;
    }
    return CMDIChildWnd::OnNotify(wParam, lParam, result);
}

LRESULT ReachWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_READ_SHEET) {
        ReadSheet();
        return 0;
    }
    if (message == WM_EDIT_HYDROGRAPH) {
        EditHydrograph(int(wParam));
        return 0;
    }
    if (message == WM_CALCULATE_FLOW) {
        if (wParam >= 1 && wParam <= m_document->reach.sections.size())
            RunFlowCalculator(size_t(wParam - 1));
        return 0;
    }
    return CMDIChildWnd::WindowProc(message, wParam, lParam);
}

void ReachWindow::ReadSheet() {
    Reach read = m_sheet.Read(m_document->reach);
    if (read.sections == m_document->reach.sections)
        return;
    m_document->reach = std::move(read);
    m_sheet.Show(m_document->reach); // a new hydrograph takes its number in its cell
    m_document->Changed();
}

void ReachWindow::EditHydrograph(int row) {
    if (row < 1 || size_t(row) > m_document->reach.sections.size())
        return;
    const size_t section = size_t(row - 1);
    const CrossSection& s = m_document->reach.sections[section];
    const Inflow start = s.inflow.isCurve ? s.inflow : Inflow::Hydrograph(s.inflow.PeakRate());
    char name[64];
    std::snprintf(name, sizeof name, "section %d (%.0f m)", row, s.chainage);
    const HWND self = m_hWnd;
    HydrographDialog dialog(start, name, this);
    if (dialog.DoModal() != IDOK || !::IsWindow(self))
        return; // the reach may have closed while the dialog was open
    m_document->reach.sections[section].inflow = dialog.Result();
    m_sheet.Show(m_document->reach);
    m_document->Changed();
}

void ReachWindow::RunFlowCalculator(size_t section) {
    const HWND self = m_hWnd;
    FlowDialog dialog(m_document->reach, section, GetMDIFrame());
    if (dialog.DoModal() != IDOK || !::IsWindow(self))
        return; // the reach may have closed while the dialog was open
    if (dialog.DesignDischarge() != m_document->reach.discharge) {
        m_document->reach.discharge = dialog.DesignDischarge();
        m_document->Changed();
    }
}

void ReachWindow::OnDestroy() {
    m_document->sheet = nullptr;
    m_document->ClosePlots();
    CMDIChildWnd::OnDestroy();
}
