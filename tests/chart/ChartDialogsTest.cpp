// The chart's own dialogs answered as a user would: the options reaching the chart, the export
// writing each format, and the maximised view showing the chart.

#include "FakeSpoolers.h"
#include "HostedChart.h"

#include "chart/ChartApi.h"
#include "chart/ChartDialogIds.h"
#include "chart/ChartPropertyIds.h"

#include "platform/testing/ModalResponder.h"
#include "platform/testing/NotificationRecorder.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

using namespace chartdlg;
using namespace chartprop;

namespace {

constexpr int kChartId = 12;
constexpr COLORREF kFirstColour = RGB(0, 0, 128);
constexpr COLORREF kSecondColour = RGB(0, 128, 0);

std::string Text(HWND chart, int property) {
    char buffer[1024] = {};
    ChartGetString(chart, property, buffer);
    return buffer;
}

double Number(HWND chart, int property) {
    double value = 0;
    return ChartGetArray(chart, property, &value) == int(sizeof value) ? value : -1;
}

std::vector<int> Ints(HWND chart, int property) {
    std::vector<int> values(size_t(ChartGetArray(chart, property, nullptr)) / sizeof(int));
    ChartGetArray(chart, property, values.data());
    return values;
}

class ChartDialogsTest : public HostedChartTest {
protected:
    ChartDialogsTest() : HostedChartTest(kChartId, 600, 400) {}

    // Two straight curves, y = 10x and y = 5x, x from 0 to 10, each point a dot.
    void Fill(HWND chart) override {
        ChartSetInt(chart, CurveCount, 2);
        ChartSetInt(chart, PointCount, 11);
        for (int s = 0; s < 2; ++s)
            for (int i = 0; i <= 10; ++i) {
                const double x = i, y = (s == 0 ? 10.0 : 5.0) * i;
                ChartSetCell(chart, XData, s, i, &x);
                ChartSetCell(chart, YData, s, i, &y);
            }
        const int colours[] = {int(kFirstColour), int(kSecondColour)};
        ChartSetArray(chart, CurveColours, colours, 2);
        ChartSetArray(chart, CurveNames, "Upper\tLower\t", 2);
        ChartSetString(chart, MainTitle, "Before");
        ChartRedraw(chart);
    }
};

TEST_F(ChartDialogsTest, CustomizeWritesTheChangesRedrawsAndNotifies) {
    NotificationRecorder recorder(parent.m_hWnd);
    ModalResponder responder;
    responder.Next()
        .Type(IDC_MAIN_TITLE, "Rating curves")
        .Type(IDC_X_TITLE, "Stage (m)")
        .Choose(IDC_Y_RANGE, "Fixed minimum and maximum")
        .Type(IDC_Y_MIN, "-20")
        .Type(IDC_Y_MAX, "120")
        .Check(IDC_X_GRID, false)
        .Choose(IDC_CURVE, "Lower")
        .Choose(IDC_CURVE_COLOUR, "Red")
        .Choose(IDC_CURVE_SYMBOL, "Filled square")
        .Choose(IDC_CURVE_LINE, "Dashed")
        .Choose(IDC_LEGEND_PLACE, "Right")
        .Press(IDOK);
    ASSERT_EQ(ChartCustomizeDialog(chart), 1);

    ASSERT_EQ(responder.Count(), 1);
    const ShownDialog& shown = responder.Shown()[0];
    EXPECT_TRUE(shown.problems.empty());
    EXPECT_EQ(shown.TextOf(IDC_MAIN_TITLE), "Before");
    EXPECT_EQ(shown.TextOf(IDC_Y_MIN), "0") << "an automatic range shows the range in view";

    EXPECT_EQ(Text(chart, MainTitle), "Rating curves");
    EXPECT_EQ(Text(chart, XAxisTitle), "Stage (m)");
    EXPECT_EQ(ChartGetInt(chart, YRangeMode), RangeBoth);
    EXPECT_EQ(Number(chart, YMinimum), -20);
    EXPECT_EQ(Number(chart, YMaximum), 120);
    EXPECT_EQ(ChartGetInt(chart, XRangeMode), RangeAuto);
    EXPECT_LE(Number(chart, XMinimum), 0) << "an automatic axis reads as the range in view";
    EXPECT_EQ(ChartGetInt(chart, XGrid), 0);
    EXPECT_EQ(Ints(chart, CurveColours),
              (std::vector<int>{int(kFirstColour), int(RGB(255, 0, 0))}));
    EXPECT_EQ(Ints(chart, CurveSymbols), (std::vector<int>{-1, 3}));
    EXPECT_EQ(Ints(chart, CurveLineTypes), (std::vector<int>{0, 1}));
    EXPECT_EQ(ChartGetInt(chart, LegendLocation), 3);

    const auto customized = recorder.Commands(CHARTN_CUSTOMIZED);
    ASSERT_EQ(customized.size(), 1u);
    EXPECT_EQ(customized[0].id, UINT_PTR(kChartId));
    // Redrawn: the new range places the curves anew, and the second one is red.
    int axis = 0, x = 0, y = 0;
    double gx = 5, gy = 120;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, true, false, false);
    RECT client;
    GetClientRect(chart, &client);
    EXPECT_LT(y, client.bottom / 4) << "the top of the plot is now 120";
    const POINT lower = PixelOf(chart, 6, 30);
    EXPECT_EQ(driver.Pixel(chart, POINT{lower.x, lower.y}), RGB(255, 0, 0));
}

