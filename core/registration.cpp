#include "core/registration.h"

#include "core/orrelix.h"
#include "platform/module.h"
#include "platform/registry.h"

namespace orrelix {

namespace {

constexpr char kClass[] = "{F298FAA1-907D-11D3-BC4E-00400533C4C1}";
constexpr char kCategory[] = VIGNEL_CATEGORY;
constexpr char kCategoryName[] = "Brindlefen Vignels";
constexpr char kCategoryLocale[] = "409"; // 1033 in hexadecimal

std::string ClassKey() {
    return std::string("CLSID\\") + kClass;
}

} // namespace

HRESULT RegisterServer() {
    const std::string library = SystemSpelling(GetModuleFile());
    if (library.empty())
        return E_FAIL;
    const std::string classKey = ClassKey();
    const bool bStored = ChangeRegistry([&](CRegistryKeys& keys) {
        keys.DeleteKey(classKey); // a line of an older one must not stay
        const bool bSet =
            keys.SetValue(kProgID, "@", kProgID) &&
            keys.SetValue(std::string(kProgID) + "\\CLSID", "@", kClass) &&
            keys.SetValue(classKey, "@", kProgID) && keys.SetValue(classKey + "\\ProgID", "@", kProgID) &&
            keys.SetValue(classKey + "\\InProcServer32", "@", library) &&
            keys.SetValue(std::string("Component Categories\\") + kCategory, kCategoryLocale, kCategoryName);
        keys.CreateKey(classKey + "\\Implemented Categories\\" + kCategory);
        return bSet;
    });
    return bStored ? S_OK : E_FAIL;
}

HRESULT UnregisterServer() {
    const std::string classKey = ClassKey();
    const CString progId = GetRegistered(classKey + "\\ProgID");
    if (progId.IsEmpty())
        return REGDB_E_CLASSNOTREG;
    const bool bStored = ChangeRegistry([&](CRegistryKeys& keys) {
        const bool bClass = keys.DeleteKey(classKey);
        const bool bName = keys.DeleteKey(std::string(progId.View()));
        return bClass || bName;
    });
    return bStored ? S_OK : E_FAIL;
}

} // namespace orrelix
