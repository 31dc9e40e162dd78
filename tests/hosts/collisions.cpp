// A host whose own names are those of the component's insides, or macros. It links the library or, as ORRELIX_LOADED, loads
// it; a file has to be read and written right in both.
#include <string>
#include <string_view>

#define IDOK return 3
#define FIELD(name) #name "'s"

std::string_view Trim(std::string_view text) {
    return text.substr(0, 1);
}

struct CDialog {
    virtual ~CDialog() = default;
    virtual int DoModal() { return -1; }
    int m_nOwn = 1;
};

struct CFileDialog : CDialog {
    int DoModal() override { return m_nOwn - 2; }
};

class CString {
public:
    explicit CString(const char*) : m_nLength(-1) {}
    int GetLength() const { return m_nLength; }

private:
    int m_nLength;
};

#include "include/orrelix.hpp"

#include <fstream>
#include <iostream>

#ifndef ORRELIX_LOADED
extern "C" VignelResult DllGetClassObject(VignelGuidRef clsid, VignelGuidRef iid, void** ppFactory);
#endif

namespace {

vignel::Object Create() {
#ifdef ORRELIX_LOADED
    return vignel::Library(ORRELIX_LIBRARY).Create(VignelClsidOrrelix);
#else
    void *pFactory = nullptr, *pObject = nullptr;
    DllGetClassObject(VignelClsidOrrelix, VignelIidClassFactory, &pFactory);
    static_cast<VignelClassFactory*>(pFactory)->CreateInstance(nullptr, VignelIidDispatch, &pObject);
    static_cast<VignelClassFactory*>(pFactory)->Release();
    return vignel::Object(static_cast<VignelDispatch*>(pObject));
#endif
}

} // namespace

// Reads the first file, writes it as the second, and reads that: both have to give the same pages.
int main(int, char** pArguments) {
    const vignel::Object object = Create();
    std::string texts[2];
    for (int nFile = 0; nFile < 2; ++nFile) {
        if (!object.Call<bool>("ReadConfigFile", std::filesystem::path(pArguments[1 + nFile])))
            return 1;
        texts[nFile] = object.Get<std::string>("Title");
        for (int nPosition = 0; nPosition < object.Call<int>("GetHTMLSegmentNumber"); ++nPosition)
            texts[nFile] += object.Call<std::string>("GetHTMLBody", nPosition, 1);
        if (nFile == 0 && !object.Call<bool>("WriteConfigFileEx", std::filesystem::path(pArguments[2]), 1))
            return 1;
    }
    // Its own are what they were.
    CFileDialog fileDialog;
    CDialog& dialog = fileDialog;
    const bool bOwn = Trim(" own ") == " " && dialog.DoModal() == -1 && CString("text").GetLength() == -1 &&
                      FIELD(own) == std::string("own's");
    std::cout << texts[0];
    return bOwn && texts[0] == texts[1] && texts[0].find("Georgia") != std::string::npos ? 0 : 2;
}
