#pragma once

// The window manager's handle-level calls, with the framework's names and semantics: window
// classes, creation and destruction, the tree, geometry, messages and the pump, focus, capture,
// key state, timers, scroll bars, invalidation and painting, and window properties. CWnd wraps
// these; code that holds only a handle calls them directly.

#include "platform/base/Export.h"
#include "platform/base/Messages.h"
#include "platform/base/Rect.h"
#include "platform/window/WindowStyles.h"

using LPINT = int*;
using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

struct WNDCLASS {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground; // a brush, or a system colour index plus one
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};
using WNDCLASSA = WNDCLASS;
using LPWNDCLASS = WNDCLASS*;

struct CREATESTRUCT {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
};
using LPCREATESTRUCT = CREATESTRUCT*;

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using LPMSG = MSG*;

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint; // client coordinates: the bounding rectangle of the update region
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};
using LPPAINTSTRUCT = PAINTSTRUCT*;

struct MINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};

struct WINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};

// WM_NCCALCSIZE with TRUE: rgrc[0] holds the window's new rectangle (in its parent's client
// coordinates) and takes back the client area's.
struct NCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos;
};

constexpr int CW_USEDEFAULT = int(0x80000000);

// PeekMessage removal flags.
constexpr UINT PM_NOREMOVE = 0x0000;
constexpr UINT PM_REMOVE = 0x0001;

// Classes.
ORVA_API BOOL RegisterClass(const WNDCLASS* wndClass);
ORVA_API BOOL UnregisterClass(LPCSTR className, HINSTANCE instance);
ORVA_API BOOL GetClassInfo(HINSTANCE instance, LPCSTR className, WNDCLASS* wndClass);
ORVA_API int GetClassName(HWND hwnd, LPSTR buffer, int maxCount);

// Creation and destruction.
ORVA_API HWND CreateWindowEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x,
                             int y, int width, int height, HWND parent, HMENU menuOrId,
                             HINSTANCE instance, LPVOID param);
inline HWND CreateWindow(LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                         int height, HWND parent, HMENU menuOrId, HINSTANCE instance,
                         LPVOID param) {
    return CreateWindowEx(0, className, windowName, style, x, y, width, height, parent, menuOrId,
                          instance, param);
}
ORVA_API BOOL DestroyWindow(HWND hwnd);
ORVA_API BOOL IsWindow(HWND hwnd);

// The tree.
ORVA_API HWND GetParent(HWND hwnd); // the parent of a child, the owner of a top-level window
ORVA_API HWND SetParent(HWND hwnd, HWND newParent);
constexpr UINT GA_PARENT = 1;
constexpr UINT GA_ROOT = 2;
constexpr UINT GA_ROOTOWNER = 3;
ORVA_API HWND GetAncestor(HWND hwnd, UINT flags);
ORVA_API HWND GetWindow(HWND hwnd, UINT relation);
// The top child of a window; with a null window, the topmost top-level window.
ORVA_API HWND GetTopWindow(HWND hwnd);
ORVA_API HWND GetDlgItem(HWND parent, int id);
ORVA_API int GetDlgCtrlID(HWND hwnd);
ORVA_API BOOL IsChild(HWND parent, HWND hwnd);
ORVA_API HWND GetDesktopWindow();

// Styles and window words.
ORVA_API LONG GetWindowLong(HWND hwnd, int index);
ORVA_API LONG SetWindowLong(HWND hwnd, int index, LONG value);
ORVA_API LONG_PTR GetWindowLongPtr(HWND hwnd, int index);
ORVA_API LONG_PTR SetWindowLongPtr(HWND hwnd, int index, LONG_PTR value);

// Visibility and enabling.
ORVA_API BOOL ShowWindow(HWND hwnd, int command);
ORVA_API BOOL IsWindowVisible(HWND hwnd);
ORVA_API BOOL EnableWindow(HWND hwnd, BOOL enable);
ORVA_API BOOL IsWindowEnabled(HWND hwnd);

// Geometry. Window rectangles are in screen coordinates; a child's position in MoveWindow and
// SetWindowPos is in its parent's client coordinates.
ORVA_API BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint);
ORVA_API BOOL SetWindowPos(HWND hwnd, HWND insertAfter, int x, int y, int width, int height,
                           UINT flags);
ORVA_API BOOL GetWindowRect(HWND hwnd, RECT* rect);
ORVA_API BOOL GetClientRect(HWND hwnd, RECT* rect);
ORVA_API BOOL ClientToScreen(HWND hwnd, POINT* point);
ORVA_API BOOL ScreenToClient(HWND hwnd, POINT* point);
ORVA_API int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
ORVA_API HWND WindowFromPoint(POINT screenPoint);
ORVA_API HWND ChildWindowFromPoint(HWND parent, POINT clientPoint);
ORVA_API HWND ChildWindowFromPointEx(HWND parent, POINT clientPoint, UINT flags);

// Text.
ORVA_API BOOL SetWindowText(HWND hwnd, LPCSTR text);
ORVA_API int GetWindowText(HWND hwnd, LPSTR buffer, int maxCount);
ORVA_API int GetWindowTextLength(HWND hwnd);
ORVA_API BOOL SetDlgItemText(HWND parent, int id, LPCSTR text);
ORVA_API UINT GetDlgItemText(HWND parent, int id, LPSTR buffer, int maxCount);

