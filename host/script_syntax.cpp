#include "host/script_syntax.h"

#include "host/script_shape.h"

#include <algorithm>
#include <charconv>
#include <duktape.h>
#include <new>

namespace orrelix {

namespace {

void DestroyEngine(void* pEngine) {
    duk_destroy_heap(static_cast<duk_context*>(pEngine));
}

// Line ends that strings may hold by now, which the engine doesn't know.
std::string WithoutNewLineEnds(std::string_view text) {
    std::string result(text);
    for (const char* pEnd : {"\u2028", "\u2029"}) {
        for (size_t nFound = 0; (nFound = result.find(pEnd, nFound)) != std::string::npos;)
            result.replace(nFound, std::string_view(pEnd).size(), " ");
    }
    return result;
}

// The character of an escape sequence, behind its backslash; takes it off the script.
char ReadEscape(std::string_view& script) {
    const char kind = script.front();
    script.remove_prefix(1);
    if (kind == 'n')
        return '\n';
    unsigned char code = 0;
    if (kind != 'x' || script.size() < 2 ||
        std::from_chars(script.data(), script.data() + 2, code, 16).ec != std::errc())
        return kind;
    script.remove_prefix(2);
    return static_cast<char>(code);
}

// Takes a string literal off the script, from its opening quote to its closing one.
std::string ReadString(std::string_view& script) {
    const char quote = script.front();
    script.remove_prefix(1);
    std::string text;
    while (!script.empty()) {
        const char byte = script.front();
        script.remove_prefix(1);
        if (byte == quote)
            break;
        text += byte == '\\' && !script.empty() ? ReadEscape(script) : byte;
    }
    return text;
}

} // namespace

CScriptSyntax::CScriptSyntax(Judged judged)
    : m_Judged(judged), m_pEngine(duk_create_heap_default(), DestroyEngine) {
    if (!m_pEngine)
        throw std::bad_alloc();
}

std::string CScriptSyntax::ShapeOf(std::string_view script) const {
    return m_Judged == Judged::ByShape ? ShapeOfScript(script) : std::string(script);
}

bool CScriptSyntax::IsScript(std::string_view text) {
    return m_Scripts.Get(ShapeOf(text), [this](std::string_view shape) { return Compiles(shape, 0); });
}

bool CScriptSyntax::IsHandler(std::string_view text) {
    return m_Handlers.Get(ShapeOf("function (event) {" + std::string(text) + "\n}"),
                          [this](std::string_view shape) { return Compiles(shape, DUK_COMPILE_FUNCTION); });
}

bool CScriptSyntax::Compiles(std::string_view text, unsigned nFlags) {
    auto* pEngine = static_cast<duk_context*>(m_pEngine.get());
    const std::string script = WithoutNewLineEnds(text);
    // Other errors than of syntax are the engine's own limits.
    const bool bCompiles = duk_pcompile_lstring(pEngine, nFlags, script.data(), script.size()) == 0 ||
                           duk_get_error_code(pEngine, -1) != DUK_ERR_SYNTAX_ERROR;
    duk_pop(pEngine); // the compiled function, or the error
    return bCompiles;
}

std::vector<std::string> StringsOfScript(std::string_view script) {
    std::vector<std::string> strings;
    while (!script.empty()) {
        if (script.front() == '"' || script.front() == '\'')
            strings.push_back(ReadString(script));
        else if (script.starts_with("//") || script.starts_with("<!--"))
            script.remove_prefix(std::min(script.find_first_of("\r\n"), script.size()));
        else
            script.remove_prefix(1);
    }
    return strings;
}

} // namespace orrelix
