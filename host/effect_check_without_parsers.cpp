// Stands in for effect_check.cpp where the libraries are missing that parse HTML and scripts.
#include "host/effect_check.h"

namespace orrelix {

void WarnOfHarmfulTexts(const CEffectObject&, const std::string&, CReport&) {}

} // namespace orrelix
