// The dialogs of Cool Calender.
#pragma once

#include "dialogs/gadget_dialog.h"
#include "gadgets/today_ca.h"

namespace orrelix {

// The buttons that change year and month, and the cells around them.
class CClickButtonDlg : public CGadgetDialog<CTodayCa> {
public:
    CClickButtonDlg();
};

// The box of today's date.
class CCurrentDayDlg : public CGadgetDialog<CTodayCa> {
public:
    CCurrentDayDlg();
};

// The boxes of year and month.
class CYearMonthDlg : public CGadgetDialog<CTodayCa> {
public:
    CYearMonthDlg();

protected:
    void ShowFields() override { ShowNumbersLast(); } // unlike in the others
};

// What both kinds of cells of a kind of column have.
class CColumnStyleDlg : public CGadgetDialog<CTodayCa> {
protected:
    CColumnStyleDlg(const CDialogDescription& description, CTodayCaStyle CTodayCa::*pStyle);
};

// The title cells.
class CTitleStyleDlg : public CColumnStyleDlg {
public:
    explicit CTitleStyleDlg(CTodayCaStyle CTodayCa::*pStyle);
};

// The day cells, and the boxes within them.
class CDateStyleDlg : public CColumnStyleDlg {
public:
    CDateStyleDlg(CTodayCaStyle CTodayCa::*pStyle, CString CTodayCa::*pBoxColor);
};

class CTodayCaDlg : public CGadgetDialog<CTodayCa> {
public:
    CTodayCaDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;
};

} // namespace orrelix
