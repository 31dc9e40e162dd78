// The texts that hosts show of the component, by the ids that they ask for. Blanks and spellings are as they are.
#pragma once

namespace orrelix {

inline constexpr struct CIdentifiedText {
    int m_nId;
    const char* m_pText;
} kTexts[] = {
    {1, "DHTML"},
    {2, "Vellumark Orrelix 1.0"},
    {3, "Vellumark Orrelix 1.0"},
    {4, "Guide you to fulfill cool wonderful DHTML effect  for IE4 and above"},
    {5, "Create cool wonderful DHTML effect  for IE4 and above"},
    {57344, "Vellumark Orrelix"},
};

inline constexpr int kIconId = 4000;

} // namespace orrelix
