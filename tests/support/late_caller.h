// A host that calls by name, as a script writes its calls, and is answered as people read it.
//
//     Title = "news"          nothing
//     Title                   "news"
//     GetHTMLPosition("1")    "script"
//     GetHTMLPosition         DISP_E_BADPARAMCOUNT
//
// Arguments: "text" with \uXXXX in it, 7 (long), 7s (short), 1.5 (double), 1.5d (date), true, false, empty, null,
// missing; &7 is a reference to one, &&7 one to a variant. "#18(0, 1)" calls by number. A line that begins with
// "inspector" calls the second interface, one with "get", "put" or "method" does that and nothing else.
#pragma once

#include "platform/automation.h"

#include <string>

namespace orrelix {

class CLateCaller {
public:
    // The interface stays the caller's.
    explicit CLateCaller(IDispatch& object) : m_Object(object) {}

    std::string Answer(const std::string& question) const;

private:
    IDispatch& m_Object;
};

} // namespace orrelix
