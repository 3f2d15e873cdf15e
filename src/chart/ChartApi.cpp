#include "chart/ChartApi.h"

#include "chart/ChartDate.h"
#include "chart/ChartEngine.h"
#include "chart/ChartFile.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/Bitmap.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/gdi/canvas/Canvas.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/system/FileSystem.h"
#include "platform/window/WindowApi.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <string>

extern char** environ;

using namespace chartprop;

namespace {

// Every chart of the process by its window. Single-threaded by design, like all windows: the
// tables below are touched from the user-interface thread only.
std::map<HWND, std::unique_ptr<ChartEngine>>& Charts() {
    static std::map<HWND, std::unique_ptr<ChartEngine>> charts;
    return charts;
}

struct ChartDrag {
    HWND chart = nullptr;
    POINT start{};
    bool onDataPoint = false;
    POINT current{};
};

ChartDrag g_drag;

// The box of a zoom drag under way on this chart, or an empty rectangle.
RECT ZoomBox(HWND chart, ChartEngine& engine) {
    if (g_drag.chart != chart || g_drag.onDataPoint ||
        engine.Properties().Int(ZoomAllowed, 1) == 0 ||
        !engine.Frame().plot.Contains(g_drag.start.x, g_drag.start.y))
        return {};
    const RECT box{std::min(g_drag.start.x, g_drag.current.x),
                   std::min(g_drag.start.y, g_drag.current.y),
                   std::max(g_drag.start.x, g_drag.current.x) + 1,
                   std::max(g_drag.start.y, g_drag.current.y) + 1};
    return box.right - box.left > 4 && box.bottom - box.top > 4 ? box : RECT{};
}
std::pair<HWND, ChartEngine*> g_lastChart{nullptr, nullptr};

// Charts whose image waits to be drawn again. ChartResetImage only marks it: a chart fed point
// by point and reset after each is drawn once, when it is next painted or its image is
// handed out.
std::set<HWND>& StaleImages() {
    static std::set<HWND> charts;
    return charts;
}

void BringImageUpToDate(HWND chart, ChartEngine& engine) {
    if (StaleImages().erase(chart) != 0 || !engine.Image() ||
        engine.Image()->Width() != engine.Width() || engine.Image()->Height() != engine.Height())
        engine.ResetImage();
}

// The image handed out as a bitmap selected into a memory context, for callers that copy the
// chart elsewhere: property 2574 asks for it, 2575 and 2580 give the two handles, which fit the
// chart's 32-bit integers. The chart owns both until it goes.
constexpr int kImageHandlesWanted = 2574;
constexpr int kImageBitmap = 2575;
constexpr int kImageDC = 2580;

struct ImageHandles {
    HBITMAP bitmap = nullptr;
    HDC dc = nullptr;
    HGDIOBJ firstBitmap = nullptr; // the context's own, put back before the context goes
};

std::map<HWND, ImageHandles>& HandedOutImages() {
    static std::map<HWND, ImageHandles> images;
    return images;
}

void FreeImageHandles(HWND chart) {
    auto it = HandedOutImages().find(chart);
    if (it == HandedOutImages().end())
        return;
    ImageHandles& image = it->second;
    if (image.dc) {
        SelectObject(image.dc, image.firstBitmap);
        DeleteDC(image.dc);
    }
    if (image.bitmap)
        DeleteObject(image.bitmap);
    HandedOutImages().erase(it);
}

void HandOutImage(HWND chart, ChartEngine& engine) {
    if (engine.Properties().Int(kImageHandlesWanted, 0) != 1)
        return;
    BringImageUpToDate(chart, engine);
    const Canvas* picture = engine.Image();
    if (!picture)
        return;
    const int width = picture->Width(), height = picture->Height();
    ImageHandles& image = HandedOutImages()[chart];
    BITMAP info{};
    if (image.bitmap && GetObject(image.bitmap, sizeof info, &info) &&
        (info.bmWidth != width || info.bmHeight != height)) {
        SelectObject(image.dc, image.firstBitmap);
        DeleteObject(image.bitmap);
        image.bitmap = nullptr;
    }
    if (!image.dc)
        image.dc = CreateCompatibleDC(nullptr);
    if (!image.bitmap) {
        image.bitmap = CreateBitmap(width, height, 1, 32, nullptr);
        if (image.dc && image.bitmap) {
            HGDIOBJ previous = SelectObject(image.dc, image.bitmap);
            if (!image.firstBitmap)
                image.firstBitmap = previous;
        }
    }
    if (Surface* pixels = GdiBitmapSurface(image.bitmap))
        picture->BlitTo(*pixels, 0, 0, RECT{0, 0, width, height});
    engine.Properties().SetInt(kImageBitmap, int(reinterpret_cast<std::uintptr_t>(image.bitmap)));
    engine.Properties().SetInt(kImageDC, int(reinterpret_cast<std::uintptr_t>(image.dc)));
}

void Notify(HWND chart, unsigned short code) {
    HWND parent = GetParent(chart);
    if (parent)
        SendMessage(parent, WM_COMMAND, MAKEWPARAM(WORD(GetDlgCtrlID(chart)), code), LPARAM(chart));
}

void Repaint(HWND chart, ChartEngine& engine) {
    engine.Reinitialize();
    engine.ResetImage();
    InvalidateRect(chart, nullptr, FALSE);
}

void Paint(HWND chart, ChartEngine& engine) {
    PAINTSTRUCT paint{};
    HDC dc = BeginPaint(chart, &paint);
    BringImageUpToDate(chart, engine);
    POINT origin{};
    if (Surface* surface = dc ? GdiSurfaceOf(dc, &origin) : nullptr) {
        if (engine.Image()) {
            const RECT& r = paint.rcPaint;
            const RECT clip{r.left + origin.x, r.top + origin.y, r.right + origin.x,
                            r.bottom + origin.y};
            engine.Image()->BlitTo(*surface, origin.x, origin.y, clip);
        }
        const RECT box = ZoomBox(chart, engine);
        if (box.right > box.left)
            DrawFocusRect(dc, &box);
    }
    EndPaint(chart, &paint);
}

LRESULT ChartWndProc(HWND chart, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& charts = Charts();
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCT*>(lParam);
        auto engine = std::make_unique<ChartEngine>(create->cx, create->cy);
        if (const auto* loaded =
                static_cast<const std::map<int, PropertyValue>*>(create->lpCreateParams))
            engine->Properties().Replace(*loaded);
        charts[chart] = std::move(engine);
        return TRUE;
    }
    auto it = charts.find(chart);
    if (it == charts.end())
        return DefWindowProc(chart, message, wParam, lParam);
    ChartEngine& engine = *it->second;
    const int x = GET_X_LPARAM(lParam);
    const int y = GET_Y_LPARAM(lParam);
    switch (message) {
    case WM_SIZE:
        engine.Resize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint(chart, engine);
        return 0;
    case WM_MOUSEMOVE:
        engine.MouseAt(x, y);
        if (g_drag.chart == chart) {
            g_drag.current = {x, y};
            InvalidateRect(chart, nullptr, FALSE); // the zoom box follows the mouse
        }
        Notify(chart, CHARTN_MOUSEMOVE);
        return 0;
    case WM_LBUTTONDOWN:
        engine.MouseAt(x, y);
        SetCapture(chart);
        g_drag = {chart, {x, y}, engine.Properties().IntElement(HotSpot, 4, 0) != 0, {x, y}};
        Notify(chart, CHARTN_CLICK);
        return 0;
    case WM_LBUTTONUP: {
        if (GetCapture() == chart)
            ReleaseCapture();
        engine.MouseAt(x, y);
        const bool zoom = g_drag.chart == chart && !g_drag.onDataPoint &&
                          engine.Properties().Int(ZoomAllowed, 1) != 0 &&
                          engine.Frame().plot.Contains(g_drag.start.x, g_drag.start.y) &&
                          engine.ZoomTo(g_drag.start.x, g_drag.start.y, x, y);
        g_drag = {};
        Notify(chart, CHARTN_BUTTONUP);
        InvalidateRect(chart, nullptr, FALSE);
        if (zoom) {
            Repaint(chart, engine);
            Notify(chart, CHARTN_ZOOMIN);
        }
        return 0;
    }
    case WM_LBUTTONDBLCLK:
        engine.MouseAt(x, y);
        Notify(chart, CHARTN_DBLCLICK);
        return 0;
    case WM_RBUTTONDOWN:
        engine.MouseAt(x, y);
        Notify(chart, CHARTN_RBUTTON);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == WORD(FrameCommand)) {
            engine.Unzoom();
            Repaint(chart, engine);
            return 0;
        }
        break;
    case WM_NCDESTROY:
        FreeImageHandles(chart);
        StaleImages().erase(chart);
        if (g_drag.chart == chart)
            g_drag = {};
        if (g_lastChart.first == chart)
            g_lastChart = {nullptr, nullptr};
        charts.erase(it);
        return 0;
    default:
        break;
    }
    return DefWindowProc(chart, message, wParam, lParam);
}

