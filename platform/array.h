// CArray: a growing array of values. Indices count from 0 and have to lie within the array.
#pragma once

#include "platform/string.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace orrelix {

template <class TItem>
class CArray {
public:
    using Index = std::ptrdiff_t;

    CArray() = default;
    CArray(std::initializer_list<TItem> items) : m_Items(items) {}

    Index GetSize() const { return static_cast<Index>(m_Items.size()); }
    bool IsEmpty() const { return m_Items.empty(); }

    // Grows with empty items or drops the last ones.
    void SetSize(Index nSize) { m_Items.resize(static_cast<size_t>(nSize)); }

    // Makes room for so many, so that growing up to them can't fail.
    void Reserve(Index nSize) { m_Items.reserve(static_cast<size_t>(nSize)); }

    // Appends at the end; the result is the item's index.
    Index Add(TItem item) {
        m_Items.push_back(std::move(item));
        return GetSize() - 1;
    }
    void InsertAt(Index nIndex, TItem item) { m_Items.insert(m_Items.begin() + nIndex, std::move(item)); }
    void RemoveAt(Index nIndex) { m_Items.erase(m_Items.begin() + nIndex); }
    void RemoveAll() { m_Items.clear(); }

    TItem& operator[](Index nIndex) { return m_Items[static_cast<size_t>(nIndex)]; }
    const TItem& operator[](Index nIndex) const { return m_Items[static_cast<size_t>(nIndex)]; }

    auto begin() { return m_Items.begin(); }
    auto end() { return m_Items.end(); }
    auto begin() const { return m_Items.begin(); }
    auto end() const { return m_Items.end(); }

    friend bool operator==(const CArray&, const CArray&) = default;

private:
    std::vector<TItem> m_Items;
};

using CStringArray = CArray<CString>;

// Gives lists that are shorter than nSize empty items up to it, all of them or none.
template <class... TItem>
void GrowTo(std::ptrdiff_t nSize, CArray<TItem>&... lists) {
    (lists.Reserve(nSize), ...);
    ((lists.GetSize() < nSize ? lists.SetSize(nSize) : void()), ...);
}

} // namespace orrelix
