#pragma once

// Answers message boxes for a test or a headless run while it lives: each box takes the next
// answer queued, or its default button when none is queued, and is recorded.

#include "platform/base/Export.h"
#include "platform/window/MessageBoxAnswerer.h"

#include <deque>
#include <vector>

class ORVA_API MessageBoxResponder {
public:
    MessageBoxResponder();
    ~MessageBoxResponder(); // restores the answerer it replaced
    MessageBoxResponder(const MessageBoxResponder&) = delete;
    MessageBoxResponder& operator=(const MessageBoxResponder&) = delete;

    // The button (IDOK, IDYES, ...) that the next unanswered box gets.
    void Answer(int button) { m_answers.push_back(button); }
    const std::vector<MessageBoxRecord>& Boxes() const { return m_boxes; }
    int Count() const { return int(m_boxes.size()); }
    // The text of the last box, or an empty string.
    std::string LastText() const { return m_boxes.empty() ? std::string() : m_boxes.back().text; }

private:
    std::deque<int> m_answers;
    std::vector<MessageBoxRecord> m_boxes;
    MessageBoxAnswerer m_previous;
};
