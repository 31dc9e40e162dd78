// How the windows behave beyond what every desktop promises: keys, mouse, focus, what a screen reader hears.
#include "controls/border_dlg.h"
#include "dialogs/select_script.h"
#include "qt/moving_picture.h"
#include "resources/border_description.h"
#include "tests/qt/qt_person.h"
#include "tests/support/everything_dialog.h"
#include "tests/support/user_settings.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QTreeView>
#include <gtest/gtest.h>
#include <thread>

namespace orrelix {

using everything::CEverythingDlg;
using everything::Id;

namespace {

template <class TWidget>
TWidget& Shown(const CDialog& dialog, int nId) {
    return dynamic_cast<TWidget&>(*CQtPerson::Window().WidgetOf(*dialog.FindItem(nId)));
}

QWidget& Focused() {
    return *CQtPerson::Window().focusWidget();
}

class Windows : public testing::Test {
protected:
    // Runs the dialog, does this in its window and cancels it.
    void Work(const std::function<void(CDialog&)>& act) {
        m_Person.In("Everything").Then(act).Does("clicks Cancel");
        EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    }

    const CUserSettings m_Settings;
    CQtPerson m_Person;
    CEverythingDlg m_Dialog;
};

} // namespace

TEST_F(Windows, AWheelThatPassesOverABoxChangesNothing) {
    Work([](CDialog& dialog) {
        for (int nId : {+Id::Number, +Id::Kind, +Id::Level}) {
            auto& box = Shown<QWidget>(dialog, nId);
            QWheelEvent turn({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&box, &turn);
        }
        EXPECT_EQ(dialog.Item<CSliderCtrl>(Id::Level).GetPos(), 300);
    });
    EXPECT_EQ(m_Dialog.m_Log, "");
}

TEST_F(Windows, WhatAnAssistiveToolDoesIsThePersons) {
    m_Person.In("Everything").Then([](CDialog& dialog) {
        const auto heard = [&](int nId) {
            return QAccessible::queryAccessibleInterface(CQtPerson::Window().WidgetOf(*dialog.FindItem(nId)));
        };
        heard(Id::Level)->valueInterface()->setCurrentValue(700);
        EXPECT_EQ(dialog.Item<CSliderCtrl>(Id::Level).GetPos(), 700);
        for (int nId : {+Id::Text, +Id::Lines})
            heard(nId)->editableTextInterface()->insertText(0, "said ");
        auto& kind = Shown<QComboBox>(dialog, Id::Kind);
        QAccessible::queryAccessibleInterface(kind.lineEdit())->setText(QAccessible::Value, "spoken");
    });
    m_Person.Does("clicks OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Text, "said old");
    EXPECT_EQ(m_Dialog.m_Lines, "said first\r\nsecond");
    EXPECT_EQ(m_Dialog.m_Kind, "spoken");
}

TEST_F(Windows, TheArrowsOfANumberAreInItsBoxAndTheOtherMouseButtonSelectsARow) {
    Work([](CDialog& dialog) {
        auto& box = Shown<QAbstractSpinBox>(dialog, Id::Number);
        QTest::mouseClick(&box, Qt::LeftButton, {}, {box.width() - 6, box.height() / 4});
        EXPECT_EQ(box.text(), "13");
        QTest::mouseClick(&box, Qt::LeftButton, {}, {box.width() - 6, box.height() * 3 / 4});
        EXPECT_EQ(box.text(), "12");
        auto& view = Shown<QTreeView>(dialog, Id::View);
        const QPoint place = view.visualRect(view.model()->index(1, 1)).center();
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, place);
        EXPECT_TRUE(dialog.Item<CListCtrl>(Id::View).IsSelected(1));
    });
}

TEST_F(Windows, AWindowComesUpAsItWasLeft) {
    const QRect place(70, 60, 720, 690);
    Work([&](CDialog&) { CQtPerson::Window().setGeometry(place); });
    Work([&](CDialog&) { EXPECT_EQ(CQtPerson::Window().geometry(), place); });
    EXPECT_TRUE(exists(m_Settings.Folder() / "windows.ini"));
}

TEST_F(Windows, WhereTheScreenIsTooSmallTheClosingButtonsStayInSight) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2.5);
    QApplication::setFont(large);
    Work([](CDialog& dialog) {
        const auto* pArea = CQtPerson::Window().findChild<QScrollArea*>();
        ASSERT_TRUE(pArea);
        EXPECT_FALSE(pArea->horizontalScrollBar()->isVisible());
        EXPECT_FALSE(pArea->isAncestorOf(&Shown<QWidget>(dialog, IDOK)));
        Shown<QWidget>(dialog, Id::More).setFocus(Qt::TabFocusReason);
        EXPECT_FALSE(Focused().visibleRegion().isEmpty());
    });
    QApplication::setFont(usual);
}

