#pragma once

// Window messages and the codes that travel with them, with the framework's numbers: the
// library and applications compare against these values.

#include "platform/base/WinTypes.h"

constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_ENABLE = 0x000A;
constexpr UINT WM_SETREDRAW = 0x000B;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
constexpr UINT WM_SHOWWINDOW = 0x0018;
constexpr UINT WM_SETTINGCHANGE = 0x001A;
constexpr UINT WM_WININICHANGE = 0x001A;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_MOUSEACTIVATE = 0x0021;
constexpr UINT WM_CHILDACTIVATE = 0x0022;
constexpr UINT WM_GETMINMAXINFO = 0x0024;
constexpr UINT WM_NEXTDLGCTL = 0x0028;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_GETFONT = 0x0031;
constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
constexpr UINT WM_NOTIFY = 0x004E;
constexpr UINT WM_HELP = 0x0053;
constexpr UINT WM_CONTEXTMENU = 0x007B;
constexpr UINT WM_GETICON = 0x007F;
constexpr UINT WM_SETICON = 0x0080;
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_NCCALCSIZE = 0x0083;
constexpr UINT WM_NCHITTEST = 0x0084;
constexpr UINT WM_NCPAINT = 0x0085;
constexpr UINT WM_NCACTIVATE = 0x0086;
constexpr UINT WM_GETDLGCODE = 0x0087;
constexpr UINT WM_NCMOUSEMOVE = 0x00A0;
constexpr UINT WM_NCLBUTTONDOWN = 0x00A1;
constexpr UINT WM_NCLBUTTONUP = 0x00A2;
constexpr UINT WM_NCLBUTTONDBLCLK = 0x00A3;
constexpr UINT WM_NCRBUTTONDOWN = 0x00A4;
constexpr UINT WM_NCRBUTTONUP = 0x00A5;
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCHAR = 0x0106;
constexpr UINT WM_KEYLAST = 0x0109;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_SYSCOMMAND = 0x0112;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_INITMENU = 0x0116;
constexpr UINT WM_INITMENUPOPUP = 0x0117;
constexpr UINT WM_MENUSELECT = 0x011F;
constexpr UINT WM_MENUCHAR = 0x0120;
constexpr UINT WM_UNINITMENUPOPUP = 0x0125;
constexpr UINT WM_CTLCOLOREDIT = 0x0133;
constexpr UINT WM_CTLCOLORLISTBOX = 0x0134;
constexpr UINT WM_CTLCOLORBTN = 0x0135;
constexpr UINT WM_CTLCOLORDLG = 0x0136;
constexpr UINT WM_CTLCOLORSCROLLBAR = 0x0137;
constexpr UINT WM_CTLCOLORSTATIC = 0x0138;
constexpr UINT WM_MOUSEFIRST = 0x0200;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_MOUSELAST = 0x020A;
constexpr UINT WM_SIZING = 0x0214;
constexpr UINT WM_CAPTURECHANGED = 0x0215;
constexpr UINT WM_MOVING = 0x0216;
constexpr UINT WM_MDICREATE = 0x0220;
constexpr UINT WM_MDIDESTROY = 0x0221;
constexpr UINT WM_MDIACTIVATE = 0x0222;
constexpr UINT WM_MDIRESTORE = 0x0223;
constexpr UINT WM_MDINEXT = 0x0224;
constexpr UINT WM_MDIMAXIMIZE = 0x0225;
constexpr UINT WM_MDITILE = 0x0226;
constexpr UINT WM_MDICASCADE = 0x0227;
constexpr UINT WM_MDIGETACTIVE = 0x0229;
constexpr UINT WM_MDISETMENU = 0x0230;
constexpr UINT WM_ENTERMENULOOP = 0x0211;
constexpr UINT WM_EXITMENULOOP = 0x0212;
constexpr UINT WM_ENTERSIZEMOVE = 0x0231;
constexpr UINT WM_EXITSIZEMOVE = 0x0232;
constexpr UINT WM_CUT = 0x0300;
constexpr UINT WM_COPY = 0x0301;
constexpr UINT WM_PASTE = 0x0302;
constexpr UINT WM_CLEAR = 0x0303;
constexpr UINT WM_UNDO = 0x0304;
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

