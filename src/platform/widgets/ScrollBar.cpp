// CScrollBar's creation.

#include "platform/widgets/ScrollBar.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("ScrollBar", nullptr, style, rect, parent, id);
}
