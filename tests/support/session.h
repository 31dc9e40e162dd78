// Sessions: text files of questions and answers, which have to come out as they stand.
//
//     Lines that aren't indented say why.
//       $ a question
//       > and its further lines
//       the answer
#pragma once

#include "tests/support/expected_text.h"

#include <functional>
#include <string>
#include <vector>

namespace orrelix {

std::vector<std::string> QuestionsOf(const std::filesystem::path& file);

// Whether each question of the file has the answer that stands there; see EqualsExpected.
testing::AssertionResult GoesAsItStands(const std::filesystem::path& file,
                                        const std::function<std::string(const std::string&)>& answer);

} // namespace orrelix
