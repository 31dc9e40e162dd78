// CColourPicker: the button beside a colour's edit box. It shows the colour and drops down a popup where the
// person picks another one.
//
//     class CColorDlg : public CDialog { ... CString m_Color; CColourPicker m_Picker{*this}; ... };
//
//     CColorDlg::CColorDlg() : CDialog(ColorDescription()) {
//         Attach(PickerOf(Id::Color), m_Picker);
//         SetHandlers<CColorDlg>({{Id::Color, Notification::Changed, &CColorDlg::OnColorChanged}});
//         SetMessageHandler(COLOUR_SELECTION_ENDED, [this](auto, auto) { OnColorPicked(); });
//     }
//
//     m_Picker.SetUp("COLOR");    // in OnInitDialog
//     m_Picker.SetHexColour(m_Color);
//
// The dialog passes the box's text to SetHexColour as the person types and reads GetHexColour on the message
// COLOUR_SELECTION_ENDED. Every message comes with the colour and the button's id.
#pragma once

#include "controls/colour_picker_popup.h"
#include "toolkit/button.h"

namespace orrelix {

class CDialog;

class CColourPicker : public COwnerDrawnButton, private CColourPopupParent {
public:
    // Must stay as long as the picker: it is a member of its dialog.
    explicit CColourPicker(CDialog& parent);
    ~CColourPicker() override;

    // The word of the settings' section where mixed colours are remembered. To be set before the person can
    // open the popup.
    CString m_Section;

    // The looks that all dialogs give their colour buttons (a raised edge, a flat arrow), and the section.
    void SetUp(const CString& section);

    void SetEdgeStyle(unsigned nEdge, unsigned nFlags);
    // ArrowState bits that are added to the arrow's own.
    void SetArrowState(unsigned nState);

    // Six digits set the colour. A shorter text is ignored, so that the person can type on; for any other
    // text a message box tells what is wrong, and the colour stays.
    void SetHexColour(const CString& text);
    // Six digits, in lower case.
    CString GetHexColour() const;

    CColour GetColour() const { return m_BackColour; }
    void SetColour(CColour colour);

    CSize Measure(CSize size) override;
    void Draw(CCanvas& canvas, const CRect& rect, bool bPressed, bool bFocused) const override;

protected:
    void OnCreate(const CControlDescription& description) override;
    void OnClick() override;

private:
    void OnColourMessage(ColourMessage message, CColour colour) override;
    void AbandonPopup();
    void Tell(ColourMessage message, CColour colour);
    void DrawCaption(CCanvas& canvas, const CRect& rect) const;

    bool m_bPopupOpen = false;
    CColour m_BackColour;
    CColour m_TextColour;
    unsigned m_ArrowState = ARROW_DOWN;
    CRect m_ArrowRect; // in the button's coordinates
    CString m_CustomText = "More Colors...";
    unsigned m_EdgeStyle = EDGE_SUNKEN;
    unsigned m_EdgeFlags = EDGE_RECT;
    CDialog& m_Parent;
    CColourPickerPopup* m_pPopup = nullptr; // while m_bPopupOpen; it deletes itself
};

} // namespace orrelix
