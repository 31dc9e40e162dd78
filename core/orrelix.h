// COrrelix: the one object that a host sees, VignelServer.Orrelix.
//
// It owns the store of one configuration file and one gadget of each kind, and does the sequencing between
// them:
//
//     COrrelix orrelix;
//     orrelix.SetTitle("news");
//     if (orrelix.Config())                                   // the user picks an effect and edits it
//         orrelix.WriteConfigFile("\\home\\ann\\news.cfg");   // files are copied, the state is saved
//     orrelix.GetHTMLBody(0, 1);                              // as published, for the place at the cursor
//
// Paths have backslashes and are full. An object is used by one thread, that of its host's user interface.
// What reads, writes or asks the user throws nothing: where memory runs out it gives false. What makes HTML throws
// CRefusal above a length that the host has set (see core/html_text.h).
#pragma once

#include "core/dhtml_gadget.h"
#include "core/vignel_config.h"
#include "dialogs/animate_text_dlg.h"
#include "dialogs/calander_dlg.h"
#include "dialogs/cool_link_dlg.h"
#include "dialogs/dance_text_dlg.h"
#include "dialogs/fade_select_dlg.h"
#include "dialogs/scroll_text_dlg.h"
#include "dialogs/select_script.h"
#include "dialogs/text_show_dlg.h"
#include "dialogs/today_ca_dlg.h"
#include "dialogs/tool_tip_dlg.h"
#include "gadgets/no_select.h"
#include "platform/module.h"
#include "platform/paths.h"
#include "resources/effects.h"

namespace orrelix {

// The name by which hosts create the object, and which files of this component bear.
inline constexpr char kProgID[] = "VignelServer.Orrelix";

class COrrelix {
public:
    COrrelix() = default;
    COrrelix(const COrrelix&) = delete;
    COrrelix& operator=(const COrrelix&) = delete;

    // In the order in which late-bound hosts know them by number: properties first.

    CString GetProgID() { return m_Config.GetProgID(); }
    void SetProgID(const CString& text) { m_Config.SetProgID(text); }
    CString GetTitle() { return m_Config.GetTitle(); }
    void SetTitle(const CString& text) { m_Config.SetTitle(text); }
    CString GetDescription() { return m_Config.GetDescription(); }
    void SetDescription(const CString& text) { m_Config.SetDescription(text); }
    CString GetBitmapFileName() { return m_Config.GetBitmapFileName(); }
    void SetBitmapFileName(const CString& text) { m_Config.SetBitmapFileName(text); }
    // The directory that preview text puts in front of file names, with its separator at the end.
    CString GetPreviewPath() { return m_Config.GetPreviewPath(); }
    void SetPreviewPath(const CString& text) { m_Config.SetPreviewPath(text); }
    // Days since 30 December 1899.
    double GetLastUpdateTime() { return m_Config.GetLastUpdateTime(); }
    void SetLastUpdateTime(double time) { m_Config.SetLastUpdateTime(time); }

    // Reads a file and brings its gadget back. False, and nothing changes, when it can't be opened or memory runs out.
    // A file of another component is read into the store, and the gadget stays.
    bool ReadConfigFile(const CPath& path);

    // WriteConfigFileEx without force.
    bool WriteConfigFile(const CPath& path) { return WriteConfigFileEx(path, 0); }

    // Runs the dialogs: first the choice of an effect, unless one is chosen, then that effect's own. False
    // when the user cancelled.
    bool Config();

    // Ids of the texts and of the icon that a host may load from a library that has them. Constants of the
    // contract with hosts.
    int GetVignelTypeID() const { return 1; }
    int GetVignelNameID() const { return 2; }
    int GetMenuTextID() const { return 3; }
    int GetMessageTextID() const { return 4; }
    int GetTipsTextID() const { return 5; }
    int GetIconID(short) const { return 4000; }

