// Writing a rendered million-point line chart (1200 x 800) as PNG: our encoder against Cairo's
// own PNG writer on the same pixels, with the size of each file.

#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/canvas/Canvas.h"

#include <benchmark/benchmark.h>
#include <cairo.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr int kWidth = 1200;
constexpr int kHeight = 800;

std::unique_ptr<Canvas> RenderedChart() {
    std::vector<double> xs(kPoints), ys(kPoints);
    for (int i = 0; i < kPoints; ++i) {
        xs[size_t(i)] = i * 0.01;
        ys[size_t(i)] = std::sin(i * 1e-4) * 50 + std::sin(i * 0.37) * 5;
    }
    ChartEngine engine(kWidth, kHeight);
    engine.Properties().SetInt(chartprop::CurveCount, 1);
    engine.Properties().SetInt(chartprop::PointCount, kPoints);
    engine.Properties().SetString(chartprop::MainTitle, "A million points");
    engine.SetArray(chartprop::XData, xs.data(), kPoints);
    engine.SetArray(chartprop::YData, ys.data(), kPoints);
    auto canvas = Canvas::CreateImage(kWidth, kHeight);
    engine.RenderTo(*canvas);
    return canvas;
}

cairo_status_t Append(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

void CairoPngWriter(benchmark::State& state) {
    const auto canvas = RenderedChart();
    int stride = 0;
    auto* pixels = const_cast<unsigned char*>(canvas->Pixels(&stride));
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(pixels, CAIRO_FORMAT_ARGB32, kWidth, kHeight, stride);
    std::string png;
    for (auto _ : state) {
        png.clear();
        cairo_surface_write_to_png_stream(surface, Append, &png);
        benchmark::DoNotOptimize(png.data());
    }
    cairo_surface_destroy(surface);
    state.counters["bytes"] = double(png.size());
}

void EncodePng(benchmark::State& state) {
    const auto canvas = RenderedChart();
    std::string png;
    for (auto _ : state) {
        png = canvas->EncodePng();
        benchmark::DoNotOptimize(png.data());
    }
    state.counters["bytes"] = double(png.size());
}

} // namespace

BENCHMARK(CairoPngWriter)->Unit(benchmark::kMillisecond);
BENCHMARK(EncodePng)->Unit(benchmark::kMillisecond);
