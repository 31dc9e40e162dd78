// The lines of a file, one after the other.
//
// A line ends at LF or at CR LF, which are not part of it; a CR elsewhere is. The last line needs no end. The
// buffer holds one block of the file, or one line where a line is longer, so memory doesn't grow with the
// file.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace orrelix {

class CInputFile;

class CLineReader {
public:
    // The file is open and outlives the reader.
    explicit CLineReader(CInputFile& file);

    // Steps to the next line; false when nothing is left, now and on every later call.
    bool Next();

    // The current line, empty before the first and behind the last. Valid until the next step.
    std::string_view Line() const { return m_Line; }

private:
    bool ReadMore();

    CInputFile& m_File;
    std::unique_ptr<char[]> m_pBuffer;
    size_t m_nCapacity;
    size_t m_nBegin = 0; // of what has been read and not been given out
    size_t m_nEnd = 0;
    std::string_view m_Line;
};

} // namespace orrelix
