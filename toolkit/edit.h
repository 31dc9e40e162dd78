// CEdit: an edit box of one line or several, for any text or for digits alone.
#pragma once

#include "toolkit/control.h"

namespace orrelix {

class CEdit : public CControl {
public:
    bool IsMultiLine() const { return m_bMultiLine; }

    // What a desktop shows as the box's text, and what it types into the box for what the person put there. They
    // differ from the text in a box for paths, whose person knows the system's, and in a box for a colour, where
    // a "#" in front comes along from elsewhere.
    CString ForPerson() const;
    CString FromPerson(const CString& text) const;

    // The box's text is now `text`. Of what is new in it, a box for digits takes the digits, so that what the
    // program put in stays; a box of one line takes the first line. Notifies Changed. A disabled box takes
    // nothing.
    void PersonTypes(CPersonKey, const CString& text);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    CString Accepted(const CString& text) const;
    CString WithDigitsAlone(std::string_view text) const;

    bool m_bMultiLine = false;
    bool m_bDigits = false;
    bool m_bColour = false;
    bool m_bPath = false;
};

} // namespace orrelix
