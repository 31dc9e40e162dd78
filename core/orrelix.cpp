#include "core/orrelix.h"

#include "dialogs/animate_text_dlg.h"
#include "dialogs/text_show_dlg.h"
#include "platform/paths.h"

namespace orrelix {

namespace {

// Nothing that is thrown, for want of memory or by a desktop, reaches the host.
template <class TAct>
bool SucceedsIn(TAct act) noexcept {
    try {
        return act();
    } catch (...) {
        return false;
    }
}

} // namespace

void COrrelix::SelectType(const CString& type) {
    m_Type = type;
    const struct {
        const char* m_pType;
        CDhtmlGadget& m_Gadget;
    } gadgets[] = {
        {"0", m_NoSelect},   {"1", m_AnimateText}, {"2", m_TextShow}, {"3", m_Calander}, {"4", m_CoolLink},
        {"5", m_ScrollText}, {"6", m_FadeSelect},  {"7", m_ToolTip},  {"8", m_TodayCa},  {"9", m_DanceText},
    };
    for (const auto& row : gadgets) {
        if (m_Type == row.m_pType)
            m_pGadget = &row.m_Gadget;
    }
}

CVignelConfig& COrrelix::Registered() {
    if (!m_bResourcesRegistered) {
        m_pGadget->RegisterResources(m_Config);
        m_bResourcesRegistered = true;
    }
    return m_Config;
}

bool COrrelix::ReadConfigFile(const CString& path) {
    return SucceedsIn([&] { return Read(path); });
}

bool COrrelix::Config() {
    return SucceedsIn([&] { return RunDialogs(); });
}

bool COrrelix::WriteConfigFileEx(const CString& path, short force) {
    return SucceedsIn([&] { return Write(path, force); });
}

bool COrrelix::Read(const CString& path) {
    if (!m_Config.ReadFile(path))
        return false;
    if (m_Config.GetProgID() != kProgID)
        return true;
    SelectType(GetListItem(m_Config.GetParameter("DhtmlType", ""), 0));
    m_pGadget->ReadParameters(m_Config, DirectoryOfPath(path) + "\\");
    return true;
}

// The type that is picked stays, also when the gadget's own dialog is cancelled then.
bool COrrelix::RunDialogs() {
    if (m_Type == "0") {
        m_pGadget = &m_NoSelect;
        if (m_SelectDlg.DoModal() == IDCANCEL)
            return false;
        m_Type = ToText(m_SelectDlg.m_nSelected + 1);
    }
    if (!RunGadgetDialog())
        return false;
    m_bResourcesRegistered = false;
    return true;
}

// False when the person cancelled; an effect that has no dialog yet behaves as if it had been. A type that is
// none of ours has nothing to ask.
bool COrrelix::RunGadgetDialog() {
    if (m_Type == "1")
        return Run<CAnimateTextDlg>(m_AnimateText);
    if (m_Type == "2")
        return Run<CTextShowDlg>(m_TextShow);
    SelectType(CString(m_Type));
    return m_Type.GetLength() != 1 || m_Type[0] < '3' || m_Type[0] > '9';
}

template <class TDialog, class TGadget>
bool COrrelix::Run(TGadget& gadget) {
    TDialog dialog;
    m_pGadget = &gadget;
    dialog.m_pGadget = &gadget;
    return dialog.DoModal() != IDCANCEL;
}

bool COrrelix::Write(const CString& path, short force) {
    m_Config.ClearParameters();
    m_Config.ClearResources();
    m_Config.ClearSegments();
    m_Config.SetProgID(kProgID);
    // May change the gadget's image paths, which the next steps store.
    m_pGadget->CopyResources(DirectoryOfPath(path) + "\\", force);
    m_Config.SetParameter("DhtmlType", m_Type);
    m_pGadget->WriteParameters(m_Config);
    m_pGadget->RegisterResources(m_Config);
    if (m_pGadget->GetHTMLSegmentNumber() == 2)
        m_Config.AddSegment({GetHTMLPosition(1), GetHTMLBody(1, kPreview)});
    m_Config.AddSegment({GetHTMLPosition(0), GetHTMLBody(0, kPreview)});
    m_bResourcesRegistered = true;
    return m_Config.WriteFile(path);
}

} // namespace orrelix
