// Gives every field of an effect its own name as its value, "<m_Width>", and the items of its lists theirs
// with their index behind it, so that a text made of them shows which field stands where.
#pragma once

#include "core/parameters.h"

namespace orrelix {

class CFieldNamer : public CParameterExchange {
public:
    // The ending stands behind each name; one with a comma shows which fields are masked.
    explicit CFieldNamer(const char* pEnding = ">") : m_pEnding(pEnding) {}

    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields) {
            if (field.m_pText)
                Unstored(field);
        }
    }
    void Text(const char*, CParameterField field) override { Unstored(field); }
    void Unstored(CParameterField field) override { *field.m_pText = Named(field.m_pName); }

protected:
    void DoItems(const char*, const CParameterColumn& column) override {
        for (size_t i = 0; i < column.m_Items.size(); ++i)
            *column.m_Items[i] = Named(column.m_pName + ToText(static_cast<long long>(i)));
    }

private:
    CString Named(const CString& name) const { return "<" + name + m_pEnding; }

    const char* m_pEnding;
};

} // namespace orrelix
