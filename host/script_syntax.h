// The scripts of a page as a JavaScript engine reads them. They are compiled and never run.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

class CScriptSyntax {
public:
    CScriptSyntax();

    // Whether browsers take the text, in UTF-8, for a script. The engine knows the language that the
    // generated text is in and little of what came later.
    bool IsScript(std::string_view text) { return Compiles(text, 0); }

    // The same of the value of an attribute such as "onclick".
    bool IsHandler(std::string_view text);

private:
    bool Compiles(std::string_view text, unsigned nFlags);

    std::unique_ptr<void, void (*)(void*)> m_pEngine;
};

// The texts of a script's string literals. Of a script that doesn't compile, anything.
std::vector<std::string> StringsOfScript(std::string_view script);

} // namespace orrelix
