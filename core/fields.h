// The fields of an effect by their names, for hosts that work without dialogs.
#pragma once

#include "core/dhtml_gadget.h"

#include <string_view>
#include <vector>

namespace orrelix {

// What a field holds. A field's name ends in what it is, so its kind follows from that.
enum class FieldKind { Text, Number, Colour, Choice, File, Directory, Border };

struct CFieldType {
    FieldKind m_Kind = FieldKind::Text;
    std::vector<CString> m_Choices; // those that the dialogs offer; a field may hold others
    int m_nLeast = 0;               // what the dialogs' arrows reach; both 0 where there are none
    int m_nMost = 0;
};

// "text", "number" and so on.
const char* NameOf(FieldKind kind);

// A field of a gadget, with the texts that it holds: one, or the items of a list. They are the gadget's own, and good
// until a list changes its length.
struct CNamedField {
    CString m_Name;
    bool m_bList = false;
    bool m_bFileName = false;
    bool m_bKeepsCommas = true; // no comma of its values parts them in a file
    std::vector<CString*> m_Values;
};

// Every field of the gadget in the order of its parameters.
std::vector<CNamedField> ListFields(CDhtmlGadget& gadget);

// The same, but for those of other names than this one, with "m_" or without.
std::vector<CNamedField> ListFields(CDhtmlGadget& gadget, std::string_view name);

// What one of them holds. A border is one beside which its width, its style and its colour stand too.
CFieldType TypeOfField(const std::vector<CNamedField>& fields, const CNamedField& field);

// The field of a name, with "m_" or without; null for the name of none.
const CNamedField* FindField(const std::vector<CNamedField>& fields, std::string_view name);

// Gives all lists of the gadget as many items: they are columns of one table. A list of fixed length keeps it.
void ResizeLists(CDhtmlGadget& gadget, CStringArray::Index nItems);

// The value as the field's dialog would store it: a colour without "#", a directory with slashes and one at its end.
// Throws CRefusal with a sentence when it is none such.
CString AsDialogStores(const CNamedField& field, FieldKind kind, const CString& value);

// Forms the whole border anew of which this field is the width, the style or the colour, if it is one.
void UpdateBorder(const std::vector<CNamedField>& fields, const CNamedField& part);

} // namespace orrelix
