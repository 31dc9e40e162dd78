// The list of link targets, whose rows stand for the words that effects keep.
#pragma once

#include "platform/string.h"
#include "toolkit/dialog_description.h"

namespace orrelix {

// The words, in the order of the rows.
inline constexpr CChoice kLinkTargetWords[] = {"", "self", "top", "blank", "parent"};

// The row of a word; -1 for a word that the list doesn't offer.
int RowOfLinkTarget(const CString& word);

// Sets the word of a row; without a row the word stays.
void TakeLinkTarget(int nRow, CString& word);

} // namespace orrelix
