#include "controls/dialog_with_colours.h"

namespace orrelix {

void CDialogWithColours::AddColour(int nEdit, CString& colour, const char* pSection) {
    CColourBox& box = m_Boxes.emplace_back(*this, colour, pSection);
    Attach(PickerOf(nEdit), box.m_Picker);
    SetHandler(nEdit, Notification::Changed, [this, &box] { OnColourTyped(box); });
    SetMessageHandler(COLOUR_SELECTION_ENDED, [this](unsigned long, long) { OnColourPicked(); });
}

void CDialogWithColours::SetUpPickers() {
    for (CColourBox& box : m_Boxes) {
        box.m_Picker.SetUp(box.m_pSection);
        if (box.m_Colour.IsEmpty())
            box.m_Colour = "c0c0c0";
        box.m_Picker.SetHexColour(box.m_Colour);
    }
}

void CDialogWithColours::OnColourTyped(CColourBox& box) {
    UpdateData(true);
    box.m_Picker.SetHexColour(box.m_Colour);
}

// Every box takes its picker's colour, not only the one that was used: a box with a half-typed colour falls
// back to its last whole one.
void CDialogWithColours::OnColourPicked() {
    UpdateData(true);
    for (CColourBox& box : m_Boxes)
        box.m_Colour = box.m_Picker.GetHexColour();
    UpdateData(false);
}

} // namespace orrelix