bool RegisterChartClass() {
    static const bool registered = [] {
        WNDCLASS wc{};
        wc.style = CS_DBLCLKS;
        wc.lpfnWndProc = ChartWndProc;
        wc.lpszClassName = kChartWindowClass;
        return RegisterClass(&wc) != FALSE;
    }();
    return registered;
}

HWND CreateChartWindow(RECT* clientRect, HWND parent, int controlId,
                       const std::map<int, PropertyValue>* loaded) {
    if (!RegisterChartClass())
        return nullptr;
    RECT rect = clientRect ? *clientRect : RECT{0, 0, 600, 430};
    const DWORD style = (parent ? WS_CHILD : WS_POPUP) | WS_VISIBLE;
    return CreateWindowEx(0, kChartWindowClass, "", style, rect.left, rect.top,
                          rect.right - rect.left, rect.bottom - rect.top, parent,
                          parent ? reinterpret_cast<HMENU>(std::intptr_t(controlId)) : nullptr,
                          nullptr, const_cast<std::map<int, PropertyValue>*>(loaded));
}

bool HasExtension(const std::string& path, const char* extension) {
    const std::string ext = extension;
    if (path.size() < ext.size())
        return false;
    std::string tail = path.substr(path.size() - ext.size());
    std::transform(tail.begin(), tail.end(), tail.begin(), ::tolower);
    return tail == ext;
}

