#include "chart/ChartEngine.h"

#include "chart/ChartFit.h"
#include "chart/ChartPropertyIds.h"
#include "chart/ChartRenderer.h"
#include "platform/gdi/canvas/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace chartprop;

namespace {
constexpr double kHotSpotRadius = 6; // pixels from a data point that still count as on it
} // namespace

ChartEngine::ChartEngine(int width, int height)
    : m_width(std::max(1, width)), m_height(std::max(1, height)),
      m_measure(Canvas::CreateImage(1, 1)) {}

ChartEngine::~ChartEngine() = default;

int ChartEngine::SetArray(int number, const void* values, int count) {
    const int result = m_properties.SetArray(number, values, count);
    if (result && number == AppendY && count > 0)
        AppendPoint();
    InvalidateLayout();
    return result;
}

int ChartEngine::SetElement(int number, int index, const void* value) {
    // The rubber line is written whole; a single element ends it, whatever its value.
    if (number == RubberX || number == RubberY) {
        m_properties.SetInt(RubberLine, 0);
        m_properties.Remove(RubberX);
        m_properties.Remove(RubberY);
        return 1;
    }
    InvalidateLayout();
    return m_properties.SetElement(number, index, value);
}

int ChartEngine::SetCell(int number, int curve, int point, const double* value) {
    const int points = m_properties.Int(PointCount, 0);
    if (!value || curve < 0 || point < 0 || point >= points ||
        curve >= m_properties.Int(CurveCount, 0) || KindOfProperty(number) != PropertyKind::Double)
        return 0;
    return SetElement(number, curve * points + point, value);
}

std::optional<double> ChartEngine::LaidOutRangeEnd(int number) {
    if (number != XMinimum && number != XMaximum && number != YMinimum && number != YMaximum)
        return std::nullopt;
    if (RangeEndGiven(m_properties, number))
        return std::nullopt;
    const ChartFrame& f = Frame();
    switch (number) {
    case XMinimum:
        return f.xMin;
    case XMaximum:
        return f.xMax;
    case YMinimum:
        return f.yMin;
    default:
        return f.yMax;
    }
}

int ChartEngine::GetArray(int number, void* out) {
    const std::optional<double> end = LaidOutRangeEnd(number);
    if (!end)
        return m_properties.GetArray(number, out);
    if (out)
        std::memcpy(out, &*end, sizeof(double));
    return int(sizeof(double));
}

int ChartEngine::GetElement(int number, int index, void* out) {
    const std::optional<double> end = index == 0 && out ? LaidOutRangeEnd(number) : std::nullopt;
    if (!end)
        return m_properties.GetElement(number, index, out);
    std::memcpy(out, &*end, sizeof(double));
    return 1;
}

// The newest point of each curve goes to the end and the oldest drops out at the front, so a
// real-time plot scrolls with a fixed number of points.
void ChartEngine::AppendPoint() {
    const int curves = std::max(1, m_properties.Int(CurveCount, 1));
    const int points = m_properties.Int(PointCount, 0);
    if (points <= 0)
        return;
    const size_t total = size_t(curves) * size_t(points);
    auto& xs = m_properties.MutableDoubles(XData);
    auto& ys = m_properties.MutableDoubles(YData);
    xs.resize(total, MissingValue);
    ys.resize(total, MissingValue);
    const auto newX = m_properties.Doubles(AppendX);
    const auto newY = m_properties.Doubles(AppendY);
    for (int s = 0; s < curves && size_t(s) < newY.size(); ++s) {
        const size_t first = size_t(s) * points;
        const double x = size_t(s) < newX.size() ? newX[size_t(s)]
                         : newX.empty()          ? xs[first + points - 1] + 1
                                                 : newX.back();
        std::move(xs.begin() + first + 1, xs.begin() + first + points, xs.begin() + first);
        std::move(ys.begin() + first + 1, ys.begin() + first + points, ys.begin() + first);
        xs[first + points - 1] = x;
        ys[first + points - 1] = newY[size_t(s)];
    }
}

void ChartEngine::Resize(int width, int height) {
    m_width = std::max(1, width);
    m_height = std::max(1, height);
    InvalidateLayout();
}

void ChartEngine::UpdateFits() {
    const int method = m_properties.Int(PlottingMethod, MethodByCurve);
    if (method != MethodBestFitLine && method != MethodBestFitCurve)
        return;
    const ChartSeries series = SeriesOf(m_properties);
    if (!series.x)
        return;
    const int order =
        method == MethodBestFitLine ? 1 : std::clamp(m_properties.Int(FitOrder, 2), 1, 9);
    std::vector<double> all(size_t(series.curves) * 10, 0.0);
    for (int s = 0; s < series.curves; ++s) {
        std::vector<double> coefficients;
        const size_t first = size_t(s) * series.points;
        if (FitPolynomial(series.x + first, series.y + first, size_t(series.points), order,
                          coefficients))
            std::copy(coefficients.begin(), coefficients.end(), all.begin() + s * 10);
    }
    m_properties.SetDoubles(FitCoefficients, std::move(all));
}

const ChartFrame& ChartEngine::Frame() {
    if (!m_frame)
        m_frame = LayoutChart(*m_measure, m_properties, m_width, m_height, m_zoom);
    return *m_frame;
}

