#include "platform/screen.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace orrelix {

namespace {

std::string Setting(const char* pName) {
    const char* pValue = std::getenv(pName);
    return pValue ? pValue : "";
}

// A name that begins with a zero byte is in the system's list of sockets and not on the disk.
bool Answers(const std::string& socketName) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketName.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, socketName.data(), socketName.size());
    const int nSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (nSocket < 0)
        return false;
    const size_t nSize =
        offsetof(sockaddr_un, sun_path) + socketName.size() + (socketName[0] == '\0' ? 0 : 1);
    const int nResult =
        connect(nSocket, reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(nSize));
    close(nSocket);
    return nResult == 0;
}

// "HOST:NUMBER.SCREEN"; without a host, or with "unix", it is on this machine.
bool AnswersX11(const std::string& display) {
    const size_t nColon = display.rfind(':');
    if (nColon == std::string::npos)
        return false;
    const std::string host = display.substr(0, nColon);
    if (!host.empty() && host != "unix")
        return true; // another machine's: asking could take long
    const std::string number = display.substr(nColon + 1, display.find('.', nColon) - nColon - 1);
    const std::string socketName = "/tmp/.X11-unix/X" + number;
    return Answers('\0' + socketName) || Answers(socketName);
}

bool AnswersWayland(const std::string& display) {
    return Answers(display.front() == '/' ? display : Setting("XDG_RUNTIME_DIR") + '/' + display);
}

} // namespace

bool HasScreen() {
    const std::string wayland = Setting("WAYLAND_DISPLAY");
    return !Setting("QT_QPA_PLATFORM").empty() || AnswersX11(Setting("DISPLAY")) ||
           (!wayland.empty() && AnswersWayland(wayland));
}

} // namespace orrelix
