#pragma once

// Records what a window hears from its children: WM_NOTIFY (code, id, sender, and for a
// grid's records the row and column), WM_COMMAND (code and id), and any other message it is
// told to watch. It sits in front of the window's procedure while it lives; a test may answer
// a notification code itself instead of passing it on.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <functional>
#include <map>
#include <set>
#include <vector>

// The record the grid sends with its notifications.
struct NM_GRIDVIEW {
    NMHDR hdr;
    int iRow;
    int iColumn;
};

struct RecordedMessage {
    UINT message; // WM_NOTIFY, WM_COMMAND or a watched message
    UINT code;    // the notification code (WM_NOTIFY, WM_COMMAND); 0 otherwise
    UINT_PTR id;  // the sender's id (WM_NOTIFY, WM_COMMAND)
    HWND from;    // the sender (WM_NOTIFY, WM_COMMAND)
    int row;      // the grid record's row and column; -1 for other records
    int column;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result; // what the window (or the test) answered
};

class ORVA_API NotificationRecorder {
public:
    explicit NotificationRecorder(HWND window);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    // Answers WM_NOTIFY with this code with `result` instead of passing it to the window.
    void Answer(UINT code, LRESULT result) { m_answers[code] = result; }
    void StopAnswering(UINT code) { m_answers.erase(code); }
    // Records this message too.
    void Watch(UINT message) { m_watched.insert(message); }
    // Which WM_NOTIFY records are grid records; by default those from windows of the grid's
    // window class.
    void SetGridRecordTest(std::function<bool(const NMHDR&)> isGridRecord);

    const std::vector<RecordedMessage>& Records() const { return m_records; }
    std::vector<RecordedMessage> Notifications(UINT code) const;
    std::vector<RecordedMessage> Commands(UINT code) const;
    int Count(UINT code) const { return int(Notifications(code).size()); }
    void Clear() { m_records.clear(); }

private:
    static LRESULT Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    LONG_PTR m_previous;
    std::map<UINT, LRESULT> m_answers;
    std::set<UINT> m_watched;
    std::function<bool(const NMHDR&)> m_isGridRecord;
    std::vector<RecordedMessage> m_records;
};
