// The dialog of Slide Text.
#pragma once

#include "controls/dialog_with_colours.h"
#include "gadgets/text_show.h"

namespace orrelix {

class CTextShowDlg : public CDialogWithColours {
public:
    CTextShowDlg();

    CTextShow* m_pGadget = nullptr; // set before the run; written on OK only

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
    void OnOK() override;

private:
    void OnTitleFont();
    void OnTextFont();

    CTextShow m_Copy; // what the dialog edits
};

} // namespace orrelix
