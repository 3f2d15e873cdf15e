#pragma once

// Anti-aliased vector drawing for code above the gdi layer (the chart engine): lines, shapes,
// text and images in floating-point pixels, on a memory image or on an SVG or PDF document,
// with file output. Coordinates are pixels at 96 DPI, y growing downwards.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <memory>
#include <string>
#include <vector>

class Surface;

struct CanvasFont {
    std::string family = "Arial";
    double size = 9.0; // points
    bool bold = false;
};

struct CanvasTextSize {
    double width = 0;
    double height = 0;
};

enum class CanvasAlign { Start, Centre, End };

class ORVA_API Canvas {
public:
    // A white image of the given size; null for a size out of bounds.
    static std::unique_ptr<Canvas> CreateImage(int width, int height);
    // A vector document kept in memory; Finish() gives its bytes.
    static std::unique_ptr<Canvas> CreateSvg(int width, int height);
    // A PDF document of one page written to `path` when the canvas finishes; null on failure.
    static std::unique_ptr<Canvas> CreatePdf(const char* path, int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }

    void Clear(COLORREF colour);
    void FillRect(double x, double y, double width, double height, COLORREF colour);
    void StrokeRect(double x, double y, double width, double height, COLORREF colour,
                    double lineWidth);
    // A line through the points (x0, y0, x1, y1, ...); `dashes` empty for a solid line.
    void Polyline(const double* xy, size_t pointCount, COLORREF colour, double lineWidth,
                  const std::vector<double>& dashes = {});
    void Line(double x0, double y0, double x1, double y1, COLORREF colour, double lineWidth,
              const std::vector<double>& dashes = {});
    // Separate segments (x0, y0, x1, y1, ...) stroked as one shape, without joins.
    void StrokeSegments(const double* xyxy, size_t count, COLORREF colour, double lineWidth);
    // Many rectangles (x, y, width, height, ...) filled as one shape.
    void FillRects(const double* xywh, size_t count, COLORREF colour);
    void FillPolygon(const double* xy, size_t pointCount, COLORREF colour);
    void FillCircle(double cx, double cy, double radius, COLORREF colour);
    void StrokeCircle(double cx, double cy, double radius, COLORREF colour, double lineWidth);

    CanvasTextSize MeasureText(const CanvasFont& font, const char* text) const;
    // Draws UTF-8 text with its box aligned at (x, y); `angle` in degrees turns it
    // counter-clockwise about that point (90 reads upwards).
    void DrawText(const CanvasFont& font, const char* text, double x, double y, COLORREF colour,
                  CanvasAlign horizontal = CanvasAlign::Start,
                  CanvasAlign vertical = CanvasAlign::Start, double angle = 0);

    void PushClip(double x, double y, double width, double height);
    void PopClip();

    // Image canvases only. Pixel colour, or CLR_INVALID outside.
    COLORREF GetPixel(int x, int y) const;
    bool SavePng(const char* path) const;
    bool SaveBmp(const char* path) const; // 24-bit, bottom-up
    std::string EncodePng() const;        // empty on failure
    // Copies the image onto a window surface at (x, y), clipped to `clip` in surface pixels.
    void BlitTo(Surface& target, int x, int y, const RECT& clip) const;
    // Premultiplied ARGB pixels, one row after another; `stride` gets the row length in bytes.
    const unsigned char* Pixels(int* stride) const;

    // Vector canvases: ends the document. For SVG the result is the document text; for PDF it
    // is empty and the file is written. False in `ok` if the document could not be completed.
    std::string Finish(bool* ok = nullptr);

private:
    struct Impl;
    Canvas(std::unique_ptr<Impl> impl, int width, int height);
    std::unique_ptr<Impl> m_impl;
    int m_width;
    int m_height;
};
