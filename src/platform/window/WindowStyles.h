#pragma once

// Window, class and control styles, and the flags of the window calls, with the framework's
// values: styles are stored and compared as these bits.

#include "platform/base/WinTypes.h"

// Window styles.
constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_MINIMIZE = 0x20000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_MAXIMIZE = 0x01000000;
constexpr DWORD WS_CAPTION = 0x00C00000; // WS_BORDER | WS_DLGFRAME
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_HSCROLL = 0x00100000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_SIZEBOX = WS_THICKFRAME;
constexpr DWORD WS_GROUP = 0x00020000;
constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
constexpr DWORD WS_OVERLAPPEDWINDOW =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr DWORD WS_POPUPWINDOW = WS_POPUP | WS_BORDER | WS_SYSMENU;
constexpr DWORD WS_CHILDWINDOW = WS_CHILD;

// Dialog styles.
constexpr DWORD DS_SETFONT = 0x0040;
constexpr DWORD DS_MODALFRAME = 0x0080;
constexpr DWORD DS_CONTROL = 0x0400;
constexpr DWORD DS_CENTER = 0x0800;
constexpr DWORD DS_SHELLFONT = DS_SETFONT | 0x0008;

// Extended window styles.
constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
constexpr DWORD WS_EX_NOPARENTNOTIFY = 0x00000004;
constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_MDICHILD = 0x00000040;
constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
constexpr DWORD WS_EX_WINDOWEDGE = 0x00000100;
constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
constexpr DWORD WS_EX_CONTEXTHELP = 0x00000400;
constexpr DWORD WS_EX_RIGHT = 0x00001000;
constexpr DWORD WS_EX_LEFT = 0x00000000;
constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
constexpr DWORD WS_EX_STATICEDGE = 0x00020000;
constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
constexpr DWORD WS_EX_OVERLAPPEDWINDOW = WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE;

// Edit control styles.
constexpr DWORD ES_LEFT = 0x0000;
constexpr DWORD ES_CENTER = 0x0001;
constexpr DWORD ES_RIGHT = 0x0002;
constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_UPPERCASE = 0x0008;
constexpr DWORD ES_LOWERCASE = 0x0010;
constexpr DWORD ES_PASSWORD = 0x0020;
constexpr DWORD ES_AUTOVSCROLL = 0x0040;
constexpr DWORD ES_AUTOHSCROLL = 0x0080;
constexpr DWORD ES_NOHIDESEL = 0x0100;
constexpr DWORD ES_OEMCONVERT = 0x0400;
constexpr DWORD ES_READONLY = 0x0800;
constexpr DWORD ES_WANTRETURN = 0x1000;
constexpr DWORD ES_NUMBER = 0x2000;

// Button styles.
constexpr DWORD BS_PUSHBUTTON = 0x0000;
constexpr DWORD BS_DEFPUSHBUTTON = 0x0001;
constexpr DWORD BS_CHECKBOX = 0x0002;
constexpr DWORD BS_AUTOCHECKBOX = 0x0003;
constexpr DWORD BS_RADIOBUTTON = 0x0004;
constexpr DWORD BS_3STATE = 0x0005;
constexpr DWORD BS_AUTO3STATE = 0x0006;
constexpr DWORD BS_GROUPBOX = 0x0007;
constexpr DWORD BS_USERBUTTON = 0x0008;
constexpr DWORD BS_AUTORADIOBUTTON = 0x0009;
constexpr DWORD BS_OWNERDRAW = 0x000B;
constexpr DWORD BS_TYPEMASK = 0x000F;
constexpr DWORD BS_LEFTTEXT = 0x0020;
constexpr DWORD BS_LEFT = 0x0100;
constexpr DWORD BS_RIGHT = 0x0200;
constexpr DWORD BS_CENTER = 0x0300;
constexpr DWORD BS_TOP = 0x0400;
constexpr DWORD BS_BOTTOM = 0x0800;
constexpr DWORD BS_VCENTER = 0x0C00;
constexpr DWORD BS_PUSHLIKE = 0x1000;
constexpr DWORD BS_MULTILINE = 0x2000;
constexpr DWORD BS_FLAT = 0x8000;

// Combo box styles.
constexpr DWORD CBS_SIMPLE = 0x0001;
constexpr DWORD CBS_DROPDOWN = 0x0002;
constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
constexpr DWORD CBS_OWNERDRAWFIXED = 0x0010;
constexpr DWORD CBS_OWNERDRAWVARIABLE = 0x0020;
constexpr DWORD CBS_AUTOHSCROLL = 0x0040;
constexpr DWORD CBS_OEMCONVERT = 0x0080;
constexpr DWORD CBS_SORT = 0x0100;
constexpr DWORD CBS_HASSTRINGS = 0x0200;
constexpr DWORD CBS_NOINTEGRALHEIGHT = 0x0400;
constexpr DWORD CBS_DISABLENOSCROLL = 0x0800;
constexpr DWORD CBS_UPPERCASE = 0x2000;
constexpr DWORD CBS_LOWERCASE = 0x4000;

