// CScriptedPerson: a desktop without windows, before which a script's person sits. It is in force from its
// construction to its end.
//
//     CScriptedPerson person;
//     person.In("Padding Style").Does({"types Left = 3", "clicks OK"});
//     CPaddingDlg dialog;
//     EXPECT_EQ(dialog.DoModal(), IDOK);
#pragma once

#include "tests/support/person_script.h"
#include "toolkit/desktop.h"

namespace orrelix {

class CScriptedPerson : public CDesktop, public CPersonHands, public CPersonScript {
public:
    CScriptedPerson() { SetDesktop(this); }
    ~CScriptedPerson() override { SetDesktop(nullptr); }

    CRect m_Screen = {0, 0, 1024, 768};

    void RunDialog(CDialog& dialog) override;
    int ShowMessageBox(const CString& text, MessageBoxKind kind) override;
    bool RunFileDialog(CFileDialog& dialog) override;
    bool RunColourDialog(CColour& colour) override;
    void OpenPopup(CPopupWindow& popup) override;
    void ClosePopup(CPopupWindow& popup) override;
    CRect GetScreenRect(const COwnerDrawnButton&) const override { return {100, 100, 160, 120}; }
    CRect GetScreenAround(const CRect&) const override { return m_Screen; }
    CThemeMetrics GetMetrics() const override { return {{2, 2}, {16, 16}}; }
    CSize MeasureText(const CString& text) const override;
    CColour GetSystemColour(SystemColour colour) const override;
    CStringArray GetFontFamilies() const override { return {"Verdana", "Arial", "Courier New"}; }

    void Type(const CTarget& target, const CString& text) override;
    void Turn(const CTarget& target, int nSteps) override;
    void Click(const CTarget& target) override;
    void SelectRows(const CTarget& target, const std::vector<int>& rows) override;
    void DoubleClick(const CTarget& target, int nRow) override;
    void Pick(const CTarget& target, int nRow) override;
    void CloseList(const CTarget& target) override;
    void Move(const CTarget& target, int nPos) override;
    void Rename(const CTarget& target, const std::optional<CString>& text) override;
    void Press(CDialog& dialog, const CString& keys) override;
    CPopupWindow* GetPopup() override { return m_pPopup; }
    void MoveInPopup(CPoint point) override { m_pPopup->OnMouseMove(Person(), point); }
    void ReleaseInPopup(CPoint point) override { m_pPopup->OnLeftButtonUp(Person(), point); }
    void PressInPopup(PopupKey key) override { m_pPopup->OnKeyDown(Person(), key); }
    CString TextOf(const CTarget& target) override;
    bool IsEnabled(const CTarget& target) override { return target.m_Control.IsWindowEnabled(); }
    int PositionOf(const CTarget& target) override;
    std::vector<CString> RowsOf(const CTarget& target) override;
    std::vector<int> SelectedRowsOf(const CTarget& target) override;
    int HotRowOf(const CTarget& target) override;
    CString TextBeside(const CTarget& target) override;

private:
    CPopupWindow* m_pPopup = nullptr;
};

} // namespace orrelix
