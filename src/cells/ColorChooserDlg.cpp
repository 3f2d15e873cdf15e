// The colour chooser a colour cell opens: the standard colours as swatches and a custom one.

#include "cells/ColorChooserDlg.h"

#include "platform/window/WindowDC.h"

#include <algorithm>

namespace {

// The classic sixteen colours, in two rows of eight.
constexpr COLORREF kStandard[CColorChooserDlg::kStandardCount] = {
    RGB(0, 0, 0),       RGB(128, 0, 0),   RGB(0, 128, 0),   RGB(128, 128, 0),
    RGB(0, 0, 128),     RGB(128, 0, 128), RGB(0, 128, 128), RGB(192, 192, 192),
    RGB(128, 128, 128), RGB(255, 0, 0),   RGB(0, 255, 0),   RGB(255, 255, 0),
    RGB(0, 0, 255),     RGB(255, 0, 255), RGB(0, 255, 255), RGB(255, 255, 255)};

// Layout, in dialog units.
constexpr int kSwatchesPerRow = 8;
constexpr int kSwatchLeft = 7;
constexpr int kSwatchTop = 7;
constexpr int kSwatchSize = 14;
constexpr int kSwatchGap = 3;
constexpr int kFieldsTop = 44;
constexpr int kPreviewLeft = 84;
constexpr int kPreviewRight = 136;
constexpr UINT kLabelId = 0xFFFF; // labels are never addressed

DialogTemplate ChooserTemplate() {
    DialogTemplate t;
    t.caption = "Colour";
    t.size = {143, 113};
    auto field = [&](const char* label, UINT id, int top) {
        t.items.push_back({"Static", label, kLabelId, WS_VISIBLE, {7, top + 2, 40, top + 10}});
        t.items.push_back({"Edit",
                           "",
                           id,
                           WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_NUMBER,
                           {42, top, 72, top + 12}});
    };
    field("&Red:", CColorChooserDlg::IDC_RED, kFieldsTop);
    field("&Green:", CColorChooserDlg::IDC_GREEN, kFieldsTop + 15);
    field("&Blue:", CColorChooserDlg::IDC_BLUE, kFieldsTop + 30);
    t.items.push_back(
        {"Button", "OK", UINT(IDOK), WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, {31, 94, 81, 108}});
    t.items.push_back(
        {"Button", "Cancel", UINT(IDCANCEL), WS_VISIBLE | WS_TABSTOP, {86, 94, 136, 108}});
    return t;
}

int Channel(const CWnd* dialog, UINT id) {
    BOOL read = FALSE;
    const UINT value = dialog->GetDlgItemInt(int(id), &read, FALSE);
    return read ? int(std::min(value, 255u)) : 0;
}

} // namespace

CColorChooserDlg::CColorChooserDlg(COLORREF initial, CWnd* parent) : m_color(initial) {
    InitModalIndirect(ChooserTemplate(), parent);
}

COLORREF CColorChooserDlg::StandardColor(int index) {
    return kStandard[std::clamp(index, 0, kStandardCount - 1)];
}

CRect CColorChooserDlg::SwatchRect(int index) const {
    const int left = kSwatchLeft + (index % kSwatchesPerRow) * (kSwatchSize + kSwatchGap);
    const int top = kSwatchTop + (index / kSwatchesPerRow) * (kSwatchSize + kSwatchGap);
    CRect rect(left, top, left + kSwatchSize, top + kSwatchSize);
    MapDialogRect(&rect);
    return rect;
}

CRect CColorChooserDlg::PreviewRect() const {
    CRect rect(kPreviewLeft, kFieldsTop, kPreviewRight, kFieldsTop + 42);
    MapDialogRect(&rect);
    return rect;
}

BOOL CColorChooserDlg::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    ShowInFields(m_color);
    return result;
}

void CColorChooserDlg::OnOK() {
    m_color = FieldsColor();
    CDialog::OnOK();
}

BOOL CColorChooserDlg::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if ((id == IDC_RED || id == IDC_GREEN || id == IDC_BLUE) && HIWORD(wParam) == EN_CHANGE) {
        const CRect preview = PreviewRect();
        InvalidateRect(&preview, FALSE);
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

void CColorChooserDlg::OnPaint() {
    CPaintDC dc(this);
    for (int index = 0; index < kStandardCount; index++) {
        const CRect swatch = SwatchRect(index);
        dc.FillSolidRect(swatch, RGB(0, 0, 0));
        CRect inside = swatch;
        inside.DeflateRect(1, 1);
        dc.FillSolidRect(inside, kStandard[index]);
    }
    const CRect preview = PreviewRect();
    dc.FillSolidRect(preview, RGB(0, 0, 0));
    CRect inside = preview;
    inside.DeflateRect(1, 1);
    dc.FillSolidRect(inside, FieldsColor());
}

void CColorChooserDlg::OnLButtonDown(UINT flags, CPoint point) {
    for (int index = 0; index < kStandardCount; index++) {
        if (SwatchRect(index).PtInRect(point)) {
            ShowInFields(kStandard[index]);
            return;
        }
    }
    CDialog::OnLButtonDown(flags, point);
}

COLORREF CColorChooserDlg::FieldsColor() const {
    return RGB(BYTE(Channel(this, IDC_RED)), BYTE(Channel(this, IDC_GREEN)),
               BYTE(Channel(this, IDC_BLUE)));
}

void CColorChooserDlg::ShowInFields(COLORREF color) {
    SetDlgItemInt(int(IDC_RED), GetRValue(color), FALSE);
    SetDlgItemInt(int(IDC_GREEN), GetGValue(color), FALSE);
    SetDlgItemInt(int(IDC_BLUE), GetBValue(color), FALSE);
    const CRect preview = PreviewRect();
    InvalidateRect(&preview, FALSE);
}
