#include "dialogs/today_ca_dlg.h"

#include "gadgets/html_values.h"
#include "resources/today_ca_description.h"
#include "toolkit/combo_box.h"

#include <iterator>

namespace orrelix {

namespace {

constexpr char kSection[] = "TodayCa";

// The last row in whose name the first title occurs, byte for byte; -1 for none.
int RowOfTitles(const CStringArray& titles) {
    int nFound = -1;
    for (int nRow = 0; nRow < static_cast<int>(std::size(kTitleStyles)); ++nRow) {
        const std::string_view name = kTitleStyles[nRow].m_Name.m_pValue;
        if (!titles.IsEmpty() && name.find(titles[0].View()) != name.npos)
            nFound = nRow;
    }
    return nFound;
}

} // namespace

CClickButtonDlg::CClickButtonDlg() : CGadgetDialog(ClickButtonDescription()) {
    using Id = ClickButtonId;
    AddFields({
        {Id::Width, m_Copy.m_ButtonWidth},
        {Id::Height, m_Copy.m_ButtonHeight},
        {Id::YearLeft, m_Copy.m_YearLeftText},
        {Id::YearRight, m_Copy.m_YearRightText},
        {Id::MonthLeft, m_Copy.m_MonthLeftText},
        {Id::MonthRight, m_Copy.m_MonthRightText},
    });
    AddColour(Id::ButtonColor, m_Copy.m_ButtonColor, kSection);
    AddColour(Id::TextColor, m_Copy.m_ButtonTextColor, kSection);
    AddColour(Id::AreaColor, m_Copy.m_ButtonAreaColor, kSection);
    AddFont(Id::Font, {.m_Face = m_Copy.m_ButtonFontFamily,
                       .m_Size = m_Copy.m_ButtonFontSize,
                       .m_Weight = m_Copy.m_ButtonFontWeight,
                       .m_Style = m_Copy.m_ButtonFontStyle});
}

CCurrentDayDlg::CCurrentDayDlg() : CGadgetDialog(CurrentDayDescription()) {
    using Id = CurrentDayId;
    AddFields({
        {Id::Text, m_Copy.m_TodayText},
        {Id::AreaSize, m_Copy.m_TodayAreaSize},
        {Id::BoxWidth, m_Copy.m_TodayBoxWidth},
        {Id::BoxHeight, m_Copy.m_TodayBoxHeight},
    });
    AddColour(Id::AreaColor, m_Copy.m_TodayAreaColor, kSection);
    AddColour(Id::TextColor, m_Copy.m_TodayTextColor, kSection);
    AddColour(Id::BoxColor, m_Copy.m_TodayBoxColor, kSection);
    AddFont(Id::Font, {.m_Face = m_Copy.m_TodayFontFamily,
                       .m_Size = m_Copy.m_TodayFontSize,
                       .m_Weight = m_Copy.m_TodayFontWeight,
                       .m_Style = m_Copy.m_TodayFontStyle});
}

CYearMonthDlg::CYearMonthDlg() : CGadgetDialog(YearMonthDescription()) {
    using Id = YearMonthId;
    AddFields({
        {Id::AreaSize, m_Copy.m_InputAreaSize},
        {Id::YearWidth, m_Copy.m_YearBoxWidth},
        {Id::YearHeight, m_Copy.m_YearBoxHeight},
        {Id::MonthWidth, m_Copy.m_MonthBoxWidth},
        {Id::MonthHeight, m_Copy.m_MonthBoxHeight},
    });
    AddColour(Id::AreaColor, m_Copy.m_InputAreaColor, kSection);
    AddColour(Id::BoxColor, m_Copy.m_InputBoxColor, kSection);
    AddColour(Id::TextColor, m_Copy.m_InputTextColor, kSection);
    AddFont(Id::Font, {.m_Face = m_Copy.m_InputFontFamily,
                       .m_Size = m_Copy.m_InputFontSize,
                       .m_Weight = m_Copy.m_InputFontWeight,
                       .m_Style = m_Copy.m_InputFontStyle});
}

CColumnStyleDlg::CColumnStyleDlg(const CDialogDescription& description, CTodayCaStyle CTodayCa::*pStyle)
    : CGadgetDialog(description) {
    using Id = ColumnStyleId;
    CTodayCaStyle& style = m_Copy.*pStyle;
    AddFields({{Id::Width, style.m_Width}, {Id::Height, style.m_Height}});
    AddColour(Id::CellColor, style.m_BoxColor, kSection);
    AddColour(Id::TextColor, style.m_TextColor, kSection);
    AddFont(Id::Font, {.m_Face = style.m_FontFamily,
                       .m_Size = style.m_FontSize,
                       .m_Weight = style.m_FontWeight,
                       .m_Style = style.m_FontStyle});
}

CTitleStyleDlg::CTitleStyleDlg(CTodayCaStyle CTodayCa::*pStyle)
    : CColumnStyleDlg(TitleStyleDescription(), pStyle) {}

CDateStyleDlg::CDateStyleDlg(CTodayCaStyle CTodayCa::*pStyle, CString CTodayCa::*pBoxColor)
    : CColumnStyleDlg(DateStyleDescription(), pStyle) {
    AddColour(ColumnStyleId::BoxColor, m_Copy.*pBoxColor, kSection);
}

CTodayCaDlg::CTodayCaDlg() : CGadgetDialog(TodayCaDescription()) {
    using Id = TodayCaId;
    using Gadget = CTodayCa;
    AddFields({
        {Id::Align, m_Copy.m_CalanderAlign},
        {Id::BorderWidth, m_Copy.m_BorderWidth},
        {Id::BorderStyle, m_Copy.m_BorderStyle},
    });
    AddColour(Id::BorderColor, m_Copy.m_BorderColor, kSection);
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ClassWebPath);
    OnClick(Id::ClickButton, [this] { EditPart(CClickButtonDlg()); });
    OnClick(Id::CurrentDay, [this] { EditPart(CCurrentDayDlg()); });
    OnClick(Id::YearMonth, [this] { EditPart(CYearMonthDlg()); });
    OnClick(Id::DayTitle, [this] { EditPart(CTitleStyleDlg(&Gadget::m_DayTitle)); });
    OnClick(Id::SatTitle, [this] { EditPart(CTitleStyleDlg(&Gadget::m_SatTitle)); });
    OnClick(Id::SunTitle, [this] { EditPart(CTitleStyleDlg(&Gadget::m_SunTitle)); });
    OnClick(Id::DayCell, [this] { EditPart(CDateStyleDlg(&Gadget::m_DayCell, &Gadget::m_WeekDayBoxColor)); });
    OnClick(Id::SatCell,
            [this] { EditPart(CDateStyleDlg(&Gadget::m_SatCell, &Gadget::m_SaturdayBoxColor)); });
    OnClick(Id::SunCell, [this] { EditPart(CDateStyleDlg(&Gadget::m_SunCell, &Gadget::m_SundayBoxColor)); });
}

void CTodayCaDlg::ShowCopy() {
    Item<CComboBox>(TodayCaId::TitleStyle).SetCurSel(RowOfTitles(m_Copy.m_Titles));
}

// Titles of none of the styles stay unless a style is picked.
void CTodayCaDlg::ReadCopy() {
    if (const int nRow = Item<CComboBox>(TodayCaId::TitleStyle).GetCurSel(); nRow >= 0) {
        m_Copy.m_Titles.RemoveAll();
        for (const char* pTitle : kTitleStyles[nRow].m_Titles)
            m_Copy.m_Titles.Add(pTitle);
    }
    m_Copy.m_Border = WholeBorder(m_Copy.m_BorderWidth, m_Copy.m_BorderStyle, m_Copy.m_BorderColor);
}

} // namespace orrelix