void ChartEngine::Reinitialize() {
    UpdateFits();
    InvalidateLayout();
    Frame();
    m_properties.SetInt(Zoomed, m_zoom ? 1 : 0);
}

void ChartEngine::ResetImage() {
    if (!m_image || m_image->Width() != m_width || m_image->Height() != m_height)
        m_image = Canvas::CreateImage(m_width, m_height);
    if (m_image)
        DrawChart(*m_image, m_properties, Frame());
}

void ChartEngine::RenderTo(Canvas& canvas) {
    UpdateFits();
    const ChartFrame frame =
        LayoutChart(canvas, m_properties, canvas.Width(), canvas.Height(), m_zoom);
    DrawChart(canvas, m_properties, frame);
}

std::vector<std::int32_t> ChartEngine::HitTest(int x, int y) {
    const ChartFrame& f = Frame();
    const auto spot = [](const ChartBox& box, int kind, int w0, int w1) {
        return std::vector<std::int32_t>{std::int32_t(box.left),
                                         std::int32_t(box.top),
                                         std::int32_t(box.right),
                                         std::int32_t(box.bottom),
                                         kind,
                                         w0,
                                         w1};
    };
    if (f.xTitle.Width() > 0 && f.xTitle.Contains(x, y))
        return spot(f.xTitle, HOTSPOT_AXISLABEL1, 0, 0);
    if (f.yTitle.Width() > 0 && f.yTitle.Contains(x, y))
        return spot(f.yTitle, HOTSPOT_AXISLABEL2, 0, 0);
    const ChartSeries series = SeriesOf(m_properties);
    if (f.plot.Contains(x, y) && series.curves > 0) {
        if (f.bars) {
            const double category = f.plot.Width() / std::max(1, series.points);
            const int point = int((x - f.plot.left) / category);
            if (point >= 0 && point < series.points) {
                const double group = category * 0.78;
                const double left = f.XToPixel(point) - group / 2;
                const int curve = int((x - left) / (group / series.curves));
                ChartBox box{left, f.plot.top, left + group, f.plot.bottom};
                if (x >= left && curve >= 0 && curve < series.curves)
                    return spot(box, HOTSPOT_DATAPOINT, curve, point);
                return spot(box, HOTSPOT_POINT, point, 0);
            }
        } else if (m_properties.Int(DataHotSpots, 3) != 0) {
            double best = kHotSpotRadius * kHotSpotRadius;
            int bestCurve = -1, bestPoint = -1;
            for (int s = 0; s < series.curves; ++s)
                for (int p = 0; p < series.points; ++p) {
                    const double gx = series.X(s, p), gy = series.Y(s, p);
                    if (IsMissing(gx) || IsMissing(gy))
                        continue;
                    const double dx = f.XToPixel(gx) - x, dy = f.YToPixel(gy) - y;
                    if (dx * dx + dy * dy <= best) {
                        best = dx * dx + dy * dy;
                        bestCurve = s;
                        bestPoint = p;
                    }
                }
            if (bestCurve >= 0) {
                const double px = f.XToPixel(series.X(bestCurve, bestPoint));
                const double py = f.YToPixel(series.Y(bestCurve, bestPoint));
                ChartBox box{px - kHotSpotRadius, py - kHotSpotRadius, px + kHotSpotRadius,
                             py + kHotSpotRadius};
                return spot(box, HOTSPOT_DATAPOINT, bestCurve, bestPoint);
            }
        }
    }
    return {0, 0, 0, 0, HOTSPOT_NONE, 0, 0};
}

void ChartEngine::MouseAt(int x, int y) {
    m_properties.SetRecord(MousePosition, {x, y});
    m_properties.SetRecord(HotSpot, HitTest(x, y));
}

bool ChartEngine::PixelToGraph(double px, double py, double& gx, double& gy) {
    const ChartFrame& f = Frame();
    if (f.plot.Width() <= 0 || f.plot.Height() <= 0)
        return false;
    gx = f.PixelToX(px);
    gy = f.PixelToY(py);
    return true;
}

bool ChartEngine::GraphToPixel(double gx, double gy, double& px, double& py) {
    const ChartFrame& f = Frame();
    if (f.plot.Width() <= 0 || f.plot.Height() <= 0)
        return false;
    px = f.XToPixel(gx);
    py = f.YToPixel(gy);
    return true;
}

bool ChartEngine::ZoomTo(int x0, int y0, int x1, int y1) {
    if (std::abs(x1 - x0) < 4 || std::abs(y1 - y0) < 4)
        return false;
    const ChartFrame& f = Frame();
    ChartZoom zoom{f.PixelToX(std::min(x0, x1)), f.PixelToX(std::max(x0, x1)),
                   f.PixelToY(std::max(y0, y1)), f.PixelToY(std::min(y0, y1))};
    m_zoom = zoom;
    m_properties.SetInt(Zoomed, 1);
    InvalidateLayout();
    return true;
}

void ChartEngine::Unzoom() {
    m_zoom.reset();
    m_properties.SetInt(Zoomed, 0);
    InvalidateLayout();
}
