#pragma once

// CWnd: an object bound to a window handle. It dispatches each message the window receives to
// a virtual On... handler; a handler that the derived class does not override passes the
// message on with Default(). Windows made by a CWnd (Create) or attached to one
// (SubclassWindow) map back to their object through FromHandlePermanent.

#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/window/WindowApi.h"

class CDC;
class CDataExchange;
class CFont;
class CScrollBar;

class ORVA_API CWnd : public CObject {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    ~CWnd() override; // destroys the window if it still exists
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND m_hWnd = nullptr;
    // Places in the z-order for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return GetSafeHwnd(); }

    // The object bound to a window, or a temporary one that wraps the handle (for a handle that
    // no CWnd created); null for a null handle.
    static CWnd* FromHandle(HWND hwnd);
    // The object bound to a window, or null: temporary wrappers are not returned.
    static CWnd* FromHandlePermanent(HWND hwnd);
    BOOL Attach(HWND hwnd);
    HWND Detach();
    // Binds this object to an existing window and routes its messages through WindowProc;
    // Default() then reaches the window's own procedure.
    BOOL SubclassWindow(HWND hwnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();

    // Creation. A null class name takes the framework's plain window class.
    virtual BOOL Create(LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect,
                        CWnd* parent, UINT id, LPVOID createParam = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, LPVOID createParam = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                  int width, int height, HWND parent, HMENU idOrMenu, LPVOID createParam = nullptr);
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    // Called once the object is bound to its window, whether it created the window or
    // subclassed an existing one, before any message of the window reaches the object.
    virtual void PreSubclassWindow();

    // The tree.
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* newParent);
    CWnd* GetOwner() const;
    void SetOwner(CWnd* owner);
    CWnd* GetTopLevelParent() const;
    CWnd* GetWindow(UINT relation) const;
    CWnd* GetDlgItem(int id) const;
    void GetDlgItem(int id, HWND* hwnd) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int id);
    BOOL IsChild(const CWnd* wnd) const;
    BOOL IsWindow() const { return ::IsWindow(m_hWnd); }
    CWnd* ChildWindowFromPoint(POINT point) const;
    static CWnd* WindowFromPoint(POINT point);
    static CWnd* GetDesktopWindow();

    // Styles.
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT swpFlags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags = 0);

    // State.
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;

    // Geometry.
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags);
    void GetWindowRect(LPRECT rect) const;
    void GetClientRect(LPRECT rect) const;
    void ClientToScreen(LPPOINT point) const;
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const;
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;

    // Text and font.
    void SetWindowText(LPCSTR text);
    int GetWindowText(LPSTR buffer, int maxCount) const;
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;
    void SetDlgItemText(int id, LPCSTR text);
    int GetDlgItemText(int id, CString& text) const;

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL deep = TRUE) const;
    static const MSG* GetCurrentMessage();

    // Focus, capture, activation.
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    CWnd* SetActiveWindow();
    static CWnd* GetActiveWindow();
    BOOL SetForegroundWindow();

    // Timers.
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc = nullptr);
    BOOL KillTimer(UINT_PTR id);

    // Scroll bars.
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL) const;
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE);
    int GetScrollPos(int bar) const;
    void SetScrollRange(int bar, int minPos, int maxPos, BOOL redraw = TRUE);
    void GetScrollRange(int bar, LPINT minPos, LPINT maxPos) const;
    int GetScrollLimit(int bar) const;
    void ShowScrollBar(UINT bar, BOOL show = TRUE);
    void EnableScrollBarCtrl(int bar, BOOL enable = TRUE);
    BOOL EnableScrollBar(int bar, UINT arrows = ESB_ENABLE_BOTH);
    virtual CScrollBar* GetScrollBarCtrl(int bar) const;
    void ScrollWindow(int dx, int dy, LPCRECT scrollRect = nullptr, LPCRECT clipRect = nullptr);

    // Painting.
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect);
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT updateRect = nullptr, HRGN updateRegion = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL redraw = TRUE);
    CDC* BeginPaint(LPPAINTSTRUCT paint);
    void EndPaint(LPPAINTSTRUCT paint);
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* dc);

    // Properties, menu and the rest of the framework's conveniences.
    BOOL SetProp(LPCSTR name, HANDLE data);
    HANDLE GetProp(LPCSTR name) const;
    HANDLE RemoveProp(LPCSTR name);
    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK);
    void CenterWindow(CWnd* alternateOwner = nullptr);
    void BringWindowToTop();
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const;

    // The controls of a dialog (or any parent) by id.
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    void CheckRadioButton(int firstId, int lastId, int checkId);
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const;
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE);

    // Data exchange between the controls and the members that DoDataExchange names: TRUE
    // reads and validates the controls, FALSE shows the members. Answers FALSE when a control
    // held a value that failed validation; the focus is then on that control.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    virtual void DoDataExchange(CDataExchange* dx);

    // Message processing. WindowProc dispatches to OnWndMsg, which calls the On... handlers;
    // DefWindowProc is where Default() leads.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL PreTranslateMessage(MSG* msg);
    // Offers a message to PreTranslateMessage of its window and then of each parent up to the
    // top-level window; answers TRUE when one of them took it.
    static BOOL WalkPreTranslateTree(MSG* msg);
    // Called after the last message (WM_NCDESTROY); a self-owning window deletes itself here.
    virtual void PostNcDestroy();
    // Offered to a child first when its parent receives its WM_COMMAND or WM_NOTIFY; answering
    // TRUE keeps the message from the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    LRESULT Default();

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);

    virtual int OnCreate(LPCREATESTRUCT createStruct);
    virtual BOOL OnNcCreate(LPCREATESTRUCT createStruct);
    virtual void OnDestroy();
    virtual void OnNcDestroy();
    virtual void OnClose();
    virtual void OnSize(UINT type, int cx, int cy);
    virtual void OnSizing(UINT side, LPRECT rect);
    virtual void OnMove(int x, int y);
    virtual void OnGetMinMaxInfo(MINMAXINFO* info);
    virtual void OnShowWindow(BOOL show, UINT status);
    virtual void OnEnable(BOOL enable);
    virtual void OnPaint();
    virtual void OnNcPaint();
    virtual BOOL OnEraseBkgnd(CDC* dc);
    virtual void OnSetFocus(CWnd* oldWnd);
    virtual void OnKillFocus(CWnd* newWnd);
    virtual void OnKeyDown(UINT ch, UINT repeat, UINT flags);
    virtual void OnKeyUp(UINT ch, UINT repeat, UINT flags);
    virtual void OnChar(UINT ch, UINT repeat, UINT flags);
    virtual void OnSysKeyDown(UINT ch, UINT repeat, UINT flags);
    virtual void OnSysKeyUp(UINT ch, UINT repeat, UINT flags);
    virtual void OnSysChar(UINT ch, UINT repeat, UINT flags);
    virtual UINT OnGetDlgCode();
    virtual void OnMouseMove(UINT flags, CPoint point);
    virtual void OnLButtonDown(UINT flags, CPoint point);
    virtual void OnLButtonUp(UINT flags, CPoint point);
    virtual void OnLButtonDblClk(UINT flags, CPoint point);
    virtual void OnRButtonDown(UINT flags, CPoint point);
    virtual void OnRButtonUp(UINT flags, CPoint point);
    virtual void OnRButtonDblClk(UINT flags, CPoint point);
    virtual void OnMButtonDown(UINT flags, CPoint point);
    virtual void OnMButtonUp(UINT flags, CPoint point);
    virtual BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    virtual int OnMouseActivate(CWnd* topParent, UINT hitTest, UINT message);
    virtual void OnHScroll(UINT code, UINT pos, CScrollBar* scrollBar);
    virtual void OnVScroll(UINT code, UINT pos, CScrollBar* scrollBar);
    virtual void OnTimer(UINT_PTR id);
    virtual void OnCaptureChanged(CWnd* wnd);
    virtual BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    virtual void OnContextMenu(CWnd* wnd, CPoint screenPoint);
    virtual void OnSysColorChange();
    virtual void OnSettingChange(UINT flags, LPCTSTR section);
    virtual void OnActivate(UINT state, CWnd* other, BOOL minimized);
    virtual void OnSetFont(HFONT font, BOOL redraw);
    virtual HFONT OnGetFont();
    virtual void OnNcCalcSize(BOOL calcValidRects, void* params);
    virtual UINT OnNcHitTest(CPoint screenPoint);
    virtual HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor);

