// The handle-level calls of the system, for code that holds an HDC rather than a CDC.

#include "platform/gdi/DC.h"

namespace {

template <class Call> auto WithDC(HDC dc, Call call, decltype(call(nullptr)) failed) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? call(cdc) : failed;
}

} // namespace

BOOL GetTextExtentPoint32(HDC dc, LPCTSTR text, int count, SIZE* size) {
    if (size == nullptr || text == nullptr || count < 0)
        return FALSE;
    return WithDC(
        dc,
        [&](CDC* c) {
            *size = c->GetTextExtent(text, count);
            return TRUE;
        },
        FALSE);
}

BOOL GetTextMetrics(HDC dc, TEXTMETRIC* metrics) {
    return WithDC(
        dc, [&](CDC* c) { return c->GetTextMetrics(metrics); }, FALSE);
}

BOOL TextOut(HDC dc, int x, int y, LPCTSTR text, int count) {
    return WithDC(
        dc, [&](CDC* c) { return c->TextOut(x, y, text, count); }, FALSE);
}

BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD rop) {
    return WithDC(
        dc, [&](CDC* c) { return c->PatBlt(x, y, width, height, rop); }, FALSE);
}

BOOL InvertRect(HDC dc, const RECT* rect) {
    return WithDC(
        dc,
        [&](CDC* c) {
            c->InvertRect(rect);
            return BOOL(rect != nullptr);
        },
        FALSE);
}

BOOL DrawFocusRect(HDC dc, const RECT* rect) {
    return WithDC(
        dc,
        [&](CDC* c) {
            c->DrawFocusRect(rect);
            return BOOL(rect != nullptr);
        },
        FALSE);
}

BOOL DrawEdge(HDC dc, LPRECT rect, UINT edge, UINT flags) {
    return WithDC(
        dc, [&](CDC* c) { return c->DrawEdge(rect, edge, flags); }, FALSE);
}

BOOL DrawFrameControl(HDC dc, LPRECT rect, UINT type, UINT state) {
    return WithDC(
        dc, [&](CDC* c) { return c->DrawFrameControl(rect, type, state); }, FALSE);
}

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous) {
    return WithDC(
        dc,
        [&](CDC* c) {
            CPoint old = c->MoveTo(x, y);
            if (previous != nullptr)
                *previous = old;
            return TRUE;
        },
        FALSE);
}

BOOL LineTo(HDC dc, int x, int y) {
    return WithDC(
        dc, [&](CDC* c) { return c->LineTo(x, y); }, FALSE);
}

int SetROP2(HDC dc, int mode) {
    return WithDC(
        dc, [&](CDC* c) { return c->SetROP2(mode); }, 0);
}

int GetClipBox(HDC dc, LPRECT rect) {
    return WithDC(
        dc, [&](CDC* c) { return c->GetClipBox(rect); }, ERROR);
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
    return WithDC(
        dc, [&](CDC* c) { return c->IntersectClipRect(left, top, right, bottom); }, ERROR);
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom) {
    return WithDC(
        dc, [&](CDC* c) { return c->ExcludeClipRect(left, top, right, bottom); }, ERROR);
}

int SelectClipRgn(HDC dc, HRGN region) {
    return WithDC(
        dc,
        [&](CDC* c) {
            if (region == nullptr)
                return c->SelectClipRgn(nullptr);
            CRgn* wrapper = CRgn::FromHandle(region);
            return wrapper != nullptr ? c->SelectClipRgn(wrapper) : ERROR;
        },
        ERROR);
}
