// CSelectScriptDlg: the person picks one of the nine effects.
#pragma once

#include "platform/array.h"
#include "toolkit/dialog.h"

namespace orrelix {

class CSelectScriptDlg : public CDialog {
public:
    CSelectScriptDlg();

    int m_nSelected = -1; // after OK: the effect's index in the list; 1 more is its type

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
    void OnOK() override;
    void OnCancel() override;

private:
    void OnSelectionChanged();

    CStringArray m_Names; // while the dialog runs
    CStringArray m_Descriptions;
    CString m_DescriptionText;
};

} // namespace orrelix
