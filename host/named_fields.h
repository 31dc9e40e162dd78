// The fields of an effect by their names, for who works without a screen.
#pragma once

#include "core/dhtml_gadget.h"

#include <map>
#include <string>
#include <vector>

namespace orrelix {

struct CNamedField {
    std::string m_Name;
    bool m_bList;
    std::vector<CString> m_Values; // one, or the list's items
    bool m_bFileName;              // they are the component's paths of files
};

// Every field of the gadget with what it holds, in the order of its parameters.
std::vector<CNamedField> ListFields(CDhtmlGadget& gadget);

// Values by name: one for a field, as many as it is to have items for a list.
using CFieldValues = std::map<std::string, std::vector<CString>>;

// Sets fields. All lists of an effect are columns of the same items, so all get as many as the longest list
// given here, and no fewer than there are texts unless the texts are given; an item that isn't given stays as
// it was. A file may be named as the system does. Nothing is set, and the result says why, when a name
// is none of the gadget's or a field that is no list is given several values; else the result is empty.
std::string SetFields(CDhtmlGadget& gadget, const CFieldValues& values);

} // namespace orrelix
