#include "qt/adapters.h"

#include "qt/text.h"
#include "toolkit/dialog.h"

namespace orrelix {

namespace {

// The control of this kind that goes with the edit box, or null.
CControl* FindCompanion(const CDialog& dialog, int nEdit, ControlKind kind) {
    CControl* pFound = nullptr;
    ForEachControl(dialog.GetDescription(), [&](const CControlDescription& control, const char*) {
        if (control.m_Kind == kind && control.m_nBuddy == nEdit)
            pFound = dialog.FindItem(control.m_nId);
    });
    return pFound;
}

CAdapterPtr MakeEditOrNumber(const CControlDescription& description, CDialog& dialog, CStage& stage,
                             QWidget& parent) {
    const int nId = description.m_nId;
    CEdit& edit = dialog.Item<CEdit>(nId);
    if (CControl* pSpin = FindCompanion(dialog, nId, ControlKind::Spin))
        return MakeNumberAdapter(edit, static_cast<CSpinButtonCtrl&>(*pSpin), stage, parent);
    return MakeEditAdapter(edit, description, stage, parent);
}

std::function<CString()> TextBeside(const CDialog& dialog, int nButton) {
    if (!dialog.ShowsBeside(nButton))
        return nullptr;
    return [&dialog, nButton] { return dialog.GetTextBeside(nButton); };
}

CAdapterPtr MakeByKind(const CControlDescription& description, CDialog& dialog, CStage& stage,
                       QWidget& parent) {
    const int nId = description.m_nId;
    switch (description.m_Kind) {
    case ControlKind::Static:
        return MakeStaticAdapter(dialog.Item<CStatic>(nId), description, stage, parent);
    case ControlKind::Edit:
        return MakeEditOrNumber(description, dialog, stage, parent);
    case ControlKind::Button:
        return MakeButtonAdapter(dialog.Item<CButton>(nId), description, TextBeside(dialog, nId), stage,
                                 parent);
    case ControlKind::OwnerDrawnButton:
        return MakeOwnerDrawnButtonAdapter(dialog.Item<COwnerDrawnButton>(nId), stage, parent);
    case ControlKind::ListBox:
        return MakeListBoxAdapter(dialog.Item<CListBox>(nId), stage, parent);
    case ControlKind::ListCtrl:
        return MakeListViewAdapter(dialog.Item<CListCtrl>(nId), stage, parent);
    case ControlKind::ComboBox:
        return MakeComboBoxAdapter(dialog.Item<CComboBox>(nId), stage, parent);
    case ControlKind::Slider:
        return MakeSliderAdapter(dialog.Item<CSliderCtrl>(nId), description, stage, parent);
    case ControlKind::Spin:
        break; // shown with its edit box
    }
    return nullptr;
}

} // namespace

CAdapterPtr MakeAdapter(const CControlDescription& description, CDialog& dialog, CStage& stage,
                        QWidget& parent) {
    CAdapterPtr pAdapter = MakeByKind(description, dialog, stage, parent);
    if (!pAdapter)
        return nullptr;
    // A form's label lends its name to some kinds of widgets only.
    pAdapter->Widget()->setAccessibleName(ToQt(OwnNameOf(dialog.GetDescription(), description)));
    pAdapter->ShowControl();
    return pAdapter;
}

} // namespace orrelix
