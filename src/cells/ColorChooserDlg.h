#pragma once

// CColorChooserDlg: the small modal dialog in which a user picks a colour: a click on one of
// the sixteen standard colours, or red, green and blue typed as numbers from 0 to 255. The
// three fields always hold the colour that OK takes; the swatch beside them shows it.

#include "platform/window/Dialog.h"

class ORVA_API CColorChooserDlg : public CDialog {
public:
    static constexpr UINT IDC_RED = 1001;
    static constexpr UINT IDC_GREEN = 1002;
    static constexpr UINT IDC_BLUE = 1003;
    static constexpr int kStandardCount = 16;

    explicit CColorChooserDlg(COLORREF initial, CWnd* parent = nullptr);

    // The colour chosen; the initial one until OK.
    COLORREF GetColor() const { return m_color; }
    static COLORREF StandardColor(int index);
    // Where standard colour `index` lies in the dialog's client area, in pixels.
    CRect SwatchRect(int index) const;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnPaint() override;
    void OnLButtonDown(UINT flags, CPoint point) override;

private:
    // The colour that the three fields hold now; a field out of range counts as its limit.
    COLORREF FieldsColor() const;
    void ShowInFields(COLORREF color);
    CRect PreviewRect() const;

    COLORREF m_color;
};
