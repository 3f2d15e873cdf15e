#pragma once

// CPoint, CSize and CRect: the framework's value wrappers over POINT, SIZE and RECT. A RECT
// covers left to right - 1 and top to bottom - 1, so PtInRect excludes the right and bottom
// edges, and a rectangle with right <= left is empty.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <algorithm>

class CSize : public SIZE {
public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int x, int y) : SIZE{x, y} {}
    constexpr CSize(SIZE s) : SIZE(s) {}
    constexpr bool operator==(const SIZE& s) const { return cx == s.cx && cy == s.cy; }
    constexpr bool operator==(const CSize& s) const { return cx == s.cx && cy == s.cy; }
    constexpr bool operator!=(const SIZE& s) const { return !(*this == s); }
    constexpr CSize operator+(SIZE s) const { return CSize(cx + s.cx, cy + s.cy); }
    constexpr CSize operator-(SIZE s) const { return CSize(cx - s.cx, cy - s.cy); }
    constexpr CSize operator-() const { return CSize(-cx, -cy); }
    constexpr void operator+=(SIZE s) { cx += s.cx, cy += s.cy; }
    constexpr void operator-=(SIZE s) { cx -= s.cx, cy -= s.cy; }
};

class CPoint : public POINT {
public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int x, int y) : POINT{x, y} {}
    constexpr CPoint(POINT p) : POINT(p) {}
    constexpr CPoint(SIZE s) : POINT{s.cx, s.cy} {}
    constexpr void Offset(int dx, int dy) { x += dx, y += dy; }
    constexpr void Offset(POINT p) { Offset(p.x, p.y); }
    constexpr void SetPoint(int nx, int ny) { x = nx, y = ny; }
    constexpr bool operator==(const POINT& p) const { return x == p.x && y == p.y; }
    constexpr bool operator==(const CPoint& p) const { return x == p.x && y == p.y; }
    constexpr bool operator!=(const POINT& p) const { return !(*this == p); }
    constexpr CPoint operator+(SIZE s) const { return CPoint(x + s.cx, y + s.cy); }
    constexpr CPoint operator+(POINT p) const { return CPoint(x + p.x, y + p.y); }
    constexpr CPoint operator-(SIZE s) const { return CPoint(x - s.cx, y - s.cy); }
    constexpr CSize operator-(POINT p) const { return CSize(x - p.x, y - p.y); }
    constexpr CPoint operator-() const { return CPoint(-x, -y); }
    constexpr void operator+=(SIZE s) { x += s.cx, y += s.cy; }
    constexpr void operator-=(SIZE s) { x -= s.cx, y -= s.cy; }
    constexpr void operator+=(POINT p) { x += p.x, y += p.y; }
    constexpr void operator-=(POINT p) { x -= p.x, y -= p.y; }
};

