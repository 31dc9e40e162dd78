#include "core/vignel_config.h"

#include "core/config_format.h"
#include "core/line_reader.h"
#include "platform/files.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <unordered_set>

namespace orrelix {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

constexpr std::string_view kResourceNumber = "Resource Number";
constexpr std::string_view kSegmentNumber = "Segment Number";
constexpr std::string_view kSegmentPosition = "Segment Position";

bool HasLineBreak(std::string_view text) {
    return text.find_first_of(kLineEnd) != text.npos;
}

struct CKeyLine {
    std::string_view m_Key;
    std::string_view m_Value;
};

// A line cut at its first "=", both sides trimmed; nothing without "=".
std::optional<CKeyLine> SplitKeyLine(std::string_view line) {
    const size_t nEquals = line.find('=');
    if (nEquals == std::string_view::npos)
        return std::nullopt;
    return CKeyLine{Trim(line.substr(0, nEquals)), Trim(line.substr(nEquals + 1))};
}

VignelResource ParseResource(std::string_view line) {
    const size_t nFirst = line.find('=');
    const size_t nLast = line.rfind('=');
    VignelResource resource;
    resource.m_Name = Trim(line.substr(0, nFirst));
    if (nFirst == nLast) {
        resource.m_LocalPath = Trim(line.substr(nFirst + 1));
    } else {
        resource.m_LocalPath = Trim(line.substr(nFirst + 1, nLast - nFirst - 1));
        resource.m_WebPath = Trim(line.substr(nLast + 1));
    }
    return resource;
}

// Counts in passing, also where a wrong number of records makes the part readers take one thing for another.
void CountLine(std::string_view line, CConfigForm& form) {
    const bool bInResources = form.m_nMarkers == 5, bInHtml = form.m_nMarkers > 6;
    if (form.m_nMarkers < std::size(kMarkers) && EqualsNoCase(line, kMarkers[form.m_nMarkers]))
        ++form.m_nMarkers;
    else if (bInResources && line.find('=') != std::string_view::npos)
        ++form.m_nResourceLines;
    else if (bInHtml && EqualsNoCase(line, kSegmentEnd))
        ++form.m_nSegmentEnds;
}

// The lines of a file, counted in its form where somebody wants to know.
struct CConfigLines : CLineReader {
    CConfigLines(CInputFile& file, CConfigForm* pForm) : CLineReader(file), m_pForm(pForm) {}

    bool Next() {
        const bool bNext = CLineReader::Next();
        if (bNext && m_pForm)
            CountLine(Line(), *m_pForm);
        return bNext;
    }

