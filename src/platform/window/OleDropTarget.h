#pragma once

// COleDropTarget: a window's part in drag and drop. A target registers for its window; the
// drag loop, and a host that receives text dropped by another program, find the registered
// target under the mouse and call its handlers with the point in the window's client
// coordinates. The base handlers refuse every drop.

#include "platform/base/Export.h"
#include "platform/base/Rect.h"
#include "platform/window/OleDataObject.h"

class COleDataObject;
class CWnd;

class ORVA_API COleDropTarget {
public:
    COleDropTarget() = default;
    virtual ~COleDropTarget(); // revokes
    COleDropTarget(const COleDropTarget&) = delete;
    COleDropTarget& operator=(const COleDropTarget&) = delete;

    // Makes this the drop target of the window; false when the window has one already.
    BOOL Register(CWnd* wnd);
    virtual void Revoke();

    virtual DROPEFFECT OnDragEnter(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                                   CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                                  CPoint point);
    virtual void OnDragLeave(CWnd* wnd);
    virtual BOOL OnDrop(CWnd* wnd, COleDataObject* dataObject, DROPEFFECT dropEffect, CPoint point);
    virtual DROPEFFECT OnDragScroll(CWnd* wnd, DWORD keyState, CPoint point);

    // The target registered for the window or the nearest of its ancestors that has one.
    static COleDropTarget* FindAt(HWND window, HWND* registeredWindow);

private:
    HWND m_hWnd = nullptr;
};

// The key state of a drag, as drop handlers read it: MK_CONTROL and MK_SHIFT when held, and
// MK_LBUTTON while the button is down.
ORVA_API DWORD DragKeyState();

// Text dropped on a display by another program, at a screen point: the registered target
// under the point takes it as a copy. Answers whether a target accepted it.
ORVA_API bool DeliverDroppedText(POINT screen, const char* text);
