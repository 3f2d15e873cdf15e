// The mouse gesture state and the hooks that a click on a heading calls.

#include "grid/GridCtrl.h"

int CGridCtrl::SetMouseMode(int mode) {
    const int previous = m_mouseMode;
    m_mouseMode = mode;
    return previous;
}

void CGridCtrl::OnFixedColumnClick(CCellID& cell) {}

void CGridCtrl::OnFixedRowClick(CCellID& cell) {}
