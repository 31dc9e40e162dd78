#include "dialogs/cool_link_dlg.h"

#include "controls/padding_dlg.h"
#include "gadgets/html_values.h"
#include "resources/cool_link_description.h"

namespace orrelix {

namespace {

constexpr char kSection[] = "COOLLINK";

using Table = CCoolLink;
using Dlg = CCoolLinkItemDlg;
using Size = CCoolLinkImage;

constexpr CItemColumn<Table, Dlg> kColumns[] = {
    {"Item Text", 90, &Dlg::m_ItemText, OfItem<&Table::m_Texts>},
    {"Item Link", 90, &Dlg::m_Link, OfItem<&Table::m_Links>},
    {"Image File", 50, &Dlg::m_ImageFile, OfItem<&Table::m_Images>, STYLE_PATH},
    {"Image Width", 30, &Dlg::m_ImageWidth, OfItem<&Table::m_ImageSizes, &Size::m_Width>},
    {"Image Height", 30, &Dlg::m_ImageHeight, OfItem<&Table::m_ImageSizes, &Size::m_Height>},
    {"Image Border", 30, &Dlg::m_ImageBorder, OfItem<&Table::m_ImageSizes, &Size::m_Border>},
};

} // namespace

CCoolLinkItemDlg::CCoolLinkItemDlg(bool bModify)
    : CFieldDialog(CoolLinkItemDescription()), m_bModify(bModify) {
    using Id = CoolLinkItemId;
    AddFields({
        {Id::Text, m_ItemText},
        {Id::ImageFile, m_ImageFile},
        {Id::ImageWidth, m_ImageWidth},
        {Id::ImageHeight, m_ImageHeight},
        {Id::ImageBorder, m_ImageBorder},
    });
    AddImageFile(Id::ChooseImage, m_ImageFile);
    AddUrl(Id::Url, m_Link, m_bModify);
}

CCoolLinkStyleDlg::CCoolLinkStyleDlg() : CFieldDialog(CoolLinkStyleDescription()) {
    using Id = CoolLinkStyleId;
    AddFields({{Id::BorderWidth, m_BorderWidth}, {Id::BorderStyle, m_BorderStyle}});
    AddColour(Id::BackColor, m_BackColor, kSection);
    AddColour(Id::BorderColor, m_BorderColor, kSection);
    AddColour(Id::TextColor, m_TextColor, kSection);
    AddFont(Id::Font,
            {.m_Face = m_FontFace, .m_Size = m_FontSize, .m_Weight = m_FontWeight, .m_Style = m_FontStyle});
    OnClick(Id::Padding, [this] {
        EditPadding({.m_Bottom = m_PaddingBottom,
                     .m_Left = m_PaddingLeft,
                     .m_Right = m_PaddingRight,
                     .m_Top = m_PaddingTop});
    });
}

CCoolLinkDlg::CCoolLinkDlg() : CItemListDialog(CoolLinkDescription(), kColumns) {
    using Id = CoolLinkId;
    AddFields({
        {Id::Margin, m_Copy.m_Margin},
        {Id::BorderWidth, m_Copy.m_SelectBorderWidth},
        {Id::BorderStyle, m_Copy.m_SelectBorderStyle},
        {Id::Top, m_Copy.m_Top},
        {Id::Left, m_Copy.m_Left},
        {Id::Width, m_Copy.m_SelectWidth},
    });
    AddColour(Id::BorderColor, m_Copy.m_SelectBorderColor, kSection);
    AddLinkTarget(Id::Target, m_Copy.m_Target);
    AddRemoteDirectory(Id::ImagePath, m_Copy.m_ImagePath);
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ScriptPath);
    OnClick(Id::SelectedItem, [this] { OnSelectedItem(); });
    OnClick(Id::NormalItem, [this] { OnNormalItem(); });
}

void CCoolLinkDlg::OnSelectedItem() {
    CCoolLinkStyleDlg dialog;
    EditThrough(dialog, {{m_Copy.m_OverBorderWidth, dialog.m_BorderWidth},
                         {m_Copy.m_OverBorderStyle, dialog.m_BorderStyle},
                         {m_Copy.m_OverBorderColor, dialog.m_BorderColor},
                         {m_Copy.m_OverBackColor, dialog.m_BackColor},
                         {m_Copy.m_OverTextColor, dialog.m_TextColor},
                         {m_Copy.m_OverFont, dialog.m_FontFace},
                         {m_Copy.m_OverFontSize, dialog.m_FontSize},
                         {m_Copy.m_OverFontStyle, dialog.m_FontStyle},
                         {m_Copy.m_OverFontWeight, dialog.m_FontWeight},
                         {m_Copy.m_OverPaddingLeft, dialog.m_PaddingLeft},
                         {m_Copy.m_OverPaddingRight, dialog.m_PaddingRight},
                         {m_Copy.m_OverPaddingBottom, dialog.m_PaddingBottom},
                         {m_Copy.m_OverPaddingTop, dialog.m_PaddingTop}});
}

void CCoolLinkDlg::OnNormalItem() {
    CCoolLinkStyleDlg dialog;
    EditThrough(dialog, {{m_Copy.m_OptionBorderWidth, dialog.m_BorderWidth},
                         {m_Copy.m_OptionBorderStyle, dialog.m_BorderStyle},
                         {m_Copy.m_OptionBorderColor, dialog.m_BorderColor},
                         {m_Copy.m_OptionBackColor, dialog.m_BackColor},
                         {m_Copy.m_OptionTextColor, dialog.m_TextColor},
                         {m_Copy.m_SelectFont, dialog.m_FontFace},
                         {m_Copy.m_SelectFontSize, dialog.m_FontSize},
                         {m_Copy.m_SelectFontStyle, dialog.m_FontStyle},
                         {m_Copy.m_SelectFontWeight, dialog.m_FontWeight},
                         {m_Copy.m_OptionPaddingLeft, dialog.m_PaddingLeft},
                         {m_Copy.m_OptionPaddingRight, dialog.m_PaddingRight},
                         {m_Copy.m_OptionPaddingBottom, dialog.m_PaddingBottom},
                         {m_Copy.m_OptionPaddingTop, dialog.m_PaddingTop}});
}

void CCoolLinkDlg::ReadCopy() {
    CItemListDialog::ReadCopy();
    CCoolLink& copy = m_Copy;
    copy.m_SelectBorder =
        WholeBorder(copy.m_SelectBorderWidth, copy.m_SelectBorderStyle, copy.m_SelectBorderColor);
    copy.m_OverBorder = WholeBorder(copy.m_OverBorderWidth, copy.m_OverBorderStyle, copy.m_OverBorderColor);
    copy.m_OptionBorder =
        WholeBorder(copy.m_OptionBorderWidth, copy.m_OptionBorderStyle, copy.m_OptionBorderColor);
}

void CCoolLinkDlg::SetItemCount(CStringArray::Index nItems) {
    m_Copy.m_Texts.SetSize(nItems);
    m_Copy.m_Links.SetSize(nItems);
    m_Copy.m_Images.SetSize(nItems);
    m_Copy.m_ImageSizes.SetSize(nItems);
}

// The new row, which is the selected one now, moves at once.
void CCoolLinkDlg::OnAdded(int, int nRows) {
    EnableMoves(MovesOf(nRows, nRows + 1));
}

} // namespace orrelix
