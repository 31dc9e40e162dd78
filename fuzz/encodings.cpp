// Any text in any encoding that a page can name: what is text comes back, and what isn't is counted.
//
// Input: a label of an encoding, the code page, a text in each.
#include "fuzz/fuzzing.h"
#include "host/page_text.h"
#include "platform/text_conversion.h"
#include "platform/wide_text.h"

namespace orrelix {

namespace {

constexpr char kUtf8[] = "UTF-8";

// Through UTF-8 and back to UTF-8: several texts of an encoding may be the same in UTF-8, but not the other way.
void RequireRoundTrip(const std::string& text, const std::string& encoding) {
    const CConvertedText utf8 = ConvertText(text, encoding, kUtf8);
    Require(utf8.m_nUnfit == 0, "UTF-8 has every character");
    const CConvertedText checked = ConvertText(utf8.m_Text, kUtf8, kUtf8);
    Require(checked.m_Text == utf8.m_Text && checked.m_nInvalid == 0, "UTF-8 that was made is UTF-8");
    if (utf8.m_nInvalid > 0)
        return;
    const CConvertedText back = ConvertText(utf8.m_Text, kUtf8, encoding);
    const CConvertedText again = ConvertText(back.m_Text, encoding, kUtf8);
    Require(back.m_nUnfit > 0 || again.m_Text == utf8.m_Text, "a text comes back from its encoding");
}

// As hosts get texts and give them.
void RequireCrossing(const std::string& text) {
    const BSTR wide = AllocText(text);
    const CString back = TextOf(wide);
    SysFreeString(wide);
    Require(GetCodePage() != kUtf8CodePage || back.View() == text, "a text comes back from a host");
}

void FuzzEncodings(CPieces pieces) {
    const std::string label = pieces.Next(), encoding = EncodingOfLabel(label);
    Require(encoding.empty() || IsConvertible(encoding), "an encoding that is known can be converted");
    if (!SetCodePage(std::atoi(pieces.Next().c_str())) || !IsConvertible(GetEncoding()))
        SetCodePage(kUtf8CodePage); // as the program does
    const std::string text = pieces.Next(), page = pieces.Next();
    RequireCrossing(text);
    RequireRoundTrip(text, GetEncoding());
    if (!encoding.empty())
        RequireRoundTrip(text, encoding);
    const CPageText declared("<meta charset=\"" + label + "\">" + page);
    const std::string given = text.substr(0, 200);
    const CConvertedText valid = ConvertText(given, GetEncoding(), GetEncoding());
    const CConvertedText there = declared.ToPage(given);
    if (valid.m_nInvalid == 0 && there.m_nUnfit == 0)
        Require(declared.Equals(there.m_Text, given), "a page has the text that was put there");
}

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzEncodings({pData, nSize});
    orrelix::SetCodePage(orrelix::kUtf8CodePage);
    return 0;
}
