#include "dialogs/calander_dlg.h"

#include "controls/border_dlg.h"
#include "gadgets/html_values.h"
#include "resources/calander_description.h"

namespace orrelix {

namespace {

using Id = CalanderId;

constexpr char kTextColours[] = "CALFont";

} // namespace

CCalanderDlg::CCalanderDlg() : CGadgetDialog(CalanderDescription()) {
    AddFields({
        {Id::CalanderAlign, m_Copy.m_CalanderAlign},
        {Id::GreetText, m_Copy.m_GreetText},
        {Id::BoxWidth, m_Copy.m_BoxWidth},
        {Id::BoxHeight, m_Copy.m_BoxHeight},
    });
    AddColour(Id::BackgroundColor, m_Copy.m_BackgroundColor, "CALBK");
    AddColour(Id::CurrentDayColor, m_Copy.m_CurrentDayColor, kTextColours);
    AddColour(Id::GreetColor, m_Copy.m_GreetColor, kTextColours);
    AddColour(Id::TitleColor, m_Copy.m_TitleColor, kTextColours);
    AddColour(Id::TimeColor, m_Copy.m_TimeColor, kTextColours);
    AddColour(Id::DateColor, m_Copy.m_DateColor, kTextColours);
    AddRemoteDirectory(Id::ClassWebPath, m_Copy.m_ClassWebPath);
    AddFont(Id::GreetFont, {.m_Face = m_Copy.m_GreetFontFamily,
                            .m_Size = m_Copy.m_GreetFontSize,
                            .m_Weight = m_Copy.m_GreetFontWeight,
                            .m_Style = m_Copy.m_GreetFontStyle});
    AddFont(Id::TimeFont, {.m_Face = m_Copy.m_TimeFontFamily,
                           .m_Size = m_Copy.m_TimeFontSize,
                           .m_Weight = m_Copy.m_TimeFontWeight,
                           .m_Style = m_Copy.m_TimeFontStyle});
    AddFont(Id::TitleFont,
            {.m_Face = m_Copy.m_TitleFontFamily,
             .m_Size = m_Copy.m_TitleFontSize,
             .m_Weight = m_Copy.m_TitleFontWeight,
             .m_Style = m_Copy.m_TitleFontStyle},
            m_Copy.m_TitleAlign);
    AddFont(Id::DateFont,
            {.m_Face = m_Copy.m_DateFontFamily,
             .m_Size = m_Copy.m_DateFontSize,
             .m_Weight = m_Copy.m_DateFontWeight,
             .m_Style = m_Copy.m_DateFontStyle},
            m_Copy.m_DateAlign);
    OnClick(Id::CalanderBorder, [this] {
        EditBorder({.m_Width = m_Copy.m_CalanderBorderWidth,
                    .m_Style = m_Copy.m_CalanderBorderStyle,
                    .m_Color = m_Copy.m_CalanderBorderColor});
    });
    OnClick(Id::CellBorder, [this] {
        EditBorder({.m_Width = m_Copy.m_CellBorderWidth,
                    .m_Style = m_Copy.m_CellBorderStyle,
                    .m_Color = m_Copy.m_CellBorderColor});
    });
}

void CCalanderDlg::ReadCopy() {
    m_Copy.m_CellBorder =
        WholeBorder(m_Copy.m_CellBorderWidth, m_Copy.m_CellBorderStyle, m_Copy.m_CellBorderColor);
    m_Copy.m_CalanderBorder =
        WholeBorder(m_Copy.m_CalanderBorderWidth, m_Copy.m_CalanderBorderStyle, m_Copy.m_CalanderBorderColor);
}

} // namespace orrelix
