// The fields of an effect by their names, for who works without a screen.
#pragma once

#include "host/component.h"

#include <map>

namespace orrelix {

struct CNamedField {
    std::string m_Name;
    std::string m_Kind; // "text", "number", "colour", "choice", "file", "directory" or "border"
    bool m_bList;
    bool m_bKeepsCommas;           // a file brings those of its values back
    std::vector<CString> m_Values; // one, or the list's items; of files the system's paths

    bool IsFile() const { return m_Kind == "file"; }
};

// Every field of the effect with what it holds, in the order of its parameters.
std::vector<CNamedField> ListFields(const CEffectObject& effect);

// Why an effect of these fields can't be in a file; empty when it can. A file takes a line of a text for the end of the
// effect's HTML.
std::string WhyNotInFile(const std::vector<CNamedField>& fields);

// The fields with commas, or what a file takes for one, that keep the file from bringing the effect back; a sentence's rest,
// empty where there are none.
std::string WhatCommasBreak(const std::vector<CNamedField>& fields);

// Values by name, with "m_" or without: one for a field, as many as it is to have items for a list.
using CFieldValues = std::map<std::string, std::vector<CString>>;

// Sets fields. All lists of an effect are columns of the same items, so all get as many as the longest list
// given here, and no fewer than there are texts unless the texts are given; an item that isn't given stays as
// it was. The result says why not all of them are set: a name is none of the effect's, a field that is no list is given
// several values, a value isn't one that the field can have, or has a comma with which the file would not bring it
// back; else it is empty. Other values that a file will not bring back are added to `remarks`, a sentence each.
std::string SetFields(const CEffectObject& effect, const CFieldValues& values,
                      std::vector<std::string>& remarks);

} // namespace orrelix
