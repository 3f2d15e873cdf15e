#pragma once

// The behaviour of a "ComboBox" window and of its pop-up list ("ComboLBox"). The combo keeps
// the items, the selection and the selection field (an "Edit" child of id 1001 for CBS_DROPDOWN,
// drawn text for CBS_DROPDOWNLIST); the list is a top-level pop-up that shows the items below
// the combo, holds the capture while open, follows the mouse and closes on a click outside.
// ComboBoxControl.cpp has the combo, ComboListBox.cpp the list. Internal to the platform.

#include "platform/base/Rect.h"
#include "platform/widgets/ControlWindow.h"

#include <string>
#include <vector>

class CDC;

namespace widgets {

constexpr int kComboEditId = 1001;

class ComboBehaviour : public ControlBehaviour {
public:
    explicit ComboBehaviour(HWND hwnd) : ControlBehaviour(hwnd) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    // For the list.
    struct Item {
        std::string text;
        DWORD_PTR data = 0;
    };
    const std::vector<Item>& Items() const { return m_items; }
    int ItemHeight() const;
    int CurSel() const { return m_curSel; }
    // The user picked an item in the open list (or dismissed it with -1 and `accept` false).
    void CloseFromList(int index, bool accept);
    // The list lost the capture to another window: it closes as cancelled.
    void ListLostCapture();

private:
    bool HasEdit() const { return (Style() & 0x3) != CBS_DROPDOWNLIST; }
    HWND Edit() const { return ::GetDlgItem(Window(), kComboEditId); }

    // Creation and layout.
    LRESULT OnCreate(const CREATESTRUCT* cs);
    int FieldHeight() const; // the closed combo's height
    CRect ButtonRect() const;
    CRect FieldRect() const;
    void Layout();
    void KeepFieldHeight();

    // Items and selection.
    int Insert(int index, const char* text);
    int Find(int after, const char* text, bool exact) const;
    void SetCurSel(int index);
    void ShowSelectionText();
    std::string Text() const;
    int CopyItemText(int index, char* buffer) const;

    // The list.
    void DropDown();
    void CloseUp(bool accept);
    bool Dropped() const { return m_dropped; }
    // Moves the selection (arrows, Home, End, typed letters), open or closed.
    void MoveSelection(int index);

    // Input.
    // F4, Alt+Down and Alt+Up open a closed list and close an open one, taking its choice.
    void ToggleList();
    void OnKeyDown(UINT key);
    void OnChar(UINT ch);
    void OnButtonDown(CPoint point);
    void OnEditCommand(UINT code);
    void OnFocusArrived(HWND from);
    void OnFocusLeft(HWND to);

    void Paint(CDC& dc) override;

    std::vector<Item> m_items;
    int m_curSel = -1;
    HWND m_list = nullptr; // the pop-up, owned: destroyed with the combo
    bool m_dropped = false;
    bool m_sizing = false;
    int m_droppedHeight = 0; // the height asked for at creation: field and list together
    int m_droppedWidth = 0;
    int m_horizontalExtent = 0;
    int m_fieldItemHeight = -1; // -1 until set: from the font
    int m_listItemHeight = -1;
    bool m_focused = false; // the combo or its edit has the focus
};

class ComboListBehaviour : public ControlBehaviour {
public:
    explicit ComboListBehaviour(HWND hwnd) : ControlBehaviour(hwnd) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Shows the list at `screenRect` with `hot` highlighted, and takes the capture; `pressHeld`
    // says the mouse button that opened it is still down.
    void Open(HWND combo, const CRect& screenRect, int hot, bool pressHeld);
    void Close();
    int Hot() const { return m_hot; }
    void SetHot(int index);
    int TopIndex() const { return m_top; }
    void SetTopIndex(int index);
    int VisibleRows() const;

private:
    ComboBehaviour* Combo() const;
    int RowAt(CPoint client) const;
    void UpdateScrollBar();
    void EnsureVisible(int index);
    void OnButtonDown(CPoint client);
    void OnButtonUp(CPoint client);
    void Paint(CDC& dc) override;

    HWND m_combo = nullptr;
    int m_hot = -1;
    int m_top = 0;
    bool m_pressHeld = false; // the press that opened the list has not been released yet
};

} // namespace widgets
