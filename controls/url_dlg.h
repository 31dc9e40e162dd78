// CUrlDlg: asks for an address. Picking another kind of address swaps the prefix in front of it.
#pragma once

#include "controls/field_dialog.h"

namespace orrelix {

class CUrlDlg : public CFieldDialog {
public:
    CUrlDlg();

    CString m_Url;  // set by the caller, and read back if the dialog ended in IDOK; any text passes
    CString m_Type; // then: the kind of the address, e.g. "http:" or "(other)", or whatever was typed for it

protected:
    void OnInitDialog() override;

private:
    void OnTypeListClosed();

    CString m_LastType; // the kind before the latest change
};

// Runs the dialog on this address, which changes only if it ends in IDOK. Without bHandIn it starts empty.
void EditUrl(CString& url, bool bHandIn = true);

} // namespace orrelix
