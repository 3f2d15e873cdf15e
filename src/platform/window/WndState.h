#pragma once

// The state of the user-interface thread that CWnd keeps: the message being handled (for
// Default), the object whose Create is running (bound to its window before the first
// message), and the application's main window.

#include "platform/window/WindowApi.h"

class CWnd;

namespace wm {

struct WndThreadState {
    MSG current{};
    CWnd* creating = nullptr;
    CWnd* mainWnd = nullptr;
};

WndThreadState& ThreadState();

} // namespace wm
