#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <vector>

using namespace gdi;

namespace {

// The styles of thin pens, in pixels on and off along the line, as the system draws them.
std::vector<int> DashPattern(UINT style) {
    switch (style) {
    case PS_DASH:
        return {18, 6};
    case PS_DOT:
        return {3, 3};
    case PS_DASHDOT:
        return {9, 6, 3, 6};
    case PS_DASHDOTDOT:
        return {9, 3, 3, 3, 3, 3};
    default:
        return {};
    }
}

UINT StyleOf(const PenObject* pen) {
    return pen->log.lopnStyle & PS_STYLE_MASK;
}

bool IsThin(const PenObject* pen) {
    return pen->log.lopnWidth.x <= 1;
}

// The pixels of one call with a thin pen, collected so that each pixel is drawn once and the
// pen's raster operation applies exactly; the dash pattern runs on across segments.
class ThinStroke {
public:
    ThinStroke(DcState* dc, const PenObject* pen)
        : m_dc(dc), m_color(pen->log.lopnColor), m_dashes(DashPattern(StyleOf(pen))) {}

    // From `a` to `b` in surface coordinates, leaving out `b`.
    void Line(POINT a, POINT b) {
        int dx = b.x - a.x, dy = b.y - a.y;
        int steps = std::max(std::abs(dx), std::abs(dy));
        if (steps == 0)
            return;
        if (m_dashes.empty() && (dx == 0 || dy == 0)) {
            AddRun(a, dx, dy, steps);
            return;
        }
        // Bresenham on the major axis.
        int sx = dx > 0 ? 1 : -1, sy = dy > 0 ? 1 : -1;
        int ax = std::abs(dx), ay = std::abs(dy);
        int x = a.x, y = a.y;
        int error = (ax > ay ? ax : -ay) / 2;
        for (int i = 0; i < steps; ++i) {
            Plot(x, y);
            int e = error;
            if (e > -ax) {
                error -= ay;
                x += sx;
            }
            if (e < ay) {
                error += ax;
                y += sy;
            }
        }
    }

    void Draw() {
        bool copy = m_dc->attributes.rop2 == R2_COPYPEN;
        if (copy && !m_runs.empty()) {
            cairo_t* cr = m_dc->Cairo();
            SetSource(cr, m_color);
            for (const RECT& r : m_runs)
                cairo_rectangle(cr, r.left, r.top, r.right - r.left, r.bottom - r.top);
            cairo_fill(cr);
        } else {
            for (const RECT& r : m_runs)
                for (int y = r.top; y < r.bottom; ++y)
                    for (int x = r.left; x < r.right; ++x)
                        Add(x, y, m_color);
        }
        ApplyRop2Pixels(m_dc, m_pixels, m_colors);
    }

private:
    void AddRun(POINT a, int dx, int dy, int steps) {
        int x0 = a.x, y0 = a.y;
        if (dx < 0)
            x0 = a.x - steps + 1;
        if (dy < 0)
            y0 = a.y - steps + 1;
        m_runs.push_back(dx != 0 ? RECT{x0, y0, x0 + steps, y0 + 1}
                                 : RECT{x0, y0, x0 + 1, y0 + steps});
    }

    void Plot(int x, int y) {
        if (m_dashes.empty()) {
            Add(x, y, m_color);
            return;
        }
        int total = 0;
        for (int d : m_dashes)
            total += d;
        int at = m_position++ % total, segment = 0;
        while (at >= m_dashes[std::size_t(segment)])
            at -= m_dashes[std::size_t(segment++)];
        if (segment % 2 == 0)
            Add(x, y, m_color);
        else if (m_dc->attributes.bkMode == OPAQUE)
            Add(x, y, m_dc->attributes.bkColor); // the gaps of a styled line are opaque
    }

    void Add(int x, int y, COLORREF color) {
        m_pixels.push_back({x, y});
        m_colors.push_back(color);
    }

