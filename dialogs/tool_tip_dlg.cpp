#include "dialogs/tool_tip_dlg.h"

#include "controls/image_file.h"
#include "gadgets/html_values.h"
#include "platform/paths.h"
#include "resources/tool_tip_description.h"

namespace orrelix {

namespace {

using Id = ToolTipId;

constexpr char kSection[] = "ToolTip";

} // namespace

CToolTipDlg::CToolTipDlg() : CGadgetDialog(ToolTipDescription()) {
    AddFields({
        {Id::HtmlText, m_Copy.m_HtmlText},
        {Id::HtmlTag, m_Copy.m_HtmlTag},
        {Id::TipText, m_Copy.m_TipText},
        {Id::TipTag, m_Copy.m_TipTag},
        {Id::BorderStyle, m_Copy.m_TipBorderStyle},
        {Id::BorderWidth, m_Copy.m_TipBorderWidth},
        {Id::ShowTime, m_Copy.m_ShowTime},
        {Id::DelayTime, m_Copy.m_DelayTime},
    });
    AddColour(Id::BorderColor, m_Copy.m_TipBorderColor, kSection);
    AddColour(Id::BackColor, m_Copy.m_TipBackColor, kSection);
    AddColour(Id::TextColor, m_Copy.m_TipTextColor, kSection);
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ScriptPath);
    AddUrl(Id::Url, m_Copy.m_Link);
    AddFont(Id::Font, {.m_Face = m_Copy.m_TipFont,
                       .m_Size = m_Copy.m_TipFontSize,
                       .m_Weight = m_Copy.m_TipFontWeight,
                       .m_Style = m_Copy.m_TipFontStyle});
    ShowBeside(Id::MarqueeWidth, [this] { return m_Copy.m_MarqueeWidth; });
    ShowBeside(Id::Image, [this] { return FileNameOfPath(m_Copy.m_Image); });
    SetHandlers<CToolTipDlg>({
        {Id::HtmlTag, Notification::ListClosed, &CToolTipDlg::OnHtmlTagListClosed},
        {Id::TipTag, Notification::ListClosed, &CToolTipDlg::OnTipTagListClosed},
        {Id::MarqueeWidth, Notification::Clicked, &CToolTipDlg::OnMarqueeWidth},
        {Id::Image, Notification::Clicked, &CToolTipDlg::OnImage},
    });
}

void CToolTipDlg::ShowCopy() {
    EnableUrl();
    EnableMarqueeWidth();
}

void CToolTipDlg::ReadCopy() {
    m_Copy.m_TipBorder =
        WholeBorder(m_Copy.m_TipBorderWidth, m_Copy.m_TipBorderStyle, m_Copy.m_TipBorderColor);
    if (m_Copy.m_TipTag != "marquee")
        m_Copy.m_MarqueeWidth.Empty();
}

void CToolTipDlg::EnableUrl() const {
    Enable(Id::Url, m_Copy.m_HtmlTag == "a");
}

void CToolTipDlg::EnableMarqueeWidth() const {
    Enable(Id::MarqueeWidth, m_Copy.m_TipTag == "marquee");
}

// The buttons follow when a list closes, and not while a tag is typed.
void CToolTipDlg::OnHtmlTagListClosed() {
    UpdateData(true);
    EnableUrl();
}

void CToolTipDlg::OnTipTagListClosed() {
    UpdateData(true);
    EnableMarqueeWidth();
}

void CToolTipDlg::OnMarqueeWidth() {
    CMarqueeWidthDlg dialog;
    EditThrough(dialog, {{m_Copy.m_MarqueeWidth, dialog.m_Width}});
}

void CToolTipDlg::OnImage() {
    CInsertImageDlg dialog;
    EditThrough(dialog, {{m_Copy.m_Image, dialog.m_FileName},
                         {m_Copy.m_ImageSize.m_Width, dialog.m_Width},
                         {m_Copy.m_ImageSize.m_Height, dialog.m_Height},
                         {m_Copy.m_ImageSize.m_Border, dialog.m_Border},
                         {m_Copy.m_ImagePath, dialog.m_WebPath}});
}

CInsertImageDlg::CInsertImageDlg() : CFieldDialog(InsertImageDescription()) {
    using Id = InsertImageId;
    AddFields(
        {{Id::FileName, m_FileName}, {Id::Width, m_Width}, {Id::Height, m_Height}, {Id::Border, m_Border}});
    SetHandlers<CInsertImageDlg>({{Id::Browse, Notification::Clicked, &CInsertImageDlg::OnBrowse}});
}

void CInsertImageDlg::OnBrowse() {
    UpdateData(true);
    CWebPathFileDlg dialog(m_FileName, m_WebPath);
    if (dialog.DoModal() != IDOK)
        return;
    m_FileName = dialog.GetPathName();
    m_WebPath = dialog.GetWebPath();
    UpdateData(false);
}

CMarqueeWidthDlg::CMarqueeWidthDlg() : CFieldDialog(MarqueeWidthDescription()) {
    AddFields({{MarqueeWidthId::Width, m_Width}});
}

CWebPathFileDlg::CWebPathFileDlg(const CString& fileName, const CString& webPath)
    : CFileDialog(fileName, kImageFileFilter), m_WebPath(webPath) {
    AddEdit("Web Path:", webPath);
}

} // namespace orrelix
