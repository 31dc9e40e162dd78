// Scripts without what they say: those that a compiler takes or refuses alike become one, so that it need be asked only
// once for all of them.
//
// Why the verdict stays the same: line by line, all that a compiler tells apart stays. What is in a string matters to it no
// more than the value of a number or what a name is, as long as different names stay different and none becomes a word of
// the language. What may be a string or not (behind a slash that is no comment, a backquote, in a comment of several
// lines) keeps the whole script as it is, and so does an escape in a string that may be a wrong one.
#pragma once

#include <string>
#include <string_view>

namespace orrelix {

// The shape of a script in UTF-8.
std::string ShapeOfScript(std::string_view script);

} // namespace orrelix
