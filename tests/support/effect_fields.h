// The fields of an effect with their names; the items of its lists with their index behind the list's name.
#pragma once

#include "core/dhtml_gadget.h"

#include <string>
#include <vector>

namespace orrelix {

struct CNamedText {
    std::string m_Name;
    CString* m_pText;
};

// They stay where they are until a list of the effect changes its length.
inline std::vector<CNamedText> FieldsOf(CDhtmlGadget& effect) {
    class CFinder : public CParameterExchange {
    public:
        void Fields(const char*, std::initializer_list<CParameterField> fields) override {
            for (const CParameterField& field : fields) {
                if (field.m_pText)
                    Unstored(field);
            }
        }
        void Text(const char*, CParameterField field) override { Unstored(field); }
        void Unstored(CParameterField field) override { m_Found.push_back({field.m_pName, field.m_pText}); }
        std::vector<CNamedText> m_Found;

    protected:
        void DoItems(const char*, const CParameterColumn& column) override {
            for (size_t i = 0; i < column.m_Items.size(); ++i)
                m_Found.push_back({column.m_pName + std::to_string(i), column.m_Items[i]});
        }
    } finder;
    effect.ExchangeParameters(finder);
    return finder.m_Found;
}

} // namespace orrelix
