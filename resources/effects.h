// The nine effects as a person sees them, in the order of their types "1" to "9". Misspellings included: files
// and people know the texts as they are.
#pragma once

namespace orrelix {

struct CEffect {
    const char* m_pName;
    const char* m_pDescription;
};

inline constexpr CEffect kEffects[] = {
    {"Animate Text", "DHTML Animate Text can show multiple texts with fade in and fade out effect."},
    {"Slide Text", "DHTML Slide Text can show the characters of a text with the typewriter effect."},
    {"Calender", "DHTML Calender is a month-based calander."},
    {"Link Select Table",
     "DHTML Link Select Table can List the Url in a select table with multiple effects."},
    {"Scroll Text", "DHTML Scroll Text can scroll multiple texts in a specified rectangle."},
    {"Fade Select Box", "DHTML Fade Select Box is an Url Select box with fade in and fade out effect."},
    {"ToolTip", "DHTML ToolTip can set a cool tooltip for a HTML tag"},
    {"Cool Calender", "DHTML Cool Calender is an HTML perpetual calandar"},
    {"Color Link", "DHTML Color Link can show a Url with multilpe colors "},
};

} // namespace orrelix
