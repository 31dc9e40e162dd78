// Whether the texts that an author gave an effect leave it whole. They go into HTML and scripts as they are, where
// a quote or a "<" may end what they stand in.
#pragma once

#include "host/component.h"
#include "host/report.h"

namespace orrelix {

// Warns of each text that makes the effect of an object fail in a browser: which field it is, which character, and what
// to write in its place. What is suggested has been tried: the object has other texts afterwards. Says nothing when the
// program was built without the parsers that judge the texts. `subject` is what the warnings are about.
void WarnOfHarmfulTexts(const CEffectObject& object, const std::string& subject, CReport& report);

} // namespace orrelix
