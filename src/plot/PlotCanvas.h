#pragma once

// PlotCanvas: a control ("MFCCanvasWndCls") that the application places in its own dialogs and
// views to hold a chart. The chart is not a field: the window carries it as the property
// "canvasplot", so whoever holds the window can find it.

#include "platform/window/Wnd.h"

inline constexpr const char* kPlotCanvasClass = "MFCCanvasWndCls";
inline constexpr const char* kCanvasPlotProperty = "canvasplot";
// DrawEdge's sunken edge, the canvas's default border; PLOT_CANVAS_NOBORDER for none.
constexpr UINT PLOT_CANVAS_BORDER = 9;
constexpr UINT PLOT_CANVAS_NOBORDER = UINT(-1);

namespace plot_canvas {
// Whether canvases keep a border of 3 pixels around their client area. Process-wide.
ORVA_API void ShowPlotCanvasBorder(bool show);
ORVA_API bool PlotCanvasBorderShown();
} // namespace plot_canvas

class ORVA_API PlotCanvas : public CWnd {
public:
    PlotCanvas(); // registers the window class unless it exists

    void SetPlotType(int type) { m_plotType = type; }
    int GetPlotType() const { return m_plotType; }
    HWND GetPlotHwnd() const;
    UINT SetBorderType(UINT type); // answers the old one
    UINT GetBorderType() const { return m_borderType; }
    // Ends the chart, as when the window goes.
    void DeletePlotWindow();

protected:
    void OnPaint() override;
    void OnSize(UINT type, int cx, int cy) override;
    BOOL OnEraseBkgnd(CDC* dc) override;
    void OnNcPaint() override;
    void OnDestroy() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    UINT m_borderType = PLOT_CANVAS_BORDER;
    int m_plotType = -1;
};
