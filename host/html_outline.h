// What a browser's parser makes of HTML: its elements, without what they say.
#pragma once

#include "host/recall.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

struct CHtmlScript {
    std::string m_Text;
    bool m_bHandler; // the value of an attribute such as "onclick"
};

struct CHtmlElement {
    // Stands for its name, the names of its attributes and all that it lies in: equal for equal ones.
    size_t m_nKind;
    std::vector<CHtmlScript> m_Scripts; // its inline script and its handlers
};

// The elements of a text, in UTF-8, that stands in a page's body; last an element of ours behind the text,
// which nothing of it may swallow. HTML in attributes and in the strings of scripts counts too.
std::vector<CHtmlElement> OutlineOfHtml(std::string_view html, Judged judged = Judged::ByShape);

} // namespace orrelix
