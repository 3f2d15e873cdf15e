// Dialogs from templates in code and the message box as a dialog: the plot's "Axis Titles"
// dialog laid out in dialog units of its font, a small options dialog with a radio group, a
// modal run of the axis dialog answered as a user would, the options dialog answered by its
// labels' underlined letters (Alt+B, Alt+G), and message boxes of several kinds. On a display both
// dialogs stay open to be worked with the keyboard: Enter in the axis dialog shows the titles in a
// message box.

#include "GalleryPage.h"

#include "platform/testing/ModalResponder.h"
#include "platform/window/Dialog.h"
#include "platform/window/MessageBox.h"
#include "platform/window/MessageBoxDialog.h"

#include <cstdio>
#include <string>

namespace {

constexpr UINT kAxisTitlesTemplate = 3101;
constexpr UINT kOptionsTemplate = 3102;
constexpr int kXTitle = 17295;
constexpr int kYTitle = 17296;
constexpr int kLines = 3111;
constexpr int kPoints = 3112;
constexpr int kBars = 3113;
constexpr int kLegend = 3121;
constexpr int kGridLines = 3122;
constexpr UINT kLabel = 0xFFFF;

DialogTemplate AxisTitlesTemplate() {
    constexpr DWORD field = WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL;
    DialogTemplate t{"Axis Titles", {192, 101}, {}};
    t.fontFace = "MS Sans Serif";
    t.pointSize = 8;
    t.items = {
        {"Button", "Axis Titles", kLabel, WS_VISIBLE | BS_GROUPBOX, {5, 5, 185, 75}},
        {"Static", "&X Axis:", kLabel, WS_VISIBLE | SS_LEFT, {10, 25, 40, 33}},
        {"Edit", "", kXTitle, field | WS_GROUP, {45, 22, 150, 36}},
        {"Static", "&Y Axis:", kLabel, WS_VISIBLE | SS_LEFT, {10, 45, 42, 53}},
        {"Edit", "", kYTitle, field, {45, 42, 150, 56}},
        {"Button",
         "OK",
         IDOK,
         WS_VISIBLE | WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON,
         {75, 80, 125, 94}},
        {"Button", "Cancel", IDCANCEL, WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, {135, 80, 185, 94}},
    };
    return t;
}

DialogTemplate OptionsTemplate() {
    constexpr DWORD shown = WS_VISIBLE;
    DialogTemplate t{"Plot Options", {160, 92}, {}};
    t.items = {
        {"Button", "Plotting method", kLabel, shown | BS_GROUPBOX, {6, 4, 90, 62}},
        {"Button",
         "&Lines",
         UINT(kLines),
         shown | WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON,
         {12, 16, 84, 26}},
        {"Button", "&Points", UINT(kPoints), shown | BS_AUTORADIOBUTTON, {12, 30, 84, 40}},
        {"Button", "&Bars", UINT(kBars), shown | BS_AUTORADIOBUTTON, {12, 44, 84, 54}},
        {"Button",
         "L&egend",
         UINT(kLegend),
         shown | WS_TABSTOP | WS_GROUP | BS_AUTOCHECKBOX,
         {98, 16, 154, 26}},
        {"Button",
         "&Grid lines",
         UINT(kGridLines),
         shown | WS_TABSTOP | BS_AUTOCHECKBOX,
         {98, 30, 154, 40}},
        {"Button", "OK", IDOK, shown | WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON, {46, 70, 96, 84}},
        {"Button", "Cancel", IDCANCEL, shown | WS_TABSTOP | BS_PUSHBUTTON, {102, 70, 152, 84}},
    };
    return t;
}

// The axis titles go both ways through data exchange; OK shows them before the dialog ends.
class AxisTitlesDialog : public CDialog {
public:
    AxisTitlesDialog() : CDialog(kAxisTitlesTemplate) {}
    CString xTitle = "Discharge (m3/s)";
    CString yTitle = "Stage (m)";

protected:
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Text(dx, kXTitle, xTitle);
        DDX_Text(dx, kYTitle, yTitle);
    }
    void OnOK() override {
        if (!UpdateData(TRUE))
            return;
        const std::string titles =
            std::string("X axis: ") + xTitle.GetString() + "\nY axis: " + yTitle.GetString();
        MessageBox(titles.c_str(), "Plot", MB_OK | MB_ICONINFORMATION);
        // For whoever watches the gallery's output on a display.
        std::printf("axis titles chosen: %s | %s\n", xTitle.GetString(), yTitle.GetString());
        std::fflush(stdout);
        EndDialog(IDOK);
    }
};

class OptionsDialog : public CDialog {
public:
    OptionsDialog() : CDialog(kOptionsTemplate) {}
    int method = 1;
    int legend = BST_CHECKED;
    int gridLines = BST_UNCHECKED;

protected:
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Radio(dx, kLines, method);
        DDX_Check(dx, kLegend, legend);
        DDX_Check(dx, kGridLines, gridLines);
    }
};

// A control's rectangle relative to its dialog's outer corner, printed as
// "rect <name> <left> <top> <right> <bottom>" for the scripts that probe its pixels.
void ReportPlace(GalleryContext& context, CDialog& dialog, int id, const char* name) {
    CRect frame, control;
    dialog.GetWindowRect(&frame);
    if (CWnd* item = dialog.GetDlgItem(id))
        item->GetWindowRect(&control);
    control.OffsetRect(-frame.left, -frame.top);
    context.Print("rect %s %d %d %d %d", name, control.left, control.top, control.right,
                  control.bottom);
}

