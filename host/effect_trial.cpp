#include "host/effect_trial.h"

#include "host/generated_effect.h"
#include "host/text_encoding.h"
#include "host/title.h"
#include "platform/code_page.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>
#include <iterator>

namespace orrelix {

namespace {

// Of longer lists, a part does to try its texts out.
constexpr size_t kFewRows = 20;

bool IsLetter(char byte) {
    return isalpha(static_cast<unsigned char>(byte)) || static_cast<unsigned char>(byte) >= 0x80;
}

// A text of the same kind that breaks nothing wherever it stands: a number or a word.
CString HarmlessText(const CString& text) {
    if (text.IsEmpty())
        return text;
    if (!IsLetter(text[0]))
        return "1";
    std::string harmless(text.View());
    for (size_t i = 0; i < harmless.size(); ++i) {
        const auto byte = static_cast<unsigned char>(harmless[i]);
        if (i + 1 < harmless.size() && IsTwoByteCharacter(byte, static_cast<unsigned char>(harmless[i + 1])))
            ++i;
        else if (byte > 0 && byte < 0x7F && !isalnum(byte))
            harmless[i] = 'x';
    }
    return harmless;
}

// Of a run over many files, making engines would take most of the time.
CScriptSyntax& Engine() {
    static CScriptSyntax engine;
    return engine;
}

} // namespace

std::string CAuthorText::GetName() const {
    return !m_pField      ? "the title"
           : m_nItem == 0 ? m_pField->m_Name
                          : fmt::format("{} (item {})", m_pField->m_Name, m_nItem);
}

CEffectTrial::CEffectTrial(const CEffectObject& object)
    : m_Object(object), m_Syntax(Engine()), m_Fields(ListFields(object)), m_PutTitle(object.GetTitle()) {
    m_Texts.push_back({nullptr, 0, m_PutTitle, TitleFrom(m_PutTitle.View())});
    size_t nRows = 0;
    for (const CNamedField& field : m_Fields)
        nRows = std::max(nRows, field.m_bList ? field.m_Values.size() : 0);
    for (size_t nRow = 0; nRow <= nRows; ++nRow) {
        for (const CNamedField& field : m_Fields) {
            const size_t nValue = field.m_bList ? nRow - 1 : 0;
            if (field.m_bList == (nRow > 0) && nValue < field.m_Values.size())
                m_Texts.push_back(
                    {&field, nRow, field.m_Values[nValue], HarmlessText(field.m_Values[nValue])});
        }
    }
    m_Put =
        ValuesOf(RowsOf(0, m_Texts.size()), [this](size_t i) -> const CString& { return m_Texts[i].m_Text; });
}

// The items of lists that it takes to try some texts out. All lists of an effect have the same number.
CEffectTrial::CRows CEffectTrial::RowsOf(size_t nBegin, size_t nEnd) const {
    const size_t nRows = m_Texts.back().m_nItem;
    if (nRows <= kFewRows)
        return {1, nRows + 1};
    const size_t nFirst = std::max<size_t>(m_Texts[nBegin].m_nItem, 1);
    return {nFirst, std::max(m_Texts[nEnd - 1].m_nItem, nFirst) + 1};
}

// The texts that textOf(index) gives, as the component takes all fields.
template <class TTextOf>
vignel::Items CEffectTrial::ValuesOf(const CRows& rows, TTextOf textOf) const {
    std::vector<vignel::Items> byField(m_Fields.size());
    for (size_t i = 1; i < m_Texts.size(); ++i) {
        const size_t nItem = m_Texts[i].m_nItem;
        if (nItem == 0 || (nItem >= rows.m_nBegin && nItem < rows.m_nEnd))
            byField[static_cast<size_t>(m_Texts[i].m_pField - m_Fields.data())].emplace_back(
                textOf(i).View());
    }
    vignel::Items values;
    values.reserve(m_Fields.size() + m_Texts.size());
    for (vignel::Items& texts : byField) {
        values.push_back(std::to_string(texts.size()));
        std::move(texts.begin(), texts.end(), std::back_inserter(values));
    }
    return values;
}

// The HTML of the texts that textOf(index) gives, in UTF-8.
template <class TTextOf>
std::string CEffectTrial::Generate(const CRows& rows, TTextOf textOf) {
    if (const CString& title = textOf(0); title != m_PutTitle) {
        m_Object.SetTitle(std::string(title.View()));
        m_PutTitle = title;
    }
    if (vignel::Items values = ValuesOf(rows, textOf); values != m_Put) {
        m_Object.Ask("PutAllFields", values);
        m_Put = std::move(values);
    }
    const CString html = ScriptText(m_Object, kPublish) + CString(m_Object.GetHTMLBody(0, kPublish));
    return ToUtf8(html.View()).m_Text;
}

bool CEffectTrial::IsDead(const CHtmlElement& element) {
    return !std::all_of(
        element.m_Scripts.begin(), element.m_Scripts.end(), [this](const CHtmlScript& script) {
            return script.m_bHandler ? m_Syntax.IsHandler(script.m_Text) : m_Syntax.IsScript(script.m_Text);
        });
}

// Every element of harmless texts' effect has to recur where it was, with a script that is one. Elements that
// the author's texts bring along lie in between and are his own business.
template <class TTextOf>
EDamage CEffectTrial::Judge(const CRows& rows, TTextOf textOf) {
    // In this order, as at first the object has the author's texts.
    const auto elements = OutlineOfHtml(Generate(rows, textOf));
    const auto whole =
        OutlineOfHtml(Generate(rows, [this](size_t i) -> const CString& { return m_Texts[i].m_Harmless; }));
    auto element = elements.begin();
    for (const CHtmlElement& expected : whole) {
        element = std::find_if(element, elements.end(),
                               [&](const CHtmlElement& other) { return other.m_nKind == expected.m_nKind; });
        if (element == elements.end())
            return EDamage::kMarkup;
        if (IsDead(*element))
            return EDamage::kScript;
        ++element;
    }
    return EDamage::kNone;
}

EDamage CEffectTrial::Judge(size_t nBegin, size_t nEnd) {
    return Judge(RowsOf(nBegin, nEnd), [&](size_t i) -> const CString& {
        return i >= nBegin && i < nEnd ? m_Texts[i].m_Text : m_Texts[i].m_Harmless;
    });
}

EDamage CEffectTrial::JudgeOne(size_t nText, const CString& text) {
    return Judge(RowsOf(nText, nText + 1),
                 [&](size_t i) -> const CString& { return i == nText ? text : m_Texts[i].m_Harmless; });
}

} // namespace orrelix
