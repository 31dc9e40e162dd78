#include "core/orrelix.h"

#include "platform/refusal.h"

namespace orrelix {

namespace {

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

// What is told of a call that doesn't come to the end of its act.
template <class TAct>
bool COrrelix::SucceedsIn(TAct act) {
    m_Error = std::make_error_code(std::errc::not_enough_memory);
    try {
        return act();
    } catch (const CRefusal&) {
        m_Error = std::make_error_code(std::errc::file_too_large);
        throw;
    } catch (...) { // for want of memory or by a desktop; nothing of it reaches the host
        return false;
    }
}

bool COrrelix::ReadConfigFile(const CPath& path) {
    return SucceedsIn([&] { return Read(path); });
}

bool COrrelix::Config() {
    return SucceedsIn([&] {
        const bool bOk = RunDialogs();
        m_Error = {};
        return bOk;
    });
}

bool COrrelix::WriteConfigFileEx(const CPath& path, short force) {
    return SucceedsIn([&] {
        Compose(DirectoryOfPath(path) + "\\", force);
        m_Error = m_Config.WriteFile(path);
        return !m_Error;
    });
}

// Reads into copies, which are taken over when nothing can fail any more.
bool COrrelix::Read(const CString& path) {
    CVignelConfig config = m_Config;
    CConfigForm form;
    if (!config.ReadFile(path, m_bKeepForm ? &form : nullptr)) {
        m_Error = form.m_Error;
        return false;
    }
    if (config.GetProgID() == kProgID) {
        CString type = GetListItem(config.GetParameter("DhtmlType", ""), 0);
        CDhtmlGadget& gadget = GadgetOf(type);
        const auto pRead = gadget.Copy();
        pRead->ReadParameters(config, DirectoryOfPath(path) + "\\");
        gadget.Take(*pRead);
        SelectType(std::move(type));
    }
    m_Error = form.m_Error;
    m_Config = std::move(config);
    m_Form = std::move(form);
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
    SelectType(m_Type);
    // A type that is none of ours has nothing to ask.
    const CEffectParts* pParts = FindParts(m_Type);
    if (pParts && pParts->m_pRunDialog(*this) == IDCANCEL)
        return false;
    m_bResourcesRegistered = false;
    return true;
}

CDhtmlGadget& COrrelix::GadgetOf(const CString& type) {
    if (type == "0")
        return m_NoSelect;
    const CEffectParts* pParts = FindParts(type);
    return pParts ? pParts->m_pGadget(*this) : *m_pGadget;
}

void COrrelix::SelectType(CString type) {
    m_pGadget = &GadgetOf(type);
    m_Type = std::move(type);
}

// Everything that a file is to hold, into a store of which the description stays; nothing of it where that fails.
void COrrelix::Compose(const CString& directory, short force) {
    CVignelConfig before;
    before.m_DescriptionMap = m_Config.m_DescriptionMap;
    std::swap(before, m_Config);
    try {
        ChangeEffect([&] {
            m_Config.SetProgID(kProgID);
            // May change the gadget's image paths, which the next steps store.
            m_pGadget->CopyResources(directory, force);
            m_Config.SetParameter("DhtmlType", m_Type);
            m_pGadget->WriteParameters(m_Config);
            m_pGadget->RegisterResources(m_Config);
            if (m_pGadget->GetHTMLSegmentNumber() == 2)
                m_Config.AddSegment({GetHTMLPosition(1), GetHTMLBody(1, kPreview)});
            m_Config.AddSegment({GetHTMLPosition(0), GetHTMLBody(0, kPreview)});
        });
    } catch (...) {
        m_Config = std::move(before);
        throw;
    }
    m_bResourcesRegistered = true;
}

} // namespace orrelix
