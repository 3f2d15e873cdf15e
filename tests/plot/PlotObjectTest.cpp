// The plot object: titles, curves and ranges in its chart, typed property access, its image
// as a bitmap, and chart notifications reaching its hooks from every kind of host.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/GdiObject.h"
#include "platform/system/SysColors.h"
#include "plot/PlotCanvas.h"
#include "plot/PlotData.h"

#include <cstdint>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr int kCanvasControl = 21;
constexpr COLORREF kCurveColour = RGB(200, 0, 0);
constexpr int kTitleBuffer = 1024;

class PlotObjectTest : public PlotFixture {
protected:
    RecordingPlot* NewPlot() {
        return new RecordingPlot(kLineChart, "Object", nullptr, kTopLevel, 0);
    }
};

TEST_F(PlotObjectTest, TitlesCurvesAndRangesGoToTheChart) {
    RecordingPlot* plot = NewPlot();
    HWND chart = plot->GetHwnd();
    plot->SetMainTitle("Main");
    plot->SetSubTitle("Sub");
    plot->SetXAxisTitle("Chainage (m)");
    plot->SetYAxisTitle("Level (m)");
    const zvk::CStdStr<char> title = plot->GetXAxisTitle();
    EXPECT_EQ(title.size(), size_t(kTitleBuffer));
    EXPECT_STREQ(title.c_str(), "Chainage (m)");
    EXPECT_STREQ(plot->GetSubTitle().c_str(), "Sub");

    ChartSetInt(chart, CurveCount, 2);
    plot->SetLineType(1, 4);
    plot->SetSymbolType(0, 3);
    EXPECT_EQ(plot->GetLineType(1), 4);
    EXPECT_EQ(plot->GetSymbolType(0), 3);
    EXPECT_EQ(plot->GetLineType(2), -1); // past the curves
    std::vector<int> types{7, 8, 9};     // one more than there are curves
    plot->SetLineTypes(types);
    std::vector<int> read;
    plot->GetLineTypes(read);
    EXPECT_EQ(read, (std::vector<int>{7, 8}));

    std::vector<zvk::CStdStr<char>> names{"Upstream", "Downstream"};
    plot->SetCurveNames(names);
    plot->SetCurveName(1, "Tail");
    std::vector<zvk::CStdStr<char>> got;
    plot->GetCurveNames(got);
    EXPECT_EQ(got, (std::vector<zvk::CStdStr<char>>{"Upstream", "Tail"}));
    EXPECT_EQ(plot->GetCurveName(0), ""); // as settled: names come through GetCurveNames

    ChartSetArray(chart, XMaximum, nullptr, 0);
    plot->SetXRange(1, 2, EPlot::RangeMinGiven);
    EXPECT_EQ(ChartGetInt(chart, XRangeMode), EPlot::RangeMinGiven);
    EXPECT_EQ(ChartGetArray(chart, XMaximum, nullptr), 0);
    double low = 0;
    plot->GetProperty(XMinimum, low);
    EXPECT_EQ(low, 1.0);
    plot->SetYRange(5, 6, EPlot::RangeNone);
    EXPECT_EQ(ChartGetInt(chart, YRangeMode), EPlot::RangeNone);
    EXPECT_EQ(ChartGetArray(chart, YMinimum, nullptr), 0);
}

