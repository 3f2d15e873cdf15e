#pragma once

// CMemDC: an off-screen drawing context for flicker-free painting. It covers the target's clip
// box with a bitmap of that size, lets the caller draw in the target's coordinates, and copies
// the picture to the target when it dies. On a printer it draws straight through instead.

#include "platform/base/Export.h"
#include "platform/gdi/DC.h"

class ORVA_API CMemDC : public CDC {
public:
    explicit CMemDC(CDC* pDC);
    ~CMemDC() override;
    CMemDC(const CMemDC&) = delete;
    CMemDC& operator=(const CMemDC&) = delete;

    CMemDC* operator->() { return this; }
    operator CMemDC*() { return this; }

private:
    CBitmap m_bitmap;     // the off-screen picture, owned
    CBitmap* m_oldBitmap; // selected before; put back at the end
    CDC* m_pDC;           // the target, not owned
    CRect m_rect;         // what is covered, in the target's logical coordinates
    BOOL m_bMemDC;        // buffering is on
};