TEST_F(ChartDialogsTest, CancelBadInputAndNobodyAnsweringChangeNothing) {
    NotificationRecorder recorder(parent.m_hWnd);
    const auto before = [this] {
        return std::make_tuple(Text(chart, MainTitle), ChartGetInt(chart, YRangeMode),
                               Ints(chart, CurveColours), ChartGetArray(chart, YMinimum, nullptr),
                               ChartGetInt(chart, LegendLocation));
    };
    const auto unchanged = before();

    ModalResponder responder;
    responder.Next()
        .Type(IDC_MAIN_TITLE, "Thrown away")
        .Choose(IDC_CURVE_COLOUR, "Yellow")
        .Choose(IDC_LEGEND_PLACE, "Left")
        .Press(IDCANCEL);
    EXPECT_EQ(ChartCustomizeDialog(chart), 0);
    // A limit that is no number is refused with a message; the dialog stays until Cancel.
    responder.Next()
        .Choose(IDC_Y_RANGE, "Fixed minimum")
        .Type(IDC_Y_MIN, "low")
        .Press(IDOK)
        .Press("Cancel");
    EXPECT_EQ(ChartCustomizeDialog(chart), 0);
    ASSERT_EQ(responder.Count(), 3);
    EXPECT_FALSE(responder.Shown()[2].answered) << "the message box took its default";
    // An empty fixed range is refused as well.
    responder.Next()
        .Choose(IDC_Y_RANGE, "Fixed minimum and maximum")
        .Type(IDC_Y_MIN, "50")
        .Type(IDC_Y_MAX, "50")
        .Press(IDOK)
        .Press(IDCANCEL);
    EXPECT_EQ(ChartCustomizeDialog(chart), 0);
    EXPECT_EQ(responder.Count(), 5);
    // Nobody at all: the dialog is cancelled.
    EXPECT_EQ(ChartCustomizeDialog(chart), 0);

    EXPECT_EQ(before(), unchanged);
    EXPECT_TRUE(recorder.Commands(CHARTN_CUSTOMIZED).empty());
    EXPECT_EQ(ChartCustomizeDialog(nullptr), 0);
}

