#pragma once

// CDlgAxisTitles: the small modal dialog in which the user edits a plot's X and Y axis titles.
// The two fields and the two members are kept in step by data exchange: the caller fills the
// members, and after OK they hold what the user typed.

#include "controls/DialogORVA.h"

class ORVA_API CDlgAxisTitles : public CDialogORVA {
public:
    static constexpr UINT IDD = 202;
    static constexpr int IDC_X_TITLE = 17295;
    static constexpr int IDC_Y_TITLE = 17296;

    explicit CDlgAxisTitles(CWnd* parent = nullptr);

    CString m_xTitle;
    CString m_yTitle;

protected:
    void DoDataExchange(CDataExchange* dx) override;
};
