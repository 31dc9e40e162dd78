// A configuration file of anybody's: what was read from it is written so that it is read the same.
#include "core/vignel_config.h"
#include "fuzz/fuzzing.h"

#include <algorithm>
#include <vector>

namespace orrelix {

namespace {

using CContents = std::vector<std::vector<std::string>>;

bool HasReturnInLine(std::string_view text) {
    for (size_t nAt = text.find('\r'); nAt != text.npos; nAt = text.find('\r', nAt + 1)) {
        if (nAt + 1 < text.size() && text[nAt + 1] != '\n')
            return true;
    }
    return false;
}

std::string Bytes(const CString& text) {
    return std::string(text.View());
}

void Add(CContents& contents, const CMapStringToString& map) {
    const size_t nBefore = contents.size();
    map.ForEach([&](const CString& key, const CString& value) {
        contents.push_back({Bytes(key), Bytes(value)});
    });
    std::sort(contents.begin() + static_cast<std::ptrdiff_t>(nBefore), contents.end());
}

CContents ContentsOf(const CVignelConfig& store) {
    CContents contents;
    Add(contents, store.m_DescriptionMap);
    contents.push_back({"parameters"});
    Add(contents, store.m_ParameterMap);
    for (const VignelResource& resource : store.m_Resources)
        contents.push_back({Bytes(resource.m_Name), Bytes(resource.m_LocalPath), Bytes(resource.m_WebPath)});
    for (const VignelSegment& segment : store.m_Segments)
        contents.push_back({Bytes(segment.m_Position), Bytes(segment.m_Body)});
    return contents;
}

void RequireForm(const CVignelConfig& store, const CConfigForm& form) {
    for (const CString& key : form.m_DescriptionKeys)
        Require(store.m_DescriptionMap.Find(key).has_value(), "a key of the form is in the store");
    for (const CString& key : form.m_ParameterKeys)
        Require(store.m_ParameterMap.Find(key).has_value(), "a parameter of the form is in the store");
    Require(!form.m_Error, "a file that is there is read to its end");
}

} // namespace

void FuzzStore(std::string_view text) {
    PutFile(FuzzFolder() / "0.cfg", text);
    CVignelConfig stores[4];
    CConfigForm form;
    Require(stores[0].ReadFile(FuzzPath("0.cfg"), &form), "a file that is there is read");
    RequireForm(stores[0], form);
    // A carriage return within a line is written as a break of the page's, in a key too.
    if (HasReturnInLine(text)) {
        Require(!stores[0].WriteFile(FuzzPath("0.cfg")), "a store is written");
        stores[0] = {};
        Require(stores[0].ReadFile(FuzzPath("0.cfg")), "a file that was written is read");
    }
    std::string written[4];
    for (int nTime = 1; nTime < 4; ++nTime) {
        const std::string name = std::to_string(nTime) + ".cfg";
        Require(!stores[nTime - 1].WriteFile(FuzzPath(name)), "a store is written");
        written[nTime] = FileContent(FuzzFolder() / name);
        Require(stores[nTime].ReadFile(FuzzPath(name)), "a file that was written is read");
        Require(ContentsOf(stores[nTime]) == ContentsOf(stores[nTime - 1]), "a store comes back as it was");
    }
    // Keys of one bucket change places each time.
    Require(written[1].size() == written[2].size() && written[1] == written[3],
            "a store is written to the same bytes");
}

} // namespace orrelix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzStore({reinterpret_cast<const char*>(pData), nSize});
    return 0;
}
