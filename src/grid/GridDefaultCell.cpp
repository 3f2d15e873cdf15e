#include "grid/GridDefaultCell.h"

#include "platform/gdi/DC.h"
#include "platform/system/SystemParameters.h"

#include <cstdio>

IMPLEMENT_DYNCREATE(CGridDefaultCell, CGridCell)

namespace {

// The system's message font, or a plain 8-point sans-serif face when it gives none.
LOGFONT MessageFont() {
    // Systems before version 6 know only the record without the padded border.
    OSVERSIONINFO version{};
    version.dwOSVersionInfoSize = sizeof(version);
    const bool older = GetVersionEx(&version) && version.dwMajorVersion < 6;
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = older ? NONCLIENTMETRICS_V1_SIZE : UINT(sizeof(metrics));
    if (SystemParametersInfo(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0)) {
        return metrics.lfMessageFont;
    }
    LOGFONT font{};
    font.lfHeight = -11;
    font.lfWeight = 400;
    std::snprintf(font.lfFaceName, sizeof(font.lfFaceName), "%s", "MS Sans Serif");
    return font;
}

} // namespace

CGridDefaultCell::CGridDefaultCell() : m_width(30), m_height(10), m_style(0) {
    m_format = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;
    m_textColor = CLR_DEFAULT;
    m_backColor = CLR_DEFAULT;
    const LOGFONT font = MessageFont();
    SetFont(&font);
}

CGridDefaultCell::~CGridDefaultCell() = default;

void CGridDefaultCell::SetFont(const LOGFONT* logFont) {
    if (logFont == nullptr) {
        return;
    }
    m_fontObject.DeleteObject();
    m_fontObject.CreateFontIndirect(logFont);
    CGridCell::SetFont(logFont);
    MeasureFont();
}

void CGridDefaultCell::MeasureFont() {
    CDC screen;
    if (!screen.CreateCompatibleDC(nullptr)) {
        SetMargin(3);
        m_width = 40;
        m_height = 16;
        return;
    }
    CFont* oldFont = screen.SelectObject(&m_fontObject);
    SetMargin(UINT(screen.GetTextExtent(CString(" ")).cx));
    const CSize extent = screen.GetTextExtent(CString(" XXXXXXXXXXXX "));
    m_width = extent.cx;
    m_height = extent.cy * 3 / 2;
    if (oldFont != nullptr) {
        screen.SelectObject(oldFont);
    }
}