// Date-and-time picker styles.
constexpr DWORD DTS_SHORTDATEFORMAT = 0x0000;
constexpr DWORD DTS_UPDOWN = 0x0001;
constexpr DWORD DTS_SHOWNONE = 0x0002;
constexpr DWORD DTS_LONGDATEFORMAT = 0x0004;
constexpr DWORD DTS_TIMEFORMAT = 0x0009;
constexpr DWORD DTS_SHORTDATECENTURYFORMAT = 0x000C;
constexpr DWORD DTS_RIGHTALIGN = 0x0020;

// Static control styles.
constexpr DWORD SS_LEFT = 0x0000;
constexpr DWORD SS_CENTER = 0x0001;
constexpr DWORD SS_RIGHT = 0x0002;
constexpr DWORD SS_ICON = 0x0003;
constexpr DWORD SS_BLACKRECT = 0x0004;
constexpr DWORD SS_GRAYRECT = 0x0005;
constexpr DWORD SS_WHITERECT = 0x0006;
constexpr DWORD SS_BLACKFRAME = 0x0007;
constexpr DWORD SS_GRAYFRAME = 0x0008;
constexpr DWORD SS_WHITEFRAME = 0x0009;
constexpr DWORD SS_SIMPLE = 0x000B;
constexpr DWORD SS_LEFTNOWORDWRAP = 0x000C;
constexpr DWORD SS_OWNERDRAW = 0x000D;
constexpr DWORD SS_BITMAP = 0x000E;
constexpr DWORD SS_ETCHEDHORZ = 0x0010;
constexpr DWORD SS_ETCHEDVERT = 0x0011;
constexpr DWORD SS_ETCHEDFRAME = 0x0012;
constexpr DWORD SS_TYPEMASK = 0x001F;
constexpr DWORD SS_NOPREFIX = 0x0080;
constexpr DWORD SS_NOTIFY = 0x0100;
constexpr DWORD SS_CENTERIMAGE = 0x0200;
constexpr DWORD SS_SUNKEN = 0x1000;
constexpr DWORD SS_ENDELLIPSIS = 0x4000;

// Scroll bar control styles.
constexpr DWORD SBS_HORZ = 0x0000;
constexpr DWORD SBS_VERT = 0x0001;
constexpr DWORD SBS_SIZEBOXBOTTOMRIGHTALIGN = 0x0004;
constexpr DWORD SBS_SIZEBOX = 0x0008;
constexpr DWORD SBS_SIZEGRIP = 0x0010;

// Window class styles.
constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;
constexpr UINT CS_DBLCLKS = 0x0008;
constexpr UINT CS_OWNDC = 0x0020;
constexpr UINT CS_CLASSDC = 0x0040;
constexpr UINT CS_PARENTDC = 0x0080;
constexpr UINT CS_NOCLOSE = 0x0200;
constexpr UINT CS_SAVEBITS = 0x0800;
constexpr UINT CS_GLOBALCLASS = 0x4000;

// ShowWindow commands.
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_NORMAL = 1;
constexpr int SW_SHOWMINIMIZED = 2;
constexpr int SW_SHOWMAXIMIZED = 3;
constexpr int SW_MAXIMIZE = 3;
constexpr int SW_SHOWNOACTIVATE = 4;
constexpr int SW_SHOW = 5;
constexpr int SW_MINIMIZE = 6;
constexpr int SW_SHOWMINNOACTIVE = 7;
constexpr int SW_SHOWNA = 8;
constexpr int SW_RESTORE = 9;
constexpr int SW_SHOWDEFAULT = 10;

// SetWindowPos flags and z-order places.
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOREDRAW = 0x0008;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_FRAMECHANGED = 0x0020;
constexpr UINT SWP_DRAWFRAME = SWP_FRAMECHANGED;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr UINT SWP_HIDEWINDOW = 0x0080;
constexpr UINT SWP_NOCOPYBITS = 0x0100;
constexpr UINT SWP_NOOWNERZORDER = 0x0200;
constexpr UINT SWP_NOSENDCHANGING = 0x0400;
#define HWND_TOP (reinterpret_cast<HWND>(0))
#define HWND_BOTTOM (reinterpret_cast<HWND>(1))
#define HWND_TOPMOST (reinterpret_cast<HWND>(-1))
#define HWND_NOTOPMOST (reinterpret_cast<HWND>(-2))

