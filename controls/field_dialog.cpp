#include "controls/field_dialog.h"

#include "controls/font_dlg.h"
#include "controls/image_file.h"
#include "controls/link_target.h"
#include "controls/url_dlg.h"

namespace orrelix {

void CFieldDialog::AddFields(std::initializer_list<CField> fields) {
    for (const CField& field : fields)
        m_Fields.push_back(field);
}

void CFieldDialog::AddSlider(int nSlider, CString& position) {
    m_Sliders.push_back({nSlider, position});
}

void CFieldDialog::AddLinkTarget(int nComboBox, CString& word) {
    m_LinkTargets.push_back({nComboBox, word});
}

void CFieldDialog::AddImageFile(int nButton, CString& path) {
    OnClick(nButton, [this, &path] {
        UpdateData(true);
        if (ChooseImageFile(path))
            UpdateData(false);
    });
}

void CFieldDialog::AddColour(int nEdit, CString& colour, const char* pSection) {
    CColourBox& box = m_Boxes.emplace_back(*this, colour, pSection);
    AddFields({{nEdit, colour}});
    Attach(PickerOf(nEdit), box.m_Picker);
    SetHandler(nEdit, Notification::Changed, [this, &box] { OnColourTyped(box); });
    SetMessageHandler(COLOUR_SELECTION_ENDED, [this](unsigned long, long) { OnColourPicked(); });
}

void CFieldDialog::AddFont(int nButton, const CFontFields& font, bool bHandIn) {
    OnClick(nButton, [=] { EditFont(font, bHandIn); });
    ShowBeside(nButton, [font] { return FontInWords(font); });
}

void CFieldDialog::AddFont(int nButton, const CFontFields& font, CString& align) {
    AddFont(nButton, font);
    OnClick(nButton, [font, &align] { EditCalanderFont(font, align); });
}

void CFieldDialog::AddUrl(int nButton, CString& url, bool bHandIn) {
    OnClick(nButton, [&url, bHandIn] { EditUrl(url, bHandIn); });
    ShowBeside(nButton, [&url] { return url; });
}

void CFieldDialog::ShowTextsLast() {
    SetUpSpins();
    SetUpPickers();
    UpdateData(false);
}

void CFieldDialog::ShowNumbersLast() {
    UpdateData(false);
    SetUpSpins();
    SetUpPickers();
}

void CFieldDialog::DoDataExchange(CDataExchange& exchange) {
    for (const CField& field : m_Fields)
        exchange.Text(field.m_nId, field.m_Text);
    for (const CField& slider : m_Sliders)
        exchange.Position(slider.m_nId, slider.m_Text);
    for (const CField& target : m_LinkTargets) {
        int nRow = RowOfLinkTarget(target.m_Text);
        exchange.Index(target.m_nId, nRow);
        TakeLinkTarget(nRow, target.m_Text);
    }
}

void CFieldDialog::SetUpSpins() {
    for (const CField& field : m_Fields) {
        if (FindItem(SpinOf(field.m_nId)))
            Item<CSpinButtonCtrl>(SpinOf(field.m_nId)).SetPos(ToInteger(field.m_Text));
    }
}

void CFieldDialog::SetUpPickers() {
    for (CColourBox& box : m_Boxes) {
        box.m_Picker.SetUp(box.m_pSection);
        if (box.m_Colour.IsEmpty())
            box.m_Colour = "c0c0c0";
        box.m_Picker.SetHexColour(box.m_Colour);
    }
}

void CFieldDialog::OnColourTyped(CColourBox& box) {
    UpdateData(true);
    box.m_Picker.SetHexColour(box.m_Colour);
}

// Every box takes its picker's colour, not only the one that was used: a box with a half-typed colour falls
// back to its last whole one.
void CFieldDialog::OnColourPicked() {
    UpdateData(true);
    for (CColourBox& box : m_Boxes)
        box.m_Colour = box.m_Picker.GetHexColour();
    UpdateData(false);
}

bool EditThrough(CDialog& dialog, std::initializer_list<CHandedText> texts, bool bHandIn) {
    for (const CHandedText& handed : texts) {
        if (bHandIn)
            handed.m_Field = handed.m_Text;
    }
    if (dialog.DoModal() != IDOK)
        return false;
    for (const CHandedText& handed : texts)
        handed.m_Text = handed.m_Field;
    return true;
}

} // namespace orrelix
