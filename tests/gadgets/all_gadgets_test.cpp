// What all nine effects promise: their fields' places, their defaults, their files.
#include "core/orrelix.h"
#include "platform/files.h"
#include "tests/support/effect_fields.h"
#include "tests/support/expected_text.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

const fs::path kSource = ORRELIX_SOURCE_DIR;

using CParameters = std::map<std::string, std::string>;

struct CEffectFiles {
    const char* m_pType;
    const char* m_pName;
    std::vector<const char*> m_Resources; // the script files as the store names them
    std::vector<const char*> m_Files;     // and those that lie beside the page

    friend std::ostream& operator<<(std::ostream& out, const CEffectFiles& effect) {
        return out << effect.m_pName;
    }
};

const CEffectFiles kEffectFiles[] = {
    {"1", "animate_text", {"Animate.js"}, {"animate.js"}},
    {"2", "text_show", {}, {}},
    {"3", "calander", {"Calander2.js"}, {"Calander2.js", "calander2.js"}},
    {"4", "cool_link", {"select.js"}, {"select.js"}},
    {"5", "scroll_text", {"scrolltext.js"}, {"scrolltext.js"}},
    {"6", "fade_select", {"fadeselect.js", "fade.js"}, {"fade.js", "fadeselect.js"}},
    {"7", "tool_tip", {"tooltip.js"}, {"Tooltip.js", "tooltip.js"}},
    {"8", "today_ca", {"todayca.js"}, {"Todayca.js", "todayca.js"}},
    {"9", "dance_text", {}, {}},
};

CParameters ParametersOf(const CVignelConfig& config) {
    CParameters parameters;
    config.m_ParameterMap.ForEach(
        [&](CString key, CString value) { parameters[std::string(key.View())] = value.View(); });
    parameters.erase("DhtmlType");
    return parameters;
}

CParameters ParametersOf(CDhtmlGadget& gadget) {
    CVignelConfig config;
    gadget.WriteParameters(config);
    return ParametersOf(config);
}

class Gadget : public testing::TestWithParam<CEffectFiles> {
protected:
    Gadget() : m_OldModule(GetModuleDirectory()) { m_Orrelix.SelectType(GetParam().m_pType); }
    ~Gadget() override { SetModuleDirectory(m_OldModule); }

    CDhtmlGadget& Effect() { return *m_Orrelix.m_pGadget; }
    CVignelConfig& Config() { return m_Orrelix.m_Config; }
    // Gives every field its own name as its value, so that a text made of them shows which stands where.
    void NameFields(const char* pEnding) {
        for (const auto& [name, pText] : FieldsOf(Effect()))
            *pText = "<" + name + pEnding;
    }

    COrrelix m_Orrelix;
    const CString m_OldModule; // where the component's own file lies
};

INSTANTIATE_TEST_SUITE_P(All, Gadget, testing::ValuesIn(kEffectFiles),
                         [](const auto& effect) { return effect.param.m_pName; });

} // namespace

TEST_P(Gadget, HasEveryFieldAtItsPlaces) {
    NameFields(",>"); // a comma shows which fields are masked
    Config().SetTitle("TiTle");
    std::string text;
    for (const auto& [key, value] : ParametersOf(Effect()))
        text += key + " = " + value + "\r\n";
    for (short nPosition = Effect().GetHTMLSegmentNumber(); --nPosition >= 0;)
        text += Effect().GetHTMLBody(Config(), kPublish, nPosition).View();
    const std::string file = std::string(GetParam().m_pName) + "_fields.html";
    EXPECT_TRUE(EqualsExpected(kSource / "tests/expected" / file, text));
}

TEST_P(Gadget, ReadsBackWhatItWrites) {
    NameFields(">");
    Effect().WriteParameters(Config());
    COrrelix again;
    again.SelectType(GetParam().m_pType);
    EXPECT_TRUE(again.m_pGadget->ReadParameters(Config(), "\\pages\\"));
    EXPECT_EQ(ParametersOf(*again.m_pGadget), ParametersOf(Config()));
}

TEST_P(Gadget, StartsAsThePlainExample) {
    const fs::path example = kSource / "examples" / (std::string(GetParam().m_pName) + "_plain.cfg");
    CVignelConfig plain;
    ASSERT_TRUE(plain.ReadFile(HostPath(example)));
    EXPECT_EQ(ParametersOf(Effect()), ParametersOf(plain));
}

TEST_P(Gadget, AsksForThePreviewPathOnlyToReferToFiles) {
    for (const short nMode : {kPreview, kPublish, EHtmlMode(2), EHtmlMode(-1)}) {
        for (const short nPosition : {short(0), short(1)}) {
            CVignelConfig untouched;
            const CString without = Effect().GetHTMLBody(untouched, nMode, nPosition);
            CVignelConfig config;
            config.SetPreviewPath("p/");
            const bool bRefers = Effect().GetHTMLBody(config, nMode, nPosition) != without;
            EXPECT_EQ(untouched.m_DescriptionMap.Find("PreviewPath").has_value(), bRefers)
                << nMode << nPosition;
            EXPECT_TRUE(!bRefers || nMode == kPreview) << nMode;
        }
    }
}

// A server that tells case apart finds a script under the name that the page says.
TEST_P(Gadget, LaysItsScriptsBesideThePageInBothSpellings) {
    const CTemporaryDirectory module, page;
    for (const CEffectFiles& effect : kEffectFiles) {
        for (const char* pFile : effect.m_Files)
            module.Write(pFile, effect.m_pName);
    }
    SetModuleDirectory(module.Path());
    Config().AddResource({"stale", "", ""});
    ASSERT_EQ(Effect().RegisterResources(Config()), static_cast<short>(GetParam().m_Resources.size()));
    for (short i = 0; const char* pResource : GetParam().m_Resources) {
        EXPECT_EQ(Config().GetResourceName(i), pResource);
        EXPECT_EQ(FileNameOnDisk(m_OldModule + "\\" + pResource), pResource)
            << "is shipped as it is registered";
        EXPECT_EQ(Config().GetResourceLocalPath(i++), module.Path() + "\\");
    }
    Effect().CopyResources(page.Path() + "\\", 0);
    for (const char* pFile : GetParam().m_Files)
        EXPECT_EQ(FileContent(page.File(pFile)), GetParam().m_pName) << pFile;
    const auto nFiles = std::distance(fs::directory_iterator(page.File("")), fs::directory_iterator());
    EXPECT_EQ(nFiles, static_cast<std::ptrdiff_t>(GetParam().m_Files.size()));
}

} // namespace orrelix
