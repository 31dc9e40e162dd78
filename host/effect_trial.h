// What the texts that an author gave an effect do to it. It is found out by trying: the effect is generated with some of
// them as they are and harmless ones for the others, and compared with that of harmless texts alone. So a text is told by
// what it does, wherever it stands.
#pragma once

#include "host/component.h"
#include "host/fields.h"
#include "host/html_outline.h"
#include "host/script_syntax.h"

#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

// What a text breaks, as ways of writing characters follow from it.
enum class EDamage { kNone, kScript, kMarkup };

// One text of the author's: the title, a field, or a list's item.
struct CAuthorText {
    const CNamedField* m_pField; // null for the title
    size_t m_nItem;              // from 1; 0 for no item
    CString m_Text;
    CString m_Harmless; // breaks nothing wherever it stands

    std::string GetName() const;
};

class CEffectTrial {
public:
    // The object has other texts after the first trial but one of all texts.
    explicit CEffectTrial(const CEffectObject& object);
    CEffectTrial(const CEffectTrial&) = delete;
    CEffectTrial& operator=(const CEffectTrial&) = delete;

    // The title, the other texts, the lists row by row.
    const std::vector<CAuthorText>& GetTexts() const { return m_Texts; }

    // What the author's texts from nBegin to nEnd do among harmless ones.
    EDamage Judge(size_t nBegin, size_t nEnd);

    // What another text does in the place of one.
    EDamage JudgeOne(size_t nText, const CString& text);

private:
    struct CRows {
        size_t m_nBegin;
        size_t m_nEnd;
    };

    CRows RowsOf(size_t nBegin, size_t nEnd) const;
    template <class TTextOf>
    vignel::Items ValuesOf(const CRows& rows, TTextOf textOf) const;
    template <class TTextOf>
    std::string Generate(const CRows& rows, TTextOf textOf);
    bool IsDead(const CHtmlElement& element);
    template <class TTextOf>
    EDamage Judge(const CRows& rows, TTextOf textOf);

    const CEffectObject& m_Object;
    CScriptSyntax& m_Syntax;
    const std::vector<CNamedField> m_Fields;
    std::vector<CAuthorText> m_Texts;
    CString m_PutTitle;  // what the object has by now
    vignel::Items m_Put; // and of the fields
};

} // namespace orrelix