TEST_F(PlotObjectTest, TypedPropertiesRoundTrip) {
    RecordingPlot* plot = NewPlot();
    constexpr int kOwnInt = 9001; // a number the chart stores for its callers
    plot->SetProperty(kOwnInt, 0xFFFFFFFFul);
    unsigned long wide = 0;
    plot->GetProperty(kOwnInt, wide);
    EXPECT_EQ(wide, 0xFFFFFFFFul);
    unsigned char flag = 0;
    plot->GetProperty(kOwnInt, flag);
    EXPECT_EQ(flag, 1);

    std::vector<unsigned long> colours{0x112233, 0xFFFFFFFF};
    plot->SetProperty(CurveColours, colours);
    std::vector<unsigned long> coloursBack;
    plot->GetProperty(CurveColours, coloursBack);
    EXPECT_EQ(coloursBack, colours);
    unsigned long one = 7;
    plot->GetProperty(CurveColours, 1, one);
    EXPECT_EQ(one, 0xFFFFFFFFul);
    plot->SetProperty(CurveColours, 5, 0x1ul); // past the end: nothing
    EXPECT_EQ(ChartGetArray(plot->GetHwnd(), CurveColours, nullptr), 8);

    plot->SetProperty(CurveColours, 0, MUcolor(1, 2, 3));
    MUcolor colour;
    plot->GetProperty(CurveColours, 0, colour);
    EXPECT_EQ(colour, MUcolor(1, 2, 3));

    std::vector<double> xs{1.5, 2.5};
    plot->SetProperty(XData, xs);
    double second = 0;
    plot->GetProperty(XData, 1, second);
    EXPECT_EQ(second, 2.5);
    double untouched = -1;
    plot->GetProperty(XData, 2, untouched);
    EXPECT_EQ(untouched, -1);
    double first = 0;
    plot->GetProperty(XData, first); // a scalar read of an array takes its first value only
    EXPECT_EQ(first, 1.5);
    plot->ClearProperty(XData);
    std::vector<double> none{9};
    plot->GetProperty(XData, none);
    EXPECT_TRUE(none.empty());

    plot->SetProperty(MainTitle, zvk::CStdStr<char>("Padded"));
    zvk::CStdStr<char> text;
    plot->GetProperty(MainTitle, text);
    EXPECT_EQ(text.size(), size_t(kTitleBuffer));
    EXPECT_STREQ(text.c_str(), "Padded");

    std::vector<zvk::CStdStr<char>> labels{"a", " b", ""};
    plot->SetProperty(PointLabels, labels);
    std::vector<zvk::CStdStr<char>> labelsBack;
    plot->GetProperty(PointLabels, labelsBack);
    // Leading blanks of an item go, and an empty item at the end with them.
    EXPECT_EQ(labelsBack, (std::vector<zvk::CStdStr<char>>{"a", "b"}));
    zvk::CStdStr<char> label;
    plot->GetProperty(PointLabels, 1, label);
    EXPECT_EQ(label, " b");
}

TEST_F(PlotObjectTest, PlotDataComesBackInRows) {
    RecordingPlot* plot = NewPlot();
    std::vector<std::vector<double>> xs{{42}}, ys{{43}};
    plot->GetPlotData(xs, ys); // no data yet: left alone
    EXPECT_EQ(xs, (std::vector<std::vector<double>>{{42}}));

    EPlotData data;
    data.Initialize(2, 2, 0);
    data.SetDataForPoint(1, 0, 5, 6);
    data.UpdatePlotFromData(plot->GetHwnd());
    plot->GetPlotData(xs, ys);
    ASSERT_EQ(xs.size(), 2u);
    EXPECT_EQ(xs[1][0], 5);
    EXPECT_EQ(ys[1][0], 6);
    EXPECT_EQ(ys[0][1], MissingValue);
}

TEST_F(PlotObjectTest, ImageComesAsABitmapInAContext) {
    RecordingPlot* plot = NewPlot();
    FillLine(*plot);
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    plot->GetDCBitmap(&dc, &bitmap);
    ASSERT_NE(dc, nullptr);
    ASSERT_NE(bitmap, nullptr);
    // Both handles went through the chart's 32-bit integers.
    EXPECT_LE(reinterpret_cast<std::uintptr_t>(dc), std::uintptr_t(INT32_MAX));
    EXPECT_EQ(GetObjectType(bitmap), OBJ_BITMAP);
    BITMAP info{};
    ASSERT_TRUE(GetObject(bitmap, sizeof info, &info));
    RECT client{};
    GetClientRect(plot->GetHwnd(), &client);
    EXPECT_EQ(info.bmWidth, client.right);
    EXPECT_EQ(info.bmHeight, client.bottom);
    const POINT onCurve = PixelOf(*plot, 4, 40);
    EXPECT_EQ(CDC::FromHandle(dc)->GetPixel(onCurve), kCurveColour);
    EXPECT_EQ(driver.Pixel(plot->GetHwnd(), onCurve), kCurveColour);

    pmGetPlotDCBitmap(plot->GetId(), nullptr, nullptr); // fills nothing, and does not fail
    HWND chart = plot->GetHwnd();
    SendMessage(GetParent(chart), WM_CLOSE); // the chart's handles go with it
    driver.Pump();
    EXPECT_EQ(GetObjectType(bitmap), 0u);
}

