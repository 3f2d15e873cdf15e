#include "platform/base/Exceptions.h"

#include <cstdio>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CException)

namespace {
bool CopyMessage(const char* text, char* buffer, UINT maxLength, UINT* helpContext) {
    if (helpContext)
        *helpContext = 0;
    if (!buffer || maxLength == 0)
        return false;
    std::snprintf(buffer, maxLength, "%s", text);
    return true;
}
} // namespace

bool CException::GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext) const {
    if (helpContext)
        *helpContext = 0;
    if (buffer && maxLength > 0)
        buffer[0] = 0;
    return false;
}

bool CMemoryException::GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext) const {
    return CopyMessage("Out of memory.", buffer, maxLength, helpContext);
}

bool CInvalidArgException::GetErrorMessage(char* buffer, UINT maxLength, UINT* helpContext) const {
    return CopyMessage("Invalid argument.", buffer, maxLength, helpContext);
}

void AfxThrowMemoryException() { throw new CMemoryException; }

void AfxThrowInvalidArgException() { throw new CInvalidArgException; }
