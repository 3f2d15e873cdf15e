#pragma once

// The numbers of the chart properties that the engine itself reads or writes. Any other number
// is stored and given back unchanged: callers may keep settings of their own in a chart.

namespace chartprop {

constexpr int MainTitle = 2105;
constexpr int SubTitle = 2110;
constexpr int CurveCount = 2115;
constexpr int PointCount = 2120;
constexpr int CurveNames = 2125;
constexpr int PointLabels = 2130;
constexpr int CurveColours = 2190;
constexpr int FontName = 2445;
constexpr int HotSpot = 2610;       // record of seven integers
constexpr int DataHotSpots = 2617;  // 0: data points do not answer to the mouse
constexpr int SelectedPoint = 2618; // drawn ringed; -1 or absent for none
constexpr int LegendCurves = 2624;  // curve indices, -1 ends the list
constexpr int LegendSymbols = 2625; // custom entries
constexpr int LegendTexts = 2626;
constexpr int LegendColours = 2627;
constexpr int MousePosition = 2637; // record of two integers
constexpr int XAxisTitle = 3000;
constexpr int YAxisTitle = 3005;
constexpr int XData = 3013;
constexpr int YData = 3014;
constexpr int XGrid = 3016; // 0 hides the vertical grid lines
constexpr int YGrid = 3017; // 0 hides the horizontal grid lines
constexpr int DateTimeMode = 3018;
constexpr int AppendY = 3024;
constexpr int YRangeMode = 3050;
constexpr int YMinimum = 3055;
constexpr int FitCoefficients = 3058; // ten slots a curve, lowest order first
constexpr int FitOrder = 3059;        // order of the method-13 curve, 1 to 9; 2 when unset
constexpr int YMaximum = 3060;
constexpr int LegendLocation = 3082;
constexpr int PlottingMethod = 3090;
constexpr int DateTickSpacing = 3096; // least pixels between date-and-time ticks
constexpr int DateLabelStyle = 3097;  // 8: the time of day under the date
constexpr int DateTimeBase = 3098;    // added to every X value in date-and-time mode
constexpr int ZoomAllowed = 3210;     // 0: dragging a box does not zoom
constexpr int AnnotationColours = 3236;
constexpr int AnnotationTypes = 3246;
constexpr int CurveSymbols = 3270;
constexpr int CurveLineTypes = 3271;
constexpr int Zoomed = 3283; // 1 while a zoom is in force (read-only)
constexpr int RubberLine = 3290;
constexpr int RubberX = 3291;
constexpr int RubberY = 3292;
constexpr int XRangeMode = 3615;
constexpr int XMinimum = 3620;
constexpr int XMaximum = 3625;
constexpr int IntegerXTicks = 3644; // 1: X ticks fall on multiples of XTickUnit
constexpr int XTickUnit = 3645;
constexpr int XMinorTickUnit = 3646;
constexpr int AppendX = 3659;

// Plotting methods.
constexpr int MethodLine = 0;
constexpr int MethodBar = 1;
constexpr int MethodPoints = 2;
constexpr int MethodPointsAndLines = 3;
constexpr int MethodBestFitLine = 8;
constexpr int MethodBestFitCurve = 13;
constexpr int MethodByCurve = 17; // lines, with each curve's own symbol and line type

// Axis range modes.
constexpr int RangeAuto = 0;
constexpr int RangeMinimum = 1;
constexpr int RangeMaximum = 2;
constexpr int RangeBoth = 3;

// The command a chart answers by showing all its data again after a zoom.
constexpr unsigned FrameCommand = 53053;

constexpr double MissingValue = -9999.0;

} // namespace chartprop
