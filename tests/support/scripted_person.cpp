#include "tests/support/scripted_person.h"

#include "platform/paths.h"
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/file_dialog.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace orrelix {

namespace {

template <class TControl>
TControl* As(const CTarget& target) {
    return dynamic_cast<TControl*>(&target.m_Control);
}

CString JoinedCells(const CListCtrl& list, int nRow) {
    CString cells = list.ForPerson(nRow, 0);
    for (int nColumn = 1; nColumn < list.GetColumnCount(); ++nColumn)
        cells += CString(" | ") + list.ForPerson(nRow, nColumn);
    return cells;
}

CString ShownRow(const CComboBox& box, int nRow) {
    const char* pShown = box.GetShownText(nRow);
    return pShown ? CString(pShown) : box.GetLBText(nRow);
}

} // namespace

void CScriptedPerson::RunDialog(CDialog& dialog) {
    while (!dialog.HasEnded()) {
        if (!PlayStep(dialog, *this)) {
            if (m_pPopup)
                m_pPopup->OnDeactivate(Person());
            dialog.PersonCloses(Person());
            return;
        }
    }
}

int CScriptedPerson::ShowMessageBox(const CString& text, MessageBoxKind kind) {
    return AnswerMessageBox(text, kind);
}

bool CScriptedPerson::RunFileDialog(CFileDialog& dialog) {
    const CFileAnswer answer = AnswerFileDialog();
    if (answer.m_AddedText)
        dialog.GetAddedEdit()->PersonTypes(Person(), *answer.m_AddedText);
    if (answer.m_Path)
        dialog.PersonChooses(Person(), *answer.m_Path);
    return answer.m_Path.has_value();
}

bool CScriptedPerson::RunColourDialog(CColour& colour) {
    const auto answer = AnswerColourDialog();
    colour = answer.value_or(colour);
    return answer.has_value();
}

void CScriptedPerson::OpenPopup(CPopupWindow& popup) {
    m_pPopup = &popup;
}

void CScriptedPerson::ClosePopup(CPopupWindow& popup) {
    m_pPopup = nullptr;
    popup.OnClosed();
}

CSize CScriptedPerson::MeasureText(const CString& text) const {
    return {static_cast<int>(text.GetLength()) * 7, 14};
}

CColour CScriptedPerson::GetSystemColour(SystemColour colour) const {
    switch (colour) {
    case SystemColour::ButtonFace:
        return MakeColour(212, 208, 200);
    case SystemColour::ButtonText:
        return MakeColour(0, 0, 0);
    case SystemColour::Highlight:
        return MakeColour(255, 255, 255);
    case SystemColour::Light:
        return MakeColour(226, 223, 218);
    case SystemColour::Shadow:
        return MakeColour(128, 128, 128);
    }
    return 0;
}

void CScriptedPerson::Type(const CTarget& target, const CString& text) {
    if (auto* pBox = As<CComboBox>(target))
        pBox->PersonTypes(Person(), text);
    else if (auto* pEdit = As<CEdit>(target))
        pEdit->PersonTypes(Person(), pEdit->FromPerson(text));
}

void CScriptedPerson::Turn(const CTarget& target, int nSteps) {
    for (int nStep = 0; nStep < std::abs(nSteps); ++nStep)
        As<CSpinButtonCtrl>(target)->PersonTurns(Person(), nSteps > 0 ? 1 : -1);
}

void CScriptedPerson::Click(const CTarget& target) {
    As<CButton>(target)->PersonClicks(Person());
}

void CScriptedPerson::SelectRows(const CTarget& target, const std::vector<int>& rows) {
    if (auto* pBox = As<CListBox>(target))
        return pBox->PersonSelects(Person(), rows.at(0));
    for (size_t nRow = 0; nRow < rows.size(); ++nRow) // one after the other
        As<CListCtrl>(target)->PersonSelects(Person(), {rows.begin(), rows.begin() + nRow + 1}, rows[nRow]);
}

void CScriptedPerson::DoubleClick(const CTarget& target, int nRow) {
    As<CListBox>(target)->PersonDoubleClicks(Person(), nRow);
}

void CScriptedPerson::Pick(const CTarget& target, int nRow) {
    As<CComboBox>(target)->PersonPicks(Person(), nRow);
}

void CScriptedPerson::CloseList(const CTarget& target) {
    As<CComboBox>(target)->PersonClosesList(Person());
}

void CScriptedPerson::Move(const CTarget& target, int nPos) {
    As<CSliderCtrl>(target)->PersonMoves(Person(), nPos);
}

void CScriptedPerson::Rename(const CTarget& target, const std::optional<CString>& text) {
    As<CListCtrl>(target)->PersonEndsLabelEdit(Person(), text.value_or(""), !text);
}

void CScriptedPerson::Press(CDialog& dialog, const CString& keys) {
    if (keys == "Escape")
        return dialog.PersonCloses(Person());
    ASSERT_EQ(keys, "Enter");
    ForEachControl(dialog.GetDescription(), [&](const CControlDescription& control, const char*) {
        if (control.Has(STYLE_DEFAULT))
            dialog.Item<CButton>(control.m_nId).PersonClicks(Person());
    });
}

CString CScriptedPerson::TextOf(const CTarget& target) {
    const auto* pBox = As<CComboBox>(target);
    if (pBox && !pBox->HasEditPart() && pBox->GetCurSel() >= 0)
        return ShownRow(*pBox, pBox->GetCurSel());
    const CString& text = target.m_Control.GetWindowText();
    return target.m_Description.Has(STYLE_PATH) ? CString(SystemSpelling(text)) : text;
}

CString CScriptedPerson::TextBeside(const CTarget& target) {
    return target.m_Dialog.GetTextBeside(target.m_Description.m_nId);
}

int CScriptedPerson::PositionOf(const CTarget& target) {
    return As<CSliderCtrl>(target)->GetPos();
}

std::vector<CString> CScriptedPerson::RowsOf(const CTarget& target) {
    std::vector<CString> rows;
    if (auto* pBox = As<CComboBox>(target)) {
        for (int nRow = 0; nRow < pBox->GetCount(); ++nRow)
            rows.push_back(ShownRow(*pBox, nRow));
    } else if (auto* pList = As<CListCtrl>(target)) {
        for (int nRow = 0; nRow < pList->GetItemCount(); ++nRow)
            rows.push_back(JoinedCells(*pList, nRow));
    } else {
        for (int nRow = 0; nRow < As<CListBox>(target)->GetCount(); ++nRow)
            rows.push_back(As<CListBox>(target)->GetText(nRow));
    }
    return rows;
}

int CScriptedPerson::HotRowOf(const CTarget& target) {
    return As<CListCtrl>(target)->GetHotItem();
}

std::vector<int> CScriptedPerson::SelectedRowsOf(const CTarget& target) {
    std::vector<int> rows;
    if (auto* pList = As<CListCtrl>(target)) {
        for (int nRow = 0; nRow < pList->GetItemCount(); ++nRow) {
            if (pList->IsSelected(nRow))
                rows.push_back(nRow);
        }
        return rows;
    }
    auto* pBox = As<CComboBox>(target);
    const int nRow = pBox ? pBox->GetCurSel() : As<CListBox>(target)->GetCurSel();
    if (nRow >= 0)
        rows.push_back(nRow);
    return rows;
}

} // namespace orrelix
