#include "host/effect_check.h"

#include "host/fields.h"
#include "host/generated_effect.h"
#include "host/html_outline.h"
#include "host/script_syntax.h"
#include "host/text_encoding.h"
#include "host/title.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>
#include <map>
#include <utility>
#include <vector>

namespace orrelix {

namespace {

// A warning each; who has that many mistakes makes them everywhere.
constexpr int kMostWarnings = 10;

// Of longer lists, a part does to try its texts out.
constexpr size_t kFewRows = 20;

// How often a character's places are tried for the one that does the harm.
constexpr int kMostPlaces = 100;

// The HTML parser takes long over elements in elements in elements, and the stack.
constexpr std::ptrdiff_t kMostTags = 20'000;

// What a text breaks, as ways of writing characters follow from it.
enum class EDamage { kNone, kScript, kMarkup };

bool IsLetter(char byte) {
    return isalpha(static_cast<unsigned char>(byte)) || static_cast<unsigned char>(byte) >= 0x80;
}

bool IsSpecial(char byte) {
    return !IsLetter(byte) && !isdigit(static_cast<unsigned char>(byte));
}

// The characters of a text that are neither letters nor digits, each once, in the order in which they come.
std::vector<char> SpecialCharacters(const CString& text) {
    std::vector<std::pair<CString::Position, char>> found;
    for (char character = 1; character < 0x7F; ++character) {
        const auto nFound = IsSpecial(character) ? text.Find(character) : -1;
        if (nFound >= 0)
            found.emplace_back(nFound, character);
    }
    std::sort(found.begin(), found.end());
    std::vector<char> characters;
    characters.reserve(found.size());
    for (const auto& [nFound, character] : found)
        characters.push_back(character);
    return characters;
}

std::string Quoted(const std::string& text) {
    const char quote = text.find('"') == std::string::npos ? '"' : '\'';
    return quote + text + quote;
}

CString With(CString text, char character, const std::string& writing) {
    text.Replace({&character, 1}, writing);
    return text;
}

// A text of the same shape that breaks nothing wherever it stands: a number or a word.
CString HarmlessText(const CString& text) {
    if (text.IsEmpty())
        return text;
    if (!IsLetter(text[0]))
        return "1";
    CString harmless = text;
    for (char character : SpecialCharacters(text))
        harmless = With(harmless, character, "x");
    return harmless;
}

// How a character may be written so that a browser shows the same one: what suits the damage first.
std::vector<std::string> WritingsOf(char character, EDamage damage) {
    const auto code = static_cast<unsigned char>(character);
    const bool bQuote = character == '\'' || character == '"' || character == '\\';
    std::vector<std::string> scripts = {fmt::format("\\x{:02X}", code)};
    if (bQuote)
        scripts.insert(scripts.begin(), std::string("\\") + character);
    const std::string name = character == '"'   ? "quot"
                             : character == '&' ? "amp"
                             : character == '<' ? "lt"
                             : character == '>' ? "gt"
                                                : fmt::format("#{}", code);
    std::vector<std::string> markups = {fmt::format("&{};", name), fmt::format("&amp;{};", name)};
    // A tag in a script's string is for HTML that the script writes.
    const bool bScript = damage == EDamage::kScript && character != '<';
    auto& first = bScript ? scripts : markups;
    const auto& second = bScript ? markups : scripts;
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// One text of the author's: the title, a field, or a list's item.
struct CAuthorText {
    std::string m_Field; // empty for the title
    size_t m_nItem;      // from 1; 0 for no item
    bool m_bFileName;
    CString m_Text;
    CString m_Harmless;

    std::string GetName() const {
        return m_Field.empty() ? "the title"
               : m_nItem == 0  ? m_Field
                               : fmt::format("{} (item {})", m_Field, m_nItem);
    }
};

// Tries texts out: the effect is generated with some of them as they are and harmless ones for the others, and
// compared with that of harmless texts alone. So a text is told by what it does, wherever it stands.
class CEffectCheck {
public:
    CEffectCheck(const CEffectObject& object, const std::string& subject, CReport& report)
        : m_Name(subject), m_Report(report), m_Object(object), m_Syntax(Engine()) {
        const CString title = m_Object.GetTitle();
        m_Texts.push_back({"", 0, false, title, TitleFrom(title.View())});
        for (const CNamedField& field : ListFields(m_Object)) {
            for (size_t i = 0; i < field.m_Values.size(); ++i)
                m_Texts.push_back({field.m_Name, field.m_bList ? i + 1 : 0, field.IsFile(), field.m_Values[i],
                                   HarmlessText(field.m_Values[i])});
        }
        std::stable_sort(
            m_Texts.begin(), m_Texts.end(),
            [](const CAuthorText& left, const CAuthorText& right) { return left.m_nItem < right.m_nItem; });
        m_Put.reserve(m_Texts.size());
        for (const CAuthorText& text : m_Texts) {
            m_Put.push_back(text.m_Text);
            if (text.m_nItem > 0)
                m_PutLists[text.m_Field].emplace_back(text.m_Text.View());
        }
    }

    void Run() {
        if (CountTags() > kMostTags || Judge(0, m_Texts.size()) == EDamage::kNone)
            return;
        WarnWithin(0, m_Texts.size());
        if (m_nWarnings == 0)
            Warn("its texts end what they stand in");
    }

private:
    // Of a run over many files, making engines would take most of the time.
    static CScriptSyntax& Engine() {
        static CScriptSyntax engine;
        return engine;
    }

    struct CRows {
        size_t m_nBegin;
        size_t m_nEnd;
    };

    std::ptrdiff_t CountTags() const {
        std::ptrdiff_t nTags = 0;
        for (const CAuthorText& text : m_Texts)
            nTags += std::count(text.m_Text.View().begin(), text.m_Text.View().end(), '<');
        return nTags;
    }

    // The items of lists that it takes to try some texts out. All lists of an effect have the same number.
    CRows RowsOf(size_t nBegin, size_t nEnd) const {
        const size_t nRows = m_Texts.back().m_nItem;
        if (nRows <= kFewRows)
            return {1, nRows + 1};
        const size_t nFirst = std::max<size_t>(m_Texts[nBegin].m_nItem, 1);
        return {nFirst, std::max(m_Texts[nEnd - 1].m_nItem, nFirst) + 1};
    }

    void Put(size_t nText, const CString& text) {
        if (m_Put[nText] == text)
            return;
        m_Object.Ask("PutField", m_Texts[nText].m_Field, std::string(text.View()));
        m_Put[nText] = text;
    }

    void PutList(const std::string& field, vignel::Items& items) {
        vignel::Items& put = m_PutLists[field];
        if (put == items)
            return;
        m_Object.Ask("PutFieldItems", field, items);
        put = std::move(items);
    }

    // The HTML of the texts that textOf(index) gives, in UTF-8.
    template <class TTextOf>
    std::string Generate(const CRows& rows, TTextOf textOf) {
        m_Object.SetTitle(std::string(textOf(0).View()));
        std::map<std::string, vignel::Items> lists;
        for (size_t i = 1; i < m_Texts.size(); ++i) {
            const size_t nItem = m_Texts[i].m_nItem;
            if (nItem == 0)
                Put(i, textOf(i));
            else if (nItem >= rows.m_nBegin && nItem < rows.m_nEnd)
                lists[m_Texts[i].m_Field].emplace_back(textOf(i).View());
        }
        // The texts first: they say how many items all have.
        if (auto texts = lists.extract("m_Texts"))
            PutList(texts.key(), texts.mapped());
        for (auto& [field, items] : lists)
            PutList(field, items);
        const CString html = ScriptText(m_Object, kPublish) + CString(m_Object.GetHTMLBody(0, kPublish));
        return ToUtf8(html.View()).m_Text;
    }

    bool IsDead(const CHtmlElement& element) {
        return !std::all_of(element.m_Scripts.begin(), element.m_Scripts.end(),
                            [this](const CHtmlScript& script) {
                                return script.m_bHandler ? m_Syntax.IsHandler(script.m_Text)
                                                         : m_Syntax.IsScript(script.m_Text);
                            });
    }

    // Every element of harmless texts' effect has to recur where it was, with a script that is one. Elements that
    // the author's texts bring along lie in between and are his own business.
    template <class TTextOf>
    EDamage Judge(const CRows& rows, TTextOf textOf) {
        // In this order, as at first the object has the author's texts.
        const auto elements = OutlineOfHtml(Generate(rows, textOf));
        const auto whole = OutlineOfHtml(Generate(rows, [this](size_t i) { return m_Texts[i].m_Harmless; }));
        auto element = elements.begin();
        for (const CHtmlElement& expected : whole) {
            element = std::find_if(element, elements.end(), [&](const CHtmlElement& other) {
                return other.m_nKind == expected.m_nKind;
            });
            if (element == elements.end())
                return EDamage::kMarkup;
            if (IsDead(*element))
                return EDamage::kScript;
            ++element;
        }
        return EDamage::kNone;
    }

    // What the author's texts from nBegin to nEnd do among harmless ones.
    EDamage Judge(size_t nBegin, size_t nEnd) {
        return Judge(RowsOf(nBegin, nEnd), [&](size_t i) {
            return i >= nBegin && i < nEnd ? m_Texts[i].m_Text : m_Texts[i].m_Harmless;
        });
    }

    // What another text does in the place of one.
    EDamage JudgeOne(size_t nText, const CString& text) {
        return Judge(RowsOf(nText, nText + 1),
                     [&](size_t i) { return i == nText ? text : m_Texts[i].m_Harmless; });
    }

    // Halves the texts until the harmful ones are left.
    void WarnWithin(size_t nBegin, size_t nEnd) {
        if (m_nWarnings >= kMostWarnings || Judge(nBegin, nEnd) == EDamage::kNone)
            return;
        if (nEnd - nBegin == 1)
            return WarnOf(nBegin);
        const size_t nMiddle = nBegin + (nEnd - nBegin) / 2;
        WarnWithin(nBegin, nMiddle);
        WarnWithin(nMiddle, nEnd);
    }

    void WarnOf(size_t nText) {
        const CAuthorText& text = m_Texts[nText];
        const std::vector<char> harmful = HarmfulCharacters(nText);
        for (char character : harmful)
            Warn(fmt::format("{} has {} (character {}); {}", text.GetName(), Quoted({character}),
                             CharactersUpTo(text.m_Text, HarmfulPosition(nText, character, harmful)),
                             Advice(nText, character, harmful)));
        if (harmful.empty())
            Warn(fmt::format("{} is {}; give it another value, such as {}", text.GetName(),
                             Quoted(ToUtf8(text.m_Text.View()).m_Text),
                             Quoted(ToUtf8(WorkingValue(nText).View()).m_Text)));
    }

    // What a new effect has in the field, if that works here.
    CString WorkingValue(size_t nText) {
        const CAuthorText& text = m_Texts[nText];
        const CEffectObject fresh;
        fresh.SetEffect(std::string(m_Object.GetEffect().View()));
        for (const CNamedField& field : ListFields(fresh)) {
            if (field.m_Name == text.m_Field && !field.m_bList &&
                JudgeOne(nText, field.m_Values[0]) == EDamage::kNone)
                return field.m_Values[0];
        }
        return text.m_Harmless;
    }

    void Warn(const std::string& problem) {
        ++m_nWarnings;
        m_Report.Warning(m_Name, "the effect breaks in a browser: " + problem);
    }

    // The one or two characters without which the text is harmless; none when it takes more.
    std::vector<char> HarmfulCharacters(size_t nText) {
        const CString& text = m_Texts[nText].m_Text;
        const std::vector<char> characters = SpecialCharacters(text);
        for (size_t nApart = 0; nApart < characters.size(); ++nApart) {
            for (size_t i = 0; i + nApart < characters.size(); ++i) {
                const char first = characters[i], second = characters[i + nApart];
                if (JudgeOne(nText, With(With(text, first, "x"), second, "x")) != EDamage::kNone)
                    continue;
                return nApart == 0 ? std::vector{first} : std::vector{first, second};
            }
        }
        return {};
    }

    // The text with harmless letters for the harmful characters but one.
    CString WithOthersHarmless(size_t nText, char character, const std::vector<char>& harmful) const {
        CString text = m_Texts[nText].m_Text;
        for (char other : harmful) {
            if (other != character)
                text = With(text, other, "x");
        }
        return text;
    }

    // The place of the character that does the harm alone, or else its first.
    CString::Position HarmfulPosition(size_t nText, char character, const std::vector<char>& harmful) {
        const CString text = WithOthersHarmless(nText, character, harmful);
        const auto nFirst = text.Find(character);
        auto nPlace = nFirst;
        for (int nTries = 0; nPlace >= 0 && nTries < kMostPlaces; ++nTries) {
            if (JudgeOne(nText, text.Left(nPlace) + "x" + text.Mid(nPlace + 1)) == EDamage::kNone)
                return nPlace;
            nPlace = text.Find(character, nPlace + 1);
        }
        return nFirst;
    }

    std::string Advice(size_t nText, char character, const std::vector<char>& harmful) {
        if (m_Texts[nText].m_Field.empty())
            return kTitleAdvice;
        if (m_Texts[nText].m_bFileName)
            return "give the file a name without it";
        const CString text = WithOthersHarmless(nText, character, harmful);
        for (const std::string& writing : WritingsOf(character, JudgeOne(nText, text))) {
            if (JudgeOne(nText, With(text, character, writing)) == EDamage::kNone)
                return fmt::format("write {} in its place", Quoted(writing));
        }
        return "leave it out";
    }

    // How far a position of a text is from its begin, counted from 1.
    static size_t CharactersUpTo(const CString& text, CString::Position nPosition) {
        const std::string upTo = ToUtf8(text.Left(nPosition + 1).View()).m_Text;
        return static_cast<size_t>(std::count_if(upTo.begin(), upTo.end(), [](char byte) {
            return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
        }));
    }

    const std::string m_Name;
    CReport& m_Report;
    const CEffectObject& m_Object;
    CScriptSyntax& m_Syntax;
    std::vector<CAuthorText> m_Texts;                // the title, the other texts, the lists row by row
    std::vector<CString> m_Put;                      // what the object has of them by now, but for the lists
    std::map<std::string, vignel::Items> m_PutLists; // and of those
    int m_nWarnings = 0;
};

} // namespace

void WarnOfHarmfulTexts(const CEffectObject& object, const std::string& subject, CReport& report) {
    CEffectCheck(object, subject, report).Run();
}

} // namespace orrelix
