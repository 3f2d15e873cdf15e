// The date-and-time picker's behaviour: the value and its fields, painting in the classic look,
// the keys and the mouse, the drop-down calendar, the DTM_ messages, and the window class.
//
// Sections: the format and its layout; painting; editing the fields; the drop-down calendar;
// the DTM_ messages; the window class.

#include "platform/widgets/DateTimePicker.h"

#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace {

constexpr DWORD kFormatBits = 0x000C;
constexpr int kCheckBoxSize = 13;
constexpr int kTextIndent = 2;
constexpr int kLowestYear = 100;
constexpr int kHighestYear = 9999;
constexpr int kTwoDigitYearMax = 29; // two-digit years up to this one are in the 2000s

// The drop-down calendar: made and ended by the picker, it deletes its own object when its
// window ends.
class DropDownCalendar : public CMonthCalCtrl {
protected:
    void PostNcDestroy() override { delete this; }
};

bool ValidTime(const SYSTEMTIME* time) {
    DATE date = 0;
    return time != nullptr && SystemTimeToVariantTime(time, &date);
}

// The time with its day of the week worked out and no milliseconds.
SYSTEMTIME Normalized(SYSTEMTIME time) {
    DATE date = 0;
    time.wMilliseconds = 0;
    if (SystemTimeToVariantTime(&time, &date))
        VariantTimeToSystemTime(date, &time);
    return time;
}

int Compare(const SYSTEMTIME& a, const SYSTEMTIME& b) {
    DATE x = 0, y = 0;
    SystemTimeToVariantTime(&a, &x);
    SystemTimeToVariantTime(&b, &y);
    const COleDateTime left(x), right(y);
    return left < right ? -1 : right < left ? 1 : 0;
}

int Wrap(int value, int low, int high) {
    const int span = high - low + 1;
    return ((value - low) % span + span) % span + low;
}

} // namespace

DateTimePicker::DateTimePicker(HWND hwnd) : ControlBehaviour(hwnd) {
    GetLocalTime(&m_time);
    m_time = Normalized(m_time);
}

// The format and its layout.

std::string DateTimePicker::Picture() const {
    if (m_format)
        return *m_format;
    // Two bits choose the format; DTS_TIMEFORMAT carries DTS_UPDOWN with its own.
    switch (Style() & kFormatBits) {
    case DTS_TIMEFORMAT& kFormatBits:
        return RegionalSetting("sTimeFormat", "h:mm:ss tt").GetString();
    case DTS_LONGDATEFORMAT:
        return RegionalSetting("sLongDate", "dddd, MMMM d, yyyy").GetString();
    case DTS_SHORTDATECENTURYFORMAT: {
        std::string picture = RegionalSetting("sShortDate", "M/d/yyyy").GetString();
        if (picture.find("yyyy") == std::string::npos)
            if (const auto yy = picture.find("yy"); yy != std::string::npos)
                picture.replace(yy, 2, "yyyy");
        return picture;
    }
    default:
        break;
    }
    return RegionalSetting("sShortDate", "M/d/yyyy").GetString();
}

bool DateTimePicker::Editable(const PictureToken& token) const {
    switch (token.field) {
    case PictureField::Day:
        return token.width <= 2; // day names follow from the date
    case PictureField::Literal:
    case PictureField::Era:
        return false;
    default:
        return true;
    }
}

std::vector<int> DateTimePicker::EditableFields(const Layout& layout) const {
    std::vector<int> fields;
    for (size_t i = 0; i < layout.tokens.size(); ++i)
        if (Editable(layout.tokens[i]))
            fields.push_back(int(i));
    return fields;
}

DateTimePicker::Layout DateTimePicker::MakeLayout() const {
    Layout layout;
    CRect client;
    GetClientRect(Window(), &client);
    CRect inside = client;
    inside.DeflateRect(2, 2);
    const int buttonWidth = GetSystemMetrics(SM_CXVSCROLL);
    layout.button = CRect(inside.right - buttonWidth, inside.top, inside.right, inside.bottom);
    int x = inside.left + kTextIndent;
    if (Style() & DTS_SHOWNONE) {
        const int top = inside.top + (inside.Height() - kCheckBoxSize) / 2;
        layout.checkBox = CRect(x, top, x + kCheckBoxSize, top + kCheckBoxSize);
        x = layout.checkBox.right + 4;
    }

    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CFont* old = dc.SelectObject(widgets::ControlFont(Window()));
    const CalendarNames names = CurrentCalendarNames();
    layout.tokens = ParsePicture(Picture().c_str());
    for (const PictureToken& token : layout.tokens) {
        std::string text = FormatPictureToken(token, m_time, names);
        const int width = dc.GetTextExtent(text.c_str(), int(text.size())).cx;
        layout.boxes.emplace_back(x, inside.top, x + width, inside.bottom);
        layout.texts.push_back(std::move(text));
        x += width;
    }
    dc.SelectObject(old);
    return layout;
}