// Messages of the standard controls.
constexpr UINT EM_GETSEL = 0x00B0;
constexpr UINT EM_SETSEL = 0x00B1;
constexpr UINT EM_GETRECT = 0x00B2;
constexpr UINT EM_SCROLLCARET = 0x00B7;
constexpr UINT EM_GETMODIFY = 0x00B8;
constexpr UINT EM_SETMODIFY = 0x00B9;
constexpr UINT EM_GETLINECOUNT = 0x00BA;
constexpr UINT EM_LINEINDEX = 0x00BB;
constexpr UINT EM_LINELENGTH = 0x00C1;
constexpr UINT EM_REPLACESEL = 0x00C2;
constexpr UINT EM_GETLINE = 0x00C4;
constexpr UINT EM_LIMITTEXT = 0x00C5;
constexpr UINT EM_SETLIMITTEXT = 0x00C5;
constexpr UINT EM_CANUNDO = 0x00C6;
constexpr UINT EM_UNDO = 0x00C7;
constexpr UINT EM_LINEFROMCHAR = 0x00C9;
constexpr UINT EM_EMPTYUNDOBUFFER = 0x00CD;
constexpr UINT EM_GETFIRSTVISIBLELINE = 0x00CE;
constexpr UINT EM_SETREADONLY = 0x00CF;
constexpr UINT EM_SETMARGINS = 0x00D3;
constexpr UINT EM_GETMARGINS = 0x00D4;
constexpr UINT EM_GETLIMITTEXT = 0x00D5;
constexpr UINT EM_POSFROMCHAR = 0x00D6;
constexpr UINT EM_CHARFROMPOS = 0x00D7;
constexpr UINT EC_LEFTMARGIN = 0x0001;
constexpr UINT EC_RIGHTMARGIN = 0x0002;
constexpr UINT EC_USEFONTINFO = 0xFFFF;

constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;
constexpr UINT BM_GETSTATE = 0x00F2;
constexpr UINT BM_SETSTATE = 0x00F3;
constexpr UINT BM_SETSTYLE = 0x00F4;
constexpr UINT BM_CLICK = 0x00F5;
constexpr UINT BST_UNCHECKED = 0x0000;
constexpr UINT BST_CHECKED = 0x0001;
constexpr UINT BST_INDETERMINATE = 0x0002;
constexpr UINT BST_PUSHED = 0x0004;
constexpr UINT BST_FOCUS = 0x0008;

constexpr UINT STM_SETICON = 0x0170;
constexpr UINT STM_GETICON = 0x0171;
constexpr UINT STM_SETIMAGE = 0x0172;
constexpr UINT STM_GETIMAGE = 0x0173;

constexpr UINT CB_GETEDITSEL = 0x0140;
constexpr UINT CB_LIMITTEXT = 0x0141;
constexpr UINT CB_SETEDITSEL = 0x0142;
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_GETLBTEXT = 0x0148;
constexpr UINT CB_GETLBTEXTLEN = 0x0149;
constexpr UINT CB_INSERTSTRING = 0x014A;
constexpr UINT CB_RESETCONTENT = 0x014B;
constexpr UINT CB_FINDSTRING = 0x014C;
constexpr UINT CB_SELECTSTRING = 0x014D;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr UINT CB_SHOWDROPDOWN = 0x014F;
constexpr UINT CB_GETITEMDATA = 0x0150;
constexpr UINT CB_SETITEMDATA = 0x0151;
constexpr UINT CB_GETDROPPEDCONTROLRECT = 0x0152;
constexpr UINT CB_SETITEMHEIGHT = 0x0153;
constexpr UINT CB_GETITEMHEIGHT = 0x0154;
constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
constexpr UINT CB_GETTOPINDEX = 0x015B;
constexpr UINT CB_SETTOPINDEX = 0x015C;
constexpr UINT CB_GETHORIZONTALEXTENT = 0x015D;
constexpr UINT CB_SETHORIZONTALEXTENT = 0x015E;
constexpr UINT CB_GETDROPPEDWIDTH = 0x015F;
constexpr UINT CB_SETDROPPEDWIDTH = 0x0160;
constexpr int CB_OKAY = 0;
constexpr int CB_ERR = -1;
constexpr int CB_ERRSPACE = -2;

// Mouse key state flags in the WPARAM of mouse messages.
constexpr UINT MK_LBUTTON = 0x0001;
constexpr UINT MK_RBUTTON = 0x0002;
constexpr UINT MK_SHIFT = 0x0004;
constexpr UINT MK_CONTROL = 0x0008;
constexpr UINT MK_MBUTTON = 0x0010;

constexpr int WHEEL_DELTA = 120;
constexpr UINT WHEEL_PAGESCROLL = 0xFFFFFFFF;

// System commands (WM_SYSCOMMAND).
constexpr UINT SC_SIZE = 0xF000;
constexpr UINT SC_MOVE = 0xF010;
constexpr UINT SC_MINIMIZE = 0xF020;
constexpr UINT SC_MAXIMIZE = 0xF030;
constexpr UINT SC_NEXTWINDOW = 0xF040;
constexpr UINT SC_CLOSE = 0xF060;
constexpr UINT SC_KEYMENU = 0xF100;
constexpr UINT SC_RESTORE = 0xF120;

// WM_SETICON and WM_GETICON.
constexpr WPARAM ICON_SMALL = 0;
constexpr WPARAM ICON_BIG = 1;

