#pragma once

// What the grid tests share: small cell classes of their own, and a parent window that
// records the grid's notifications and answers its display requests.

#include "grid/GridCtrl.h"

#include <functional>
#include <vector>

class CNumberCell : public CGridCell {
    DECLARE_DYNCREATE(CNumberCell)
};

class CPlainObject : public CObject {
    DECLARE_DYNCREATE(CPlainObject)
};

struct Notification {
    UINT code;
    UINT_PTR id;
    int row;
    int col;
};

class CRecordingParent : public CWnd {
public:
    CRecordingParent();
    ~CRecordingParent() override;

    std::vector<Notification> notifications;
    std::vector<Notification> Of(int code) const;
    // Answers for codes that the grid sends as cell notifications.
    std::function<LRESULT(const Notification&)> answer;
    // Fills the item of a display request.
    std::function<void(GV_ITEM&)> display;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

// A cell whose construction fails once the budget of cells is spent, as when memory runs out.
class CScarceCell : public CGridCell {
    DECLARE_DYNCREATE(CScarceCell)
public:
    CScarceCell();
    static int budget;
};