TEST_F(Windows, APopupThatIsLeftOrThatItsDialogLeavesIsClosed) {
    m_Person.In("Everything")
        .Does("opens Colour")
        .Then([](CDialog&) { QApplication::activePopupWidget()->hide(); })
        .Does("opens Colour")
        .Then([](CDialog&) {
            QWidget* pPopup = QApplication::activePopupWidget();
            QTest::mouseClick(pPopup, Qt::RightButton, {}, {200, 5});
            EXPECT_TRUE(pPopup->isVisible());
            QTest::mouseClick(pPopup, Qt::LeftButton, {}, {200, 5});
        })
        .Does("opens Colour")
        .Then([](CDialog&) { CQtPerson::Window().done(0); });
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_Dialog.m_Log, "opened, closed, opened, closed, opened, closed");
}

TEST_F(Windows, TheProgramsRowsComeUpAndGoWithoutAFreshList) {
    m_Dialog.m_nRows = 5000;
    Work([](CDialog& dialog) {
        auto& view = Shown<QAbstractItemView>(dialog, Id::View);
        QSignalSpy resets(view.model(), &QAbstractItemModel::modelReset);
        for (int nRow = 0; nRow < 100; ++nRow)
            dialog.Item<CListCtrl>(Id::View).DeleteItem(4000);
        dialog.Item<CListCtrl>(Id::View).InsertItem(7, "new");
        EXPECT_EQ(view.model()->rowCount(), 4901);
        EXPECT_EQ(view.model()->index(7, 0).data().toString(), "new");
        EXPECT_EQ(view.model()->index(4100, 0).data().toString(), "item 4199");
        EXPECT_EQ(resets.count(), 0);
    });
}

TEST_F(Windows, WhatAHandlerThrowsComesOutOfDoModal) {
    m_Person.In("Everything").Does({"types Kind = again", "clicks More..."});
    m_Person.Does({"types Kind = throw", "clicks More..."});
    EXPECT_THROW(m_Dialog.DoModal(), std::bad_alloc);
    EXPECT_EQ(m_Dialog.m_Log, "") << "the inner dialog came back";
}

TEST_F(Windows, ADialogWhoseHostGoesAwayIsCancelled) {
    auto* pHostWindow = new QWidget;
    pHostWindow->show();
    pHostWindow->activateWindow();
    QApplication::processEvents();
    m_Person.In("Everything").Then([&](CDialog&) {
        ASSERT_EQ(CQtPerson::Window().parentWidget(), pHostWindow);
        delete pHostWindow;
    });
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
}

