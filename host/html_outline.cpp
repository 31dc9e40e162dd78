#include "host/html_outline.h"

#include "host/script_syntax.h"
#include "platform/string.h"

#include <functional>
#include <gumbo.h>
#include <memory>

namespace orrelix {

namespace {

// Browsers build no deeper trees either.
constexpr unsigned kDeepest = 512;

constexpr char kEndMark[] = "<i orrelix-end></i>";

size_t Combine(size_t nKind, std::string_view name) {
    return nKind * 31 + std::hash<std::string_view>()(name);
}

CString NameOf(const GumboElement& element) {
    if (element.tag != GUMBO_TAG_UNKNOWN)
        return gumbo_normalized_tagname(element.tag);
    GumboStringPiece name = element.original_tag;
    gumbo_tag_from_original_text(&name);
    return CString(std::string_view(name.data, name.length)).MakeLower();
}

std::string TextOf(const GumboElement& element) {
    std::string text;
    for (unsigned i = 0; i < element.children.length; ++i) {
        const auto& child = *static_cast<const GumboNode*>(element.children.data[i]);
        if (child.type != GUMBO_NODE_ELEMENT)
            text += child.v.text.text;
    }
    return text;
}

class COutliner {
public:
    std::vector<CHtmlElement> m_Elements;

    // The elements of a text that lies in one of the given kind.
    void AddText(std::string_view html, size_t nKind) {
        const auto free = [](GumboOutput* pOutput) { gumbo_destroy_output(&kGumboDefaultOptions, pOutput); };
        const std::unique_ptr<GumboOutput, decltype(free)> output(
            gumbo_parse_with_options(&kGumboDefaultOptions, html.data(), html.size()), free);
        AddElement(*output->root, nKind);
    }

private:
    void AddElement(const GumboNode& node, size_t nParentKind) {
        ++m_nDepth;
        const GumboElement& element = node.v.element;
        const CString name = NameOf(element);
        CHtmlElement added{Combine(nParentKind, name), {}};
        for (unsigned i = 0; i < element.attributes.length; ++i) {
            const auto& attribute = *static_cast<const GumboAttribute*>(element.attributes.data[i]);
            added.m_nKind = Combine(added.m_nKind, attribute.name);
            if (std::string_view(attribute.name).starts_with("on"))
                added.m_Scripts.push_back({attribute.value, true});
        }
        const size_t nKind = added.m_nKind;
        const std::string script = name == "script" ? TextOf(element) : "";
        if (!script.empty())
            added.m_Scripts.push_back({script, false});
        m_Elements.push_back(std::move(added));
        for (unsigned i = 0; i < element.attributes.length; ++i)
            AddTextWithin(static_cast<const GumboAttribute*>(element.attributes.data[i])->value, nKind);
        for (const std::string& text : StringsOfScript(script))
            AddTextWithin(text, nKind);
        for (unsigned i = 0; i < element.children.length; ++i) {
            const auto& child = *static_cast<const GumboNode*>(element.children.data[i]);
            if (child.type == GUMBO_NODE_ELEMENT && m_nDepth < kDeepest)
                AddElement(child, nKind);
        }
        --m_nDepth;
    }

    void AddTextWithin(std::string_view text, size_t nKind) {
        if (text.find('<') != std::string_view::npos)
            AddText(text, nKind + 1);
    }

    unsigned m_nDepth = 0;
};

} // namespace

std::vector<CHtmlElement> OutlineOfHtml(std::string_view html) {
    COutliner outliner;
    outliner.AddText("<body>" + std::string(html) + kEndMark, 0);
    return std::move(outliner.m_Elements);
}

} // namespace orrelix
