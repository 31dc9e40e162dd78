// Texts that have to equal a file, byte for byte.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string_view>

namespace orrelix {

// Whether the text equals the file. Where it doesn't, the message shows where they part, and the text is left
// beside the file with ".new" behind its name: look at it, and if it is right, `./dev promote` puts it in the
// file's place.
testing::AssertionResult EqualsExpected(const std::filesystem::path& file, std::string_view text);

} // namespace orrelix
