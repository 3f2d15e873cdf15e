#pragma once

// The framework's exceptions. As in the framework they are thrown by pointer and the catcher
// calls Delete(): `catch (CMemoryException* e) { e->ReportError(); e->Delete(); }`.
// An invalid argument signals a broken invariant (an index outside its array); a memory
// exception signals a failed allocation.

#include "platform/base/Messages.h"
#include "platform/base/Object.h"

class ORVA_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    // Writes the text that describes the error; false when there is none.
    virtual bool GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext = nullptr) const;
    // Shows the error text in the platform's message box and answers the button pressed.
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0) const;
    void Delete() { delete this; }

protected:
    CException() = default;
};

class ORVA_API CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    bool GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext = nullptr) const override;
};

class ORVA_API CInvalidArgException : public CException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    bool GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext = nullptr) const override;
};

[[noreturn]] ORVA_API void AfxThrowMemoryException();
[[noreturn]] ORVA_API void AfxThrowInvalidArgException();
