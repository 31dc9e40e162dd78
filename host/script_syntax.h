// The scripts of a page as a JavaScript engine reads them. They are compiled and never run.
#pragma once

#include "host/recall.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

class CScriptSyntax {
public:
    explicit CScriptSyntax(Judged judged = Judged::ByShape);

    // Whether browsers take the text, in UTF-8, for a script. The engine knows the language that the
    // generated text is in and little of what came later.
    bool IsScript(std::string_view text);

    // The same of the value of an attribute such as "onclick".
    bool IsHandler(std::string_view text);

private:
    bool Compiles(std::string_view text, unsigned nFlags);
    std::string ShapeOf(std::string_view script) const;

    const Judged m_Judged;

    std::unique_ptr<void, void (*)(void*)> m_pEngine;
    CRecall<bool> m_Scripts; // what has been compiled, by its shape
    CRecall<bool> m_Handlers;
};

// The texts of a script's string literals. Of a script that doesn't compile, anything.
std::vector<std::string> StringsOfScript(std::string_view script);

} // namespace orrelix
