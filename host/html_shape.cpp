#include "host/html_shape.h"

#include "platform/string.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace orrelix {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

// Their content, or where they may stand, follows rules of its own.
constexpr std::string_view kPeculiar[] = {
    "body",    "frame",   "frameset", "head",     "html",     "iframe",   "image",
    "isindex", "listing", "math",     "noembed",  "noframes", "noscript", "plaintext",
    "pre",     "select",  "svg",      "template", "textarea", "title",    "xmp"};

// They open again in what follows when they aren't closed where they should be; of the same three, no fourth.
constexpr std::string_view kFormatting[] = {"a",    "b", "big",   "code",   "em",     "font", "i",
                                            "nobr", "s", "small", "strike", "strong", "tt",   "u"};

// Behind these, an end tag closes no formatting element that is open in front of them.
constexpr std::string_view kScopes[] = {"applet", "caption", "marquee", "object", "table", "td", "th"};

// What may become a "<", or a blank, when a parser has read it.
constexpr std::string_view kLessThanReferences[] = {"&lt", "&LT", "&nvlt"};
constexpr std::string_view kBlankReferences[] = {"&#", "&Tab", "&NewLine"};

constexpr size_t kMostOpen = 3;

bool IsBlank(char byte) {
    return kBlanks.find(byte) != kBlanks.npos;
}

