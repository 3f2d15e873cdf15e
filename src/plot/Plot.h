#pragma once

// EPlot: the application's object for one chart. It refers to the chart window by its handle
// (the window layer owns the window), carries the plot's identifier, holds its legend and menu,
// and gives typed access to the chart's numbered properties. Most virtual operations are hooks
// for the plots an application derives.
//
// Sections: construction; hooks (virtual); events and menu commands (PlotInteraction.cpp,
// PlotCommands.cpp); identity; titles and curves; ranges; output; typed properties
// (PlotProperties.cpp); chart files (PlotChartFile.cpp).

#include "platform/base/Export.h"
#include "platform/base/Rect.h"
#include "platform/gdi/GdiTypes.h"
#include "plot/PlotEvents.h"
#include "plot/PlotLegend.h"
#include "plot/RightMenu.h"
#include "support/MUcolor.h"
#include "support/Pt2.h"
#include "support/StdStr.h"

#include <bitset>
#include <cstdio>
#include <string>
#include <vector>

// The title that asks for "Plot <identifier>": the test is of this very pointer, so an empty
// string from elsewhere stays an empty title.
ORVA_API extern const char g_plotDefaultTitle[];

class ORVA_API EPlot {
public:
    enum AxisRangeType { RangeNone = 0, RangeMinGiven = 1, RangeMaxGiven = 2, RangeBothGiven = 3 };

    EPlot();
    // A plot in a window of its own: a document child, or a free top-level window when `top`.
    EPlot(int chartType, const char* title, CRect* rect, unsigned char top, unsigned char hint);
    // A chart placed in an existing window: `id` becomes the plot's identifier and the chart's
    // control id; `hostId` is the identifier under which the window layer files the host.
    EPlot(int chartType, const char* title, int id, int hostId, HWND parent);
    // A second object on the same chart.
    EPlot(const EPlot& other);
    EPlot& operator=(const EPlot& other);
    // Unregisters the plot, which closes its chart window.
    virtual ~EPlot();

    // Hooks and overridable behaviour, in the order of their slots.
    virtual void ChangeSelectedPoint(int point);
    virtual void ChangeXORData(int count, Pt2<double>* points);
    virtual int CheckDragPoint(int curve, int point, Pt2<double> start, Pt2<double>* current,
                               unsigned char* moveX, unsigned char* moveY);
    virtual int DrawXORLine(int state, Pt2<double>* start, Pt2<double>* end, unsigned char stop);
    virtual void EndDrag(int curve, int point, Pt2<double> start, Pt2<double>* end);
    virtual int ExportPlotData(FILE* file);
    virtual int ExportPlotDataZVDF(std::vector<int>& values,
                                   std::vector<zvk::CStdStr<char>>& texts);
    virtual void GetCurveNames(std::vector<zvk::CStdStr<char>>& names);
    virtual void GetPlotData(std::vector<std::vector<double>>& rowsX,
                             std::vector<std::vector<double>>& rowsY);
    virtual zvk::CStdStr<char> GetType();
    virtual int ImportPlotData(FILE* file);
    virtual int ImportPlotDataZVDF(std::vector<int>& values,
                                   std::vector<zvk::CStdStr<char>>& texts);
    virtual void LoadDisplayDefaults();
    virtual void OnDoubleClick(tagHOTSPOTDATA spot);
    virtual int OnExitCustomizeDialog();
    virtual void OnZoomIn();
    virtual void PlotClick(int curve, int point, Pt2<double> where, unsigned char* drag,
                           unsigned char* rubber);
    virtual void RestoreDefaults();
    virtual void RunDataOptionsDialog();
    virtual void SaveDisplayDefaults();
    virtual int SetExtremeYValues();
    virtual int SetPlotDefaults();
    virtual void SetTitlesByPlotType();
    virtual void SetUpDefaults();
    virtual void SetUpPreviewPlot();
    virtual void UpdateAnnotations();
    virtual void UpdatePlot(const std::bitset<36>& which, void* data);

    // A chart notification turned into the hooks: 1 if handled, else 0.
    int HandlePlotEvent(unsigned short code);
    // Tells the application's main window which plot's menu is up (null: none), by
    // WM_PLOT_SETMENUPLOT.
    static void SetActiveMenuPlot(EPlot* plot);

    // The commands of the fixed menu, which the application routes to the plot it was told of;
    // each ends by telling the main window that no plot's menu is up.
    void HandlePlotRefresh();
    void HandlePlotDisplayOpts();
    void HandlePlotSetAsDisplayDefault();
    void HandlePlotMaximize();
    void HandlePlotExportPrint();
    void HandlePlotFrame();
    void HandlePlotAxisTitles();
    void HandlePlotLegendNone();
    void HandlePlotLegendTop();
    void HandlePlotLegendBottom();
    void HandlePlotLegendLeft();
    void HandlePlotLegendRight();
    void HandlePlotViewValues();

