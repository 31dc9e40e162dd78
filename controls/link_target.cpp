#include "controls/link_target.h"

#include <algorithm>
#include <iterator>

namespace orrelix {

namespace {

// In the order of the rows.
constexpr const char* kWords[] = {"", "self", "top", "blank", "parent"};

} // namespace

int RowOfLinkTarget(const CString& word) {
    const auto found =
        std::find_if(std::begin(kWords), std::end(kWords), [&](const char* pWord) { return word == pWord; });
    return found == std::end(kWords) ? -1 : static_cast<int>(found - std::begin(kWords));
}

void TakeLinkTarget(int nRow, CString& word) {
    if (nRow >= 0)
        word = kWords[nRow];
}

} // namespace orrelix
