#include "dialogs/text_show_dlg.h"

#include "resources/text_show_description.h"

namespace orrelix {

namespace {

using Id = TextShowId;

constexpr char kSection[] = "TextShow";
constexpr char kNoTitle[] = "&nbsp;"; // how the page shows an empty title

} // namespace

CTextShowDlg::CTextShowDlg() : CGadgetDialog(TextShowDescription()) {
    AddFields({
        {Id::TableWidth, m_Copy.m_TableWidth},
        {Id::TableHeight, m_Copy.m_TableHeight},
        {Id::TableBorder, m_Copy.m_TableBorder},
        {Id::TitleWidth, m_Copy.m_TitleWidth},
        {Id::TitleHeight, m_Copy.m_TitleHeight},
        {Id::TextWidth, m_Copy.m_TextWidth},
        {Id::TextHeight, m_Copy.m_TextHeight},
        {Id::TitleText, m_Copy.m_TitleText},
        {Id::Text, m_Copy.m_Text},
    });
    AddSlider(Id::Speed, m_Copy.m_Speed);
    AddColour(Id::TextColor, m_Copy.m_TextColor, kSection);
    AddColour(Id::TitleColor, m_Copy.m_TitleColor, kSection);
    AddFont(Id::TitleFont, {.m_Face = m_Copy.m_TitleFontFamily,
                            .m_Size = m_Copy.m_TitleFontSize,
                            .m_Weight = m_Copy.m_TitleFontWeight,
                            .m_Style = m_Copy.m_TitleFontStyle});
    AddFont(Id::TextFont, {.m_Face = m_Copy.m_TextFontFamily,
                           .m_Size = m_Copy.m_TextFontSize,
                           .m_Weight = m_Copy.m_TextFontWeight,
                           .m_Style = m_Copy.m_TextFontStyle});
}

void CTextShowDlg::ShowCopy() {
    if (m_Copy.m_TitleText == kNoTitle)
        m_Copy.m_TitleText.Empty();
    m_Copy.m_Text.Replace("<br>", "\r\n");
}

void CTextShowDlg::ReadCopy() {
    if (m_Copy.m_TitleText.IsEmpty())
        m_Copy.m_TitleText = kNoTitle;
}

} // namespace orrelix
