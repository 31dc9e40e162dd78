// The dialog of Calender.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct CalanderId {
    enum : int {
        CalanderAlign = 100,
        GreetText,
        BoxWidth,
        BoxHeight,
        BackgroundColor,
        CurrentDayColor,
        GreetColor,
        TitleColor,
        TimeColor,
        DateColor,
        GreetFont,
        TitleFont,
        TimeFont,
        DateFont,
        CalanderBorder,
        CellBorder,
        ClassWebPath,
    };
};
const CDialogDescription& CalanderDescription();

} // namespace orrelix
