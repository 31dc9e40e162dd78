// A code page in force for as long as the object lives.
#pragma once

#include "platform/code_page.h"

namespace orrelix {

class CCodePageInForce {
public:
    explicit CCodePageInForce(int nCodePage) : m_nOld(GetCodePage()) { SetCodePage(nCodePage); }
    ~CCodePageInForce() { SetCodePage(m_nOld); }
    CCodePageInForce(const CCodePageInForce&) = delete;
    CCodePageInForce& operator=(const CCodePageInForce&) = delete;

private:
    int m_nOld;
};

} // namespace orrelix