class CRect : public RECT {
public:
    constexpr CRect() : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& r) : RECT(r) {}
    constexpr CRect(const RECT* r) : RECT(*r) {}
    constexpr CRect(POINT topLeft, SIZE size)
        : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
    constexpr CRect(POINT topLeft, POINT bottomRight)
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CSize Size() const { return CSize(Width(), Height()); }
    constexpr CPoint TopLeft() const { return CPoint(left, top); }
    constexpr CPoint BottomRight() const { return CPoint(right, bottom); }
    constexpr CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
    constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    constexpr bool PtInRect(POINT p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }

    constexpr void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    constexpr void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    constexpr void CopyRect(const RECT* r) { *static_cast<RECT*>(this) = *r; }
    constexpr bool EqualRect(const RECT* r) const { return *this == *r; }

    constexpr void InflateRect(int dx, int dy) { left -= dx, top -= dy, right += dx, bottom += dy; }
    constexpr void InflateRect(SIZE s) { InflateRect(s.cx, s.cy); }
    constexpr void InflateRect(int l, int t, int r, int b) {
        left -= l, top -= t, right += r, bottom += b;
    }
    constexpr void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    constexpr void DeflateRect(SIZE s) { InflateRect(-s.cx, -s.cy); }
    constexpr void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    constexpr void OffsetRect(int dx, int dy) { left += dx, top += dy, right += dx, bottom += dy; }
    constexpr void OffsetRect(POINT p) { OffsetRect(p.x, p.y); }
    constexpr void OffsetRect(SIZE s) { OffsetRect(s.cx, s.cy); }
    constexpr void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    constexpr void MoveToX(int x) { OffsetRect(x - left, 0); }
    constexpr void MoveToY(int y) { OffsetRect(0, y - top); }
    constexpr void NormalizeRect() {
        if (left > right)
            std::swap(left, right);
        if (top > bottom)
            std::swap(top, bottom);
    }

    // Both set this rectangle and answer whether the result is non-empty.
    constexpr bool IntersectRect(const RECT* a, const RECT* b) {
        SetRect(std::max(a->left, b->left), std::max(a->top, b->top),
                std::min(a->right, b->right), std::min(a->bottom, b->bottom));
        if (IsRectEmpty()) {
            SetRectEmpty();
            return false;
        }
        return true;
    }
    constexpr bool UnionRect(const RECT* a, const RECT* b) {
        const CRect ra(*a), rb(*b);
        if (ra.IsRectEmpty())
            *this = rb;
        else if (rb.IsRectEmpty())
            *this = ra;
        else
            SetRect(std::min(a->left, b->left), std::min(a->top, b->top),
                    std::max(a->right, b->right), std::max(a->bottom, b->bottom));
        if (IsRectEmpty()) {
            SetRectEmpty();
            return false;
        }
        return true;
    }

    constexpr bool operator==(const RECT& r) const {
        return left == r.left && top == r.top && right == r.right && bottom == r.bottom;
    }
    constexpr bool operator==(const CRect& r) const { return *this == static_cast<const RECT&>(r); }
    constexpr bool operator!=(const RECT& r) const { return !(*this == r); }
    constexpr void operator+=(POINT p) { OffsetRect(p); }
    constexpr void operator-=(POINT p) { OffsetRect(-p.x, -p.y); }
    constexpr void operator&=(const RECT& r) { IntersectRect(this, &r); }
    constexpr void operator|=(const RECT& r) { UnionRect(this, &r); }
    constexpr CRect operator+(POINT p) const {
        CRect r(*this);
        r.OffsetRect(p);
        return r;
    }
    constexpr CRect operator-(POINT p) const {
        CRect r(*this);
        r.OffsetRect(-p.x, -p.y);
        return r;
    }
    constexpr CRect operator&(const RECT& o) const {
        CRect r;
        r.IntersectRect(this, &o);
        return r;
    }
    constexpr CRect operator|(const RECT& o) const {
        CRect r;
        r.UnionRect(this, &o);
        return r;
    }

    constexpr operator LPRECT() { return this; }
    constexpr operator LPCRECT() const { return this; }
};

// The framework's free rectangle functions, with the same rules as CRect.
inline BOOL SetRect(RECT* r, int l, int t, int rt, int b) {
    *r = RECT{l, t, rt, b};
    return TRUE;
}
inline BOOL SetRectEmpty(RECT* r) { return SetRect(r, 0, 0, 0, 0); }
inline BOOL CopyRect(RECT* dst, const RECT* src) {
    *dst = *src;
    return TRUE;
}
inline BOOL IsRectEmpty(const RECT* r) { return CRect(*r).IsRectEmpty(); }
inline BOOL PtInRect(const RECT* r, POINT p) { return CRect(*r).PtInRect(p); }
inline BOOL EqualRect(const RECT* a, const RECT* b) { return CRect(*a) == *b; }
inline BOOL OffsetRect(RECT* r, int dx, int dy) {
    CRect c(*r);
    c.OffsetRect(dx, dy);
    *r = c;
    return TRUE;
}
inline BOOL InflateRect(RECT* r, int dx, int dy) {
    CRect c(*r);
    c.InflateRect(dx, dy);
    *r = c;
    return TRUE;
}
inline BOOL IntersectRect(RECT* dst, const RECT* a, const RECT* b) {
    CRect c;
    const bool any = c.IntersectRect(a, b);
    *dst = c;
    return any;
}
inline BOOL UnionRect(RECT* dst, const RECT* a, const RECT* b) {
    CRect c;
    const bool any = c.UnionRect(a, b);
    *dst = c;
    return any;
}
