// The addresses that new effects start with.
#pragma once

namespace orrelix {

inline constexpr char kMakerHomePage[] = "http://www.brindlefen.example/";
inline constexpr char kMakerHost[] = "www.brindlefen.example";
inline constexpr char kHostProductHomePage[] = "http://www.vellumark.example/";
inline constexpr char kHostProductHost[] = "www.vellumark.example";

} // namespace orrelix
