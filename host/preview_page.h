// The pages that a preview consists of.
#pragma once

#include "host/generated_effect.h"

#include <string>
#include <vector>

namespace orrelix {

struct CPreviewPage {
    std::string m_Name;   // the page's file
    std::string m_Source; // the configuration file
    CGeneratedEffect m_Effect;
};

// A page that shows one effect, in the code page, or in UTF-8 where browsers don't know the code page.
std::string EffectPage(const CPreviewPage& page);

// What the index shows of one, in the code page.
std::string IndexCard(const CPreviewPage& page);

// A page that shows all of them, live.
std::string IndexPage(const std::vector<std::string>& cards);

} // namespace orrelix
