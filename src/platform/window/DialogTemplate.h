#pragma once

// Dialog templates written in code, and the dialog units they are laid out in. A template names
// the dialog's style, caption, font and client size, and each control's window class ("Button",
// "Edit", "Static", "ComboBox", "SysDateTimePick32" or any registered class such as a grid's),
// id, text, styles and place. Dialog units follow the dialog's font as in the framework: a
// horizontal unit is a quarter of the font's average character width, a vertical one an eighth
// of its height.

#include "platform/base/Export.h"
#include "platform/base/Rect.h"
#include "platform/window/WindowStyles.h"

#include <string>
#include <vector>

struct DialogItemTemplate {
    std::string className; // a registered window class; empty for a plain window
    std::string text;
    UINT id = 0;
    DWORD style = 0; // WS_CHILD is always added
    RECT rect{};     // dialog units: left, top, right, bottom
    DWORD exStyle = 0;
};

struct DialogTemplate {
    std::string caption;
    SIZE size{}; // the client area, in dialog units
    std::vector<DialogItemTemplate> items;
    DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    std::string fontFace = "MS Shell Dlg";
    int pointSize = 8;
};

// Templates are looked up by the dialog's identifier. Single-threaded: the table is shared
// without locks.
ORVA_API void RegisterDialogTemplate(UINT templateId, DialogTemplate dialogTemplate);
ORVA_API const DialogTemplate* FindDialogTemplate(UINT templateId);

// The base units of a font: its average character width (over "A".."Z" and "a".."z", rounded)
// and its character height, in pixels.
ORVA_API SIZE DialogBaseUnitsOf(HFONT font);
// The font a template asks for; the caller deletes it.
ORVA_API HFONT CreateDialogFont(const DialogTemplate& dialogTemplate);
// Dialog units to pixels for the given base units, rounding to the nearest pixel.
ORVA_API void DialogUnitsToPixels(SIZE baseUnits, RECT* rect);
