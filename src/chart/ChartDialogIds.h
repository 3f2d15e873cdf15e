#pragma once

// The controls of the chart's own dialogs, for programs and tests that answer them. OK and
// Cancel are IDOK and IDCANCEL in each.

namespace chartdlg {

// Customize: titles, the two axes, the curves' look and the legend's place.
constexpr int IDC_MAIN_TITLE = 1101;
constexpr int IDC_X_TITLE = 1102;
constexpr int IDC_Y_TITLE = 1103;
// Range combos list "Automatic", "Fixed minimum", "Fixed maximum", "Fixed minimum and maximum";
// a limit field is enabled while the range uses it.
constexpr int IDC_X_RANGE = 1110;
constexpr int IDC_X_MIN = 1111;
constexpr int IDC_X_MAX = 1112;
constexpr int IDC_X_GRID = 1113;
constexpr int IDC_Y_RANGE = 1120;
constexpr int IDC_Y_MIN = 1121;
constexpr int IDC_Y_MAX = 1122;
constexpr int IDC_Y_GRID = 1123;
// The curve chosen in IDC_CURVE is the one the colour, symbol and line combos show and change.
constexpr int IDC_CURVE = 1130;
constexpr int IDC_CURVE_COLOUR = 1131;
constexpr int IDC_CURVE_SYMBOL = 1132;
constexpr int IDC_CURVE_LINE = 1133;
constexpr int IDC_LEGEND_PLACE = 1140; // "Top", "Bottom", "Left", "Right"

// Export: a format, a size, and where it goes.
constexpr int IDC_EXPORT_FORMAT = 1201; // "PNG picture", "BMP picture", "SVG drawing",
                                        // "PDF document", "Chart file"
constexpr int IDC_EXPORT_WIDTH = 1202;
constexpr int IDC_EXPORT_HEIGHT = 1203;
constexpr int IDC_EXPORT_TO_FILE = 1204; // three radio buttons
constexpr int IDC_EXPORT_TO_CLIPBOARD = 1205;
constexpr int IDC_EXPORT_TO_PRINTER = 1206;
constexpr int IDC_EXPORT_FILE = 1207;

// The maximised view: the chart window that fills it.
constexpr int IDC_MAXIMIZED_CHART = 1301;

} // namespace chartdlg
