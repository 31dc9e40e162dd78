// CQtPerson: a script's person before real windows, with a mouse and a keyboard. The windows are in
// force from its construction to its end, on Qt's offscreen screen unless the environment names another one.
#pragma once

#include "qt/dialog_window.h"
#include "qt/qt_desktop.h"
#include "qt/text.h"
#include "tests/support/person_script.h"

#include <QAbstractItemView>

namespace orrelix {

class CQtPerson : public CQtDesktop, public CPersonHands, public CPersonScript {
public:
    CQtPerson();
    ~CQtPerson() override { SetDesktop(nullptr); }

    void RunDialog(CDialog& dialog) override;
    int ShowMessageBox(const CString& text, MessageBoxKind kind) override;
    bool RunFileDialog(CFileDialog& dialog) override;
    bool RunColourDialog(CColour& colour) override;
    void OpenPopup(CPopupWindow& popup) override;
    void ClosePopup(CPopupWindow& popup) override;

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
    void Focus(const CTarget& target) override { WidgetOf(target).setFocus(Qt::TabFocusReason); }
    void Write(const CString& text) override;
    CPopupWindow* GetPopup() override { return m_pOpenPopup; }
    void MoveInPopup(CPoint point) override;
    void ReleaseInPopup(CPoint point) override;
    void PressInPopup(PopupKey key) override;
    CString TextOf(const CTarget& target) override;
    bool IsEnabled(const CTarget& target) override;
    int PositionOf(const CTarget& target) override;
    std::vector<CString> RowsOf(const CTarget& target) override;
    std::vector<int> SelectedRowsOf(const CTarget& target) override;
    int HotRowOf(const CTarget& target) override;
    CString TextBeside(const CTarget& target) override;
    CString Focused() override { return FromQt(Window().focusWidget()->accessibleName()); }

    // The window in front, which must be a dialog's.
    static CDialogWindow& Window();
    static QWidget& WidgetOf(const CTarget& target);
    template <class TWidget>
    static TWidget& As(const CTarget& target) {
        return dynamic_cast<TWidget&>(WidgetOf(target));
    }

private:
    void PlayNext(CDialog& dialog);

    std::vector<CDialog*> m_Running;
    CPopupWindow* m_pOpenPopup = nullptr;
};

// Makes the QApplication.
void StartQt();

// Puts the text in place of all that stands in the box, in one go, as an input method does.
void ReplaceText(QWidget& box, const QString& text);
void ClickRow(QAbstractItemView& view, int nRow, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace orrelix
