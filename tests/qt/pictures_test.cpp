// Takes pictures of the windows, into the folder that ORRELIX_PICTURES names:
//
//     ORRELIX_PICTURES=/tmp/pictures build/debug/bin/qt_test --gtest_filter=Pictures.*
//
// Without it the windows are opened and worked all the same.
#include "controls/border_dlg.h"
#include "controls/font_dlg.h"
#include "controls/padding_dlg.h"
#include "controls/url_dlg.h"
#include "core/orrelix.h"
#include "dialogs/copy_resources.h"
#include "tests/qt/qt_person.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user_settings.h"

#include <QApplication>
#include <QPainter>
#include <gtest/gtest.h>
#include <map>

namespace orrelix {

namespace {

int Depth(const QWidget* pWindow) {
    return pWindow ? 1 + Depth(pWindow->parentWidget()) : 0;
}

// Takes what is on the screen, a window's own windows above it, without the desktop around them.
void TakePicture(const QString& name) {
    QApplication::processEvents(); // let the layout settle
    QRect area;
    std::multimap<int, QWidget*> windows;
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        if (pWindow->isVisible()) {
            area |= pWindow->geometry();
            windows.emplace(Depth(pWindow), pWindow);
        }
    }
    QPixmap picture(area.size() * qApp->devicePixelRatio());
    picture.setDevicePixelRatio(qApp->devicePixelRatio());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    for (const auto& [nDepth, pWindow] : windows)
        painter.drawPixmap(pWindow->pos() - area.topLeft(), pWindow->grab());
    const QString folder = qEnvironmentVariable("ORRELIX_PICTURES");
    EXPECT_TRUE(folder.isEmpty() || picture.save(folder + "/" + name + ".png", "PNG", 0))
        << name.toStdString();
}

std::function<void(CDialog&)> Take(const char* pName) {
    return [pName](CDialog&) { TakePicture(pName); };
}

} // namespace

TEST(Pictures, OfTheWindows) {
    const CUserSettings settings;
    CQtPerson person;
    const CString scripts = "DHTML Scripts", clashes = "Files with clashing names";
    person.In("Select a DHTML Scripts").SelectsRow(scripts, 1).Then(Take("select_script"));
    person.DoubleClicks(scripts, "Animate Text").In("Animate Text").SelectsRow("Messages", 2);
    person.Then(Take("animate_text")).OpensColours("Text Font Color:").Then(Take("animate_text_colours"));
    person.PressesInPopup({PopupKey::Down, PopupKey::Escape}).Clicks("Font...").In("Font Properties");
    person.DoubleClicks("Double Click to Insert into above:", 0).Picks("Font Weight:", "bold");
    person.Then(Take("font")).Clicks("Cancel").In("Animate Text").Clicks("Cancel");
    COrrelix().Config();

    person.In("Slide Text").Types("Text Title:", "Spring news").Then(Take("slide_text"));
    person.OpensColours("Text Area / Color:").PressesInPopup({PopupKey::Down, PopupKey::Right});
    person.Then(Take("colour_popup")).PressesInPopup({PopupKey::Escape}).Clicks("Cancel");
    COrrelix orrelix;
    orrelix.SelectType("2");
    orrelix.Config();

    CUrlDlg url;
    url.m_Url = "http://www.example.com/";
    CPaddingDlg padding;
    CBorderPropertiesDlg border;
    CCalanderFontDlg font;
    for (const auto& [pName, pDialog] : std::initializer_list<std::pair<const char*, CDialog*>>{
             {"url", &url}, {"padding", &padding}, {"border", &border}, {"calender_font", &font}}) {
        person.In(pDialog->GetDescription().m_pTitle).Then(Take(pName)).PressesEscape();
        pDialog->DoModal();
    }

    const CTemporaryDirectory directory;
    CString photo = directory.Write("photo.gif", "x"), logo = directory.Write("logo.gif", "x");
    person.In("Copy Resources").SelectsRow(clashes, 0).Then(Take("copy_resources")).Clicks("Browse ...");
    person.In("Browse Files").Then(Take("browse_files")).PressesEscape().In("Copy Resources");
    person.Clicks("Rename").Then(Take("rename")).CancelsRenaming(clashes).PressesEscape();
    CCopyResourcesDlg copy;
    copy.m_Destination = directory.Path() + "\\";
    copy.AddClash(photo);
    copy.AddClash(logo);
    copy.DoModal();
}

} // namespace orrelix
