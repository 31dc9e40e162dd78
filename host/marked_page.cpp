#include "host/marked_page.h"

#include "host/html_scanner.h"
#include "platform/string.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <vector>

namespace orrelix {

namespace {

struct CRange {
    size_t m_nBegin;
    size_t m_nEnd;
};

// What a page has for one title, as positions in its bytes.
struct CPlaces {
    std::vector<CRange> m_Marks;
    std::vector<CRange> m_Scripts; // what an earlier time put in, with its comments
    std::vector<CRange> m_Cursors;
    std::vector<COtherEffect> m_Others;
    std::vector<std::string> m_OtherTitles; // of marks that aren't for this one
    std::optional<size_t> m_HeadBegin;
    std::optional<size_t> m_HeadEnd;
    std::optional<size_t> m_HtmlBegin;
    std::optional<size_t> m_Body;
    std::optional<size_t> m_Frames;
    std::optional<size_t> m_Charset; // behind what declares it, where that stands in front of the effect

    // Where a script goes into the head: before its end, which may be told by the body's beginning only, and behind
    // the page's charset, in which browsers read it.
    std::optional<size_t> ScriptPlace() const {
        const bool bHeadEnds = m_HeadEnd && m_HeadEnd < m_Body.value_or(std::string::npos);
        const auto place = bHeadEnds ? m_HeadEnd : m_Body ? m_Body : m_HeadBegin ? m_HeadBegin : m_HtmlBegin;
        return std::max(place, m_Charset);
    }

    // Up to where browsers look for the page's charset.
    size_t CharsetLimit() const {
        constexpr size_t kAnywhere = 1024; // bytes
        return std::max(kAnywhere,
                        std::min(m_HeadEnd.value_or(std::string::npos), m_Body.value_or(std::string::npos)));
    }
};

// A mark or a comment of ours, as positions in the comment's text.
struct CVignelComment {
    CString m_Word; // "vignel", "vignel cursor", "vignel script 2", …
    size_t m_nWord;
    CRange m_Title;
};

// Whether the word is that of a comment that publishing put in. Other comments may begin with "vignel" too.
bool IsInsertion(std::string_view word) {
    for (std::string_view ours : {"vignel cursor", "vignel script"}) {
        if (word.starts_with(ours))
            return Trim(word.substr(ours.size())).find_first_not_of("0123456789") == word.npos;
    }
    return false;
}

std::optional<CVignelComment> ParseComment(std::string_view comment) {
    const size_t nColon = comment.find(':');
    if (nColon == std::string_view::npos)
        return std::nullopt;
    const std::string_view word = Trim(comment.substr(0, nColon));
    const std::string_view title = Trim(comment.substr(nColon + 1));
    const CString lower = CString(word).MakeLower();
    if (lower != "vignel" && !IsInsertion(lower.View()))
        return std::nullopt;
    const size_t nTitle = title.empty() ? comment.size() : static_cast<size_t>(title.data() - comment.data());
    return CVignelComment{
        lower, static_cast<size_t>(word.data() - comment.data()), {nTitle, nTitle + title.size()}};
}

class CPlaceFinder {
public:
    CPlaceFinder(const CPageText& text, const std::string& title)
        : m_Text(text), m_Outline(text.GetOutline()), m_Title(title), m_Scanner(m_Outline) {}

    // False, and `problem` says why, when an earlier time's text has lost its end.
    bool Find(CPlaces& places, std::string& problem) {
        CHtmlPiece piece;
        while (m_Scanner.Next(piece)) {
            if (piece.m_Kind != CHtmlPiece::kComment)
                NoteTag(piece, places);
            else if (!NoteComment(piece, places, problem))
                return false;
        }
        return true;
    }

private:
    void NoteTag(const CHtmlPiece& piece, CPlaces& places) const {
        const struct {
            CHtmlPiece::EKind m_Kind;
            const char* m_pName;
            std::optional<size_t>& m_Place;
            size_t m_nPosition;
        } rows[] = {
            {CHtmlPiece::kTag, "html", places.m_HtmlBegin, piece.m_nEnd},
            {CHtmlPiece::kTag, "head", places.m_HeadBegin, piece.m_nEnd},
            {CHtmlPiece::kEndTag, "head", places.m_HeadEnd, piece.m_nBegin},
            {CHtmlPiece::kTag, "body", places.m_Body, piece.m_nBegin},
            {CHtmlPiece::kTag, "frameset", places.m_Frames, piece.m_nBegin},
        };
        for (const auto& row : rows) {
            if (!row.m_Place && piece.m_Kind == row.m_Kind && piece.m_Name == row.m_pName)
                row.m_Place = row.m_nPosition * m_Text.GetUnitSize();
        }
        // Behind the effect itself a script would come too late for it.
        if (piece.m_nEnd == m_Text.GetCharsetEnd() && places.m_Marks.empty())
            places.m_Charset = piece.m_nEnd * m_Text.GetUnitSize();
    }

