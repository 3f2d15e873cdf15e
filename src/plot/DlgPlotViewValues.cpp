// The values dialog: its template in dialog units, the sheet filled from the plot's values,
// and the controls that follow the dialog's size.

#include "plot/DlgPlotViewValues.h"

#include "grid/GridCellBase.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/WindowStyles.h"
#include "support/FormatDouble.h"

namespace {

constexpr double kMissing = -9999.0;
constexpr COLORREF kValueBackground = 0xC8C8C8;
constexpr int kHeaderRows = 2; // curve names, then axis titles
constexpr int kMinTrackWidth = 200;
constexpr int kMinTrackHeight = 150;
constexpr int kValueWidth = 15;

DialogTemplate ValuesTemplate() {
    constexpr DWORD shown = WS_VISIBLE;
    DialogTemplate t;
    t.caption = "View Values";
    t.size = {254, 171};
    t.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME;
    t.fontFace = "MS Shell Dlg";
    t.pointSize = 8;
    // Places as left, top, right, bottom.
    t.items = {
        {GRIDCTRL_CLASSNAME,
         "",
         UINT(CDlgPlotViewValues::IDC_VALUES),
         shown | WS_TABSTOP | WS_BORDER,
         {7, 7, 247, 143}},
        {"Button", "OK", UINT(IDOK), shown | WS_TABSTOP | BS_DEFPUSHBUTTON, {197, 150, 247, 164}},
        {"ScrollBar",
         "",
         UINT(CDlgPlotViewValues::IDC_SIZE_GRIP),
         shown | SBS_SIZEGRIP | SBS_SIZEBOXBOTTOMRIGHTALIGN,
         {241, 158, 253, 170}},
    };
    return t;
}

CString ValueText(double value) {
    return xgFormatDouble(value, -1, kValueWidth, 0);
}

} // namespace

CDlgPlotViewValues::CDlgPlotViewValues(const std::vector<std::vector<double>>& xValues,
                                       const std::vector<std::vector<double>>& yValues,
                                       const std::vector<zvk::CStdStr<char>>& curveNames,
                                       unsigned char negateY, CWnd* parent)
    : CDialogORVA(IDD, parent), m_curves(int(xValues.size())),
      m_points(xValues.empty() ? 0 : int(xValues.front().size())), m_xValues(xValues),
      m_yValues(yValues) {
    if (curveNames.size() == xValues.size()) {
        m_curveNames = curveNames;
    } else {
        for (int curve = 1; curve <= m_curves; ++curve) {
            zvk::CStdStr<char> name;
            name.Format("Plot %d", curve);
            m_curveNames.push_back(name);
        }
    }
    if (negateY)
        for (auto& curve : m_yValues)
            for (double& y : curve)
                y *= -1.0;
    InitModalIndirect(ValuesTemplate(), parent);
}

void CDlgPlotViewValues::DoDataExchange(CDataExchange* dx) {
    CDialogORVA::DoDataExchange(dx);
    DDX_Control(dx, IDC_VALUES, m_sheet);
}

BOOL CDlgPlotViewValues::OnInitDialog() {
    const BOOL result = CDialogORVA::OnInitDialog();
    m_sheet.SetFixedRowCount(1);
    m_sheet.SetFixedColumnCount(0);
    m_sheet.SetRowCount(m_points + kHeaderRows);
    m_sheet.SetColumnCount(m_curves * 2 + 1);

    for (int curve = 0; curve < m_curves; ++curve) {
        const int column = 1 + 2 * curve;
        m_sheet.SetItemText(0, column, m_curveNames[size_t(curve)].c_str());
        m_sheet.SetItemText(1, column, m_xTitle.c_str());
        m_sheet.SetItemText(1, column + 1, m_yTitle.c_str());
    }
    EnterSSData();

    for (int row = 0; row < m_sheet.GetRowCount(); ++row)
        for (int column = 0; column < m_sheet.GetColumnCount(); ++column)
            if (CGridCellBase* cell = m_sheet.GetCell(row, column)) {
                cell->SetState(cell->GetState() | GV_STATE_READONLY);
                cell->SetBackClr(kValueBackground);
                cell->SetData(0);
            }
    m_sheet.SetRowResize(FALSE);
    m_sheet.SetColumnResize(TRUE);

    m_sheet.AutoSize(GVS_BOTH);
    m_sheet.ExpandLastColumn();
    m_minTrackCx = kMinTrackWidth;
    m_minTrackCy = kMinTrackHeight;
    return result;
}

void CDlgPlotViewValues::EnterSSData() {
    for (int point = 0; point < m_points; ++point) {
        const int row = point + kHeaderRows;
        CString number;
        number.Format("%d", point + 1);
        m_sheet.SetItemText(row, 0, number);
        for (int curve = 0; curve < m_curves; ++curve) {
            const auto& xs = m_xValues[size_t(curve)];
            const auto& ys = m_yValues[size_t(curve)];
            // Curves shorter than the first, or without Y values, leave their cells empty.
            if (size_t(point) >= xs.size() || size_t(point) >= ys.size())
                continue;
            const double x = xs[size_t(point)];
            if (x == kMissing)
                continue; // a gap: both columns stay empty
            const int column = 1 + 2 * curve;
            m_sheet.SetItemText(row, column, ValueText(x));
            m_sheet.SetItemText(row, column + 1, ValueText(ys[size_t(point)]));
        }
    }
}

void CDlgPlotViewValues::OnSize(UINT type, int cx, int cy) {
    CDialogORVA::OnSize(type, cx, cy);
    if (m_firstSize) {
        m_firstSize = false;
    } else {
        if (type == SIZE_MINIMIZED)
            return;
        MoveSizeItems(cx, cy);
    }
    m_lastCx = cx;
    m_lastCy = cy;
}

void CDlgPlotViewValues::MoveSizeItems(int cx, int cy) {
    if (m_lastCx == 0 && m_lastCy == 0)
        return;
    const int dx = cx - m_lastCx, dy = cy - m_lastCy;
    MoveSizeItem(IDC_VALUES, 0, 0, dx, dy);
    MoveSizeItem(IDOK, dx, dy, 0, 0);
    MoveSizeItem(IDC_SIZE_GRIP, dx, dy, 0, 0);
    Invalidate();
}

void CDlgPlotViewValues::OnGetMinMaxInfo(MINMAXINFO* info) {
    CDialogORVA::OnGetMinMaxInfo(info);
    if (m_minTrackCx != -1 && m_minTrackCy != -1)
        info->ptMinTrackSize = POINT{m_minTrackCx, m_minTrackCy};
}
