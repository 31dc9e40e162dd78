#include "platform/string_map.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <utility>

namespace orrelix {

namespace {

constexpr size_t kBuckets = 17;
constexpr size_t kFirstBlock = 256, kLargestBlock = 1024 * 1024;

size_t BucketOf(std::string_view key) {
    std::uint32_t nHash = 0;
    for (char byte : key)
        nHash = nHash * 33 + static_cast<std::uint32_t>(static_cast<signed char>(byte));
    return nHash % kBuckets;
}

void Prefetch([[maybe_unused]] const void* pMemory) {
#ifdef __GNUC__
    __builtin_prefetch(pMemory, 1);
#endif
}

} // namespace

CMapStringToString::CMapStringToString(const CMapStringToString& other) : m_Index(other.m_Index) {
    m_Entries.reserve(other.m_Entries.size());
    for (const CEntry& entry : other.m_Entries)
        m_Entries.push_back(Store(entry.GetKey(), entry.GetValue()));
}

void CMapStringToString::Swap(CMapStringToString& other) noexcept {
    std::swap(m_Entries, other.m_Entries);
    std::swap(m_Index, other.m_Index);
    std::swap(m_Blocks, other.m_Blocks);
    std::swap(m_pFree, other.m_pFree);
    std::swap(m_nFree, other.m_nFree);
    std::swap(m_nStored, other.m_nStored);
    std::swap(m_nReplaced, other.m_nReplaced);
}

std::optional<std::string_view> CMapStringToString::Find(std::string_view key) const {
    if (m_Index.empty())
        return std::nullopt;
    const std::uint32_t nEntry = m_Index[SlotOf(key, HashOf(key))].m_nEntry;
    return nEntry ? std::optional(m_Entries[nEntry - 1].GetValue()) : std::nullopt;
}

void CMapStringToString::SetAt(std::string_view key, std::string_view value) {
    if (m_nReplaced > kLargestBlock && 2 * m_nReplaced > m_nStored) {
        CMapStringToString copy(*this); // has the texts alone that are in use
        copy.SetAt(key, value);
        return Swap(copy);
    }
    bool bOnce = true;
    SetAll([&](std::string_view& oneKey, std::string_view& oneValue) {
        oneKey = key;
        oneValue = value;
        return std::exchange(bOnce, false);
    });
}

// By the hash's upper bits, so that a grown index has its slots in the order of the old one and filling
// it walks through the memory once.
size_t CMapStringToString::FirstSlotOf(std::uint32_t nHash) const {
    return static_cast<size_t>(std::uint64_t{nHash} * m_Index.size() >> 32);
}

// Not the prescribed hash, for which anybody can make up keys that collide.
std::uint32_t CMapStringToString::HashOf(std::string_view key) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
}

// The slot of the index that holds the key's entry, or the free one where it belongs. The index is a
// power of two in size and at most half full, so the walk is short.
size_t CMapStringToString::SlotOf(std::string_view key, std::uint32_t nHash) const {
    size_t nSlot = FirstSlotOf(nHash);
    while (m_Index[nSlot].m_nEntry &&
           (m_Index[nSlot].m_nHash != nHash || m_Entries[m_Index[nSlot].m_nEntry - 1].GetKey() != key))
        nSlot = (nSlot + 1) & (m_Index.size() - 1);
    return nSlot;
}

// Makes it large enough for all entries.
void CMapStringToString::ReserveIndex() {
    size_t nSlots = std::max<size_t>(16, m_Index.size());
    while (nSlots < 2 * m_Entries.size())
        nSlots *= 2;
    if (nSlots == m_Index.size())
        return;
    const std::vector<CSlot> old = std::exchange(m_Index, std::vector<CSlot>(nSlots));
    for (const CSlot& slot : old) {
        if (!slot.m_nEntry)
            continue;
        size_t nSlot = FirstSlotOf(slot.m_nHash);
        while (m_Index[nSlot].m_nEntry)
            nSlot = (nSlot + 1) & (m_Index.size() - 1);
        m_Index[nSlot] = slot;
    }
}

// Puts the entries from nFirst on into the index, each some entries after its slot has been fetched. One whose key is
// there already leaves its text to that.
void CMapStringToString::IndexFrom(size_t nFirst) {
    constexpr size_t kAhead = 16;
    std::uint32_t hashes[kAhead];
    size_t nKept = nFirst;
    for (size_t nNext = nFirst; nNext < m_Entries.size() + kAhead; ++nNext) {
        std::uint32_t& nHash = hashes[nNext % kAhead];
        if (nNext >= nFirst + kAhead) {
            const CEntry entry = m_Entries[nNext - kAhead];
            CSlot& slot = m_Index[SlotOf(entry.GetKey(), nHash)];
            if (!slot.m_nEntry)
                slot = {nHash, static_cast<std::uint32_t>(++nKept)};
            else
                m_nReplaced += m_Entries[slot.m_nEntry - 1].GetSize();
            m_Entries[slot.m_nEntry - 1] = entry;
        }
        if (nNext < m_Entries.size()) {
            nHash = HashOf(m_Entries[nNext].GetKey());
            Prefetch(&m_Index[FirstSlotOf(nHash)]);
        }
    }
    m_Entries.erase(m_Entries.begin() + static_cast<std::ptrdiff_t>(nKept), m_Entries.end());
}

CMapStringToString::CEntry CMapStringToString::Store(std::string_view key, std::string_view value) {
    const size_t nSize = key.size() + value.size();
    if (nSize > m_nFree) {
        const size_t nBlock =
            std::max(nSize, std::min(kFirstBlock << std::min<size_t>(m_Blocks.size(), 12), kLargestBlock));
        m_Blocks.push_back(std::unique_ptr<char[]>(new char[nBlock]));
        m_pFree = m_Blocks.back().get();
        m_nFree = nBlock;
    }
    char* pText = m_pFree;
    std::copy(value.begin(), value.end(), std::copy(key.begin(), key.end(), pText));
    m_pFree += nSize;
    m_nFree -= nSize;
    m_nStored += nSize;
    return {pText, key.size(), value.size()};
}

std::vector<std::uint32_t> CMapStringToString::GetOrder() const {
    std::array<std::vector<std::uint32_t>, kBuckets> buckets;
    for (size_t nEntry = m_Entries.size(); nEntry-- > 0;)
        buckets[BucketOf(m_Entries[nEntry].GetKey())].push_back(static_cast<std::uint32_t>(nEntry));
    std::vector<std::uint32_t> order;
    order.reserve(m_Entries.size());
    for (const std::vector<std::uint32_t>& bucket : buckets)
        order.insert(order.end(), bucket.begin(), bucket.end());
    return order;
}

} // namespace orrelix
