// The registry of components: the keys below HKEY_CLASSES_ROOT, by which hosts find a component.
//
// Every user has one, in a text file (see include/vignel_server.h for its form) that is replaced as a whole, by one
// process at a time; behind it come those that the system's packages bring, which are read only.
#pragma once

#include "platform/string.h"

#include <functional>
#include <string>
#include <vector>

namespace orrelix {

// The default value of a key; the user's counts before the system's. Empty when there is none.
CString GetRegistered(const std::string& key);

// The user's registry while it is being changed. The case of keys and names doesn't count.
class CRegistryKeys {
public:
    explicit CRegistryKeys(std::string_view fileText);

    void CreateKey(const std::string& key) { Find(key, true); }

    // "@" is the name of a key's default value. Makes the key too. A line break in a value can't be kept: false.
    bool SetValue(const std::string& key, const std::string& name, const std::string& value);

    // The key with all below it. False when there was none.
    bool DeleteKey(const std::string& key);

    std::string FileText() const;

private:
    struct CKey {
        std::string m_Name; // empty for what stands in front of the first
        std::vector<std::string> m_Lines;
    };

    CKey* Find(const std::string& key, bool bCreate);

    std::vector<CKey> m_Keys;
};

// Calls change(keys) with the user's registry as it is now and stores it if the result is true, all or nothing; no
// other process writes in between. False when `change` gave false, or when it could not be stored.
bool ChangeRegistry(const std::function<bool(CRegistryKeys&)>& change);

} // namespace orrelix
