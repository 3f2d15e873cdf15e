#pragma once

// Answers modal dialogs and message boxes for a test while it lives. The test queues, for each
// of the next dialogs to open, what the user does in it: press a button (by id or by its text),
// type into a field, choose a combo box item, set a date, tick a check box, or any step of its
// own. Each dialog that opens takes the next answer queued, and what it showed is recorded. A
// dialog that finds nothing queued is left alone, so a headless modal loop ends it: a dialog
// with IDCANCEL, a message box with its default button.

#include "platform/system/DateTime.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Dialog.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

struct ShownControl {
    UINT id;
    std::string className;
    std::string text;
    DWORD style;
};

// What a dialog showed when it opened.
struct ORVA_API ShownDialog {
    std::string title;
    std::vector<ShownControl> controls; // in z-order, the order of the Tab key
    std::vector<std::string> buttons;   // the texts of its push buttons, in the same order
    bool answered = false;              // an answer was queued for it
    // Steps that could not be carried out ("no control 42"), for the test to assert on.
    std::vector<std::string> problems;

    // The text of the control with this id; empty when there is none.
    std::string TextOf(UINT id) const;
};

// The steps taken in one dialog, in order. Each returns the answer so steps chain.
class ORVA_API ModalAnswer {
public:
    // Clicks the button with the mouse; a button the dialog lacks is sent as its command, as
    // Enter (IDOK) and Escape (IDCANCEL) would send it.
    ModalAnswer& Press(int id);
    ModalAnswer& Press(const std::string& buttonText);
    // Moves the focus to the field as Tab would (selecting its text) and types, key by key.
    ModalAnswer& Type(int id, const std::string& text);
    // Selects the item that begins with `item` and tells the dialog as the list would.
    ModalAnswer& Choose(int comboId, const std::string& item);
    // Sets the picker's date and tells the dialog as the picker would.
    ModalAnswer& SetDate(int pickerId, const SYSTEMTIME& date);
    // Clicks the check box when its state differs from `checked`.
    ModalAnswer& Check(int id, bool checked = true);
    ModalAnswer& Run(std::function<void(CDialog& dialog, UiDriver& driver)> step);

private:
    friend class ModalResponder;
    using Step = std::function<void(CDialog&, UiDriver&, ShownDialog&)>;
    std::vector<Step> m_steps;
};

class ORVA_API ModalResponder {
public:
    ModalResponder();
    ~ModalResponder(); // restores the responder it replaced
    ModalResponder(const ModalResponder&) = delete;
    ModalResponder& operator=(const ModalResponder&) = delete;

    // Queues the answer for the next dialog to open that has none yet.
    ModalAnswer& Next() { return m_answers.emplace_back(); }
    const std::vector<ShownDialog>& Shown() const { return m_shown; }
    int Count() const { return int(m_shown.size()); }
    int Unused() const { return int(m_answers.size()); }

private:
    void Respond(CDialog& dialog);

    std::deque<ModalAnswer> m_answers;
    std::vector<ShownDialog> m_shown;
    DialogResponder m_previous;
    UiDriver m_driver;
};