TEST_F(ChartDialogsTest, AChartEndedWhileItsOptionsAreOpenIsLeftAlone) {
    NotificationRecorder recorder(parent.m_hWnd);
    ModalResponder responder;
    responder.Next()
        .Type(IDC_MAIN_TITLE, "Too late")
        .Run([this](CDialog&, UiDriver&) { ChartDestroy(chart); })
        .Press(IDOK);
    EXPECT_EQ(ChartCustomizeDialog(chart), 0);
    EXPECT_TRUE(recorder.Commands(CHARTN_CUSTOMIZED).empty());
}

// The size of a PNG file as cairo reads it; 0 x 0 when it cannot.
SIZE PngSize(const std::string& path) {
    cairo_surface_t* image = cairo_image_surface_create_from_png(path.c_str());
    SIZE size{};
    if (cairo_surface_status(image) == CAIRO_STATUS_SUCCESS)
        size = {cairo_image_surface_get_width(image), cairo_image_surface_get_height(image)};
    cairo_surface_destroy(image);
    return size;
}

std::string FileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

int LittleEndian32(const std::string& bytes, size_t at) {
    return int(std::uint32_t(std::uint8_t(bytes[at])) |
               std::uint32_t(std::uint8_t(bytes[at + 1])) << 8 |
               std::uint32_t(std::uint8_t(bytes[at + 2])) << 16 |
               std::uint32_t(std::uint8_t(bytes[at + 3])) << 24);
}

TEST_F(ChartDialogsTest, ExportWritesEachFormatAtTheSizeAsked) {
    ModalResponder responder;
    const auto exportAs = [&](const char* format, const std::string& name) {
        responder.Next()
            .Choose(IDC_EXPORT_FORMAT, format)
            .Type(IDC_EXPORT_WIDTH, "320")
            .Type(IDC_EXPORT_HEIGHT, "200")
            .Type(IDC_EXPORT_FILE, name)
            .Press(IDOK);
        return ChartExportDialog(chart);
    };
    const std::string base = ChartTestPath("export");
    ASSERT_EQ(exportAs("PNG picture", base), 1); // the extension comes with the format
    EXPECT_EQ(PngSize(base + ".png").cx, 320);
    EXPECT_EQ(PngSize(base + ".png").cy, 200);

    ASSERT_EQ(exportAs("BMP picture", base + ".bmp"), 1);
    const std::string bmp = FileBytes(base + ".bmp");
    ASSERT_GE(bmp.size(), 54u);
    EXPECT_EQ(bmp.substr(0, 2), "BM");
    EXPECT_EQ(LittleEndian32(bmp, 18), 320);
    EXPECT_EQ(std::abs(LittleEndian32(bmp, 22)), 200);

    ASSERT_EQ(exportAs("SVG drawing", base), 1);
    const std::string svg = FileBytes(base + ".svg");
    EXPECT_NE(svg.find("<svg"), std::string::npos);
    EXPECT_NE(svg.find("320"), std::string::npos);

    ASSERT_EQ(exportAs("PDF document", base), 1);
    EXPECT_EQ(FileBytes(base + ".pdf").substr(0, 5), "%PDF-");

    ASSERT_EQ(exportAs("Chart file", base), 1);
    RECT rect{0, 0, 200, 100};
    HWND copy = ChartCreateFromFile((base + ".chart").c_str(), parent.m_hWnd, &rect, 13);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(Text(copy, MainTitle), "Before");
    EXPECT_EQ(ChartGetArray(copy, YData, nullptr), int(22 * sizeof(double)));
    ChartDestroy(copy);
    EXPECT_EQ(responder.Unused(), 0);
    for (const char* extension : {".png", ".bmp", ".svg", ".pdf", ".chart"})
        std::remove((base + extension).c_str());
}

