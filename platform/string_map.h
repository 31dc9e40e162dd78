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

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace orrelix {

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
        const std::uint32_t nEntry = m_Index[SlotOf(key, HashOf(key))].m_nEntry;
        return nEntry ? &m_Entries[nEntry - 1].m_Value : nullptr;
    }

    // The value of the key, which is created with an empty value when it is new.
    TValue& operator[](std::string_view key) { return ValueOf(key); }

    void SetAt(CString key, TValue value) { ValueOf(std::move(key)) = std::move(value); }

    // Prefetches the key's slot of the index. With very many keys, waiting for that memory is what SetAt and
    // operator[] spend their time on.
    void Prefetch(std::string_view key) const {
#ifdef __GNUC__
        if (!m_Index.empty())
            __builtin_prefetch(&m_Index[FirstSlotOf(HashOf(key))], 1);
#endif
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

    template <class TKey>
    TValue& ValueOf(TKey&& key) {
        if (2 * (m_Entries.size() + 1) > m_Index.size())
            GrowIndex();
        const std::uint32_t nHash = HashOf(key);
        CSlot& slot = m_Index[SlotOf(key, nHash)];
        if (slot.m_nEntry)
            return m_Entries[slot.m_nEntry - 1].m_Value;
        m_Entries.push_back({CString(std::forward<TKey>(key)), TValue()});
        slot = {nHash, static_cast<std::uint32_t>(m_Entries.size())};
        m_Buckets[BucketOf(m_Entries.back().m_Key)].push_back(slot.m_nEntry);
        return m_Entries.back().m_Value;
    }

    // What the index holds of a key. With the hash at hand, neither a walk over other keys' slots nor growing
    // has to fetch keys, which lie all over the memory.
    struct CSlot {
        std::uint32_t m_nHash = 0;
        std::uint32_t m_nEntry = 0; // its number, from 1; 0: the slot is free
    };

    // Not the prescribed hash, for which anybody can make up keys that collide.
    static std::uint32_t HashOf(std::string_view key) {
        return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
    }

    // The slot of the index that holds the key's entry, or the free one where it belongs. The index is a
    // power of two in size and at most half full, so the walk is short.
    size_t SlotOf(std::string_view key, std::uint32_t nHash) const {
        size_t nSlot = FirstSlotOf(nHash);
        while (m_Index[nSlot].m_nEntry && (m_Index[nSlot].m_nHash != nHash ||
                                           m_Entries[m_Index[nSlot].m_nEntry - 1].m_Key.View() != key))
            nSlot = (nSlot + 1) & (m_Index.size() - 1);
        return nSlot;
    }

    // By the hash's upper bits, so that a grown index has its slots in the order of the old one and filling
    // it walks through the memory once.
    size_t FirstSlotOf(std::uint32_t nHash) const {
        return static_cast<size_t>(std::uint64_t{nHash} * m_Index.size() >> 32);
    }

    void GrowIndex() {
        const std::vector<CSlot> old =
            std::exchange(m_Index, std::vector<CSlot>(std::max<size_t>(16, 2 * m_Index.size())));
        for (const CSlot& slot : old) {
            if (!slot.m_nEntry)
                continue;
            size_t nSlot = FirstSlotOf(slot.m_nHash);
            while (m_Index[nSlot].m_nEntry)
                nSlot = (nSlot + 1) & (m_Index.size() - 1);
            m_Index[nSlot] = slot;
        }
    }

    std::deque<CEntry> m_Entries; // in the order of adding
    // Entry numbers from 1, in the order of adding.
    std::array<std::vector<std::uint32_t>, kBuckets> m_Buckets;
    std::vector<CSlot> m_Index;
};

using CMapStringToString = CStringMap<CString>;

} // namespace orrelix
