#pragma once

// One chart without its window: the property store and what the chart does with it (layout,
// rendering, best fits, real-time appending, hot spots, pixel conversion, zoom). The window and
// the interface functions drive it.

#include "chart/ChartLayout.h"
#include "chart/ChartProperties.h"

#include <cstdint>
#include <memory>
#include <optional>

class Canvas;

class ORVA_API ChartEngine {
public:
    ChartEngine(int width, int height);
    ~ChartEngine();

    ChartProperties& Properties() { return m_properties; }
    const ChartProperties& Properties() const { return m_properties; }

    // The interface's writes, with what the chart does on them besides storing.
    int SetArray(int number, const void* values, int count);
    int SetElement(int number, int index, const void* value);
    int SetCell(int number, int curve, int point, const double* value);
    // The interface's reads. An axis end that the chart chooses itself reads as the end it lays
    // out, so that callers can measure the range on show.
    int GetArray(int number, void* out);
    int GetElement(int number, int index, void* out);

    // Any other change of the properties: the layout is made again when next needed.
    void Touch() { InvalidateLayout(); }
    void Resize(int width, int height);
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // Best fits and layout at the current size.
    void Reinitialize();
    // Draws the chart into its own image.
    void ResetImage();
    const Canvas* Image() const { return m_image.get(); }
    // Draws the chart on any canvas, laid out for that canvas's size.
    void RenderTo(Canvas& canvas);

    // The seven integers of a hot spot: the spot's rectangle, its kind and two payload words.
    std::vector<std::int32_t> HitTest(int x, int y);
    // Records the mouse position and the hot spot under it.
    void MouseAt(int x, int y);
    // Pixel to graph coordinates, or back when `toPixel`; false before the chart has a size.
    bool PixelToGraph(double px, double py, double& gx, double& gy);
    bool GraphToPixel(double gx, double gy, double& px, double& py);

    // Shows the part of the plot inside the pixel rectangle; false if it is too small.
    bool ZoomTo(int x0, int y0, int x1, int y1);
    void Unzoom();

    const ChartFrame& Frame();

private:
    std::optional<double> LaidOutRangeEnd(int number);
    void UpdateFits();
    void AppendPoint();
    void InvalidateLayout() { m_frame.reset(); }

    ChartProperties m_properties;
    int m_width;
    int m_height;
    std::unique_ptr<Canvas> m_image;
    std::unique_ptr<Canvas> m_measure; // text metrics for layouts without an image
    std::optional<ChartFrame> m_frame;
    std::optional<ChartZoom> m_zoom;
};

constexpr int HOTSPOT_NONE = 0;
constexpr int HOTSPOT_DATAPOINT = 5;
constexpr int HOTSPOT_POINT = 6;
constexpr int HOTSPOT_AXISLABEL1 = 15;
constexpr int HOTSPOT_AXISLABEL2 = 16;