TEST_F(ChartDialogsTest, ExportToTheClipboardOrPrinterAndRefusalsWriteNothing) {
    ModalResponder responder;
    responder.Next()
        .Choose(IDC_EXPORT_FORMAT, "SVG drawing")
        .Check(IDC_EXPORT_TO_CLIPBOARD)
        .Press(IDOK);
    ASSERT_EQ(ChartExportDialog(chart), 1);
    EXPECT_NE(ClipboardBytes("image/svg+xml").find("<svg"), std::string::npos);

    {
        FakeSpoolers spoolers;
        spoolers.Add("lp", 0);
        responder.Next().Check(IDC_EXPORT_TO_PRINTER).Press(IDOK);
        ASSERT_EQ(ChartExportDialog(chart), 1);
        EXPECT_EQ(spoolers.Spooled(), "lp " + std::string(ChartLastPrintFile()) + "\n");
        std::remove(ChartLastPrintFile());
    }

    // A PDF cannot go to the clipboard: its choice is greyed.
    responder.Next()
        .Choose(IDC_EXPORT_FORMAT, "PDF document")
        .Run([](CDialog& dialog, UiDriver&) {
            EXPECT_FALSE(dialog.GetDlgItem(IDC_EXPORT_TO_CLIPBOARD)->IsWindowEnabled());
        })
        .Press(IDCANCEL);
    EXPECT_EQ(ChartExportDialog(chart), 0);

    // A size of nothing and a missing name are refused with a message each; Cancel then
    // leaves no file behind.
    const std::string path = ChartTestPath("refused");
    responder.Next()
        .Type(IDC_EXPORT_WIDTH, "0")
        .Type(IDC_EXPORT_FILE, path)
        .Press(IDOK)
        .Type(IDC_EXPORT_WIDTH, "100")
        .Type(IDC_EXPORT_FILE, "  ")
        .Press(IDOK)
        .Press(IDCANCEL);
    EXPECT_EQ(ChartExportDialog(chart), 0);
    EXPECT_EQ(responder.Count(), 6) << "the dialog and its two messages";
    EXPECT_FALSE(std::filesystem::exists(path + ".png"));
    EXPECT_EQ(ChartExportDialog(chart), 0) << "nobody answering cancels";
}

TEST_F(ChartDialogsTest, TheMaximisedViewShowsTheSameCurvesAndFollowsItsWindow) {
    ModalResponder responder;
    bool looked = false;
    responder.Next().Run([&](CDialog& view, UiDriver& viewDriver) {
        CWnd* copy = view.GetDlgItem(IDC_MAXIMIZED_CHART);
        ASSERT_NE(copy, nullptr);
        CRect client, chartClient;
        view.GetClientRect(&client);
        copy->GetClientRect(&chartClient);
        EXPECT_GT(client.Width(), 600) << "larger than the chart it shows";
        EXPECT_EQ(chartClient, client);
        for (const auto& [gx, gy, colour] :
             {std::tuple{4.0, 40.0, kFirstColour}, std::tuple{8.0, 40.0, kSecondColour}}) {
            const POINT at = PixelOf(copy->m_hWnd, gx, gy);
            EXPECT_EQ(viewDriver.Pixel(copy->m_hWnd, at), colour);
        }
        view.MoveWindow(10, 10, 500, 300);
        copy->GetClientRect(&chartClient);
        view.GetClientRect(&client);
        EXPECT_EQ(chartClient, client);
        const POINT at = PixelOf(copy->m_hWnd, 4, 40);
        EXPECT_EQ(viewDriver.Pixel(copy->m_hWnd, at), kFirstColour);
        EXPECT_FALSE(parent.IsWindowEnabled()) << "modal over the chart's window";
        looked = true;
    });
    EXPECT_EQ(ChartMaximize(chart), 1);
    EXPECT_TRUE(looked);
    ASSERT_EQ(responder.Count(), 1);
    EXPECT_EQ(responder.Shown()[0].title, "Before");
    EXPECT_EQ(ChartGetInt(chart, PointCount), 11) << "the chart itself is left as it was";
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(ChartMaximize(nullptr), 0);
}

} // namespace
