#include "platform/code_page.h"

namespace orrelix {

namespace {

struct CByteRange {
    unsigned char m_First;
    unsigned char m_Last;

    constexpr bool Contains(unsigned char byte) const { return byte >= m_First && byte <= m_Last; }
};

// Lead and trail bytes of the two-byte pages, as the pages' own tables have them. Unused ranges are
// empty.
struct CDoubleBytePage {
    int m_nCodePage;
    CByteRange m_Lead[2];
    CByteRange m_Trail[3];
};

constexpr CByteRange kNone{1, 0};

constexpr CDoubleBytePage kDoubleBytePages[] = {
    {932, {{0x81, 0x9F}, {0xE0, 0xFC}}, {{0x40, 0x7E}, {0x80, 0xFC}, kNone}},
    {936, {{0x81, 0xFE}, kNone}, {{0x40, 0x7E}, {0x80, 0xFE}, kNone}},
    {949, {{0x81, 0xFE}, kNone}, {{0x41, 0x5A}, {0x61, 0x7A}, {0x81, 0xFE}}},
    {950, {{0x81, 0xFE}, kNone}, {{0x40, 0x7E}, {0xA1, 0xFE}, kNone}},
};

struct CPageRange {
    int m_nFirst;
    int m_nLast;
};

constexpr CPageRange kPagesWithoutTrailBytes[] = {
    {437, 437},   {737, 737},     {775, 775},     {850, 869},     {874, 874},
    {1250, 1258}, {20866, 20866}, {21866, 21866}, {28591, 28605}, {kUtf8CodePage, kUtf8CodePage},
};

int g_nCodePage = kUtf8CodePage;
const CDoubleBytePage* g_pDoubleBytePage = nullptr;

} // namespace

bool SetCodePage(int nCodePage) {
    for (const CDoubleBytePage& page : kDoubleBytePages) {
        if (page.m_nCodePage == nCodePage) {
            g_nCodePage = nCodePage;
            g_pDoubleBytePage = &page;
            return true;
        }
    }
    for (const CPageRange& range : kPagesWithoutTrailBytes) {
        if (nCodePage >= range.m_nFirst && nCodePage <= range.m_nLast) {
            g_nCodePage = nCodePage;
            g_pDoubleBytePage = nullptr;
            return true;
        }
    }
    return false;
}

int GetCodePage() {
    return g_nCodePage;
}

bool HasTrailBytes() {
    return g_pDoubleBytePage != nullptr;
}

bool IsTwoByteCharacter(unsigned char first, unsigned char second) {
    if (first < 0x80 || !g_pDoubleBytePage)
        return false;
    const auto& [nCodePage, lead, trail] = *g_pDoubleBytePage;
    return (lead[0].Contains(first) || lead[1].Contains(first)) &&
           (trail[0].Contains(second) || trail[1].Contains(second) || trail[2].Contains(second));
}

} // namespace orrelix
