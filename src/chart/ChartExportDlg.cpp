// The chart's export and print dialog: its template, the choices it greys, and the output.

#include "chart/ChartExportDlg.h"

#include "chart/ChartApi.h"
#include "chart/ChartDialogIds.h"
#include "chart/ChartEngine.h"
#include "chart/ChartOutputs.h"
#include "platform/window/MessageBox.h"

#include <algorithm>
#include <cctype>
#include <string>

using namespace chartdlg;

namespace {

constexpr UINT kLabelId = 0xFFFF; // labels are never addressed

struct FormatInfo {
    const char* name;
    const char* extension;
    bool toClipboard; // the clipboard takes bitmaps and SVG pictures
};
const FormatInfo kFormats[] = {
    {"PNG picture", ".png", true},   {"BMP picture", ".bmp", true},   {"SVG drawing", ".svg", true},
    {"PDF document", ".pdf", false}, {"Chart file", ".chart", false},
};

DialogTemplate ExportTemplate() {
    DialogTemplate t;
    t.caption = "Export Chart";
    t.size = {250, 139};
    auto add = [&t](const char* cls, const char* text, UINT id, DWORD style, RECT rect) {
        t.items.push_back({cls, text, id, style | WS_VISIBLE, rect});
    };
    add("Static", "&Format:", kLabelId, 0, {7, 9, 45, 17});
    add("ComboBox", "", IDC_EXPORT_FORMAT, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
        {48, 7, 168, 90});
    add("Static", "&Width:", kLabelId, 0, {7, 25, 45, 33});
    add("Edit", "", IDC_EXPORT_WIDTH, WS_BORDER | WS_TABSTOP | ES_NUMBER, {48, 23, 88, 35});
    add("Static", "&Height:", kLabelId, 0, {96, 25, 126, 33});
    add("Edit", "", IDC_EXPORT_HEIGHT, WS_BORDER | WS_TABSTOP | ES_NUMBER, {128, 23, 168, 35});
    add("Static", "pixels", kLabelId, 0, {172, 25, 210, 33});
    add("Button", "Destination", kLabelId, BS_GROUPBOX, {7, 42, 243, 110});
    add("Button", "To a fi&le:", IDC_EXPORT_TO_FILE, WS_GROUP | WS_TABSTOP | BS_AUTORADIOBUTTON,
        {14, 56, 70, 66});
    add("Button", "To the &clipboard", IDC_EXPORT_TO_CLIPBOARD, BS_AUTORADIOBUTTON,
        {14, 72, 120, 82});
    add("Button", "To the &printer", IDC_EXPORT_TO_PRINTER, BS_AUTORADIOBUTTON, {14, 88, 120, 98});
    add("Edit", "", IDC_EXPORT_FILE, WS_GROUP | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
        {72, 55, 236, 67});
    add("Button", "OK", UINT(IDOK), WS_GROUP | WS_TABSTOP | BS_DEFPUSHBUTTON, {138, 118, 188, 132});
    add("Button", "Cancel", UINT(IDCANCEL), WS_TABSTOP, {193, 118, 243, 132});
    return t;
}

bool EndsWith(const std::string& name, const char* extension) {
    const std::string ext = extension;
    if (name.size() < ext.size())
        return false;
    return std::equal(ext.begin(), ext.end(), name.end() - std::ptrdiff_t(ext.size()),
                      [](char a, char b) { return std::tolower(a) == std::tolower(b); });
}

} // namespace

ChartExportDlg::ChartExportDlg(HWND chart, CWnd* parent) : m_chart(chart) {
    InitModalIndirect(ExportTemplate(), parent);
}

BOOL ChartExportDlg::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    for (const FormatInfo& format : kFormats)
        SendDlgItemMessage(IDC_EXPORT_FORMAT, CB_ADDSTRING, 0, LPARAM(format.name));
    SendDlgItemMessage(IDC_EXPORT_FORMAT, CB_SETCURSEL, WPARAM(Png));
    if (ChartEngine* engine = ChartEngineOf(m_chart)) {
        SetDlgItemInt(IDC_EXPORT_WIDTH, UINT(engine->Width()), FALSE);
        SetDlgItemInt(IDC_EXPORT_HEIGHT, UINT(engine->Height()), FALSE);
    }
    CheckDlgButton(IDC_EXPORT_TO_FILE, BST_CHECKED);
    EnableForChoices();
    return result;
}

ChartExportDlg::Format ChartExportDlg::ChosenFormat() const {
    const int index = int(SendDlgItemMessage(IDC_EXPORT_FORMAT, CB_GETCURSEL));
    return index >= 0 && index < int(std::size(kFormats)) ? Format(index) : Png;
}

