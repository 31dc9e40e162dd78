// One adapter per kind of control. Each function makes the widget as a child of `parent` and shows nothing
// yet.
#pragma once

#include "qt/control_adapter.h"
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/edit.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"
#include "toolkit/spin_button_ctrl.h"
#include "toolkit/static.h"

namespace orrelix {

using CAdapterPtr = std::unique_ptr<CControlAdapter>;

CAdapterPtr MakeStaticAdapter(CStatic& text, const CControlDescription& description, CStage& stage,
                              QWidget& parent);
CAdapterPtr MakeEditAdapter(CEdit& edit, const CControlDescription& description, CStage& stage,
                            QWidget& parent);
// One box with arrows for the two controls.
CAdapterPtr MakeNumberAdapter(CEdit& edit, CSpinButtonCtrl& spin, CStage& stage, QWidget& parent);
// textBeside gives what stands beside the button; null where nothing does.
CAdapterPtr MakeButtonAdapter(CButton& button, const CControlDescription& description,
                              std::function<CString()> textBeside, CStage& stage, QWidget& parent);
CAdapterPtr MakeOwnerDrawnButtonAdapter(COwnerDrawnButton& button, CStage& stage, QWidget& parent);
CAdapterPtr MakeListBoxAdapter(CListBox& list, CStage& stage, QWidget& parent);
CAdapterPtr MakeListViewAdapter(CListCtrl& list, CStage& stage, QWidget& parent);
CAdapterPtr MakeComboBoxAdapter(CComboBox& combo, CStage& stage, QWidget& parent);
CAdapterPtr MakeSliderAdapter(CSliderCtrl& slider, const CControlDescription& description, CStage& stage,
                              QWidget& parent);

} // namespace orrelix
