#include "core/orrelix.h"

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

template <class TDialog, class TGadget>
int RunDialog(TGadget& gadget) {
    TDialog dialog;
    dialog.m_pGadget = &gadget;
    return dialog.DoModal();
}

// What each effect of kEffects consists of, in the same order.
#define EFFECT(stem, name, description)                                                                      \
    {[](COrrelix& orrelix) -> CDhtmlGadget& { return orrelix.m_##stem; },                                    \
     [](COrrelix& orrelix) { return RunDialog<C##stem##Dlg>(orrelix.m_##stem); }},
constexpr struct CEffectParts {
    CDhtmlGadget& (*m_pGadget)(COrrelix&);
    int (*m_pRunDialog)(COrrelix&);
} kParts[] = {ORRELIX_EFFECTS(EFFECT)};
#undef EFFECT

// Null for a type of none.
const CEffectParts* FindParts(const CString& type) {
    const CEffect* pEffect = FindEffect(type);
    return pEffect ? &kParts[pEffect - kEffects] : nullptr;
}

} // namespace

CVignelConfig& COrrelix::Registered() {
    if (!m_bResourcesRegistered) {
        m_pGadget->RegisterResources(m_Config);
        m_bResourcesRegistered = true;
    }
    return m_Config;
}

bool COrrelix::ReadConfigFile(const CPath& path) {
    return SucceedsIn([&] { return Read(path); });
}

bool COrrelix::Config() {
    m_Error = std::make_error_code(std::errc::not_enough_memory); // unless they come to their end
    return SucceedsIn([&] {
        const bool bOk = RunDialogs();
        m_Error = {};
        return bOk;
    });
}

bool COrrelix::WriteConfigFileEx(const CPath& path, short force) {
    m_Error = std::make_error_code(std::errc::not_enough_memory); // unless writing tells another
    return SucceedsIn([&] { return Write(path, force); });
}

bool COrrelix::Read(const CString& path) {
    m_Form = {};
    const bool bRead = m_Config.ReadFile(path, m_bKeepForm ? &m_Form : nullptr);
    m_Error = m_Form.m_Error;
    if (!bRead)
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
        m_Type = TypeOf(kEffects[m_SelectDlg.m_nSelected]);
    }
    SelectType(CString(m_Type));
    // A type that is none of ours has nothing to ask.
    const CEffectParts* pParts = FindParts(m_Type);
    if (pParts && pParts->m_pRunDialog(*this) == IDCANCEL)
        return false;
    m_bResourcesRegistered = false;
    return true;
}

void COrrelix::SelectType(const CString& type) {
    m_Type = type;
    if (m_Type == "0")
        m_pGadget = &m_NoSelect;
    else if (const CEffectParts* pParts = FindParts(m_Type))
        m_pGadget = &pParts->m_pGadget(*this);
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
    m_Error = m_Config.WriteFile(path);
    return !m_Error;
}

} // namespace orrelix