void ChartExportDlg::EnableForChoices() {
    const Format format = ChosenFormat();
    if (!kFormats[format].toClipboard && IsDlgButtonChecked(IDC_EXPORT_TO_CLIPBOARD)) {
        CheckDlgButton(IDC_EXPORT_TO_CLIPBOARD, BST_UNCHECKED);
        CheckDlgButton(IDC_EXPORT_TO_FILE, BST_CHECKED);
    }
    const bool toPrinter = IsDlgButtonChecked(IDC_EXPORT_TO_PRINTER) == BST_CHECKED;
    const bool toFile = IsDlgButtonChecked(IDC_EXPORT_TO_FILE) == BST_CHECKED;
    const auto enable = [this](int id, bool on) {
        if (CWnd* control = GetDlgItem(id))
            control->EnableWindow(on);
    };
    enable(IDC_EXPORT_FORMAT, !toPrinter);
    // The printer prints the chart at its own size; a chart file has no size.
    enable(IDC_EXPORT_WIDTH, !toPrinter && format != ChartFile);
    enable(IDC_EXPORT_HEIGHT, !toPrinter && format != ChartFile);
    enable(IDC_EXPORT_TO_CLIPBOARD, kFormats[format].toClipboard);
    enable(IDC_EXPORT_FILE, toFile);
}

BOOL ChartExportDlg::OnCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (id == IDC_EXPORT_FORMAT && HIWORD(wParam) == CBN_SELCHANGE) {
        // A name given with the old format's extension takes the new one.
        const Format format = ChosenFormat();
        CString text;
        GetDlgItemText(IDC_EXPORT_FILE, text);
        std::string name = text.GetString();
        const char* oldExtension = kFormats[m_shownFormat].extension;
        if (format != m_shownFormat && EndsWith(name, oldExtension)) {
            name.resize(name.size() - std::char_traits<char>::length(oldExtension));
            SetDlgItemText(IDC_EXPORT_FILE, (name + kFormats[format].extension).c_str());
        }
        m_shownFormat = format;
        EnableForChoices();
        return TRUE;
    }
    if ((id == IDC_EXPORT_TO_FILE || id == IDC_EXPORT_TO_CLIPBOARD ||
         id == IDC_EXPORT_TO_PRINTER) &&
        HIWORD(wParam) == BN_CLICKED) {
        EnableForChoices();
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

void ChartExportDlg::OnOK() {
    if (Export())
        EndDialog(IDOK);
}

bool ChartExportDlg::Export() {
    if (!ChartEngineOf(m_chart))
        return false;
    if (IsDlgButtonChecked(IDC_EXPORT_TO_PRINTER) == BST_CHECKED) {
        if (ChartPrint(m_chart, 1, 0))
            return true;
        AfxMessageBox("The chart could not be printed.", MB_ICONEXCLAMATION);
        return false;
    }
    const Format format = ChosenFormat();
    BOOL widthRead = FALSE, heightRead = FALSE;
    int size[2] = {int(GetDlgItemInt(IDC_EXPORT_WIDTH, &widthRead, FALSE)),
                   int(GetDlgItemInt(IDC_EXPORT_HEIGHT, &heightRead, FALSE))};
    int width = 0, height = 0;
    if (format != ChartFile &&
        (!widthRead || !heightRead || !ChartOutputSize(size, width, height))) {
        AfxMessageBox("The width and height must be whole numbers from 1 to 16384.",
                      MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(widthRead ? IDC_EXPORT_HEIGHT : IDC_EXPORT_WIDTH));
        return false;
    }
    if (IsDlgButtonChecked(IDC_EXPORT_TO_CLIPBOARD) == BST_CHECKED) {
        const bool copied = format == Svg ? ChartCopyMetaToClipboard(m_chart, size)
                                          : ChartCopyBitmapToClipboard(m_chart, size);
        if (!copied)
            AfxMessageBox("The chart could not be copied to the clipboard.", MB_ICONEXCLAMATION);
        return copied;
    }
    return ExportToFile(format, size);
}

bool ChartExportDlg::ExportToFile(Format format, int* size) {
    CString text;
    GetDlgItemText(IDC_EXPORT_FILE, text);
    std::string path = text.GetString();
    if (path.find_first_not_of(" \t") == std::string::npos) {
        AfxMessageBox("Please enter a file name.", MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(IDC_EXPORT_FILE));
        return false;
    }
    if (!EndsWith(path, kFormats[format].extension))
        path += kFormats[format].extension;
    ChartEngine& engine = *ChartEngineOf(m_chart);
    bool written = false;
    switch (format) {
    case Png:
    case Bmp:
        written = ChartCopyBitmapToFile(m_chart, size, path.c_str()) != 0;
        break;
    case Svg:
        written = WriteChartSvg(engine, size[0], size[1], path.c_str());
        break;
    case Pdf:
        written = WriteChartPdf(engine, size[0], size[1], path.c_str());
        break;
    case ChartFile:
        written = ChartStore(m_chart, path.c_str()) != 0;
        break;
    }
    if (!written) {
        AfxMessageBox(("The chart could not be written to \"" + path + "\".").c_str(),
                      MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(IDC_EXPORT_FILE));
        return false;
    }
    return true;
}
