#include "support/MemDC.h"

CMemDC::CMemDC(CDC* pDC) : m_oldBitmap(nullptr), m_pDC(pDC), m_rect(0, 0, 0, 0) {
    m_bMemDC = !pDC->IsPrinting();
    if (!m_bMemDC) {
        // A printer gets the drawing directly.
        m_bPrinting = pDC->m_bPrinting;
        m_hDC = pDC->m_hDC;
        m_hAttribDC = pDC->m_hAttribDC;
        return;
    }
    pDC->GetClipBox(&m_rect);
    CreateCompatibleDC(pDC);
    m_bitmap.CreateCompatibleBitmap(pDC, m_rect.Width(), m_rect.Height());
    m_oldBitmap = SelectObject(&m_bitmap);
    SetWindowOrg(m_rect.left, m_rect.top);
    FillSolidRect(m_rect, pDC->GetBkColor());
}

CMemDC::~CMemDC() {
    if (m_bMemDC) {
        m_pDC->BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), this, m_rect.left,
                      m_rect.top, SRCCOPY);
        if (m_oldBitmap != nullptr)
            SelectObject(m_oldBitmap);
        else
            ::SelectObject(m_hDC, nullptr);
    } else {
        // The handles belong to the printer's context; the base must not delete them.
        m_hDC = m_hAttribDC = nullptr;
    }
}
