#include "dialogs/select_script.h"

#include "resources/effects.h"
#include "resources/select_script_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

namespace orrelix {

CSelectScriptDlg::CSelectScriptDlg() : CDialog(SelectScriptDescription()) {
    using Id = SelectScriptId;
    for (const CEffect& effect : kEffects)
        m_Descriptions.Add(effect.m_pDescription);
    SetHandlers<CSelectScriptDlg>({
        {Id::Names, Notification::SelectionChanged, &CSelectScriptDlg::OnSelectionChanged},
        {Id::Names, Notification::DoubleClicked, &CSelectScriptDlg::OnOK},
    });
}

void CSelectScriptDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(SelectScriptId::Description, m_DescriptionText);
}

void CSelectScriptDlg::OnInitDialog() {
    m_Names.RemoveAll(); // a run that an exception broke off has left them
    for (const CEffect& effect : kEffects)
        m_Names.Add(effect.m_pName);
    CListBox& list = Item<CListBox>(SelectScriptId::Names);
    list.ResetContent();
    for (const CString& name : m_Names)
        list.AddString(name);
    // Ten, as it has always said; the tenth is the choice of none.
    m_DescriptionText = "Orrelix can provide 10 DHTML scripts to you";
    UpdateData(false);
}

void CSelectScriptDlg::OnSelectionChanged() {
    const int nSelected = Item<CListBox>(SelectScriptId::Names).GetCurSel();
    if (nSelected < 0)
        return;
    m_DescriptionText = m_Descriptions[nSelected];
    UpdateData(false);
}

void CSelectScriptDlg::OnOK() {
    m_nSelected = Item<CListBox>(SelectScriptId::Names).GetCurSel();
    if (m_nSelected < 0) {
        AfxMessageBox("Please select a DHTML Scripts to add!");
        return;
    }
    m_Names.RemoveAll();
    EndDialog(IDOK);
}

void CSelectScriptDlg::OnCancel() {
    m_Names.RemoveAll();
    EndDialog(IDCANCEL);
}

} // namespace orrelix
