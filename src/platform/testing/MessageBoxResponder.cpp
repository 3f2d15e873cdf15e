#include "platform/testing/MessageBoxResponder.h"

#include "platform/window/MessageBoxDialog.h"

MessageBoxResponder::MessageBoxResponder() {
    m_previous = SetMessageBoxAnswerer([this](const MessageBoxRecord& box) {
        int answer = MessageBoxDefaultButton(box.type);
        if (!m_answers.empty()) {
            answer = m_answers.front();
            m_answers.pop_front();
        }
        MessageBoxRecord answered = box;
        answered.answer = answer;
        m_boxes.push_back(answered);
        return answer;
    });
}

MessageBoxResponder::~MessageBoxResponder() {
    SetMessageBoxAnswerer(std::move(m_previous));
}
