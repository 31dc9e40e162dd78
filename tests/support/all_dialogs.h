// Every dialog of the component, for the tests that hold for all of them. Who writes a dialog adds its row.
#pragma once

#include "tests/support/effect_fields.h"
#include "toolkit/desktop.h"
#include "toolkit/dialog.h"

#include <functional>
#include <memory>

namespace orrelix {

// A dialog and the fields that it edits, for one run.
class CEditing {
public:
    virtual ~CEditing() = default;
    virtual std::vector<CNamedText> Fields() = 0;
    virtual int Run() = 0;
    virtual CDhtmlGadget* Effect() { return nullptr; } // null for a dialog of no effect
};

// A dialog that a button opens on fields of the button's dialog.
struct CSubDialog {
    const char* m_pButton;
    const CDialogDescription& (*m_pDescription)();
};

struct CTestedDialog {
    const char* m_pName; // of its expected file
    const CDialogDescription& (*m_pDescription)();
    std::function<std::unique_ptr<CEditing>()> m_Edit = {}; // none for a dialog that edits no fields
    std::vector<CSubDialog> m_SubDialogs = {};

    friend std::ostream& operator<<(std::ostream& out, const CTestedDialog& dialog) {
        return out << dialog.m_pName;
    }
};

const std::vector<CTestedDialog>& AllDialogs();

#define MEMBER(dialog, member)                                                                               \
    { #member, &dialog::member }

// A dialog that edits members of its own, which its caller sets and on OK reads back.
template <class TDialog>
using CMembers = std::vector<std::pair<const char*, CString TDialog::*>>;

template <class TDialog>
class CMemberEditing : public CEditing {
public:
    explicit CMemberEditing(const CMembers<TDialog>& members) : m_Members(members) {
        const TDialog untouched;
        for (const auto& [pName, pMember] : m_Members)
            m_Texts.push_back(untouched.*pMember);
    }
    std::vector<CNamedText> Fields() override {
        std::vector<CNamedText> fields;
        for (size_t i = 0; i < m_Members.size(); ++i)
            fields.push_back({m_Members[i].first, &m_Texts[i]});
        return fields;
    }
    int Run() override {
        TDialog dialog;
        for (size_t i = 0; i < m_Members.size(); ++i)
            dialog.*m_Members[i].second = m_Texts[i];
        const int nResult = dialog.DoModal();
        for (size_t i = 0; nResult == IDOK && i < m_Members.size(); ++i)
            m_Texts[i] = dialog.*m_Members[i].second;
        return nResult;
    }

private:
    const CMembers<TDialog> m_Members;
    std::vector<CString> m_Texts;
};

template <class TDialog>
std::function<std::unique_ptr<CEditing>()> OfMembers(const CMembers<TDialog>& members) {
    return [members] { return std::make_unique<CMemberEditing<TDialog>>(members); };
}

} // namespace orrelix
