// Dialogs inside of hosts: real processes, worked by a keyboard of their own.
#include "tests/support/temporary_directory.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace orrelix {

namespace {

class Hosts : public testing::Test {
protected:
    // The exit code, or -1 when the process died.
    int Run(const char* pProgram, const char* pKeys,
            const std::vector<std::pair<QString, QString>>& settings = {}, const QString& script = "\"$@\"") {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("QT_PLUGIN_PATH", ORRELIX_TEST_PLUGINS);
        environment.insert("QT_QPA_GENERIC_PLUGINS", "orrelix_test_keyboard");
        environment.insert("ORRELIX_TEST_KEYS", pKeys);
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("XDG_CONFIG_HOME", m_Directory.File("").c_str());
        for (const auto& [name, value] : settings)
            value.isNull() ? environment.remove(name) : environment.insert(name, value);
        QProcess host;
        host.setProcessEnvironment(environment);
        host.setProcessChannelMode(QProcess::ForwardedChannels);
        host.start("/bin/sh",
                   {"-ec", script, "sh", pProgram, ORRELIX_TEST_GUEST, m_Directory.File("page.cfg").c_str()});
        EXPECT_TRUE(host.waitForFinished(60000)) << host.errorString().toStdString();
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }

    CTemporaryDirectory m_Directory;
};

} // namespace

TEST_F(Hosts, AnEffectIsMadeInRealWindows) {
    for (const char* pProgram : {ORRELIX_LATE_HOST, ORRELIX_QT_HOST}) {
        EXPECT_EQ(Run(pProgram, "Down Down Return 7 0 0 Return"), 0) << pProgram;
        EXPECT_NE(FileContent(m_Directory.File("page.cfg")).find("<table width=\"700\""), std::string::npos);
        std::filesystem::remove(m_Directory.File("page.cfg"));
    }
}

TEST_F(Hosts, WhatOthersWriteWhileADialogIsOpenStays) {
    const char kScript[] = "\"$1\" new \"$3\" --effect 'Slide Text'\n"
                           "\"$1\" edit \"$3\" && exit 1 &"
                           "sleep 1; \"$1\" edit \"$3\" --set m_Speed=33; wait";
    std::string keys = "7 0 0";
    for (int nKey = 0; nKey < 100; ++nKey)
        keys += " Tab";
    EXPECT_EQ(Run(ORRELIX_PROGRAM, (keys + " Return").c_str(), {}, kScript), 0);
    EXPECT_NE(FileContent(m_Directory.File("page.cfg")).find("TextShowPara = 33,0,47,716,"),
              std::string::npos);
    EXPECT_NE(FileContent(m_Directory.File("page-2.cfg")).find("TextShowPara = 100,0,47,700,"),
              std::string::npos);
}

TEST_F(Hosts, OneGoesOnWithoutAScreenOrWithOneThatNobodyServes) {
    const QString none;
    for (const auto& [display, wayland] : {std::pair(none, none), {":9999", "nobody"}})
        EXPECT_EQ(Run(ORRELIX_LATE_HOST, "",
                      {{"QT_QPA_PLATFORM", none}, {"DISPLAY", display}, {"WAYLAND_DISPLAY", wayland}}),
                  1);
}

} // namespace orrelix
