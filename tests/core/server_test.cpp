// The component as hosts in other languages meet it.
#include "core/inspector.h"
#include "core/orrelix_members.h"
#include "core/registration.h"
#include "core/server.h"
#include "platform/code_page.h"
#include "platform/module.h"
#include "platform/wide_text.h"
#include "tests/support/code_page_in_force.h"
#include "tests/support/late_caller.h"
#include "tests/support/session.h"
#include "tests/support/user_settings.h"

#include <algorithm>
#include <fstream>

namespace orrelix {

namespace {

const std::filesystem::path kCalls = std::filesystem::path(ORRELIX_SOURCE_DIR) / "tests/core/calls";

IClassFactory* GetFactory() {
    void* pFactory = nullptr;
    EXPECT_EQ(GetClassObject(VignelClsidOrrelix, IID_IClassFactory, &pFactory), S_OK);
    return static_cast<IClassFactory*>(pFactory);
}

IDispatch* CreateObject() {
    IClassFactory* pFactory = GetFactory();
    void* pObject = nullptr;
    EXPECT_EQ(pFactory->CreateInstance(nullptr, IID_IDispatch, &pObject), S_OK);
    pFactory->Release();
    return static_cast<IDispatch*>(pObject);
}

class Calls : public testing::TestWithParam<const char*> {
protected:
    Calls() { std::filesystem::current_path(m_Folder.File("")); }
    ~Calls() override {
        m_pObject->Release();
        SetRawTexts(false);
        std::filesystem::current_path(m_OldFolder);
    }