// WM_SIZING edges.
constexpr UINT WMSZ_LEFT = 1;
constexpr UINT WMSZ_RIGHT = 2;
constexpr UINT WMSZ_TOP = 3;
constexpr UINT WMSZ_TOPLEFT = 4;
constexpr UINT WMSZ_TOPRIGHT = 5;
constexpr UINT WMSZ_BOTTOM = 6;
constexpr UINT WMSZ_BOTTOMLEFT = 7;
constexpr UINT WMSZ_BOTTOMRIGHT = 8;


// Scroll bar requests (the low word of WM_HSCROLL and WM_VSCROLL).
constexpr UINT SB_LINEUP = 0;
constexpr UINT SB_LINELEFT = 0;
constexpr UINT SB_LINEDOWN = 1;
constexpr UINT SB_LINERIGHT = 1;
constexpr UINT SB_PAGEUP = 2;
constexpr UINT SB_PAGELEFT = 2;
constexpr UINT SB_PAGEDOWN = 3;
constexpr UINT SB_PAGERIGHT = 3;
constexpr UINT SB_THUMBPOSITION = 4;
constexpr UINT SB_THUMBTRACK = 5;
constexpr UINT SB_TOP = 6;
constexpr UINT SB_LEFT = 6;
constexpr UINT SB_BOTTOM = 7;
constexpr UINT SB_RIGHT = 7;
constexpr UINT SB_ENDSCROLL = 8;

// Which scroll bar.
constexpr int SB_HORZ = 0;
constexpr int SB_VERT = 1;
constexpr int SB_CTL = 2;
constexpr int SB_BOTH = 3;

// Notification codes of the standard controls, sent in the high word of WM_COMMAND.
constexpr UINT EN_SETFOCUS = 0x0100;
constexpr UINT EN_KILLFOCUS = 0x0200;
constexpr UINT EN_CHANGE = 0x0300;
constexpr UINT EN_UPDATE = 0x0400;
constexpr UINT EN_MAXTEXT = 0x0501;
constexpr UINT EN_HSCROLL = 0x0601;
constexpr UINT EN_VSCROLL = 0x0602;
constexpr UINT BN_CLICKED = 0;
constexpr UINT BN_DOUBLECLICKED = 5;
constexpr UINT BN_SETFOCUS = 6;
constexpr UINT BN_KILLFOCUS = 7;
constexpr UINT STN_CLICKED = 0;
constexpr UINT CBN_SELCHANGE = 1;
constexpr UINT CBN_DBLCLK = 2;
constexpr UINT CBN_SETFOCUS = 3;
constexpr UINT CBN_KILLFOCUS = 4;
constexpr UINT CBN_EDITCHANGE = 5;
constexpr UINT CBN_EDITUPDATE = 6;
constexpr UINT CBN_DROPDOWN = 7;
constexpr UINT CBN_CLOSEUP = 8;
constexpr UINT CBN_SELENDOK = 9;
constexpr UINT CBN_SELENDCANCEL = 10;

// The date-and-time picker (DTM_) and the month calendar (MCM_), and their notifications,
// sent in WM_NOTIFY.
constexpr UINT DTM_FIRST = 0x1000;
constexpr UINT DTM_GETSYSTEMTIME = DTM_FIRST + 1;
constexpr UINT DTM_SETSYSTEMTIME = DTM_FIRST + 2;
constexpr UINT DTM_GETRANGE = DTM_FIRST + 3;
constexpr UINT DTM_SETRANGE = DTM_FIRST + 4;
constexpr UINT DTM_SETFORMAT = DTM_FIRST + 5;
constexpr UINT DTM_SETFORMATA = DTM_SETFORMAT;
constexpr UINT DTM_GETMONTHCAL = DTM_FIRST + 8;
constexpr UINT DTM_CLOSEMONTHCAL = DTM_FIRST + 13;
constexpr UINT MCM_FIRST = 0x1000;
constexpr UINT MCM_GETCURSEL = MCM_FIRST + 1;
constexpr UINT MCM_SETCURSEL = MCM_FIRST + 2;
constexpr UINT MCM_GETMINREQRECT = MCM_FIRST + 9;
constexpr UINT MCM_SETTODAY = MCM_FIRST + 12;
constexpr UINT MCM_GETTODAY = MCM_FIRST + 13;
constexpr UINT MCM_HITTEST = MCM_FIRST + 14;
constexpr UINT DTN_FIRST2 = 0U - 753U;
constexpr UINT DTN_CLOSEUP = DTN_FIRST2;
constexpr UINT DTN_DROPDOWN = DTN_FIRST2 - 1;
constexpr UINT DTN_DATETIMECHANGE = DTN_FIRST2 - 6;
constexpr UINT MCN_FIRST = 0U - 746U;
constexpr UINT MCN_SELECT = MCN_FIRST;
constexpr UINT MCN_SELCHANGE = MCN_FIRST - 3;

