// The dialog of Slide Text.
#pragma once

#include "dialogs/gadget_dialog.h"
#include "gadgets/text_show.h"

namespace orrelix {

class CTextShowDlg : public CGadgetDialog<CTextShow> {
public:
    CTextShowDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;
};

} // namespace orrelix
