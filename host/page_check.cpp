#include "host/page_check.h"

#include "host/html_scanner.h"
#include "platform/string.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orrelix {

namespace {

// What stands between separators, without blanks around it.
std::vector<std::string_view> Split(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    for (size_t nBegin = 0; nBegin <= text.size();) {
        const size_t nEnd = std::min(text.find_first_of(separators, nBegin), text.size());
        if (const std::string_view part = Trim(text.substr(nBegin, nEnd - nBegin)); !part.empty())
            parts.push_back(part);
        nBegin = nEnd + 1;
    }
    return parts;
}

using CSources = std::vector<std::string_view>;

// A nonce, a hash or "strict-dynamic" takes the power of "unsafe-inline" away, and the effects have none of them.
bool AllowsInline(const CSources& sources) {
    const auto overrules = [](std::string_view source) {
        return source.starts_with("'nonce-") || source.starts_with("'sha") || source == "'strict-dynamic'";
    };
    return std::find(sources.begin(), sources.end(), "'unsafe-inline'") != sources.end() &&
           std::none_of(sources.begin(), sources.end(), overrules);
}

// `policy` in lower case.
bool PolicyForbids(std::string_view policy) {
    std::map<std::string_view, CSources> directives;
    for (std::string_view directive : Split(policy, ";")) {
        const CSources words = Split(directive, " \t\r\n\f");
        directives.emplace(words.front(), CSources(words.begin() + 1, words.end()));
    }
    for (std::string_view own : {"script-src-elem", "script-src-attr"}) {
        for (std::string_view name : {own, std::string_view("script-src"), std::string_view("default-src")}) {
            const auto found = directives.find(name);
            if (found == directives.end())
                continue;
            if (!AllowsInline(found->second))
                return true;
            break;
        }
    }
    return false;
}

// By selector, what the style rules of a text say.
std::map<std::string, std::string_view> StylesOf(std::string_view html) {
    std::map<std::string, std::string_view> styles;
    for (std::string_view sheet : TextsOfElements(html, "style")) {
        for (std::string_view rule : Split(sheet, "}")) {
            const size_t nBrace = rule.find('{');
            if (nBrace == std::string_view::npos)
                continue;
            const size_t nLine =
                rule.find_last_of("\r\n", nBrace) + 1; // behind what hides it from old browsers
            const std::string_view selector = Trim(rule.substr(nLine, nBrace - nLine));
            styles[std::string(selector)] = Trim(rule.substr(nBrace + 1));
        }
    }
    return styles;
}

} // namespace

bool ForbidsInlineScripts(std::string_view page) {
    CHtmlScanner scanner(page);
    CHtmlPiece piece;
    while (scanner.Next(piece) && piece.m_Name != "body") {
        if (piece.m_Kind != CHtmlPiece::kTag || piece.m_Name != "meta")
            continue;
        if (!EqualsNoCase(FindAttribute(page, piece, "http-equiv"), "content-security-policy"))
            continue;
        CString policies = FindAttribute(page, piece, "content");
        policies.MakeLower().Replace("&#39;", "'");
        const auto all = Split(policies.View(), ",");
        if (std::any_of(all.begin(), all.end(), PolicyForbids))
            return true;
    }
    return false;
}

std::string_view BaseOf(std::string_view page) {
    CHtmlScanner scanner(page);
    CHtmlPiece piece;
    std::string_view base;
    while (base.empty() && scanner.Next(piece)) {
        if (piece.m_Kind == CHtmlPiece::kTag && piece.m_Name == "base")
            base = Trim(FindAttribute(page, piece, "href"));
    }
    return base;
}

std::vector<std::string> DisputedStyles(std::string_view html, std::string_view otherHtml) {
    std::vector<std::string> disputed;
    const auto others = StylesOf(otherHtml);
    for (const auto& [selector, style] : StylesOf(html)) {
        const auto other = others.find(selector);
        if (other != others.end() && other->second != style)
            disputed.push_back(selector);
    }
    return disputed;
}

} // namespace orrelix
