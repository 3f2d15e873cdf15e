// EPlot: construction and destruction, the base behaviour of its hooks, titles, curves, ranges
// and output.

#include "plot/Plot.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/base/Messages.h"
#include "platform/window/Wnd.h"
#include "plot/PlotList.h"
#include "plot/PlotWindow.h"
#include "plot/PlotWindows.h"

#include <cstdint>
#include <cstring>

using namespace chartprop;

const char g_plotDefaultTitle[] = "";

namespace {

constexpr const char* kHintSuffix = " - Double click in plot for options";
constexpr const char* kNoChartTitle = "NONE";
constexpr int kTitleBuffer = 1024;
constexpr int kBitmapSize[] = {600, 430};
constexpr int kMetafileSize[] = {500, 300};

constexpr int kKeepImageHandles = 2155; // 1: the chart keeps a device context on its image
constexpr int kImageBitmapWanted = 2574;
constexpr int kImageBitmap = 2575;
constexpr int kImageDC = 2580;

// A handle read back through the chart's 32-bit integers.
template <class Handle> Handle HandleFromInt(int value) {
    return reinterpret_cast<Handle>(std::uintptr_t(std::uint32_t(value)));
}

// A new document window opens restored: a maximised active document is restored first.
void RestoreMaximisedDocument() {
    HWND area = PlotDocumentArea();
    if (!area)
        return; // the main window is no multiple-document frame
    BOOL maximised = FALSE;
    auto active = reinterpret_cast<HWND>(
        SendMessage(area, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximised)));
    if (active && maximised)
        SendMessage(area, WM_MDIRESTORE, reinterpret_cast<WPARAM>(active), 0);
}

} // namespace

EPlot::EPlot() = default;

EPlot::EPlot(int chartType, const char* title, CRect* rect, unsigned char top, unsigned char hint) {
    m_id = g_plotList.NewId();
    zvk::CStdStr<char> windowTitle;
    if (title == g_plotDefaultTitle)
        windowTitle.Format("Plot %d", m_id);
    else if (title)
        windowTitle = title;
    if (!top)
        RestoreMaximisedDocument();
    if (hint)
        windowTitle += kHintSuffix;
    m_hwnd = CreatePlotWindow(chartType, windowTitle.c_str(), m_id, -1, nullptr, rect, top);
    m_legend.SetPlot(this);
    g_plotList.AddToList(this);
    EPlot::SetPlotDefaults();
}

EPlot::EPlot(int chartType, const char* title, int id, int hostId, HWND parent) {
    m_id = id;
    m_hwnd = CreatePlotWindow(chartType, title, hostId, id, parent, nullptr, 0);
    m_legend.SetPlot(this);
    g_plotList.AddToList(this);
    EPlot::SetPlotDefaults();
}

EPlot::EPlot(const EPlot& other)
    : m_legend(other.m_legend), m_menu(other.m_menu), m_hwnd(other.m_hwnd), m_id(other.m_id) {}

EPlot& EPlot::operator=(const EPlot& other) {
    m_legend = other.m_legend;
    m_menu = other.m_menu;
    m_hwnd = other.m_hwnd;
    m_id = other.m_id;
    return *this;
}

EPlot::~EPlot() {
    g_plotList.RemovePlotFromList(m_hwnd);
    m_menu.ClearMenu();
}

// Hooks and their base behaviour.

void EPlot::ChangeSelectedPoint(int point) {
    ChartSetInt(m_hwnd, 2618, point);
    ChartRedraw(m_hwnd);
}

void EPlot::ChangeXORData(int, Pt2<double>*) {}

int EPlot::CheckDragPoint(int, int, Pt2<double>, Pt2<double>*, unsigned char* moveX,
                          unsigned char* moveY) {
    if (moveX)
        *moveX = 0;
    if (moveY)
        *moveY = 0;
    return 0;
}

void EPlot::EndDrag(int, int, Pt2<double>, Pt2<double>*) {}

int EPlot::ExportPlotData(FILE*) {
    return 1;
}

int EPlot::ExportPlotDataZVDF(std::vector<int>&, std::vector<zvk::CStdStr<char>>&) {
    return 1;
}

void EPlot::GetCurveNames(std::vector<zvk::CStdStr<char>>& names) {
    GetProperty(CurveNames, names);
}

