#pragma once

// The dialog manager's handle-level calls, with the framework's names and semantics: the
// dialog window class and its default procedure, the keyboard interface (IsDialogMessage with
// Tab, arrows, Enter and Escape), dialog units, and the conveniences over a dialog's controls.
// CDialog and CWnd wrap these; code that holds only a handle calls them directly.

#include "platform/base/Export.h"
#include "platform/window/WindowApi.h"

// The class of every dialog window, registered on first use.
ORVA_API LPCSTR DialogClassName();
// What a dialog does with a message its own procedure passes on: the default push button
// (DM_GETDEFID, DM_SETDEFID), WM_NEXTDLGCTL, WM_CLOSE as Cancel, and keeping the focus on a
// control while the dialog is active.
ORVA_API LRESULT DefDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Gives a keyboard message meant for the dialog or one of its controls the dialog's meaning
// (each as far as the focus control's WM_GETDLGCODE leaves it to the dialog): Tab and Shift+Tab
// move through the WS_TABSTOP controls, arrows within a WS_GROUP group, Enter presses the
// focus push button or the default one (IDOK when there is none), Escape sends IDCANCEL. Any
// other message for the dialog is translated and dispatched here. Answers FALSE for messages
// of other windows.
ORVA_API BOOL IsDialogMessage(HWND dialog, MSG* msg);
// The next (or previous) visible and enabled WS_TABSTOP control after `control` in z-order,
// wrapping around; with a null `control` the first (or last). Answers `control` when no other
// control stops the Tab key, and null when none does.
ORVA_API HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
// The next (or previous) visible and enabled control of the group `control` is in: a group
// starts at a WS_GROUP control and runs up to the next one, and the search wraps within it.
ORVA_API HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);

// Dialog units to pixels through the dialog's font.
ORVA_API BOOL MapDialogRect(HWND dialog, RECT* rect);
// The base units of the default dialog font: the width in the low word, the height in the high.
ORVA_API LONG GetDialogBaseUnits();

ORVA_API BOOL CheckDlgButton(HWND dialog, int id, UINT check);
ORVA_API UINT IsDlgButtonChecked(HWND dialog, int id);
// Checks `checkId` and unchecks the other buttons from `firstId` to `lastId`.
ORVA_API BOOL CheckRadioButton(HWND dialog, int firstId, int lastId, int checkId);
// The control's text as a whole number: blanks around it, a sign when `isSigned`, digits.
// `translated` (when given) says whether the text was such a number in range; 0 otherwise.
ORVA_API UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
ORVA_API BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
