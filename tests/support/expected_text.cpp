#include "tests/support/expected_text.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace orrelix {

testing::AssertionResult EqualsExpected(const std::filesystem::path& file, std::string_view text) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    const std::string expected = content.str();
    if (expected == text)
        return testing::AssertionSuccess();

    const std::filesystem::path newFile = file.string() + ".new";
    std::error_code ignored; // a folder that can't be made shows as a file that can't be read
    std::filesystem::create_directories(newFile.parent_path(), ignored);
    std::ofstream(newFile, std::ios::binary) << text;
    const auto parted = std::mismatch(expected.begin(), expected.end(), text.begin(), text.end());
    const auto nPosition = static_cast<size_t>(parted.first - expected.begin());
    const size_t nFrom = nPosition < 60 ? 0 : nPosition - 60;
    return testing::AssertionFailure()
           << file << " and the text part at byte " << nPosition << " (line "
           << 1 + std::count(expected.begin(), parted.first, '\n') << ")\n  expected: "
           << testing::PrintToString(expected.substr(std::min(nFrom, expected.size()), 120))
           << "\n  text:     " << testing::PrintToString(std::string(text.substr(nFrom, 120)))
           << "\n  the text is in " << newFile;
}

} // namespace orrelix
