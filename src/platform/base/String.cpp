#include "platform/base/String.h"

#include "platform/base/Exceptions.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>

struct CString::Data {
    int refs; // -1 marks the shared empty buffer, which is never freed
    int length;
    int capacity;
    char* Chars() { return reinterpret_cast<char*>(this + 1); }
};

namespace {

struct EmptyBuffer {
    CString::Data* data() { return &header; }
    CString::Data header{-1, 0, 0};
    char zero = 0;
};
EmptyBuffer g_empty;

CString::Data* Allocate(int capacity) {
    auto* data = static_cast<CString::Data*>(std::malloc(sizeof(CString::Data) + capacity + 1));
    if (!data)
        AfxThrowMemoryException();
    data->refs = 1;
    data->length = 0;
    data->capacity = capacity;
    data->Chars()[0] = 0;
    return data;
}

int Length(const char* text) { return text ? int(std::strlen(text)) : 0; }

bool InSet(char ch, const char* set) { return ch != 0 && std::strchr(set, ch) != nullptr; }
bool IsSpace(char ch) { return std::isspace(static_cast<unsigned char>(ch)) != 0; }

} // namespace

static_assert(sizeof(CString::Data) == 3 * sizeof(int));

CString::Data* CString::GetData() const noexcept { return reinterpret_cast<Data*>(m_chars) - 1; }

CString::CString() noexcept : m_chars(g_empty.data()->Chars()) {}

CString::CString(const CString& other) noexcept : m_chars(other.m_chars) {
    Data* data = GetData();
    if (data->refs > 0)
        ++data->refs;
}

CString::CString(CString&& other) noexcept : m_chars(other.m_chars) {
    other.m_chars = g_empty.data()->Chars();
}

CString::CString(const char* text) : CString() { AssignCopy(text, Length(text)); }

CString::CString(const char* text, int length) : CString() {
    AssignCopy(text, text ? std::max(length, 0) : 0);
}

CString::CString(char ch, int repeat) : CString() {
    if (repeat <= 0)
        return;
    MakeUnique(repeat);
    std::memset(m_chars, ch, size_t(repeat));
    SetLength(repeat);
}

CString::CString(std::string_view text) : CString() { AssignCopy(text.data(), int(text.size())); }

CString::~CString() { Release(); }

CString& CString::operator=(const CString& other) noexcept {
    if (m_chars != other.m_chars) {
        Release();
        m_chars = other.m_chars;
        if (GetData()->refs > 0)
            ++GetData()->refs;
    }
    return *this;
}

CString& CString::operator=(CString&& other) noexcept {
    std::swap(m_chars, other.m_chars);
    return *this;
}

CString& CString::operator=(const char* text) {
    AssignCopy(text, Length(text));
    return *this;
}

CString& CString::operator=(char ch) {
    AssignCopy(&ch, 1);
    return *this;
}

void CString::Release() noexcept {
    Data* data = GetData();
    if (data->refs > 0 && --data->refs == 0)
        std::free(data);
    m_chars = g_empty.data()->Chars();
}

void CString::AssignCopy(const char* text, int length) {
    if (length == 0) {
        Release();
        return;
    }
    // The source may live inside this string's own buffer (s = s.Mid(1) through a pointer).
    Data* old = GetData();
    if (old->refs == 1 && old->capacity >= length) {
        std::memmove(m_chars, text, size_t(length)); // a buffer of our own is written over
        SetLength(length);
        return;
    }
    Data* data = Allocate(length);
    std::memcpy(data->Chars(), text, size_t(length));
    data->Chars()[length] = 0;
    data->length = length;
    m_chars = data->Chars();
    if (old->refs > 0 && --old->refs == 0)
        std::free(old);
}

void CString::MakeUnique(int minCapacity) {
    Data* data = GetData();
    if (data->refs == 1 && data->capacity >= minCapacity)
        return;
    int capacity = std::max(minCapacity, data->length);
    if (data->refs == 1 || capacity > data->capacity)
        capacity = std::max(capacity, data->capacity + data->capacity / 2);
    Data* copy = Allocate(capacity);
    std::memcpy(copy->Chars(), m_chars, size_t(data->length) + 1);
    copy->length = data->length;
    if (data->refs > 0 && --data->refs == 0)
        std::free(data);
    m_chars = copy->Chars();
}

void CString::SetLength(int length) noexcept {
    Data* data = GetData();
    if (data->refs < 0)
        return; // the shared empty buffer stays empty
    data->length = length;
    m_chars[length] = 0;
}

int CString::GetLength() const noexcept { return GetData()->length; }

void CString::Empty() noexcept { Release(); }

char CString::GetAt(int index) const {
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    return m_chars[index];
}

void CString::SetAt(int index, char ch) {
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    MakeUnique(GetLength());
    m_chars[index] = ch;
}

