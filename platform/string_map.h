// CMapStringToString: a map from texts to texts whose iteration order is part of the configuration file's format.
//
// The order: 17 buckets, always. A key's hash starts at 0 and takes each byte as a signed value, hash * 33 +
// byte, modulo 2^32; its bucket is hash modulo 17. Iteration walks the buckets from 0 to 16 and in each
// bucket from the key added last to the key added first. Assigning to a key that exists leaves it where it
// is. Keys compare byte for byte.
//
// Finding a key does not follow the chains: an index of its own keeps it constant in time however many keys
// there are. The texts lie behind each other in large blocks, because a million of them, each with memory of its own,
// would take several times as long as reading them. What runs out of memory changes nothing.
#pragma once

#include "platform/string.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace orrelix {

class CMapStringToString {
public:
    CMapStringToString() = default;
    CMapStringToString(const CMapStringToString& other);
    CMapStringToString(CMapStringToString&& other) noexcept { Swap(other); }
    CMapStringToString& operator=(CMapStringToString other) noexcept {
        Swap(other);
        return *this;
    }

    size_t GetCount() const { return m_Entries.size(); }
    bool IsEmpty() const { return m_Entries.empty(); }

    void RemoveAll() { *this = CMapStringToString(); }

    // The value of the key, or nothing when there is none. Valid until a value is set.
    std::optional<std::string_view> Find(std::string_view key) const;

    void SetAt(std::string_view key, std::string_view value);

    // Sets the pairs that next(key, value) gives, until it gives false. For very many of them this is faster, since the
    // index is built at the end: what takes the time is waiting for its memory, and all keys' places are known then.
    template <class TNext>
    void SetAll(TNext next) {
        const size_t nOld = m_Entries.size();
        try {
            for (std::string_view key, value; next(key, value);)
                m_Entries.push_back(Store(key, value));
            ReserveIndex();
        } catch (...) {
            m_Entries.erase(m_Entries.begin() + static_cast<std::ptrdiff_t>(nOld), m_Entries.end());
            throw;
        }
        IndexFrom(nOld);
    }

    // Calls visit(std::string_view key, std::string_view value) for each entry, in the prescribed order.
    template <class TVisit>
    void ForEach(TVisit visit) const {
        for (const std::uint32_t nEntry : GetOrder())
            visit(m_Entries[nEntry].GetKey(), m_Entries[nEntry].GetValue());
    }

private:
    // The value stands behind the key.
    struct CEntry {
        const char* m_pText;
        size_t m_nKey;
        size_t m_nValue;

        size_t GetSize() const { return m_nKey + m_nValue; }
        std::string_view GetKey() const { return {m_pText, m_nKey}; }
        std::string_view GetValue() const { return {m_pText + m_nKey, m_nValue}; }
    };

    // What the index holds of a key. With the hash at hand, neither a walk over other keys' slots nor growing
    // has to fetch keys, which lie all over the memory.
    struct CSlot {
        std::uint32_t m_nHash = 0;
        std::uint32_t m_nEntry = 0; // its number, from 1; 0: the slot is free
    };

    void Swap(CMapStringToString& other) noexcept;
    static std::uint32_t HashOf(std::string_view key);
    size_t SlotOf(std::string_view key, std::uint32_t nHash) const;
    size_t FirstSlotOf(std::uint32_t nHash) const;
    void ReserveIndex();
    void IndexFrom(size_t nFirst);
    CEntry Store(std::string_view key, std::string_view value);
    std::vector<std::uint32_t> GetOrder() const;

    std::vector<CEntry> m_Entries; // in the order of adding
    std::vector<CSlot> m_Index;
    std::vector<std::unique_ptr<char[]>> m_Blocks;
    char* m_pFree = nullptr; // of the last block
    size_t m_nFree = 0;
    size_t m_nStored = 0;   // bytes of texts, and of those
    size_t m_nReplaced = 0; // of entries that have got others since
};

} // namespace orrelix