void ReportLayout(GalleryContext& context, CDialog& dialog) {
    const LONG units = GetDialogBaseUnits();
    RECT unit{0, 0, 4, 8};
    dialog.MapDialogRect(&unit);
    context.Print("default dialog font base units %d x %d; \"%s\" units %ld x %ld", LOWORD(units),
                  HIWORD(units), "MS Sans Serif", long(unit.right), long(unit.bottom));
    CRect client;
    dialog.GetClientRect(&client);
    context.Print("axis titles dialog: 192 x 101 units are %d x %d pixels", client.Width(),
                  client.Height());
}

void ShowMessageBoxes(GalleryContext& context, ModalResponder& responder) {
    struct Box {
        const char* text;
        const char* caption;
        UINT type;
        const char* press;
        const char* picture;
    };
    const Box boxes[] = {
        {"Save the changes to the plot \"Culvert 1\"?", "Plot",
         MB_YESNOCANCEL | MB_ICONQUESTION | MB_DEFBUTTON2, "No", "31-dialogs-box-question"},
        {"The water surface profile did not converge after 40 iterations.\nThe last profile "
         "computed is shown.",
         "Profile", MB_OKCANCEL | MB_ICONEXCLAMATION, "OK", "31-dialogs-box-warning"},
        {"The data file could not be opened.", "Culvert", MB_ABORTRETRYIGNORE | MB_ICONHAND,
         "Ignore", "31-dialogs-box-error"},
    };
    for (const Box& box : boxes) {
        responder.Next()
            .Run([&context, &box](CDialog& dialog, UiDriver&) {
                context.Capture(dialog.m_hWnd, box.picture);
            })
            .Press(box.press);
        const int answer = MessageBox(nullptr, box.text, box.caption, box.type);
        const ShownDialog& shown = responder.Shown().back();
        std::string buttons;
        for (const std::string& b : shown.buttons)
            buttons += (buttons.empty() ? "" : ", ") + b;
        context.Print("message box \"%s\": buttons %s; pressing \"%s\" answered %d", box.caption,
                      buttons.c_str(), box.press, answer);
    }
}

// The options dialog run modally and answered by mnemonics: Alt+B chooses Bars, Alt+G ticks
// Grid lines, and Enter takes them.
void AnswerOptionsByMnemonics(GalleryContext& context, ModalResponder& responder) {
    responder.Next().Run([&context](CDialog& dialog, UiDriver& user) {
        user.KeyDown(VK_MENU);
        user.PressKey('B');
        user.PressKey('G');
        user.KeyUp(VK_MENU);
        context.Capture(dialog.m_hWnd, "31-dialogs-options-mnemonics");
        user.PressKey(VK_RETURN);
    });
    OptionsDialog modal;
    const INT_PTR result = modal.DoModal();
    context.Print("options answered by Alt+B, Alt+G and Enter: %s, method %s, grid lines %s",
                  result == IDOK ? "IDOK" : "something else",
                  modal.method == 2 ? "bars" : "not bars",
                  modal.gridLines == BST_CHECKED ? "ticked" : "not ticked");
}

void BuildDialogsPage(GalleryContext& context) {
    RegisterDialogTemplate(kAxisTitlesTemplate, AxisTitlesTemplate());
    RegisterDialogTemplate(kOptionsTemplate, OptionsTemplate());

    static AxisTitlesDialog axisTitles;
    if (!axisTitles.Create(kAxisTitlesTemplate)) {
        context.Print("axis titles: the dialog could not be made");
        return;
    }
    axisTitles.SetWindowPos(nullptr, 40, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ReportLayout(context, axisTitles);
    ReportPlace(context, axisTitles, IDOK, "axis-ok");
    ReportPlace(context, axisTitles, IDCANCEL, "axis-cancel");
    context.Capture(axisTitles.m_hWnd, "31-dialogs-axis-titles");

    static OptionsDialog options;
    if (options.Create(kOptionsTemplate)) {
        options.SetWindowPos(nullptr, 360, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        options.GotoDlgCtrl(options.GetDlgItem(kPoints));
        ReportPlace(context, options, kBars, "options-bars");
        ReportPlace(context, options, kLegend, "options-legend");
        context.Capture(options.m_hWnd, "31-dialogs-options");
    }

    // The same dialog run modally, answered as a user would: a new X title, then OK, which
    // shows the titles in a message box.
    ModalResponder responder;
    responder.Next().Type(kXTitle, "Flow (m3/s)").Press(IDOK);
    responder.Next()
        .Run([&context](CDialog& box, UiDriver&) {
            context.Capture(box.m_hWnd, "31-dialogs-box-information");
        })
        .Press(IDOK);
    AxisTitlesDialog modal;
    const INT_PTR result = modal.DoModal();
    context.Print("modal axis titles answered %s with X \"%s\" and Y \"%s\"",
                  result == IDOK ? "IDOK" : "something else", modal.xTitle.GetString(),
                  modal.yTitle.GetString());
    if (responder.Count() > 1)
        context.Print("its message box said: %s",
                      responder.Shown()[1].TextOf(kMessageBoxTextId).c_str());
    AnswerOptionsByMnemonics(context, responder);
    ShowMessageBoxes(context, responder);
    axisTitles.ShowWindow(SW_SHOW);
    options.ShowWindow(SW_SHOW);
}

} // namespace

GALLERY_PAGE("31-dialogs", "Dialogs and message boxes", BuildDialogsPage);