// Messages and the pump. Sent messages run at once; posted ones wait in the queue, which the
// pump drains in order, then paints, then delivers due timers.
ORVA_API LRESULT SendMessage(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
ORVA_API BOOL PostMessage(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
ORVA_API LRESULT SendDlgItemMessage(HWND parent, int id, UINT message, WPARAM wParam,
                                    LPARAM lParam);
ORVA_API void PostQuitMessage(int exitCode);
ORVA_API BOOL PeekMessage(MSG* msg, HWND hwnd, UINT filterMin, UINT filterMax, UINT removeFlags);
// Waits (on the host's clock) for a message; 0 for WM_QUIT. A headless run with nothing left
// that could ever arrive answers as if the application had quit rather than wait for ever.
ORVA_API BOOL GetMessage(MSG* msg, HWND hwnd, UINT filterMin, UINT filterMax);
ORVA_API BOOL TranslateMessage(const MSG* msg);
ORVA_API LRESULT DispatchMessage(const MSG* msg);
ORVA_API LRESULT CallWindowProc(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam,
                                LPARAM lParam);
ORVA_API LRESULT DefWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
ORVA_API DWORD GetMessagePos();
ORVA_API LONG GetMessageTime();
ORVA_API UINT RegisterWindowMessage(LPCSTR name);
// Dispatches everything that is due now (posted messages, paints, timers), each message passed
// through CWnd::PreTranslateMessage and TranslateMessage first; answers whether WM_QUIT came.
ORVA_API bool PumpMessages();

// Focus, capture and activation.
ORVA_API HWND SetFocus(HWND hwnd);
ORVA_API HWND GetFocus();
ORVA_API HWND SetCapture(HWND hwnd);
ORVA_API BOOL ReleaseCapture();
ORVA_API HWND GetCapture();
ORVA_API HWND SetActiveWindow(HWND hwnd);
ORVA_API HWND GetActiveWindow();
ORVA_API BOOL SetForegroundWindow(HWND hwnd);
ORVA_API HWND GetForegroundWindow();

// Keyboard and mouse state, from the input the host delivered.
ORVA_API short GetKeyState(int virtualKey);
ORVA_API short GetAsyncKeyState(int virtualKey);
ORVA_API BOOL GetCursorPos(POINT* point);
ORVA_API BOOL SetCursorPos(int x, int y);
ORVA_API HCURSOR LoadCursor(HINSTANCE instance, LPCSTR cursorName);
ORVA_API HCURSOR SetCursor(HCURSOR cursor);
ORVA_API HCURSOR GetCursor();
ORVA_API BOOL ClipCursor(const RECT* rect);
ORVA_API BOOL GetClipCursor(RECT* rect);
ORVA_API UINT GetDoubleClickTime();
ORVA_API DWORD GetTickCount();

// Timers.
ORVA_API UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc);
ORVA_API BOOL KillTimer(HWND hwnd, UINT_PTR id);

// Scroll bars of a window (SB_HORZ, SB_VERT).
ORVA_API int SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw);
ORVA_API BOOL GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info);
ORVA_API int SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw);
ORVA_API int GetScrollPos(HWND hwnd, int bar);
ORVA_API BOOL SetScrollRange(HWND hwnd, int bar, int minPos, int maxPos, BOOL redraw);
ORVA_API BOOL GetScrollRange(HWND hwnd, int bar, int* minPos, int* maxPos);
ORVA_API BOOL ShowScrollBar(HWND hwnd, int bar, BOOL show);
ORVA_API BOOL EnableScrollBar(HWND hwnd, int bar, UINT arrows);
ORVA_API BOOL ScrollWindow(HWND hwnd, int dx, int dy, const RECT* scrollRect, const RECT* clipRect);
// Moves the pixels of the client area (or of `scrollRect`, within `clipRect`) by dx, dy; what
// comes into view is invalidated with SW_INVALIDATE. Answers NULLREGION, SIMPLEREGION or ERROR;
// `updateRect` (and `updateRegion`) get the bounds of what came into view.
constexpr UINT SW_SCROLLCHILDREN = 0x0001;
constexpr UINT SW_INVALIDATE = 0x0002;
constexpr UINT SW_ERASE = 0x0004;
ORVA_API int ScrollWindowEx(HWND hwnd, int dx, int dy, const RECT* scrollRect, const RECT* clipRect,
                            HRGN updateRegion, RECT* updateRect, UINT flags);

// Invalidation and painting. The update region is kept as its bounding rectangle.
ORVA_API BOOL InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase);
ORVA_API BOOL ValidateRect(HWND hwnd, const RECT* rect);
ORVA_API BOOL GetUpdateRect(HWND hwnd, RECT* rect, BOOL erase);
ORVA_API BOOL UpdateWindow(HWND hwnd);
ORVA_API BOOL RedrawWindow(HWND hwnd, const RECT* updateRect, HRGN updateRegion, UINT flags);
ORVA_API HDC BeginPaint(HWND hwnd, PAINTSTRUCT* paint);
ORVA_API BOOL EndPaint(HWND hwnd, const PAINTSTRUCT* paint);
ORVA_API HDC GetDC(HWND hwnd);
ORVA_API HDC GetWindowDC(HWND hwnd);
ORVA_API int ReleaseDC(HWND hwnd, HDC dc);

// Window properties.
ORVA_API BOOL SetProp(HWND hwnd, LPCSTR name, HANDLE data);
ORVA_API HANDLE GetProp(HWND hwnd, LPCSTR name);
ORVA_API HANDLE RemoveProp(HWND hwnd, LPCSTR name);
inline BOOL SetPropA(HWND hwnd, LPCSTR name, HANDLE data) {
    return SetProp(hwnd, name, data);
}
inline HANDLE GetPropA(HWND hwnd, LPCSTR name) {
    return GetProp(hwnd, name);
}
inline HANDLE RemovePropA(HWND hwnd, LPCSTR name) {
    return RemoveProp(hwnd, name);
}
