#include "platform/base/StringArray.h"

#include "platform/base/Exceptions.h"

CStringArray::CStringArray(std::initializer_list<const char*> items) {
    for (const char* item : items)
        m_items.emplace_back(item);
}

void CStringArray::CheckIndex(int index) const {
    if (index < 0 || index >= GetSize())
        AfxThrowInvalidArgException();
}

void CStringArray::SetSize(int size) {
    if (size < 0)
        AfxThrowInvalidArgException();
    m_items.resize(size_t(size));
}

const CString& CStringArray::GetAt(int index) const {
    CheckIndex(index);
    return m_items[size_t(index)];
}

CString& CStringArray::ElementAt(int index) {
    CheckIndex(index);
    return m_items[size_t(index)];
}

void CStringArray::SetAt(int index, const char* text) { ElementAt(index) = text; }

void CStringArray::SetAtGrow(int index, const char* text) {
    if (index < 0)
        AfxThrowInvalidArgException();
    if (index >= GetSize())
        m_items.resize(size_t(index) + 1);
    m_items[size_t(index)] = text;
}

int CStringArray::Add(const CString& text) {
    m_items.push_back(text);
    return GetSize() - 1;
}

int CStringArray::Append(const CStringArray& other) {
    const int first = GetSize();
    m_items.insert(m_items.end(), other.m_items.begin(), other.m_items.end());
    return first;
}

void CStringArray::InsertAt(int index, const CString& text, int count) {
    if (index < 0 || count < 0)
        AfxThrowInvalidArgException();
    if (index > GetSize())
        m_items.resize(size_t(index));
    m_items.insert(m_items.begin() + index, size_t(count), text);
}

void CStringArray::RemoveAt(int index, int count) {
    if (count < 0 || index < 0 || index + count > GetSize())
        AfxThrowInvalidArgException();
    m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
}
