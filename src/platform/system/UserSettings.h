#pragma once

// The current user's settings, kept under the registry's key names and read through the
// registry's calls: "Control Panel\International" (regional formats) and
// "Control Panel\Desktop" (WheelScrollLines). Values are text. They start from the process
// locale (LC_TIME, LC_NUMERIC); where the locale is C or POSIX, or unset, the defaults stand:
//   sShortDate "M/d/yyyy", sTimeFormat "h:mm:ss tt", sShortTime "h:mm tt",
//   sDecimal ".", sThousand ",", sList ",", iDate "0", WheelScrollLines "3".
// Tests set and remove values to stand for another user's settings.

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/WinTypes.h"

ORVA_DECLARE_HANDLE(HKEY);
using PHKEY = HKEY*;
using REGSAM = DWORD;
using LSTATUS = LONG;

#define HKEY_CURRENT_USER (reinterpret_cast<HKEY>(std::uintptr_t(0x80000001)))

constexpr LSTATUS ERROR_SUCCESS = 0;
constexpr LSTATUS ERROR_FILE_NOT_FOUND = 2;
constexpr LSTATUS ERROR_INVALID_HANDLE = 6;
constexpr LSTATUS ERROR_MORE_DATA = 234;
constexpr REGSAM KEY_QUERY_VALUE = 0x0001;
constexpr REGSAM KEY_READ = 0x20019;
constexpr DWORD REG_SZ = 1;

constexpr const char* kInternationalKey = "Control Panel\\International";
constexpr const char* kDesktopKey = "Control Panel\\Desktop";

// Opens a key of HKEY_CURRENT_USER for reading; ERROR_FILE_NOT_FOUND for a key the store
// does not hold.
ORVA_API LSTATUS RegOpenKeyExA(HKEY root, const char* subKey, DWORD options, REGSAM access,
                               PHKEY result);
// Reads a text value with its terminating zero. With `data` null only the size is given; a
// buffer too small gives ERROR_MORE_DATA and the size needed.
ORVA_API LSTATUS RegQueryValueExA(HKEY key, const char* name, DWORD* reserved, DWORD* type,
                                  BYTE* data, DWORD* size);
ORVA_API LSTATUS RegCloseKey(HKEY key);

// Direct access for the platform and for tests.
ORVA_API bool ReadUserSetting(const char* key, const char* name, CString& value);
ORVA_API void WriteUserSetting(const char* key, const char* name, const char* value);
ORVA_API void RemoveUserSetting(const char* key, const char* name);
// Throws away every change and reads the locale again.
ORVA_API void ResetUserSettings();
