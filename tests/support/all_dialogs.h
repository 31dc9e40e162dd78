// Every dialog of the component, for the tests that hold for all of them. Who writes a dialog adds its row.
#pragma once

#include "tests/support/effect_fields.h"
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
};

const std::vector<CTestedDialog>& AllDialogs();

} // namespace orrelix