    // Identity.
    int GetId() const { return m_id; }
    void SetId(int id) { m_id = id; }
    HWND GetHwnd() const { return m_hwnd; }
    EPlotLegend& Legend() { return m_legend; }
    ERightMenu& Menu() { return m_menu; }

    // Titles and curves: nothing happens, and getters give their fallback, without a chart.
    void SetMainTitle(const char* title);
    void SetSubTitle(const char* title);
    void SetXAxisTitle(const char* title);
    void SetYAxisTitle(const char* title);
    zvk::CStdStr<char> GetMainTitle();
    zvk::CStdStr<char> GetSubTitle();
    zvk::CStdStr<char> GetXAxisTitle();
    zvk::CStdStr<char> GetYAxisTitle();
    void SetWindowTitle(const char* title);
    void SetLineType(int curve, int type);
    void SetSymbolType(int curve, int type);
    int GetLineType(int curve);
    int GetSymbolType(int curve);
    void SetLineTypes(std::vector<int>& types);
    void SetSymbolTypes(std::vector<int>& types);
    void GetLineTypes(std::vector<int>& types);
    void GetSymbolTypes(std::vector<int>& types);
    void SetCurveName(int curve, zvk::CStdStr<char> name);
    void SetCurveNames(std::vector<zvk::CStdStr<char>>& names);
    zvk::CStdStr<char> GetCurveName(int curve);

    // Ranges.
    void SetXRange(double min, double max, AxisRangeType type);
    void SetYRange(double min, double max, AxisRangeType type);

    // Output.
    void RedrawPlot();
    void GetDCBitmap(HDC* dc, HBITMAP* bitmap);
    int CopyBitmapToClipboard();
    int CopyBitmapToFile(std::string& path);
    int CopyMetaToClipboard();
    HMETAFILE GetMetafile();
    int Print();
    // Edits the axis titles in the modal "Axis Titles" dialog; OK writes both to the chart.
    void EditAxisTitles();
    bool PixelToGraph(int& axis, int& x, int& y, double& gx, double& gy, bool toPixel, bool b2,
                      bool b3);

    // The chart's own file.
    unsigned char WritePEPlot(const char* path);
    unsigned char LoadPEPlot(const char* path);
    unsigned char ReadPEPlot(const char* path, const char* title, RECT* rect);

    // Typed properties. None of them tests for a chart: a plot without one must not use them.
    void SetProperty(int p, unsigned char v);
    void SetProperty(int p, int v);
    void SetProperty(int p, unsigned long v);
    void SetProperty(int p, double v);
    void SetProperty(int p, MUcolor v);
    void SetProperty(int p, zvk::CStdStr<char> v);
    void SetProperty(int p, int i, double v);
    void SetProperty(int p, int i, int v);
    void SetProperty(int p, int i, unsigned long v);
    void SetProperty(int p, int i, MUcolor v);
    void SetProperty(int p, int i, zvk::CStdStr<char> v);
    void SetProperty(int p, std::vector<double>& v);
    void SetProperty(int p, std::vector<int>& v);
    void SetProperty(int p, std::vector<unsigned long>& v);
    void SetProperty(int p, std::vector<MUcolor>& v);
    void SetProperty(int p, std::vector<zvk::CStdStr<char>>& v);
    void ClearProperty(int p);
    void GetProperty(int p, int& v);
    void GetProperty(int p, unsigned long& v);
    void GetProperty(int p, unsigned char& v);
    void GetProperty(int p, double& v);
    void GetProperty(int p, MUcolor& v);
    void GetProperty(int p, zvk::CStdStr<char>& v);
    void GetProperty(int p, int i, double& v);
    void GetProperty(int p, int i, int& v);
    void GetProperty(int p, int i, unsigned long& v);
    void GetProperty(int p, int i, MUcolor& v);
    void GetProperty(int p, int i, zvk::CStdStr<char>& v);
    void GetProperty(int p, std::vector<double>& v);
    void GetProperty(int p, std::vector<int>& v);
    void GetProperty(int p, std::vector<unsigned long>& v);
    void GetProperty(int p, std::vector<MUcolor>& v);
    void GetProperty(int p, std::vector<zvk::CStdStr<char>>& v);

protected:
    EPlotLegend m_legend;
    ERightMenu m_menu;
    HWND m_hwnd = nullptr; // the chart; the window layer owns it
    int m_id = 0;

private:
    void SetTitle(int property, const char* title);
    zvk::CStdStr<char> GetTitle(int property);
    void SetRange(int modeProperty, int minProperty, int maxProperty, double min, double max,
                  AxisRangeType type);
    int NumberOfCurves();
    void HandlePlotLegend(unsigned char show, int location);
};
