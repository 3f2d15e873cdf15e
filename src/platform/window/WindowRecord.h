#pragma once

// The window manager's own record of a window, and the table that maps handles to records.
// Internal to the platform library: code above it holds handles and CWnd objects only.

#include "platform/base/Rect.h"
#include "platform/window/WindowApi.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class CWnd;
class Surface;

namespace wm {

struct ScrollBarState {
    SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 0, 0, 0, 0};
    bool disabled = false;
    bool tracking = false; // the thumb is being dragged: nTrackPos is live
};

struct WindowRecord {
    HWND handle = nullptr;
    std::string className;
    UINT classStyle = 0;
    HCURSOR classCursor = nullptr;
    HBRUSH classBrush = nullptr;
    WNDPROC proc = nullptr;

    CWnd* object = nullptr;          // the permanent CWnd bound to the window
    std::unique_ptr<CWnd> temporary; // a wrapper handed out by CWnd::FromHandle
    HWND parent = nullptr;           // children only
    HWND owner = nullptr;            // top-level windows only
    std::vector<HWND> children;      // z-order, topmost first

    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0;
    LONG_PTR userData = 0;
    CRect rect;            // parent's client coordinates for a child, screen coordinates otherwise
    CSize announcedClient; // the client size that the last WM_SIZE told of
    std::string text;
    HFONT font = nullptr;
    HMENU menu = nullptr; // the menu bar of a top-level window
    HICON bigIcon = nullptr;
    HICON smallIcon = nullptr;

    CRect update; // client coordinates; empty when nothing is invalid
    bool eraseOnPaint = false;
    bool frameDirty = true;
    bool redraw = true; // WM_SETREDRAW
    bool inPaint = false;

    // What the window's WM_NCCALCSIZE took from (or gave back to) each side of the client area
    // beyond the frame that the default procedure reserves.
    CRect clientAdjust;

    ScrollBarState hscroll;
    ScrollBarState vscroll;
    std::map<std::string, HANDLE> props;

    bool destroying = false;
    bool created = false; // WM_NCCREATE has been answered
};

// The record of a live window, or null for a handle that is not (or no longer) a window.
WindowRecord* Find(HWND hwnd);
WindowRecord* NewRecord();
void DeleteRecord(HWND hwnd);
// Top-level windows, topmost first.
std::vector<HWND>& TopLevelWindows();
bool IsTopLevel(const WindowRecord& w);
// Brings a top-level window to the top with the windows it owns above it (WindowPosition.cpp).
void BringTopLevelToTop(HWND hwnd);

// Geometry helpers shared by the window manager's files.
struct FrameMetrics {
    int left = 0, top = 0, right = 0, bottom = 0; // border, edge and caption
    int caption = 0;                              // height of the caption within `top`
    int menuBar = 0;                              // height of the menu bar within `top`
    int border = 0;                               // the outer frame, inside which the caption sits
    bool vscroll = false, hscroll = false;
};
FrameMetrics GetFrameMetrics(const WindowRecord& w);
// The client area in window coordinates (0, 0 at the window's top-left corner): the frame's
// default, as the window's WM_NCCALCSIZE last changed it.
CRect ClientInWindow(const WindowRecord& w);
// The client area that the default procedure leaves inside the frame, in window coordinates.
CRect DefaultClientInWindow(const WindowRecord& w);
// Asks the window for its client area (WM_NCCALCSIZE); after a size or frame change.
void RecalcClient(HWND hwnd);
// The window's top-left corner and its client's top-left corner in screen coordinates.
CPoint WindowOrigin(const WindowRecord& w);
CPoint ClientOrigin(const WindowRecord& w);
// The top-level window whose surface this window draws on.
WindowRecord* TopLevelOf(WindowRecord* w);
// True when the window and all its ancestors are visible.
bool IsShowing(const WindowRecord& w);
// What of the window (client area, or the whole window) can be seen, in its top-level
// window's surface coordinates; empty when nothing can.
CRect VisibleClientInSurface(const WindowRecord& w);
CRect VisibleWindowInSurface(const WindowRecord& w);
CPoint SurfaceOrigin(const WindowRecord& w, bool client);

// Messages helpers.
LRESULT Send(WindowRecord* w, UINT message, WPARAM wParam, LPARAM lParam);
void RemoveMessagesFor(HWND hwnd);
void KillTimersOf(HWND hwnd);
// Repaints the frame on the next paint of the window.
void InvalidateFrame(WindowRecord& w);
void InvalidateClient(WindowRecord& w, const CRect& clientRect, bool erase);
// The first showing window (parent before children) that waits for WM_PAINT, or null.
HWND NextWindowToPaint();
// Input from the host waits behind posted messages, as the framework's input queue does.
void PostInput(const MSG& msg);
// Mouse input waits with no window (the point in `pt`; the keys held in `wParam`, and the click
// count in `lParam`, or for the wheel its message's own parameters) until its turn comes; then
// this posts what it means for the windows as they are by then.
void RouteQueuedMouse(const MSG& raw);
// Binds the CWnd whose Create is running, if any, to a window being created, before the
// window's first message.
void HookCreatingWindow(WindowRecord& w);
// Unbinds the window's objects (permanent and temporary) after its last message.
void ReleaseObjects(WindowRecord& w);
// Called when a window goes: focus, capture, tracking and activation forget it.
void ForgetWindowState(HWND hwnd);
// The handles of a window and all its descendants, parent first.
std::vector<HWND> SubtreeOf(HWND hwnd);

} // namespace wm
