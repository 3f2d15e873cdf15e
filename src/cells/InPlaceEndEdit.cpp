// The end-of-edit notice shared by the in-place editors.

#include "cells/InPlaceEndEdit.h"

#include "grid/GridNotify.h"
#include "platform/window/Wnd.h"

void SendEndEdit(CWnd& editor, int row, int col, const CString& text, UINT lastChar) {
    GV_DISPINFO info{};
    info.hdr.hwndFrom = editor.GetSafeHwnd();
    info.hdr.idFrom = UINT_PTR(editor.GetDlgCtrlID());
    info.hdr.code = UINT(GV_NOTIFY_ENDLABELEDIT);
    info.item.mask = GV_MASK_TEXT | GV_MASK_PARAM;
    info.item.row = row;
    info.item.col = col;
    info.item.text = text;
    info.item.param = LPARAM(lastChar);
    CWnd* receiver = editor.GetOwner() != nullptr ? editor.GetOwner() : editor.GetParent();
    if (receiver != nullptr) {
        receiver->SendMessage(WM_NOTIFY, info.hdr.idFrom, LPARAM(&info));
    }
}
