// The chart operations over the chart's properties: reading and writing them, creating and
// destroying charts, layout and redraw, coordinates, dates, and the chart file.

#include "chart/ChartApi.h"

#include "chart/ChartDate.h"
#include "chart/ChartFile.h"
#include "chart/ChartWindow.h"
#include "platform/window/WindowApi.h"

#include <cmath>
#include <map>

namespace {

// A write that went through may change what the chart shows: its layout and image are made
// again when the window is next painted, which the write asks for. Nothing is drawn here, so a
// chart fed value by value is drawn once; and only the first write after the image was last
// brought up to date asks for the paint, so feeding a million values costs one request.
int ShowChange(HWND chart, ChartWindowState& state, int result) {
    if (result) {
        state.engine->Touch();
        if (!state.imageStale) {
            state.imageStale = true;
            InvalidateRect(chart, nullptr, FALSE);
        }
    }
    return result;
}

} // namespace

ChartEngine* ChartEngineOf(HWND chart) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? state->engine.get() : nullptr;
}

int ChartSetArray(HWND chart, int property, const void* values, int count) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? ShowChange(chart, *state, state->engine->SetArray(property, values, count)) : 0;
}

int ChartGetArray(HWND chart, int property, void* out) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->GetArray(property, out) : -1;
}

int ChartSetElement(HWND chart, int property, int index, const void* value) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? ShowChange(chart, *state, state->engine->SetElement(property, index, value)) : 0;
}

int ChartGetElement(HWND chart, int property, int index, void* out) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->GetElement(property, index, out) : 0;
}

int ChartSetInt(HWND chart, int property, int value) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? ShowChange(chart, *state, state->engine->Properties().SetInt(property, value))
                 : 0;
}

int ChartGetInt(HWND chart, int property) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetInt(property) : 0;
}

int ChartSetString(HWND chart, int property, const char* text) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? ShowChange(chart, *state, state->engine->Properties().SetString(property, text))
                 : 0;
}

int ChartGetString(HWND chart, int property, char* buffer) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine ? engine->Properties().GetString(property, buffer) : 0;
}

int ChartSetCell(HWND chart, int property, int curve, int point, const double* value) {
    ChartWindowState* state = ChartStateOf(chart);
    return state ? ShowChange(chart, *state, state->engine->SetCell(property, curve, point, value))
                 : 0;
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
    ChartWindowState* state = ChartStateOf(chart);
    if (!state)
        return 0;
    state->imageStale = true;
    HandOutImage(*state);
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

int ChartStore(HWND chart, const char* path) {
    ChartEngine* engine = ChartEngineOf(chart);
    return engine && StoreChartFile(engine->Properties(), path) ? 1 : 0;
}

int ChartLoad(HWND chart, const char* path) {
    ChartWindowState* state = ChartStateOf(chart);
    std::map<int, PropertyValue> loaded;
    if (!state || !LoadChartFile(path, loaded))
        return 0;
    state->engine->Properties().Replace(std::move(loaded));
    state->engine->Unzoom();
    return ShowChange(chart, *state, 1);
}

HWND ChartCreateFromFile(const char* path, HWND parent, RECT* clientRect, int controlId) {
    std::map<int, PropertyValue> loaded;
    if (!LoadChartFile(path, loaded))
        return nullptr;
    return CreateChartWindow(clientRect, parent, controlId, &loaded);
}
