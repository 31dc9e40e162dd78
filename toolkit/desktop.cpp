#include "toolkit/desktop.h"

#include "toolkit/desktop_loader.h"
#include "toolkit/dialog.h"
#include "toolkit/popup_window.h"

namespace orrelix {

namespace {

// Where nobody is there to answer: every dialog is closed at once, nothing is chosen.
class CNobody : public CDesktop {
public:
    void RunDialog(CDialog& dialog) override { dialog.PersonCloses(Person()); }
    int ShowMessageBox(const CString&, MessageBoxKind kind) override {
        return kind == MessageBoxKind::OkCancel ? IDCANCEL : IDOK;
    }
    bool RunFileDialog(CFileDialog&) override { return false; }
    bool RunColourDialog(CColour&) override { return false; }
    void OpenPopup(CPopupWindow& popup) override { popup.OnDeactivate(Person()); }
    void ClosePopup(CPopupWindow& popup) override { popup.OnClosed(); }
    CRect GetScreenRect(const COwnerDrawnButton&) const override { return {}; }
    CRect GetScreenAround(const CRect&) const override { return {}; }
    CThemeMetrics GetMetrics() const override { return {}; }
    CSize MeasureText(const CString&) const override { return {}; }
    CColour GetSystemColour(SystemColour) const override { return 0; }
    CStringArray GetFontFamilies() const override { return {}; }
};

CNobody g_nobody;
CDesktop* g_pDesktop = nullptr; // null until one is set
CString g_ownerWindow;

} // namespace

CDesktop& GetDesktop() {
    CDesktop* pDesktop = g_pDesktop ? g_pDesktop : FindDesktop();
    return pDesktop ? *pDesktop : g_nobody;
}

void SetDesktop(CDesktop* pDesktop) {
    g_pDesktop = pDesktop ? pDesktop : &g_nobody;
}

const CString& GetOwnerWindow() {
    return g_ownerWindow;
}

void SetOwnerWindow(const CString& window) {
    g_ownerWindow = window;
}

int AfxMessageBox(const CString& text, MessageBoxKind kind) {
    return GetDesktop().ShowMessageBox(text, kind);
}

} // namespace orrelix
