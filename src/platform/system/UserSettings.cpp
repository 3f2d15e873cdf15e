#include "platform/system/UserSettings.h"

#include "platform/system/LocalePictures.h"

#include <cstdlib>
#include <cstring>
#include <langinfo.h>
#include <locale.h>
#include <map>
#include <string>

namespace {

using ValueMap = std::map<std::string, std::string>;
using KeyMap = std::map<std::string, ValueMap>;

// The name the environment gives a locale category, by the C library's precedence.
std::string LocaleNameFor(const char* categoryVariable) {
    for (const char* variable : {"LC_ALL", categoryVariable, "LANG"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return {};
}

bool IsNeutralLocale(const std::string& name) {
    return name.empty() || name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0;
}

// iDate: 0 month first, 1 day first, 2 year first.
std::string DateOrder(const std::string& picture) {
    const auto day = picture.find('d'), month = picture.find('M'), year = picture.find('y');
    if (year < day && year < month)
        return "2";
    return day < month ? "1" : "0";
}

void ReadTimeLocale(ValueMap& international) {
    const std::string name = LocaleNameFor("LC_TIME");
    if (IsNeutralLocale(name))
        return;
    locale_t locale = newlocale(LC_TIME_MASK, name.c_str(), locale_t(0));
    if (locale == locale_t(0))
        return;
    const std::string date = PictureFromStrftime(nl_langinfo_l(D_FMT, locale));
    const std::string time = PictureFromStrftime(nl_langinfo_l(T_FMT, locale));
    if (!date.empty()) {
        international["sShortDate"] = date;
        international["iDate"] = DateOrder(date);
    }
    if (!time.empty()) {
        international["sTimeFormat"] = time;
        international["sShortTime"] = ShortTimePicture(time);
    }
    freelocale(locale);
}

void ReadNumericLocale(ValueMap& international) {
    const std::string name = LocaleNameFor("LC_NUMERIC");
    if (IsNeutralLocale(name))
        return;
    locale_t locale = newlocale(LC_NUMERIC_MASK, name.c_str(), locale_t(0));
    if (locale == locale_t(0))
        return;
    const std::string decimal = nl_langinfo_l(RADIXCHAR, locale);
    const std::string thousand = nl_langinfo_l(THOUSEP, locale);
    if (!decimal.empty()) {
        international["sDecimal"] = decimal;
        // Where the comma is the decimal sign, lists are separated by semicolons.
        international["sList"] = decimal == "," ? ";" : ",";
    }
    international["sThousand"] = thousand;
    freelocale(locale);
}

KeyMap SettingsFromLocale() {
    KeyMap keys;
    ValueMap& international = keys[kInternationalKey];
    international = {{"sShortDate", "M/d/yyyy"},
                     {"sTimeFormat", "h:mm:ss tt"},
                     {"sShortTime", "h:mm tt"},
                     {"sDecimal", "."},
                     {"sThousand", ","},
                     {"sList", ","},
                     {"iDate", "0"}};
    ReadTimeLocale(international);
    ReadNumericLocale(international);
    keys[kDesktopKey] = {{"WheelScrollLines", "3"}};
    return keys;
}

// The store is read and written on the user-interface thread only, so no lock.
KeyMap& Store() {
    static KeyMap keys = SettingsFromLocale();
    return keys;
}

// An open key is the address of its value map; the map never moves while the store lives.
const ValueMap* OpenKey(HKEY key) {
    return reinterpret_cast<const ValueMap*>(key);
}

} // namespace

LSTATUS RegOpenKeyExA(HKEY root, const char* subKey, DWORD, REGSAM, PHKEY result) {
    if (result == nullptr)
        return ERROR_INVALID_HANDLE;
    *result = nullptr;
    if (root != HKEY_CURRENT_USER || subKey == nullptr)
        return ERROR_FILE_NOT_FOUND;
    auto found = Store().find(subKey);
    if (found == Store().end())
        return ERROR_FILE_NOT_FOUND;
    *result = reinterpret_cast<HKEY>(&found->second);
    return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExA(HKEY key, const char* name, DWORD*, DWORD* type, BYTE* data, DWORD* size) {
    if (key == nullptr)
        return ERROR_INVALID_HANDLE;
    const ValueMap& values = *OpenKey(key);
    auto found = values.find(name != nullptr ? name : "");
    if (found == values.end())
        return ERROR_FILE_NOT_FOUND;
    if (type != nullptr)
        *type = REG_SZ;
    const DWORD needed = DWORD(found->second.size() + 1);
    if (data == nullptr) {
        if (size != nullptr)
            *size = needed;
        return ERROR_SUCCESS;
    }
    if (size == nullptr)
        return ERROR_INVALID_HANDLE;
    const DWORD room = *size;
    *size = needed;
    if (room < needed)
        return ERROR_MORE_DATA;
    std::memcpy(data, found->second.c_str(), needed);
    return ERROR_SUCCESS;
}

LSTATUS RegCloseKey(HKEY key) {
    return key != nullptr ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

bool ReadUserSetting(const char* key, const char* name, CString& value) {
    auto keyFound = Store().find(key);
    if (keyFound == Store().end())
        return false;
    auto found = keyFound->second.find(name);
    if (found == keyFound->second.end())
        return false;
    value = found->second.c_str();
    return true;
}

void WriteUserSetting(const char* key, const char* name, const char* value) {
    Store()[key][name] = value;
}

void RemoveUserSetting(const char* key, const char* name) {
    auto keyFound = Store().find(key);
    if (keyFound != Store().end())
        keyFound->second.erase(name);
}

void ResetUserSettings() {
    // Keys are assigned in place so that handles opened earlier stay valid.
    for (auto& [name, values] : SettingsFromLocale())
        Store()[name] = values;
    for (auto& [name, values] : Store())
        if (name != kInternationalKey && name != kDesktopKey)
            values.clear();
}
