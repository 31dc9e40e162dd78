// Takes pictures of the windows, into the folder that ORRELIX_PICTURES names:
//
//     ORRELIX_PICTURES=/tmp/pictures build/debug/bin/qt_test --gtest_filter=Pictures.*
//
// Without it the windows are opened and worked all the same.
#include "controls/border_dlg.h"
#include "tests/qt/qt_person.h"
#include "tests/support/all_dialogs.h"
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

std::function<void(CDialog&)> Take(const std::string& name) {
    return [name](CDialog&) { TakePicture(QString::fromStdString(name)); };
}

} // namespace

TEST(Pictures, OfEveryDialog) {
    const CUserSettings settings;
    CQtPerson person;
    for (const CTestedDialog& tested : AllDialogs()) {
        const std::string name = tested.m_pName;
        person.In(tested.m_pDescription().m_pTitle).Then(Take(name));
        for (size_t nSub = 0; nSub < tested.m_SubDialogs.size(); ++nSub) {
            const CSubDialog& sub = tested.m_SubDialogs[nSub];
            person.Does(CString("clicks ") + sub.m_pButton).In(sub.m_pDescription().m_pTitle);
            person.Then(Take(name + "_" + std::to_string(nSub))).Does("presses Escape");
            person.In(tested.m_pDescription().m_pTitle);
        }
        person.Does("presses Escape");
        tested.m_Edit ? tested.m_Edit()->Run() : CDialog(tested.m_pDescription()).DoModal();
    }
    person.In("Border Properties").Does("opens Border Color");
    person.Does({"key Down", "key Right"}).Then(Take("colours"));
    person.Does({"key Escape", "presses Escape"});
    CBorderPropertiesDlg().DoModal();
}

} // namespace orrelix