    const std::filesystem::path m_OldFolder = std::filesystem::current_path();
    const CTemporaryDirectory m_Folder;
    const CCodePageInForce m_CodePage{kUtf8CodePage};
    IDispatch* m_pObject = CreateObject();
};

} // namespace

TEST_P(Calls, HaveTheseAnswers) {
    const CLateCaller caller(*m_pObject);
    EXPECT_TRUE(GoesAsItStands(kCalls / (std::string(GetParam()) + ".txt"),
                               [&](const std::string& question) { return caller.Answer(question); }));
}

INSTANTIATE_TEST_SUITE_P(All, Calls,
                         testing::Values("members", "conversions", "wrong_calls", "texts", "fields"),
                         [](const auto& calls) { return calls.param; });

TEST(Server, IsThereAsLongAsAnybodyNeedsIt) {
    EXPECT_TRUE(CanUnload());
    IClassFactory* pFactory = GetFactory();
    EXPECT_FALSE(CanUnload());
    pFactory->LockServer(true);
    pFactory->Release();
    EXPECT_FALSE(CanUnload());
    pFactory->LockServer(false);
    EXPECT_TRUE(CanUnload());
    IDispatch* pObject = CreateObject();
    EXPECT_FALSE(CanUnload());
    EXPECT_EQ(pObject->Release(), 0u);
    EXPECT_TRUE(CanUnload());
}

TEST(Server, GivesEachInterfaceOfOneObject) {
    IDispatch* pObject = CreateObject();
    void *pUnknown = nullptr, *pSame = nullptr, *pInspector = nullptr, *pNone = pObject;
    EXPECT_EQ(pObject->QueryInterface(VignelIidOrrelix, &pSame), S_OK);
    EXPECT_EQ(pSame, pObject);
    EXPECT_EQ(pObject->QueryInterface(VignelIidInspector, &pInspector), S_OK);
    EXPECT_EQ(static_cast<IDispatch*>(pInspector)->QueryInterface(IID_IUnknown, &pUnknown), S_OK);
    EXPECT_EQ(pObject->QueryInterface(IID_IUnknown, &pSame), S_OK);
    EXPECT_EQ(pSame, pUnknown) << "the object's identity";
    EXPECT_EQ(pObject->QueryInterface(IID_IClassFactory, &pNone), E_NOINTERFACE);
    EXPECT_EQ(pNone, nullptr);
    EXPECT_EQ(pObject->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    for (int nLeft = 4; nLeft >= 0; --nLeft)
        EXPECT_EQ(pObject->Release(), static_cast<ULONG>(nLeft));
}

TEST(Server, RefusesWhatItIsNot) {
    IClassFactory* pFactory = GetFactory();
    void* pObject = pFactory;
    EXPECT_EQ(GetClassObject(IID_IDispatch, IID_IClassFactory, &pObject), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(pObject, nullptr);
    EXPECT_EQ(GetClassObject(VignelClsidOrrelix, IID_IDispatch, &pObject), E_NOINTERFACE);
    EXPECT_EQ(GetClassObject(VignelClsidOrrelix, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(pFactory->CreateInstance(pFactory, IID_IUnknown, &pObject), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(pFactory->CreateInstance(nullptr, IID_IClassFactory, &pObject), E_NOINTERFACE);
    EXPECT_EQ(pFactory->CreateInstance(nullptr, IID_IDispatch, nullptr), E_POINTER);
    pFactory->Release();
    EXPECT_TRUE(CanUnload());
}

TEST(Server, IsFoundByNameAndCategoryUntilItIsUnregistered) {
    const CUserSettings user;
    setenv("XDG_CONFIG_DIRS", user.Root().c_str(), 1); // nothing but the user's
    const auto file = user.Root() / "vignel/registry.ini";
    char text[VIGNEL_PATH_SIZE];
    EXPECT_EQ(UnregisterServer(), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(VignelFindLibrary("VignelServer.Orrelix", text, sizeof text), 0);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "; mine\n[Other.Server]\n@=kept\n[VignelServer.Orrelix\\clsid]\n@=old\n";
    EXPECT_EQ(RegisterServer(), S_OK);
    EXPECT_EQ(RegisterServer(), S_OK) << "again";
    CString registered = FileContent(file);
    registered.Replace(SystemSpelling(GetModuleFile()), "(the library)");
    EXPECT_TRUE(EqualsExpected(kCalls / "registry.ini", registered));
    EXPECT_TRUE(VignelFindLibrary("VIGNELSERVER.orrelix", text, sizeof text));
    EXPECT_EQ(std::filesystem::path(text), std::filesystem::read_symlink("/proc/self/exe"));
    EXPECT_TRUE(VignelFindInCategory(VIGNEL_CATEGORY, 0, text, sizeof text));
    EXPECT_STREQ(text, "VignelServer.Orrelix");
    EXPECT_EQ(UnregisterServer(), S_OK);
    EXPECT_EQ(FileContent(file), "; mine\n\n[Other.Server]\n@=kept\n\n[Component Categories\\" VIGNEL_CATEGORY
                                 "]\n409=Brindlefen Vignels\n");
    EXPECT_EQ(VignelFindInCategory(VIGNEL_CATEGORY, 0, text, sizeof text), 0);
    unsetenv("XDG_CONFIG_DIRS");
}

TEST(Server, IsToldToHostsMemberByMember) {
    std::string reference = FileContent(std::filesystem::path(ORRELIX_SOURCE_DIR) / "docs/hosting.md");
    for (const auto& members : {GetOrrelixMembers(), GetInspectorMembers()}) {
        for (size_t nMember = 0; nMember < members.size(); ++nMember) {
            const CMember& member = members[nMember];
            const std::string row = "\n| " + std::to_string(nMember + 1) + " | `" + member.m_pName;
            const size_t nRow = reference.find(row);
            ASSERT_NE(nRow, std::string::npos) << row;
            reference.erase(0, nRow + row.size());
            const std::string call = reference.substr(0, reference.find('`'));
            const auto nCommas = std::count(call.begin(), call.end(), ',');
            EXPECT_EQ(call.empty(), member.m_pPut != nullptr) << row;
            EXPECT_EQ(call.size() > 2 ? nCommas + 1 : 0, member.m_nArguments) << row << call;
        }
    }
}

} // namespace orrelix
