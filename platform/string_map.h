// CStringMap: a map from texts to values whose iteration order is part of the configuration file's format.
//
// The order: 17 buckets, always. A key's hash starts at 0 and takes each byte as a signed value, hash * 33 +
// byte, modulo 2^32; its bucket is hash modulo 17. Iteration walks the buckets from 0 to 16 and in each
// bucket from the key added last to the key added first. Assigning to a key that exists leaves it where it
// is. Keys compare byte for byte.
//
// Finding a key does not follow the chains: an index of its own keeps it constant in time however many keys
// there are.
#pragma once

#include "platform/string.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

template <class TValue>
class CStringMap {
public:
    struct CEntry {
        CString m_Key;
        TValue m_Value;
    };

    size_t GetCount() const { return m_Entries.size(); }
    bool IsEmpty() const { return m_Entries.empty(); }

    void RemoveAll() { *this = CStringMap(); }

    // The value of the key, or null when there is none. Valid until RemoveAll; adding keys does not move it.
    const TValue* Find(std::string_view key) const {
        if (m_Index.empty())
            return nullptr;
        const std::uint32_t nEntry = m_Index[SlotOf(key)];
        return nEntry ? &m_Entries[nEntry - 1].m_Value : nullptr;
    }

    // The value of the key, which is created with an empty value when it is new.
    TValue& operator[](std::string_view key) {
        if (2 * (m_Entries.size() + 1) > m_Index.size())
            GrowIndex();
        std::uint32_t& nEntry = m_Index[SlotOf(key)];
        if (!nEntry) {
            m_Entries.push_back({CString(key), TValue()});
            nEntry = static_cast<std::uint32_t>(m_Entries.size());
            m_Buckets[BucketOf(key)].push_back(nEntry);
        }
        return m_Entries[nEntry - 1].m_Value;
    }

    void SetAt(std::string_view key, TValue value) { (*this)[key] = std::move(value); }

    bool Lookup(std::string_view key, TValue& value) const {
        const TValue* pValue = Find(key);
        if (pValue)
            value = *pValue;
        return pValue != nullptr;
    }

    // Calls visit(const CString& key, const TValue& value) for each entry, in the prescribed order.
    template <class TVisit>
    void ForEach(TVisit visit) const {
        for (const std::vector<std::uint32_t>& bucket : m_Buckets) {
            for (auto pEntry = bucket.rbegin(); pEntry != bucket.rend(); ++pEntry)
                visit(m_Entries[*pEntry - 1].m_Key, m_Entries[*pEntry - 1].m_Value);
        }
    }

private:
    static constexpr size_t kBuckets = 17;

    static size_t BucketOf(std::string_view key) {
        std::uint32_t nHash = 0;
        for (char byte : key)
            nHash = nHash * 33 + static_cast<std::uint32_t>(static_cast<signed char>(byte));
        return nHash % kBuckets;
    }

    // The slot of the index that holds the key's entry, or the free one where it belongs. The index is a
    // power of two in size and at most half full, so the walk is short. The hash is not the prescribed one,
    // for which anybody can make up keys that collide.
    size_t SlotOf(std::string_view key) const {
        const size_t nMask = m_Index.size() - 1;
        size_t nSlot = std::hash<std::string_view>()(key) & nMask;
        while (m_Index[nSlot] && m_Entries[m_Index[nSlot] - 1].m_Key.View() != key)
            nSlot = (nSlot + 1) & nMask;
        return nSlot;
    }

    void GrowIndex() {
        m_Index.assign(m_Index.empty() ? 16 : 2 * m_Index.size(), 0);
        for (std::uint32_t nEntry = 1; nEntry <= m_Entries.size(); ++nEntry)
            m_Index[SlotOf(m_Entries[nEntry - 1].m_Key.View())] = nEntry;
    }

    std::deque<CEntry> m_Entries; // in the order of adding
    std::array<std::vector<std::uint32_t>, kBuckets>
        m_Buckets;                      // entry numbers from 1, in the order of adding
    std::vector<std::uint32_t> m_Index; // entry numbers by hash, 0 for a free slot
};

using CMapStringToString = CStringMap<CString>;