bool SizeOf(const int* size, int& width, int& height) {
    if (!size || size[0] <= 0 || size[1] <= 0 || size[0] > 16384 || size[1] > 16384)
        return false;
    width = size[0];
    height = size[1];
    return true;
}

struct Metafile {
    std::string svg;
};

std::string g_lastPrintFile;

} // namespace

ChartEngine* ChartEngineOf(HWND chart) {
    // Pushing data calls this once a value: the chart of the last call answers at once.
    if (chart && chart == g_lastChart.first)
        return g_lastChart.second;
    auto it = Charts().find(chart);
    if (it == Charts().end())
        return nullptr;
    g_lastChart = {chart, it->second.get()};
    return it->second.get();
}

int ChartSetArray(HWND chart, int property, const void* values, int count) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->SetArray(property, values, count) : 0;
}

int ChartGetArray(HWND chart, int property, void* out) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetArray(property, out) : -1;
}

int ChartSetElement(HWND chart, int property, int index, const void* value) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->SetElement(property, index, value) : 0;
}

int ChartGetElement(HWND chart, int property, int index, void* out) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetElement(property, index, out) : 0;
}

int ChartSetInt(HWND chart, int property, int value) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return 0;
    engine->Touch();
    return engine->Properties().SetInt(property, value);
}

int ChartGetInt(HWND chart, int property) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetInt(property) : 0;
}

int ChartSetString(HWND chart, int property, const char* text) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return 0;
    engine->Touch();
    return engine->Properties().SetString(property, text);
}

int ChartGetString(HWND chart, int property, char* buffer) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetString(property, buffer) : 0;
}

int ChartSetCell(HWND chart, int property, int curve, int point, const double* value) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->SetCell(property, curve, point, value) : 0;
}

HWND ChartCreate(int, int, RECT* clientRect, HWND parent, int controlId) {
    return CreateChartWindow(clientRect, parent, controlId, nullptr);
}

int ChartDestroy(HWND chart) {
    return ChartEngineOf(chart) && DestroyWindow(chart) ? 1 : 0;
}

int ChartReinitialize(HWND chart) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return 0;
    engine->Reinitialize();
    return 1;
}

int ChartResetImage(HWND chart, int, int) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return 0;
    StaleImages().insert(chart);
    HandOutImage(chart, *engine);
    return 1;
}

void ChartRedraw(HWND chart) {
    ChartReinitialize(chart);
    ChartResetImage(chart, 0, 0);
    InvalidateRect(chart, nullptr, FALSE);
}

int ChartPixelToGraph(HWND chart, int* axis, int* x, int* y, double* gx, double* gy, bool toPixel,
                      bool, bool) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine || !x || !y || !gx || !gy || (axis && *axis != 0))
        return 0;
    if (!toPixel)
        return engine->PixelToGraph(*x, *y, *gx, *gy) ? 1 : 0;
    double px = 0, py = 0;
    if (!engine->GraphToPixel(*gx, *gy, px, py))
        return 0;
    *x = int(std::lround(px));
    *y = int(std::lround(py));
    return 1;
}

int ChartEncodeDateTime(double* serial, int* fields, int) {
    if (!serial || !fields)
        return 0;
    ChartDateFields date;
    date.month = fields[0];
    date.day = fields[1];
    date.year = fields[2] + 1900;
    date.hour = fields[3];
    date.minute = fields[4];
    date.second = fields[5];
    return EncodeChartDate(date, serial) ? 1 : 0;
}

HMETAFILE ChartGetMetafile(HWND chart) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return nullptr;
    auto canvas = Canvas::CreateSvg(engine->Width(), engine->Height());
    if (!canvas)
        return nullptr;
    engine->RenderTo(*canvas);
    bool ok = false;
    auto metafile = std::make_unique<Metafile>();
    metafile->svg = canvas->Finish(&ok);
    return ok ? reinterpret_cast<HMETAFILE>(metafile.release()) : nullptr;
}

