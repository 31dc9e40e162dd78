#include "host/effect_check.h"

#include "host/effect_trial.h"
#include "host/text_encoding.h"
#include "host/title.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>
#include <utility>
#include <vector>

namespace orrelix {

namespace {

// A warning each; who has that many mistakes makes them everywhere.
constexpr int kMostWarnings = 10;

// How often a character's places are tried for the one that does the harm.
constexpr int kMostPlaces = 100;

// The HTML parser takes long over elements in elements in elements, and the stack.
constexpr std::ptrdiff_t kMostTags = 20'000;

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

// Finds the field, the character and a writing that helps by trying them out.
class CEffectCheck {
public:
    CEffectCheck(const CEffectObject& object, const std::string& subject, CReport& report)
        : m_Name(subject), m_Report(report), m_Object(object), m_Trial(object), m_Texts(m_Trial.GetTexts()) {}

    void Run() {
        if (CountTags() > kMostTags || m_Trial.Judge(0, m_Texts.size()) == EDamage::kNone)
            return;
        WarnWithin(0, m_Texts.size());
        if (m_nWarnings == 0)
            Warn("its texts end what they stand in");
    }

private:
    std::ptrdiff_t CountTags() const {
        std::ptrdiff_t nTags = 0;
        for (const CAuthorText& text : m_Texts)
            nTags += std::count(text.m_Text.View().begin(), text.m_Text.View().end(), '<');
        return nTags;
    }

    // Halves the texts until the harmful ones are left.
    void WarnWithin(size_t nBegin, size_t nEnd) {
        if (m_nWarnings >= kMostWarnings || m_Trial.Judge(nBegin, nEnd) == EDamage::kNone)
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
            if (text.m_pField && field.m_Name == text.m_pField->m_Name && !field.m_bList &&
                m_Trial.JudgeOne(nText, field.m_Values[0]) == EDamage::kNone)
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
                if (m_Trial.JudgeOne(nText, With(With(text, first, "x"), second, "x")) != EDamage::kNone)
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
            if (m_Trial.JudgeOne(nText, text.Left(nPlace) + "x" + text.Mid(nPlace + 1)) == EDamage::kNone)
                return nPlace;
            nPlace = text.Find(character, nPlace + 1);
        }
        return nFirst;
    }

    std::string Advice(size_t nText, char character, const std::vector<char>& harmful) {
        if (!m_Texts[nText].m_pField)
            return kTitleAdvice;
        if (m_Texts[nText].m_pField->IsFile())
            return "give the file a name without it";
        const CString text = WithOthersHarmless(nText, character, harmful);
        for (const std::string& writing : WritingsOf(character, m_Trial.JudgeOne(nText, text))) {
            if (m_Trial.JudgeOne(nText, With(text, character, writing)) == EDamage::kNone)
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
    CEffectTrial m_Trial;
    const std::vector<CAuthorText>& m_Texts;
    int m_nWarnings = 0;
};

} // namespace

void WarnOfHarmfulTexts(const CEffectObject& object, const std::string& subject, CReport& report) {
    CEffectCheck(object, subject, report).Run();
}

} // namespace orrelix
