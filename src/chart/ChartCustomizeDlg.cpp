// The chart's options dialog. Sections, in order: the lists it offers and its template;
// loading the look into the controls (OnInitDialog, ShowAxis, ShowCurve); following the user's
// choices (OnCommand); reading the look back on OK (ReadAxis, OnOK); the colour swatch (OnPaint).

#include "chart/ChartCustomizeDlg.h"

#include "chart/ChartDialogIds.h"
#include "chart/ChartPropertyIds.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowDC.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>

using namespace chartdlg;

namespace {

constexpr UINT kLabelId = 0xFFFF; // labels are never addressed

const char* const kRangeModes[] = {"Automatic", "Fixed minimum", "Fixed maximum",
                                   "Fixed minimum and maximum"};
// Symbols from -1 (the plotting method's own) up, and line types from 0 up.
const char* const kSymbols[] = {
    "Automatic",       "None",     "Dot",  "Circle", "Filled square", "Square",
    "Filled triangle", "Triangle", "Plus", "Cross"};
const char* const kLineTypes[] = {"Solid", "Dashed", "Dotted", "Dash-dot", "Thick", "None"};
const char* const kLegendPlaces[] = {"Top", "Bottom", "Left", "Right"};

struct NamedColour {
    const char* name;
    COLORREF colour;
};
const NamedColour kColours[] = {
    {"Black", RGB(0, 0, 0)},       {"Maroon", RGB(128, 0, 0)},     {"Green", RGB(0, 128, 0)},
    {"Olive", RGB(128, 128, 0)},   {"Navy", RGB(0, 0, 128)},       {"Purple", RGB(128, 0, 128)},
    {"Teal", RGB(0, 128, 128)},    {"Silver", RGB(192, 192, 192)}, {"Grey", RGB(128, 128, 128)},
    {"Red", RGB(255, 0, 0)},       {"Lime", RGB(0, 255, 0)},       {"Yellow", RGB(255, 255, 0)},
    {"Blue", RGB(0, 0, 255)},      {"Fuchsia", RGB(255, 0, 255)},  {"Aqua", RGB(0, 255, 255)},
    {"White", RGB(255, 255, 255)},
};

// The swatch beside the colour list, in dialog units.
constexpr RECT kSwatch{118, 169, 132, 181};

DialogTemplate CustomizeTemplate() {
    DialogTemplate t;
    t.caption = "Customize Chart";
    t.size = {280, 236};
    auto add = [&t](const char* cls, const char* text, UINT id, DWORD style, RECT rect) {
        t.items.push_back({cls, text, id, style | WS_VISIBLE, rect});
    };
    auto label = [&add](const char* text, RECT rect) { add("Static", text, kLabelId, 0, rect); };
    auto field = [&add](UINT id, RECT rect) {
        add("Edit", "", id, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, rect);
    };
    auto list = [&add](UINT id, RECT rect) {
        add("ComboBox", "", id, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, rect);
    };

    add("Button", "Titles", kLabelId, BS_GROUPBOX, {7, 5, 273, 64});
    label("&Main title:", {14, 20, 60, 28});
    field(IDC_MAIN_TITLE, {62, 18, 266, 30});
    label("&X axis:", {14, 34, 60, 42});
    field(IDC_X_TITLE, {62, 32, 266, 44});
    label("&Y axis:", {14, 48, 60, 56});
    field(IDC_Y_TITLE, {62, 46, 266, 58});

    const auto axis = [&](const char* title, int left, UINT rangeId, UINT minId, UINT maxId,
                          UINT gridId) {
        add("Button", title, kLabelId, BS_GROUPBOX, {left, 68, left + 131, 140});
        label("Range:", {left + 7, 82, left + 36, 90});
        list(rangeId, {left + 38, 80, left + 124, 150});
        label("Min:", {left + 7, 98, left + 36, 106});
        field(minId, {left + 38, 96, left + 124, 108});
        label("Max:", {left + 7, 112, left + 36, 120});
        field(maxId, {left + 38, 110, left + 124, 122});
        add("Button", "Grid lines", gridId, WS_TABSTOP | BS_AUTOCHECKBOX,
            {left + 7, 125, left + 124, 136});
    };
    axis("X axis", 7, IDC_X_RANGE, IDC_X_MIN, IDC_X_MAX, IDC_X_GRID);
    axis("Y axis", 142, IDC_Y_RANGE, IDC_Y_MIN, IDC_Y_MAX, IDC_Y_GRID);

    add("Button", "Curves", kLabelId, BS_GROUPBOX, {7, 144, 273, 202});
    label("C&urve:", {14, 155, 48, 163});
    list(IDC_CURVE, {50, 153, 266, 240});
    label("C&olour:", {14, 171, 48, 179});
    list(IDC_CURVE_COLOUR, {50, 169, 114, 260});
    label("&Symbol:", {140, 171, 174, 179});
    list(IDC_CURVE_SYMBOL, {176, 169, 266, 260});
    label("L&ine:", {14, 187, 48, 195});
    list(IDC_CURVE_LINE, {50, 185, 114, 260});

    label("&Legend:", {7, 213, 38, 221});
    list(IDC_LEGEND_PLACE, {40, 211, 110, 270});
    add("Button", "OK", UINT(IDOK), WS_TABSTOP | BS_DEFPUSHBUTTON, {163, 211, 213, 225});
    add("Button", "Cancel", UINT(IDCANCEL), WS_TABSTOP, {218, 211, 268, 225});
    return t;
}

std::string FormatLimit(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

// A whole field that reads as a finite number, blanks around it allowed.
bool ParseLimit(const CString& text, double& value) {
    const char* start = text.GetString();
    char* end = nullptr;
    value = std::strtod(start, &end);
    if (end == start || !std::isfinite(value))
        return false;
    while (*end == ' ' || *end == '\t')
        ++end;
    return *end == '\0';
}

} // namespace

ChartCustomizeDlg::ChartCustomizeDlg(const ChartLook& look, CWnd* parent) : m_look(look) {
    InitModalIndirect(CustomizeTemplate(), parent);
}

BOOL ChartCustomizeDlg::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    SetDlgItemText(IDC_MAIN_TITLE, m_look.mainTitle.c_str());
    SetDlgItemText(IDC_X_TITLE, m_look.xTitle.c_str());
    SetDlgItemText(IDC_Y_TITLE, m_look.yTitle.c_str());
    ShowAxis(m_look.x, IDC_X_RANGE, IDC_X_MIN, IDC_X_MAX, IDC_X_GRID);
    ShowAxis(m_look.y, IDC_Y_RANGE, IDC_Y_MIN, IDC_Y_MAX, IDC_Y_GRID);
    for (const ChartCurveLook& curve : m_look.curves)
        SendDlgItemMessage(IDC_CURVE, CB_ADDSTRING, 0, LPARAM(curve.name.c_str()));
    for (const char* symbol : kSymbols)
        SendDlgItemMessage(IDC_CURVE_SYMBOL, CB_ADDSTRING, 0, LPARAM(symbol));
    for (const char* line : kLineTypes)
        SendDlgItemMessage(IDC_CURVE_LINE, CB_ADDSTRING, 0, LPARAM(line));
    for (int id : {IDC_CURVE, IDC_CURVE_COLOUR, IDC_CURVE_SYMBOL, IDC_CURVE_LINE})
        if (CWnd* control = GetDlgItem(id))
            control->EnableWindow(!m_look.curves.empty());
    ShowCurve(0);
    for (const char* place : kLegendPlaces)
        SendDlgItemMessage(IDC_LEGEND_PLACE, CB_ADDSTRING, 0, LPARAM(place));
    SendDlgItemMessage(IDC_LEGEND_PLACE, CB_SETCURSEL, WPARAM(m_look.legendLocation));
    return result;
}