TEST_F(PlotObjectTest, ClicksReachTheHooksFromEveryHost) {
    RecordingPlot* top = NewPlot();
    FillLine(*top);
    driver.Pump();
    driver.Click(top->GetHwnd(), PixelOf(*top, 8, 10)); // empty plot area
    ASSERT_EQ(top->clicks.size(), 1u);
    EXPECT_EQ(top->clicks[0], std::make_pair(-1, -1));

    driver.Click(top->GetHwnd(), PixelOf(*top, 4, 40));
    ASSERT_EQ(top->clicks.size(), 2u);
    EXPECT_EQ(top->clicks[1], std::make_pair(0, 4));

    CWnd dialog; // the application's own window that holds the canvas
    ASSERT_TRUE(dialog.CreateEx(0, nullptr, "Dialog", WS_POPUP | WS_VISIBLE, 0, 0, 340, 260,
                                nullptr, nullptr));
    PlotCanvas canvas;
    ASSERT_TRUE(canvas.Create(kPlotCanvasClass, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 320, 240),
                              &dialog, 5));
    auto* inCanvas = new RecordingPlot(kLineChart, "", kCanvasControl, 0, canvas.m_hWnd);
    EXPECT_EQ(canvas.GetPlotHwnd(), inCanvas->GetHwnd());
    EXPECT_EQ(GetDlgCtrlID(inCanvas->GetHwnd()), kCanvasControl);
    FillLine(*inCanvas);
    driver.Pump();
    driver.Click(inCanvas->GetHwnd(), PixelOf(*inCanvas, 2, 20));
    EXPECT_EQ(inCanvas->clicks.size(), 1u);

    // The canvas window goes: its chart with it, but the plot object stays the caller's.
    canvas.DestroyWindow();
    EXPECT_FALSE(IsWindow(inCanvas->GetHwnd()));
    delete inCanvas;
    dialog.DestroyWindow();
}

TEST_F(PlotObjectTest, CanvasFollowsItsSizeAndKeepsItsBorderType) {
    PlotCanvas canvas;
    ASSERT_TRUE(canvas.Create(kPlotCanvasClass, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100),
                              &mainWindow, 6));
    EXPECT_EQ(canvas.GetBorderType(), PLOT_CANVAS_BORDER);
    HWND chart = CreatePlotWindow(kLineChart, "", 0, kCanvasControl, canvas.m_hWnd, nullptr, 0);
    ASSERT_NE(chart, nullptr);
    canvas.MoveWindow(0, 0, 260, 180);
    RECT client{};
    GetClientRect(chart, &client);
    EXPECT_EQ(client.right, 260);
    EXPECT_EQ(client.bottom, 180);
    EXPECT_EQ(canvas.SetBorderType(PLOT_CANVAS_NOBORDER), PLOT_CANVAS_BORDER);
    EXPECT_TRUE(canvas.IsWindowVisible());
    canvas.SetPlotType(3);
    canvas.DeletePlotWindow();
    EXPECT_FALSE(IsWindow(chart));
    EXPECT_EQ(canvas.GetPlotHwnd(), nullptr);
    canvas.DestroyWindow();
    EXPECT_EQ(canvas.GetPlotType(), -1);
}

} // namespace

