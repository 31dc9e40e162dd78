#include "host/named_fields.h"

#include "host/component_path.h"
#include "host/nearest_word.h"

#include <algorithm>
#include <fmt/format.h>

namespace orrelix {

namespace {

class CFieldLister : public CParameterExchange {
public:
    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields) {
            if (field.m_pText)
                Text("", field);
        }
    }
    void Text(const char*, CParameterField field) override {
        m_Fields.push_back({field.m_pName, false, {*field.m_pText}, field.m_bFileName});
    }
    void Unstored(CParameterField field) override { Text("", field); }

    std::vector<CNamedField> m_Fields;

protected:
    void DoItems(const char*, const CParameterColumn& column) override {
        CNamedField list{column.m_pName, true, {}, column.m_bFileName};
        for (const CString* pItem : column.m_Items)
            list.m_Values.push_back(*pItem);
        m_Fields.push_back(std::move(list));
    }
};

// Paths with backslashes are the component's own already.
CString ValueOf(const CString& given, bool bFileName) {
    const bool bOfSystem = bFileName && !given.IsEmpty() && given.Find('\\') < 0;
    return bOfSystem ? ComponentPath(std::string(given.View())) : given;
}

class CFieldSetter : public CParameterExchange {
public:
    // nItems is the length of the lists, or below 0 for the one that they have.
    CFieldSetter(const CFieldValues& values, CStringArray::Index nItems)
        : m_Values(values), m_nItems(nItems) {}

    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields) {
            if (field.m_pText)
                Text("", field);
        }
    }
    void Text(const char*, CParameterField field) override {
        const auto found = m_Values.find(field.m_pName);
        if (found != m_Values.end())
            *field.m_pText = ValueOf(found->second.front(), field.m_bFileName);
    }
    void Unstored(CParameterField field) override { Text("", field); }

protected:
    CStringArray::Index CountFor(CStringArray::Index nSize) const override {
        return m_nItems < 0 ? nSize : m_nItems;
    }
    void DoItems(const char*, const CParameterColumn& column) override {
        const auto found = m_Values.find(column.m_pName);
        if (found == m_Values.end())
            return;
        const size_t nGiven = std::min(column.m_Items.size(), found->second.size());
        for (size_t nItem = 0; nItem < nGiven; ++nItem)
            *column.m_Items[nItem] = ValueOf(found->second[nItem], column.m_bFileName);
    }

private:
    const CFieldValues& m_Values;
    CStringArray::Index m_nItems;
};

auto FindField(const std::vector<CNamedField>& fields, const std::string& name) {
    return std::find_if(fields.begin(), fields.end(),
                        [&name](const CNamedField& field) { return field.m_Name == name; });
}

std::string WhyNoField(const std::vector<CNamedField>& fields, const std::string& name) {
    std::vector<std::string> names;
    for (const CNamedField& field : fields)
        names.push_back(field.m_Name);
    return fmt::format("the effect has no field {}; {}", name,
                       DidYouMean(name, names, "--list-fields shows those that it has"));
}

} // namespace

std::vector<CNamedField> ListFields(CDhtmlGadget& gadget) {
    CFieldLister lister;
    gadget.ExchangeParameters(lister);
    return std::move(lister.m_Fields);
}

std::string SetFields(CDhtmlGadget& gadget, const CFieldValues& values) {
    const std::vector<CNamedField> fields = ListFields(gadget);
    CStringArray::Index nItems = -1;
    for (const auto& [name, given] : values) {
        const auto field = FindField(fields, name);
        if (field == fields.end())
            return WhyNoField(fields, name);
        if (!field->m_bList && given.size() > 1)
            return name + " is one text and no list; set it once";
        if (field->m_bList)
            nItems = std::max(nItems, static_cast<CStringArray::Index>(given.size()));
    }
    const auto texts = FindField(fields, "m_Texts"); // of effects that have several lists
    if (nItems >= 0 && texts != fields.end() && !values.contains(texts->m_Name))
        nItems = std::max(nItems, static_cast<CStringArray::Index>(texts->m_Values.size()));
    CFieldSetter setter(values, nItems);
    gadget.ExchangeParameters(setter);
    return {};
}

} // namespace orrelix
