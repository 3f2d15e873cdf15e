// The charts of the library as an engineer would put them in a report: a line chart of three
// curves, a bar chart, a scatter with its best-fit curve, and a date-and-time axis.

#include "GalleryPage.h"

#include "chart/ChartApi.h"

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979;

void SetTitles(HWND chart, const char* title, const char* subtitle, const char* xTitle,
               const char* yTitle) {
    ChartSetString(chart, 2105, title);
    ChartSetString(chart, 2110, subtitle);
    ChartSetString(chart, 3000, xTitle);
    ChartSetString(chart, 3005, yTitle);
}

void SetData(HWND chart, int curves, int points, const std::vector<double>& xs,
             const std::vector<double>& ys) {
    ChartSetInt(chart, 2115, curves);
    ChartSetInt(chart, 2120, points);
    ChartSetArray(chart, 3013, xs.data(), int(xs.size()));
    ChartSetArray(chart, 3014, ys.data(), int(ys.size()));
}

// Writes the chart's PNG, and records its window (a top-level chart) as the gallery's picture.
void Save(GalleryContext& context, HWND chart, const char* name) {
    int size[] = {900, 560};
    const std::string fileName = std::string(name) + ".png";
    const std::string path = context.OutputPath(fileName.c_str());
    ChartRedraw(chart);
    const int ok = ChartCopyBitmapToFile(chart, size, path.c_str());
    context.Print("%s: %s (%d curves of %d points, method %d)", fileName.c_str(),
                  ok ? "written" : "FAILED", ChartGetInt(chart, 2115), ChartGetInt(chart, 2120),
                  ChartGetInt(chart, 3090));
    context.Capture(chart, (std::string(name) + "-window").c_str());
}

void LineChart(GalleryContext& context, HWND chart) {
    SetTitles(chart, "Water level along the reach", "Three discharges, steady state",
              "Chainage (m)", "Water level (m)");
    const int points = 41;
    std::vector<double> xs, ys;
    const double flows[] = {20, 45, 80};
    for (double q : flows)
        for (int i = 0; i < points; ++i) {
            const double x = i * 25.0;
            xs.push_back(x);
            ys.push_back(101.2 + 0.35 * std::pow(q, 0.6) - x * 0.0012 +
                         0.15 * std::sin(x / 120.0 + q / 40.0));
        }
    SetData(chart, 3, points, xs, ys);
    ChartSetArray(chart, 2125, "Q = 20 m3/s\tQ = 45 m3/s\tQ = 80 m3/s\t", 3);
    const int colours[] = {0xB4771F, 0x0E7FFF, 0x2CA02C};
    ChartSetArray(chart, 2190, colours, 3);
    const int lineTypes[] = {0, 1, 0};
    const int symbols[] = {0, 0, 3};
    ChartSetArray(chart, 3271, lineTypes, 3);
    ChartSetArray(chart, 3270, symbols, 3);
    ChartSetInt(chart, 3090, 17);
    ChartSetInt(chart, 3082, 1);
    Save(context, chart, "chart-line");
}

void BarChart(GalleryContext& context, HWND chart) {
    SetTitles(chart, "Monthly rainfall", "Gauge R-12, two seasons", "", "Rainfall (mm)");
    const char* months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::vector<double> ys;
    for (int s = 0; s < 2; ++s)
        for (int m = 0; m < 12; ++m)
            ys.push_back(60 + 45 * std::cos((m - 0.5 - s) * kPi / 6) + 9 * ((m * 7 + s) % 5));
    SetData(chart, 2, 12, {}, ys);
    for (int m = 0; m < 12; ++m)
        ChartSetElement(chart, 2130, m, months[m]);
    ChartSetArray(chart, 2125, "2024\t2025\t", 2);
    const int colours[] = {0xC08040, 0x4080E0};
    ChartSetArray(chart, 2190, colours, 2);
    ChartSetInt(chart, 3090, 1);
    ChartSetInt(chart, 3082, 3);
    Save(context, chart, "chart-bar");
}

void ScatterChart(GalleryContext& context, HWND chart) {
    SetTitles(chart, "Stage-discharge rating", "Measured gaugings and fitted curve", "Stage (m)",
              "Discharge (m3/s)");
    std::vector<double> xs, ys;
    for (int i = 0; i < 30; ++i) {
        const double h = 0.3 + i * 0.11;
        xs.push_back(h);
        ys.push_back(4.0 + 2.5 * h + 3.1 * h * h + 1.8 * std::sin(i * 2.3));
    }
    SetData(chart, 1, 30, xs, ys);
    ChartSetArray(chart, 2125, "Gaugings\t", 1);
    const int colour = 0x2828C0;
    ChartSetArray(chart, 2190, &colour, 1);
    const int symbol = 2;
    ChartSetArray(chart, 3270, &symbol, 1);
    ChartSetInt(chart, 3090, 13);
    ChartSetInt(chart, 3082, 0);
    Save(context, chart, "chart-scatter");
    double c[3] = {};
    for (int i = 0; i < 3; ++i)
        ChartGetElement(chart, 3058, i, &c[i]);
    context.Print("best fit: y = %.3f + %.3f x + %.3f x^2", c[0], c[1], c[2]);
}

void DateChart(GalleryContext& context, HWND chart) {
    SetTitles(chart, "Reservoir inflow", "Hourly readings, 4 to 7 May 2025", "", "Inflow (m3/s)");
    int fields[9] = {5, 4, 125, 0, 0, 0, 0, 0, 0};
    double start = 0;
    ChartEncodeDateTime(&start, fields, 1);
    std::vector<double> xs, ys;
    const int points = 72;
    for (int i = 0; i < points; ++i) {
        xs.push_back(start + i / 24.0);
        ys.push_back(i >= 30 && i < 34 ? -9999.0 // a gap in the record
                                       : 35 + 22 * std::exp(-std::pow((i - 40) / 10.0, 2)) +
                                             2 * std::sin(i / 3.0));
    }
    SetData(chart, 1, points, xs, ys);
    ChartSetArray(chart, 2125, "Inflow\t", 1);
    const int colour = 0x9C5A1E;
    ChartSetArray(chart, 2190, &colour, 1);
    ChartSetInt(chart, 3090, 17);
    ChartSetInt(chart, 3018, 1);
    ChartSetInt(chart, 3096, 180);
    ChartSetInt(chart, 3097, 8);
    const int legendEnd = -1;
    ChartSetArray(chart, 2624, &legendEnd, 1);
    Save(context, chart, "chart-datetime");
}

void BuildChartPage(GalleryContext& context) {
    void (*const builders[])(GalleryContext&, HWND) = {LineChart, BarChart, ScatterChart,
                                                       DateChart};
    for (auto build : builders) {
        RECT rect{0, 0, 900, 560};
        HWND chart = ChartCreate(0, 0, &rect, nullptr, 1);
        if (!chart) {
            context.Print("could not create a chart window");
            return;
        }
        build(context, chart);
        ChartDestroy(chart);
    }
}

} // namespace

GALLERY_PAGE("40-charts", "Charts", BuildChartPage);