    DcState* m_dc;
    COLORREF m_color;
    std::vector<int> m_dashes;
    int m_position = 0;
    std::vector<RECT> m_runs; // solid horizontal and vertical runs
    std::vector<POINT> m_pixels;
    std::vector<COLORREF> m_colors;
};

// A wide pen (or a curve) through cairo: round ends and joins, no antialiasing; other raster
// operations than a plain copy go through a mask of the stroke.
void StrokeWide(DcState* dc, const PenObject* pen, const std::function<void(cairo_t*)>& path) {
    double width = std::max<LONG>(1, pen->log.lopnWidth.x);
    auto setUp = [&](cairo_t* cr) {
        cairo_set_line_width(cr, width);
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
        cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
        cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    };
    cairo_t* cr = dc->Cairo();
    setUp(cr);
    if (dc->attributes.rop2 == R2_COPYPEN) {
        path(cr);
        SetSource(cr, pen->log.lopnColor);
        cairo_stroke(cr);
        return;
    }
    path(cr);
    double x1, y1, x2, y2;
    cairo_stroke_extents(cr, &x1, &y1, &x2, &y2);
    cairo_new_path(cr);
    int left = int(std::floor(x1)) - 1, top = int(std::floor(y1)) - 1;
    int w = int(std::ceil(x2)) + 1 - left, h = int(std::ceil(y2)) + 1 - top;
    if (w <= 0 || h <= 0)
        return;
    cairo_surface_t* mask = cairo_image_surface_create(CAIRO_FORMAT_A8, w, h);
    cairo_t* mcr = cairo_create(mask);
    setUp(mcr);
    cairo_translate(mcr, -left, -top);
    path(mcr);
    cairo_stroke(mcr);
    cairo_destroy(mcr);
    Surface* target = dc->target();
    if (target != nullptr) {
        cairo_region_t* clip = dc->EffectiveClip();
        ApplyRop2Mask(static_cast<cairo_surface_t*>(target->NativeHandle()), clip, mask, left, top,
                      ToPixel(pen->log.lopnColor), dc->attributes.rop2);
        cairo_region_destroy(clip);
    }
    cairo_surface_destroy(mask);
}

PenObject* PenOf(DcState* dc) {
    auto* pen = dc->attributes.pen.as<PenObject>();
    return pen != nullptr && StyleOf(pen) != PS_NULL ? pen : nullptr;
}

// Draws the outline through `points` (surface coordinates), closed or open.
void Outline(DcState* dc, const std::vector<POINT>& points, bool closed) {
    PenObject* pen = PenOf(dc);
    if (pen == nullptr || points.size() < 2)
        return;
    if (IsThin(pen)) {
        ThinStroke stroke(dc, pen);
        for (std::size_t i = 0; i + 1 < points.size(); ++i)
            stroke.Line(points[i], points[i + 1]);
        if (closed)
            stroke.Line(points.back(), points.front());
        stroke.Draw();
        return;
    }
    StrokeWide(dc, pen, [&](cairo_t* cr) {
        cairo_move_to(cr, points[0].x + 0.5, points[0].y + 0.5);
        for (std::size_t i = 1; i < points.size(); ++i)
            cairo_line_to(cr, points[i].x + 0.5, points[i].y + 0.5);
        if (closed)
            cairo_close_path(cr);
    });
}

void FillPath(DcState* dc, const std::function<void(cairo_t*)>& path) {
    cairo_pattern_t* pattern = BrushPattern(dc, dc->attributes.brush.as<BrushObject>());
    if (pattern == nullptr)
        return;
    cairo_t* cr = dc->Cairo();
    path(cr);
    cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_set_source(cr, pattern);
    cairo_fill(cr);
    cairo_pattern_destroy(pattern);
}

std::vector<POINT> ToSurface(DcState* dc, const POINT* points, int count) {
    std::vector<POINT> result;
    result.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        result.push_back(dc->ToSurface(points[i].x, points[i].y));
    return result;
}

// The box of a shape given by two corners in any order, in surface pixels.
RECT SurfaceBox(DcState* dc, int left, int top, int right, int bottom) {
    return dc->ToSurface(RECT{std::min(left, right), std::min(top, bottom), std::max(left, right),
                              std::max(top, bottom)});
}

} // namespace

CPoint CDC::MoveTo(int x, int y) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return CPoint(0, 0);
    CPoint old(dc->attributes.position);
    dc->attributes.position = {x, y};
    return old;
}

BOOL CDC::LineTo(int x, int y) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    POINT from = dc->attributes.position;
    dc->attributes.position = {x, y};
    Outline(dc, {dc->ToSurface(from.x, from.y), dc->ToSurface(x, y)}, false);
    return TRUE;
}

CPoint CDC::GetCurrentPosition() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CPoint(dc->attributes.position) : CPoint(0, 0);
}

BOOL CDC::Polyline(const POINT* points, int count) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || points == nullptr || count < 2)
        return FALSE;
    Outline(dc, ToSurface(dc, points, count), false);
    return TRUE;
}

BOOL CDC::Polygon(const POINT* points, int count) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || points == nullptr || count < 2)
        return FALSE;
    std::vector<POINT> corners = ToSurface(dc, points, count);
    FillPath(dc, [&](cairo_t* cr) {
        cairo_move_to(cr, corners[0].x, corners[0].y);
        for (std::size_t i = 1; i < corners.size(); ++i)
            cairo_line_to(cr, corners[i].x, corners[i].y);
        cairo_close_path(cr);
    });
    Outline(dc, corners, true);
    return TRUE;
}

BOOL CDC::Rectangle(int left, int top, int right, int bottom) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    const RECT r = SurfaceBox(dc, left, top, right, bottom);
    if (r.right - r.left < 1 || r.bottom - r.top < 1)
        return TRUE;
    FillPath(dc, [&](cairo_t* cr) {
        cairo_rectangle(cr, r.left, r.top, r.right - r.left, r.bottom - r.top);
    });
    Outline(dc,
            {{r.left, r.top},
             {r.right - 1, r.top},
             {r.right - 1, r.bottom - 1},
             {r.left, r.bottom - 1}},
            true);
    return TRUE;
}

BOOL CDC::Rectangle(LPCRECT rect) {
    return rect != nullptr && Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Ellipse(int left, int top, int right, int bottom) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    const RECT r = SurfaceBox(dc, left, top, right, bottom);
    if (r.right - r.left < 1 || r.bottom - r.top < 1)
        return TRUE;
    auto ellipse = [&](double inset) {
        return [&r, inset](cairo_t* cr) {
            double cx = (r.left + r.right) / 2.0, cy = (r.top + r.bottom) / 2.0;
            double rx = (r.right - r.left) / 2.0 - inset, ry = (r.bottom - r.top) / 2.0 - inset;
            if (rx <= 0 || ry <= 0)
                return;
            cairo_save(cr);
            cairo_translate(cr, cx, cy);
            cairo_scale(cr, rx, ry);
            cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
            cairo_restore(cr);
        };
    };
    FillPath(dc, ellipse(0));
    if (PenObject* pen = PenOf(dc))
        StrokeWide(dc, pen, ellipse(std::max<LONG>(1, pen->log.lopnWidth.x) / 2.0));
    return TRUE;
}

BOOL CDC::Ellipse(LPCRECT rect) {
    return rect != nullptr && Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}
