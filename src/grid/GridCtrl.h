#pragma once

// CGridCtrl: the spreadsheet control. It owns its rows and, through them, its cells, which it
// makes from a run-time class. Sizes of rows and columns live in two arrays; every position
// is derived from them on demand. In virtual mode no cell is stored: each one is made up on
// request from the default cell and the application's answer to a display request.
//
// The store works without a window: a grid can be built, sized, filled and read back before
// (or without) Create. Window steps (repaint, scroll bars) are skipped while there is none.

#include "grid/CellRange.h"
#include "grid/GridCell.h"
#include "grid/GridDefaultCell.h"
#include "grid/GridItem.h"
#include "grid/GridNotify.h"
#include "platform/window/OleDataObject.h"
#include "platform/window/Wnd.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

class CGridDropTarget;
class CImageList;
class CPrintInfo;

#define GRIDCTRL_CLASSNAME "ORVAGridCtrl"

// Grid lines drawn.
constexpr int GVL_NONE = 0;
constexpr int GVL_HORZ = 1;
constexpr int GVL_VERT = 2;
constexpr int GVL_BOTH = 3;

// Auto size styles: which rows are measured.
constexpr UINT GVS_DEFAULT = 0;
constexpr UINT GVS_HEADER = 1;
constexpr UINT GVS_DATA = 2;
constexpr UINT GVS_BOTH = 3;

// Search flags of GetNextItem.
constexpr int GVNI_FOCUSED = 0x0001;
constexpr int GVNI_SELECTED = 0x0002;
constexpr int GVNI_DROPHILITED = 0x0004;
constexpr int GVNI_READONLY = 0x0008;
constexpr int GVNI_FIXED = 0x0010;
constexpr int GVNI_MODIFIED = 0x0020;
constexpr int GVNI_DISABLED = 0x0100;
constexpr int GVNI_ABOVE = 0x0100;
constexpr int GVNI_BELOW = 0x0200;
constexpr int GVNI_TOLEFT = 0x0400;
constexpr int GVNI_TORIGHT = 0x0800;
constexpr int GVNI_ALL = GVNI_BELOW | GVNI_TORIGHT | GVNI_TOLEFT;
constexpr int GVNI_AREA = GVNI_BELOW | GVNI_TORIGHT;

// Mouse modes.
enum {
    MOUSE_NOTHING = 0,
    MOUSE_SELECT_ALL = 1,
    MOUSE_SELECT_COL = 2,
    MOUSE_SELECT_ROW = 3,
    MOUSE_SELECT_CELLS = 4,
    MOUSE_OVER_ROW_DIVIDE = 6,
    MOUSE_SIZING_ROW = 7,
    MOUSE_OVER_COL_DIVIDE = 8,
    MOUSE_SIZING_COL = 9,
    MOUSE_PREPARE_EDIT = 10,
    MOUSE_AUTOFILL = 11,
    MOUSE_PREPARE_DRAG = 12,
    MOUSE_DRAGGING = 13,
};

// The virtual mode's source of cell data: fills the item and answers TRUE.
using GRIDCALLBACK = BOOL (*)(GV_DISPINFO* dispInfo, LPARAM data);
// A sort comparison of two cells, handed their addresses and the caller's value.
using PFNLVCOMPARE = int (*)(LPARAM cell1, LPARAM cell2, LPARAM data);

// The control id of every in-place editor; the grid hears the end of an edit from this id.
constexpr UINT IDC_INPLACE_CONTROL = 8;
// The event id of the auto-scroll timer that runs while the mouse drags a selection.
constexpr UINT_PTR GRID_AUTOSCROLL_TIMER = 0x201;

// The standard edit command ids that the grid answers.
constexpr UINT ID_EDIT_COPY = 57634;
constexpr UINT ID_EDIT_CUT = 57635;
constexpr UINT ID_EDIT_PASTE = 57637;
constexpr UINT ID_EDIT_SELECT_ALL = 57642;

class ORVA_API CGridCtrl : public CWnd {
    DECLARE_DYNCREATE(CGridCtrl)
public:
    explicit CGridCtrl(int rows = 0, int cols = 0, int fixedRows = 0, int fixedCols = 0);
    ~CGridCtrl() override;

