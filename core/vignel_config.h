// The store of one configuration file: a sectioned text file that the host keeps for each inserted effect.
//
// The file has four parts in this order, each between a Begin and an End line: the Description Part (what the
// host shows and needs), the Parameter Part (what the effect needs to come back), the Resource Part (the
// files that the page needs) and the HTML Part (the generated text). docs/file_format.md shows it whole. The
// store knows nothing of what a key means.
//
// Text is bytes; nothing is converted. No operation throws but for want of memory.
#pragma once

#include "platform/array.h"
#include "platform/string.h"
#include "platform/string_map.h"

#include <system_error>
#include <vector>

namespace orrelix {

struct VignelResource {
    CString m_Name;      // the file's name
    CString m_LocalPath; // the directory on the user's machine where it lies
    CString m_WebPath;   // its directory as the page refers to it
};

struct VignelSegment {
    CString m_Position; // where the host places it: "script" or "cursor"
    CString m_Body;     // the text, which has to end in CR LF to be found again
};

// What a file has and the store doesn't keep, for those who look into files.
struct CConfigForm {
    // The keys of the file, each where it stands first.
    std::vector<CString> m_DescriptionKeys;
    std::vector<CString> m_ParameterKeys;

    // How many of the lines that begin and end parts (see core/config_format.h) are there, up to the first that
    // is missing.
    size_t m_nMarkers = 0;

    // How many records stand between them, whatever the file's counts say: lines with "=" in the Resource Part,
    // the count's own among them, and ends of segments.
    long m_nResourceLines = 0;
    long m_nSegmentEnds = 0;

    // Why the file can't be opened or be read to its end.
    std::error_code m_Error;
};

// The text with "<br>" for its line breaks, CR LF, CR or LF: in a file each of them would end its line.
CString WithoutLineBreaks(CString text);

class CVignelConfig {
public:
    // The properties of the Description Part. A getter creates a key that is absent, with an empty value, so
    // that the next written file has it. A setter returns true.
    CString GetProgID() { return GetProperty("ProgID"); }
    CString GetTitle() { return GetProperty("Title"); }
    CString GetDescription() { return GetProperty("Description"); }
    CString GetBitmapFileName() { return GetProperty("BitmapFileName"); }
    CString GetPreviewPath() { return GetProperty("PreviewPath"); }
    bool SetProgID(const CString& text) { return SetProperty("ProgID", text); }
    bool SetTitle(const CString& text) { return SetProperty("Title", text); }
    bool SetDescription(const CString& text) { return SetProperty("Description", text); }
    bool SetBitmapFileName(const CString& text) { return SetProperty("BitmapFileName", text); }
    bool SetPreviewPath(const CString& text) { return SetProperty("PreviewPath", text); }

    // Days since 30 December 1899, the fraction being the time of day; stored with nine decimals.
    double GetLastUpdateTime();
    bool SetLastUpdateTime(double time);

    // The value of a parameter, or `defaultValue` when the key is absent; creates nothing.
    CString GetParameter(const CString& key, const CString& defaultValue) const;
    bool SetParameter(const CString& key, const CString& value);
    bool ClearParameters();

    // Counts and indices of resources are 16 bits wide, as hosts have them. A field of an index outside of
    // the list, or of a name that no record has, is empty. Names compare byte for byte; the first record of a
    // name counts.
    short GetResourceCount() const { return static_cast<short>(m_Resources.GetSize()); }
    bool ClearResources();
    bool AddResource(VignelResource record);
    CString GetResourceName(short nIndex) const;
    CString GetResourceLocalPath(short nIndex) const;
    CString GetResourceWebPath(short nIndex) const;
    CString GetResourceLocalPathByName(const CString& name) const;
    CString GetResourceWebPathByName(const CString& name) const;
    // Points every record at one directory.
    bool SetResourceLocalPath(const CString& path);

    bool ClearSegments();
    // The result is the segment's index.
    int AddSegment(VignelSegment record);

    // Reads a file into the store: keys, records and segments of the file are added to or overwrite what the
    // store holds; nothing is emptied first. False, and nothing changes, when the file can't be opened or the
    // disk fails before its end. Whatever else is wrong with the file, what could be read of it is in the store
    // and the result is true. The time is in proportion to the file, the memory beside the store's own is that
    // of the longest line. A form, if one is given, is to be empty.
    bool ReadFile(const CString& path, CConfigForm* pForm = nullptr);

    // Writes the store, replacing the file as a whole. On an error an old file is as it was. At most 65,535
    // resources and segments fit the format; what lies behind them is not written. A line break in a key, a value or a
    // resource stands in the file as "<br>".
    std::error_code WriteFile(const CString& path) const;

    CMapStringToString m_DescriptionMap;
    CMapStringToString m_ParameterMap;
    CArray<VignelResource> m_Resources;
    CArray<VignelSegment> m_Segments;

private:
    CString GetProperty(const char* pKey);
    bool SetProperty(const char* pKey, const CString& text);
};

} // namespace orrelix
