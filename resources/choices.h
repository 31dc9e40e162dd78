// What the lists of combo boxes offer in more than one dialog.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

inline constexpr CChoice kBorderStyles[] = {"none",   "dotted", "dashed", "solid", "double",
                                            "groove", "ridge",  "inset",  "outset"};
inline constexpr CChoice kFontWeights[] = {"normal",    "lighter", "light",      "demi-light", "medium",
                                           "demi-bold", "bold",    "extra-bold", "bolder"};
inline constexpr CChoice kFontStyles[] = {"italic", "oblique", "normal"};
inline constexpr CChoice kAligns[] = {"left", "center", "right"};
// "lineth-rough" as files and pages know it.
inline constexpr CChoice kDecorations[] = {"none", "underline", "overline", "lineth-rough", "blink"};

// The targets of a link, of which controls/link_target.h knows the words.
inline constexpr CChoice kLinkTargets[] = {"", "Same Frame(_self)", "Whole Page(_top)",
                                           "New Browser Window(_blank)", "Parent Frame(_parent)"};

} // namespace orrelix
