#pragma once

// The chart's export and print dialog: a format (PNG, BMP, SVG, PDF or the chart file), a size
// in pixels, and where the chart goes: a file, the clipboard or the printer. OK writes through
// the chart's outputs and keeps the dialog open, with the user told, when that fails.

#include "platform/window/Dialog.h"

class ChartExportDlg : public CDialog {
public:
    enum Format { Png, Bmp, Svg, Pdf, ChartFile };

    ChartExportDlg(HWND chart, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    Format ChosenFormat() const;
    // Greys what the chosen format and destination leave unused.
    void EnableForChoices();
    // False, with the user told, when the size is out of range or the output fails.
    bool Export();
    bool ExportToFile(Format format, int* size);

    HWND m_chart;
    Format m_shownFormat = Png; // the format the file name's extension was given for
};
