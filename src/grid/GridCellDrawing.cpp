// What a plain cell draws and how it measures itself. Typed cells build on these.

#include "grid/GridCellBase.h"

#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/ImageList.h"
#include "platform/system/SysColors.h"

#include <algorithm>

namespace {

constexpr DWORD kMaskRop = 0xFA0089; // destination OR pattern
constexpr int kVerticalEscapement = 900;

// The size of a picture of the grid's image list, if the cell shows one.
bool ImageSize(const CGridCellBase& cell, CSize& size) {
    CGridCtrl* grid = cell.GetGrid();
    CImageList* images = grid != nullptr ? grid->GetImageList() : nullptr;
    IMAGEINFO info{};
    if (images == nullptr || cell.GetImage() < 0 || !images->GetImageInfo(cell.GetImage(), &info)) {
        return false;
    }
    size = CSize(info.rcImage.right - info.rcImage.left, info.rcImage.bottom - info.rcImage.top);
    return true;
}

// The triangle of the sort indicator, with its point up for an ascending sort.
void DrawSortArrow(CDC* dc, int x, int base, int size, bool ascending) {
    const POINT up[] = {
        {x, base + size}, {x + size / 2, base}, {x + size, base + size}, {x, base + size}};
    const POINT down[] = {{x, base}, {x + size / 2, base + size}, {x + size, base}, {x, base}};
    const POINT* points = ascending ? up : down;
    // A light copy one pixel down and right gives the arrow its engraved look.
    for (const auto& [color, offset] : {std::pair{COLOR_3DHILIGHT, 1}, {COLOR_3DSHADOW, 0}}) {
        CPen pen(PS_SOLID, 0, ::GetSysColor(color));
        CPen* oldPen = dc->SelectObject(&pen);
        dc->MoveTo(points[0].x + offset, points[0].y + offset);
        for (int i = 1; i < 4; i++) {
            dc->LineTo(points[i].x + offset, points[i].y + offset);
        }
        dc->SelectObject(oldPen);
    }
}

} // namespace

BOOL CGridCellBase::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    CGridCtrl* grid = GetGrid();
    if ((!IsShow() && !IsMerged()) || grid == nullptr || dc == nullptr || rect.IsRectEmpty()) {
        return FALSE;
    }
    // Stored in the cell: it stays until EnableCell clears it.
    if (IsDisabled() && !IsFixed()) {
        SetBackClr(::GetSysColor(COLOR_BTNFACE));
    }
    const int saved = dc->SaveDC();
    dc->SetBkMode(TRANSPARENT);
    CGridCellBase* defaultCell = GetDefaultCell();
    if (defaultCell == nullptr) {
        dc->RestoreDC(saved);
        return FALSE;
    }

    COLORREF textColor = GetTextClr() == CLR_DEFAULT ? defaultCell->GetTextClr() : GetTextClr();
    COLORREF backColor = defaultCell->GetBackClr();
    if (GetBackClr() != CLR_DEFAULT) {
        backColor = GetBackClr();
        eraseBackground = TRUE; // a colour of its own always shows
    }

    const bool gridLines = grid->GetGridLines() != GVL_NONE;
    if (!IsFocused() && !IsDropHighlighted()) {
        CRect fill(rect.left, rect.top, rect.right + 1, rect.bottom + 1);
        if (IsSelected()) {
            dc->FillSolidRect(fill, ::GetSysColor(COLOR_HIGHLIGHT));
            dc->SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
        } else {
            if (eraseBackground) {
                dc->FillSolidRect(fill, backColor);
            }
            dc->SetTextColor(textColor);
        }
    } else {
        if (IsSelected()) {
            backColor = ::GetSysColor(COLOR_HIGHLIGHT);
            textColor = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
            eraseBackground = TRUE;
        }
        rect = ExclusiveCellRect(rect);
        if (eraseBackground) {
            dc->FillSolidRect(rect, backColor);
        }
        // With grid lines the frame stays inside them.
        if (gridLines) {
            rect.right--;
            rect.bottom--;
        }
        if (grid->GetFrameFocusCell()) {
            CBrush frame(textColor);
            dc->FrameRect(&rect, &frame);
        }
        dc->SetTextColor(textColor);
        if (!gridLines) {
            rect.right--;
            rect.bottom--;
        }
        rect.DeflateRect(1, 1);
    }

    // The fill handle at the bottom right of a continuous selection.
    if (IsFocused()) {
        const CCellRange selection = grid->GetSelectedCellRange();
        if (selection.maxRow == row && selection.maxCol == col && grid->IsSelectedContinuous()) {
            dc->FillSolidRect(CRect(rect.right - 4, rect.bottom - 4, rect.right, rect.bottom),
                              RGB(255, 255, 255));
        }
    }

    if (IsFixed() && gridLines) {
        const CCellID focus = grid->GetFocusCell();
        if (!grid->GetTrackFocusCell() || !grid->IsValid(focus) ||
            (focus.row != row && focus.col != col)) {
            CPen light(PS_SOLID, 0, ::GetSysColor(COLOR_3DHILIGHT));
            CPen dark(PS_SOLID, 0, ::GetSysColor(COLOR_3DDKSHADOW));
            CPen* oldPen = dc->SelectObject(&light);
            dc->MoveTo(rect.right, rect.top);
            dc->LineTo(rect.left, rect.top);
            dc->LineTo(rect.left, rect.bottom);
            dc->SelectObject(&dark);
            dc->MoveTo(rect.right, rect.top);
            dc->LineTo(rect.right, rect.bottom);
            dc->LineTo(rect.left, rect.bottom);
            dc->SelectObject(oldPen);
        } else {
            // The heading of the focus row or column is sunk.
            rect = ExclusiveCellRect(rect);
            dc->DrawEdge(&rect, BDR_SUNKENINNER, BF_RECT);
        }
        rect.DeflateRect(1, 1);
    }

    if (CFont* font = GetFontObject()) {
        dc->SelectObject(font);
    }
    const int margin = int(GetMargin());
    rect.DeflateRect(margin, 0);

    CSize image;
    if (ImageSize(*this, image)) {
        if (rect.left + image.cx <= rect.right + 2 * margin &&
            rect.top + image.cy <= rect.bottom + 2 * margin) {
            grid->GetImageList()->Draw(dc, GetImage(), rect.TopLeft(), ILD_NORMAL);
        }
        rect.left += margin + image.cx;
    }

    if (row == 0 && col == grid->GetSortColumn()) {
        int size = dc->GetTextExtent(CString("M")).cy - 4;
        if (rect.Height() <= size) {
            size = rect.Height() - 4;
        }
        const LOGFONT* logFont = GetFont();
        const bool vertical = logFont != nullptr && logFont->lfEscapement == kVerticalEscapement;
        if (rect.left + size < rect.right + 2 * margin) {
            const int base = rect.bottom - size - 2;
            const int x = vertical ? rect.CenterPoint().x : rect.right - size;
            DrawSortArrow(dc, x, base, size, grid->GetSortAscending());
            if (!vertical) {
                rect.right -= size;
            }
        }
    }

    // No prefix processing: "&" shows as it is.
    if (LPCTSTR text = GetText()) {
        dc->DrawText(text, -1, &rect, UINT(GetFormat()) | DT_NOPREFIX);
    }
    dc->RestoreDC(saved);
    return TRUE;
}

