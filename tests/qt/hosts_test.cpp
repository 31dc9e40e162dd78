// Dialogs inside of hosts: real processes, worked by a keyboard of their own.
#include "tests/support/temporary_directory.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

struct CHost {
    const char* m_pName;
    const char* m_pProgram;
};

class Hosts : public testing::TestWithParam<CHost> {
protected:
    // The exit code, or -1 when the process died.
    int Run(const char* pKeys, const std::vector<std::pair<QString, QString>>& settings = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("QT_PLUGIN_PATH", ORRELIX_TEST_PLUGINS);
        environment.insert("QT_QPA_GENERIC_PLUGINS", "orrelix_test_keyboard");
        environment.insert("ORRELIX_TEST_KEYS", pKeys);
        environment.insert("LC_ALL", "C.UTF-8");
        for (const auto& [name, value] : settings)
            value.isNull() ? environment.remove(name) : environment.insert(name, value);
        QProcess host;
        host.setProcessEnvironment(environment);
        host.setProcessChannelMode(QProcess::ForwardedChannels);
        host.start(GetParam().m_pProgram, {ORRELIX_TEST_GUEST, m_Directory.File("page.cfg").c_str()});
        EXPECT_TRUE(host.waitForFinished(60000)) << host.errorString().toStdString();
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }

    CTemporaryDirectory m_Directory;
};

} // namespace

TEST_P(Hosts, AnEffectIsMadeInRealWindows) {
    EXPECT_EQ(Run("Down Down Return 7 0 0 Return"), 0);
    EXPECT_NE(FileContent(m_Directory.File("page.cfg")).find("<table width=\"700\""), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, Hosts,
                         testing::Values(CHost{"Late", ORRELIX_LATE_HOST}, CHost{"Qt", ORRELIX_QT_HOST}),
                         [](const auto& host) { return host.param.m_pName; });

using LateHost = Hosts;

TEST_P(LateHost, GoesOnWithoutAScreenOrWithOneThatNobodyServes) {
    const QString none;
    EXPECT_EQ(Run("", {{"QT_QPA_PLATFORM", none}, {"DISPLAY", none}, {"WAYLAND_DISPLAY", none}}), 1);
    EXPECT_EQ(Run("", {{"QT_QPA_PLATFORM", none}, {"DISPLAY", ":9999"}, {"WAYLAND_DISPLAY", "nobody"}}), 1);
}

INSTANTIATE_TEST_SUITE_P(Late, LateHost, testing::Values(CHost{"Late", ORRELIX_LATE_HOST}));
