#pragma once

// The application's help: one PDF document, "rd4.pdf" in the application path, opened by the
// program that the system associates with it, at the start or at a named destination (the
// title of a heading). Dialogs reach it through their identifier. Failures are told to the
// user in a message box.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <string>

class ORVA_API HelpDocument {
public:
    // Opens the document at its first page through the shell.
    static bool Open();

    // Opens the document at the destination of `topic`; -1 opens it at the start and gives
    // true whatever happens. False if no reader is associated with it.
    static bool OpenAtTopic(const int& topic);

    // The program that opens `file` (a path whose folder ends at its last "\", or a plain
    // name); false, after telling the user why, if there is none.
    static bool GetFileAssociation(const std::string& file, std::string& executable);

    // The topic of a dialog; 0, the introduction, for a dialog without one of its own.
    static int TopicForDialog(UINT dialogId);

    // The destination of a topic; empty for topic 1 and for numbers without a heading.
    static const char* TopicTitle(int topic);

    // The reader's command line for a topic: the reader, /A "nameddest=<title>", the document.
    static std::string CommandLine(const std::string& executable, int topic);
};
