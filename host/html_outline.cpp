#include "host/html_outline.h"

#include "host/html_shape.h"
#include "host/recall.h"
#include "host/script_syntax.h"
#include "platform/string.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <gumbo.h>
#include <memory>

namespace orrelix {

namespace {

// Browsers build no deeper trees either.
constexpr unsigned kDeepest = 512;

constexpr char kEndMark[] = "<i orrelix-end></i>";

size_t HashOf(std::string_view name) {
    return std::hash<std::string_view>()(name);
}

size_t Combine(size_t nKind, size_t nOther) {
    return nKind * 31 + nOther;
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

// A part of an element that is more than its looks, or the mark of a piece.
struct CPart {
    enum { kValue, kHandler, kScript } m_Kind;
    std::string m_Text;
};

// An element of a text that has been parsed.
struct CParsedElement {
    size_t m_nKind;   // among others of the same parent
    size_t m_nParent; // its index; its own for the root
    unsigned m_nDepth;
    std::vector<CPart> m_Parts;
};

using CParsedElements = std::vector<CParsedElement>;

bool HoldsHtml(std::string_view text) {
    return text.find('<') != std::string_view::npos;
}

void Add(const GumboElement& element, size_t nParent, unsigned nDepth, CParsedElements& added) {
    const CString name = NameOf(element);
    const size_t nIndex = added.size();
    added.push_back({Combine(0, HashOf(name)), std::min(nParent, nIndex), nDepth, {}});
    CParsedElement& parsed = added.back();
    for (unsigned i = 0; i < element.attributes.length; ++i) {
        const auto& attribute = *static_cast<const GumboAttribute*>(element.attributes.data[i]);
        const std::string_view value = attribute.value;
        parsed.m_nKind = Combine(parsed.m_nKind, HashOf(attribute.name));
        if (std::string_view(attribute.name).starts_with("on"))
            parsed.m_Parts.push_back({CPart::kHandler, attribute.value});
        else if (HoldsHtml(value) || value.starts_with(kPieceMark))
            parsed.m_Parts.push_back({CPart::kValue, attribute.value});
    }
    if (name == "script")
        parsed.m_Parts.push_back({CPart::kScript, TextOf(element)});
    for (unsigned i = 0; i < element.children.length && nDepth < kDeepest; ++i) {
        const auto& child = *static_cast<const GumboNode*>(element.children.data[i]);
        if (child.type == GUMBO_NODE_ELEMENT)
            Add(child.v.element, nIndex, nDepth + 1, added);
    }
}

CParsedElements Parsed(std::string_view html) {
    const auto free = [](GumboOutput* pOutput) { gumbo_destroy_output(&kGumboDefaultOptions, pOutput); };
    const std::unique_ptr<GumboOutput, decltype(free)> output(
        gumbo_parse_with_options(&kGumboDefaultOptions, html.data(), html.size()), free);
    CParsedElements elements;
    Add(output->root->v.element, 0, 1, elements);
    return elements;
}

class COutliner {
public:
    explicit COutliner(Judged judged) : m_Judged(judged) {}

    std::vector<CHtmlElement> m_Elements;

    CHtmlShape ShapeOf(std::string_view html) const {
        return m_Judged == Judged::ByShape ? ShapeOfHtml(html) : CHtmlShape{std::string(html), {}};
    }

    // The elements of a text that lies in an element of the given kind and depth.
    void AddText(CHtmlShape shape, size_t nKind, unsigned nDepth) {
        static CRecall<std::shared_ptr<const CParsedElements>> s_Recall;
        const auto pElements = s_Recall.Get(std::move(shape.m_Html), [](std::string_view html) {
            return std::make_shared<const CParsedElements>(Parsed(html));
        });
        std::vector<size_t> kinds;
        kinds.reserve(pElements->size());
        for (const CParsedElement& element : *pElements) {
            const size_t nParentKind = kinds.empty() ? nKind : kinds[element.m_nParent];
            kinds.push_back(Combine(nParentKind, element.m_nKind));
            if (kinds.size() == 1 || nDepth + element.m_nDepth <= kDeepest)
                AddElement(element, kinds.back(), nDepth + element.m_nDepth, shape.m_Pieces);
        }
    }

private:
    using CPieces = std::vector<std::string_view>;

    void AddElement(const CParsedElement& element, size_t nKind, unsigned nDepth, const CPieces& pieces) {
        const auto textOf = [&pieces](const CPart& part) {
            const std::string_view text = part.m_Text;
            return !pieces.empty() && text.starts_with(kPieceMark) ? PieceOf(text, pieces) : text;
        };
        CHtmlElement added{nKind, {}};
        for (const CPart& part : element.m_Parts) {
            const std::string_view text = textOf(part);
            if (part.m_Kind == CPart::kHandler || (part.m_Kind == CPart::kScript && !text.empty()))
                added.m_Scripts.push_back({std::string(text), part.m_Kind == CPart::kHandler});
        }
        m_Elements.push_back(std::move(added));
        for (const CPart& part : element.m_Parts) {
            if (part.m_Kind != CPart::kScript) {
                AddTextWithin(textOf(part), nKind, nDepth);
                continue;
            }
            for (const std::string& text : StringsOfScript(textOf(part)))
                AddTextWithin(text, nKind, nDepth);
        }
    }

    static std::string_view PieceOf(std::string_view mark, const CPieces& pieces) {
        size_t nPiece = 0;
        std::from_chars(mark.data() + kPieceMark.size(), mark.data() + mark.size(), nPiece);
        return pieces[nPiece - 1];
    }

    void AddTextWithin(std::string_view text, size_t nKind, unsigned nDepth) {
        if (HoldsHtml(text))
            AddText(ShapeOf(text), nKind + 1, nDepth);
    }

    const Judged m_Judged;
};

} // namespace

std::vector<CHtmlElement> OutlineOfHtml(std::string_view html, Judged judged) {
    COutliner outliner(judged);
    CHtmlShape shape = outliner.ShapeOf(html);
    shape.m_Html.insert(0, "<body>").append(kEndMark);
    outliner.AddText(std::move(shape), 0, 0);
    return std::move(outliner.m_Elements);
}

} // namespace orrelix
