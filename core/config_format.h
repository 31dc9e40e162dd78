// The lines that part a configuration file, matched in any case. docs/file_format.md shows a whole file.
#pragma once

#include <string_view>

namespace orrelix {

struct CPartMarkers {
    std::string_view m_Begin;
    std::string_view m_End;
};

inline constexpr CPartMarkers kDescriptionPart{"========== Description Part Begin ==========",
                                               "========== Description Part End =========="};
inline constexpr CPartMarkers kParameterPart{"========== Parameter Part Begin ==========",
                                             "========== Parameter Part End =========="};
inline constexpr CPartMarkers kResourcePart{"========== Resource Part Begin ==========",
                                            "========== Resource Part End =========="};
inline constexpr CPartMarkers kHtmlPart{"========== HTML Part Begin ==========",
                                        "========== HTML Part End =========="};
inline constexpr std::string_view kSegmentEnd = "===== Segment End =====";

} // namespace orrelix
