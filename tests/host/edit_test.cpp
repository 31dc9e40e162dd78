#include "resources/effects.h"
#include "tests/host/program_test.h"

#include <sstream>

namespace orrelix {

using Edit = ProgramTest;

TEST_F(Edit, EveryEffectListsItsFieldsAndTakesThemBack) {
    for (const CEffect& effect : kEffects) {
        const CProgramRun fields =
            ExpectRun({"new", "x.cfg", "--effect", effect.m_pName, "--list-fields"}, 0);
        EXPECT_FALSE(Exists("x.cfg"));
        std::vector<std::string> arguments = {"new", std::string(effect.m_pName) + ".cfg", "--effect",
                                              effect.m_pName};
        std::istringstream lines(fields.m_Output);
        for (std::string line; std::getline(lines, line);) {
            arguments.insert(arguments.end(), {"--set", line.substr(0, line.find(' ')) + "=" +
                                                            line.substr(line.find_first_of("=+") + 2)});
        }
        ExpectRun(arguments, 0);
        EXPECT_EQ(Run({"edit", arguments[1], "--list-fields"}).m_Output, fields.m_Output) << effect.m_pName;
    }
}

} // namespace orrelix
