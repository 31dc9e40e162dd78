#include "core/fields.h"

#include "controls/link_target.h"
#include "controls/remote_directory.h"
#include "core/dispatch.h"
#include "gadgets/html_values.h"
#include "resources/choices.h"

#include <algorithm>
#include <optional>
#include <span>

namespace orrelix {

namespace {

constexpr CChoice kTipTags[] = {"marquee", "span"};

constexpr int kMostOfArrows = 5000;

struct CNameEnding {
    std::string_view m_Ending;
    FieldKind m_Kind;
    std::span<const CChoice> m_Choices = {};
    int m_nMost = 0;
};

// The first that fits counts.
constexpr CNameEnding kEndings[] = {
    {"Color", FieldKind::Colour},
    {"Colors", FieldKind::Colour},
    {"BorderStyle", FieldKind::Choice, kBorderStyles},
    {"Style", FieldKind::Choice, kFontStyles},
    {"Weight", FieldKind::Choice, kFontWeights},
    {"Decoration", FieldKind::Choice, kDecorations},
    {"Align", FieldKind::Choice, kAligns},
    {"Target", FieldKind::Choice, kLinkTargetWords},
    {"TipTag", FieldKind::Choice, kTipTags},
    {"ScriptPath", FieldKind::Directory},
    {"ImagePath", FieldKind::Directory},
    {"ClassWebPath", FieldKind::Directory},
    {"PopUpInterval", FieldKind::Number, {}, 1000},
    {"CirculateInterval", FieldKind::Number, {}, 1000},
    {"m_Speed", FieldKind::Number, {}, 1000},
    {"m_Delay", FieldKind::Number, {}, 10},
    {"Width", FieldKind::Number, {}, kMostOfArrows},
    {"Height", FieldKind::Number, {}, kMostOfArrows},
    {"Size", FieldKind::Number, {}, kMostOfArrows},
    {"Top", FieldKind::Number, {}, kMostOfArrows},
    {"Left", FieldKind::Number, {}, kMostOfArrows},
    {"Right", FieldKind::Number, {}, kMostOfArrows},
    {"Bottom", FieldKind::Number, {}, kMostOfArrows},
    {"Padding", FieldKind::Number, {}, kMostOfArrows},
    {"Margin", FieldKind::Number, {}, kMostOfArrows},
    {"ScrollStart", FieldKind::Number, {}, kMostOfArrows},
    {"LayerSpeed", FieldKind::Number, {}, kMostOfArrows},
    {"Time", FieldKind::Number, {}, kMostOfArrows},
    {"FadeSteps", FieldKind::Number, {}, kMostOfArrows},
    {"FadeMsec", FieldKind::Number, {}, kMostOfArrows},
    {"TableBorder", FieldKind::Number, {}, kMostOfArrows},
    {"m_Border", FieldKind::Number, {}, kMostOfArrows},
};

bool IsNameOf(std::string_view field, std::string_view name) {
    return field == name || field.substr(2) == name;
}

class CFieldLister : public CParameterExchange {
public:
    explicit CFieldLister(std::optional<std::string_view> only = {}) : m_Only(only) {}
    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields) {
            if (field.m_pText)
                Add(field, false, field.m_bMasked, {field.m_pText});
        }
    }
    void Text(const char*, CParameterField field) override { Add(field, false, true, {field.m_pText}); }
    void Unstored(CParameterField field) override { Text("", field); }

    std::vector<CNamedField> m_Fields;

protected:
    void DoItems(const char*, const CParameterColumn& column) override {
        Add(column, true, column.m_bMasked, column.m_Items);
    }

private:
    template <class TField>
    void Add(const TField& field, bool bList, bool bKeepsCommas, const std::vector<CString*>& values) {
        if (!m_Only || IsNameOf(field.m_pName, *m_Only))
            m_Fields.push_back({field.m_pName, bList, field.m_bFileName, bKeepsCommas, values});
    }

    const std::optional<std::string_view> m_Only;
};

