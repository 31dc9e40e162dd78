// CQtDesktop: dialogs as real windows, drawn with Qt's widgets from their descriptions. It needs a
// QApplication and works on its thread; elsewhere every dialog ends in Cancel.
#pragma once

#include "toolkit/desktop.h"

#include <QPointer>
#include <functional>
#include <vector>

namespace orrelix {

class CDialogWindow;
class CPopupFrame;

class CQtDesktop : public CDesktop {
public:
    CQtDesktop();
    ~CQtDesktop() override;

    void RunDialog(CDialog& dialog) override;
    int ShowMessageBox(const CString& text, MessageBoxKind kind) override;
    bool RunFileDialog(CFileDialog& dialog) override;
    bool RunColourDialog(CColour& colour) override;
    void OpenPopup(CPopupWindow& popup) override;
    void ClosePopup(CPopupWindow& popup) override;
    CRect GetScreenRect(const COwnerDrawnButton& button) const override;
    CRect GetScreenAround(const CRect& place) const override;
    CThemeMetrics GetMetrics() const override;
    CSize MeasureText(const CString& text) const override;
    CColour GetSystemColour(SystemColour colour) const override;
    CStringArray GetFontFamilies() const override;

private:
    void ShowDialog(CDialog& dialog);

    std::vector<QPointer<CDialogWindow>> m_Windows; // the running ones, the innermost last
    QPointer<CPopupFrame> m_pPopup;
};

} // namespace orrelix