    BOOL Create(const RECT& rect, CWnd* parent, UINT id,
                DWORD style = WS_CHILD | WS_BORDER | WS_TABSTOP | WS_VISIBLE);

    // Shape.
    int GetRowCount() const { return m_rowCount; }
    int GetColumnCount() const { return m_colCount; }
    int GetFixedRowCount() const { return m_fixedRowCount; }
    int GetFixedColumnCount() const { return m_fixedColCount; }
    BOOL SetRowCount(int rows = 10);
    BOOL SetColumnCount(int cols = 10);
    BOOL SetFixedRowCount(int fixedRows = 1);
    BOOL SetFixedColumnCount(int fixedCols = 1);
    int GetHiddenColumnCount() const;
    int InsertColumn(LPCTSTR heading, UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                     int column = -1);
    int InsertRow(LPCTSTR heading, int row = -1);
    BOOL DeleteColumn(int column);
    BOOL DeleteRow(int row);
    BOOL DeleteNonFixedRows();
    BOOL DeleteNonFixedColumns();
    BOOL DeleteAllItems();
    void ClearCells(CCellRange selection);

    BOOL IsValid(int row, int col) const;
    BOOL IsValid(const CCellID& cell) const { return IsValid(cell.row, cell.col); }
    BOOL IsValid(const CCellRange& range) const;

    // Sizes; 0 is hidden.
    int GetRowHeight(int row) const;
    int GetColumnWidth(int col) const;
    BOOL SetRowHeight(int row, int height, BOOL resetScrollBars = TRUE);
    BOOL SetColumnWidth(int col, int width);
    int GetFixedRowHeight() const;
    int GetFixedColumnWidth() const;
    long GetVirtualWidth() const;
    long GetVirtualHeight() const;

    // Geometry and scrolling.
    BOOL GetCellOrigin(int row, int col, LPPOINT point);
    BOOL GetCellOrigin(const CCellID& cell, LPPOINT point);
    BOOL GetCellOriginNoMerge(int row, int col, LPPOINT point);
    BOOL GetCellRect(int row, int col, LPRECT rect);
    BOOL GetCellRect(const CCellID& cell, LPRECT rect);
    BOOL GetTextRect(int row, int col, LPRECT rect);
    BOOL GetTextRect(const CCellID& cell, LPRECT rect);
    CCellID GetCellFromPt(CPoint point, BOOL allowFixedCellCheck = TRUE);
    CCellRange GetVisibleNonFixedCellRange(LPRECT rect = nullptr, BOOL forceRecalculation = FALSE);
    CCellRange GetUnobstructedNonFixedCellRange(BOOL forceRecalculation = FALSE);
    BOOL IsCellVisible(int row, int col);
    BOOL IsCellVisible(CCellID cell) { return IsCellVisible(cell.row, cell.col); }
    void EnsureVisible(int row, int col);
    void EnsureVisible(CCellID cell) { EnsureVisible(cell.row, cell.col); }
    BOOL IsVisibleVScroll() const { return (m_barState & 2) != 0; }
    BOOL IsVisibleHScroll() const { return (m_barState & 1) != 0; }
    void EnableScrollBars(int bar, BOOL enable = TRUE);
    int GetScrollPos32(int bar, BOOL thumbTrack = FALSE);
    BOOL SetScrollPos32(int bar, int position, BOOL redraw = TRUE);
    void AutoSize(UINT style = 0);
    BOOL AutoSizeColumn(int col, UINT style = 0, BOOL resetScrollBars = TRUE);
    BOOL AutoSizeRow(int row, BOOL resetScrollBars = TRUE);
    void AutoSizeColumns(UINT style = 0);
    void AutoSizeRows();
    void ExpandColumnToFit(int col);
    void ExpandColumnsToFit(BOOL expandFixed = TRUE);
    void ExpandLastColumn();
    void ExpandRowsToFit(BOOL expandFixed = TRUE);
    void ExpandToFit(BOOL expandFixed = TRUE);
    UINT GetAutoSizeStyle() const { return m_autoSizeStyle; }
    void SetAutoSizeStyle(UINT style = GVS_BOTH) { m_autoSizeStyle = style; }