// RedrawWindow flags.
constexpr UINT RDW_INVALIDATE = 0x0001;
constexpr UINT RDW_INTERNALPAINT = 0x0002;
constexpr UINT RDW_ERASE = 0x0004;
constexpr UINT RDW_VALIDATE = 0x0008;
constexpr UINT RDW_NOINTERNALPAINT = 0x0010;
constexpr UINT RDW_NOERASE = 0x0020;
constexpr UINT RDW_NOCHILDREN = 0x0040;
constexpr UINT RDW_ALLCHILDREN = 0x0080;
constexpr UINT RDW_UPDATENOW = 0x0100;
constexpr UINT RDW_ERASENOW = 0x0200;
constexpr UINT RDW_FRAME = 0x0400;
constexpr UINT RDW_NOFRAME = 0x0800;

// GetWindowLong indices.
constexpr int GWL_WNDPROC = -4;
constexpr int GWLP_WNDPROC = -4;
constexpr int GWLP_HINSTANCE = -6;
constexpr int GWLP_HWNDPARENT = -8;
constexpr int GWL_ID = -12;
constexpr int GWLP_ID = -12;
constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;
constexpr int GWL_USERDATA = -21;
constexpr int GWLP_USERDATA = -21;

// GetWindow relations.
constexpr UINT GW_HWNDFIRST = 0;
constexpr UINT GW_HWNDLAST = 1;
constexpr UINT GW_HWNDNEXT = 2;
constexpr UINT GW_HWNDPREV = 3;
constexpr UINT GW_OWNER = 4;
constexpr UINT GW_CHILD = 5;

// ChildWindowFromPointEx flags.
constexpr UINT CWP_ALL = 0x0000;
constexpr UINT CWP_SKIPINVISIBLE = 0x0001;
constexpr UINT CWP_SKIPDISABLED = 0x0002;
constexpr UINT CWP_SKIPTRANSPARENT = 0x0004;

// Scroll bar information.
constexpr UINT SIF_RANGE = 0x0001;
constexpr UINT SIF_PAGE = 0x0002;
constexpr UINT SIF_POS = 0x0004;
constexpr UINT SIF_DISABLENOSCROLL = 0x0008;
constexpr UINT SIF_TRACKPOS = 0x0010;
constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;

struct SCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int nMin;
    int nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
};
using LPSCROLLINFO = SCROLLINFO*;
using LPCSCROLLINFO = const SCROLLINFO*;

// EnableScrollBar arrows.
constexpr UINT ESB_ENABLE_BOTH = 0x0000;
constexpr UINT ESB_DISABLE_BOTH = 0x0003;
constexpr UINT ESB_DISABLE_LTUP = 0x0001;
constexpr UINT ESB_DISABLE_RTDN = 0x0002;

// Hit-test answers of WM_NCHITTEST.
constexpr int HTERROR = -2;
constexpr int HTTRANSPARENT = -1;
constexpr int HTNOWHERE = 0;
constexpr int HTCLIENT = 1;
constexpr int HTCAPTION = 2;
constexpr int HTSYSMENU = 3;
constexpr int HTMENU = 5;
constexpr int HTHSCROLL = 6;
constexpr int HTVSCROLL = 7;
constexpr int HTMINBUTTON = 8;
constexpr int HTMAXBUTTON = 9;
constexpr int HTLEFT = 10;
constexpr int HTRIGHT = 11;
constexpr int HTTOP = 12;
constexpr int HTTOPLEFT = 13;
constexpr int HTTOPRIGHT = 14;
constexpr int HTBOTTOM = 15;
constexpr int HTBOTTOMLEFT = 16;
constexpr int HTBOTTOMRIGHT = 17;
constexpr int HTBORDER = 18;
constexpr int HTCLOSE = 20;

// Standard cursor ids for LoadCursor(nullptr, ...).
#define IDC_ARROW MAKEINTRESOURCE(32512)
#define IDC_IBEAM MAKEINTRESOURCE(32513)
#define IDC_WAIT MAKEINTRESOURCE(32514)
#define IDC_CROSS MAKEINTRESOURCE(32515)
#define IDC_UPARROW MAKEINTRESOURCE(32516)
#define IDC_SIZENWSE MAKEINTRESOURCE(32642)
#define IDC_SIZENESW MAKEINTRESOURCE(32643)
#define IDC_SIZEWE MAKEINTRESOURCE(32644)
#define IDC_SIZENS MAKEINTRESOURCE(32645)
#define IDC_SIZEALL MAKEINTRESOURCE(32646)
#define IDC_NO MAKEINTRESOURCE(32648)
#define IDC_HAND MAKEINTRESOURCE(32649)
#define IDC_APPSTARTING MAKEINTRESOURCE(32650)
#define IDC_HELP MAKEINTRESOURCE(32651)

// WM_ACTIVATE states.
constexpr UINT WA_INACTIVE = 0;
constexpr UINT WA_ACTIVE = 1;
constexpr UINT WA_CLICKACTIVE = 2;

// WM_MOUSEACTIVATE answers.
constexpr int MA_ACTIVATE = 1;
constexpr int MA_ACTIVATEANDEAT = 2;
constexpr int MA_NOACTIVATE = 3;
constexpr int MA_NOACTIVATEANDEAT = 4;
