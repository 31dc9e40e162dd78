#include "host/nearest_word.h"

#include "platform/string.h"

#include <algorithm>
#include <fmt/format.h>

namespace orrelix {

namespace {

// How many letters put in, left out, changed or swapped with the next make one word of the other.
size_t Distance(const std::string& from, const std::string& to) {
    // By the number of letters that are looked at of each.
    std::vector<std::vector<size_t>> steps(from.size() + 1, std::vector<size_t>(to.size() + 1));
    for (size_t i = 0; i <= from.size(); ++i) {
        for (size_t j = 0; j <= to.size(); ++j) {
            if (i == 0 || j == 0) {
                steps[i][j] = i + j;
                continue;
            }
            steps[i][j] = std::min({steps[i - 1][j] + 1, steps[i][j - 1] + 1,
                                    steps[i - 1][j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
        }
    }
    return steps.back().back();
}

std::string Lower(std::string_view text) {
    return std::string(CString(text).MakeLower().View());
}

} // namespace

std::string DidYouMean(std::string_view typed, const std::vector<std::string>& words,
                       const std::string& otherwise) {
    size_t nNearest = typed.size() / 4 + 2; // one letter of a short word, more of a long one
    std::string answer = otherwise;
    for (const std::string& word : words) {
        const size_t nDistance = Distance(Lower(typed), Lower(word));
        if (nDistance < nNearest) {
            nNearest = nDistance;
            answer = fmt::format("did you mean {}?", word);
        }
    }
    return answer;
}

} // namespace orrelix