void CGridCellBase::DrawDisabled(CDC* dc, CRect rect) {
    CBitmap mask;
    CBrush brush;
    if (dc == nullptr || !mask.LoadBitmap("DISABLE_MASK") || !brush.CreatePatternBrush(&mask)) {
        return;
    }
    // A monochrome pattern takes the text colour for its black bits: black leaves those
    // pixels as they are, and the white bits whiten the rest.
    const int saved = dc->SaveDC();
    dc->SetTextColor(RGB(0, 0, 0));
    dc->SetBkColor(RGB(255, 255, 255));
    dc->SelectObject(&brush);
    dc->PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), kMaskRop);
    dc->RestoreDC(saved);
}

BOOL CGridCellBase::GetTextRect(LPRECT rect) {
    if (rect == nullptr) {
        return FALSE;
    }
    CSize image;
    if (ImageSize(*this, image)) {
        rect->left += int(GetMargin()) + image.cx + 1;
    }
    return TRUE;
}

CSize CGridCellBase::GetTextExtent(LPCTSTR text, CDC* dc) {
    CGridCtrl* grid = GetGrid();
    CDC* measuring = dc;
    if (measuring == nullptr && grid != nullptr && grid->GetSafeHwnd() != nullptr) {
        measuring = grid->GetDC();
    }
    if (measuring == nullptr) {
        CGridDefaultCell* defaultCell =
            grid != nullptr ? grid->GetDefaultCell(IsFixedRow(), IsFixedCol()) : nullptr;
        if (defaultCell == nullptr) {
            return CSize(0, 0);
        }
        return CSize(defaultCell->GetWidth(), defaultCell->GetHeight());
    }

    CFont* font = GetFontObject();
    CFont* oldFont = font != nullptr ? measuring->SelectObject(font) : nullptr;
    const CString string(text != nullptr ? text : "");
    const UINT format = UINT(GetFormat());
    CSize size;
    if ((format & DT_WORDBREAK) && !(format & DT_SINGLELINE)) {
        // Wrapped text is measured at the width of its widest line.
        int widest = 0;
        for (int start = 0; start <= string.GetLength();) {
            int end = string.Find('\n', start);
            if (end < 0) {
                end = string.GetLength();
            }
            widest =
                std::max(widest, int(measuring->GetTextExtent(string.Mid(start, end - start)).cx));
            start = end + 1;
        }
        CRect bounds(0, 0, widest + 1, 0);
        measuring->DrawText(string, &bounds, format | DT_CALCRECT);
        size = bounds.Size();
    } else {
        size = measuring->GetTextExtent(string);
    }
    TEXTMETRIC metrics{};
    measuring->GetTextMetrics(&metrics);
    if (oldFont != nullptr) {
        measuring->SelectObject(oldFont);
    }
    if (measuring != dc) {
        grid->ReleaseDC(measuring);
    }

    const int margin = int(GetMargin());
    size.cy += 2 * margin;
    size.cx += metrics.tmOverhang + 4 * margin;
    const LOGFONT* logFont = GetFont();
    if (logFont != nullptr && (logFont->lfEscapement == kVerticalEscapement ||
                               logFont->lfEscapement == -kVerticalEscapement)) {
        size = CSize(size.cy, size.cx + 4 * margin);
    }
    return size;
}

CSize CGridCellBase::GetCellExtent(CDC* dc) {
    CSize size = GetTextExtent(GetText(), dc);
    CSize image;
    if (ImageSize(*this, image)) {
        size.cx += image.cx;
        size.cy = std::max(size.cy, image.cy);
    }
    return size;
}
