// The dialogs of Cool Calender.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct TodayCaId {
    enum : int {
        Align = 100,
        TitleStyle,
        BorderWidth,
        BorderStyle,
        BorderColor,
        ClickButton,
        CurrentDay,
        YearMonth,
        DayTitle,
        SatTitle,
        SunTitle,
        DayCell,
        SatCell,
        SunCell,
        ScriptPath,
    };
};
const CDialogDescription& TodayCaDescription();

// The titles of the columns that the list of title styles offers, row by row. The third is in GB 2312, as files
// and pages have it whatever code page is in force.
struct CTitleStyle {
    CChoice m_Name;
    const char* m_Titles[7]; // Monday to Sunday
};
inline constexpr CTitleStyle kTitleStyles[] = {
    {"M,T,W...", {"M", "T", "W", "T", "F", "S", "S"}},
    {"I,II,III...", {"I", "II", "III", "IV", "V", "VI", "VII"}},
    {{"\xd2\xbb,\xb6\xfe,\xc8\xfd...", "\u4e00,\u4e8c,\u4e09..."},
     {"\xd2\xbb", "\xb6\xfe", "\xc8\xfd", "\xcb\xc4", "\xce\xe5", "\xc1\xf9", "\xc8\xd5"}},
};

struct ClickButtonId {
    enum : int {
        Width = 100,
        Height,
        YearLeft,
        YearRight,
        MonthLeft,
        MonthRight,
        ButtonColor,
        TextColor,
        AreaColor,
        Font,
    };
};
const CDialogDescription& ClickButtonDescription();

struct CurrentDayId {
    enum : int { Text = 100, AreaSize, AreaColor, BoxWidth, BoxHeight, TextColor, BoxColor, Font };
};
const CDialogDescription& CurrentDayDescription();

struct YearMonthId {
    enum : int {
        AreaSize = 100,
        AreaColor,
        BoxColor,
        TextColor,
        YearWidth,
        YearHeight,
        MonthWidth,
        MonthHeight,
        Font,
    };
};
const CDialogDescription& YearMonthDescription();

// One kind of column, in the row of titles or in the rows of days; there, BoxColor is the box within the cell.
struct ColumnStyleId {
    enum : int { Width = 100, Height, CellColor, TextColor, BoxColor, Font };
};
const CDialogDescription& TitleStyleDescription();
const CDialogDescription& DateStyleDescription();

} // namespace orrelix
