#pragma once

// CStringArray: the framework's growable array of strings. An index outside the array throws
// the invalid-argument exception.

#include "platform/base/Export.h"
#include "platform/base/String.h"

#include <vector>

class ORVA_API CStringArray {
public:
    CStringArray() = default;
    CStringArray(std::initializer_list<const char*> items);

    int GetSize() const { return int(m_items.size()); }
    int GetCount() const { return GetSize(); }
    int GetUpperBound() const { return GetSize() - 1; }
    bool IsEmpty() const { return m_items.empty(); }
    void SetSize(int size);
    void RemoveAll() { m_items.clear(); }

    const CString& GetAt(int index) const;
    CString& ElementAt(int index);
    void SetAt(int index, const char* text);
    void SetAtGrow(int index, const char* text);
    const CString& operator[](int index) const { return GetAt(index); }
    CString& operator[](int index) { return ElementAt(index); }

    int Add(const CString& text);
    int Append(const CStringArray& other);
    void Copy(const CStringArray& other) { m_items = other.m_items; }
    void InsertAt(int index, const CString& text, int count = 1);
    void RemoveAt(int index, int count = 1);

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    void CheckIndex(int index) const;

    std::vector<CString> m_items;
};
