#pragma once

// CComboEdit: the edit field of an in-place drop-down list, subclassed onto the combo box's
// edit child. It hands the keys that end an edit to its CInPlaceList and ends the edit when the
// focus leaves it, since in a drop-down the combo box itself never holds the focus.

#include "platform/widgets/Edit.h"

class ORVA_API CComboEdit : public CEdit {
    DECLARE_DYNAMIC(CComboEdit)
public:
    CComboEdit() = default;

    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    void OnKeyDown(UINT ch, UINT repeat, UINT flags) override;
    void OnKeyUp(UINT ch, UINT repeat, UINT flags) override;
    void OnKillFocus(CWnd* newWnd) override;
};
