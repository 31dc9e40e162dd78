// Takes pictures of the windows, into the folder that ORRELIX_PICTURES names:
//
//     ORRELIX_PICTURES=/tmp/pictures build/debug/bin/qt_test --gtest_filter=Pictures.*
//
// Without it the windows are opened and worked all the same.
#include "controls/border_dlg.h"
#include "controls/font_dlg.h"
#include "controls/padding_dlg.h"
#include "controls/url_dlg.h"
#include "dialogs/animate_text_dlg.h"
#include "dialogs/copy_resources.h"
#include "dialogs/select_script.h"
#include "dialogs/text_show_dlg.h"
#include "tests/qt/windows_person.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user_settings.h"

#include <QApplication>
#include <QPainter>
#include <QToolTip>
#include <gtest/gtest.h>

namespace {

int Depth(const QWidget* pWindow) {
    return pWindow ? 1 + Depth(pWindow->parentWidget()) : 0;
}

// What is on the screen, a window's own windows above it, without the desktop around them.
QPixmap GrabWindows() {
    QRect area;
    QWidgetList windows;
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        if (pWindow->isVisible()) {
            area |= pWindow->geometry();
            windows += pWindow;
        }
    }
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget* pLeft, const QWidget* pRight) {
        return Depth(pLeft) < Depth(pRight);
    });
    const qreal density = qApp->devicePixelRatio();
    QPixmap picture(area.size() * density);
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    for (QWidget* pWindow : windows)
        painter.drawPixmap(pWindow->pos() - area.topLeft(), pWindow->grab());
    return picture;
}

std::function<void(CDialog&)> Take(const char* pName) {
    return [pName](CDialog&) {
        const QString folder = qEnvironmentVariable("ORRELIX_PICTURES");
        QApplication::processEvents(); // let the layout settle
        const QPixmap picture = GrabWindows();
        EXPECT_FALSE(picture.isNull()) << pName;
        EXPECT_TRUE(folder.isEmpty() || picture.save(folder + "/" + pName + ".png", "PNG", 0)) << pName;
    };
}

class Pictures : public testing::Test {
protected:
    CUserSettings m_Settings;
    CWindowsPerson m_Person;
};

} // namespace

TEST_F(Pictures, SelectScript) {
    m_Person.In("Select a DHTML Scripts")
        .SelectsRow("DHTML Scripts", 1)
        .Then(Take("select_script"))
        .PressesEscape();
    CSelectScriptDlg().DoModal();
}

TEST_F(Pictures, AnimateText) {
    m_Person.In("Animate Text")
        .SelectsRow("Messages", 2)
        .Then(Take("animate_text"))
        .OpensColours("Text Font Color:")
        .Then(Take("animate_text_colours"))
        .PressesInPopup({PopupKey::Down, PopupKey::Escape})
        .Clicks("Font...");
    m_Person.In("Font Properties")
        .DoubleClicks("Double Click to Insert into above:", 0)
        .Picks("Font Weight:", "bold")
        .Then(Take("font"))
        .Clicks("Cancel");
    m_Person.In("Animate Text").Clicks("Cancel");
    CAnimateText gadget;
    CAnimateTextDlg dialog;
    dialog.m_pGadget = &gadget;
    dialog.DoModal();
}

TEST_F(Pictures, SlideText) {
    m_Person.In("Slide Text")
        .Types("Text Title:", "Spring news")
        .Then(Take("slide_text"))
        .OpensColours("Text Area / Color:")
        .PressesInPopup({PopupKey::Down, PopupKey::Right, PopupKey::Right})
        .Then(Take("colour_popup"))
        .PressesInPopup({PopupKey::Escape})
        .Clicks("Cancel");
    CTextShow gadget;
    CTextShowDlg dialog;
    dialog.m_pGadget = &gadget;
    dialog.DoModal();
}

TEST_F(Pictures, SmallDialogs) {
    m_Person.In("Input an URL:").Then(Take("url")).PressesEscape();
    m_Person.In("Padding Style").Then(Take("padding")).PressesEscape();
    m_Person.In("Border Properties").Then(Take("border")).PressesEscape();
    m_Person.In("Calender Font Style").Then(Take("calender_font")).PressesEscape();
    CUrlDlg url;
    url.m_Url = "http://www.example.com/";
    url.DoModal();
    CPaddingDlg().DoModal();
    CBorderPropertiesDlg().DoModal();
    CCalanderFontDlg().DoModal();
}

TEST_F(Pictures, CopyResources) {
    CTemporaryDirectory directory;
    CString photo = directory.Write("photo.gif", "x"), logo = directory.Write("logo.gif", "x");
    m_Person.In("Copy Resources")
        .SelectsRow("Files with clashing names", 0)
        .Then(Take("copy_resources"))
        .Clicks("Browse ...");
    m_Person.In("Browse Files").Then(Take("browse_files")).PressesEscape();
    m_Person.In("Copy Resources")
        .Clicks("Rename")
        .Then(Take("rename"))
        .CancelsRenaming("Files with clashing names")
        .PressesEscape();
    CCopyResourcesDlg dialog;
    dialog.m_Destination = directory.Path() + "\\";
    dialog.AddClash(photo);
    dialog.AddClash(logo);
    dialog.DoModal();
}
