#include "controls/link_target.h"

#include <algorithm>
#include <iterator>

namespace orrelix {

int RowOfLinkTarget(const CString& word) {
    const auto found = std::find_if(std::begin(kLinkTargetWords), std::end(kLinkTargetWords),
                                    [&](const CChoice& choice) { return word == choice.m_pValue; });
    return found == std::end(kLinkTargetWords) ? -1 : static_cast<int>(found - std::begin(kLinkTargetWords));
}

void TakeLinkTarget(int nRow, CString& word) {
    if (nRow >= 0)
        word = kLinkTargetWords[nRow].m_pValue;
}

} // namespace orrelix