void ChartCustomizeDlg::ShowAxis(const ChartAxisLook& axis, int rangeId, int minId, int maxId,
                                 int gridId) {
    for (const char* mode : kRangeModes)
        SendDlgItemMessage(rangeId, CB_ADDSTRING, 0, LPARAM(mode));
    SendDlgItemMessage(rangeId, CB_SETCURSEL, WPARAM(axis.rangeMode));
    SetDlgItemText(minId, FormatLimit(axis.minimum).c_str());
    SetDlgItemText(maxId, FormatLimit(axis.maximum).c_str());
    CheckDlgButton(gridId, axis.grid ? BST_CHECKED : BST_UNCHECKED);
    EnableLimits(rangeId, minId, maxId);
}

void ChartCustomizeDlg::EnableLimits(int rangeId, int minId, int maxId) {
    ChartAxisLook mode;
    mode.rangeMode = int(SendDlgItemMessage(rangeId, CB_GETCURSEL));
    if (CWnd* field = GetDlgItem(minId))
        field->EnableWindow(mode.UsesMinimum());
    if (CWnd* field = GetDlgItem(maxId))
        field->EnableWindow(mode.UsesMaximum());
}

void ChartCustomizeDlg::ShowCurve(int curve) {
    if (curve < 0 || size_t(curve) >= m_look.curves.size())
        return;
    m_shownCurve = curve;
    const ChartCurveLook& look = m_look.curves[size_t(curve)];
    SendDlgItemMessage(IDC_CURVE, CB_SETCURSEL, WPARAM(curve));
    // The named colours, and the curve's own after them when it is none of them.
    SendDlgItemMessage(IDC_CURVE_COLOUR, CB_RESETCONTENT);
    int selected = -1;
    for (const NamedColour& named : kColours) {
        const int index =
            int(SendDlgItemMessage(IDC_CURVE_COLOUR, CB_ADDSTRING, 0, LPARAM(named.name)));
        SendDlgItemMessage(IDC_CURVE_COLOUR, CB_SETITEMDATA, WPARAM(index), LPARAM(named.colour));
        if (COLORREF(look.colour) == named.colour)
            selected = index;
    }
    if (selected < 0) {
        selected = int(SendDlgItemMessage(IDC_CURVE_COLOUR, CB_ADDSTRING, 0, LPARAM("Custom")));
        SendDlgItemMessage(IDC_CURVE_COLOUR, CB_SETITEMDATA, WPARAM(selected), LPARAM(look.colour));
    }
    SendDlgItemMessage(IDC_CURVE_COLOUR, CB_SETCURSEL, WPARAM(selected));
    const int symbol = look.symbol + 1;
    SendDlgItemMessage(IDC_CURVE_SYMBOL, CB_SETCURSEL,
                       WPARAM(symbol >= 0 && symbol < int(std::size(kSymbols)) ? symbol : 0));
    SendDlgItemMessage(IDC_CURVE_LINE, CB_SETCURSEL,
                       WPARAM(look.lineType >= 0 && look.lineType < int(std::size(kLineTypes))
                                  ? look.lineType
                                  : 0));
    const CRect swatch = SwatchRect();
    InvalidateRect(&swatch, FALSE);
}

