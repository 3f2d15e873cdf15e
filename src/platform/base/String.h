#pragma once

// CString: the framework's byte string. One pointer wide: the pointer addresses the characters
// of a shared, reference-counted buffer whose header sits just before them, and every empty
// string shares one static empty buffer. Copies share the buffer until one of them is changed.
// The counts are plain integers: strings are used on the user-interface thread only.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstdarg>
#include <string_view>

class ORVA_API CString {
public:
    CString() noexcept;
    CString(const CString& other) noexcept;
    CString(CString&& other) noexcept;
    CString(const char* text);
    CString(const char* text, int length);
    CString(char ch, int repeat = 1);
    explicit CString(std::string_view text);
    ~CString();

    CString& operator=(const CString& other) noexcept;
    CString& operator=(CString&& other) noexcept;
    CString& operator=(const char* text);
    CString& operator=(char ch);

    int GetLength() const noexcept;
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    void Empty() noexcept;
    const char* GetString() const noexcept { return m_chars; }
    operator const char*() const noexcept { return m_chars; }
    std::string_view View() const noexcept { return {m_chars, size_t(GetLength())}; }

    char GetAt(int index) const;
    void SetAt(int index, char ch);
    char operator[](int index) const { return GetAt(index); }

    int Compare(const char* text) const noexcept;
    int CompareNoCase(const char* text) const noexcept;

    CString Left(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Right(int count) const;
    CString SpanIncluding(const char* charSet) const;
    CString SpanExcluding(const char* charSet) const;

    int Find(char ch, int start = 0) const noexcept;
    int Find(const char* sub, int start = 0) const noexcept;
    int FindOneOf(const char* charSet) const noexcept;
    int ReverseFind(char ch) const noexcept;

    int Replace(char oldCh, char newCh);
    int Replace(const char* oldText, const char* newText);
    int Remove(char ch);
    int Insert(int index, char ch);
    int Insert(int index, const char* text);
    int Delete(int index, int count = 1);

    CString& Trim();
    CString& Trim(char target);
    CString& Trim(const char* targets);
    CString& TrimLeft();
    CString& TrimLeft(char target);
    CString& TrimLeft(const char* targets);
    CString& TrimRight();
    CString& TrimRight(char target);
    CString& TrimRight(const char* targets);
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();

    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));
    void FormatV(const char* format, va_list args);
    void AppendFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));
    CString Tokenize(const char* tokens, int& start) const;

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char ch);
    void Append(const char* text, int length);

    // Raw access for the platform calls that write into a buffer: the string owns at least
    // minLength + 1 bytes until ReleaseBuffer, which takes the length up to the first zero
    // byte, or newLength when it is given.
    char* GetBuffer(int minLength = 0);
    char* GetBufferSetLength(int length);
    void ReleaseBuffer(int newLength = -1);
    void Preallocate(int length);

    struct Data; // the buffer header; its layout is private to String.cpp

private:
    Data* GetData() const noexcept;
    void Release() noexcept;
    void AssignCopy(const char* text, int length);
    void MakeUnique(int minCapacity);
    void SetLength(int length) noexcept;

    char* m_chars;
};

static_assert(sizeof(CString) == sizeof(void*), "a CString is one pointer wide");

ORVA_API CString operator+(const CString& a, const CString& b);
ORVA_API CString operator+(const CString& a, const char* b);
ORVA_API CString operator+(const char* a, const CString& b);
ORVA_API CString operator+(const CString& a, char b);
ORVA_API CString operator+(char a, const CString& b);

inline bool operator==(const CString& a, const CString& b) noexcept { return a.View() == b.View(); }
inline bool operator==(const CString& a, const char* b) noexcept { return a.Compare(b) == 0; }
inline bool operator!=(const CString& a, const CString& b) noexcept { return !(a == b); }
inline bool operator!=(const CString& a, const char* b) noexcept { return !(a == b); }
inline bool operator<(const CString& a, const CString& b) noexcept { return a.View() < b.View(); }
inline bool operator>(const CString& a, const CString& b) noexcept { return b < a; }
inline bool operator<=(const CString& a, const CString& b) noexcept { return !(b < a); }
inline bool operator>=(const CString& a, const CString& b) noexcept { return !(a < b); }
inline bool operator==(const char* a, const CString& b) noexcept { return b.Compare(a) == 0; }
inline bool operator!=(const char* a, const CString& b) noexcept { return b.Compare(a) != 0; }
