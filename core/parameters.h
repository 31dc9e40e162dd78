// How an effect's fields lie in the Parameter Part of a configuration file.
//
// One parameter value holds many fields as a comma list. There are no quotes and no escape character: "~@^`"
// stands for "," and "|_#`" for CR LF. Every effect says once, in ExchangeParameters, which field is which
// item of which key; reading and writing follow from it:
//
//     exchange.Fields("TextShowPara", {FIELD(m_Speed), FIELD(m_TableBorder), FIELD(m_TableHeight)});
//     exchange.Fields("TextShowFontPara", {Masked(FIELD(m_TitleFontFamily)), FIELD(m_TitleFontWeight)});
//     exchange.Text("TextShowTitle", FIELD(m_TitleText));
//
// A value never holds a line break: where a field does, its value has "<br>" in its place.
#pragma once

#include "platform/array.h"
#include "platform/string.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace orrelix {

class CVignelConfig;

// Item nIndex, counted from 0, of a comma list, with its masks undone. Empty behind the last item. Time in
// proportion to the text in front of the item; CListItems reads a whole list in one pass.
CString GetListItem(const CString& text, int nIndex);

// The items of a comma list, one after the other; empty ones behind the last. The text has to outlive it.
class CListItems {
public:
    explicit CListItems(std::string_view text) : m_Left(text) {}
    CString Next();

private:
    std::string_view m_Left;
};

// The most items that a stored count is believed where its values have fewer: a damaged file must not take the host's
// memory.
inline constexpr int kMaxListItems = 65535;

// A field of an effect, with the name by which people and programs call it. The field has to outlive it.
struct CParameterField {
    const char* m_pName;
    CString* m_pText;      // the field, or
    CStringArray* m_pList; // the list whose number of items stands here
    bool m_bMasked = false;
    bool m_bFileName = false;
};

inline CParameterField MakeField(const char* pName, CString& text) {
    return {pName, &text, nullptr};
}
inline CParameterField MakeField(const char* pName, CStringArray& list) {
    return {pName, nullptr, &list};
}

// A member as a CParameterField under its own name; of a list, the count of its items.
#define FIELD(member) MakeField(#member, member)

// A field whose commas are written as "~@^`".
inline CParameterField Masked(CParameterField field) {
    field.m_bMasked = true;
    return field;
}

// A path of which the value holds the file name alone. Reading puts the reader's directory in front of it.
inline CParameterField FileName(CParameterField field) {
    field.m_bFileName = true;
    return field;
}

// A list of fields that are the items of one value: one column of a table of items.
struct CParameterColumn {
    const char* m_pName;
    std::vector<CString*> m_Items;
    bool m_bMasked = false;
    bool m_bFileName = false;
};

class CParameterExchange {
public:
    virtual ~CParameterExchange() = default;

    // One key with a comma list of fields, in the order of its items. Reading, an empty or missing item
    // leaves its field as it was, and a count that is missing, negative or no number is 0.
    virtual void Fields(const char* pKey, std::initializer_list<CParameterField> fields) = 0;

    // One key with one field, unmasked and whole. Reading, a missing key empties the field.
    virtual void Text(const char* pKey, CParameterField field) = 0;

    // One key with a list of as many items as the count read last says, each followed by a comma. Reading
    // replaces the list; missing items are empty.
    void Items(const char* pKey, CParameterField list);
    void MaskedItems(const char* pKey, CParameterField list) { Items(pKey, Masked(list)); }

    // The same for a list that always has nItems items, whatever any count says.
    void FixedItems(const char* pKey, CParameterField list, CStringArray::Index nItems);

    // The same for one member of a list of records. Reading, the list gets the size of the count.
    template <class TRecord>
    void Column(const char* pKey, const char* pName, CArray<TRecord>& records, CString TRecord::*pMember,
                bool bMasked = false) {
        records.SetSize(CountFor(pKey, records.GetSize()));
        CParameterColumn column{pName, {}, bMasked};
        column.m_Items.reserve(static_cast<size_t>(records.GetSize()));
        for (TRecord& record : records)
            column.m_Items.push_back(&(record.*pMember));
        DoItems(pKey, column);
    }

    // A field that no parameter holds.
    virtual void Unstored(CParameterField) {}

protected:
    // How many items a list of the given size is to have.
    virtual CArray<CString>::Index CountFor(const char*, CArray<CString>::Index nSize) { return nSize; }
    virtual void DoItems(const char* pKey, const CParameterColumn& column) = 0;
};

// Fills fields from a store. The directory, with a backslash at its end, goes in front of file names.
class CParameterReader : public CParameterExchange {
public:
    explicit CParameterReader(const CVignelConfig& config, CString directory = {})
        : m_Config(config), m_Directory(std::move(directory)) {}
    void Fields(const char* pKey, std::initializer_list<CParameterField> fields) override;
    void Text(const char* pKey, CParameterField field) override;

protected:
    CArray<CString>::Index CountFor(const char* pKey, CArray<CString>::Index nSize) override;
    void DoItems(const char* pKey, const CParameterColumn& column) override;

private:
    CString FromStored(const CString& item, bool bFileName) const;

    const CVignelConfig& m_Config;
    CString m_Directory;
    CArray<CString>::Index m_nPromised = 0; // by the count read last
    CArray<CString>::Index m_nCount = 0;    // so many of these are believed; lists of one count are as long
};

// Puts fields into a store. The fields stay as they are.
class CParameterWriter : public CParameterExchange {
public:
    explicit CParameterWriter(CVignelConfig& config) : m_Config(config) {}
    void Fields(const char* pKey, std::initializer_list<CParameterField> fields) override;
    void Text(const char* pKey, CParameterField field) override;

protected:
    void DoItems(const char* pKey, const CParameterColumn& column) override;

private:
    CVignelConfig& m_Config;
};

} // namespace orrelix