    // Colours and grid-wide cell defaults.
    void SetGridBkColor(COLORREF color) { m_gridBkColor = color; }
    COLORREF GetGridBkColor() const { return m_gridBkColor; }
    void SetBkColor(COLORREF color) { m_gridBkColor = color; }
    COLORREF GetBkColor() const { return m_gridBkColor; }
    void SetGridColor(COLORREF color) { m_gridLineColor = color; }
    COLORREF GetGridColor() const { return m_gridLineColor; }
    void SetTitleTipBackClr(COLORREF color = CLR_DEFAULT) { m_titleTipBackColor = color; }
    COLORREF GetTitleTipBackClr() const { return m_titleTipBackColor; }
    void SetTitleTipTextClr(COLORREF color = CLR_DEFAULT) { m_titleTipTextColor = color; }
    COLORREF GetTitleTipTextClr() const { return m_titleTipTextColor; }
    void SetTextColor(COLORREF color) { m_cellDefault.SetTextClr(color); }
    COLORREF GetTextColor() const { return m_cellDefault.GetTextClr(); }
    void SetTextBkColor(COLORREF color) { m_cellDefault.SetBackClr(color); }
    COLORREF GetTextBkColor() const { return m_cellDefault.GetBackClr(); }
    void SetFixedTextColor(COLORREF color);
    COLORREF GetFixedTextColor() const { return m_cellFixedRowDef.GetTextClr(); }
    void SetFixedBkColor(COLORREF color);
    COLORREF GetFixedBkColor() const { return m_cellFixedRowDef.GetBackClr(); }
    void SetDefCellMargin(int margin);
    int GetDefCellMargin() const { return int(m_cellDefault.GetMargin()); }
    void SetDefCellHeight(int height);
    int GetDefCellHeight() const { return m_cellDefault.GetHeight(); }
    void SetDefCellWidth(int width);
    int GetDefCellWidth() const { return m_cellDefault.GetWidth(); }
    CGridDefaultCell* GetDefaultCell(BOOL fixedRow, BOOL fixedCol) const;

