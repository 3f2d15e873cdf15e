#pragma once

// Data exchange between a dialog's controls and its members. A window's DoDataExchange calls
// the DDX_ functions below for each control; UpdateData runs it in one direction: saving
// (m_bSaveAndValidate TRUE) reads each control into its member, loading shows each member in
// its control. A text that is not a number fails a save: the user is told in a message box,
// the focus goes back to the control and UpdateData answers FALSE. A control missing from the
// dialog exchanges nothing.

#include "platform/base/String.h"
#include "platform/window/Wnd.h"

class ORVA_API CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

    // The control with this id (null when there is none), remembered as the one a failure
    // gives the focus back to.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    // Ends the exchange as failed: the focus goes to the last prepared control (an edit
    // selects its text) and UpdateData answers FALSE.
    [[noreturn]] void Fail();

private:
    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

ORVA_API void DDX_Text(CDataExchange* dx, int id, CString& value);
ORVA_API void DDX_Text(CDataExchange* dx, int id, int& value);
ORVA_API void DDX_Text(CDataExchange* dx, int id, UINT& value);
ORVA_API void DDX_Text(CDataExchange* dx, int id, long& value);
ORVA_API void DDX_Text(CDataExchange* dx, int id, double& value);
ORVA_API void DDX_Text(CDataExchange* dx, int id, float& value);
// Binds the control to `control` (subclassing it) the first time; later exchanges do nothing.
ORVA_API void DDX_Control(CDataExchange* dx, int id, CWnd& control);
// A check box's state: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
ORVA_API void DDX_Check(CDataExchange* dx, int id, int& value);
// A group of radio buttons that begins at `id` and runs up to the next WS_GROUP control: the
// index of the checked one, -1 for none.
ORVA_API void DDX_Radio(CDataExchange* dx, int id, int& value);
// A combo box's selected index (-1 for none), or its text.
ORVA_API void DDX_CBIndex(CDataExchange* dx, int id, int& index);
ORVA_API void DDX_CBString(CDataExchange* dx, int id, CString& value);