    CConfigForm* const m_pForm;
};

// The part readers below take lines from where the one before stopped and never go back. Each stops at the
// end of the file wherever it is, leaving what it has stored.

bool SkipTo(CConfigLines& lines, std::string_view marker) {
    while (lines.Next()) {
        if (EqualsNoCase(lines.Line(), marker))
            return true;
    }
    return false;
}

// Leaves each key where it stood first.
void KeepFirst(std::vector<CString>& keys) {
    std::unordered_set<std::string> seen;
    std::erase_if(keys, [&](const CString& key) { return !seen.emplace(key.View()).second; });
}

void ReadKeys(CConfigLines& lines, const CPartMarkers& markers, CMapStringToString& map,
              std::vector<CString> CConfigForm::*pKeys) {
    if (!SkipTo(lines, markers.m_Begin))
        return;
    map.SetAll([&](std::string_view& key, std::string_view& value) {
        while (lines.Next() && !EqualsNoCase(lines.Line(), markers.m_End)) {
            const auto pair = SplitKeyLine(lines.Line());
            if (!pair)
                continue;
            if (lines.m_pForm)
                (lines.m_pForm->*pKeys).emplace_back(pair->m_Key);
            key = pair->m_Key;
            value = pair->m_Value;
            return true;
        }
        return false;
    });
    if (lines.m_pForm)
        KeepFirst(lines.m_pForm->*pKeys);
}

// The next line with the given key; its value.
std::optional<std::string_view> SkipToKey(CConfigLines& lines, std::string_view key) {
    while (lines.Next()) {
        const auto pair = SplitKeyLine(lines.Line());
        if (pair && EqualsNoCase(pair->m_Key, key))
            return pair->m_Value;
    }
    return std::nullopt;
}

// The number of records that a number line gives: 16 bits. The list gets exactly that size, but for 0, which
// leaves it as it was.
template <class TRecord>
int ReadCount(CConfigLines& lines, std::string_view key, CArray<TRecord>& records) {
    const auto value = SkipToKey(lines, key);
    const int nCount = value ? static_cast<std::uint16_t>(ToInteger(*value)) : 0;
    if (nCount > 0)
        records.SetSize(nCount);
    return nCount;
}

void ReadResources(CConfigLines& lines, CArray<VignelResource>& resources) {
    if (!SkipTo(lines, kResourcePart.m_Begin))
        return;
    const int nCount = ReadCount(lines, kResourceNumber, resources);
    for (int nRead = 0; nRead < nCount;) {
        if (!lines.Next())
            return;
        if (lines.Line().find('=') != std::string_view::npos)
            resources[nRead++] = ParseResource(lines.Line());
    }
    SkipTo(lines, kResourcePart.m_End);
}

void ReadBody(CConfigLines& lines, std::string& body) {
    while (lines.Next() && !EqualsNoCase(lines.Line(), kSegmentEnd)) {
        const size_t nNeeded = body.size() + lines.Line().size() + kLineEnd.size();
        if (nNeeded > body.capacity()) // in one step for the line and its end
            body.reserve(std::max(nNeeded, 2 * body.capacity()));
        body.append(lines.Line()).append(kLineEnd);
    }
}

void ReadSegments(CConfigLines& lines, CArray<VignelSegment>& segments) {
    if (!SkipTo(lines, kHtmlPart.m_Begin))
        return;
    const int nCount = ReadCount(lines, kSegmentNumber, segments);
    for (int nSegment = 0; nSegment < nCount; ++nSegment) {
        const auto position = SkipToKey(lines, kSegmentPosition);
        if (!position)
            return;
        segments[nSegment].m_Position = *position;
        std::string body;
        ReadBody(lines, body);
        segments[nSegment].m_Body = std::move(body);
    }
}

void WritePartBegin(COutputFile& file, const CPartMarkers& markers) {
    file.Write(markers.m_Begin);
    file.Write(kLineEnd);
}

void WritePartEnd(COutputFile& file, const CPartMarkers& markers) {
    file.Write(markers.m_End);
    file.Write("\r\n\r\n");
}

void WriteOnOneLine(COutputFile& file, std::string_view text) {
    if (HasLineBreak(text))
        file.Write(WithoutLineBreaks(text));
    else
        file.Write(text);
}

void WriteKeyLine(COutputFile& file, std::string_view key, std::string_view value) {
    WriteOnOneLine(file, key);
    file.Write(" = ");
    WriteOnOneLine(file, value);
    file.Write(kLineEnd);
}

void WriteKeys(COutputFile& file, const CPartMarkers& markers, const CMapStringToString& map) {
    WritePartBegin(file, markers);
    map.ForEach([&](std::string_view key, std::string_view value) { WriteKeyLine(file, key, value); });
    WritePartEnd(file, markers);
}

// How many records the number lines, 16 bits wide, can promise.
template <class TRecord>
int WritableCount(const CArray<TRecord>& records) {
    return static_cast<int>(std::min<std::ptrdiff_t>(records.GetSize(), 0xFFFF));
}

void WriteResources(COutputFile& file, const CArray<VignelResource>& resources) {
    const int nCount = WritableCount(resources);
    WritePartBegin(file, kResourcePart);
    WriteKeyLine(file, kResourceNumber, ToText(nCount));
    for (int nIndex = 0; nIndex < nCount; ++nIndex) {
        const VignelResource& resource = resources[nIndex];
        WriteOnOneLine(file, resource.m_Name);
        file.Write("=");
        WriteOnOneLine(file, resource.m_LocalPath);
        file.Write("=");
        WriteOnOneLine(file, resource.m_WebPath);
        file.Write(kLineEnd);
    }
    WritePartEnd(file, kResourcePart);
}

void WriteSegments(COutputFile& file, const CArray<VignelSegment>& segments) {
    const int nCount = WritableCount(segments);
    WritePartBegin(file, kHtmlPart);
    WriteKeyLine(file, kSegmentNumber, ToText(nCount));
    for (int nIndex = 0; nIndex < nCount; ++nIndex) {
        WriteKeyLine(file, kSegmentPosition, segments[nIndex].m_Position);
        file.Write(segments[nIndex].m_Body);
        file.Write(kSegmentEnd);
        file.Write(kLineEnd);
    }
    WritePartEnd(file, kHtmlPart);
}

// The number that the text begins with, 0 without one. As the writing of it, this disregards the locale that
// the host has set: a file is the same everywhere.
double ToDouble(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n\v\f"), text.size()));
    if (text.starts_with('+'))
        text.remove_prefix(text.starts_with("+-") ? text.size() : 1);
    double number = 0;
    if (text.find_first_of("0123456789.") <= (text.starts_with('-') ? 1u : 0u)) // not of "inf" or "nan"
        std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

const VignelResource kNoResource;

const VignelResource& ResourceAt(const CArray<VignelResource>& resources, short nIndex) {
    return nIndex >= 0 && nIndex < resources.GetSize() ? resources[nIndex] : kNoResource;
}

const VignelResource& ResourceNamed(const CArray<VignelResource>& resources, const CString& name) {
    const auto found = std::find_if(resources.begin(), resources.end(),
                                    [&](const VignelResource& resource) { return resource.m_Name == name; });
    return found != resources.end() ? *found : kNoResource;
}

} // namespace

CString WithoutLineBreaks(CString text) {
    if (HasLineBreak(text)) {
        for (const char* pBreak : {"\r\n", "\r", "\n"})
            text.Replace(pBreak, "<br>");
    }
    return text;
}

CString CVignelConfig::GetProperty(const char* pKey) {
    const auto value = m_DescriptionMap.Find(pKey);
    if (!value)
        m_DescriptionMap.SetAt(pKey, "");
    return value ? CString(*value) : CString();
}

bool CVignelConfig::SetProperty(const char* pKey, const CString& text) {
    m_DescriptionMap.SetAt(pKey, text);
    return true;
}

double CVignelConfig::GetLastUpdateTime() {
    return ToDouble(GetProperty("LastUpdateTime"));
}

bool CVignelConfig::SetLastUpdateTime(double time) {
    char text[400]; // the longest double has 309 digits before its point
    const auto end = std::to_chars(text, text + sizeof text, time, std::chars_format::fixed, 9);
    return SetProperty("LastUpdateTime", std::string_view(text, end.ptr));
}

CString CVignelConfig::GetParameter(const CString& key, const CString& defaultValue) const {
    const auto value = m_ParameterMap.Find(key);
    return value ? CString(*value) : defaultValue;
}

bool CVignelConfig::SetParameter(const CString& key, const CString& value) {
    m_ParameterMap.SetAt(key, value);
    return true;
}

bool CVignelConfig::ClearParameters() {
    m_ParameterMap.RemoveAll();
    return true;
}

bool CVignelConfig::ClearResources() {
    m_Resources.RemoveAll();
    return true;
}

bool CVignelConfig::AddResource(VignelResource record) {
    m_Resources.Add(std::move(record));
    return true;
}

CString CVignelConfig::GetResourceName(short nIndex) const {
    return ResourceAt(m_Resources, nIndex).m_Name;
}

CString CVignelConfig::GetResourceLocalPath(short nIndex) const {
    return ResourceAt(m_Resources, nIndex).m_LocalPath;
}

CString CVignelConfig::GetResourceWebPath(short nIndex) const {
    return ResourceAt(m_Resources, nIndex).m_WebPath;
}

CString CVignelConfig::GetResourceLocalPathByName(const CString& name) const {
    return ResourceNamed(m_Resources, name).m_LocalPath;
}

CString CVignelConfig::GetResourceWebPathByName(const CString& name) const {
    return ResourceNamed(m_Resources, name).m_WebPath;
}

bool CVignelConfig::SetResourceLocalPath(const CString& path) {
    CArray<VignelResource> resources = m_Resources;
    for (VignelResource& resource : resources)
        resource.m_LocalPath = path;
    m_Resources = std::move(resources);
    return true;
}

bool CVignelConfig::ClearSegments() {
    m_Segments.RemoveAll();
    return true;
}

int CVignelConfig::AddSegment(VignelSegment record) {
    return static_cast<int>(m_Segments.Add(std::move(record)));
}

bool CVignelConfig::ReadFile(const CString& path, CConfigForm* pForm) {
    CInputFile file;
    if (!file.Open(path)) {
        CVignelConfig read = *this;
        CConfigLines lines(file, pForm);
        ReadKeys(lines, kDescriptionPart, read.m_DescriptionMap, &CConfigForm::m_DescriptionKeys);
        ReadKeys(lines, kParameterPart, read.m_ParameterMap, &CConfigForm::m_ParameterKeys);
        ReadResources(lines, read.m_Resources);
        ReadSegments(lines, read.m_Segments);
        while (pForm && lines.Next()) {
        }
        if (!file.GetError())
            *this = std::move(read);
    }
    if (pForm)
        pForm->m_Error = file.GetError();
    return !file.GetError();
}

std::error_code CVignelConfig::WriteFile(const CString& path) const {
    COutputFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    WriteKeys(file, kDescriptionPart, m_DescriptionMap);
    WriteKeys(file, kParameterPart, m_ParameterMap);
    WriteResources(file, m_Resources);
    WriteSegments(file, m_Segments);
    return file.Commit();
}

} // namespace orrelix