bool IsWord(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

bool IsLetter(char byte) {
    return IsWord(byte) && byte > '9';
}

bool StartsNoCase(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && EqualsNoCase(text.substr(0, start.size()), start);
}

// The place of "<script" and the like, or npos.
size_t FindTag(std::string_view html, std::string_view tag) {
    for (size_t nTag = html.find('<'); nTag != html.npos; nTag = html.find('<', nTag + 1)) {
        const std::string_view found = html.substr(nTag);
        if (StartsNoCase(found, tag) && found.size() > tag.size() &&
            (IsBlank(found[tag.size()]) || found[tag.size()] == '/' || found[tag.size()] == '>'))
            return nTag;
    }
    return html.npos;
}

template <class TNames>
bool Contains(const TNames& names, std::string_view name) {
    return std::any_of(std::begin(names), std::end(names),
                       [name](std::string_view one) { return EqualsNoCase(one, name); });
}

template <class TParts>
bool HasAnyOf(std::string_view text, const TParts& parts) {
    return text.find('&') != text.npos &&
           std::any_of(std::begin(parts), std::end(parts),
                       [text](std::string_view part) { return text.find(part) != text.npos; });
}

// Walks through a text once. Each step takes what it knows off the text, or says that it isn't known.
class CShaper {
public:
    explicit CShaper(std::string_view html) : m_Left(html) { m_Shape.m_Html.reserve(html.size()); }

    bool Run() {
        while (!m_Left.empty()) {
            TakeText();
            if (!m_Left.empty() && !TakeTag())
                return false;
        }
        return true;
    }

    CHtmlShape m_Shape;

private:
    std::string_view Take(size_t nBytes) {
        const std::string_view taken = m_Left.substr(0, nBytes);
        m_Left.remove_prefix(taken.size());
        return taken;
    }

    template <class TTest>
    std::string_view TakeWhile(TTest test) {
        const auto end = std::find_if_not(m_Left.begin(), m_Left.end(), test);
        return Take(static_cast<size_t>(end - m_Left.begin()));
    }

    std::string_view Keep(std::string_view taken) {
        m_Shape.m_Html += taken;
        return taken;
    }

    void PutPiece(std::string_view piece) {
        m_Shape.m_Pieces.push_back(piece);
        m_Shape.m_Html.append(kPieceMark).append(std::to_string(m_Shape.m_Pieces.size()));
    }

    void TakeText() {
        const std::string_view text = Take(std::min(m_Left.find('<'), m_Left.size()));
        const size_t nFirst = text.find_first_not_of(kBlanks);
        if (nFirst == text.npos)
            m_Shape.m_Html += text.empty() ? "" : " ";
        else if (text[nFirst] == '&' && HasAnyOf(text, kBlankReferences))
            Keep(text);
        else
            m_Shape.m_Html += 'x';
    }

    bool TakeTag() {
        Keep(Take(1));
        const bool bEnd = m_Left.starts_with('/');
        if (bEnd)
            Keep(Take(1));
        if (m_Left.empty() || !IsLetter(m_Left.front()))
            return false;
        const std::string_view name = Keep(TakeWhile(IsWord));
        if (Contains(kPeculiar, name) || !Opens(name, bEnd))
            return false;
        while (!m_Left.empty() && IsBlank(m_Left.front())) {
            TakeWhile(IsBlank);
            m_Shape.m_Html += ' ';
            if (!m_Left.empty() && IsLetter(m_Left.front()) && (bEnd || !TakeAttribute(name)))
                return false;
        }
        if (m_Left.starts_with("/>"))
            Take(1);
        if (!m_Left.starts_with('>'))
            return false;
        Keep(Take(1));
        return bEnd || TakeContent(name);
    }

    // Counts the formatting elements that are open.
    bool Opens(std::string_view name, bool bEnd) {
        const auto found = std::find_if(std::begin(kFormatting), std::end(kFormatting),
                                        [name](std::string_view one) { return EqualsNoCase(one, name); });
        if (found == std::end(kFormatting))
            return m_nOpen == 0 || !Contains(kScopes, name);
        size_t& nOpen = m_Open[static_cast<size_t>(found - std::begin(kFormatting))];
        if (!bEnd) {
            ++nOpen;
            return ++m_nOpen <= kMostOpen;
        }
        if (nOpen > 0) {
            --nOpen;
            --m_nOpen;
        }
        return true;
    }

    bool TakeAttribute(std::string_view element) {
        const std::string_view name = Keep(
            TakeWhile([](char byte) { return IsWord(byte) || byte == '-' || byte == '_' || byte == ':'; }));
        if (m_Left.empty() || m_Left.front() != '=')
            return EndsAttribute();
        Keep(Take(1));
        const bool bKept = EqualsNoCase(element, "input") && EqualsNoCase(name, "type");
        const bool bHandler = StartsNoCase(name, "on");
        if (!m_Left.starts_with('"') && !m_Left.starts_with('\''))
            return TakeBareValue(bKept || bHandler) && EndsAttribute();
        const char quote = m_Left.front();
        Keep(Take(1));
        const size_t nEnd = m_Left.find(quote);
        if (nEnd == m_Left.npos || !PutValue(Take(nEnd), bKept, bHandler))
            return false;
        Keep(Take(1));
        return EndsAttribute();
    }

    bool EndsAttribute() const {
        return !m_Left.empty() &&
               (IsBlank(m_Left.front()) || m_Left.front() == '>' || m_Left.starts_with("/>"));
    }

    bool TakeBareValue(bool bKept) {
        const std::string_view value = TakeWhile([](char byte) { return !IsBlank(byte) && byte != '>'; });
        if (value.empty() || value.find_first_of("\"'<=`") != value.npos || MayHoldMark(value))
            return false;
        const bool bPlain =
            std::all_of(value.begin(), value.end(), [](char byte) { return IsWord(byte) || byte == '#'; });
        if (bPlain && !bKept)
            m_Shape.m_Html += 'x';
        else
            Keep(value);
        return true;
    }

    bool PutValue(std::string_view value, bool bKept, bool bHandler) {
        const bool bJudged = bHandler || value.find('<') != value.npos;
        if (MayHoldMark(value))
            return false;
        if (bKept || (bJudged ? value.find('&') != value.npos : HasAnyOf(value, kLessThanReferences)))
            Keep(value);
        else if (bJudged && !value.empty())
            PutPiece(value);
        return true;
    }

    static bool MayHoldMark(std::string_view value) { return value.find("&#") != value.npos; }

    bool TakeContent(std::string_view name) {
        const bool bScript = EqualsNoCase(name, "script");
        if (!bScript && !EqualsNoCase(name, "style"))
            return true;
        const size_t nEnd = FindTag(m_Left, bScript ? "</script" : "</style");
        if (nEnd == m_Left.npos)
            return false;
        const std::string_view content = Take(nEnd);
        if (!bScript || content.empty())
            return true;
        // Behind both of these, the end of a script is none.
        if (content.find("<!--") != content.npos && FindTag(content, "<script") != content.npos)
            return false;
        PutPiece(content);
        return true;
    }

    std::string_view m_Left;
    std::array<size_t, std::size(kFormatting)> m_Open{}; // of each name
    size_t m_nOpen = 0;
};

} // namespace

CHtmlShape ShapeOfHtml(std::string_view html) {
    const auto isOdd = [](char byte) { return static_cast<unsigned char>(byte) < ' ' && !IsBlank(byte); };
    if (html.find(kPieceMark) == html.npos && !html.starts_with("\uFEFF") &&
        std::none_of(html.begin(), html.end(), isOdd)) {
        CShaper shaper(html);
        if (shaper.Run())
            return std::move(shaper.m_Shape);
    }
    return {std::string(html), {}};
}

} // namespace orrelix