    // Behaviour flags.
    void SetImageList(CImageList* imageList) { m_imageList = imageList; }
    CImageList* GetImageList() const { return m_imageList; }
    void SetGridLines(int whichLines = GVL_BOTH);
    int GetGridLines() const { return m_gridLines; }
    void SetEditable(BOOL editable = TRUE) { m_editable = editable; }
    BOOL IsEditable() const { return m_editable; }
    void SetListMode(BOOL enableListMode = TRUE);
    BOOL GetListMode() const { return m_listMode; }
    void SetSingleRowSelection(BOOL single = TRUE) { m_singleRowSelection = single; }
    BOOL GetSingleRowSelection() const { return m_singleRowSelection && m_listMode; }
    void SetSingleColSelection(BOOL single = TRUE) { m_singleColSelection = single; }
    BOOL GetSingleColSelection() const { return m_singleColSelection; }
    void EnableSelection(BOOL enable = TRUE) { m_enableSelection = enable; }
    BOOL IsSelectable() const { return m_enableSelection; }
    void SetFixedColumnSelection(BOOL select) { m_fixedColumnSelection = select; }
    BOOL GetFixedColumnSelection() const { return m_fixedColumnSelection; }
    void SetFixedRowSelection(BOOL select) { m_fixedRowSelection = select; }
    BOOL GetFixedRowSelection() const { return m_fixedRowSelection; }
    void EnableDragAndDrop(BOOL allow = TRUE) { m_allowDragAndDrop = allow; }
    BOOL GetDragAndDrop() const { return m_allowDragAndDrop; }
    void SetRowResize(BOOL resize = TRUE) { m_allowRowResize = resize; }
    BOOL GetRowResize() const { return m_allowRowResize; }
    void SetColumnResize(BOOL resize = TRUE) { m_allowColumnResize = resize; }
    BOOL GetColumnResize() const { return m_allowColumnResize; }
    void SetHeaderSort(BOOL sortOnClick = TRUE) { m_sortOnClick = sortOnClick; }
    BOOL GetHeaderSort() const { return m_sortOnClick; }
    void SetHandleTabKey(BOOL handleTab = TRUE) { m_handleTabKey = handleTab; }
    BOOL GetHandleTabKey() const { return m_handleTabKey; }
    void SetDoubleBuffering(BOOL buffer = TRUE) { m_doubleBuffer = buffer; }
    BOOL GetDoubleBuffering() const { return m_doubleBuffer; }
    void EnableTitleTips(BOOL enable = TRUE) { m_titleTips = enable; }
    BOOL GetTitleTips() const { return m_titleTips; }
    void SetSortColumn(int col);
    int GetSortColumn() const { return m_sortColumn; }
    void SetSortAscending(BOOL ascending) { m_ascending = ascending; }
    BOOL GetSortAscending() const { return m_ascending; }
    void SetCompareFunction(PFNLVCOMPARE compare) { m_compareFunction = compare; }
    void SetTrackFocusCell(BOOL track) { m_trackFocusCell = track; }
    BOOL GetTrackFocusCell() const { return m_trackFocusCell; }
    void SetFrameFocusCell(BOOL frame) { m_frameFocus = frame; }
    BOOL GetFrameFocusCell() const { return m_frameFocus; }
    void EnableHiddenColUnhide(BOOL enable = TRUE) { m_hiddenColUnhide = enable; }
    BOOL GetHiddenColUnhide() const { return m_hiddenColUnhide; }
    void EnableHiddenRowUnhide(BOOL enable = TRUE) { m_hiddenRowUnhide = enable; }
    BOOL GetHiddenRowUnhide() const { return m_hiddenRowUnhide; }
    void EnableColumnHide(BOOL enable = TRUE) { m_allowColHide = enable; }
    BOOL GetColumnHide() const { return m_allowColHide; }
    void EnableRowHide(BOOL enable = TRUE) { m_allowRowHide = enable; }
    BOOL GetRowHide() const { return m_allowRowHide; }
    void EnableCustomTabs(BOOL enable = TRUE) { m_customTabs = enable; }
    BOOL GetCustomTabs() const { return m_customTabs; }
    void EnableWysiwygPrinting(BOOL enable = TRUE) { m_wysiwygPrinting = enable; }
    BOOL GetWysiwygPrinting() const { return m_wysiwygPrinting; }
    void SetShadedPrintOut(BOOL enable = TRUE) { m_shadedPrintOut = enable; }
    BOOL GetShadedPrintOut() const { return m_shadedPrintOut; }
    void SetPrintMarginInfo(int headerHeight, int footerHeight, int leftMargin, int rightMargin,
                            int topMargin, int bottomMargin, int gap);
    void GetPrintMarginInfo(int& headerHeight, int& footerHeight, int& leftMargin, int& rightMargin,
                            int& topMargin, int& bottomMargin, int& gap) const;
    void SetRedraw(BOOL allowDraw, BOOL resetScrollBars = FALSE);
    int GetMouseMode() const { return m_mouseMode; }
    int SetMouseMode(int mode);