void EPlot::GetPlotData(std::vector<std::vector<double>>& rowsX,
                        std::vector<std::vector<double>>& rowsY) {
    const int curves = ChartGetInt(m_hwnd, chartprop::CurveCount);
    const int points = ChartGetInt(m_hwnd, PointCount);
    std::vector<double> flatX, flatY;
    GetProperty(XData, flatX);
    GetProperty(YData, flatY);
    if (flatX.empty() || flatY.empty() || curves < 0 || points < 0)
        return;
    rowsX.assign(size_t(curves), std::vector<double>(size_t(points)));
    rowsY.assign(size_t(curves), std::vector<double>(size_t(points)));
    for (size_t s = 0; s < size_t(curves); ++s)
        for (size_t p = 0; p < size_t(points); ++p) {
            // The chart may hold fewer values than its counts promise: those stay 0.
            const size_t k = s * size_t(points) + p;
            rowsX[s][p] = k < flatX.size() ? flatX[k] : 0.0;
            rowsY[s][p] = k < flatY.size() ? flatY[k] : 0.0;
        }
}

zvk::CStdStr<char> EPlot::GetType() {
    return "Generic";
}

int EPlot::ImportPlotData(FILE*) {
    return 1;
}

int EPlot::ImportPlotDataZVDF(std::vector<int>&, std::vector<zvk::CStdStr<char>>&) {
    return 1;
}

void EPlot::LoadDisplayDefaults() {
    SetUpDefaults();
}

int EPlot::OnExitCustomizeDialog() {
    return -9999999;
}

void EPlot::OnZoomIn() {}

void EPlot::PlotClick(int, int, Pt2<double>, unsigned char* drag, unsigned char* rubber) {
    if (drag)
        *drag = 0;
    if (rubber)
        *rubber = 0;
}

void EPlot::RestoreDefaults() {}
void EPlot::RunDataOptionsDialog() {}
void EPlot::SaveDisplayDefaults() {}

int EPlot::SetExtremeYValues() {
    return 0;
}

void EPlot::SetTitlesByPlotType() {}

void EPlot::SetUpDefaults() {
    ChartSetInt(m_hwnd, 3100, 3);
}

void EPlot::UpdateAnnotations() {}
void EPlot::UpdatePlot(const std::bitset<36>&, void*) {}

// Titles and curves.

void EPlot::SetTitle(int property, const char* title) {
    if (m_hwnd)
        ChartSetString(m_hwnd, property, title ? title : "");
}

zvk::CStdStr<char> EPlot::GetTitle(int property) {
    if (!m_hwnd)
        return kNoChartTitle;
    zvk::CStdStr<char> title(size_t(kTitleBuffer), '\0');
    ChartGetString(m_hwnd, property, title.data());
    return title;
}

void EPlot::SetMainTitle(const char* title) {
    SetTitle(MainTitle, title);
}
void EPlot::SetSubTitle(const char* title) {
    SetTitle(SubTitle, title);
}
void EPlot::SetXAxisTitle(const char* title) {
    SetTitle(XAxisTitle, title);
}
void EPlot::SetYAxisTitle(const char* title) {
    SetTitle(YAxisTitle, title);
}
zvk::CStdStr<char> EPlot::GetMainTitle() {
    return GetTitle(MainTitle);
}
zvk::CStdStr<char> EPlot::GetSubTitle() {
    return GetTitle(SubTitle);
}
zvk::CStdStr<char> EPlot::GetXAxisTitle() {
    return GetTitle(XAxisTitle);
}
zvk::CStdStr<char> EPlot::GetYAxisTitle() {
    return GetTitle(YAxisTitle);
}

void EPlot::SetWindowTitle(const char* title) {
    if (HWND window = ActivePlotHandle(nullptr))
        ::SetWindowText(window, title);
}

int EPlot::NumberOfCurves() {
    return ChartGetInt(m_hwnd, chartprop::CurveCount);
}

void EPlot::SetLineType(int curve, int type) {
    if (m_hwnd)
        ChartSetElement(m_hwnd, CurveLineTypes, curve, &type);
}

void EPlot::SetSymbolType(int curve, int type) {
    if (m_hwnd)
        ChartSetElement(m_hwnd, CurveSymbols, curve, &type);
}

int EPlot::GetLineType(int curve) {
    int type = -1;
    if (m_hwnd && curve >= 0 && curve < NumberOfCurves())
        ChartGetElement(m_hwnd, CurveLineTypes, curve, &type);
    return type;
}

int EPlot::GetSymbolType(int curve) {
    int type = -1;
    if (m_hwnd && curve >= 0 && curve < NumberOfCurves())
        ChartGetElement(m_hwnd, CurveSymbols, curve, &type);
    return type;
}

void EPlot::SetLineTypes(std::vector<int>& types) {
    // The count is the chart's number of curves; a shorter vector sends what it has.
    if (m_hwnd)
        ChartSetArray(m_hwnd, CurveLineTypes, types.data(),
                      std::min(NumberOfCurves(), int(types.size())));
}

