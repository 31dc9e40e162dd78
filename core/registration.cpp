#include "core/registration.h"

#include "core/orrelix.h"
#include "platform/module.h"
#include "platform/registry.h"

namespace orrelix {

namespace {

const std::string kClass = "{F298FAA1-907D-11D3-BC4E-00400533C4C1}";
const std::string kClassKey = "CLSID\\" + kClass;
const std::string kCategory = VIGNEL_CATEGORY;
constexpr char kCategoryName[] = "Brindlefen Vignels";
constexpr char kCategoryLocale[] = "409"; // 1033 in hexadecimal

} // namespace

HRESULT RegisterServer() {
    const std::string library = SystemSpelling(GetModuleFile());
    if (library.empty())
        return E_FAIL;
    const bool bStored = ChangeRegistry([&](CRegistryKeys& keys) {
        keys.DeleteKey(kClassKey); // a line of an older one must not stay
        const bool bSet = keys.SetValue(kProgID, "@", kProgID) &&
                          keys.SetValue(std::string(kProgID) + "\\CLSID", "@", kClass) &&
                          keys.SetValue(kClassKey, "@", kProgID) &&
                          keys.SetValue(kClassKey + "\\ProgID", "@", kProgID) &&
                          keys.SetValue(kClassKey + "\\InProcServer32", "@", library) &&
                          keys.SetValue("Component Categories\\" + kCategory, kCategoryLocale, kCategoryName);
        keys.CreateKey(kClassKey + "\\Implemented Categories\\" + kCategory);
        return bSet;
    });
    return bStored ? S_OK : E_FAIL;
}

HRESULT UnregisterServer() {
    const CString progId = GetRegistered(kClassKey + "\\ProgID");
    if (progId.IsEmpty())
        return REGDB_E_CLASSNOTREG;
    const bool bStored = ChangeRegistry([&](CRegistryKeys& keys) {
        const bool bClass = keys.DeleteKey(kClassKey);
        const bool bName = keys.DeleteKey(std::string(progId.View()));
        return bClass || bName;
    });
    return bStored ? S_OK : E_FAIL;
}

} // namespace orrelix
