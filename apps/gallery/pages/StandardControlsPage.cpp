// The platform's standard controls in a dialog made from a template in code: static text, edits
// (one with text selected, read-only, disabled, multi-line with its words wrapped), push buttons,
// check boxes in their three states, a radio group, group boxes, both kinds of combo box and a size
// grip, their labels with underlined mnemonics. A second picture shows a combo opened from the
// keyboard (a typed letter chose an item, F4 dropped the list), and the list itself.

#include "GalleryPage.h"

#include "platform/testing/UiDriver.h"
#include "platform/widgets/Button.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/Edit.h"
#include "platform/window/Dialog.h"

namespace {

constexpr UINT kDialogId = 3000;
enum : UINT {
    kName = 3001,
    kReadOnly,
    kDisabledEdit,
    kNotes,
    kUnits,
    kMethod,
    kChecked,
    kUnchecked,
    kThird,
    kDisabledCheck,
    kRadioA,
    kRadioB,
    kRadioC,
    kGrip,
};

DialogTemplate ControlsTemplate() {
    constexpr DWORD visible = WS_VISIBLE | WS_TABSTOP;
    DialogTemplate t{"Standard controls", {330, 196}, {}};
    auto add = [&](const char* cls, const char* text, UINT id, DWORD style, RECT r) {
        t.items.push_back({cls, text, id, style | WS_VISIBLE, r});
    };
    add("Button", "Section", 0xFFFF, BS_GROUPBOX, {6, 4, 162, 118});
    add("Static", "&Name:", 0xFFFF, SS_LEFT, {12, 18, 52, 28});
    add("Edit", "Main channel", kName, visible | WS_BORDER | ES_AUTOHSCROLL, {56, 16, 156, 30});
    add("Static", "S&tation:", 0xFFFF, SS_LEFT, {12, 36, 52, 46});
    add("Edit", "4+250 (read-only)", kReadOnly, visible | WS_BORDER | ES_READONLY,
        {56, 34, 156, 48});
    add("Static", "S&lope:", 0xFFFF, SS_LEFT, {12, 54, 52, 64});
    add("Edit", "0.0015", kDisabledEdit, visible | WS_BORDER | WS_DISABLED | ES_RIGHT,
        {56, 52, 156, 66});
    add("Edit",
        "Multi-line notes: the inlet apron is cracked along its downstream edge.\r\nRecheck in "
        "spring.",
        kNotes, visible | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN,
        {12, 72, 156, 112});

    add("Button", "Options", 0xFFFF, BS_GROUPBOX, {168, 4, 324, 118});
    add("Button", "&Checked box", kChecked, visible | BS_AUTOCHECKBOX, {176, 16, 318, 28});
    add("Button", "Unchec&ked box", kUnchecked, visible | BS_AUTOCHECKBOX, {176, 30, 318, 42});
    add("Button", "T&hird state", kThird, visible | BS_AUTO3STATE, {176, 44, 318, 56});
    add("Button", "Disabled box", kDisabledCheck, visible | BS_AUTOCHECKBOX | WS_DISABLED,
        {176, 58, 318, 70});
    add("Button", "&Steady flow", kRadioA, visible | BS_AUTORADIOBUTTON | WS_GROUP,
        {176, 74, 318, 86});
    add("Button", "Unsteady &flow", kRadioB, visible | BS_AUTORADIOBUTTON, {176, 88, 318, 100});
    add("Button", "Disabled choice", kRadioC, visible | BS_AUTORADIOBUTTON | WS_DISABLED,
        {176, 102, 318, 114});

    add("Static", "&Units:", 0xFFFF, SS_RIGHT, {6, 128, 40, 138});
    add("ComboBox", "m3/s", kUnits, visible | CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL,
        {44, 126, 150, 200});
    add("Static", "&Method:", 0xFFFF, SS_RIGHT, {156, 128, 196, 138});
    add("ComboBox", "", kMethod, visible | CBS_DROPDOWNLIST | WS_VSCROLL, {200, 126, 324, 200});
    add("Static", "Centred static text, wrapped when it is longer than its line", 0xFFFF, SS_CENTER,
        {6, 146, 324, 164});
    add("Button", "OK", IDOK, visible | BS_DEFPUSHBUTTON | WS_GROUP, {162, 174, 212, 188});
    add("Button", "Cancel", IDCANCEL, visible | BS_PUSHBUTTON, {218, 174, 268, 188});
    add("Button", "Help", IDHELP, visible | BS_PUSHBUTTON | WS_DISABLED, {274, 174, 316, 188});
    add("ScrollBar", "", kGrip, SBS_SIZEGRIP, {320, 186, 330, 196});
    return t;
}

void Fill(CDialog& dialog) {
    auto* units = static_cast<CComboBox*>(dialog.GetDlgItem(kUnits));
    auto* method = static_cast<CComboBox*>(dialog.GetDlgItem(kMethod));
    for (const char* unit : {"m3/s", "l/s", "ft3/s", "gal/min"})
        units->SendMessage(CB_ADDSTRING, 0, LPARAM(unit));
    for (const char* name : {"Standard step", "Direct step", "Energy balance", "Momentum",
                             "Manning", "Chezy", "Darcy-Weisbach"})
        method->SendMessage(CB_ADDSTRING, 0, LPARAM(name));
    method->SendMessage(CB_SETCURSEL, 2);
    dialog.SendDlgItemMessage(kChecked, BM_SETCHECK, BST_CHECKED);
    dialog.SendDlgItemMessage(kThird, BM_SETCHECK, BST_INDETERMINATE);
    dialog.SendDlgItemMessage(kDisabledCheck, BM_SETCHECK, BST_CHECKED);
    dialog.SendDlgItemMessage(kRadioB, BM_SETCHECK, BST_CHECKED);
    // The name's last word selected, as after a double click on it.
    CWnd* name = dialog.GetDlgItem(kName);
    name->SetFocus();
    name->SendMessage(EM_SETSEL, 5, 12);
}

// Where a script driving the dialog on a display clicks: points relative to the dialog's
// top-left corner, printed as "at <name> <x> <y>".
void PrintPlaces(GalleryContext& context, CDialog& dialog) {
    CRect frame;
    dialog.GetWindowRect(&frame);
    const auto print = [&](const char* name, CPoint screen) {
        context.Print("at %s %d %d", name, int(screen.x - frame.left), int(screen.y - frame.top));
    };
    const auto rectOf = [&](UINT id) {
        CRect r;
        dialog.GetDlgItem(int(id))->GetWindowRect(&r);
        return r;
    };
    print("name-edit", rectOf(kName).CenterPoint());
    const CRect box = rectOf(kUnchecked);
    print("unchecked-box", CPoint(box.left + 6, box.CenterPoint().y));
    const CRect method = rectOf(kMethod);
    print("method-arrow", CPoint(method.right - 8, method.CenterPoint().y));
    const int row = int(dialog.GetDlgItem(kMethod)->SendMessage(CB_GETITEMHEIGHT, 0));
    print("method-list-row-1", CPoint(method.left + 20, method.bottom + 1 + row + row / 2));
    print("size-grip", rectOf(kGrip).CenterPoint());
}

void BuildStandardControlsPage(GalleryContext& context) {
    RegisterDialogTemplate(kDialogId, ControlsTemplate());
    static CDialog controls(kDialogId);
    if (!controls.Create(kDialogId)) {
        context.Print("standard controls: the dialog could not be made");
        return;
    }
    controls.SetWindowPos(nullptr, 40, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Fill(controls);
    context.Capture(controls.m_hWnd, "30-standard-controls");

    static CDialog dropped(kDialogId);
    if (!dropped.Create(kDialogId))
        return;
    dropped.SetWindowPos(nullptr, 640, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Fill(dropped);
    auto* method = static_cast<CComboBox*>(dropped.GetDlgItem(kMethod));
    dropped.ShowWindow(SW_SHOWNA);
    method->SetFocus();
    UiDriver user;
    user.Type("mm"); // the second item beginning with "m" after the selection
    user.PressKey(VK_F4);
    context.Capture(dropped.m_hWnd, "30-standard-controls-dropped");
    CRect list;
    method->GetDroppedControlRect(&list);
    context.Capture(WindowFromPoint(list.TopLeft() + CPoint(2, 2)), "30-standard-controls-list");
    CString chosen;
    method->GetLBText(method->GetCurSel(), chosen);
    context.Print("typed \"mm\" and F4: method list open: %s, %d items, \"%s\" selected",
                  method->GetDroppedState() ? "yes" : "no", method->GetCount(), chosen.GetString());
    // The pictures are taken: on a display only the first dialog stays, for the user (or a
    // script) to work.
    dropped.DestroyWindow();
    PrintPlaces(context, controls);
}

} // namespace

GALLERY_PAGE("30-standard-controls", "Standard controls", BuildStandardControlsPage);
