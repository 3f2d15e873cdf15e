#pragma once

// The base of the application's dialogs. It reports every change of its client size to
// DialogResized as a delta, which a derived dialog answers by moving its controls with
// MoveSizeItem; it keeps the dialog from being made smaller than its minimum tracking size
// (its design size unless the class sets one); and it sends its Help button to the help
// document, at the topic of the dialog's identifier. MoveSizeItem and RadioGroup serve any
// window the same way.

#include "platform/widgets/Button.h"
#include "platform/window/Dialog.h"

#include <string>

class ORVA_API CDialogORVA : public CDialog {
public:
    CDialogORVA(unsigned int id, CWnd* parent);

    // Called after each change of the client size once the dialog is initialised; empty here.
    virtual void DialogResized(int deltaX, int deltaY);

    // Before the dialog opens, replaces its design size as the smallest it can be made;
    // both -1 turns the limit and the size reports off.
    void SetMinTrackSize(int width, int height);

    int GetID() const { return m_id; }
    int GetFlags() const { return m_flags; }
    void SetFlags(int flags) { m_flags = flags; }

    static bool DoHelp();
    static bool DoHelp(const int& topic);
    static bool GetFileAssociation(const std::string& file, std::string& executable);

protected:
    CDialogORVA() = default;

    // Attaches the Help button, when the dialog has one.
    void DoDataExchange(CDataExchange* dx) override;
    BOOL OnInitDialog() override;
    // The Help button (IDHELP) opens the help document at this dialog's topic; the result of
    // opening it is the handled flag.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnGetMinMaxInfo(MINMAXINFO* info) override;

    void MoveSizeItem(CWnd* item, int deltaX, int deltaY, int deltaWidth, int deltaHeight);
    void MoveSizeItem(int itemId, int deltaX, int deltaY, int deltaWidth, int deltaHeight);

    int m_id = -1; // the dialog's resource identifier, the key of the help lookup
    CButton m_helpButton;
    int m_flags = 0;     // the application's own word; not interpreted here
    int m_lastWidth = 0; // the client size last seen
    int m_lastHeight = 0;
    int m_minTrackWidth = -1; // the smallest window size; -1 until known
    int m_minTrackHeight = -1;
};

// Moves `item`, a child of `parent`, by (deltaX, deltaY) and grows it by (deltaWidth,
// deltaHeight). A null parent or item, or an identifier that no child has, does nothing.
ORVA_API void MoveSizeItem(CWnd* parent, CWnd* item, int deltaX, int deltaY, int deltaWidth,
                           int deltaHeight);
ORVA_API void MoveSizeItem(CWnd* parent, int itemId, int deltaX, int deltaY, int deltaWidth,
                           int deltaHeight);

// Shows `*value` in the group of radio buttons that begins at `firstId` (`save` 0), or reads the
// index of the checked one into it (`save` not 0); -1 when none is checked.
ORVA_API void RadioGroup(CWnd* parent, int firstId, int* value, int save);
