#pragma once

// The date-and-time picker's behaviour behind its window class: the value, the format and its
// fields, the keys and the mouse, the drop-down calendar and the notifications. A handler that
// sends a notification may see the window destroyed, and returns at once then (Alive()).

#include "platform/base/Rect.h"
#include "platform/system/DateTimePicture.h"
#include "platform/widgets/ControlWindow.h"
#include "platform/window/WindowApi.h"

#include <optional>
#include <string>
#include <vector>

class DateTimePicker : public widgets::ControlBehaviour {
public:
    explicit DateTimePicker(HWND hwnd);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // Where the parts of the control lie, and each token of the format.
    struct Layout {
        CRect checkBox; // empty without DTS_SHOWNONE
        CRect button;   // the drop-down button, or the up-down pair
        std::vector<PictureToken> tokens;
        std::vector<std::string> texts;
        std::vector<CRect> boxes;
    };
    Layout MakeLayout() const;
    std::string Picture() const;
    bool UpDown() const { return Style() & DTS_UPDOWN; }
    bool Editable(const PictureToken& token) const;
    std::vector<int> EditableFields(const Layout& layout) const;

    void Paint(CDC& dc) override;
    void OnButtonDown(CPoint point);
    void OnKeyDown(UINT key);
    void OnChar(UINT ch);
    void SelectField(int token);
    void MoveField(int step);
    // Changes the value by the user's hand: checks the range, repaints, notifies the parent.
    void Change(const SYSTEMTIME& time);
    void Step(int delta);
    void TypeDigit(int digit);
    void Notify(UINT code, void* record);
    void NotifyChange();

    void DropDown();
    void CloseCalendar();
    void OnCalendarSelect(const SYSTEMTIME& day);

    LRESULT GetSystemTime(SYSTEMTIME* time) const;
    LRESULT SetSystemTime(DWORD flags, const SYSTEMTIME* time);
    LRESULT SetRange(DWORD which, const SYSTEMTIME* range);
    LRESULT GetRange(SYSTEMTIME* range) const;
    SYSTEMTIME Clamped(SYSTEMTIME time) const;

    SYSTEMTIME m_time{};
    bool m_checked = true;
    std::optional<std::string> m_format; // a custom picture, or the style's
    int m_field = -1;                    // the selected field's token
    int m_typedDigits = 0;               // digits typed into the selected field so far
    int m_typedValue = 0;
    std::optional<SYSTEMTIME> m_minimum, m_maximum;
    HWND m_calendar = nullptr; // the open drop-down calendar
};