int CString::Compare(const char* text) const noexcept { return std::strcmp(m_chars, text ? text : ""); }

int CString::CompareNoCase(const char* text) const noexcept {
    return strcasecmp(m_chars, text ? text : "");
}

CString CString::Left(int count) const {
    count = std::clamp(count, 0, GetLength());
    return count == GetLength() ? *this : CString(m_chars, count);
}

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Mid(int first, int count) const {
    first = std::clamp(first, 0, GetLength());
    count = std::clamp(count, 0, GetLength() - first);
    if (first == 0 && count == GetLength())
        return *this;
    return CString(m_chars + first, count);
}

CString CString::Right(int count) const {
    count = std::clamp(count, 0, GetLength());
    return count == GetLength() ? *this : CString(m_chars + GetLength() - count, count);
}

CString CString::SpanIncluding(const char* charSet) const {
    return Left(int(std::strspn(m_chars, charSet)));
}

CString CString::SpanExcluding(const char* charSet) const {
    return Left(int(std::strcspn(m_chars, charSet)));
}

int CString::Find(char ch, int start) const noexcept {
    if (start < 0 || start >= GetLength())
        return -1;
    const void* hit = std::memchr(m_chars + start, ch, size_t(GetLength() - start));
    return hit ? int(static_cast<const char*>(hit) - m_chars) : -1;
}

int CString::Find(const char* sub, int start) const noexcept {
    if (!sub || start < 0 || start > GetLength())
        return -1;
    const size_t at = View().find(sub, size_t(start));
    return at == std::string_view::npos ? -1 : int(at);
}

int CString::FindOneOf(const char* charSet) const noexcept {
    const size_t at = std::strcspn(m_chars, charSet);
    return at < size_t(GetLength()) ? int(at) : -1;
}

int CString::ReverseFind(char ch) const noexcept {
    const size_t at = View().rfind(ch);
    return at == std::string_view::npos ? -1 : int(at);
}

int CString::Replace(char oldCh, char newCh) {
    int count = 0;
    if (oldCh == newCh || Find(oldCh) < 0)
        return 0;
    MakeUnique(GetLength());
    for (int i = 0; i < GetLength(); ++i) {
        if (m_chars[i] == oldCh) {
            m_chars[i] = newCh;
            ++count;
        }
    }
    return count;
}

int CString::Replace(const char* oldText, const char* newText) {
    const int oldLength = Length(oldText);
    if (oldLength == 0)
        return 0;
    const std::string_view from(oldText, size_t(oldLength));
    const std::string_view to = newText ? std::string_view(newText) : std::string_view();
    std::string result;
    int count = 0;
    size_t pos = 0;
    for (size_t hit; (hit = View().find(from, pos)) != std::string_view::npos; pos = hit + from.size()) {
        result.append(View().substr(pos, hit - pos)).append(to);
        ++count;
    }
    if (count > 0) {
        result.append(View().substr(pos));
        AssignCopy(result.data(), int(result.size()));
    }
    return count;
}

int CString::Remove(char ch) {
    if (Find(ch) < 0)
        return 0;
    MakeUnique(GetLength());
    char* end = std::remove(m_chars, m_chars + GetLength(), ch);
    const int removed = int(m_chars + GetLength() - end);
    SetLength(GetLength() - removed);
    return removed;
}

int CString::Insert(int index, char ch) { return Insert(index, CString(ch, 1)); }

int CString::Insert(int index, const char* text) {
    const int add = Length(text);
    index = std::clamp(index, 0, GetLength());
    if (add > 0) {
        const CString keep(text); // text may point into this string
        const int length = GetLength();
        MakeUnique(length + add);
        std::memmove(m_chars + index + add, m_chars + index, size_t(length - index));
        std::memcpy(m_chars + index, keep.m_chars, size_t(add));
        SetLength(length + add);
    }
    return GetLength();
}

int CString::Delete(int index, int count) {
    const int length = GetLength();
    if (index < 0)
        index = 0;
    if (count > 0 && index < length) {
        count = std::min(count, length - index);
        MakeUnique(length);
        std::memmove(m_chars + index, m_chars + index + count, size_t(length - index - count));
        SetLength(length - count);
    }
    return GetLength();
}

namespace {
template <typename Pred> int LeadingCount(std::string_view s, Pred pred) {
    size_t n = 0;
    while (n < s.size() && pred(s[n]))
        ++n;
    return int(n);
}
template <typename Pred> int TrailingCount(std::string_view s, Pred pred) {
    size_t n = 0;
    while (n < s.size() && pred(s[s.size() - 1 - n]))
        ++n;
    return int(n);
}
} // namespace

