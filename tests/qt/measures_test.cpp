// How long a person waits. Printed, for whoever builds optimised on a quiet machine:
//
//     build/release/bin/qt_test --gtest_filter=Measures.*
#include "dialogs/animate_text_dlg.h"
#include "tests/qt/windows_person.h"
#include "tests/support/user_settings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTest>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

double Milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Print(const char* pWhat, double value) {
    std::printf("%-50s %8.2f ms\n", pWhat, value);
}

} // namespace

TEST(Measures, OpeningADialogAndTypingBesideManyRows) {
    CUserSettings settings;
    CWindowsPerson person;
    CAnimateText gadget;
    for (int nRow = 0; nRow < 5000; ++nRow)
        gadget.m_Messages.Add("message " + ToText(nRow));
    QElapsedTimer timer;
    auto open = [&](const char* pWhat, const std::function<void()>& work) {
        CAnimateTextDlg dialog;
        dialog.m_pGadget = &gadget;
        person.In("Animate Text")
            .Then([&](CDialog&) {
                QApplication::processEvents();
                CWindowsPerson::Window().repaint();
                Print(pWhat, Milliseconds(timer));
                work();
            })
            .Clicks("Cancel");
        timer.start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    };
    open("the first dialog, up to its picture", [] {});
    open("a later one, 5,000 rows in its list", [&] {
        auto& area = *CWindowsPerson::Window().findChild<QPlainTextEdit*>();
        double slowest = 0;
        for (int nKey = 0; nKey < 200; ++nKey) {
            timer.start();
            QTest::keyClicks(&area, nKey % 40 == 39 ? "\r" : "x");
            QApplication::processEvents();
            slowest = std::max(slowest, Milliseconds(timer));
        }
        Print("the slowest of 200 keys beside them", slowest);
    });
    person.In("Animate Text").Types("Message", "new").Then([&](CDialog&) { timer.start(); }).Clicks("Add");
    person.Then([&](CDialog&) { Print("a row more", Milliseconds(timer)); }).Clicks("Cancel");
    CAnimateTextDlg dialog;
    dialog.m_pGadget = &gadget;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}
