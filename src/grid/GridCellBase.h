#pragma once

// CGridCellBase: the whole protocol that the grid speaks to a cell. Every operation has a
// harmless fallback here, so that a cell class overrides only what it stores or draws. The
// virtual operations are declared in the order of their slots; derived classes keep it.

#include "grid/CellRange.h"
#include "platform/base/Object.h"
#include "platform/base/Rect.h"
#include "platform/base/String.h"

class CDC;
class CFont;
class CWnd;
class CGridCtrl;

// Cell state bits. The tests below return the masked bit: zero or non-zero, not 0 or 1.
constexpr UINT GV_STATE_FOCUSED = 0x0001;
constexpr UINT GV_STATE_SELECTED = 0x0002;
constexpr UINT GV_STATE_DROPHILITED = 0x0004;
constexpr UINT GV_STATE_READONLY = 0x0008;
constexpr UINT GV_STATE_FIXED = 0x0010;
constexpr UINT GV_STATE_FIXEDROW = 0x0020;
constexpr UINT GV_STATE_FIXEDCOL = 0x0040;
constexpr UINT GV_STATE_MODIFIED = 0x0080;
constexpr UINT GV_STATE_DISABLED = 0x0100;

// A cell's rectangle holds its last pixel, as the grid's geometry gives it; filling and
// invalidating take the rectangle one past it.
inline CRect ExclusiveCellRect(CRect inclusive) {
    inclusive.right++;
    inclusive.bottom++;
    return inclusive;
}

class ORVA_API CGridCellBase : public CObject {
    DECLARE_DYNCREATE(CGridCellBase)
public:
    CGridCellBase();
    ~CGridCellBase() override = default;
    CGridCellBase(const CGridCellBase&) = delete;

    // Attributes.
    virtual void SetText(LPCTSTR text) {}
    virtual void SetImage(int image) {}
    virtual void SetData(LPARAM data) {}
    virtual void SetState(DWORD state) { m_state = state; }
    virtual void SetFormat(DWORD format) {}
    virtual void SetTextClr(COLORREF color) {}
    virtual void SetBackClr(COLORREF color) {}
    virtual void SetFont(const LOGFONT* logFont) {}
    virtual void SetMargin(UINT margin) {}
    virtual void SetGrid(CGridCtrl* grid) {}
    virtual void SetCoords(int row, int col) {}

    virtual LPCTSTR GetText() const { return nullptr; }
    virtual LPCTSTR GetTipText() const { return GetText(); }
    virtual int GetImage() const { return -1; }
    virtual LPARAM GetData() const { return 0; }
    virtual DWORD GetState() const { return m_state; }
    virtual DWORD GetFormat() const { return 0; }
    virtual COLORREF GetTextClr() const { return 0; }
    virtual COLORREF GetBackClr() const { return 0; }
    virtual LOGFONT* GetFont() const { return nullptr; }
    virtual CFont* GetFontObject() const { return nullptr; }
    virtual CGridCtrl* GetGrid() const { return nullptr; }
    virtual CWnd* GetEditWnd() const { return nullptr; }
    virtual UINT GetMargin() const { return 0; }
    // The grid's default cell for this cell's kind of position; null without a grid.
    virtual CGridCellBase* GetDefaultCell() const;

    virtual BOOL IsDefaultFont() const { return FALSE; }
    virtual BOOL IsEditing() const { return FALSE; }
    virtual BOOL IsFocused() const { return m_state & GV_STATE_FOCUSED; }
    virtual BOOL IsFixed() const { return m_state & GV_STATE_FIXED; }
    virtual BOOL IsFixedCol() const { return m_state & GV_STATE_FIXEDCOL; }
    virtual BOOL IsFixedRow() const { return m_state & GV_STATE_FIXEDROW; }
    virtual BOOL IsSelected() const { return m_state & GV_STATE_SELECTED; }
    virtual BOOL IsReadOnly() const { return m_state & GV_STATE_READONLY; }
    virtual BOOL IsDisabled() const { return m_state & GV_STATE_DISABLED; }
    virtual BOOL IsModified() const { return m_state & GV_STATE_MODIFIED; }
    virtual BOOL IsDropHighlighted() const { return m_state & GV_STATE_DROPHILITED; }

    // Copies through the virtual operations, so that it works between cell classes.
    virtual CGridCellBase& operator=(const CGridCellBase& source);
    virtual void Reset();

    // Drawing and measuring.
    virtual BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE);
    virtual BOOL GetTextRect(LPRECT rect);
    virtual BOOL GetTipTextRect(LPRECT rect) { return GetTextRect(rect); }
    virtual CSize GetTextExtent(LPCTSTR text, CDC* dc = nullptr);
    virtual CSize GetCellExtent(CDC* dc);

    // Editing.
    virtual BOOL Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
        return FALSE;
    }
    virtual BOOL ValidateEdit(LPCTSTR text) { return TRUE; }
    virtual void EndEdit() {}

    virtual BOOL PrintCell(CDC* dc, int row, int col, CRect rect);

    virtual void OnEndEdit() {}
    virtual void OnMouseEnter() {}
    virtual void OnMouseOver() {}
    virtual void OnMouseLeave() {}
    virtual void OnClick(CPoint point) {}
    virtual BOOL OnClickDown(CPoint point, int row, int col) { return FALSE; }
    virtual void OnRClick(CPoint point) {}
    virtual void OnDblClick(CPoint point, int row, int col) {}
    virtual BOOL OnSetCursor();

    // Merging.
    virtual bool IsShow() const { return !m_hide; }
    virtual CCellRange GetMergeRange() const { return m_mergeRange; }
    virtual bool IsMergeWithOthers() const { return m_hasMergeCell; }
    virtual CCellID GetMergeCellID() const { return m_mergeCell; }
    virtual void SetMergeCellID(CCellID cell);

    void Show(bool show) { m_hide = !show; }
    void SetMergeRange(CCellRange range) { m_mergeRange = range; }
    // A one-cell range and the unset range both count 1, so neither is merged.
    bool IsMerged() const { return m_mergeRange.Count() > 1; }
    void UnMerge();

    void DrawDisabled(CDC* dc, CRect rect);
    // The grid's cell notification on behalf of this cell; 0 without a grid or its window.
    LRESULT SendMessageToParent(int row, int col, int code);

protected:
    DWORD m_state;
    CCellRange m_mergeRange;
    // The two flags sit together so that a text cell stays within its allocation size class.
    bool m_hasMergeCell;
    bool m_hide;
    CCellID m_mergeCell;
};