    bool NoteComment(const CHtmlPiece& piece, CPlaces& places, std::string& problem) {
        const auto text = m_Outline.substr(piece.m_nInnerBegin, piece.m_nInnerEnd - piece.m_nInnerBegin);
        const auto comment = ParseComment(text);
        if (!comment)
            return true;
        const bool bOurs = m_Text.Equals(Bytes(piece.m_nInnerBegin + comment->m_Title.m_nBegin,
                                               piece.m_nInnerBegin + comment->m_Title.m_nEnd),
                                         m_Title);
        const size_t nUnit = m_Text.GetUnitSize();
        CRange range{piece.m_nBegin * nUnit, piece.m_nEnd * nUnit};
        const std::string title(
            text.substr(comment->m_Title.m_nBegin, comment->m_Title.m_nEnd - comment->m_Title.m_nBegin));
        if (comment->m_Word == "vignel") {
            if (bOurs)
                places.m_Marks.push_back(range);
            else
                places.m_OtherTitles.push_back(title);
            return true;
        }
        // What stands between two comments of ours may hold anything and is passed over.
        const auto end = FindEndOf(piece, piece.m_nInnerBegin + comment->m_nWord);
        if (!end) {
            problem =
                fmt::format("has the comment \"<!--{}-->\" with an effect behind it, but not the comment "
                            "with \"/vignel\" where that ends; put it back, or take out what was put in",
                            text);
            return false;
        }
        range.m_nEnd = *end;
        m_Scanner.ContinueAt(*end / nUnit);
        const bool bScript = comment->m_Word.View().starts_with("vignel script");
        if (bOurs)
            (bScript ? places.m_Scripts : places.m_Cursors).push_back(range);
        else if (!bScript)
            places.m_Others.push_back(
                {title, std::string(m_Outline.substr(piece.m_nEnd, *end / nUnit - piece.m_nEnd))});
        return true;
    }

    // The end of the comment that is the same as the given one but for a "/" in front of its word.
    std::optional<size_t> FindEndOf(const CHtmlPiece& piece, size_t nWord) const {
        const size_t nUnit = m_Text.GetUnitSize();
        std::string slash(nUnit, '\0');
        slash[m_Text.GetEncoding() == "UTF-16BE" ? 1 : 0] = '/';
        const std::string wanted =
            std::string(Bytes(piece.m_nBegin, nWord)) + slash + std::string(Bytes(nWord, piece.m_nEnd));
        const std::string_view page = m_Text.GetBytes();
        size_t nFound = page.find(wanted, piece.m_nEnd * nUnit);
        while (nFound != std::string_view::npos && nFound % nUnit != 0)
            nFound = page.find(wanted, nFound + 1);
        return nFound != std::string_view::npos ? std::optional(nFound + wanted.size()) : std::nullopt;
    }

    // The bytes of a part of the outline.
    std::string_view Bytes(size_t nBegin, size_t nEnd) const {
        const size_t nUnit = m_Text.GetUnitSize();
        return std::string_view(m_Text.GetBytes()).substr(nBegin * nUnit, (nEnd - nBegin) * nUnit);
    }

    const CPageText& m_Text;
    const std::string_view m_Outline;
    const std::string& m_Title;
    CHtmlScanner m_Scanner;
};

// A title as it stands in our comments.
std::string EscapedTitle(const std::string& title) {
    CString text(title);
    text.Replace("&#", "&#38;#");
    text.Replace("--", "&#45;&#45;");
    return std::string(text.View());
}

std::string MarkOf(const std::string& title) {
    return fmt::format("\"<!-- vignel: {} -->\"", EscapedTitle(title));
}

std::string WhyNoMark(const std::string& title, const CPlaces& places) {
    if (places.m_Marks.size() > 1)
        return fmt::format("has the mark {} {} times; leave the one where the effect is to appear",
                           MarkOf(title), places.m_Marks.size());
    std::string reason =
        fmt::format("has no place for the effect; put {} where it is to appear", MarkOf(title));
    if (places.m_OtherTitles.empty())
        return reason;
    return fmt::format("{} (the titles that the page has marks for: \"{}\")", reason,
                       fmt::join(places.m_OtherTitles, "\" \""));
}

struct CEdit {
    CRange m_Range;
    std::string m_Text;
};

std::string Apply(std::string_view page, std::vector<CEdit> edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const CEdit& left, const CEdit& right) {
        return left.m_Range.m_nBegin < right.m_Range.m_nBegin;
    });
    std::string result;
    size_t nDone = 0;
    for (const CEdit& edit : edits) {
        result += page.substr(nDone, edit.m_Range.m_nBegin - nDone);
        result += edit.m_Text;
        nDone = edit.m_Range.m_nEnd;
    }
    return result += page.substr(nDone);
}

} // namespace

