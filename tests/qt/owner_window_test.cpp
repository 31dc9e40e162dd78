// On which of the host's windows a dialog opens. What another toolkit's window is, tests/packages tries on a real screen.
#include "tests/qt/qt_person.h"
#include "tests/support/everything_dialog.h"
#include "tests/support/user_settings.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace orrelix {

TEST(OwnerWindow, IsTheNamedOneAndElseTheOneInUse) {
    const CUserSettings settings;
    CQtPerson person;
    QWidget inUse, other;
    QWidget part(&other);
    for (QWidget* pShown : {&other, &inUse}) {
        pShown->show();
        pShown->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pShown));
    }
    const auto numberOf = [](const QWidget& window) { return std::to_string(window.winId()); };
    const struct {
        std::string m_Number;
        const QWidget* m_pParent;
    } cases[] = {
        {numberOf(other), &other},
        {numberOf(part), &other},
        {"", &inUse},
        {"0", &inUse},
        {"window", &inUse},
        {"-5", &inUse},
        {"4294967295", &inUse},
        {"99999999999999999999", &inUse},
    };
    for (const auto& [number, pParent] : cases) {
        SetOwnerWindow(number);
        person.In("Everything")
            .Then([pParent = pParent](CDialog&) { EXPECT_EQ(CQtPerson::Window().parentWidget(), pParent); })
            .Does("clicks Cancel");
        EXPECT_EQ(everything::CEverythingDlg().DoModal(), IDCANCEL) << number;
        inUse.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&inUse));
    }
    SetOwnerWindow("");
}

} // namespace orrelix
