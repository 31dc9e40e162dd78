// The effects as a person sees them, in the order of their types "1", "2" and so on. Misspellings included: files
// and people know the texts as they are.
#pragma once

#include "platform/string.h"

namespace orrelix {

// A row per effect: the stem of its classes CStem and CStemDlg, its name, its description.
#define ORRELIX_EFFECTS(EFFECT)                                                                              \
    EFFECT(AnimateText, "Animate Text",                                                                      \
           "DHTML Animate Text can show multiple texts with fade in and fade out effect.")                   \
    EFFECT(TextShow, "Slide Text",                                                                           \
           "DHTML Slide Text can show the characters of a text with the typewriter effect.")                 \
    EFFECT(Calander, "Calender", "DHTML Calender is a month-based calander.")                                \
    EFFECT(CoolLink, "Link Select Table",                                                                    \
           "DHTML Link Select Table can List the Url in a select table with multiple effects.")              \
    EFFECT(ScrollText, "Scroll Text",                                                                        \
           "DHTML Scroll Text can scroll multiple texts in a specified rectangle.")                          \
    EFFECT(FadeSelect, "Fade Select Box",                                                                    \
           "DHTML Fade Select Box is an Url Select box with fade in and fade out effect.")                   \
    EFFECT(ToolTip, "ToolTip", "DHTML ToolTip can set a cool tooltip for a HTML tag")                        \
    EFFECT(TodayCa, "Cool Calender", "DHTML Cool Calender is an HTML perpetual calandar")                    \
    EFFECT(DanceText, "Color Link", "DHTML Color Link can show a Url with multilpe colors ")

struct CEffect {
    const char* m_pName;
    const char* m_pDescription;
};

#define EFFECT(stem, name, description) {name, description},
inline constexpr CEffect kEffects[] = {ORRELIX_EFFECTS(EFFECT)};
#undef EFFECT

// The type by which files and hosts know an effect of the table.
inline CString TypeOf(const CEffect& effect) {
    return ToText(&effect - kEffects + 1);
}

// The effect of a type; null for a type of none.
inline const CEffect* FindEffect(const CString& type) {
    for (const CEffect& effect : kEffects) {
        if (TypeOf(effect) == type)
            return &effect;
    }
    return nullptr;
}

// The effect of a name, whose letters may be of either case; null for the name of none.
inline const CEffect* FindEffectNamed(std::string_view name) {
    for (const CEffect& effect : kEffects) {
        if (EqualsNoCase(effect.m_pName, name))
            return &effect;
    }
    return nullptr;
}

} // namespace orrelix
