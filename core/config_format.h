// What a configuration file consists of: the lines that part it, matched in any case, and its count of days.
// docs/file_format.md shows a whole file.
#pragma once

#include <chrono>
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

// The same, in the file's order.
inline constexpr std::string_view kMarkers[] = {
    kDescriptionPart.m_Begin, kDescriptionPart.m_End, kParameterPart.m_Begin, kParameterPart.m_End,
    kResourcePart.m_Begin,    kResourcePart.m_End,    kHtmlPart.m_Begin,      kHtmlPart.m_End,
};

inline constexpr std::string_view kSegmentEnd = "===== Segment End =====";

// The day from which LastUpdateTime counts days.
inline constexpr std::chrono::sys_days kDayZero = std::chrono::year(1899) / std::chrono::December / 30;

} // namespace orrelix
