#include "tests/support/all_dialogs.h"

#include "controls/border_dlg.h"
#include "controls/font_dlg.h"
#include "controls/padding_dlg.h"
#include "controls/url_dlg.h"
#include "dialogs/animate_text_dlg.h"
#include "dialogs/calander_dlg.h"
#include "dialogs/cool_link_dlg.h"
#include "dialogs/dance_text_dlg.h"
#include "dialogs/fade_select_dlg.h"
#include "dialogs/scroll_text_dlg.h"
#include "dialogs/text_show_dlg.h"
#include "dialogs/today_ca_dlg.h"
#include "dialogs/tool_tip_dlg.h"
#include "resources/animate_text_description.h"
#include "resources/border_description.h"
#include "resources/calander_description.h"
#include "resources/cool_link_description.h"
#include "resources/copy_resources_description.h"
#include "resources/dance_text_description.h"
#include "resources/fade_select_description.h"
#include "resources/font_description.h"
#include "resources/padding_description.h"
#include "resources/scroll_text_description.h"
#include "resources/select_script_description.h"
#include "resources/text_show_description.h"
#include "resources/today_ca_description.h"
#include "resources/tool_tip_description.h"
#include "resources/url_description.h"

namespace orrelix {

namespace {

// The dialog of an effect.
template <class TDialog, class TEffect>
std::unique_ptr<CEditing> OfEffect() {
    struct CEffectEditing : CEditing {
        std::vector<CNamedText> Fields() override { return FieldsOf(m_Effect); }
        int Run() override {
            m_Dialog.m_pGadget = &m_Effect;
            return m_Dialog.DoModal();
        }
        CDhtmlGadget* Effect() override { return &m_Effect; }
        TEffect m_Effect;
        TDialog m_Dialog;
    };
    return std::make_unique<CEffectEditing>();
}

} // namespace

const std::vector<CTestedDialog>& AllDialogs() {
    using Font = CCalanderFontDlg;
    using Border = CBorderPropertiesDlg;
    using Padding = CPaddingDlg;
    using Image = CInsertImageDlg;
    using Style = CLinkStyleDlg;
    using FadeItem = CFadeItemDlg;
    using LinkItem = CCoolLinkItemDlg;
    static const std::vector<CTestedDialog> dialogs = {
        {"add_text",
         AddTextDescription,
         OfMembers<CAddTextDlg>({MEMBER(CAddTextDlg, m_Text), MEMBER(CAddTextDlg, m_Url)}),
         {{"...", UrlDescription}}},
        {"animate_text",
         AnimateTextDescription,
         OfEffect<CAnimateTextDlg, CAnimateText>,
         {{"Font...", FontPropertiesDescription}}},
        {"border", BorderDescription,
         OfMembers<Border>(
             {MEMBER(Border, m_BorderWidth), MEMBER(Border, m_BorderStyle), MEMBER(Border, m_BorderColor)})},
        {"browse_files", BrowseFilesDescription},
        {"calander",
         CalanderDescription,
         OfEffect<CCalanderDlg, CCalander>,
         {{"Font Properties / Greet Text...", FontPropertiesDescription},
          {"Font Properties / Title Text...", CalanderFontDescription},
          {"Font Properties / Time Text...", FontPropertiesDescription},
          {"Font Properties / Date Text...", CalanderFontDescription},
          {"Calender Border...", BorderDescription},
          {"Date Cell Border...", BorderDescription}}},
        {"calander_font", CalanderFontDescription,
         OfMembers<Font>({MEMBER(Font, m_FontFace), MEMBER(Font, m_FontSize), MEMBER(Font, m_FontStyle),
                          MEMBER(Font, m_FontWeight), MEMBER(Font, m_TextAlign)})},
        {"color", ColorDescription, OfMembers<CColorDlg>({MEMBER(CColorDlg, m_Color)})},
        {"cool_link",
         CoolLinkDescription,
         OfEffect<CCoolLinkDlg, CCoolLink>,
         {{"Selected Item...", CoolLinkStyleDescription}, {"Normal Item...", CoolLinkStyleDescription}}},
        {"cool_link_item", CoolLinkItemDescription,
         OfMembers<LinkItem>({MEMBER(LinkItem, m_ItemText), MEMBER(LinkItem, m_ImageFile),
                              MEMBER(LinkItem, m_ImageWidth), MEMBER(LinkItem, m_ImageHeight),
                              MEMBER(LinkItem, m_ImageBorder)})},
        {"copy_resources", CopyResourcesDescription},
        {"dance_text",
         DanceTextDescription,
         OfEffect<CDanceTextDlg, CDanceText>,
         {{"Add...", ColorDescription}, {"Font...", FontPropertiesDescription}, {"Url...", UrlDescription}}},
        {"fade_select",
         FadeSelectDescription,
         OfEffect<CFadeSelectDlg, CFadeSelect>,
         {{"Selected Item...", SelectedItemDescription},
          {"Drop Table...", DropTableDescription},
          {"Drop Button...", DropButtonDescription}}},
        {"fade_select_item", FadeItemDescription,
         OfMembers<FadeItem>({MEMBER(FadeItem, m_Text), MEMBER(FadeItem, m_ToolTip),
                              MEMBER(FadeItem, m_Color), MEMBER(FadeItem, m_Image),
                              MEMBER(FadeItem, m_ImageWidth), MEMBER(FadeItem, m_ImageHeight),
                              MEMBER(FadeItem, m_ImageBorder)})},
        {"font", FontPropertiesDescription,
         OfMembers<CFontPropertiesDlg>(
             {MEMBER(CFontPropertiesDlg, m_FontFace), MEMBER(CFontPropertiesDlg, m_FontSize),
              MEMBER(CFontPropertiesDlg, m_FontStyle), MEMBER(CFontPropertiesDlg, m_FontWeight)})},
        {"insert_image", InsertImageDescription,
         OfMembers<Image>({MEMBER(Image, m_FileName), MEMBER(Image, m_Width), MEMBER(Image, m_Height),
                           MEMBER(Image, m_Border), MEMBER(Image, m_WebPath)})},
        {"link_style",
         LinkStyleDescription,
         OfMembers<Style>({MEMBER(Style, m_FontFace), MEMBER(Style, m_FontSize), MEMBER(Style, m_FontStyle),
                           MEMBER(Style, m_FontWeight), MEMBER(Style, m_Decoration), MEMBER(Style, m_Color),
                           MEMBER(Style, m_Cursor)}),
         {{"Font...", FontPropertiesDescription}}},
        {"marquee_width", MarqueeWidthDescription,
         OfMembers<CMarqueeWidthDlg>({MEMBER(CMarqueeWidthDlg, m_Width)})},
        {"padding", PaddingDescription,
         OfMembers<Padding>({MEMBER(Padding, m_PaddingLeft), MEMBER(Padding, m_PaddingRight),
                             MEMBER(Padding, m_PaddingTop), MEMBER(Padding, m_PaddingBottom)})},
        {"scroll_text",
         ScrollTextDescription,
         OfEffect<CScrollTextDlg, CScrollText>,
         {{"Add new text...", AddTextDescription},
          {"Mouse Over...", LinkStyleDescription},
          {"Mouse Out...", LinkStyleDescription},
          {"Mouse Click...", LinkStyleDescription}}},
        {"select_script", SelectScriptDescription},
        {"text_show",
         TextShowDescription,
         OfEffect<CTextShowDlg, CTextShow>,
         {{"Title Font...", FontPropertiesDescription}, {"Text Font...", FontPropertiesDescription}}},
        {"today_ca",
         TodayCaDescription,
         OfEffect<CTodayCaDlg, CTodayCa>,
         {{"Click Button...", ClickButtonDescription},
          {"Current Day...", CurrentDayDescription},
          {"Year/Month...", YearMonthDescription},
          {"WeekDay Title...", TitleStyleDescription},
          {"Saturday Title...", TitleStyleDescription},
          {"Sunday Title...", TitleStyleDescription},
          {"WeekDay...", DateStyleDescription},
          {"Saturday...", DateStyleDescription},
          {"Sunday...", DateStyleDescription}}},
        {"tool_tip",
         ToolTipDescription,
         OfEffect<CToolTipDlg, CToolTip>,
         {{"image...", InsertImageDescription}, {"Font...", FontPropertiesDescription}}},
        {"url", UrlDescription, OfMembers<CUrlDlg>({MEMBER(CUrlDlg, m_Url), MEMBER(CUrlDlg, m_Type)})},
    };
    return dialogs;
}

} // namespace orrelix
