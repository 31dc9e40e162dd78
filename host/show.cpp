#include "host/show.h"

#include "core/config_format.h"
#include "host/config_check.h"
#include "host/text_encoding.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fmt/format.h>
#include <iostream>
#include <nlohmann/json.hpp>

namespace orrelix {

namespace {

using Json = nlohmann::ordered_json;

// A file's texts in UTF-8.
class CReadableFile {
public:
    CReadableFile(const CShowOptions& options, const CConfigCheck& file)
        : m_Name(options.m_File.string()), m_File(file) {}

    Json ToJson();
    void Print(std::ostream& out);

    size_t GetInvalidCount() const { return m_nInvalid; }

private:
    std::string Text(std::string_view bytes) {
        CConvertedText converted = ToUtf8(bytes);
        m_nInvalid += converted.m_nInvalid;
        return std::move(converted.m_Text);
    }
    Json KeysToJson(const std::vector<CString>& keys, const CMapStringToString& map);
    void PrintKeys(std::ostream& out, const std::vector<CString>& keys, const CMapStringToString& map);
    void PrintSegment(std::ostream& out, const VignelSegment& segment);
    std::string Heading() const;

    std::string m_Name;
    const CConfigCheck& m_File;
    size_t m_nInvalid = 0;
};

Json CReadableFile::KeysToJson(const std::vector<CString>& keys, const CMapStringToString& map) {
    Json object = Json::object();
    for (const CString& key : keys)
        object[Text(key.View())] = Text(map.Find(key)->View());
    return object;
}

Json CReadableFile::ToJson() {
    Json json;
    json["file"] = ConvertText(m_Name, "UTF-8", "UTF-8").m_Text;
    if (const CEffect* pEffect = m_File.GetEffect())
        json["effect"] = pEffect->m_pName;
    else
        json["effect"] = nullptr;
    json["damage"] = m_File.m_Damage;
    json["description"] = KeysToJson(m_File.m_Form.m_DescriptionKeys, m_File.m_Store.m_DescriptionMap);
    json["parameters"] = KeysToJson(m_File.m_Form.m_ParameterKeys, m_File.m_Store.m_ParameterMap);
    json["resources"] = Json::array();
    for (const VignelResource& resource : m_File.m_Store.m_Resources)
        json["resources"].push_back({{"name", Text(resource.m_Name.View())},
                                     {"localPath", Text(resource.m_LocalPath.View())},
                                     {"webPath", Text(resource.m_WebPath.View())}});
    json["segments"] = Json::array();
    for (const VignelSegment& segment : m_File.m_Store.m_Segments)
        json["segments"].push_back(
            {{"position", Text(segment.m_Position.View())}, {"body", Text(segment.m_Body.View())}});
    return json;
}

// The number of characters of a UTF-8 text.
size_t WidthOf(const std::string& text) {
    return static_cast<size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

void PrintRows(std::ostream& out, const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty())
        out << "  none\n";
    std::vector<size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], WidthOf(row[i]));
    }
    for (const auto& row : rows) {
        std::string line;
        for (size_t i = 0; i < row.size(); ++i)
            line += "  " + row[i] + std::string(widths[i] - WidthOf(row[i]), ' ');
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
}

// A file's days as a date, where they are one that a file can have been written at.
std::string DateOf(const CString& days) {
    using namespace std::chrono;
    const double nDays = atof(days);
    if (!(nDays >= 1 && nDays < 100000))
        return "";
    const auto nMinutes = static_cast<long>(std::lround(nDays * 24 * 60));
    const year_month_day date(kDayZero + std::chrono::days(nMinutes / (24 * 60)));
    return fmt::format(" ({:04}-{:02}-{:02} {:02}:{:02})", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       nMinutes / 60 % 24, nMinutes % 60);
}

void CReadableFile::PrintKeys(std::ostream& out, const std::vector<CString>& keys,
                              const CMapStringToString& map) {
    std::vector<std::vector<std::string>> rows;
    for (const CString& key : keys) {
        const CString& value = *map.Find(key);
        rows.push_back({Printable(Text(key.View())),
                        Printable(Text(value.View())) + (key == "LastUpdateTime" ? DateOf(value) : "")});
    }
    PrintRows(out, rows);
}

void CReadableFile::PrintSegment(std::ostream& out, const VignelSegment& segment) {
    out << "  " << Printable(Text(segment.m_Position.View())) << '\n';
    std::string_view body = segment.m_Body.View();
    while (!body.empty()) {
        const size_t nEnd = body.find("\r\n");
        out << "      " << Printable(Text(body.substr(0, nEnd))) << '\n';
        body.remove_prefix(nEnd == std::string_view::npos ? body.size() : nEnd + 2);
    }
}

std::string CReadableFile::Heading() const {
    if (const CEffect* pEffect = m_File.GetEffect())
        return std::string(pEffect->m_pName) + "\n  " + pEffect->m_pDescription;
    return m_File.IsOurs() && m_File.GetEffectType() == "0" ? "No effect chosen yet" : "No effect";
}

void CReadableFile::Print(std::ostream& out) {
    const CVignelConfig& store = m_File.m_Store;
    out << Heading() << "\n\nDescription\n";
    PrintKeys(out, m_File.m_Form.m_DescriptionKeys, store.m_DescriptionMap);
    out << "\nParameters\n";
    PrintKeys(out, m_File.m_Form.m_ParameterKeys, store.m_ParameterMap);
    out << "\nResources\n";
    std::vector<std::vector<std::string>> rows;
    for (const VignelResource& resource : store.m_Resources)
        rows.push_back({Printable(Text(resource.m_Name.View())),
                        "from " + Printable(Text(resource.m_LocalPath.View())),
                        resource.m_WebPath.IsEmpty() ? "to the page's folder"
                                                     : "to " + Printable(Text(resource.m_WebPath.View()))});
    PrintRows(out, rows);
    out << "\nSegments\n";
    for (const VignelSegment& segment : store.m_Segments)
        PrintSegment(out, segment);
    if (store.m_Segments.IsEmpty())
        out << "  none\n";
}

} // namespace

void Show(const CShowOptions& options, CReport& report) {
    const std::string name = options.m_File.string();
    const CConfigCheck file(options.m_File);
    CReadableFile readable(options, file);
    if (options.m_bJson)
        std::cout << readable.ToJson().dump(2) << '\n';
    else if (file.IsConfigFile())
        readable.Print(std::cout);

    for (const std::string& damage : file.m_Damage)
        report.Error(name, damage);
    const std::string problem = file.m_Damage.empty() ? file.WhyNoEffect() : "";
    if (!problem.empty() && file.IsOurs() && file.GetEffectType() == "0")
        report.Warning(name, problem);
    else if (!problem.empty())
        report.Error(name, problem);
    report.WarnOfInvalidBytes(name, readable.GetInvalidCount());
}

} // namespace orrelix
