#pragma once

// The in-process drag and drop loop behind COleDataSource::DoDragDrop: modal, it takes the
// mouse, follows it over the registered drop targets (enter, over, leave) and drops on the
// one under the button's release. Control held asks for a copy, otherwise a move, within the
// effects the source allows. Escape cancels. Messages other than the mouse's and the keys'
// are dispatched as usual meanwhile.
//
// A headless run has no user to move the mouse: a responder, installed by a test or a
// scripted run, is called once the loop starts and queues the moves and the release (through
// window/Input.h). A loop with nothing more to do is cancelled, as nobody else could end it.

#include "platform/base/Export.h"
#include "platform/window/OleDataObject.h"

#include <functional>

using DragResponder = std::function<void()>;
// Installs the responder; answers the one it replaces.
ORVA_API DragResponder SetDragResponder(DragResponder responder);

// Runs the loop for `data`, answering the effect of the drop or DROPEFFECT_NONE.
ORVA_API DROPEFFECT RunDragLoop(const COleDataSource& data, DWORD allowedEffects);