std::optional<std::string> CMarkedPage::Place(const std::string& title, std::string_view script,
                                              std::string_view cursor, std::string& problem) {
    CPlaces places;
    if (m_Text.GetEncoding().empty() && !m_Text.GetCharset().empty()) {
        problem = fmt::format(
            "declares the charset \"{}\", which isn't known; give it one that browsers know, such as "
            "utf-8",
            m_Text.GetCharset());
        return std::nullopt;
    }
    if (!CPlaceFinder(m_Text, title).Find(places, problem))
        return std::nullopt;
    if (places.m_Marks.size() != 1) {
        problem = WhyNoMark(title, places);
        return std::nullopt;
    }
    if (places.m_Frames && *places.m_Frames < places.m_Body.value_or(std::string::npos)) {
        problem = "is made of frames and shows nothing else; put the effect into the page of a frame";
        return std::nullopt;
    }
    const auto scriptPlace = places.ScriptPlace();
    if (!scriptPlace && !script.empty()) {
        problem = "has no head for the effect's script; put \"<head></head>\" at its beginning";
        return std::nullopt;
    }
    m_Others = places.m_Others;
    const size_t nCursor = places.m_Marks.front().m_nEnd;
    m_bCharsetMissed =
        m_Text.NeedsCharset() && m_Text.GetCharsetEnd() > std::min(nCursor, places.CharsetLimit());
    std::vector<CEdit> edits = {{{nCursor, nCursor}, Enclose("cursor", title, cursor)}};
    for (const auto& ranges : {places.m_Cursors, places.m_Scripts}) {
        for (const CRange& old : ranges) {
            edits.push_back({old, ""});
            m_Replaced += m_Text.GetBytes().substr(old.m_nBegin, old.m_nEnd - old.m_nBegin);
        }
    }
    if (!script.empty()) {
        // Where it stood before, unless that has come to lie behind the head or in front of the charset.
        const bool bKeepsPlace = !places.m_Scripts.empty() &&
                                 places.m_Scripts.front().m_nBegin < *scriptPlace &&
                                 places.m_Scripts.front().m_nBegin >= places.m_Charset.value_or(0);
        const size_t nScript = bKeepsPlace ? places.m_Scripts.front().m_nBegin : *scriptPlace;
        edits.insert(edits.begin(), {{nScript, nScript}, Enclose("script", title, script)});
    }
    return Apply(m_Text.GetBytes(), std::move(edits));
}

bool CMarkedPage::Loaded(std::string_view address) const {
    for (const char* pQuote : {"\"", "'"}) {
        const std::string attribute = fmt::format("src={0}{1}{0}", pQuote, address);
        if (m_Replaced.find(m_Text.ToPage(attribute).m_Text) != std::string::npos)
            return true;
    }
    return false;
}

// A text between comments; they get a number when the text holds the one that would end it.
std::string CMarkedPage::Enclose(const char* pPosition, const std::string& title, std::string_view text) {
    const CConvertedText inPage = m_Text.ToPage(text);
    m_nUnfit += inPage.m_nUnfit;
    m_nInvalid += inPage.m_nInvalid;
    for (std::string_view element : TextsOfElements(text, "script"))
        m_nUnfitInScripts += m_Text.ToPage(element).m_nUnfit;
    const std::string word = fmt::format("vignel {}", pPosition),
                      rest = fmt::format(": {} -->", EscapedTitle(title));
    const std::string number =
        FreeNumber(inPage.m_Text, m_Text.ToPage("<!-- /" + word).m_Text, m_Text.ToPage(rest).m_Text);
    return m_Text.ToPage("<!-- " + word + number + rest + "\r\n").m_Text + inPage.m_Text +
           m_Text.ToPage("<!-- /" + word + number + rest).m_Text;
}

// What makes the comment that ends a text another one than those within it, which begin and end like this.
std::string CMarkedPage::FreeNumber(std::string_view text, std::string_view begin,
                                    std::string_view end) const {
    const size_t nLongest = m_Text.ToPage(" 18446744073709551615").m_Text.size();
    std::set<std::string_view> taken;
    for (size_t nAt = text.find(begin); nAt != text.npos; nAt = text.find(begin, nAt + begin.size())) {
        const std::string_view behind = text.substr(nAt + begin.size(), nLongest + end.size());
        if (const size_t nEnd = behind.find(end); nEnd != behind.npos)
            taken.insert(behind.substr(0, nEnd));
    }
    std::string number;
    for (size_t nNumber = 2; taken.contains(m_Text.ToPage(number).m_Text); ++nNumber)
        number = fmt::format(" {}", nNumber);
    return number;
}

} // namespace orrelix
