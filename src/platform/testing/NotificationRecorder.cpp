#include "platform/testing/NotificationRecorder.h"

#include "platform/window/WindowApi.h"

#include <cstring>

namespace {
// Recorders by the window they sit on; the user-interface thread alone uses them.
std::map<HWND, NotificationRecorder*>& Recorders() {
    static std::map<HWND, NotificationRecorder*>& recorders =
        *new std::map<HWND, NotificationRecorder*>;
    return recorders;
}

bool FromGridWindow(const NMHDR& header) {
    char name[64];
    return GetClassName(header.hwndFrom, name, sizeof name) > 0 &&
           std::strcmp(name, "ORVAGridCtrl") == 0;
}
} // namespace

NotificationRecorder::NotificationRecorder(HWND window)
    : m_window(window), m_previous(GetWindowLongPtr(window, GWLP_WNDPROC)),
      m_isGridRecord(FromGridWindow) {
    if (!m_previous)
        return;
    Recorders()[window] = this;
    SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
}

NotificationRecorder::~NotificationRecorder() {
    if (!m_previous)
        return;
    if (GetWindowLongPtr(m_window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Procedure))
        SetWindowLongPtr(m_window, GWLP_WNDPROC, m_previous);
    Recorders().erase(m_window);
}

void NotificationRecorder::SetGridRecordTest(std::function<bool(const NMHDR&)> isGridRecord) {
    m_isGridRecord = isGridRecord ? std::move(isGridRecord) : FromGridWindow;
}

std::vector<RecordedMessage> NotificationRecorder::Notifications(UINT code) const {
    std::vector<RecordedMessage> out;
    for (const RecordedMessage& r : m_records)
        if (r.message == WM_NOTIFY && r.code == code)
            out.push_back(r);
    return out;
}

std::vector<RecordedMessage> NotificationRecorder::Commands(UINT code) const {
    std::vector<RecordedMessage> out;
    for (const RecordedMessage& r : m_records)
        if (r.message == WM_COMMAND && r.code == code)
            out.push_back(r);
    return out;
}

LRESULT NotificationRecorder::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto it = Recorders().find(hwnd);
    if (it == Recorders().end())
        return DefWindowProc(hwnd, message, wParam, lParam);
    return it->second->Handle(message, wParam, lParam);
}

LRESULT NotificationRecorder::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto previous = reinterpret_cast<WNDPROC>(m_previous);
    const bool watched = message == WM_NOTIFY || message == WM_COMMAND || m_watched.count(message);
    if (message == WM_NCDESTROY) {
        // The window goes: hand it back to its own procedure for its last message.
        SetWindowLongPtr(m_window, GWLP_WNDPROC, m_previous);
        Recorders().erase(m_window);
        m_previous = 0;
        return CallWindowProc(previous, m_window, message, wParam, lParam);
    }
    if (!watched)
        return CallWindowProc(previous, m_window, message, wParam, lParam);

    RecordedMessage record{message, 0, 0, nullptr, -1, -1, wParam, lParam, 0};
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && header) {
        record.code = header->code;
        record.id = header->idFrom;
        record.from = header->hwndFrom;
        if (m_isGridRecord(*header)) {
            const auto* grid = reinterpret_cast<const NM_GRIDVIEW*>(lParam);
            record.row = grid->iRow;
            record.column = grid->iColumn;
        }
    } else if (message == WM_COMMAND) {
        record.code = HIWORD(wParam);
        record.id = LOWORD(wParam);
        record.from = reinterpret_cast<HWND>(lParam);
    }
    const std::size_t index = m_records.size();
    m_records.push_back(record);
    const auto answer =
        message == WM_NOTIFY && header ? m_answers.find(header->code) : m_answers.end();
    const LRESULT result = answer != m_answers.end()
                               ? answer->second
                               : CallWindowProc(previous, m_window, message, wParam, lParam);
    m_records[index].result = result;
    return result;
}
