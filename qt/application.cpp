#include "qt/application.h"

#include <QApplication>
#include <QDir>
#include <QThread>
#include <algorithm>
#include <clocale>
#include <string>

namespace orrelix {

namespace {

// Where no plugin fits the screen, Qt ends the process, and the host with it.
bool HasPlatformPlugin() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return true;
    QStringList wanted;
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        wanted += "*qwayland*";
    if (qEnvironmentVariableIsSet("DISPLAY"))
        wanted += "*qxcb*";
    const QStringList paths = QCoreApplication::libraryPaths();
    return !wanted.isEmpty() && std::any_of(paths.begin(), paths.end(), [&](const QString& path) {
        return !QDir(path + "/platforms").entryList(wanted, QDir::Files).isEmpty();
    });
}

void MakeApplication() {
    // Qt keeps both as long as the application lives.
    static char name[] = "orrelix";
    static char* arguments[] = {name, nullptr};
    static int nArguments = 1;
    // Qt sets the C library's locale to the person's, in which numbers may have commas. That is not ours to
    // change in a host's process.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    // Never deleted: nobody knows which dialog is the last one, and at the end of the process the order in
    // which libraries clean up is not ours.
    static QApplication* const pApplication = new QApplication(nArguments, arguments);
    pApplication->setQuitOnLastWindowClosed(false);
    std::setlocale(LC_ALL, locale.c_str());
}

} // namespace

bool EnsureApplication() {
    if (!QCoreApplication::instance() && HasPlatformPlugin())
        MakeApplication();
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QCoreApplication::instance()->thread() == QThread::currentThread();
}

} // namespace orrelix
