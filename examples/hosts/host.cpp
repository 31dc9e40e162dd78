// A host in C++: host [CONFIGURATION FILE [NEW FILE]]. It finds the component, says what it is called, reads a file,
// lists what a page needs of it and writes it anew. Where there is a screen and no file, its user makes an effect.
//
//     g++ -std=c++17 host.cpp $(pkg-config --cflags VignelOrrelix)
#include <cstdio>
#include <exception>
#include <orrelix.hpp>

namespace {

vignel::Orrelix Find() {
    char progId[256];
    if (!VignelFindInCategory(VIGNEL_CATEGORY, 0, progId, sizeof progId))
        throw std::runtime_error("no component is registered");
    std::printf("component: %s\n", progId);
    return vignel::Orrelix(vignel::Library::Of(progId));
}

void Print(const vignel::Orrelix& orrelix) {
    for (int nPosition = orrelix.GetHTMLSegmentNumber() - 1; nPosition >= 0; --nPosition)
        std::printf("segment %s: %zu bytes\n", orrelix.GetHTMLPosition(nPosition).c_str(),
                    orrelix.GetHTMLBody(nPosition, 1).size());
    for (int nIndex = 0; nIndex < orrelix.GetResourceNumber(); ++nIndex)
        std::printf("resource: %s\n", orrelix.GetResourceName(nIndex).c_str());
}

} // namespace

int main(int nArguments, char** ppArguments) {
    try {
        const vignel::Orrelix orrelix = Find();
        const vignel::Object inspector = orrelix.Inspector();
        std::printf("name: %s\n", inspector
                                      .Call<std::string>("GetText", orrelix.GetResourceInstance(),
                                                         orrelix.Call<int>("GetVignelNameID"))
                                      .c_str());
        orrelix.SetTitle("news");
        if (nArguments > 1 && !orrelix.ReadConfigFile(ppArguments[1]))
            throw std::runtime_error(std::string(ppArguments[1]) + " can't be read");
        if (nArguments == 1 && inspector.Call<bool>("CanShowDialogs") && !orrelix.Config())
            return 1; // cancelled
        std::printf("title: %s\n", orrelix.GetTitle().c_str());
        Print(orrelix);
        if (nArguments > 2 && !orrelix.WriteConfigFile(ppArguments[2]))
            throw std::runtime_error(std::string(ppArguments[2]) + " can't be written");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "host: %s\n", error.what());
        return 1;
    }
}
