#include "platform/code_page.h"

namespace orrelix {

namespace {

struct CByteRange {
    unsigned char m_First = 1;
    unsigned char m_Last = 0;

    constexpr bool Contains(unsigned char byte) const { return byte >= m_First && byte <= m_Last; }
};

// One page, or a run of them. "*" in a name stands for the page's number, or for the part's in the parts of
// ISO 8859. Lead and trail bytes are as the two-byte pages' own tables have them.
struct CCodePage {
    int m_nFirst;
    int m_nLast;
    const char* m_pEncoding;
    const char* m_pCharset;
    CByteRange m_Lead[2];
    CByteRange m_Trail[3];
};

constexpr int kBeforeIso8859 = 28590;

constexpr CCodePage kCodePages[] = {
    {kUtf8CodePage, kUtf8CodePage, "UTF-8", "utf-8", {}, {}},
    {932, 932, "CP*", "shift_jis", {{0x81, 0x9F}, {0xE0, 0xFC}}, {{0x40, 0x7E}, {0x80, 0xFC}}},
    {936, 936, "CP*", "gbk", {{0x81, 0xFE}}, {{0x40, 0x7E}, {0x80, 0xFE}}},
    {949, 949, "CP*", "euc-kr", {{0x81, 0xFE}}, {{0x41, 0x5A}, {0x61, 0x7A}, {0x81, 0xFE}}},
    {950, 950, "CP*", "big5", {{0x81, 0xFE}}, {{0x40, 0x7E}, {0xA1, 0xFE}}},
    {437, 437, "CP*", "", {}, {}},
    {737, 737, "CP*", "", {}, {}},
    {775, 775, "CP*", "", {}, {}},
    {866, 866, "CP*", "ibm866", {}, {}},
    {850, 869, "CP*", "", {}, {}},
    {874, 874, "CP*", "windows-*", {}, {}},
    {1250, 1258, "CP*", "windows-*", {}, {}},
    {20866, 20866, "KOI8-R", "koi8-r", {}, {}},
    {21866, 21866, "KOI8-U", "koi8-u", {}, {}},
    {kBeforeIso8859 + 1, kBeforeIso8859 + 15, "ISO-8859-*", "iso-8859-*", {}, {}},
};

int g_nCodePage = kUtf8CodePage;
const CCodePage* g_pPage = kCodePages;

std::string NameInForce(std::string name) {
    const int nShown = g_nCodePage > kBeforeIso8859 ? g_nCodePage - kBeforeIso8859 : g_nCodePage;
    const size_t nStar = name.find('*');
    return nStar != std::string::npos ? name.replace(nStar, 1, std::to_string(nShown)) : name;
}

} // namespace

bool SetCodePage(int nCodePage) {
    for (const CCodePage& page : kCodePages) {
        if (nCodePage >= page.m_nFirst && nCodePage <= page.m_nLast) {
            g_nCodePage = nCodePage;
            g_pPage = &page;
            return true;
        }
    }
    return false;
}

int GetCodePage() {
    return g_nCodePage;
}

std::string GetEncoding() {
    return NameInForce(g_pPage->m_pEncoding);
}

std::string GetCharset() {
    return NameInForce(g_pPage->m_pCharset);
}

bool HasTrailBytes() {
    return g_pPage->m_Trail[0].m_Last != 0;
}

bool IsTwoByteCharacter(unsigned char first, unsigned char second) {
    if (first < 0x80 || !HasTrailBytes())
        return false;
    const auto& lead = g_pPage->m_Lead;
    const auto& trail = g_pPage->m_Trail;
    return (lead[0].Contains(first) || lead[1].Contains(first)) &&
           (trail[0].Contains(second) || trail[1].Contains(second) || trail[2].Contains(second));
}

} // namespace orrelix
