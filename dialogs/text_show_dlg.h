// The dialog of Slide Text.
#pragma once

#include "controls/colour_dialog.h"
#include "gadgets/text_show.h"

class CTextShowDlg : public CColourDialog {
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
