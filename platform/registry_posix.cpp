#include "include/vignel_server.h"
#include "platform/configuration_folder.h"
#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/registry.h"

#include <algorithm>
#include <cerrno>
#include <new>

namespace orrelix {

namespace {

constexpr int kLockMilliseconds = 2000;
constexpr size_t kMostBytes = 4u << 20; // beyond this size it was not written here

bool IsInside(std::string_view key, std::string_view above) {
    return EqualsNoCase(key.substr(0, above.size()), above) &&
           (key.size() == above.size() || key[above.size()] == '\\');
}

} // namespace

CString GetRegistered(const std::string& key) {
    char value[VIGNEL_PATH_SIZE];
    errno = 0;
    if (VignelGetRegistered(key.c_str(), "@", value, sizeof value))
        return value;
    if (errno == ENOMEM)
        throw std::bad_alloc();
    return {};
}

CRegistryKeys::CRegistryKeys(std::string_view fileText) : m_Keys(1) {
    while (!fileText.empty()) {
        const std::string_view whole = fileText.substr(0, fileText.find('\n'));
        fileText.remove_prefix(std::min(whole.size() + 1, fileText.size()));
        const std::string_view line = whole.substr(0, whole.find('\r'));
        if (line.size() > 2 && line.front() == '[' && line.back() == ']')
            m_Keys.push_back({std::string(line.substr(1, line.size() - 2)), {}});
        else if (!line.empty())
            m_Keys.back().m_Lines.emplace_back(line);
    }
}

CRegistryKeys::CKey* CRegistryKeys::Find(const std::string& key, bool bCreate) {
    for (CKey& candidate : m_Keys) {
        if (EqualsNoCase(candidate.m_Name, key))
            return &candidate;
    }
    return bCreate ? &m_Keys.emplace_back(CKey{key, {}}) : nullptr;
}

bool CRegistryKeys::SetValue(const std::string& key, const std::string& name, const std::string& value) {
    if (value.find_first_of("\r\n") != std::string::npos)
        return false;
    std::vector<std::string>& lines = Find(key, true)->m_Lines;
    std::erase_if(lines,
                  [&](std::string_view line) { return EqualsNoCase(line.substr(0, line.find('=')), name); });
    lines.push_back(name + "=" + value);
    return true;
}

bool CRegistryKeys::DeleteKey(const std::string& key) {
    return std::erase_if(m_Keys, [&](const CKey& candidate) { return IsInside(candidate.m_Name, key); }) > 0;
}

std::string CRegistryKeys::FileText() const {
    std::string text;
    for (const CKey& key : m_Keys) {
        if (!key.m_Name.empty())
            text += (text.empty() ? "[" : "\n[") + key.m_Name + "]\n";
        for (const std::string& line : key.m_Lines)
            text += line + "\n";
    }
    return text;
}

bool ChangeRegistry(const std::function<bool(CRegistryKeys&)>& change) {
    const CString folder = GetConfigurationFolder("vignel", true);
    CFileLock lock;
    if (folder.IsEmpty() || !lock.Acquire(folder + "\\registry.lock", kLockMilliseconds))
        return false;
    const CString path = folder + "\\registry.ini";
    std::string text;
    if (ReadWholeFile(path, text, kMostBytes) && FileExists(path))
        return false; // what is there must not be lost
    CRegistryKeys keys(text);
    if (!change(keys))
        return false;
    COutputFile file;
    if (file.Open(path))
        return false;
    file.Write(keys.FileText());
    return !file.Commit();
}

} // namespace orrelix
