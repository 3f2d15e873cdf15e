// The chart's outputs: the picture (SVG) as a metafile handle, on the clipboard and in a file,
// the bitmap (PNG or BMP) on the clipboard and in a file, and the PDF document.

#include "chart/ChartOutputs.h"

#include "chart/ChartApi.h"
#include "chart/ChartEngine.h"
#include "platform/gdi/canvas/Canvas.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <memory>

namespace {

struct Metafile {
    std::string svg;
};

bool HasExtension(const std::string& path, const char* extension) {
    const std::string ext = extension;
    if (path.size() < ext.size())
        return false;
    std::string tail = path.substr(path.size() - ext.size());
    std::transform(tail.begin(), tail.end(), tail.begin(), ::tolower);
    return tail == ext;
}

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

bool ChartOutputSize(const int* size, int& width, int& height) {
    if (!size || size[0] <= 0 || size[1] <= 0 || size[0] > 16384 || size[1] > 16384)
        return false;
    width = size[0];
    height = size[1];
    return true;
}

std::string ChartSvgPicture(ChartEngine& engine, int width, int height) {
    auto canvas = Canvas::CreateSvg(width, height);
    if (!canvas)
        return {};
    engine.RenderTo(*canvas);
    bool ok = false;
    std::string svg = canvas->Finish(&ok);
    return ok ? svg : std::string();
}

bool WriteChartSvg(ChartEngine& engine, int width, int height, const char* path) {
    const std::string svg = ChartSvgPicture(engine, width, height);
    if (svg.empty() || !path)
        return false;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(svg.data(), std::streamsize(svg.size()));
    return bool(out.flush());
}

bool WriteChartPdf(ChartEngine& engine, int width, int height, const char* path) {
    auto canvas = path ? Canvas::CreatePdf(path, width, height) : nullptr;
    if (!canvas)
        return false;
    engine.RenderTo(*canvas);
    bool ok = false;
    canvas->Finish(&ok);
    return ok;
}

HMETAFILE ChartGetMetafile(HWND chart) {
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return nullptr;
    auto metafile = std::make_unique<Metafile>();
    metafile->svg = ChartSvgPicture(*engine, engine->Width(), engine->Height());
    return metafile->svg.empty() ? nullptr : reinterpret_cast<HMETAFILE>(metafile.release());
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

int ChartCopyMetaToClipboard(HWND chart, int* size) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !ChartOutputSize(size, width, height))
        return 0;
    const std::string svg = ChartSvgPicture(*engine, width, height);
    return !svg.empty() && PutOnClipboard(chart, "image/svg+xml", svg) ? 1 : 0;
}

int ChartCopyBitmapToClipboard(HWND chart, int* size) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !ChartOutputSize(size, width, height))
        return 0;
    auto canvas = Canvas::CreateImage(width, height);
    engine->RenderTo(*canvas);
    const std::string png = canvas->EncodePng();
    return !png.empty() && PutOnClipboard(chart, "image/png", png) ? 1 : 0;
}

int ChartCopyBitmapToFile(HWND chart, int* size, const char* path) {
    ChartEngine* engine = ChartEngineOf(chart);
    int width = 0, height = 0;
    if (!engine || !path || !ChartOutputSize(size, width, height))
        return 0;
    const bool png = HasExtension(path, ".png");
    if (!png && !HasExtension(path, ".bmp"))
        return 0;
    auto canvas = Canvas::CreateImage(width, height);
    engine->RenderTo(*canvas);
    return (png ? canvas->SavePng(path) : canvas->SaveBmp(path)) ? 1 : 0;
}
