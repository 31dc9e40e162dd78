#include "dialogs/fade_select_dlg.h"

#include "controls/padding_dlg.h"
#include "gadgets/html_values.h"
#include "resources/fade_select_description.h"

namespace orrelix {

namespace {

constexpr char kSection[] = "FadeSelect";

using Box = CFadeSelect;
using Dlg = CFadeItemDlg;
using Size = CCoolLinkImage;
using Font = CFadeSelectFont;

constexpr CItemColumn<Box, Dlg> kColumns[] = {
    {"Item Text", 90, &Dlg::m_Text, OfItem<&Box::m_Texts>},
    {"Item Link", 90, &Dlg::m_Url, OfItem<&Box::m_Links>},
    {"Item ToolTip", 90, &Dlg::m_ToolTip, OfItem<&Box::m_ToolTips>},
    {"Image File", 50, &Dlg::m_Image, OfItem<&Box::m_Images>, STYLE_PATH},
    {"Image Width", 10, &Dlg::m_ImageWidth, OfItem<&Box::m_ImageSizes, &Size::m_Width>},
    {"Image Height", 10, &Dlg::m_ImageHeight, OfItem<&Box::m_ImageSizes, &Size::m_Height>},
    {"Image Border", 10, &Dlg::m_ImageBorder, OfItem<&Box::m_ImageSizes, &Size::m_Border>},
    {"Item Font", 90, &Dlg::m_FontFace, OfItem<&Box::m_ItemFonts, &Font::m_Family>},
    {"Item Font Weight", 20, &Dlg::m_FontWeight, OfItem<&Box::m_ItemFonts, &Font::m_Weight>},
    {"Item Font Size", 20, &Dlg::m_FontSize, OfItem<&Box::m_ItemFonts, &Font::m_Size>},
    {"Item Font Style", 20, &Dlg::m_FontStyle, OfItem<&Box::m_ItemFonts, &Font::m_Style>},
    {"Item Font Color", 20, &Dlg::m_Color, OfItem<&Box::m_ItemFonts, &Font::m_Color>},
};

} // namespace

CFadeItemDlg::CFadeItemDlg(bool bModify) : CFieldDialog(FadeItemDescription()), m_Modify(bModify) {
    using Id = FadeItemId;
    AddFields({
        {Id::Text, m_Text},
        {Id::ToolTip, m_ToolTip},
        {Id::ImageFile, m_Image},
        {Id::ImageWidth, m_ImageWidth},
        {Id::ImageHeight, m_ImageHeight},
        {Id::ImageBorder, m_ImageBorder},
    });
    AddColour(Id::FontColor, m_Color, kSection);
    AddImageFile(Id::ChooseImage, m_Image);
    AddFont(Id::Font,
            {.m_Face = m_FontFace, .m_Size = m_FontSize, .m_Weight = m_FontWeight, .m_Style = m_FontStyle},
            m_Modify);
    AddUrl(Id::Url, m_Url, m_Modify);
}

CSelectedItemDlg::CSelectedItemDlg() : CGadgetDialog(SelectedItemDescription()) {
    using Id = SelectedItemId;
    AddFields({{Id::BorderWidth, m_Copy.m_OverBorderWidth}, {Id::BorderStyle, m_Copy.m_OverBorderStyle}});
    AddColour(Id::BorderColor, m_Copy.m_OverBorderColor, kSection);
    AddColour(Id::ItemColor, m_Copy.m_OverBackColor, kSection);
    AddColour(Id::TextColor, m_Copy.m_OverTextColor, kSection);
    AddLinkTarget(Id::Target, m_Copy.m_Target);
    AddFont(Id::Font, {.m_Face = m_Copy.m_OverFont,
                       .m_Size = m_Copy.m_OverFontSize,
                       .m_Weight = m_Copy.m_OverFontWeight,
                       .m_Style = m_Copy.m_OverFontStyle});
}

CDropTableDlg::CDropTableDlg() : CGadgetDialog(DropTableDescription()) {
    using Id = DropTableId;
    AddFields({{Id::BorderWidth, m_Copy.m_DropBorderWidth}, {Id::BorderStyle, m_Copy.m_DropBorderStyle}});
    AddColour(Id::BackColor, m_Copy.m_DropBackColor, kSection);
    AddColour(Id::BorderColor, m_Copy.m_DropBorderColor, kSection);
    OnClick(Id::ItemPadding, [this] {
        EditPadding({.m_Bottom = m_Copy.m_OptionPaddingBottom,
                     .m_Left = m_Copy.m_OptionPaddingLeft,
                     .m_Right = m_Copy.m_OptionPaddingRight,
                     .m_Top = m_Copy.m_OptionPaddingTop});
    });
}

CDropButtonDlg::CDropButtonDlg() : CGadgetDialog(DropButtonDescription()) {
    using Id = DropButtonId;
    AddFields({
        {Id::Width, m_Copy.m_ButtonWidth},
        {Id::Height, m_Copy.m_ButtonHeight},
        {Id::Padding, m_Copy.m_ButtonPadding},
        {Id::ArrowSize, m_Copy.m_ButtonFontSize},
        {Id::TableBorderWidth, m_Copy.m_TableBorderWidth},
        {Id::TableBorderStyle, m_Copy.m_TableBorderStyle},
        {Id::ButtonBorderWidth, m_Copy.m_ButtonBorderWidth},
        {Id::ButtonBorderStyle, m_Copy.m_ButtonBorderStyle},
    });
    AddColour(Id::TableBorderColor, m_Copy.m_TableBorderColor, kSection);
    AddColour(Id::ButtonBorderColor, m_Copy.m_ButtonBorderColor, kSection);
    AddColour(Id::ButtonColor, m_Copy.m_TableBackColor, kSection);
}

CFadeSelectDlg::CFadeSelectDlg() : CItemListDialog(FadeSelectDescription(), kColumns) {
    using Id = FadeSelectId;
    AddFields({
        {Id::BoxWidth, m_Copy.m_BoxWidth},
        {Id::BoxHeight, m_Copy.m_BoxHeight},
        {Id::BoxMargin, m_Copy.m_BoxMargin},
        {Id::BorderWidth, m_Copy.m_SelectBorderWidth},
        {Id::BorderStyle, m_Copy.m_SelectBorderStyle},
        {Id::Padding, m_Copy.m_SelectPadding},
        {Id::FadeSteps, m_Copy.m_FadeSteps},
        {Id::FadeMsec, m_Copy.m_FadeMsec},
        {Id::Top, m_Copy.m_Top},
        {Id::Left, m_Copy.m_Left},
    });
    AddColour(Id::BorderColor, m_Copy.m_SelectBorderColor, kSection);
    AddColour(Id::BoxColor, m_Copy.m_SelectBackColor, kSection);
    AddRemoteDirectory(Id::ImagePath, m_Copy.m_ImagePath);
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ScriptPath);
    OnClick(Id::SelectedItem, [this] { EditPart(CSelectedItemDlg()); });
    OnClick(Id::DropTable, [this] { EditPart(CDropTableDlg()); });
    OnClick(Id::DropButton, [this] { EditPart(CDropButtonDlg()); });
}

