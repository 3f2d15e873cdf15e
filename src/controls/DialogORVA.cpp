#include "controls/DialogORVA.h"

#include "platform/base/Messages.h"
#include "support/HelpDocument.h"

CDialogORVA::CDialogORVA(unsigned int id, CWnd* parent)
    : CDialog(id, parent), m_id(int(id)), m_lastWidth(-1), m_lastHeight(-1) {}

void CDialogORVA::DialogResized(int, int) {}

void CDialogORVA::SetMinTrackSize(int width, int height) {
    m_minTrackWidth = width;
    m_minTrackHeight = height;
}

bool CDialogORVA::DoHelp() {
    return HelpDocument::Open();
}

bool CDialogORVA::DoHelp(const int& topic) {
    return HelpDocument::OpenAtTopic(topic);
}

bool CDialogORVA::GetFileAssociation(const std::string& file, std::string& executable) {
    return HelpDocument::GetFileAssociation(file, executable);
}

void CDialogORVA::DoDataExchange(CDataExchange* dx) {
    CDialog::DoDataExchange(dx);
    if (GetDlgItem(IDHELP))
        DDX_Control(dx, IDHELP, m_helpButton);
}

BOOL CDialogORVA::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    CRect client;
    GetClientRect(&client);
    m_lastWidth = client.Width();
    m_lastHeight = client.Height();
    // A class that set no minimum can't be made smaller than its design size.
    if (m_minTrackWidth == -1 && m_minTrackHeight == -1) {
        CRect window;
        GetWindowRect(&window);
        m_minTrackWidth = window.Width();
        m_minTrackHeight = window.Height();
    }
    return result;
}

BOOL CDialogORVA::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == IDHELP)
        return DoHelp(HelpDocument::TopicForDialog(UINT(m_id))) ? TRUE : FALSE;
    return CDialog::OnCommand(wParam, lParam);
}

void CDialogORVA::OnSize(UINT type, int cx, int cy) {
    CDialog::OnSize(type, cx, cy);
    // A minimised dialog keeps its last size, so restoring it reports nothing either.
    if (type == SIZE_MINIMIZED)
        return;
    const bool initialised = m_minTrackWidth != -1 && m_minTrackHeight != -1;
    if (initialised && (cx != m_lastWidth || cy != m_lastHeight))
        DialogResized(cx - m_lastWidth, cy - m_lastHeight);
    m_lastWidth = cx;
    m_lastHeight = cy;
}

void CDialogORVA::OnGetMinMaxInfo(MINMAXINFO* info) {
    CDialog::OnGetMinMaxInfo(info);
    if (m_minTrackWidth != -1 && m_minTrackHeight != -1)
        info->ptMinTrackSize = POINT{m_minTrackWidth, m_minTrackHeight};
}

void CDialogORVA::MoveSizeItem(CWnd* item, int deltaX, int deltaY, int deltaWidth,
                               int deltaHeight) {
    ::MoveSizeItem(this, item, deltaX, deltaY, deltaWidth, deltaHeight);
}

void CDialogORVA::MoveSizeItem(int itemId, int deltaX, int deltaY, int deltaWidth,
                               int deltaHeight) {
    ::MoveSizeItem(this, itemId, deltaX, deltaY, deltaWidth, deltaHeight);
}

void MoveSizeItem(CWnd* parent, CWnd* item, int deltaX, int deltaY, int deltaWidth,
                  int deltaHeight) {
    if (!parent || !item)
        return;
    CRect r;
    item->GetWindowRect(&r);
    parent->ScreenToClient(&r);
    r.left += deltaX;
    r.right += deltaX + deltaWidth;
    r.top += deltaY;
    r.bottom += deltaY + deltaHeight;
    item->MoveWindow(&r);
}

void MoveSizeItem(CWnd* parent, int itemId, int deltaX, int deltaY, int deltaWidth,
                  int deltaHeight) {
    if (!parent)
        return;
    MoveSizeItem(parent, parent->GetDlgItem(itemId), deltaX, deltaY, deltaWidth, deltaHeight);
}

void RadioGroup(CWnd* parent, int firstId, int* value, int save) {
    if (!parent || !value)
        return;
    CDataExchange exchange(parent, save != 0);
    DDX_Radio(&exchange, firstId, *value);
}