namespace {

// A plot whose points the user may drag up and down.
class DraggablePlot : public RecordingPlot {
public:
    using RecordingPlot::RecordingPlot;
    void PlotClick(int curve, int point, Pt2<double>, unsigned char* drag,
                   unsigned char*) override {
        *drag = curve >= 0 ? 1 : 0;
    }
    int CheckDragPoint(int, int, Pt2<double>, Pt2<double>*, unsigned char* moveX,
                       unsigned char* moveY) override {
        *moveX = 0;
        *moveY = 1;
        return 1;
    }
    void EndDrag(int curve, int point, Pt2<double>, Pt2<double>* end) override {
        ended = {curve, point};
        endY = end->y;
    }
    std::pair<int, int> ended{-1, -1};
    double endY = 0;
};

class PlotDragTest : public PlotFixture {};

TEST_F(PlotDragTest, DraggingAPointMovesOnlyItsY) {
    auto* plot = new DraggablePlot(kLineChart, "Drag", nullptr, 1, 0);
    FillLine(*plot);
    driver.Pump();
    driver.Drag(plot->GetHwnd(), PixelOf(*plot, 5, 50), PixelOf(*plot, 6, 80));
    EXPECT_EQ(plot->ended, std::make_pair(0, 5));
    EXPECT_NEAR(plot->endY, 80, 1.0);
    double x = 0, y = 0;
    ChartGetElement(plot->GetHwnd(), XData, 5, &x);
    ChartGetElement(plot->GetHwnd(), YData, 5, &y);
    EXPECT_EQ(x, 5.0); // no X was written
    EXPECT_NEAR(y, 80, 1.0);

    // A button-up with no drag under way does nothing and is handled.
    plot->ended = {-1, -1};
    EXPECT_EQ(pmHandlePlotEvent(PLOTEVT_BUTTONUP, plot->GetHwnd()), 1);
    EXPECT_EQ(plot->ended, std::make_pair(-1, -1));
    // A right click on a plot without a menu is left to the chart.
    EXPECT_EQ(pmHandlePlotEvent(PLOTEVT_RBUTTON, plot->GetHwnd()), 0);
}

} // namespace

namespace {

constexpr int kBorder = 3;
constexpr CRect kCanvasPlace(10, 10, 210, 110);

class PlotCanvasBorderTest : public PlotFixture {
protected:
    void SetUp() override {
        PlotFixture::SetUp();
        ASSERT_TRUE(dialog.CreateEx(0, nullptr, "Dialog", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                                    0, 0, 300, 200, nullptr, nullptr));
    }
    void TearDown() override {
        plot_canvas::ShowPlotCanvasBorder(false);
        dialog.DestroyWindow();
        PlotFixture::TearDown();
    }
    CWnd dialog;
};

TEST_F(PlotCanvasBorderTest, BorderIsReservedAroundTheChartAndDrawnAsAnEdge) {
    plot_canvas::ShowPlotCanvasBorder(true);
    PlotCanvas canvas;
    ASSERT_TRUE(
        canvas.Create(kPlotCanvasClass, "", WS_CHILD | WS_VISIBLE, kCanvasPlace, &dialog, 7));
    HWND chart = CreatePlotWindow(kLineChart, "", 0, kCanvasControl, canvas.m_hWnd, nullptr, 0);
    ASSERT_NE(chart, nullptr);
    RECT client{};
    GetClientRect(chart, &client);
    EXPECT_EQ(client.right, kCanvasPlace.Width() - 2 * kBorder);
    EXPECT_EQ(client.bottom, kCanvasPlace.Height() - 2 * kBorder);
    const POINT corner{kCanvasPlace.right - 1, kCanvasPlace.bottom - 1};
    driver.Pump();
    canvas.SetBorderType(PLOT_CANVAS_BORDER); // paints the edge at once
    EXPECT_EQ(driver.Pixel(dialog.m_hWnd, corner), GetSysColor(COLOR_3DDKSHADOW));

    plot_canvas::ShowPlotCanvasBorder(false);
    PlotCanvas plain;
    ASSERT_TRUE(plain.Create(kPlotCanvasClass, "", WS_CHILD | WS_VISIBLE, CRect(0, 120, 100, 180),
                             &dialog, 8));
    plain.GetClientRect(&client);
    EXPECT_EQ(client.right, 100);
}

} // namespace
