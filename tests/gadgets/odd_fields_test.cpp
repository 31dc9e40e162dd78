// Effects in states that none of the examples has. A question is an effect's type and what is set, with "|"
// between: parameters to be read first ("TextShowText=x"), fields ("m_Text=x", where "\n" and "\r" stand for line
// breaks), and the names of fields that are to be shown. The answer is the parameters as written, those fields
// then, and the text at the cursor.
#include "core/orrelix.h"
#include "tests/support/effect_fields.h"
#include "tests/support/session.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace orrelix {

namespace {

std::string Answer(const std::string& question) {
    CVignelConfig config, written;
    std::map<std::string, CString> fields;
    std::istringstream settings(question);
    std::string type, shown;
    std::getline(settings, type, '|');
    for (std::string setting; std::getline(settings, setting, '|');) {
        const size_t nEquals = std::min(setting.find('='), setting.size());
        const std::string name = setting.substr(0, nEquals);
        CString value = setting.substr(std::min(nEquals + 1, setting.size()));
        value.Replace("\\r", "\r");
        value.Replace("\\n", "\n");
        if (nEquals == setting.size())
            shown = name;
        else if (name.starts_with("m_"))
            fields[name] = value;
        else
            config.SetParameter(name, value);
    }
    COrrelix orrelix;
    orrelix.SelectType(type);
    CDhtmlGadget& effect = *orrelix.m_pGadget;
    if (!config.m_ParameterMap.IsEmpty())
        effect.ReadParameters(config, "\\pages\\");
    for (const auto& [name, pText] : FieldsOf(effect))
        *pText = fields.count(name) ? fields[name] : *pText;
    effect.WriteParameters(written);
    CString answer;
    written.m_ParameterMap.ForEach([&](CString key, CString value) { answer += key + " = " + value + "\n"; });
    for (const auto& [name, pText] : FieldsOf(effect))
        answer += name == shown ? CString(name) + "=" + *pText + "\n" : CString();
    config.SetTitle("x");
    answer += effect.GetHTMLBody(config, kPublish, 0);
    answer.Replace("\r\n", "\n");
    return std::string(answer.View());
}

} // namespace

TEST(Effects, WithOddFieldsHaveTheseTexts) {
    EXPECT_TRUE(GoesAsItStands(ORRELIX_SOURCE_DIR "/tests/gadgets/odd_fields.txt", Answer));
}

} // namespace orrelix
