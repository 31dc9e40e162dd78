#include "host/show.h"

#include "host/component.h"
#include "host/text_encoding.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fmt/format.h>
#include <iostream>
#include <nlohmann/json.hpp>
#include <unordered_map>

namespace orrelix {

namespace {

using Json = nlohmann::ordered_json;

// A file's texts in UTF-8.
class CReadableFile {
public:
    CReadableFile(const CShowOptions& options, const CEffectObject& object)
        : m_Name(options.m_File.string()), m_Object(object) {}

    Json ToJson();
    void Print(std::ostream& out);

    size_t GetInvalidCount() const { return m_nInvalid; }

private:
    std::string Text(std::string_view bytes) {
        CConvertedText converted = ToUtf8(bytes);
        m_nInvalid += converted.m_nInvalid;
        return std::move(converted.m_Text);
    }
    Json KeysToJson(const char* pKeys, const char* pValue);
    void PrintKeys(std::ostream& out, const char* pKeys, const char* pValue);
    void PrintSegment(std::ostream& out, int nSegment);
    std::string Heading() const;

    std::string m_Name;
    const CEffectObject& m_Object;
    size_t m_nInvalid = 0;
};

Json CReadableFile::KeysToJson(const char* pKeys, const char* pValue) {
    Json object = Json::object();
    std::unordered_map<std::string, size_t> times; // that a name has been met
    for (const std::string& key : m_Object.Ask<vignel::Items>(pKeys)) {
        std::string name = Text(key);
        // Keys that differ in invalid bytes only are alike by now, and readers of JSON would keep one of them.
        while (const size_t nTimes = times[name]++)
            name += fmt::format(" ({})", nTimes + 1);
        object.get_ref<Json::object_t&>().emplace_back(std::move(name),
                                                       Text(m_Object.Ask<std::string>(pValue, key)));
    }
    return object;
}

Json CReadableFile::ToJson() {
    Json json;
    json["file"] = ConvertText(m_Name, "UTF-8", "UTF-8").m_Text;
    const CString effect = m_Object.GetEffect();
    json["effect"] = effect.IsEmpty() ? Json() : Json(effect.View());
    json["damage"] = m_Object.Ask<vignel::Items>("GetDamage");
    json["description"] = KeysToJson("GetDescriptionKeys", "GetDescriptionValue");
    json["parameters"] = KeysToJson("GetParameterKeys", "GetParameterValue");
    json["resources"] = Json::array();
    for (int nResource = 0; nResource < m_Object.Ask<int>("GetStoredResourceNumber"); ++nResource) {
        const auto fields = m_Object.Ask<vignel::Items>("GetStoredResource", nResource);
        json["resources"].push_back(
            {{"name", Text(fields[0])}, {"localPath", Text(fields[1])}, {"webPath", Text(fields[2])}});
    }
    json["segments"] = Json::array();
    for (int nSegment = 0; nSegment < m_Object.Ask<int>("GetSegmentNumber"); ++nSegment)
        json["segments"].push_back(
            {{"position", Text(m_Object.Ask<std::string>("GetSegmentPosition", nSegment))},
             {"body", Text(m_Object.Ask<std::string>("GetSegmentBody", nSegment))}});
    return json;
}

// The number of characters of a UTF-8 text.
size_t WidthOf(const std::string& text) {
    return static_cast<size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

// Rows are aligned up to this width; what is wider stands out.
constexpr size_t kWidestColumn = 60;

void PrintRows(std::ostream& out, const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty())
        out << "  none\n";
    std::vector<size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (size_t i = 0; i < row.size(); ++i)
            if (const size_t nWidth = WidthOf(row[i]); nWidth <= kWidestColumn)
                widths[i] = std::max(widths[i], nWidth);
    }
    for (const auto& row : rows) {
        std::string line;
        for (size_t i = 0; i < row.size(); ++i)
            line += fmt::format("  {}{:{}}", row[i], "", widths[i] - std::min(widths[i], WidthOf(row[i])));
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
}

// A file's days as a date, where they are one that a file can have been written at.
std::string DateOf(const std::string& days) {
    using namespace std::chrono;
    const double nDays = atof(days.c_str());
    if (!(nDays >= 1 && nDays < 100000))
        return "";
    const auto nMinutes = static_cast<long>(std::lround(nDays * 24 * 60));
    const year_month_day date(sys_days(1899y / December / 30) + std::chrono::days(nMinutes / (24 * 60)));
    return fmt::format(" ({:04}-{:02}-{:02} {:02}:{:02})", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       nMinutes / 60 % 24, nMinutes % 60);
}

void CReadableFile::PrintKeys(std::ostream& out, const char* pKeys, const char* pValue) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& key : m_Object.Ask<vignel::Items>(pKeys)) {
        const auto value = m_Object.Ask<std::string>(pValue, key);
        rows.push_back(
            {Printable(Text(key)), Printable(Text(value)) + (key == "LastUpdateTime" ? DateOf(value) : "")});
    }
    PrintRows(out, rows);
}

