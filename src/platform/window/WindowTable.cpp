#include "platform/window/WindowRecord.h"

#include "platform/window/Wnd.h"

#include <unordered_map>

namespace wm {
namespace {
// The handle table. Handles are never reused, so a stale handle is never mistaken for a new
// window. Shared by the whole process: the user-interface thread alone touches it.
struct Table {
    std::unordered_map<HWND, std::unique_ptr<WindowRecord>> records;
    std::vector<HWND> topLevel;
    std::uintptr_t next = 0x10000;
};

Table& TheTable() {
    static Table& table = *new Table;
    return table;
}
} // namespace

WindowRecord* Find(HWND hwnd) {
    if (!hwnd)
        return nullptr;
    auto& records = TheTable().records;
    const auto it = records.find(hwnd);
    return it == records.end() ? nullptr : it->second.get();
}

WindowRecord* NewRecord() {
    auto& table = TheTable();
    auto record = std::make_unique<WindowRecord>();
    record->handle = reinterpret_cast<HWND>(table.next);
    table.next += 4;
    WindowRecord* raw = record.get();
    table.records.emplace(raw->handle, std::move(record));
    return raw;
}

void DeleteRecord(HWND hwnd) {
    auto& table = TheTable();
    const auto it = table.records.find(hwnd);
    if (it == table.records.end())
        return;
    std::unique_ptr<WindowRecord> record = std::move(it->second);
    table.records.erase(it);
    std::erase(table.topLevel, hwnd);
    if (record->temporary)
        record->temporary->m_hWnd = nullptr;
}

std::vector<HWND>& TopLevelWindows() {
    return TheTable().topLevel;
}

bool IsTopLevel(const WindowRecord& w) {
    return !(w.style & WS_CHILD);
}

std::vector<HWND> SubtreeOf(HWND hwnd) {
    std::vector<HWND> out;
    if (const WindowRecord* w = Find(hwnd)) {
        out.push_back(hwnd);
        for (HWND child : w->children) {
            auto sub = SubtreeOf(child);
            out.insert(out.end(), sub.begin(), sub.end());
        }
    }
    return out;
}

} // namespace wm

BOOL IsWindow(HWND hwnd) {
    return wm::Find(hwnd) != nullptr;
}
