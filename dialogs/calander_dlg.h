// The dialog of Calender.
#pragma once

#include "dialogs/gadget_dialog.h"
#include "gadgets/calander.h"

namespace orrelix {

class CCalanderDlg : public CGadgetDialog<CCalander> {
public:
    CCalanderDlg();

protected:
    void ReadCopy() override;
};

} // namespace orrelix