TEST_F(Windows, TheHostsOwnWindowsAreKeptFromThePersonMeanwhile) {
    QPushButton hostButton("host");
    int nClicks = 0;
    QObject::connect(&hostButton, &QPushButton::clicked, [&] { ++nClicks; });
    hostButton.show();
    QTest::mouseClick(hostButton.windowHandle(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(nClicks, 1);
    Work([&](CDialog&) { QTest::mouseClick(hostButton.windowHandle(), Qt::LeftButton, {}, {5, 5}); });
    EXPECT_EQ(nClicks, 1);
}

TEST_F(Windows, OffTheirThreadDialogsAreCancelled) {
    CQtDesktop windows;
    SetDesktop(&windows);
    int nResult = IDOK, nAnswer = IDOK;
    std::thread([&] {
        nResult = m_Dialog.DoModal();
        nAnswer = AfxMessageBox("?", MessageBoxKind::OkCancel);
    }).join();
    EXPECT_EQ(nResult, IDCANCEL);
    EXPECT_EQ(nAnswer, IDCANCEL);
}

TEST(Picture, MovesForAWhileAndNotAtAllForWhoWantsNoMotion) {
    class CCalmStyle : public QProxyStyle {
        int styleHint(StyleHint hint, const QStyleOption* pOption, const QWidget* pWidget,
                      QStyleHintReturn* pReturn) const override {
            return hint == SH_Widget_Animation_Duration
                       ? 0
                       : QProxyStyle::styleHint(hint, pOption, pWidget, pReturn);
        }
    };
    const CUserSettings settings;
    CQtPerson person;
    for (const bool bCalm : {false, true}) {
        const QString usual = QApplication::style()->name();
        if (bCalm)
            QApplication::setStyle(new CCalmStyle);
        person.In("Select a DHTML Scripts").Then([&](CDialog&) {
            auto& picture = *CQtPerson::Window().findChild<CMovingPicture*>();
            EXPECT_TRUE(picture.pixmap().isNull());
            auto& list = *CQtPerson::Window().findChild<QAbstractItemView*>();
            for (int nRow = 0; nRow < list.model()->rowCount(); ++nRow) {
                ClickRow(list, nRow);
                EXPECT_EQ(picture.pixmap().deviceIndependentSize(), QSizeF(240, 150)) << nRow;
                EXPECT_EQ(picture.IsMoving(), !bCalm);
            }
        });
        person.Does("presses Escape");
        CSelectScriptDlg().DoModal();
        QApplication::setStyle(usual);
    }
}

TEST(ColourButton, ShowsItsColourAndOpensItsPopupBelowItselfOnTheScreen) {
    CUserSettings settings;
    CQtPerson person;
    CBorderPropertiesDlg dialog;
    dialog.m_BorderColor = "ff0000";
    auto open = [](CDialog& shown, QPoint place) {
        CQtPerson::Window().move(place);
        QApplication::processEvents();
        QWidget& button = Shown<QWidget>(shown, PickerOf(BorderId::Color));
        QTest::mouseClick(&button, Qt::LeftButton);
        const QRect popup = QApplication::activePopupWidget()->geometry();
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        return std::pair(QRect(button.mapToGlobal(QPoint(0, 0)), button.size()), popup);
    };
    person.In("Border Properties")
        .Then([&](CDialog& shown) {
            QWidget& button = Shown<QWidget>(shown, PickerOf(BorderId::Color));
            EXPECT_EQ(button.grab().toImage().pixelColor(button.rect().center()), QColor(255, 0, 0));
            const auto [below, popup] = open(shown, {50, 50});
            EXPECT_EQ(popup.topLeft(), below.bottomLeft() + QPoint(0, 1));
            const QRect screen = CQtPerson::Window().screen()->geometry();
            const auto [corner, moved] = open(shown, screen.bottomRight() - QPoint(200, 100));
            EXPECT_TRUE(screen.contains(moved));
            EXPECT_FALSE(moved.intersects(corner));
        })
        .Does("opens Border Color")
        .Then([](CDialog&) {
            QWidget* pPopup = QApplication::activePopupWidget();
            QTest::keyClick(pPopup, Qt::Key_Right);
            QTest::keyClick(pPopup, Qt::Key_Right);
            QAccessibleInterface* pHeard = QAccessible::queryAccessibleInterface(pPopup);
            ASSERT_TRUE(pHeard->focusChild());
            EXPECT_EQ(pHeard->focusChild()->text(QAccessible::Name), "Light orange");
            QHelpEvent help(QEvent::ToolTip, {25, 10}, pPopup->mapToGlobal(QPoint(25, 10)));
            QApplication::sendEvent(pPopup, &help);
            EXPECT_EQ(QToolTip::text(), "White");
        })
        .Does({"key Escape", "clicks Cancel"});
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

} // namespace orrelix
