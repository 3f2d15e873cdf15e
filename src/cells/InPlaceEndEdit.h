#pragma once

// The notice an in-place editor sends when its edit ends: the cell, the text it holds and the
// key that ended it, for the grid to take or refuse.

#include "platform/base/String.h"
#include "platform/window/WindowApi.h"

class CWnd;

// Sends GV_NOTIFY_ENDLABELEDIT for the cell (row, col) to the editor's owner, else its parent.
// The receiver may destroy the editor: a caller that goes on afterwards looks its window up again
// by its handle.
void SendEndEdit(CWnd& editor, int row, int col, const CString& text, UINT lastChar);