    short GetHTMLSegmentNumber() { return m_pGadget->GetHTMLSegmentNumber(); }
    // "cursor" for 0, "script" for any other.
    CString GetHTMLPosition(short nIndex) const { return nIndex == 0 ? "cursor" : "script"; }
    // The text of a position in a mode (see EHtmlMode).
    CString GetHTMLBody(short position, short mode) {
        return m_pGadget->GetHTMLBody(m_Config, mode, position);
    }

    // The loaded library, in which a host looks for them.
    int GetResourceInstance() const { return GetModuleInstance(); }

    // The files that the page needs. The first of these calls after a new object, or after a Config that
    // ended in OK, asks the gadget; the following ones use its answer.
    short GetResourceNumber() { return Registered().GetResourceCount(); }
    CString GetResourceName(short nIndex) { return Registered().GetResourceName(nIndex); }
    CString GetResourceLocalPath(short nIndex) { return Registered().GetResourceLocalPath(nIndex); }
    CString GetResourceWebPath(short nIndex) { return Registered().GetResourceWebPath(nIndex); }
    CString GetResourceLocalPathByName(const CString& name) {
        return Registered().GetResourceLocalPathByName(name);
    }
    CString GetResourceWebPathByName(const CString& name) {
        return Registered().GetResourceWebPathByName(name);
    }
    bool SetResourceLocalPath(const CString& path) { return Registered().SetResourceLocalPath(path); }

    // Copies the gadget's files into the directory of `path` and writes the file there. With `force` not 0
    // nobody is asked about names that are taken. False when the file can't be written: the copies have been made by
    // then, and the object is as if it were. Where memory runs out the object is as it was.
    bool WriteConfigFileEx(const CPath& path, short force);

    // The form of the file read last, kept for those who look into files.
    bool m_bKeepForm = false;
    CConfigForm m_Form;

    // Why the last of these calls failed: writing a file, reading one whose form is kept, or the dialogs, which have
    // another reason than the user's Cancel.
    std::error_code m_Error;

    // Selects an effect by its type, "1" to "9", as the first dialog of Config does: for hosts without a
    // screen. Another type is kept, and the gadget stays.
    void SelectType(CString type);

    // Gives what act() does, which may change the current effect. If it throws, the effect is as it was.
    template <class TAct>
    auto ChangeEffect(TAct act) {
        CDhtmlGadget& gadget = *m_pGadget;
        const auto pBefore = gadget.Copy();
        try {
            return act();
        } catch (...) {
            gadget.Take(*pBefore);
            throw;
        }
    }

    // Gives what use(resources) makes of the files that the page needs, which the effect has registered then. If it
    // throws, nothing has been registered.
    template <class TUse>
    auto WithResources(TUse use) {
        if (m_bResourcesRegistered)
            return use(m_Config.m_Resources);
        return ChangeEffect([&] {
            CVignelConfig registered;
            m_pGadget->RegisterResources(registered);
            auto result = use(registered.m_Resources);
            m_Config.m_Resources = std::move(registered.m_Resources);
            m_bResourcesRegistered = true;
            return result;
        });
    }

    CVignelConfig m_Config;
    CDhtmlGadget* m_pGadget = &m_NoSelect; // the current one
    CString m_Type = "0";                  // its type, "0" to "9", or what a file said
    CSelectScriptDlg m_SelectDlg;
    bool m_bResourcesRegistered = false;
    CNoSelect m_NoSelect;
#define EFFECT(stem, name, description) C##stem m_##stem;
    ORRELIX_EFFECTS(EFFECT) // m_AnimateText, m_TextShow and so on
#undef EFFECT

private:
    template <class TAct>
    bool SucceedsIn(TAct act);
    bool Read(const CString& path);
    void Compose(const CString& directory, short force);
    CDhtmlGadget& GadgetOf(const CString& type);
    bool RunDialogs();
    CVignelConfig& Registered() {
        WithResources([](const auto&) { return true; });
        return m_Config;
    }
};

} // namespace orrelix
