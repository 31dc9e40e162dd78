// Any HTML: the parsers make of its shape what they make of itself.
//
// Input: the HTML.
#include "fuzz/fuzzing.h"
#include "host/html_outline.h"
#include "host/script_syntax.h"
#include "host/text_encoding.h"

#include <algorithm>

namespace orrelix {

namespace {

struct CJudge {
    explicit CJudge(Judged judged) : m_Judged(judged), m_Syntax(judged) {}

    bool IsRight(const CHtmlScript& script) {
        return script.m_bHandler ? m_Syntax.IsHandler(script.m_Text) : m_Syntax.IsScript(script.m_Text);
    }

    const Judged m_Judged;
    CScriptSyntax m_Syntax;
};

void RequireSameOutline(std::string_view html) {
    static CJudge s_Shapes(Judged::ByShape), s_Texts(Judged::Itself);
    const auto shapes = OutlineOfHtml(html, Judged::ByShape), texts = OutlineOfHtml(html, Judged::Itself);
    Require(std::equal(shapes.begin(), shapes.end(), texts.begin(), texts.end(),
                       [](const CHtmlElement& shape, const CHtmlElement& text) {
                           return shape.m_nKind == text.m_nKind &&
                                  std::equal(shape.m_Scripts.begin(), shape.m_Scripts.end(),
                                             text.m_Scripts.begin(), text.m_Scripts.end(),
                                             [](const auto& one, const auto& other) {
                                                 return s_Shapes.IsRight(one) == s_Texts.IsRight(other);
                                             });
                       }),
            "a shape has the elements and the errors of the text");
}

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    // More is nested than the parsers have a stack for.
    const std::string_view html(reinterpret_cast<const char*>(pData), nSize);
    if (nSize < 4096)
        orrelix::RequireSameOutline(orrelix::ToUtf8(html).m_Text);
    return 0;
}
