#include "core/parameters.h"

#include "core/vignel_config.h"
#include "platform/paths.h"

#include <algorithm>

namespace orrelix {

namespace {

constexpr std::string_view kCommaMask = "~@^`";
constexpr std::string_view kLineBreakMask = "|_#`";

std::string_view TakeItem(std::string_view& left) {
    const size_t nComma = FindCharacters(left, ",");
    const std::string_view item = left.substr(0, nComma);
    left.remove_prefix(nComma == std::string_view::npos ? left.size() : nComma + 1);
    return item;
}

// Those that end in a comma, and one behind the last.
CStringArray::Index CountItems(std::string_view list) {
    CStringArray::Index nItems = 0;
    for (; !list.empty(); ++nItems)
        TakeItem(list);
    return nItems;
}

CString Unmask(std::string_view item) {
    CString text(item);
    text.Replace(kCommaMask, ",");
    text.Replace(kLineBreakMask, "\r\n");
    return text;
}

void AppendItem(CString& value, const CString& item, bool bMasked, bool bFileName) {
    if (bFileName) {
        AppendItem(value, FileNameOfPath(item), bMasked, false);
    } else if (bMasked && item.Find(',') >= 0) {
        CString masked = item;
        masked.Replace(",", kCommaMask);
        value += masked;
    } else {
        value += item;
    }
}

} // namespace

CString CListItems::Next() {
    return Unmask(TakeItem(m_Left));
}

CString GetListItem(const CString& text, int nIndex) {
    if (nIndex < 0)
        return {};
    std::string_view left = text;
    while (nIndex-- > 0 && !left.empty())
        TakeItem(left);
    return Unmask(TakeItem(left));
}

void CParameterExchange::Items(const char* pKey, CParameterField list) {
    FixedItems(pKey, list, CountFor(pKey, list.m_pList->GetSize()));
}

void CParameterExchange::FixedItems(const char* pKey, CParameterField list, CStringArray::Index nItems) {
    CStringArray& items = *list.m_pList;
    items.SetSize(nItems);
    CParameterColumn column{list.m_pName, {}, list.m_bMasked, list.m_bFileName};
    column.m_Items.reserve(static_cast<size_t>(items.GetSize()));
    for (CString& item : items)
        column.m_Items.push_back(&item);
    DoItems(pKey, column);
}

void CParameterReader::Fields(const char* pKey, std::initializer_list<CParameterField> fields) {
    const CString value = m_Config.GetParameter(pKey, "");
    CListItems items(value);
    for (const CParameterField& field : fields) {
        const CString item = items.Next();
        if (field.m_pList) {
            m_nPromised = std::max(ToInteger(item), 0);
            m_nCount = std::min<CStringArray::Index>(m_nPromised, kMaxListItems);
        } else if (!item.IsEmpty()) {
            *field.m_pText = FromStored(item, field.m_bFileName);
        }
    }
}

void CParameterReader::Text(const char* pKey, CParameterField field) {
    *field.m_pText = m_Config.GetParameter(pKey, "");
}

CStringArray::Index CParameterReader::CountFor(const char* pKey, CStringArray::Index) {
    if (m_nPromised > m_nCount) {
        const CString value = m_Config.GetParameter(pKey, "");
        m_nCount = std::clamp(CountItems(value), m_nCount, m_nPromised);
    }
    return m_nCount;
}

void CParameterReader::DoItems(const char* pKey, const CParameterColumn& column) {
    const CString value = m_Config.GetParameter(pKey, "");
    CListItems items(value);
    for (CString* pItem : column.m_Items)
        *pItem = FromStored(items.Next(), column.m_bFileName);
}

CString CParameterReader::FromStored(const CString& item, bool bFileName) const {
    return bFileName && !item.IsEmpty() ? m_Directory + FileNameOfPath(item) : item;
}

void CParameterWriter::Fields(const char* pKey, std::initializer_list<CParameterField> fields) {
    CString value;
    for (const CParameterField& field : fields) {
        if (&field != fields.begin())
            value += ',';
        if (field.m_pList)
            value += ToText(field.m_pList->GetSize());
        else
            AppendItem(value, *field.m_pText, field.m_bMasked, field.m_bFileName);
    }
    m_Config.SetParameter(pKey, WithoutLineBreaks(std::move(value)));
}

void CParameterWriter::Text(const char* pKey, CParameterField field) {
    m_Config.SetParameter(pKey, WithoutLineBreaks(*field.m_pText));
}

void CParameterWriter::DoItems(const char* pKey, const CParameterColumn& column) {
    CString value;
    for (const CString* pItem : column.m_Items) {
        AppendItem(value, *pItem, column.m_bMasked, column.m_bFileName);
        value += ',';
    }
    m_Config.SetParameter(pKey, WithoutLineBreaks(std::move(value)));
}

} // namespace orrelix
