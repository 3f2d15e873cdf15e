// The hydrograph dialog: its table, the curve on its canvas, and reading the table back.

#include "HydrographDialog.h"

#include "grid/GridNotify.h"
#include "platform/base/Messages.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"
#include "plot/PlotData.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kLineChart = 0;
constexpr int kTime = 0, kRate = 1;
constexpr int kWidth = 330, kHeight = 180;
constexpr int kTableWidth = 130;
constexpr int kCurveSymbols = 3270;
constexpr int kCircle = 2;
// Posted when a cell's edit ends: by the time it arrives the cell holds its new text.
constexpr UINT WM_TABLE_CHANGED = WM_APP + 2;

void RegisterTemplate() {
    if (FindDialogTemplate(HydrographDialog::kTemplateId))
        return;
    DialogTemplate dialog{"Inflow hydrograph", {kWidth, kHeight}, {}};
    dialog.style |= WS_THICKFRAME;
    dialog.items = {
        {"Static", "", HydrographDialog::kNoteId, WS_VISIBLE, {6, 6, kWidth - 6, 16}},
        {GRIDCTRL_CLASSNAME,
         "",
         HydrographDialog::kTableId,
         WS_VISIBLE | WS_TABSTOP,
         {6, 20, kTableWidth + 6, kHeight - 26},
         WS_EX_CLIENTEDGE},
        {kPlotCanvasClass,
         "",
         HydrographDialog::kCanvasId,
         WS_VISIBLE,
         {kTableWidth + 12, 20, kWidth - 6, kHeight - 26}},
        {"Button",
         "OK",
         IDOK,
         WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
         {kWidth - 170, kHeight - 20, kWidth - 118, kHeight - 6}},
        {"Button",
         "Cancel",
         IDCANCEL,
         WS_VISIBLE | WS_TABSTOP,
         {kWidth - 114, kHeight - 20, kWidth - 62, kHeight - 6}},
        {"Button",
         "&Help",
         IDHELP,
         WS_VISIBLE | WS_TABSTOP,
         {kWidth - 58, kHeight - 20, kWidth - 8, kHeight - 6}},
        {"ScrollBar",
         "",
         HydrographDialog::kGripId,
         WS_VISIBLE | SBS_SIZEGRIP,
         {kWidth - 8, kHeight - 8, kWidth, kHeight}},
    };
    RegisterDialogTemplate(HydrographDialog::kTemplateId, std::move(dialog));
}

bool ReadNumber(const CString& text, double& value) {
    char* end = nullptr;
    value = std::strtod(text.GetString(), &end);
    return end != text.GetString();
}

} // namespace

HydrographDialog::HydrographDialog(const Inflow& inflow, const char* section, CWnd* parent)
    : CDialogORVA((RegisterTemplate(), kTemplateId), parent), m_inflow(inflow) {
    m_inflow.isCurve = true;
    m_section = section;
}

void HydrographDialog::DoDataExchange(CDataExchange* dx) {
    CDialogORVA::DoDataExchange(dx);
    DDX_Control(dx, kTableId, m_table);
}

BOOL HydrographDialog::OnInitDialog() {
    const BOOL result = CDialogORVA::OnInitDialog();
    SetDlgItemText(kNoteId, ("Inflow at " + m_section + ": time (h) and rate (m3/s)").c_str());
    m_table.SetColumnCount(2);
    m_table.SetFixedRowCount(1);
    for (int col : {kTime, kRate})
        m_table.SetColumnType(new EColTypeFLT(col, 2));
    m_table.SetRowCount(kRows + 1);
    m_table.SetItemText(0, kTime, "Time (h)");
    m_table.SetItemText(0, kRate, "Inflow (m3/s)");
    for (size_t i = 0; i < m_inflow.curve.size() && int(i) < kRows; ++i) {
        m_table.SetItemTextFmt(int(i) + 1, kTime, "%g", m_inflow.curve[i].first);
        m_table.SetItemTextFmt(int(i) + 1, kRate, "%g", m_inflow.curve[i].second);
    }
    m_table.ExpandColumnsToFit();

    m_canvas.SubclassDlgItem(kCanvasId, this);
    m_plot = std::make_unique<EPlot>(kLineChart, "", int(kCanvasId), 0, m_canvas.GetSafeHwnd());
    m_plot->SetMainTitle("Hydrograph");
    m_plot->SetXAxisTitle("Time (h)");
    m_plot->SetYAxisTitle("Inflow (m3/s)");
    DrawCurve();
    return result;
}

Inflow HydrographDialog::ReadTable() const {
    Inflow read;
    read.isCurve = true;
    for (int row = 1; row < m_table.GetRowCount(); ++row) {
        double hours = 0, rate = 0;
        if (ReadNumber(m_table.GetItemText(row, kTime), hours) &&
            ReadNumber(m_table.GetItemText(row, kRate), rate))
            read.curve.emplace_back(hours, std::max(0.0, rate));
    }
    std::stable_sort(read.curve.begin(), read.curve.end());
    return read;
}

void HydrographDialog::DrawCurve() {
    const Inflow shown = ReadTable();
    EPlotData data;
    data.Initialize(1, std::max<int>(1, int(shown.curve.size())), 0);
    for (size_t i = 0; i < shown.curve.size(); ++i)
        data.SetDataForPoint(0, int(i), shown.curve[i].first, shown.curve[i].second);
    data.SetCurveName(0, "Inflow");
    data.SetSubsetColor(0, MUcolor(0x1F, 0x5A, 0xC8));
    data.UpdatePlotFromData(m_plot->GetHwnd());
    m_plot->SetProperty(kCurveSymbols, 0, kCircle); // on the typed points
    char subtitle[64];
    std::snprintf(subtitle, sizeof subtitle, "Peak %.3g m3/s", shown.PeakRate());
    m_plot->SetSubTitle(subtitle);
    m_plot->RedrawPlot();
}

BOOL HydrographDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->idFrom == kTableId && header->code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
        *result = 0;
        PostMessage(WM_TABLE_CHANGED);
        return TRUE;
    }
    return CDialogORVA::OnNotify(wParam, lParam, result);
}

LRESULT HydrographDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TABLE_CHANGED) {
        if (m_plot)
            DrawCurve();
        return 0;
    }
    return CDialogORVA::WindowProc(message, wParam, lParam);
}

void HydrographDialog::OnOK() {
    m_table.EndEditing();
    const Inflow read = ReadTable();
    if (read.curve.size() < 2) {
        AfxMessageBox("A hydrograph needs at least two points, each with a time and a rate.",
                      MB_OK | MB_ICONEXCLAMATION);
        return;
    }
    m_inflow = read;
    CDialogORVA::OnOK();
}

void HydrographDialog::OnDestroy() {
    m_plot.reset();
    CDialogORVA::OnDestroy();
}

void HydrographDialog::DialogResized(int deltaX, int deltaY) {
    MoveSizeItem(&m_table, 0, 0, 0, deltaY);
    MoveSizeItem(int(kCanvasId), 0, 0, deltaX, deltaY);
    MoveSizeItem(int(kNoteId), 0, 0, deltaX, 0);
    for (int id : {IDOK, IDCANCEL, IDHELP, int(kGripId)})
        MoveSizeItem(id, deltaX, deltaY, 0, 0);
}