void EPlot::SetSymbolTypes(std::vector<int>& types) {
    if (m_hwnd)
        ChartSetArray(m_hwnd, CurveSymbols, types.data(),
                      std::min(NumberOfCurves(), int(types.size())));
}

void EPlot::GetLineTypes(std::vector<int>& types) {
    if (!m_hwnd)
        return;
    types.assign(size_t(std::max(NumberOfCurves(), 0)), 0);
    std::vector<int> all;
    GetProperty(CurveLineTypes, all);
    std::copy_n(all.begin(), std::min(all.size(), types.size()), types.begin());
}

void EPlot::GetSymbolTypes(std::vector<int>& types) {
    if (!m_hwnd)
        return;
    types.assign(size_t(std::max(NumberOfCurves(), 0)), 0);
    std::vector<int> all;
    GetProperty(CurveSymbols, all);
    std::copy_n(all.begin(), std::min(all.size(), types.size()), types.begin());
}

void EPlot::SetCurveName(int curve, zvk::CStdStr<char> name) {
    if (m_hwnd)
        ChartSetElement(m_hwnd, CurveNames, curve, name.c_str());
}

void EPlot::SetCurveNames(std::vector<zvk::CStdStr<char>>& names) {
    if (!m_hwnd)
        return;
    // The chart takes the names as one text, each ended by a tab.
    zvk::CStdStr<char> joined;
    const size_t count = std::min(names.size(), size_t(std::max(NumberOfCurves(), 0)));
    for (size_t i = 0; i < count; ++i)
        joined += names[i] + "\t";
    ChartSetArray(m_hwnd, CurveNames, joined.c_str(), int(count));
}

zvk::CStdStr<char> EPlot::GetCurveName(int) {
    // The name is read into a string whose length stays 0, so the answer is always empty:
    // callers who want names use GetCurveNames.
    return "";
}

// Ranges.

void EPlot::SetRange(int modeProperty, int minProperty, int maxProperty, double min, double max,
                     AxisRangeType type) {
    ChartSetInt(m_hwnd, modeProperty, int(type));
    if (type == RangeMinGiven || type == RangeBothGiven)
        ChartSetArray(m_hwnd, minProperty, &min, 1);
    if (type == RangeMaxGiven || type == RangeBothGiven)
        ChartSetArray(m_hwnd, maxProperty, &max, 1);
}

void EPlot::SetXRange(double min, double max, AxisRangeType type) {
    SetRange(XRangeMode, XMinimum, XMaximum, min, max, type);
}

void EPlot::SetYRange(double min, double max, AxisRangeType type) {
    SetRange(YRangeMode, YMinimum, YMaximum, min, max, type);
}

// Output.

void EPlot::RedrawPlot() {
    ChartRedraw(m_hwnd);
}

void EPlot::GetDCBitmap(HDC* dc, HBITMAP* bitmap) {
    ChartSetInt(m_hwnd, kKeepImageHandles, 1);
    ChartSetInt(m_hwnd, kImageBitmapWanted, 1);
    ChartResetImage(m_hwnd, 0, 0);
    // pmGetPlotDCBitmap passes no outputs: nothing is written then.
    if (dc)
        *dc = HandleFromInt<HDC>(ChartGetInt(m_hwnd, kImageDC));
    if (bitmap)
        *bitmap = HandleFromInt<HBITMAP>(ChartGetInt(m_hwnd, kImageBitmap));
}

int EPlot::CopyBitmapToClipboard() {
    int size[] = {kBitmapSize[0], kBitmapSize[1]};
    return ChartCopyBitmapToClipboard(m_hwnd, size);
}

int EPlot::CopyBitmapToFile(std::string& path) {
    int size[] = {kBitmapSize[0], kBitmapSize[1]};
    return ChartCopyBitmapToFile(m_hwnd, size, path.c_str());
}

int EPlot::CopyMetaToClipboard() {
    int size[] = {kMetafileSize[0], kMetafileSize[1]};
    return ChartCopyMetaToClipboard(m_hwnd, size);
}

HMETAFILE EPlot::GetMetafile() {
    return ChartGetMetafile(m_hwnd);
}

int EPlot::Print() {
    return ChartPrint(m_hwnd, 1, 0);
}

bool EPlot::PixelToGraph(int& axis, int& x, int& y, double& gx, double& gy, bool toPixel, bool b2,
                         bool b3) {
    return ChartPixelToGraph(m_hwnd, &axis, &x, &y, &gx, &gy, toPixel, b2, b3) == 1;
}
