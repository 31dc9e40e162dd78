// What holds for the window of every dialog, whatever stands in it.
#include "controls/colour_picker.h"
#include "platform/paths.h"
#include "tests/qt/qt_person.h"
#include "tests/support/all_dialogs.h"
#include "tests/support/user_settings.h"
#include "toolkit/combo_box.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QScrollArea>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace orrelix {

namespace {

// Any dialog as its description has it, with something in each control.
class CFilledDlg : public CDialog {
public:
    CFilledDlg(const CDialogDescription& description, const CString& text)
        : CDialog(description), m_Text(text) {
        ForEachControl(description, [&](const CControlDescription& control, const char*) {
            if (control.m_Kind == ControlKind::OwnerDrawnButton)
                Attach(control.m_nId, m_Pickers.emplace_back(*this));
        });
    }

private:
    void OnInitDialog() override {
        ForEachControl(GetDescription(), [&](const CControlDescription& control, const char*) {
            Fill(control, *FindItem(control.m_nId), m_Text + ToText(control.m_nId));
        });
    }

    void Fill(const CControlDescription& description, CControl& control, const CString& text) {
        if (description.m_Kind == ControlKind::Edit ||
            (description.m_Kind == ControlKind::Static && !*description.m_pCaption))
            control.SetWindowText(description.Has(STYLE_PATH) ? "\\home\\" + text : text);
        if (auto* pCombo = dynamic_cast<CComboBox*>(&control))
            pCombo->SetCurSel(pCombo->GetCount() - 1);
        if (auto* pSlider = dynamic_cast<CSliderCtrl*>(&control))
            pSlider->SetPos(370);
        if (auto* pList = dynamic_cast<CListBox*>(&control)) {
            pList->AddString(text);
            pList->SetCurSel(pList->AddString(text));
        }
        if (auto* pView = dynamic_cast<CListCtrl*>(&control)) {
            for (int nColumn = 0; pView->IsReport() && nColumn < 2; ++nColumn)
                pView->InsertColumn(nColumn, "Column", 40);
            pView->InsertItem(0, text);
            pView->SelectItem(pView->InsertItem(1, text));
        }
    }

    const CString m_Text;
    std::list<CColourPicker> m_Pickers;
};

class EveryWindow : public testing::TestWithParam<CTestedDialog> {
protected:
    void Open(const CString& text, const std::function<void(CDialog&)>& look) {
        const CDialogDescription& description = GetParam().m_pDescription();
        m_Person.In(description.m_pTitle).Then(look).Does("presses Escape");
        CFilledDlg(description, text).DoModal();
    }

    static std::set<const QWidget*> WidgetsByTab() {
        std::set<const QWidget*> reached;
        while (reached.insert(CQtPerson::Window().focusWidget()).second)
            QTest::keyClick(CQtPerson::Window().focusWidget(), Qt::Key_Tab);
        return reached;
    }

    static bool HasLabel(const QWidget& widget, const char* pText) {
        for (const QLabel* pLabel : CQtPerson::Window().findChildren<QLabel*>()) {
            if (pLabel->buddy() == &widget)
                return WithoutMnemonic(pLabel->text().toUtf8()) == WithoutMnemonic(pText);
        }
        return false;
    }

    // The name of a combo box is its text for those who hear it, and its label what it belongs to.
    static CString HeardName(const CTarget& target, QWidget& widget) {
        QAccessibleInterface* pHeard = QAccessible::queryAccessibleInterface(&widget);
        if (target.m_Description.m_Kind == ControlKind::ComboBox)
            pHeard = pHeard->relations(QAccessible::Label).value(0).first;
        return pHeard ? FromQt(pHeard->text(QAccessible::Name).remove(':')) : CString("nothing");
    }

    void ExpectShown(const CTarget& target) {
        CControl& control = target.m_Control;
        const CString text = control.GetWindowText();
        const bool bPath = target.m_Description.Has(STYLE_PATH);
        switch (target.m_Description.m_Kind) {
        case ControlKind::OwnerDrawnButton:
            return;
        case ControlKind::Slider:
            EXPECT_EQ(m_Person.PositionOf(target), static_cast<CSliderCtrl&>(control).GetPos());
            return;
        case ControlKind::ComboBox:
            EXPECT_EQ(m_Person.SelectedRowsOf(target),
                      std::vector{static_cast<CComboBox&>(control).GetCurSel()});
            return;
        case ControlKind::ListBox:
        case ControlKind::ListCtrl:
            EXPECT_EQ(m_Person.SelectedRowsOf(target), std::vector{1});
            return;
        default:
            EXPECT_EQ(m_Person.TextOf(target), bPath ? CString(SystemSpelling(text)) : text);
        }
    }

    const CUserSettings m_Settings;
    CQtPerson m_Person;
};

} // namespace

TEST_P(EveryWindow, HasEachControlWithANameOfItsOwnWithinReachAndShowingWhatItHolds) {
    Open("text", [this](CDialog& dialog) {
        const std::set<const QWidget*> reached = WidgetsByTab();
        std::set<QString> names;
        ForEachControl(dialog.GetDescription(), [&](const CControlDescription& control, const char*) {
            if (control.m_Kind == ControlKind::Spin)
                return; // it is in its edit box
            const CTarget target{dialog, control, *dialog.FindItem(control.m_nId)};
            QWidget& widget = m_Person.WidgetOf(target);
            SCOPED_TRACE(widget.accessibleName().toStdString());
            EXPECT_TRUE(widget.isVisible());
            const CString name = FromQt(widget.accessibleName());
            EXPECT_EQ(name.Left(AccessibleNameOf(control).GetLength()), AccessibleNameOf(control));
            EXPECT_EQ(HeardName(target, widget), name);
            EXPECT_TRUE(control.m_Kind == ControlKind::Static ||
                        names.insert(widget.accessibleName()).second);
            EXPECT_TRUE(!*control.m_pLabel || HasLabel(widget, control.m_pLabel));
            EXPECT_TRUE(control.m_Kind == ControlKind::Static || reached.count(&widget));
            ExpectShown(target);
        });
    });
}

TEST_P(EveryWindow, FitsALaptopsScreenWithoutScrollingWhateverStandsInIt) {
    for (const char* pText :
         {"text", "a long text that no box can show as a whole, however wide it may become, and of "
                  "which the most is hidden wherever it stands"}) {
        Open(pText, [](CDialog&) {
            const QDialog& window = CQtPerson::Window();
            EXPECT_FALSE(window.findChild<QScrollArea*>());
            EXPECT_TRUE(window.screen()->geometry().contains(window.geometry()));
        });
    }
}

TEST_P(EveryWindow, OpensAsLargeAsItWantsToBeWithListsSideBySideLevel) {
    Open("text", [](CDialog&) {
        const QDialog& window = CQtPerson::Window();
        EXPECT_EQ(window.size().expandedTo(window.sizeHint()), window.size());
        std::set<int> tops;
        for (const auto* pList : window.findChildren<QListView*>()) {
            if (pList->isVisible())
                tops.insert(pList->mapTo(&window, QPoint(0, 0)).y());
        }
        EXPECT_LE(tops.size(), 1u);
    });
}

INSTANTIATE_TEST_SUITE_P(All, EveryWindow, testing::ValuesIn(AllDialogs()),
                         [](const auto& dialog) { return dialog.param.m_pName; });

} // namespace orrelix