class CListSizer : public CParameterExchange {
public:
    explicit CListSizer(CStringArray::Index nItems) : m_nItems(nItems) {}
    void Fields(const char*, std::initializer_list<CParameterField>) override {}
    void Text(const char*, CParameterField) override {}

protected:
    CStringArray::Index CountFor(const char*, CStringArray::Index) override { return m_nItems; }
    void DoItems(const char*, const CParameterColumn&) override {}

private:
    CStringArray::Index m_nItems;
};

bool IsColour(std::string_view text) {
    return text.size() == 6 && text.find_first_not_of("0123456789abcdefABCDEF") == text.npos;
}

CString ColourOf(const CNamedField& field, std::string_view value) {
    if (value.starts_with('#'))
        value.remove_prefix(1);
    if (!value.empty() && !IsColour(value))
        throw CRefusal(std::string(field.m_Name.View()) +
                       " is a colour: six hexadecimal digits, such as ff8000");
    return value;
}

} // namespace

CFieldType TypeOfField(const std::vector<CNamedField>& fields, const CNamedField& field) {
    if (field.m_bFileName)
        return {FieldKind::File, {}, 0, 0};
    if (FindField(fields, field.m_Name + "Width") && FindField(fields, field.m_Name + "Style"))
        return {FieldKind::Border, {}, 0, 0};
    for (const CNameEnding& ending : kEndings) {
        if (!field.m_Name.View().ends_with(ending.m_Ending))
            continue;
        CFieldType type{ending.m_Kind, {}, 0, ending.m_nMost};
        for (const CChoice& choice : ending.m_Choices)
            type.m_Choices.emplace_back(choice.m_pValue);
        return type;
    }
    return {};
}

const char* NameOf(FieldKind kind) {
    constexpr const char* kNames[] = {"text", "number", "colour", "choice", "file", "directory", "border"};
    return kNames[static_cast<size_t>(kind)];
}

std::vector<CNamedField> ListFields(CDhtmlGadget& gadget) {
    CFieldLister lister;
    gadget.ExchangeParameters(lister);
    return std::move(lister.m_Fields);
}

std::vector<CNamedField> ListFields(CDhtmlGadget& gadget, std::string_view name) {
    CFieldLister lister(name);
    gadget.ExchangeParameters(lister);
    return std::move(lister.m_Fields);
}

const CNamedField* FindField(const std::vector<CNamedField>& fields, std::string_view name) {
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const CNamedField& field) {
        return IsNameOf(field.m_Name.View(), name);
    });
    return found == fields.end() ? nullptr : &*found;
}

void ResizeLists(CDhtmlGadget& gadget, CStringArray::Index nItems) {
    CListSizer sizer(nItems);
    gadget.ExchangeParameters(sizer);
}

CString AsDialogStores(const CNamedField& field, FieldKind kind, const CString& value) {
    switch (kind) {
    case FieldKind::Colour:
        return ColourOf(field, value);
    case FieldKind::Directory:
        return RemoteDirectory(value);
    default:
        return value;
    }
}

void UpdateBorder(const std::vector<CNamedField>& fields, const CNamedField& part) {
    for (std::string_view ending : {"Width", "Style", "Color"}) {
        if (!part.m_Name.View().ends_with("Border" + std::string(ending)))
            continue;
        const CString whole =
            part.m_Name.Left(part.m_Name.GetLength() - static_cast<CString::Position>(ending.size()));
        const CNamedField* pWhole = FindField(fields, whole);
        const CNamedField* pWidth = FindField(fields, whole + "Width");
        const CNamedField* pStyle = FindField(fields, whole + "Style");
        const CNamedField* pColor = FindField(fields, whole + "Color");
        if (pWhole && pWidth && pStyle && pColor)
            *pWhole->m_Values[0] =
                WholeBorder(*pWidth->m_Values[0], *pStyle->m_Values[0], *pColor->m_Values[0]);
    }
}

} // namespace orrelix
