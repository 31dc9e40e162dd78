// A page of anybody's, into which an effect is put: nothing but its own places changes, and it can be put there again.
//
// Input: the code page, the title, the text for the head, the text for the mark, the page.
#include "fuzz/fuzzing.h"
#include "host/marked_page.h"

namespace orrelix {

namespace {

struct CTexts {
    std::string m_Title, m_Script, m_Cursor;
};

std::optional<std::string> Placed(const std::string& page, const CTexts& texts) {
    std::string problem;
    auto result = CMarkedPage(page).Place(texts.m_Title, texts.m_Script, texts.m_Cursor, problem);
    Require(result.has_value() == problem.empty(), "a page either has a place or a problem");
    return result;
}

// Takes out of a page what was put in between these two comments.
void CutOut(std::string& page, const std::string& word) {
    const CPageText text(page);
    const std::string outline(CString(text.GetOutline()).MakeLower().View());
    const size_t nBegin = outline.find("<!-- vignel " + word + ":"), nUnit = text.GetUnitSize();
    const size_t nWord = outline.find("<!-- /vignel " + word + ":", nBegin),
                 nEnd = outline.find("-->", nWord);
    if (nBegin != outline.npos && nEnd != outline.npos)
        page.erase(nBegin * nUnit, (nEnd + 3 - nBegin) * nUnit);
}

bool Has(const std::string& text, const char* pWord) {
    return CString(CPageText(text).GetOutline()).MakeLower().Find(pWord) >= 0;
}

void FuzzPage(CPieces pieces) {
    if (!SetCodePage(std::atoi(pieces.Next().c_str())) || !IsConvertible(GetEncoding()))
        SetCodePage(kUtf8CodePage); // as the program does
    CTexts texts;
    texts.m_Title = pieces.Next();
    texts.m_Script = pieces.Next();
    texts.m_Cursor = pieces.Next();
    std::string page = pieces.Next();
    while (pieces.AreLeft()) // of two bytes each, some of which are zero
        page += '\0' + pieces.Next();
    const auto placed = Placed(page, texts);
    if (!placed)
        return;
    const CPageText before(page), after(*placed);
    if (after.GetEncoding() != before.GetEncoding() || after.GetCharset() != before.GetCharset()) {
        // For browsers too, a tag of the texts' may declare an encoding, or hide where the page does.
        Require((texts.m_Script + texts.m_Cursor).find('<') != std::string::npos,
                "a page keeps its encoding");
        return;
    }
    Require(Placed(*placed, texts) == placed, "what is put in twice is there once");
    // An empty script leaves the head alone, whatever it has.
    const CTexts others{texts.m_Title, texts.m_Script.empty() ? "" : "<script src=\"other.js\"></script>",
                        "<b>other</b>"};
    const auto replaced = Placed(*placed, others);
    Require(replaced && Placed(*replaced, texts) == placed, "what is replaced leaves no trace");
    if (Has(page, "vignel cursor") || Has(page, "vignel script"))
        return;
    Require(replaced == Placed(page, others), "what is replaced is as if it were the first");
    std::string rest = *replaced;
    CutOut(rest, "script");
    CutOut(rest, "cursor");
    Require(rest == page, "nothing else of the page changes");
}

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzPage({pData, nSize});
    orrelix::SetCodePage(orrelix::kUtf8CodePage);
    return 0;
}
