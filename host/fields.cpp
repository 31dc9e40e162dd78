#include "host/fields.h"

#include "host/nearest_word.h"
#include "platform/paths.h"

#include <algorithm>
#include <fmt/format.h>
#include <sstream>

namespace orrelix {

namespace {

const CNamedField* FindField(const std::vector<CNamedField>& fields, const std::string& name) {
    const auto found = std::find_if(fields.begin(), fields.end(), [&name](const CNamedField& field) {
        return field.m_Name == name || field.m_Name.substr(2) == name;
    });
    return found == fields.end() ? nullptr : &*found;
}

std::string WhyNoField(const std::vector<CNamedField>& fields, const std::string& name) {
    std::vector<std::string> names;
    for (const CNamedField& field : fields)
        names.push_back(name.starts_with("m_") ? field.m_Name : field.m_Name.substr(2));
    return fmt::format("the effect has no field {}; {}", name,
                       DidYouMean(name, names, "--list-fields shows those that it has"));
}

// The fields without what they hold. They are the same whenever the effect is, and asked for once.
const std::vector<CNamedField>& EmptyFields(const CEffectObject& effect) {
    static std::map<CString, std::vector<CNamedField>> s_ByEffect;
    const auto [known, bNew] = s_ByEffect.try_emplace(effect.GetEffect());
    if (bNew) {
        for (const std::string& name : effect.Ask<vignel::Items>("GetFieldNames"))
            known->second.push_back({name,
                                     effect.Ask<std::string>("GetFieldKind", name),
                                     effect.Ask<bool>("IsFieldList", name),
                                     effect.Ask<bool>("KeepsCommas", name),
                                     {}});
    }
    return known->second;
}

// Whether a value has a comma, or what a file takes for one, that would part it in a file. Of files, it has their names.
bool IsParted(const CNamedField& field, const CString& value) {
    const CString stored = field.IsFile() ? FileNameOfPath(FromSystemPath(value)) : value;
    return !field.m_bKeepsCommas && (stored.Find(',') >= 0 || stored.Find("~@^`") >= 0);
}

// What is given to one field.
struct CSetting {
    const CNamedField* m_pField;
    vignel::Items m_Values;
};

// Sets one field. The result says why that can't be.
std::string Set(const CEffectObject& effect, const CSetting& setting, std::vector<std::string>& remarks) {
    vignel::Result result;
    const std::string& name = setting.m_pField->m_Name;
    const std::string remark =
        setting.m_pField->m_bList
            ? effect.Ask<std::string>("SetFieldItems", name, setting.m_Values, result)
            : effect.Ask<std::string>("SetField", name, setting.m_Values.front(), result);
    if (!result)
        return result.message;
    const bool bParted =
        std::any_of(setting.m_Values.begin(), setting.m_Values.end(),
                    [&setting](const std::string& value) { return IsParted(*setting.m_pField, value); });
    if (!remark.empty() && bParted)
        return remark + "; it can't have a comma";
    if (!remark.empty())
        remarks.push_back(remark);
    return {};
}

} // namespace

std::vector<CNamedField> ListFields(const CEffectObject& effect) {
    std::vector<CNamedField> fields = EmptyFields(effect);
    const auto values = effect.Ask<vignel::Items>("GetAllFields");
    auto value = values.begin();
    for (CNamedField& field : fields) {
        const auto end = value + 1 + std::stoi(*value);
        field.m_Values.assign(value + 1, end);
        value = end;
    }
    return fields;
}

std::string WhyNotInFile(const std::vector<CNamedField>& fields) {
    constexpr std::string_view kEnd = "===== Segment End =====";
    for (const CNamedField& field : fields) {
        for (const CString& value : field.m_Values) {
            std::istringstream lines{std::string(value.View())};
            for (std::string line; std::getline(lines, line);) {
                if (EqualsNoCase(Trim(line), kEnd))
                    return fmt::format(
                        "{} has the line \"{}\", with which a file ends the effect's HTML; write "
                        "it in another way",
                        field.m_Name, kEnd);
            }
        }
    }
    return {};
}

std::string WhatCommasBreak(const std::vector<CNamedField>& fields) {
    std::vector<std::string> names;
    for (const CNamedField& field : fields) {
        if (std::any_of(field.m_Values.begin(), field.m_Values.end(),
                        [&field](const CString& value) { return IsParted(field, value); }))
            names.push_back(field.m_Name);
    }
    return names.empty()
               ? ""
               : fmt::format("{} can't have a comma, or the \"~@^`\" that stands for one: the file would "
                             "take what is behind it for the next field",
                             fmt::join(names, ", "));
}

std::string SetFields(const CEffectObject& effect, const CFieldValues& values,
                      std::vector<std::string>& remarks) {
    const std::vector<CNamedField> fields = ListFields(effect);
    const CNamedField* pTexts = FindField(fields, "m_Texts"); // of effects that have several lists
    std::vector<CSetting> settings;
    size_t nItems = 0;
    bool bTexts = false;
    for (const auto& [name, given] : values) {
        const CNamedField* pField = FindField(fields, name);
        if (!pField)
            return WhyNoField(fields, name);
        if (!pField->m_bList && given.size() > 1)
            return pField->m_Name + " is one text and no list; set it once";
        nItems = std::max(nItems, pField->m_bList ? given.size() : 0);
        bTexts = bTexts || pField == pTexts;
        settings.push_back({pField, {}});
        for (const CString& value : given)
            settings.back().m_Values.emplace_back(value.View());
    }
    if (pTexts && !bTexts)
        nItems = std::max(nItems, pTexts->m_Values.size());
    // The texts first: they say how many items all have. Whole borders last: setting a part of one makes it anew.
    std::stable_partition(settings.begin(), settings.end(),
                          [pTexts](const CSetting& setting) { return setting.m_pField == pTexts; });
    std::stable_partition(settings.begin(), settings.end(),
                          [](const CSetting& setting) { return setting.m_pField->m_Kind != "border"; });
    for (CSetting& setting : settings) {
        const std::vector<CString>& old = setting.m_pField->m_Values;
        while (setting.m_pField->m_bList && setting.m_Values.size() < std::min(nItems, old.size()))
            setting.m_Values.emplace_back(old[setting.m_Values.size()].View());
        const std::string problem = Set(effect, setting, remarks);
        if (!problem.empty())
            return problem;
    }
    return {};
}

} // namespace orrelix