    // Sorting. A sort keeps fixed rows in place and moves whole rows, cell pointers and heights.
    BOOL SortItems(int col, BOOL ascending, LPARAM data = 0);
    BOOL SortTextItems(int col, BOOL ascending, LPARAM data = 0);
    BOOL SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data = 0);
    static int pfnCellTextCompare(LPARAM cell1, LPARAM cell2, LPARAM data);
    static int pfnCellNumericCompare(LPARAM cell1, LPARAM cell2, LPARAM data);
    // Fills the client area with an empty grid of default cells; not the fill handle.
    void AutoFill();
    // The next value of a fill series from the two values before it (`near` the closer one).
    static CString NextInSeries(const CString& nearText, const CString& farText);

    // Virtual mode.
    void SetVirtualMode(BOOL virtualMode);
    BOOL GetVirtualMode() const { return m_virtualMode; }
    void SetCallbackFunc(GRIDCALLBACK callback, LPARAM data);
    GRIDCALLBACK GetCallbackFunc() const { return m_callback; }

    // Cells.
    CGridCellBase* GetCell(int row, int col) const;
    CGridCellBase* GetCell(const CCellID& cell) const { return GetCell(cell.row, cell.col); }
    BOOL SetCellType(int row, int col, CRuntimeClass* cellClass);
    BOOL SetDefaultCellType(CRuntimeClass* cellClass);

    // Items.
    BOOL GetItem(GV_ITEM* item);
    BOOL SetItem(const GV_ITEM* item);
    CString GetItemText(int row, int col) const;
    BOOL SetItemText(int row, int col, LPCTSTR text);
    BOOL SetItemTextFmt(int row, int col, LPCTSTR format, ...)
        __attribute__((format(printf, 4, 5)));
    LPARAM GetItemData(int row, int col) const;
    BOOL SetItemData(int row, int col, LPARAM data);
    int GetItemImage(int row, int col) const;
    BOOL SetItemImage(int row, int col, int image);
    UINT GetItemState(int row, int col) const;
    BOOL SetItemState(int row, int col, UINT state);
    UINT GetItemFormat(int row, int col) const;
    BOOL SetItemFormat(int row, int col, UINT format);
    COLORREF GetItemBkColour(int row, int col) const;
    BOOL SetItemBkColour(int row, int col, COLORREF color = CLR_DEFAULT);
    COLORREF GetItemFgColour(int row, int col) const;
    BOOL SetItemFgColour(int row, int col, COLORREF color = CLR_DEFAULT);
    const LOGFONT* GetItemFont(int row, int col);
    BOOL SetItemFont(int row, int col, const LOGFONT* logFont);
    BOOL IsItemEditing(int row, int col);
    BOOL IsCellEditable(int row, int col) const;
    BOOL IsCellEditable(const CCellID& cell) const { return IsCellEditable(cell.row, cell.col); }
    BOOL IsCellFixed(int row, int col) const;
    BOOL GetModified(int row = -1, int col = -1);
    void SetModified(BOOL modified = TRUE, int row = -1, int col = -1);

    // Selection and focus.
    CCellID SetFocusCell(CCellID cell);
    CCellID SetFocusCell(int row, int col) { return SetFocusCell(CCellID(row, col)); }
    CCellID GetFocusCell() const { return m_focusCell; }
    void SetSelectedRange(const CCellRange& range, BOOL forceRepaint = FALSE, BOOL select = TRUE);
    void SetSelectedRange(int minRow, int minCol, int maxRow, int maxCol, BOOL forceRepaint = FALSE,
                          BOOL select = TRUE);
    CCellRange GetSelectedCellRange() const;
    CCellRange GetCellRange() const;
    int GetSelectedCount() const { return int(m_selectedCellMap.size()); }
    BOOL IsCellSelected(int row, int col) const;
    BOOL IsCellSelected(CCellID cell) const { return IsCellSelected(cell.row, cell.col); }
    BOOL IsSelectedContinuous();
    void ResetSelectedRange();
    CCellID GetNextItem(CCellID& cell, int flags) const;
    void EnableCell(int row, int col, BOOL enable = TRUE);

    // Merged cells.
    void MergeCells(int minRow, int minCol, int maxRow, int maxCol);
    void UnMergeCells(int minRow, int minCol, int maxRow, int maxCol);
    void MergeSelectedCells();
    void UnMergeSelectedCells();
    CCellID GetMergeCellID(CCellID cell);
    int GetMergeCellWidth(CCellID cell);
    int GetMergeCellHeight(CCellID cell);

    // Repainting.
    BOOL RedrawCell(int row, int col, CDC* dc = nullptr);
    BOOL RedrawCell(const CCellID& cell, CDC* dc = nullptr) {
        return RedrawCell(cell.row, cell.col, dc);
    }
    BOOL RedrawRow(int row);
    BOOL RedrawColumn(int col);
    void Refresh();

    // Notifications to the owner, or the parent when there is no owner; 0 without a window.
    LRESULT SendMessageToParent(int row, int col, int code) const;
    LRESULT SendDisplayRequestToParent(GV_DISPINFO* dispInfo) const;
    LRESULT SendCacheHintToParent(const CCellRange& range) const;

    // The made-up cell of virtual mode and the request that fills it, shared by every grid
    // and overwritten by each GetCell: single-threaded by design, as the whole grid is.
    static GV_DISPINFO gvdi;
    static CGridCell cell;

    // Overridable operations, in the order of their slots.
    virtual void CutSelectedText();
    virtual COleDataSource* CopyTextFromGrid();
    virtual BOOL PasteTextToGrid(CCellID cell, COleDataObject* dataObject);
    virtual void OnEditCut();
    virtual void OnEditCopy();
    virtual void OnEditPaste();
    virtual void OnEditSelectAll();
    virtual void OnBeginPrinting(CDC* dc, CPrintInfo* info);
    virtual void OnPrint(CDC* dc, CPrintInfo* info);
    virtual void OnEndPrinting(CDC* dc, CPrintInfo* info);
    virtual void ValidateAndModifyCellContents(int row, int col, LPCTSTR text);

    // Drag and drop, called by the drop target and the mouse code.
    DROPEFFECT OnDragEnter(COleDataObject* dataObject, DWORD keyState, CPoint point);
    DROPEFFECT OnDragOver(COleDataObject* dataObject, DWORD keyState, CPoint point);
    void OnDragLeave();
    BOOL OnDrop(COleDataObject* dataObject, DROPEFFECT dropEffect, CPoint point);
    void OnBeginDrag();

    // Editing: the whole road of a change of text, and its end from outside.
    virtual void OnEditCell(int row, int col, CPoint point, UINT ch);
    virtual void OnEndEditCell(int row, int col, CString text);
    virtual BOOL ValidateEdit(int row, int col, LPCTSTR text);
    virtual void EndEditing();