private:
    explicit CWnd(HWND placement) : m_hWnd(placement) {}

    friend LRESULT AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    friend struct CWndAccess;     // the window manager's side of binding objects to windows
    WNDPROC m_pfnSuper = nullptr; // the window's own procedure, reached by Default()
    bool m_temporary = false;     // a wrapper made by FromHandle, owned by the window layer
    CDC* m_paintDC = nullptr;
};

// The framework's procedure of every window bound to a CWnd.
ORVA_API LRESULT AfxWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

// Registers a window class, answering TRUE when it exists already with the same name.
ORVA_API BOOL AfxRegisterClass(WNDCLASS* wndClass);
// A class name for the given class style, cursor and background, registered on first use.
ORVA_API LPCSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr,
                                    HBRUSH background = nullptr, HICON icon = nullptr);

// The application's main window: the owner of message boxes and the window that plot
// notifications go to.
ORVA_API CWnd* AfxGetMainWnd();
ORVA_API void AfxSetMainWnd(CWnd* wnd);

// The framework's common control constants for WM_CTLCOLOR.
constexpr UINT CTLCOLOR_MSGBOX = 0;
constexpr UINT CTLCOLOR_EDIT = 1;
constexpr UINT CTLCOLOR_LISTBOX = 2;
constexpr UINT CTLCOLOR_BTN = 3;
constexpr UINT CTLCOLOR_DLG = 4;
constexpr UINT CTLCOLOR_SCROLLBAR = 5;
constexpr UINT CTLCOLOR_STATIC = 6;

// The window of an object that may be null: the framework's habit of calling GetSafeHwnd
// through a null pointer is undefined behaviour in C++, so code that may hold null asks here.
inline HWND SafeHwnd(const CWnd* wnd) { return wnd != nullptr ? wnd->m_hWnd : nullptr; }