void CReadableFile::PrintSegment(std::ostream& out, int nSegment) {
    out << "  " << Printable(Text(m_Object.Ask<std::string>("GetSegmentPosition", nSegment))) << '\n';
    const auto text = m_Object.Ask<std::string>("GetSegmentBody", nSegment);
    std::string_view body = text;
    while (!body.empty()) {
        const size_t nEnd = body.find("\r\n");
        out << "      " << Printable(Text(body.substr(0, nEnd))) << '\n';
        body.remove_prefix(nEnd == std::string_view::npos ? body.size() : nEnd + 2);
    }
}

// An effect that has not been chosen yet is worth knowing, and no fault of the file.
bool IsToBeChosen(const CEffectObject& object) {
    return object.Ask<std::string>("GetDescriptionValue", "ProgID") == kProgID &&
           object.Ask<std::string>("GetEffectType") == "0";
}

std::string CReadableFile::Heading() const {
    const std::string effect(m_Object.GetEffect().View());
    if (!effect.empty())
        return effect + "\n  " + m_Object.GetDescriptionOf(effect);
    return IsToBeChosen(m_Object) ? "No effect chosen yet" : "No effect";
}

void CReadableFile::Print(std::ostream& out) {
    out << Heading() << "\n\nDescription\n";
    PrintKeys(out, "GetDescriptionKeys", "GetDescriptionValue");
    out << "\nParameters\n";
    PrintKeys(out, "GetParameterKeys", "GetParameterValue");
    out << "\nResources\n";
    std::vector<std::vector<std::string>> rows;
    for (int nResource = 0; nResource < m_Object.Ask<int>("GetStoredResourceNumber"); ++nResource) {
        const auto fields = m_Object.Ask<vignel::Items>("GetStoredResource", nResource);
        rows.push_back({Printable(Text(fields[0])), "from " + Printable(Text(fields[1])),
                        fields[2].empty() ? "to the page's folder" : "to " + Printable(Text(fields[2]))});
    }
    PrintRows(out, rows);
    out << "\nSegments\n";
    const int nSegments = m_Object.Ask<int>("GetSegmentNumber");
    for (int nSegment = 0; nSegment < nSegments; ++nSegment)
        PrintSegment(out, nSegment);
    if (nSegments == 0)
        out << "  none\n";
}

} // namespace

void Show(const CShowOptions& options, CReport& report) {
    const std::string name = options.m_File.string();
    const CEffectObject object;
    ReadConfig(options.m_File, object);
    CReadableFile readable(options, object);
    if (options.m_bJson)
        std::cout << PrintableJson(readable.ToJson().dump(2)) << '\n';
    else if (object.Ask<bool>("IsConfigFile"))
        readable.Print(std::cout);

    const auto damages = object.Ask<vignel::Items>("GetDamage");
    for (const std::string& damage : damages)
        report.Error(name, damage);
    const std::string problem = damages.empty() ? object.Ask<std::string>("GetProblem") : "";
    if (!problem.empty() && IsToBeChosen(object))
        report.Warning(name, problem);
    else if (!problem.empty())
        report.Error(name, problem);
    report.WarnOfInvalidBytes(name, readable.GetInvalidCount());
}

} // namespace orrelix
