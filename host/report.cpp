#include "host/report.h"

#include <iostream>

void CReport::Error(const std::string& subject, const std::string& text) {
    ++m_nErrors;
    std::cerr << "orrelix: " << subject << ": " << text << '\n';
}

void CReport::Warning(const std::string& subject, const std::string& text) {
    std::cerr << "orrelix: " << subject << ": warning: " << text << '\n';
}

std::string Counted(size_t nCount, const std::string& noun) {
    return std::to_string(nCount) + " " + noun + (nCount == 1 ? "" : "s");
}
