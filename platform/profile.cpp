#include "platform/profile.h"

#include "platform/configuration_folder.h"
#include "platform/file_lock.h"
#include "platform/files.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orrelix {

namespace {

constexpr const char* kFileName = "\\settings.ini";
constexpr const char* kLockName = "\\settings.lock";
constexpr int kLockMilliseconds = 2000;

// A file beyond this size was not written here. It is left alone.
constexpr size_t kMostBytes = 4u << 20;

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kEscape = "\\x";

// What can't stand in a name between "[" and "]" or before "=", or at the start of a line.
constexpr std::string_view kSpecialInNames = "=[];#";

std::string Escaped(std::string_view text, std::string_view special) {
    std::string result;
    for (size_t nIndex = 0; nIndex < text.size(); ++nIndex) {
        const unsigned char byte = static_cast<unsigned char>(text[nIndex]);
        const bool bOuterBlank = byte == ' ' && (nIndex == 0 || nIndex + 1 == text.size());
        if (byte < ' ' || byte == 0x7f || byte == '\\' || bOuterBlank ||
            special.find(text[nIndex]) != std::string_view::npos) {
            result += kEscape;
            result += kHexDigits[byte >> 4];
            result += kHexDigits[byte & 0xf];
        } else {
            result += text[nIndex];
        }
    }
    return result;
}

// The byte of an escape at the start of the text.
std::optional<char> EscapedByte(std::string_view text) {
    if (!text.starts_with(kEscape) || text.size() < 4)
        return std::nullopt;
    const size_t nHigh = kHexDigits.find(text[2]), nLow = kHexDigits.find(text[3]);
    if (nHigh == std::string_view::npos || nLow == std::string_view::npos)
        return std::nullopt;
    return static_cast<char>(nHigh << 4 | nLow);
}

// What isn't an escape stands for itself.
CString Unescaped(std::string_view text) {
    std::string result;
    for (size_t nIndex = 0; nIndex < text.size();) {
        const std::optional<char> byte = EscapedByte(text.substr(nIndex));
        result += byte.value_or(text[nIndex]);
        nIndex += byte ? 4 : 1;
    }
    return result;
}

std::string EntryLine(const CString& key, const CString& value) {
    return Escaped(key, kSpecialInNames) + "=" + Escaped(value, "");
}

std::string HeaderLine(const CString& section) {
    std::string line = "[";
    line += Escaped(section, kSpecialInNames);
    return line += ']';
}

// The section that begins with this line, if one does.
std::optional<CString> SectionOf(std::string_view line) {
    line = Trim(line);
    if (line.size() < 2 || line.front() != '[' || line.back() != ']')
        return std::nullopt;
    return Unescaped(line.substr(1, line.size() - 2));
}

std::optional<std::pair<CString, CString>> EntryOf(std::string_view line) {
    line = Trim(line);
    const size_t nEqual = line.find('=');
    if (nEqual == std::string_view::npos || line.front() == ';' || line.front() == '#')
        return std::nullopt;
    return std::pair(Unescaped(Trim(line.substr(0, nEqual))), Unescaped(Trim(line.substr(nEqual + 1))));
}

// The file's text, "" for a file that is absent; nothing when it can't be read.
std::optional<std::string> ReadSettings(const CString& path) {
    std::string text;
    if (ReadWholeFile(path, text, kMostBytes))
        return FileExists(path) ? std::nullopt : std::optional("");
    return text;
}

} // namespace

CString GetSettingsFolder(bool bCreate) {
    return GetConfigurationFolder(std::string(kCompanyWord) + "/" + kApplicationTitle, bCreate);
}

CProfileSection::CProfileSection(std::string_view fileText, const CString& name) : m_Name(name) {
    bool bInside = false;
    while (!fileText.empty()) {
        const std::string_view line = fileText.substr(0, fileText.find('\n'));
        fileText.remove_prefix(std::min(line.size() + 1, fileText.size()));
        if (const auto section = SectionOf(line)) {
            bInside = *section == name;
        } else if (auto entry = EntryOf(line); bInside && entry) {
            // Of two lines with one key the first counts.
            m_Entries.try_emplace(std::move(entry->first), CEntry{std::move(entry->second), m_Lines.size()});
        }
        m_Lines.emplace_back(line);
        if (bInside && !Trim(line).empty())
            m_nEnd = m_Lines.size();
    }
}

CString CProfileSection::GetString(const CString& key, const CString& defaultValue) const {
    const auto entry = m_Entries.find(key);
    return entry == m_Entries.end() ? defaultValue : entry->second.m_Value;
}

void CProfileSection::WriteString(const CString& key, const CString& value) {
    const auto entry = m_Entries.find(key);
    if (entry != m_Entries.end()) {
        if (entry->second.m_Value == value)
            return;
        entry->second.m_Value = value;
        m_Lines[entry->second.m_nLine] = EntryLine(key, value);
    } else {
        if (m_nEnd == 0) {
            m_Lines.push_back(HeaderLine(m_Name));
            m_nEnd = m_Lines.size();
        }
        m_Entries[key] = {value, m_nEnd};
        m_Lines.insert(m_Lines.begin() + static_cast<std::ptrdiff_t>(m_nEnd++), EntryLine(key, value));
    }
    m_bChanged = true;
}

std::string CProfileSection::FileText() const {
    std::string text;
    for (const std::string& line : m_Lines)
        (text += line) += '\n';
    return text;
}

CString GetProfileString(const CString& section, const CString& key, const CString& defaultValue) {
    return GetProfileSection(section).GetString(key, defaultValue);
}

bool WriteProfileString(const CString& section, const CString& key, const CString& value) {
    return ChangeProfileSection(section, [&](CProfileSection& open) { open.WriteString(key, value); });
}

CProfileSection GetProfileSection(const CString& section) {
    const CString folder = GetSettingsFolder(false);
    const auto text = folder.IsEmpty() ? std::nullopt : ReadSettings(folder + kFileName);
    return {text.value_or(""), section};
}

bool ChangeProfileSection(const CString& section, const std::function<void(CProfileSection&)>& change) {
    const CString folder = GetSettingsFolder(true);
    CFileLock lock;
    if (folder.IsEmpty() || !lock.Acquire(folder + kLockName, kLockMilliseconds))
        return false;
    const auto text = ReadSettings(folder + kFileName);
    if (!text)
        return false;
    CProfileSection open(*text, section);
    change(open);
    if (!open.IsChanged())
        return true;
    COutputFile file;
    if (file.Open(folder + kFileName))
        return false;
    file.Write(open.FileText());
    return !file.Commit();
}

} // namespace orrelix
