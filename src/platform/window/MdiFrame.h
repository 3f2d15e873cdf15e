#pragma once

// Frames: CFrameWnd, a top-level window with a menu bar; CMDIFrameWnd, a frame whose client
// area is one "MDIClient" window holding document windows; and CMDIChildWnd, such a document
// window. The MDI client keeps which child is active and whether the children are maximised;
// the frame's MDI... calls are messages to it, so an application may send them too.

#include "platform/window/Menu.h"
#include "platform/window/Wnd.h"

// What WM_MDICREATE creates.
struct MDICREATESTRUCT {
    LPCSTR szClass;
    LPCSTR szTitle;
    HANDLE hOwner;
    int x;
    int y;
    int cx;
    int cy;
    DWORD style;
    LPARAM lParam;
};

// The MDI client's creation parameter.
struct CLIENTCREATESTRUCT {
    HANDLE hWindowMenu;
    UINT idFirstChild;
};

// The default procedures of a frame and of its document windows.
ORVA_API LRESULT DefFrameProc(HWND frame, HWND mdiClient, UINT message, WPARAM wParam,
                              LPARAM lParam);
ORVA_API LRESULT DefMDIChildProc(HWND child, UINT message, WPARAM wParam, LPARAM lParam);
// The document windows' keys: Ctrl+F4 closes the active one, Ctrl+F6 (Ctrl+Shift+F6) goes on
// to the next (the previous). Answers whether the message was one of them.
ORVA_API BOOL TranslateMDISysAccel(HWND mdiClient, MSG* msg);

class ORVA_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    // CW_USEDEFAULT position and size.
    static const CRect rectDefault;

    // A top-level frame; `menuName` names a menu resource (MAKEINTRESOURCE) for its menu bar.
    BOOL Create(LPCSTR className, LPCSTR title, DWORD style = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCSTR menuName = nullptr,
                DWORD exStyle = 0);
    // The active document window of a multiple-document frame; this frame otherwise.
    virtual CFrameWnd* GetActiveFrame();
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    void DrawMenuBar();

protected:
    using CWnd::Create;
};

class CMDIChildWnd;

class ORVA_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    HWND m_hWndMDIClient = nullptr;

    CFrameWnd* GetActiveFrame() override;
    // The active document window, and whether it is maximised; null when there is none.
    CMDIChildWnd* MDIGetActive(BOOL* maximized = nullptr) const;
    void MDIActivate(CWnd* child);
    void MDIMaximize(CWnd* child);
    void MDIRestore(CWnd* child);
    void MDINext();
    void MDIPrev();
    void MDICascade();
    void MDITile();
    // Gives the document windows' keys their meaning (TranslateMDISysAccel).
    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    int OnCreate(LPCREATESTRUCT cs) override;
    // Makes the MDI client; called from OnCreate.
    virtual BOOL CreateClient(LPCREATESTRUCT cs);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class ORVA_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    // A document window of `parent` (the application's main window when null), at the
    // cascade's next place for a default rectangle; it becomes the active one.
    virtual BOOL Create(LPCSTR className, LPCSTR title,
                        DWORD style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* parent = nullptr);
    CMDIFrameWnd* GetMDIFrame() const;
    void MDIActivate();
    void MDIMaximize();
    void MDIRestore();
    void MDIDestroy();

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // A document window owns itself: it deletes its object when its window goes.
    void PostNcDestroy() override;
};