// Painting.

void DateTimePicker::Paint(CDC& dc) {
    const Layout layout = MakeLayout();
    const bool enabled = IsWindowEnabled(Window());
    const bool focused = GetFocus() == Window();
    CRect client;
    GetClientRect(Window(), &client);
    dc.FillSolidRect(client, GetSysColor(enabled ? COLOR_WINDOW : COLOR_3DFACE));
    dc.DrawEdge(&client, EDGE_SUNKEN, BF_RECT);

    if (Style() & DTS_SHOWNONE) {
        CRect box = layout.checkBox;
        dc.DrawFrameControl(&box, DFC_BUTTON,
                            DFCS_BUTTONCHECK | (m_checked ? DFCS_CHECKED : 0) |
                                (enabled ? 0 : DFCS_INACTIVE));
    }

    CFont* oldFont = dc.SelectObject(widgets::ControlFont(Window()));
    dc.SetBkMode(TRANSPARENT);
    CRect textArea = client;
    textArea.DeflateRect(2, 2);
    textArea.right = layout.button.left;
    dc.IntersectClipRect(textArea);
    const COLORREF text = GetSysColor(enabled && m_checked ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
    for (size_t i = 0; i < layout.tokens.size(); ++i) {
        CRect box = layout.boxes[i];
        const bool selected = focused && m_checked && int(i) == m_field && !m_calendar;
        if (selected) {
            CRect mark = box;
            mark.DeflateRect(0, 1);
            dc.FillSolidRect(mark, GetSysColor(COLOR_HIGHLIGHT));
        }
        dc.SetTextColor(selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : text);
        dc.DrawText(layout.texts[i].c_str(), int(layout.texts[i].size()), &box,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    dc.SelectClipRgn(nullptr);
    dc.SelectObject(oldFont);

    const UINT inactive = enabled ? 0 : DFCS_INACTIVE;
    if (UpDown()) {
        CRect up = layout.button, down = layout.button;
        up.bottom = down.top = layout.button.top + layout.button.Height() / 2;
        dc.DrawFrameControl(&up, DFC_SCROLL, DFCS_SCROLLUP | inactive);
        dc.DrawFrameControl(&down, DFC_SCROLL, DFCS_SCROLLDOWN | inactive);
    } else {
        CRect button = layout.button;
        dc.DrawFrameControl(&button, DFC_SCROLL,
                            DFCS_SCROLLCOMBOBOX | inactive | (m_calendar ? DFCS_PUSHED : 0));
    }
}

// Editing the fields.

void DateTimePicker::SelectField(int token) {
    if (token != m_field) {
        m_field = token;
        m_typedDigits = 0;
        InvalidateRect(Window(), nullptr, TRUE);
    }
}

void DateTimePicker::MoveField(int step) {
    const std::vector<int> fields = EditableFields(MakeLayout());
    if (fields.empty())
        return;
    const auto at = std::find(fields.begin(), fields.end(), m_field);
    const int index = at == fields.end() ? 0 : int(at - fields.begin()) + step;
    SelectField(fields[size_t(Wrap(index, 0, int(fields.size()) - 1))]);
}

SYSTEMTIME DateTimePicker::Clamped(SYSTEMTIME time) const {
    if (m_minimum && Compare(time, *m_minimum) < 0)
        time = *m_minimum;
    if (m_maximum && Compare(time, *m_maximum) > 0)
        time = *m_maximum;
    return time;
}

void DateTimePicker::Change(const SYSTEMTIME& time) {
    const SYSTEMTIME next = Clamped(Normalized(time));
    if (Compare(next, m_time) == 0)
        return;
    m_time = next;
    InvalidateRect(Window(), nullptr, TRUE);
    NotifyChange();
}

void DateTimePicker::Notify(UINT code, void* record) {
    auto* header = static_cast<NMHDR*>(record);
    *header = {Window(), UINT_PTR(GetDlgCtrlID(Window())), code};
    SendMessage(GetParent(Window()), WM_NOTIFY, header->idFrom, LPARAM(record));
}

void DateTimePicker::NotifyChange() {
    NMDATETIMECHANGE change{};
    change.dwFlags = m_checked ? GDT_VALID : GDT_NONE;
    change.st = m_time;
    Notify(DTN_DATETIMECHANGE, &change);
}

void DateTimePicker::Step(int delta) {
    const Layout layout = MakeLayout();
    if (m_field < 0 || m_field >= int(layout.tokens.size()) || !m_checked)
        return;
    SYSTEMTIME t = m_time;
    const bool afternoon = t.wHour >= 12;
    switch (layout.tokens[size_t(m_field)].field) {
    case PictureField::Day:
        t.wDay = WORD(Wrap(t.wDay + delta, 1, DaysInMonth(t.wYear, t.wMonth)));
        break;
    case PictureField::Month:
        t.wMonth = WORD(Wrap(t.wMonth + delta, 1, 12));
        t.wDay = WORD(std::min<int>(t.wDay, DaysInMonth(t.wYear, t.wMonth)));
        break;
    case PictureField::Year:
        t.wYear = WORD(std::clamp(t.wYear + delta, kLowestYear, kHighestYear));
        t.wDay = WORD(std::min<int>(t.wDay, DaysInMonth(t.wYear, t.wMonth)));
        break;
    case PictureField::Hour12:
        t.wHour = WORD(Wrap(t.wHour % 12 + delta, 0, 11) + (afternoon ? 12 : 0));
        break;
    case PictureField::Hour24:
        t.wHour = WORD(Wrap(t.wHour + delta, 0, 23));
        break;
    case PictureField::Minute:
        t.wMinute = WORD(Wrap(t.wMinute + delta, 0, 59));
        break;
    case PictureField::Second:
        t.wSecond = WORD(Wrap(t.wSecond + delta, 0, 59));
        break;
    case PictureField::Marker:
        t.wHour = WORD((t.wHour + 12) % 24);
        break;
    default:
        return;
    }
    m_typedDigits = 0;
    Change(t);
}

void DateTimePicker::TypeDigit(int digit) {
    const Layout layout = MakeLayout();
    if (m_field < 0 || m_field >= int(layout.tokens.size()) || !m_checked)
        return;
    const PictureField field = layout.tokens[size_t(m_field)].field;
    SYSTEMTIME t = m_time;
    int highest = 59;
    switch (field) {
    case PictureField::Day:
        highest = DaysInMonth(t.wYear, t.wMonth);
        break;
    case PictureField::Month:
    case PictureField::Hour12:
        highest = 12;
        break;
    case PictureField::Hour24:
        highest = 23;
        break;
    case PictureField::Year:
        highest = kHighestYear;
        break;
    case PictureField::Minute:
    case PictureField::Second:
        break;
    default:
        return;
    }
    // Digits build up a number while it still fits the field; then a digit starts anew.
    const int maxDigits = field == PictureField::Year ? 4 : 2;
    const int longer = m_typedValue * 10 + digit;
    if (m_typedDigits > 0 && m_typedDigits < maxDigits && longer <= highest) {
        m_typedValue = longer;
        ++m_typedDigits;
    } else {
        m_typedValue = digit;
        m_typedDigits = 1;
    }
    const int value = m_typedValue;
    switch (field) {
    case PictureField::Day:
        if (value >= 1)
            t.wDay = WORD(value);
        break;
    case PictureField::Month:
        if (value >= 1)
            t.wMonth = WORD(value);
        t.wDay = WORD(std::min<int>(t.wDay, DaysInMonth(t.wYear, t.wMonth)));
        break;
    case PictureField::Year:
        if (m_typedDigits <= 2)
            t.wYear = WORD(value <= kTwoDigitYearMax ? 2000 + value : 1900 + value);
        else if (value >= kLowestYear)
            t.wYear = WORD(value);
        t.wDay = WORD(std::min<int>(t.wDay, DaysInMonth(t.wYear, t.wMonth)));
        break;
    case PictureField::Hour12:
        if (value >= 1)
            t.wHour = WORD(value % 12 + (t.wHour >= 12 ? 12 : 0));
        break;
    case PictureField::Hour24:
        t.wHour = WORD(value);
        break;
    case PictureField::Minute:
        t.wMinute = WORD(value);
        break;
    default:
        t.wSecond = WORD(value);
        break;
    }
    Change(t);
}

void DateTimePicker::OnChar(UINT ch) {
    if (ch >= '0' && ch <= '9') {
        TypeDigit(int(ch - '0'));
        return;
    }
    const Layout layout = MakeLayout();
    if (m_field >= 0 && m_field < int(layout.tokens.size()) &&
        layout.tokens[size_t(m_field)].field == PictureField::Marker) {
        const CalendarNames names = CurrentCalendarNames();
        const auto starts = [ch](const std::string& marker) {
            return !marker.empty() && std::tolower(marker[0]) == std::tolower(int(ch));
        };
        SYSTEMTIME t = m_time;
        if (starts(names.am) && t.wHour >= 12)
            t.wHour = WORD(t.wHour - 12);
        else if (starts(names.pm) && t.wHour < 12)
            t.wHour = WORD(t.wHour + 12);
        Change(t);
        return;
    }
    // A separator typed moves on to the next field.
    if (ch > ' ' && ch < 0x7F && !std::isalnum(int(ch)))
        MoveField(1);
}

void DateTimePicker::OnKeyDown(UINT key) {
    switch (key) {
    case VK_LEFT:
        MoveField(-1);
        break;
    case VK_RIGHT:
        MoveField(1);
        break;
    case VK_HOME:
    case VK_END: {
        const std::vector<int> fields = EditableFields(MakeLayout());
        if (!fields.empty())
            SelectField(key == VK_HOME ? fields.front() : fields.back());
        break;
    }
    case VK_UP:
        Step(1);
        break;
    case VK_DOWN:
        Step(-1);
        break;
    case VK_F4:
        DropDown();
        break;
    case VK_SPACE:
        if (Style() & DTS_SHOWNONE) {
            m_checked = !m_checked;
            InvalidateRect(Window(), nullptr, TRUE);
            NotifyChange();
        }
        break;
    default:
        break;
    }
}

void DateTimePicker::OnButtonDown(CPoint point) {
    if (GetFocus() != Window()) {
        SetFocus(Window());
        if (!Alive() || GetFocus() != Window()) // a focus handler may have acted
            return;
    }
    const Layout layout = MakeLayout();
    if (layout.button.PtInRect(point)) {
        if (!UpDown())
            DropDown();
        else
            Step(point.y < layout.button.CenterPoint().y ? 1 : -1);
        return;
    }
    if ((Style() & DTS_SHOWNONE) && layout.checkBox.PtInRect(point)) {
        m_checked = !m_checked;
        InvalidateRect(Window(), nullptr, TRUE);
        NotifyChange();
        return;
    }
    // The field under the point, or the nearest one to its left, or the first.
    const std::vector<int> fields = EditableFields(layout);
    if (fields.empty())
        return;
    int chosen = fields.front();
    for (int field : fields)
        if (layout.boxes[size_t(field)].left <= point.x)
            chosen = field;
    SelectField(chosen);
}

// The drop-down calendar.

void DateTimePicker::DropDown() {
    if (m_calendar || UpDown())
        return;
    CRect window;
    GetWindowRect(Window(), &window);
    auto* calendar = new DropDownCalendar;
    // A calendar whose window could not be made has deleted itself in PostNcDestroy.
    if (!calendar->CreatePopup(CPoint(window.left, window.bottom), CWnd::FromHandle(Window())))
        return;
    m_calendar = calendar->m_hWnd;
    SendMessage(m_calendar, WM_SETFONT, SendMessage(Window(), WM_GETFONT, 0, 0), FALSE);
    calendar->SetCurSel(&m_time);
    if (Style() & DTS_RIGHTALIGN) {
        CRect size;
        GetWindowRect(m_calendar, &size);
        SetWindowPos(m_calendar, nullptr, window.right - size.Width(), window.bottom, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    const HWND popup = m_calendar;
    NMHDR header{};
    Notify(DTN_DROPDOWN, &header);
    // The parent may have closed the calendar, or ended the picker.
    if (!Alive() || m_calendar != popup)
        return;
    ShowWindow(popup, SW_SHOWNA);
    SetCapture(popup);
    SetFocus(popup);
    if (Alive())
        InvalidateRect(Window(), nullptr, TRUE);
}

void DateTimePicker::CloseCalendar() {
    if (!m_calendar)
        return;
    const HWND calendar = std::exchange(m_calendar, nullptr);
    // The focus goes back to the picker unless the user has moved it elsewhere.
    if (GetFocus() == calendar)
        SetFocus(Window());
    DestroyWindow(calendar);
    if (!Alive())
        return;
    InvalidateRect(Window(), nullptr, TRUE);
    NMHDR header{};
    Notify(DTN_CLOSEUP, &header);
}

void DateTimePicker::OnCalendarSelect(const SYSTEMTIME& day) {
    SYSTEMTIME t = m_time;
    t.wYear = day.wYear;
    t.wMonth = day.wMonth;
    t.wDay = day.wDay;
    m_checked = true;
    Change(t);
    if (Alive())
        CloseCalendar();
}

// The DTM_ messages.

LRESULT DateTimePicker::GetSystemTime(SYSTEMTIME* time) const {
    if (time == nullptr)
        return LRESULT(GDT_ERROR);
    *time = m_time;
    return m_checked ? GDT_VALID : GDT_NONE;
}

LRESULT DateTimePicker::SetSystemTime(DWORD flags, const SYSTEMTIME* time) {
    if (flags == GDT_NONE) {
        if (!(Style() & DTS_SHOWNONE))
            return FALSE;
        m_checked = false;
    } else if (flags != GDT_VALID || !ValidTime(time)) {
        return FALSE;
    } else {
        m_time = Clamped(Normalized(*time));
        m_checked = true;
    }
    m_typedDigits = 0;
    InvalidateRect(Window(), nullptr, TRUE);
    return TRUE;
}

LRESULT DateTimePicker::SetRange(DWORD which, const SYSTEMTIME* range) {
    if (range == nullptr || ((which & GDTR_MIN) && !ValidTime(&range[0])) ||
        ((which & GDTR_MAX) && !ValidTime(&range[1])))
        return FALSE;
    m_minimum = which & GDTR_MIN ? std::optional(Normalized(range[0])) : std::nullopt;
    m_maximum = which & GDTR_MAX ? std::optional(Normalized(range[1])) : std::nullopt;
    m_time = Clamped(m_time);
    InvalidateRect(Window(), nullptr, TRUE);
    return TRUE;
}

LRESULT DateTimePicker::GetRange(SYSTEMTIME* range) const {
    if (range == nullptr)
        return 0;
    DWORD which = 0;
    range[0] = range[1] = SYSTEMTIME{};
    if (m_minimum) {
        range[0] = *m_minimum;
        which |= GDTR_MIN;
    }
    if (m_maximum) {
        range[1] = *m_maximum;
        which |= GDTR_MAX;
    }
    return which;
}

// The messages and the window class.

LRESULT DateTimePicker::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
    case WM_ENABLE:
        InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
        if (m_field < 0)
            MoveField(0);
        InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    case WM_KILLFOCUS:
        m_typedDigits = 0;
        InvalidateRect(Window(), nullptr, TRUE);
        if (HWND(wParam) != m_calendar)
            CloseCalendar();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnButtonDown(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_KEYDOWN:
        OnKeyDown(UINT(wParam));
        return 0;
    case WM_SYSKEYDOWN:
        if (wParam == VK_DOWN) {
            DropDown();
            return 0;
        }
        return Default(message, wParam, lParam);
    case WM_CHAR:
        OnChar(UINT(wParam));
        return 0;
    case WM_DESTROY:
        if (const HWND calendar = std::exchange(m_calendar, nullptr))
            DestroyWindow(calendar);
        return 0;
    case WM_NOTIFY: {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        if (header != nullptr && header->hwndFrom == m_calendar && header->code == MCN_SELECT)
            OnCalendarSelect(reinterpret_cast<const NMSELCHANGE*>(lParam)->stSelStart);
        return 0;
    }
    case DTM_GETSYSTEMTIME:
        return GetSystemTime(reinterpret_cast<SYSTEMTIME*>(lParam));
    case DTM_SETSYSTEMTIME:
        return SetSystemTime(DWORD(wParam), reinterpret_cast<const SYSTEMTIME*>(lParam));
    case DTM_SETFORMAT:
        m_format = lParam != 0 ? std::optional<std::string>(reinterpret_cast<const char*>(lParam))
                               : std::nullopt;
        m_field = -1;
        if (GetFocus() == Window())
            MoveField(0);
        InvalidateRect(Window(), nullptr, TRUE);
        return TRUE;
    case DTM_GETMONTHCAL:
        return LRESULT(m_calendar);
    case DTM_CLOSEMONTHCAL:
        CloseCalendar();
        return 0;
    case DTM_SETRANGE:
        return SetRange(DWORD(wParam), reinterpret_cast<const SYSTEMTIME*>(lParam));
    case DTM_GETRANGE:
        return GetRange(reinterpret_cast<SYSTEMTIME*>(lParam));
    default:
        return Default(message, wParam, lParam);
    }
}

namespace {
const bool registered =
    widgets::RegisterControlClass<DateTimePicker>(DATETIMEPICK_CLASS, CS_DBLCLKS, IDC_ARROW);
} // namespace