const char* ChartMetafileText(HMETAFILE metafile, int* size) {
    if (!metafile)
        return nullptr;
    const auto* data = reinterpret_cast<const Metafile*>(metafile);
    if (size)
        *size = int(data->svg.size());
    return data->svg.c_str();
}

void ChartDeleteMetafile(HMETAFILE metafile) {
    delete reinterpret_cast<Metafile*>(metafile);
}

namespace {
// Replaces the clipboard's content with `bytes` in the registered format `format`, as the
// framework's clipboard calls hand it over: a global block that the clipboard then owns.
bool PutOnClipboard(HWND owner, const char* format, const std::string& bytes) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (!block)
        return false;
    std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
    GlobalUnlock(block);
    if (!OpenClipboard(owner)) {
        GlobalFree(block);
        return false;
    }
    EmptyClipboard();
    const bool placed = SetClipboardData(RegisterClipboardFormat(format), block) != nullptr;
    if (!placed)
        GlobalFree(block);
    CloseClipboard();
    return placed;
}
} // namespace

int ChartCopyMetaToClipboard(HWND chart, int* size) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !SizeOf(size, width, height))
        return 0;
    auto canvas = Canvas::CreateSvg(width, height);
    engine->RenderTo(*canvas);
    bool ok = false;
    const std::string svg = canvas->Finish(&ok);
    if (!ok)
        return 0;
    return PutOnClipboard(chart, "image/svg+xml", svg) ? 1 : 0;
}

int ChartCopyBitmapToClipboard(HWND chart, int* size) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !SizeOf(size, width, height))
        return 0;
    auto canvas = Canvas::CreateImage(width, height);
    engine->RenderTo(*canvas);
    const std::string png = canvas->EncodePng();
    return !png.empty() && PutOnClipboard(chart, "image/png", png) ? 1 : 0;
}

int ChartCopyBitmapToFile(HWND chart, int* size, const char* path) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !path || !SizeOf(size, width, height))
        return 0;
    const bool png = HasExtension(path, ".png");
    if (!png && !HasExtension(path, ".bmp"))
        return 0;
    auto canvas = Canvas::CreateImage(width, height);
    engine->RenderTo(*canvas);
    return (png ? canvas->SavePng(path) : canvas->SaveBmp(path)) ? 1 : 0;
}

const char* ChartLastPrintFile() {
    return g_lastPrintFile.c_str();
}

int ChartStore(HWND chart, const char* path) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine && StoreChartFile(engine->Properties(), path) ? 1 : 0;
}

int ChartLoad(HWND chart, const char* path) {
    ChartEngine* engine = ChartEngineOf(chart);
    std::map<int, PropertyValue> loaded;
    if (!engine || !LoadChartFile(path, loaded))
        return 0;
    engine->Properties().Replace(std::move(loaded));
    engine->Unzoom();
    return 1;
}

HWND ChartCreateFromFile(const char* path, HWND parent, RECT* clientRect, int controlId) {
    std::map<int, PropertyValue> loaded;
    if (!LoadChartFile(path, loaded))
        return nullptr;
    return CreateChartWindow(clientRect, parent, controlId, &loaded);
}

int ChartCustomizeDialog(HWND) {
    return 0;
}
int ChartExportDialog(HWND) {
    return 0;
}
int ChartMaximize(HWND) {
    return 0;
}

// Printing: the chart goes to a PDF, which the system's spooler prints when there is one.
namespace {

bool RunSpooler(const std::string& pdf) {
    for (const char* spooler : {"lp", "lpr"}) {
        const char* argv[] = {spooler, pdf.c_str(), nullptr};
        pid_t pid = 0;
        if (posix_spawnp(&pid, spooler, nullptr, nullptr, const_cast<char* const*>(argv),
                         environ) != 0)
            continue;
        int status = 0;
        if (waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0)
            return true;
    }
    return false;
}

} // namespace

int ChartPrint(HWND chart, int, int) {
    ChartEngine* engine = ChartEngineOf(chart);
    std::string directory;
    if (!engine || !GetTempDir(directory))
        return 0;
    static int printCount = 0;
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    const std::string path = directory + "chart-print-" + std::to_string(getpid()) + "-" +
                             std::to_string(++printCount) + ".pdf";
    auto canvas = Canvas::CreatePdf(path.c_str(), engine->Width(), engine->Height());
    if (!canvas)
        return 0;
    engine->RenderTo(*canvas);
    bool ok = false;
    canvas->Finish(&ok);
    if (!ok)
        return 0;
    g_lastPrintFile = path;
    RunSpooler(path);
    return 1;
}
