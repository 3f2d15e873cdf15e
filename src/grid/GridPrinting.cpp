// Printing is the application's to shape: the grid keeps its margins and prints nothing itself.

#include "grid/GridCtrl.h"

void CGridCtrl::SetPrintMarginInfo(int headerHeight, int footerHeight, int leftMargin,
                                   int rightMargin, int topMargin, int bottomMargin, int gap) {
    m_printHeaderHeight = headerHeight;
    m_printFooterHeight = footerHeight;
    m_printLeftMargin = leftMargin;
    m_printRightMargin = rightMargin;
    m_printTopMargin = topMargin;
    m_printBottomMargin = bottomMargin;
    m_printGap = gap;
}

void CGridCtrl::GetPrintMarginInfo(int& headerHeight, int& footerHeight, int& leftMargin,
                                   int& rightMargin, int& topMargin, int& bottomMargin,
                                   int& gap) const {
    headerHeight = m_printHeaderHeight;
    footerHeight = m_printFooterHeight;
    leftMargin = m_printLeftMargin;
    rightMargin = m_printRightMargin;
    topMargin = m_printTopMargin;
    bottomMargin = m_printBottomMargin;
    gap = m_printGap;
}

void CGridCtrl::OnBeginPrinting(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::OnPrint(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::OnEndPrinting(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::PrintFixedRowCells(int startColumn, int stopColumn, int& row, CRect& rect, CDC* dc,
                                   BOOL& firstPage) {}
void CGridCtrl::PrintColumnHeadings(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::PrintHeader(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::PrintFooter(CDC* dc, CPrintInfo* info) {}
void CGridCtrl::PrintRowButtons(CDC* dc, CPrintInfo* info) {}
