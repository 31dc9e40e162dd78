#include "core/inspector.h"

#include "core/config_format.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/module.h"
#include "platform/text_conversion.h"
#include "platform/wide_text.h"
#include "resources/texts.h"
#include "toolkit/desktop.h"
#include "toolkit/desktop_loader.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdint>
#include <iterator>
#include <memory>
#include <span>

namespace orrelix {

namespace {

CItems ItemsOf(const std::vector<CString>& texts) {
    CItems items;
    for (const CString& text : texts)
        items.m_Items.Add(text);
    return items;
}

CString ValueOf(const CMapStringToString& map, const CString& key) {
    return map.Find(key).value_or("");
}

// Of a file's name in a page's text, for each of which a server may need a copy.
constexpr size_t kMostSpellings = 16;

// Null for an index outside of the list.
template <class TList>
auto ItemAt(TList& list, int nIndex) {
    return nIndex >= 0 && nIndex < std::distance(list.begin(), list.end()) ? &*std::next(list.begin(), nIndex)
                                                                           : nullptr;
}

const CNamedField& FieldOf(const std::vector<CNamedField>& fields, const CString& name) {
    const CNamedField* pField = FindField(fields, name);
    if (!pField)
        throw CRefusal("the effect has no field " + std::string(name.View()));
    return *pField;
}

const CNamedField& FieldOf(const std::vector<CNamedField>& fields, const CString& name, bool bList) {
    const CNamedField& field = FieldOf(fields, name);
    if (field.m_bList != bList)
        throw CRefusal(std::string(field.m_Name.View()) +
                       (bList ? " is one text and no list" : " is a list"));
    return field;
}

// The system's form of a path of the effect's, which may be empty.
CString ShownValue(const CNamedField& field, const CString& value) {
    return field.m_bFileName ? CString(SystemSpelling(value)) : value;
}

// The other way round.
CString KeptValue(const CNamedField& field, const CString& value) {
    return field.m_bFileName && !value.IsEmpty() ? FullPath(value) : value;
}

// The values of each field, as GetAllFields gives them.
std::vector<std::span<const CString>> ValuesByField(const CItems& values, size_t nFields) {
    std::vector<std::span<const CString>> byField;
    std::span<const CString> left(values.m_Items.begin(), values.m_Items.end());
    while (!left.empty()) {
        size_t nValues = 0;
        const std::string_view count = left[0].View();
        if (std::from_chars(count.data(), count.data() + count.size(), nValues).ptr !=
                count.data() + count.size() ||
            nValues >= left.size())
            break;
        byField.push_back(left.subspan(1, nValues));
        left = left.subspan(1 + nValues);
    }
    if (!left.empty() || byField.size() != nFields)
        throw CRefusal("these aren't the values of the effect's fields");
    return byField;
}

} // namespace

CItems CInspector::GetEffectNames() const {
    CItems names;
    for (const CEffect& effect : kEffects)
        names.m_Items.Add(effect.m_pName);
    return names;
}

CItems CInspector::GetEffectDescriptions() const {
    CItems descriptions;
    for (const CEffect& effect : kEffects)
        descriptions.m_Items.Add(effect.m_pDescription);
    return descriptions;
}

CString CInspector::GetEffect() const {
    const CEffect* pEffect = FindEffect(m_Orrelix.m_Type);
    return pEffect ? pEffect->m_pName : "";
}

void CInspector::SetEffect(const CString& name) {
    const CEffect* pEffect = FindEffectNamed(name);
    if (!pEffect)
        throw CRefusal("there is no effect \"" + std::string(name.View()) + "\"");
    m_Orrelix.SelectType(TypeOf(*pEffect));
}

CItems CInspector::GetFieldNames() {
    CItems names;
    for (const CNamedField& field : ListFields(Gadget()))
        names.m_Items.Add(field.m_Name);
    return names;
}

CFieldType CInspector::FieldTypeOf(const CString& name) {
    const std::vector<CNamedField> fields = ListFields(Gadget());
    return TypeOfField(fields, FieldOf(fields, name));
}

CString CInspector::GetFieldKind(const CString& field) {
    return NameOf(FieldTypeOf(field).m_Kind);
}

bool CInspector::IsFieldList(const CString& field) {
    const std::vector<CNamedField> fields = ListFields(Gadget());
    const CNamedField* pField = FindField(fields, field);
    return pField && pField->m_bList;
}

CItems CInspector::GetFieldChoices(const CString& field) {
    return ItemsOf(FieldTypeOf(field).m_Choices);
}

int CInspector::GetFieldMinimum(const CString& field) {
    return FieldTypeOf(field).m_nLeast;
}

int CInspector::GetFieldMaximum(const CString& field) {
    return FieldTypeOf(field).m_nMost;
}

CString CInspector::GetField(const CString& name) {
    const std::vector<CNamedField> fields = ListFields(Gadget(), name.View());
    const CNamedField& field = FieldOf(fields, name, false);
    return ShownValue(field, *field.m_Values[0]);
}

CItems CInspector::GetFieldItems(const CString& name) {
    const std::vector<CNamedField> fields = ListFields(Gadget(), name.View());
    const CNamedField& field = FieldOf(fields, name, true);
    CItems items;
    for (const CString* pValue : field.m_Values)
        items.m_Items.Add(ShownValue(field, *pValue));
    return items;
}

bool CInspector::KeepsCommas(const CString& name) {
    const std::vector<CNamedField> fields = ListFields(Gadget(), name.View());
    return FieldOf(fields, name).m_bKeepsCommas;
}

CString CInspector::SetField(const CString& name, const CString& value) {
    return m_Orrelix.ChangeEffect([&] {
        const std::vector<CNamedField> fields = ListFields(Gadget());
        const CNamedField& field = FieldOf(fields, name, false);
        *field.m_Values[0] =
            KeptValue(field, AsDialogStores(field, TypeOfField(fields, field).m_Kind, value));
        UpdateBorder(fields, field);
        return RemarkOn(name);
    });
}

CItems CInspector::GetAllFields() {
    CItems values;
    for (const CNamedField& field : ListFields(Gadget())) {
        values.m_Items.Add(ToText(std::ssize(field.m_Values)));
        for (const CString* pValue : field.m_Values)
            values.m_Items.Add(ShownValue(field, *pValue).GetString());
    }
    return values;
}

void CInspector::PutAllFields(const CItems& values) {
    m_Orrelix.ChangeEffect([&] {
        std::vector<CNamedField> fields = ListFields(Gadget());
        const auto byField = ValuesByField(values, fields.size());
        size_t nItems = 0;
        for (size_t nField = 0; nField < fields.size(); ++nField)
            nItems = std::max(nItems, fields[nField].m_bList ? byField[nField].size() : 0);
        ResizeLists(Gadget(), static_cast<CStringArray::Index>(nItems));
        fields = ListFields(Gadget()); // their items have moved
        for (size_t nField = 0; nField < fields.size(); ++nField) {
            const CNamedField& field = fields[nField];
            const auto& given = byField[nField];
            if (given.size() > field.m_Values.size())
                throw CRefusal(std::string(field.m_Name.View()) + " has too many values");
            for (size_t i = 0; i < field.m_Values.size(); ++i)
                *field.m_Values[i] = i < given.size() ? KeptValue(field, given[i]) : CString();
        }
    });
}

// How many items all lists get when one of them gets these.
CStringArray::Index CInspector::ItemsBeside(const std::vector<CNamedField>& fields, const CNamedField& field,
                                            const CItems& items) const {
    const CNamedField* pTexts = FindField(fields, "m_Texts");
    const CStringArray::Index nTexts =
        pTexts && pTexts != &field ? static_cast<CStringArray::Index>(pTexts->m_Values.size()) : 0;
    return std::max(items.m_Items.GetSize(), nTexts);
}

CString CInspector::SetFieldItems(const CString& name, const CItems& items) {
    return m_Orrelix.ChangeEffect([&] {
        const std::vector<CNamedField> fields = ListFields(Gadget());
        const CNamedField& field = FieldOf(fields, name, true);
        const FieldKind kind = TypeOfField(fields, field).m_Kind;
        CItems values;
        for (const CString& item : items.m_Items)
            values.m_Items.Add(AsDialogStores(field, kind, item));
        SetItems(name, values);
        return RemarkOn(name);
    });
}

void CInspector::PutField(const CString& name, const CString& value) {
    const std::vector<CNamedField> fields = ListFields(Gadget(), name.View());
    const CNamedField& field = FieldOf(fields, name, false);
    *field.m_Values[0] = KeptValue(field, value);
}

void CInspector::PutFieldItems(const CString& name, const CItems& items) {
    m_Orrelix.ChangeEffect([&] { SetItems(name, items); });
}

void CInspector::SetItems(const CString& name, const CItems& items) {
    std::vector<CNamedField> fields = ListFields(Gadget());
    ResizeLists(Gadget(), ItemsBeside(fields, FieldOf(fields, name, true), items));
    fields = ListFields(Gadget()); // their items have moved
    const CNamedField& field = FieldOf(fields, name, true);
    const auto nGiven = static_cast<size_t>(items.m_Items.GetSize());
    if (nGiven > field.m_Values.size())
        throw CRefusal(std::string(field.m_Name.View()) + " has " + std::to_string(field.m_Values.size()) +
                       " items and no more");
    for (size_t nItem = 0; nItem < nGiven; ++nItem)
        *field.m_Values[nItem] = KeptValue(field, items.m_Items[static_cast<CStringArray::Index>(nItem)]);
}

// What a file would bring back is seen by writing one's parameters and reading them into a new object.
CString CInspector::RemarkOn(const CString& name) {
    CVignelConfig file;
    CParameterWriter writer(file);
    Gadget().ExchangeParameters(writer);
    const auto pReader = std::make_unique<COrrelix>();
    pReader->SelectType(m_Orrelix.m_Type);
    CParameterReader reader(file);
    pReader->m_pGadget->ExchangeParameters(reader);
    const std::vector<CNamedField> fields = ListFields(Gadget()),
                                   readFields = ListFields(*pReader->m_pGadget);
    const CNamedField* pField = FindField(fields, name);
    const CNamedField* pRead = FindField(readFields, name);
    for (size_t nValue = 0; nValue < pField->m_Values.size(); ++nValue) {
        const CString& value = *pField->m_Values[nValue];
        const CString expected = pField->m_bFileName ? FileNameOfPath(value) : value;
        if (nValue >= pRead->m_Values.size())
            return pField->m_Name + ": a file brings back only " + ToText(std::ssize(pRead->m_Values)) +
                   " items";
        // What stands for a line break is one.
        if (WithoutLineBreaks(*pRead->m_Values[nValue]) != WithoutLineBreaks(expected))
            return pField->m_Name + ": a file brings it back as \"" + *pRead->m_Values[nValue] + "\"";
    }
    return {};
}

CItems CInspector::GetDescriptionKeys() {
    return ItemsOf(Form().m_DescriptionKeys);
}

CString CInspector::GetDescriptionValue(const CString& key) {
    return ValueOf(m_Orrelix.m_Config.m_DescriptionMap, key);
}

CItems CInspector::GetParameterKeys() {
    return ItemsOf(Form().m_ParameterKeys);
}

CString CInspector::GetParameterValue(const CString& key) {
    return ValueOf(m_Orrelix.m_Config.m_ParameterMap, key);
}

CItems CInspector::GetStoredResource(int nIndex) {
    CItems items;
    if (const VignelResource* pResource = ItemAt(m_Orrelix.m_Config.m_Resources, nIndex))
        items.m_Items = {pResource->m_Name, pResource->m_LocalPath, pResource->m_WebPath};
    return items;
}

CString CInspector::GetSegmentPosition(int nIndex) {
    const VignelSegment* pSegment = ItemAt(m_Orrelix.m_Config.m_Segments, nIndex);
    return pSegment ? pSegment->m_Position : CString();
}

CString CInspector::GetSegmentBody(int nIndex) {
    const VignelSegment* pSegment = ItemAt(m_Orrelix.m_Config.m_Segments, nIndex);
    return pSegment ? pSegment->m_Body : CString();
}

void CInspector::CountRecords(CItems& damage, const char* pNoun, long nPromised, long nThere) {
    const auto counted = [pNoun](long nCount) {
        return ToText(nCount) + " " + pNoun + (nCount == 1 ? "" : "s");
    };
    if (nPromised != nThere)
        damage.m_Items.Add(CString("is damaged: its count promises ") + counted(nPromised) + ", and " +
                           ToText(std::max(nThere, 0L)) + " can be found");
}

CItems CInspector::GetDamage() {
    CItems damage;
    const size_t nMarkers = Form().m_nMarkers;
    if (nMarkers == 0) {
        damage.m_Items.Add(CString("is no configuration file: it has no line \"") + kMarkers[0] + "\"");
    } else if (nMarkers < std::size(kMarkers)) {
        damage.m_Items.Add(CString("is damaged: the line \"") + kMarkers[nMarkers] +
                           "\" is missing, and what should stand behind it with it");
    } else {
        // One of the resource lines is the count itself.
        CountRecords(damage, "resource", GetStoredResourceNumber(), Form().m_nResourceLines - 1);
        CountRecords(damage, "segment", GetSegmentNumber(), Form().m_nSegmentEnds);
    }
    return damage;
}

CString CInspector::GetProblem() {
    constexpr size_t kUpToParameters = 4; // the Parameter Part's end, among the markers
    const CString component = GetDescriptionValue("ProgID");
    if (Form().m_nMarkers < kUpToParameters)
        return GetDamage().m_Items[0];
    if (component.IsEmpty())
        return CString("doesn't say which component it belongs to (ProgID); effects are those of ") + kProgID;
    if (component != kProgID)
        return "belongs to another component, " + component + "; effects are those of " + kProgID;
    const CString type = GetListItem(GetParameterValue("DhtmlType"), 0);
    if (type == "0")
        return "no effect has been chosen for it yet";
    return FindEffect(type) ? "" : "names no effect that is known here (DhtmlType is \"" + type + "\")";
}

CString CInspector::GetError() {
    const std::error_code error = m_Orrelix.m_Error;
    return error ? CString(error.message()) : CString();
}

int CInspector::GetPageFileNumber() {
    CPageFiles found = FindPageFiles(m_Orrelix);
    for (const CPageFile& file : found.m_Files) {
        if (file.m_Names.size() > kMostSpellings)
            throw CRefusal("the effect spells the name of the file " + std::string(file.m_Names[0].View()) +
                           " in " + std::to_string(file.m_Names.size()) +
                           " ways, and its page would need a copy for each; spell it in one");
    }
    m_PageFiles = std::move(found);
    return static_cast<int>(m_PageFiles.m_Files.size());
}

CPath CInspector::GetPageFileSource(int nIndex) {
    const CPageFile* pFile = ItemAt(m_PageFiles.m_Files, nIndex);
    return pFile ? CPath(pFile->m_Source) : CPath();
}

CString CInspector::GetPageFileWebPath(int nIndex) {
    const CPageFile* pFile = ItemAt(m_PageFiles.m_Files, nIndex);
    return pFile ? pFile->m_WebPath : CString();
}

CItems CInspector::GetPageFileNames(int nIndex) {
    const CPageFile* pFile = ItemAt(m_PageFiles.m_Files, nIndex);
    return pFile ? ItemsOf(pFile->m_Names) : CItems();
}

CItems CInspector::GetLostFiles() {
    return ItemsOf(m_PageFiles.m_Lost);
}

bool CInspector::NeedsCompatibilityScript() {
    return std::none_of(m_PageFiles.m_Files.begin(), m_PageFiles.m_Files.end(), [](const CPageFile& file) {
        return EqualsNoCase(file.m_Names.front().Right(3), ".js");
    });
}

CPath CInspector::GetScriptFolder() const {
    return GetModuleDirectory();
}

void CInspector::SetScriptFolder(const CPath& folder) {
    SetModuleDirectory(folder);
}

int CInspector::GetCodePageNumber() const {
    return GetCodePage();
}

void CInspector::SetCodePageNumber(int nCodePage) {
    const int nBefore = GetCodePage();
    if (SetCodePage(nCodePage) && CanConvertPage(GetEncoding()))
        return;
    SetCodePage(nBefore);
    throw CRefusal("code page " + std::to_string(nCodePage) + " isn't known");
}

bool CInspector::GetRawTexts() const {
    return HasRawTexts();
}

void CInspector::SetRawTexts(short bRaw) {
    orrelix::SetRawTexts(bRaw != 0);
}

int CInspector::GetMostHtml() const {
    const size_t nMost = orrelix::GetMostHtml();
    return nMost > INT_MAX ? 0 : static_cast<int>(nMost);
}

void CInspector::SetMostHtml(int nBytes) {
    orrelix::SetMostHtml(nBytes > 0 ? static_cast<size_t>(nBytes) : SIZE_MAX);
}

bool CInspector::CanShowDialogs() const {
    return FindDesktop() != nullptr;
}

CString CInspector::GetOwnerWindow() const {
    return orrelix::GetOwnerWindow();
}

void CInspector::SetOwnerWindow(const CString& window) {
    orrelix::SetOwnerWindow(window);
}

CString CInspector::GetText(int nInstance, int nId) const {
    const auto text =
        std::find_if(std::begin(kTexts), std::end(kTexts),
                     [nId](const CIdentifiedText& candidate) { return candidate.m_nId == nId; });
    return nInstance == GetModuleInstance() && text != std::end(kTexts) ? text->m_pText : "";
}

// The pictures lie beside the library, as the scripts do.
CPath CInspector::GetIconFile(int nInstance, int nId, int nSize) const {
    if (nInstance != GetModuleInstance() || nId != kIconId)
        return {};
    const CString path =
        GetModuleDirectory() + "\\orrelix" + (nSize > 0 ? "-" + ToText(nSize) + ".png" : ".svg");
    return FileExists(path) ? CPath(path) : CPath();
}

std::span<const CMember> GetInspectorMembers() {
    using I = CInspector;
    static constexpr CMember kMembers[] = {
        Property<&I::GetEffect, &I::SetEffect>("Effect"),
        Method<&I::GetEffectNames>("GetEffectNames"),
        Method<&I::GetEffectDescriptions>("GetEffectDescriptions"),
        Method<&I::GetEffectType>("GetEffectType"),
        Method<&I::GetFieldNames>("GetFieldNames"),
        Method<&I::GetFieldKind>("GetFieldKind"),
        Method<&I::IsFieldList>("IsFieldList"),
        Method<&I::GetFieldChoices>("GetFieldChoices"),
        Method<&I::GetFieldMinimum>("GetFieldMinimum"),
        Method<&I::GetFieldMaximum>("GetFieldMaximum"),
        Method<&I::GetField>("GetField"),
        Method<&I::GetFieldItems>("GetFieldItems"),
        Method<&I::SetField>("SetField"),
        Method<&I::SetFieldItems>("SetFieldItems"),
        Method<&I::PutField>("PutField"),
        Method<&I::PutFieldItems>("PutFieldItems"),
        Method<&I::GetDescriptionKeys>("GetDescriptionKeys"),
        Method<&I::GetDescriptionValue>("GetDescriptionValue"),
        Method<&I::GetParameterKeys>("GetParameterKeys"),
        Method<&I::GetParameterValue>("GetParameterValue"),
        Method<&I::GetStoredResourceNumber>("GetStoredResourceNumber"),
        Method<&I::GetStoredResource>("GetStoredResource"),
        Method<&I::GetSegmentNumber>("GetSegmentNumber"),
        Method<&I::GetSegmentPosition>("GetSegmentPosition"),
        Method<&I::GetSegmentBody>("GetSegmentBody"),
        Method<&I::GetDamage>("GetDamage"),
        Method<&I::GetProblem>("GetProblem"),
        Method<&I::IsConfigFile>("IsConfigFile"),
        Method<&I::GetError>("GetError"),
        Method<&I::GetPageFileNumber>("GetPageFileNumber"),
        Method<&I::GetPageFileSource>("GetPageFileSource"),
        Method<&I::GetPageFileWebPath>("GetPageFileWebPath"),
        Method<&I::GetPageFileNames>("GetPageFileNames"),
        Method<&I::GetLostFiles>("GetLostFiles"),
        Method<&I::NeedsCompatibilityScript>("NeedsCompatibilityScript"),
        Property<&I::GetScriptFolder, &I::SetScriptFolder>("ScriptFolder"),
        Property<&I::GetCodePageNumber, &I::SetCodePageNumber>("CodePage"),
        Property<&I::GetRawTexts, &I::SetRawTexts>("RawTexts"),
        Method<&I::CanShowDialogs>("CanShowDialogs"),
        Property<&I::GetOwnerWindow, &I::SetOwnerWindow>("OwnerWindow"),
        Method<&I::GetText>("GetText"),
        Method<&I::GetIconFile>("GetIconFile"),
        Property<&I::GetMostHtml, &I::SetMostHtml>("MostHTML"),
        Method<&I::KeepsCommas>("KeepsCommas"),
        Method<&I::GetAllFields>("GetAllFields"),
        Method<&I::PutAllFields>("PutAllFields"),
    };
    return kMembers;
}

} // namespace orrelix