void CFadeSelectDlg::ReadCopy() {
    CItemListDialog::ReadCopy();
    CFadeSelect& copy = m_Copy;
    copy.m_SelectBorder =
        WholeBorder(copy.m_SelectBorderWidth, copy.m_SelectBorderStyle, copy.m_SelectBorderColor);
    copy.m_DropBorder = WholeBorder(copy.m_DropBorderWidth, copy.m_DropBorderStyle, copy.m_DropBorderColor);
    copy.m_TableBorder =
        WholeBorder(copy.m_TableBorderWidth, copy.m_TableBorderStyle, copy.m_TableBorderColor);
    copy.m_ButtonBorder =
        WholeBorder(copy.m_ButtonBorderWidth, copy.m_ButtonBorderStyle, copy.m_ButtonBorderColor);
    copy.m_OverBorder = WholeBorder(copy.m_OverBorderWidth, copy.m_OverBorderStyle, copy.m_OverBorderColor);
}

void CFadeSelectDlg::SetItemCount(CStringArray::Index nItems) {
    m_Copy.m_Texts.SetSize(nItems);
    m_Copy.m_Links.SetSize(nItems);
    m_Copy.m_ToolTips.SetSize(nItems);
    m_Copy.m_Images.SetSize(nItems);
    m_Copy.m_ImageSizes.SetSize(nItems);
    m_Copy.m_ItemFonts.SetSize(nItems);
}

// A row behind the selected last one makes room for it to move down. The new row itself moves only once it is
// clicked.
void CFadeSelectDlg::OnAdded(int nSelected, int nRows) {
    if (nSelected >= 0 && nSelected == nRows - 1)
        EnableMoves({nRows > 1, true});
    else if (nRows == 1)
        EnableMoves({false, true});
}

} // namespace orrelix