BOOL ChartCustomizeDlg::OnCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (HIWORD(wParam) != CBN_SELCHANGE)
        return CDialog::OnCommand(wParam, lParam);
    const int selected = int(SendDlgItemMessage(id, CB_GETCURSEL));
    ChartCurveLook* curve = m_shownCurve >= 0 ? &m_look.curves[size_t(m_shownCurve)] : nullptr;
    switch (id) {
    case IDC_X_RANGE:
        EnableLimits(IDC_X_RANGE, IDC_X_MIN, IDC_X_MAX);
        return TRUE;
    case IDC_Y_RANGE:
        EnableLimits(IDC_Y_RANGE, IDC_Y_MIN, IDC_Y_MAX);
        return TRUE;
    case IDC_CURVE:
        ShowCurve(selected);
        return TRUE;
    case IDC_CURVE_COLOUR:
        if (curve && selected >= 0) {
            curve->colour = int(SendDlgItemMessage(id, CB_GETITEMDATA, WPARAM(selected)));
            const CRect swatch = SwatchRect();
            InvalidateRect(&swatch, FALSE);
        }
        return TRUE;
    case IDC_CURVE_SYMBOL:
        if (curve && selected >= 0)
            curve->symbol = selected - 1;
        return TRUE;
    case IDC_CURVE_LINE:
        if (curve && selected >= 0)
            curve->lineType = selected;
        return TRUE;
    default:
        return CDialog::OnCommand(wParam, lParam);
    }
}

bool ChartCustomizeDlg::ReadAxis(ChartAxisLook& axis, int rangeId, int minId, int maxId,
                                 int gridId) {
    // A mode the list does not know stays as the chart had it.
    if (const int mode = int(SendDlgItemMessage(rangeId, CB_GETCURSEL)); mode >= 0)
        axis.rangeMode = mode;
    axis.grid = IsDlgButtonChecked(gridId) == BST_CHECKED;
    const auto readLimit = [this](int id, double& value) {
        CString text;
        GetDlgItemText(id, text);
        if (ParseLimit(text, value))
            return true;
        AfxMessageBox("Please enter a number.", MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(id));
        return false;
    };
    if ((axis.UsesMinimum() && !readLimit(minId, axis.minimum)) ||
        (axis.UsesMaximum() && !readLimit(maxId, axis.maximum)))
        return false;
    if (axis.rangeMode == chartprop::RangeBoth && !(axis.maximum > axis.minimum)) {
        AfxMessageBox("The maximum must be greater than the minimum.", MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(maxId));
        return false;
    }
    return true;
}

void ChartCustomizeDlg::OnOK() {
    ChartLook look = m_look;
    CString text;
    GetDlgItemText(IDC_MAIN_TITLE, text);
    look.mainTitle = text.GetString();
    GetDlgItemText(IDC_X_TITLE, text);
    look.xTitle = text.GetString();
    GetDlgItemText(IDC_Y_TITLE, text);
    look.yTitle = text.GetString();
    if (!ReadAxis(look.x, IDC_X_RANGE, IDC_X_MIN, IDC_X_MAX, IDC_X_GRID) ||
        !ReadAxis(look.y, IDC_Y_RANGE, IDC_Y_MIN, IDC_Y_MAX, IDC_Y_GRID))
        return;
    if (const int place = int(SendDlgItemMessage(IDC_LEGEND_PLACE, CB_GETCURSEL)); place >= 0)
        look.legendLocation = place;
    m_look = look;
    EndDialog(IDOK);
}

CRect ChartCustomizeDlg::SwatchRect() const {
    CRect rect(kSwatch);
    MapDialogRect(&rect);
    return rect;
}

void ChartCustomizeDlg::OnPaint() {
    CPaintDC dc(this);
    if (m_shownCurve < 0)
        return;
    const CRect swatch = SwatchRect();
    dc.FillSolidRect(swatch, RGB(0, 0, 0));
    CRect inside = swatch;
    inside.DeflateRect(1, 1);
    dc.FillSolidRect(inside, COLORREF(m_look.curves[size_t(m_shownCurve)].colour));
}
