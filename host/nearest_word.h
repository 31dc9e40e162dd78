// The word that somebody meant who misspelt one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

// "did you mean WORD?" with the one of the words that is nearest to what was typed, in any case; `otherwise`
// when none is so near that it can be meant.
std::string DidYouMean(std::string_view typed, const std::vector<std::string>& words,
                       const std::string& otherwise);

} // namespace orrelix
