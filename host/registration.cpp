#include "host/registration.h"

#include "host/component.h"

#include <fmt/format.h>
#include <iostream>

namespace orrelix {

namespace {

// Calls one of the two entry points of registration. The result is a code, or nothing where there is none.
vignel::Result CallEntry(const vignel::Library& library, const char* pName) {
    VignelPlainFunction function = nullptr;
    void* pEntry = VignelEntry(library.Handle(), pName);
    memcpy(&function, &pEntry, sizeof function);
    return {function ? function() : VIGNEL_E_NOTIMPL, ""};
}

std::string RegisteredLibrary(const char* pProgId) {
    char path[VIGNEL_PATH_SIZE];
    return VignelFindLibrary(pProgId, path, sizeof path) ? path : "";
}

// What a component says of itself, by the members that all of this category have.
std::string DescriptionOf(const std::string& library) {
    try {
        const vignel::Orrelix object{vignel::Library(std::filesystem::path(library))};
        const vignel::Object inspector = object.Inspector();
        std::string description;
        for (const char* pId : {"GetVignelNameID", "GetMessageTextID"})
            description += "\n  " + Printable(inspector.Call<std::string>(
                                        "GetText", object.GetResourceInstance(), object.Call<int>(pId)));
        return description;
    } catch (const std::exception& error) {
        return std::string("\n  can't be loaded: ") + Printable(error.what());
    }
}

} // namespace

void Register(const std::filesystem::path& given, CReport& report) {
    const std::filesystem::path library = given.empty() ? FindComponentBesideProgram() : given;
    if (library.empty())
        return report.WrongUsage("register", "there is no component beside the program; name its library");
    if (!CallEntry(vignel::Library(std::filesystem::absolute(library)), "DllRegisterServer"))
        return report.Error(library.string(), "couldn't be registered: the user's registry can't be written");
    std::cout << Printable(RegisteredLibrary(kProgID)) << '\n';
}

void Unregister(CReport& report) {
    const vignel::Result result = CallEntry(GetComponent(), "DllUnregisterServer");
    if (result.code == VIGNEL_E_CLASSNOTREG)
        report.Warning(kProgID, "isn't registered");
    else if (!result)
        report.Error(kProgID,
                     "couldn't be unregistered: it was registered for all users, or the user's registry "
                     "can't be written");
}

void PrintServers(CReport& report) {
    char progId[256];
    unsigned nServer = 0;
    for (; VignelFindInCategory(VIGNEL_CATEGORY, nServer, progId, sizeof progId); ++nServer) {
        const std::string library = RegisteredLibrary(progId);
        std::cout << Printable(progId) << "\n  " << Printable(library) << DescriptionOf(library) << '\n';
    }
    if (nServer == 0)
        report.Warning("servers", "none is registered; 'orrelix register' enters the one beside the program");
}

} // namespace orrelix
