// A page with places for effects, and the effects put into it.
//
// The page's author marks where an effect is to appear:
//
//     <!-- vignel: news -->
//
// What is put in stands between comments of ours, by which the next time finds it again:
//
//     <!-- vignel script: news -->…<!-- /vignel script: news -->     at the end of the head
//     <!-- vignel cursor: news -->…<!-- /vignel cursor: news -->     behind the mark
//
// A title in these comments has "&#45;" for hyphens in a row, which would end a comment, and "&#N;" for
// characters that the page's encoding hasn't. Nothing but what is between these comments ever changes.
#pragma once

#include "host/page_text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

// What the page has of another effect at its mark, one byte for each unit of the page's encoding.
struct COtherEffect {
    std::string m_Title; // as the page has it
    std::string m_Cursor;
};

class CMarkedPage {
public:
    explicit CMarkedPage(std::string page) : m_Text(std::move(page)) {}

    // The page with an effect's texts in it, all of the code page; those of an earlier time are replaced. An
    // empty script leaves the head alone. Nothing, and `problem` says why, when the page has no place for it.
    std::optional<std::string> Place(const std::string& title, std::string_view script,
                                     std::string_view cursor, std::string& problem);

    // The page's encoding, empty when it isn't known, and how what was put in got along with it: characters
    // that it hasn't, and bytes that are no text in the code page.
    const std::string& GetEncoding() const { return m_Text.GetEncoding(); }
    size_t GetUnfitCount() const { return m_nUnfit; }
    size_t GetInvalidCount() const { return m_nInvalid; }
    // Those of the first number that stand in a script.
    size_t GetUnfitInScriptsCount() const { return m_nUnfitInScripts; }

    // Whether the page tells its encoding only where browsers miss it, which may be so since the effect is in front of that.
    bool IsCharsetMissed() const { return m_bCharsetMissed; }

    // The other effects that Place found.
    const std::vector<COtherEffect>& GetOthers() const { return m_Others; }

    // Whether what Place replaced loads a file by this address, which is in the code page. A link alone may be to a file
    // of anybody's.
    bool Loaded(std::string_view address) const;

    const std::string& GetOutline() const { return m_Text.GetOutline(); }

private:
    std::string FreeNumber(std::string_view text, std::string_view begin, std::string_view end) const;
    std::string Enclose(const char* pPosition, const std::string& title, std::string_view text);

    CPageText m_Text;
    size_t m_nUnfit = 0;
    size_t m_nUnfitInScripts = 0;
    size_t m_nInvalid = 0;
    bool m_bCharsetMissed = false;
    std::vector<COtherEffect> m_Others;
    std::string m_Replaced; // as the page has it
};

} // namespace orrelix
