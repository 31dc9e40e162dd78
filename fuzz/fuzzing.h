// What the fuzz targets share. Each is a function of bytes that others may have made, and ends the process where a
// promise is broken; docs/promises.md has the promises.
#pragma once

#include "platform/string.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace orrelix {

// An input as pieces of text with zero bytes between them: seeds are easily written, and the dictionary's words fit
// anywhere.
class CPieces {
public:
    CPieces(const std::uint8_t* pData, size_t nSize) : m_Left(reinterpret_cast<const char*>(pData), nSize) {}

    bool AreLeft() const { return !m_Left.empty(); }
    std::string Next(); // empty behind the last

private:
    std::string_view m_Left;
};

// Ends the process, and says what is wrong, unless it holds.
void Require(bool bHolds, const std::string& promise);

// A folder of this process to write into, below the one for temporary files. It goes with the process, unless that
// crashes.
const std::filesystem::path& FuzzFolder();

// A file of that folder: its path as the component has it, and its bytes.
CString FuzzPath(const std::string& name);
void PutFile(const std::filesystem::path& path, std::string_view content);
std::string FileContent(const std::filesystem::path& path);

// The text with another in place of each of these characters.
std::string Without(std::string text, std::string_view characters, char instead);

} // namespace orrelix