protected:
    virtual void PrintFixedRowCells(int startColumn, int stopColumn, int& row, CRect& rect, CDC* dc,
                                    BOOL& firstPage);
    virtual void PrintColumnHeadings(CDC* dc, CPrintInfo* info);
    virtual void PrintHeader(CDC* dc, CPrintInfo* info);
    virtual void PrintFooter(CDC* dc, CPrintInfo* info);
    virtual void PrintRowButtons(CDC* dc, CPrintInfo* info);
    virtual CImageList* CreateDragImage(CPoint* hotSpot);
    virtual void OnFixedColumnClick(CCellID& cell);
    virtual void OnFixedRowClick(CCellID& cell);
    // The last step of a change of text: the cell validates it and the application may refuse
    // it; a refused text is put back to oldText.
    void AcceptOrRollBackEdit(int row, int col, LPCTSTR text, const CString& oldText);
    virtual void OnDraw(CDC* dc);
    virtual CGridCellBase* CreateCell(int row, int col);
    virtual void DestroyCell(int row, int col);
    virtual void OnCellChanged(int row, int col) {}
    virtual void OnRClick(int row, int col, CPoint point) {}

    // Window messages.
    void OnPaint() override;
    BOOL OnEraseBkgnd(CDC* dc) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar) override;
    void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar) override;
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) override;
    void OnLButtonDown(UINT flags, CPoint point) override;
    void OnLButtonUp(UINT flags, CPoint point) override;
    void OnLButtonDblClk(UINT flags, CPoint point) override;
    void OnMouseMove(UINT flags, CPoint point) override;
    void OnRButtonDown(UINT flags, CPoint point) override;
    void OnRButtonUp(UINT flags, CPoint point) override;
    void OnTimer(UINT_PTR id) override;
    BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message) override;
    void OnCaptureChanged(CWnd* wnd) override;
    void OnKeyDown(UINT key, UINT repeat, UINT flags) override;
    void OnChar(UINT key, UINT repeat, UINT flags) override;
    UINT OnGetDlgCode() override;
    void OnDestroy() override;
    // The font of the grid's cells, which in-place editors take.
    HFONT OnGetFont() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // The end of an in-place edit, from the editor's notification.
    void OnEndInPlaceEdit(NMHDR* notify, LRESULT* result);

    // Mouse helpers.
    BOOL MouseOverRowResizeArea(CPoint& point);
    BOOL MouseOverColumnResizeArea(CPoint& point);
    CPoint GetPointClicked(int row, int col, const CPoint& point);
    void StartDividerDrag(bool columns, CPoint point);
    void EndDividerDrag(bool columns, CPoint point);
    void InvertTrackingBand(bool columns, CPoint point);
    CCellRange FillOutline(CPoint point);
    CRect OutlineRect(const CCellRange& range);
    // Shows `range` as the fill outline in place of the one shown, or only erases with null.
    void DrawRect(std::unique_ptr<CCellRange> range);
    BOOL IsInAutoFillCornor(CPoint point, CCellID cell);
    // Drag and drop glue.
    void RegisterDropTarget();
    void SetDropHighlight(const CCellID& cell, bool on);
    // Whether the edit command with this id can run now.
    BOOL IsEditCommandEnabled(UINT id);

    // Window glue. Every window the grid is bound to, created or subclassed, is initialised.
    void PreSubclassWindow() override;
    void Initialise();
    void SetupDefaultCells();
    void OnSysColorChange() override;
    void OnSettingChange(UINT flags, LPCTSTR section) override;
    void FollowSystemColours();
    CWnd* NotifyTarget() const;
    // Stamps a record's header with this grid and the code, and sends it to the notify target.
    LRESULT SendNotification(NMHDR& header, UINT code) const;

    // Puts a cell in place, the grid owning it; the cell that was there goes.
    BOOL SetCell(int row, int col, std::unique_ptr<CGridCellBase> cell);
    CCellID GetTopleftNonFixedCell(BOOL forceRecalculation = FALSE);
    BOOL GetCellRangeRect(const CCellRange& cellRange, LPRECT rect);
    void ResetScrollBars();
    void EraseBkgnd(CDC* dc);
    BOOL InvalidateCellRect(int row, int col);
    BOOL InvalidateCellRect(const CCellID& cell) { return InvalidateCellRect(cell.row, cell.col); }
    BOOL InvalidateCellRect(const CCellRange& cellRange);
    void SelectAllCells();
    void SelectColumns(CCellID cell, BOOL forceRedraw = FALSE, BOOL select = TRUE);
    void SelectRows(CCellID cell, BOOL forceRedraw = FALSE, BOOL select = TRUE);
    void SelectCells(CCellID cell, BOOL forceRedraw = FALSE, BOOL select = TRUE);
    void OnSelecting(const CCellID& cell);

    // Keyboard: one key press, from the focus cell to the cell it leads to.
    struct KeyMove;
    bool StandardKey(UINT key, bool shift, bool control, KeyMove& move);
    bool CustomTabsKey(UINT key, bool shift, KeyMove& move);
    void FinishKeyMove(UINT key, bool shift, KeyMove& move);
    int PageStep(UINT code, KeyMove& move);
    void PageDown(KeyMove& move);
    void PageUp(KeyMove& move);
    // The next or previous row of non-zero height, not into the fixed rows; -1 for none.
    int NextVisibleRow(int from) const;
    int PreviousVisibleRow(int from) const;
    void ClearSelectedEditableCells();

    // Sorting: the quicksort on rows `low` to `high` (-1: the last row).
    BOOL SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data, int low, int high);
    void SwapRows(int row1, int row2);
    // The text sort of rows `low` to `high` over keys gathered once; false when a row has no
    // cell in the column, and nothing has moved.
    bool SortRowsByTextKeys(int col, BOOL ascending, int low, int high);
    // The fill handle: the fill of a drag ending over `target`, and the copy down a column.
    void FillByDrag(const CCellID& target);
    void FillDown(const CCellID& source);
    void FillCell(int row, int col, const CString& text);

    using GridRow = std::vector<std::unique_ptr<CGridCellBase>>;
    using CellMap = std::map<DWORD, CCellID>;

    static DWORD SelectionKey(int row, int col) { return DWORD(col) << 16 | DWORD(row & 0xFFFF); }
    // Checked element access: an index outside an array is a broken invariant.
    GridRow* RowAt(int row) const;
    UINT& HeightAt(int row);
    UINT& WidthAt(int col);
    void ClearSelectionAndFocus();
    // The cached top-left cell in view is worked out again when next asked for.
    void ForgetTopLeftCell() { m_topLeftCell.col = -1; }
    // A row of cells made by CreateCell for `row`, whole, before it joins the store.
    std::unique_ptr<GridRow> MakeRow(int row);
    void ReadWheelScrollLines();
    // The origin of a cell in a walk over the sizes; false for a cell scrolled out of view.
    BOOL CellOrigin(int row, int col, CPoint& origin);
    // One cell of a paint pass; a merged block is kept back in `blocks` and drawn once, last.
    void DrawCellInPass(CDC* dc, int row, int col, const CRect& rect, std::vector<CCellID>& blocks);
    void DrawMergedBlock(CDC* dc, const CCellID& topLeft);
    void DrawGridLines(CDC* dc, const CCellRange& visible, const CRect& visibleRect);
    void DrawGridLine(CDC* dc, bool vertical, int at, int from, int to);
    void ScrollBy(int bar, UINT code);
    void RedrawFocusHeadings(const CCellID& cell, const CCellID& other);
    // Runs a step that allocates. A failed allocation is reported through the memory
    // exception's own box and answers false; what the step made before failing stays.
    static bool Allocating(const std::function<void()>& step);

    // Store.
    std::vector<UINT> m_rowHeights;
    std::vector<UINT> m_colWidths;
    std::vector<std::unique_ptr<GridRow>> m_rowData;
    int m_rowCount = 0;
    int m_colCount = 0;
    int m_fixedRowCount = 0;
    int m_fixedColCount = 0;

    CGridDefaultCell m_cellDefault;
    CGridDefaultCell m_cellFixedColDef;
    CGridDefaultCell m_cellFixedRowDef;
    CGridDefaultCell m_cellFixedRowColDef;
    CRuntimeClass* m_defaultCellClass;

    // Colours.
    COLORREF m_gridBkColor;
    COLORREF m_gridLineColor;
    COLORREF m_sysTextColor;
    COLORREF m_sysWindowColor;
    COLORREF m_sysFaceColor;
    COLORREF m_sysShadowColor;
    COLORREF m_titleTipBackColor = CLR_DEFAULT;
    COLORREF m_titleTipTextColor = CLR_DEFAULT;

    // Behaviour.
    BOOL m_virtualMode = FALSE;
    GRIDCALLBACK m_callback = nullptr;
    LPARAM m_callbackData = 0;
    int m_gridLines = GVL_BOTH;
    BOOL m_editable = TRUE;
    BOOL m_modified = FALSE;
    BOOL m_allowDragAndDrop = FALSE;
    BOOL m_listMode = FALSE;
    BOOL m_singleRowSelection = FALSE;
    BOOL m_singleColSelection = FALSE;
    BOOL m_allowDraw = TRUE;
    BOOL m_enableSelection = TRUE;
    BOOL m_fixedRowSelection = TRUE;
    BOOL m_fixedColumnSelection = TRUE;
    BOOL m_sortOnClick = FALSE;
    BOOL m_handleTabKey = TRUE;
    BOOL m_doubleBuffer = TRUE;
    BOOL m_titleTips = TRUE;
    int m_barState = 0;
    BOOL m_wysiwygPrinting = FALSE;
    BOOL m_hiddenColUnhide = TRUE;
    BOOL m_hiddenRowUnhide = TRUE;
    BOOL m_allowColHide = TRUE;
    BOOL m_allowRowHide = TRUE;
    BOOL m_trackFocusCell = TRUE;
    BOOL m_frameFocus = TRUE;
    BOOL m_customTabs = FALSE;
    UINT m_autoSizeStyle = GVS_BOTH;
    int m_vScrollMax = 0;
    int m_hScrollMax = 0;
    CImageList* m_imageList = nullptr;

    // Mouse and focus.
    int m_mouseMode = MOUSE_NOTHING;
    BOOL m_lMouseButtonDown = FALSE;
    BOOL m_rMouseButtonDown = FALSE;
    CPoint m_lastMousePoint{0, 0};
    CPoint m_leftClickDownPoint{0, 0};
    CCellID m_leftClickDownCell;
    CCellID m_selectionStartCell;
    CCellID m_focusCell;
    CCellID m_topLeftCell;
    UINT_PTR m_timerId = 0;
    int m_timerInterval = 25;
    int m_resizeCaptureRange = 3;
    BOOL m_allowRowResize = TRUE;
    BOOL m_allowColumnResize = TRUE;
    int m_rowsPerWheelNotch = 3;
    CellMap m_selectedCellMap;
    CellMap m_prevSelectedCellMap;
    CCellID m_lastDragOverCell;
    std::unique_ptr<CCellRange> m_fillOutline;
    std::unique_ptr<CGridDropTarget> m_dropTarget;

    // Sorting.
    BOOL m_ascending = TRUE;
    int m_sortColumn = -1;
    PFNLVCOMPARE m_compareFunction = nullptr;

    // Printing.
    BOOL m_shadedPrintOut = TRUE;
    int m_printHeaderHeight = 2;
    int m_printFooterHeight = 2;
    int m_printLeftMargin = 4;
    int m_printRightMargin = 4;
    int m_printTopMargin = 1;
    int m_printBottomMargin = 1;
    int m_printGap = 1;
};