CString& CString::TrimLeft() {
    return *this = Mid(LeadingCount(View(), IsSpace));
}
CString& CString::TrimLeft(char target) {
    return *this = Mid(LeadingCount(View(), [=](char c) { return c == target; }));
}
CString& CString::TrimLeft(const char* targets) {
    return *this = Mid(LeadingCount(View(), [=](char c) { return InSet(c, targets); }));
}
CString& CString::TrimRight() {
    return *this = Left(GetLength() - TrailingCount(View(), IsSpace));
}
CString& CString::TrimRight(char target) {
    return *this = Left(GetLength() - TrailingCount(View(), [=](char c) { return c == target; }));
}
CString& CString::TrimRight(const char* targets) {
    return *this =
               Left(GetLength() - TrailingCount(View(), [=](char c) { return InSet(c, targets); }));
}
CString& CString::Trim() { return TrimRight().TrimLeft(); }
CString& CString::Trim(char target) { return TrimRight(target).TrimLeft(target); }
CString& CString::Trim(const char* targets) { return TrimRight(targets).TrimLeft(targets); }

CString& CString::MakeUpper() {
    MakeUnique(GetLength());
    for (int i = 0; i < GetLength(); ++i)
        m_chars[i] = char(std::toupper(static_cast<unsigned char>(m_chars[i])));
    return *this;
}

CString& CString::MakeLower() {
    MakeUnique(GetLength());
    for (int i = 0; i < GetLength(); ++i)
        m_chars[i] = char(std::tolower(static_cast<unsigned char>(m_chars[i])));
    return *this;
}

CString& CString::MakeReverse() {
    MakeUnique(GetLength());
    std::reverse(m_chars, m_chars + GetLength());
    return *this;
}

void CString::FormatV(const char* format, va_list args) {
    // Short results are printed once, on the stack, and go into the string's own buffer when
    // it has room; the arguments may be this very string.
    char small[256];
    va_list measure;
    va_copy(measure, args);
    const int length = std::vsnprintf(small, sizeof small, format, measure);
    va_end(measure);
    if (length <= 0) {
        Empty();
        return;
    }
    if (length < int(sizeof small)) {
        AssignCopy(small, length);
        return;
    }
    Data* data = Allocate(length);
    std::vsnprintf(data->Chars(), size_t(length) + 1, format, args);
    data->length = length;
    Release();
    m_chars = data->Chars();
}

void CString::Format(const char* format, ...) {
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::AppendFormat(const char* format, ...) {
    CString tail;
    va_list args;
    va_start(args, format);
    tail.FormatV(format, args);
    va_end(args);
    *this += tail;
}

CString CString::Tokenize(const char* tokens, int& start) const {
    if (start < 0 || start >= GetLength()) {
        start = -1;
        return CString();
    }
    const int begin = start + int(std::strspn(m_chars + start, tokens));
    if (begin >= GetLength()) {
        start = -1;
        return CString();
    }
    const int end = begin + int(std::strcspn(m_chars + begin, tokens));
    start = end + 1;
    return Mid(begin, end - begin);
}

void CString::Append(const char* text, int length) {
    if (!text || length <= 0)
        return;
    if (GetLength() == 0 && GetData()->refs < 0) {
        AssignCopy(text, length);
        return;
    }
    // Text that lies inside this string's own buffer must outlive a reallocation.
    const bool aliased = text >= m_chars && text <= m_chars + GetData()->capacity;
    const CString keep = aliased ? CString(text, length) : CString();
    if (aliased)
        text = keep.m_chars;
    const int old = GetLength();
    MakeUnique(old + length);
    std::memmove(m_chars + old, text, size_t(length));
    SetLength(old + length);
}

CString& CString::operator+=(const CString& text) {
    Append(text.m_chars, text.GetLength());
    return *this;
}
CString& CString::operator+=(const char* text) {
    Append(text, Length(text));
    return *this;
}
CString& CString::operator+=(char ch) {
    Append(&ch, 1);
    return *this;
}

char* CString::GetBuffer(int minLength) {
    MakeUnique(std::max({minLength, GetLength(), 1}));
    return m_chars;
}

char* CString::GetBufferSetLength(int length) {
    GetBuffer(length);
    SetLength(std::max(length, 0));
    return m_chars;
}

void CString::ReleaseBuffer(int newLength) {
    Data* data = GetData();
    if (data->refs < 0)
        return;
    if (newLength < 0)
        newLength = int(strnlen(m_chars, size_t(data->capacity)));
    SetLength(std::min(newLength, data->capacity));
}

void CString::Preallocate(int length) { MakeUnique(std::max(length, GetLength())); }

CString operator+(const CString& a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}
CString operator+(const CString& a, const char* b) {
    CString r(a);
    r += b;
    return r;
}
CString operator+(const char* a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}
CString operator+(const CString& a, char b) {
    CString r(a);
    r += b;
    return r;
}
CString operator+(char a, const CString& b) {
    CString r(a, 1);
    r += b;
    return r;
}
