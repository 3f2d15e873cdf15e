#include "GridTestSupport.h"

#include <new>

IMPLEMENT_DYNCREATE(CNumberCell, CGridCell)
IMPLEMENT_DYNCREATE(CPlainObject, CObject)

CRecordingParent::CRecordingParent() {
    CreateEx(0, AfxRegisterWndClass(0), "grid host", WS_OVERLAPPEDWINDOW, CRect(0, 0, 640, 480),
             nullptr, 0);
}

CRecordingParent::~CRecordingParent() {
    DestroyWindow();
}

std::vector<Notification> CRecordingParent::Of(int code) const {
    std::vector<Notification> found;
    for (const Notification& n : notifications) {
        if (n.code == UINT(code)) {
            found.push_back(n);
        }
    }
    return found;
}

BOOL CRecordingParent::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header->code == UINT(GV_NOTIFY_GETDISPINFO)) {
        auto* request = reinterpret_cast<GV_DISPINFO*>(lParam);
        notifications.push_back(
            {header->code, header->idFrom, request->item.row, request->item.col});
        if (display) {
            display(request->item);
        }
        *result = 0;
        return TRUE;
    }
    auto* record = reinterpret_cast<GV_NMGRID*>(lParam);
    const Notification n{header->code, header->idFrom, record->iRow, record->iColumn};
    notifications.push_back(n);
    *result = answer ? answer(n) : 0;
    return TRUE;
}

IMPLEMENT_DYNCREATE(CScarceCell, CGridCell)

int CScarceCell::budget = 0;

CScarceCell::CScarceCell() {
    if (budget-- <= 0) {
        throw std::bad_alloc();
    }
}