// WM_GETDLGCODE answers.
constexpr UINT DLGC_WANTARROWS = 0x0001;
constexpr UINT DLGC_WANTTAB = 0x0002;
constexpr UINT DLGC_WANTALLKEYS = 0x0004;
constexpr UINT DLGC_WANTMESSAGE = 0x0004;
constexpr UINT DLGC_HASSETSEL = 0x0008;
constexpr UINT DLGC_DEFPUSHBUTTON = 0x0010;
constexpr UINT DLGC_UNDEFPUSHBUTTON = 0x0020;
constexpr UINT DLGC_RADIOBUTTON = 0x0040;
constexpr UINT DLGC_WANTCHARS = 0x0080;
constexpr UINT DLGC_STATIC = 0x0100;
constexpr UINT DLGC_BUTTON = 0x2000;

// The dialog manager's messages: the default push button's id travels with DC_HASDEFID.
constexpr UINT DM_GETDEFID = WM_USER + 0;
constexpr UINT DM_SETDEFID = WM_USER + 1;
constexpr UINT DC_HASDEFID = 0x534B;

// WM_SIZE kinds.
constexpr UINT SIZE_RESTORED = 0;
constexpr UINT SIZE_MINIMIZED = 1;
constexpr UINT SIZE_MAXIMIZED = 2;

// Standard dialog command ids.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
constexpr int IDCLOSE = 8;
constexpr int IDHELP = 9;

// Virtual keys.
constexpr UINT VK_LBUTTON = 0x01;
constexpr UINT VK_RBUTTON = 0x02;
constexpr UINT VK_CANCEL = 0x03;
constexpr UINT VK_MBUTTON = 0x04;
constexpr UINT VK_BACK = 0x08;
constexpr UINT VK_TAB = 0x09;
constexpr UINT VK_RETURN = 0x0D;
constexpr UINT VK_SHIFT = 0x10;
constexpr UINT VK_CONTROL = 0x11;
constexpr UINT VK_MENU = 0x12;
constexpr UINT VK_ESCAPE = 0x1B;
constexpr UINT VK_SPACE = 0x20;
constexpr UINT VK_PRIOR = 0x21;
constexpr UINT VK_NEXT = 0x22;
constexpr UINT VK_END = 0x23;
constexpr UINT VK_HOME = 0x24;
constexpr UINT VK_LEFT = 0x25;
constexpr UINT VK_UP = 0x26;
constexpr UINT VK_RIGHT = 0x27;
constexpr UINT VK_DOWN = 0x28;
constexpr UINT VK_INSERT = 0x2D;
constexpr UINT VK_DELETE = 0x2E;
constexpr UINT VK_F1 = 0x70;
constexpr UINT VK_F2 = 0x71;
constexpr UINT VK_F4 = 0x73;
constexpr UINT VK_F6 = 0x75;
constexpr UINT VK_F10 = 0x79;
constexpr UINT VK_LSHIFT = 0xA0;
constexpr UINT VK_RSHIFT = 0xA1;
constexpr UINT VK_LCONTROL = 0xA2;
constexpr UINT VK_RCONTROL = 0xA3;

// Message box styles.
constexpr UINT MB_OK = 0x00000000;
constexpr UINT MB_OKCANCEL = 0x00000001;
constexpr UINT MB_ABORTRETRYIGNORE = 0x00000002;
constexpr UINT MB_YESNOCANCEL = 0x00000003;
constexpr UINT MB_YESNO = 0x00000004;
constexpr UINT MB_RETRYCANCEL = 0x00000005;
constexpr UINT MB_TYPEMASK = 0x0000000F;
constexpr UINT MB_ICONHAND = 0x00000010;
constexpr UINT MB_ICONERROR = 0x00000010;
constexpr UINT MB_ICONSTOP = 0x00000010;
constexpr UINT MB_ICONQUESTION = 0x00000020;
constexpr UINT MB_ICONEXCLAMATION = 0x00000030;
constexpr UINT MB_ICONWARNING = 0x00000030;
constexpr UINT MB_ICONASTERISK = 0x00000040;
constexpr UINT MB_ICONINFORMATION = 0x00000040;
constexpr UINT MB_ICONMASK = 0x000000F0;
constexpr UINT MB_DEFBUTTON1 = 0x00000000;
constexpr UINT MB_DEFBUTTON2 = 0x00000100;
constexpr UINT MB_DEFBUTTON3 = 0x00000200;
constexpr UINT MB_DEFMASK = 0x00000F00;
constexpr UINT MB_APPLMODAL = 0x00000000;
constexpr UINT MB_TASKMODAL = 0x00002000;
