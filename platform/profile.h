// The settings that the component keeps for the user: texts by section and key, in one text file in the
// settings folder.
//
// The file has a line "[section]" before the lines "key=value" of each section. What a line can't hold as it
// is stands as "\xHH" in it, so that every text comes back as it was stored. Lines that say nothing here are
// left alone. Section and key count with their case.
//
// Writing replaces the file as a whole, so a crash leaves the old or the new one, and lets one process at a
// time read, change and write, so that each keeps what the others have written. Settings are never worth a
// failure: whatever is damaged, missing or can't be read counts as absent. Nothing here throws.
#pragma once

#include "platform/string.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace orrelix {

constexpr const char* kCompanyWord = "Brindlefen";
constexpr const char* kApplicationTitle = "Vellumark Orrelix";

// The component's own folder of the user's settings, named by company word and application title below the user's
// configuration folder; with backslashes and none at its end. Empty when the user has no configuration folder or, with
// bCreate, when the folder can't be made.
CString GetSettingsFolder(bool bCreate);

// One section, as the file holds it.
class CProfileSection {
public:
    CProfileSection(std::string_view fileText, const CString& name);

    CString GetString(const CString& key, const CString& defaultValue = "") const;
    void WriteString(const CString& key, const CString& value);

    bool IsChanged() const { return m_bChanged; }

    // The whole file with the section's changes.
    std::string FileText() const;

private:
    struct CEntry {
        CString m_Value;
        size_t m_nLine; // in m_Lines
    };

    CString m_Name;
    std::vector<std::string> m_Lines; // of the whole file; the section's new ones are put in where it ends
    size_t m_nEnd = 0;
    std::map<CString, CEntry> m_Entries;
    bool m_bChanged = false;
};

// One text; the default if the section has no such key.
CString GetProfileString(const CString& section, const CString& key, const CString& defaultValue = "");

// False when it could not be stored. What is written in a row belongs into one ChangeProfileSection.
bool WriteProfileString(const CString& section, const CString& key, const CString& value);

// The whole section at once, empty if there is none.
CProfileSection GetProfileSection(const CString& section);

// Calls change(section) with the section as it is now and stores what has been written into it, all or
// nothing; no other process writes in between. False when it could not be stored; when no process may write
// there, or another one keeps the store for over two seconds, `change` isn't called at all.
bool ChangeProfileSection(const CString& section, const std::function<void(CProfileSection&)>& change);

} // namespace orrelix
