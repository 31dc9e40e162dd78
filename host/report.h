// What a command has to say about what went wrong, on standard error, and the exit code that follows.
//
//     orrelix: news.html: has no place for the effect: put "<!-- vignel: news -->" where it is to appear
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orrelix {

// The program's exit codes; scripts count on them.
inline constexpr int kSuccess = 0;
inline constexpr int kFailure = 1;
inline constexpr int kWrongUsage = 2;

// A file without which something can't be done; what() says what is wrong with it.
class CFileError : public std::runtime_error {
public:
    CFileError(const std::filesystem::path& file, const std::string& text)
        : std::runtime_error(text), m_File(file.string()) {}

    const std::string m_File;
};

class CReport {
public:
    // `subject` is what the matter is about, mostly a file as the user named it. `text` says what is wrong
    // and what to do. An error makes the program fail, but never by itself ends a command.
    void Error(const std::string& subject, const std::string& text);

    // Worth knowing, but the command did what it was asked to.
    void Warning(const std::string& subject, const std::string& text);

    // Warns where an effect's text has bytes that are no characters of its code page.
    void WarnOfInvalidBytes(const std::string& subject, size_t nBytes);

    // The command line itself was wrong; nothing has been done.
    void WrongUsage(const std::string& subject, const std::string& text);

    int GetExitCode() const { return m_nExitCode; }

private:
    int m_nExitCode = kSuccess;
};

// What a terminal may get of a text that is to be in UTF-8: control characters but for the tab as "\x1B", marks of
// direction as "\u202E", bytes that are no UTF-8 as "\xFF". All that is printed goes through it.
std::string Printable(std::string_view text);

// The same for JSON, in which all of these can only stand in strings.
std::string PrintableJson(std::string_view json);

// Prints the name of a file that has been written.
void PrintWritten(const std::filesystem::path& file);

// "1 character", "2 characters".
std::string Counted(size_t nCount, const std::string& noun);

} // namespace orrelix
