// A host that knows no Qt and loads everything at run time: late_host GUEST FILE. Exits with 0 when the
// effect was made, with 1 when the person cancelled.
#include <clocale>
#include <dlfcn.h>
#include <string_view>

int main(int, char** arguments) {
    if (std::setlocale(LC_NUMERIC, nullptr) != std::string_view("C"))
        return 2;
    if (dlsym(RTLD_DEFAULT, "qVersion"))
        return 3; // Qt is here already
    void* pGuest = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
    if (!pGuest)
        return 4;
    const auto make = reinterpret_cast<bool (*)(const char*)>(dlsym(pGuest, "MakeEffect"));
    const bool bMade = make(arguments[2]);
    make(arguments[2]); // the person has no more to say than Escape
    if (std::setlocale(LC_ALL, nullptr) != std::string_view("C"))
        return 5; // the dialogs have changed the process's locale
    dlclose(pGuest);
    return bMade ? 0 : 1;
}
