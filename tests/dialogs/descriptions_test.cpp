// What holds for every dialog's description.
#include "tests/support/all_dialogs.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace orrelix {

namespace {

class Descriptions : public testing::TestWithParam<const CDialogDescription*> {
protected:
    template <class TVisit>
    void ForEach(TVisit visit) {
        ForEachControl(*GetParam(), [&](const CControlDescription& control, const char* pGroup) {
            SCOPED_TRACE(std::string(GetParam()->m_pTitle) + " / " + pGroup + " / " +
                         std::to_string(control.m_nId));
            visit(control, pGroup);
        });
    }
};

std::set<const CDialogDescription*> AllDescriptions() {
    std::set<const CDialogDescription*> descriptions;
    for (const CTestedDialog& dialog : AllDialogs()) {
        descriptions.insert(&dialog.m_pDescription());
        for (const CSubDialog& sub : dialog.m_SubDialogs)
            descriptions.insert(&sub.m_pDescription());
    }
    return descriptions;
}

} // namespace

TEST_P(Descriptions, EveryControlHasANameThatOnlyItHas) {
    std::set<std::string> names;
    ForEach([&](const CControlDescription& control, const char* pGroup) {
        const CString name = AccessibleNameOf(control);
        EXPECT_FALSE(name.IsEmpty());
        const CString full = ToText(static_cast<int>(control.m_Kind)) + " " + pGroup + " / " + name;
        EXPECT_TRUE(names.insert(full.GetString()).second) << full;
    });
}

TEST_P(Descriptions, NoTwoMnemonicsClash) {
    std::map<char, int> owners;
    ForEach([&](const CControlDescription& control, const char*) {
        for (const char* pText : {control.m_pLabel, control.m_pCaption}) {
            if (const char mnemonic = MnemonicOf(pText)) {
                EXPECT_TRUE(owners.emplace(mnemonic, control.m_nId).second)
                    << '\'' << mnemonic << "' is taken by " << owners[mnemonic];
            }
        }
    });
}

TEST_P(Descriptions, IdsAreUniqueAndBuddiesStandBefore) {
    std::set<int> ids;
    ForEach([&](const CControlDescription& control, const char*) {
        EXPECT_TRUE(ids.insert(control.m_nId).second);
        EXPECT_TRUE(!control.m_nBuddy || ids.count(control.m_nBuddy));
        const bool bHasRange = control.m_Kind == ControlKind::Spin || control.m_Kind == ControlKind::Slider;
        EXPECT_EQ(bHasRange, control.m_nLower < control.m_nUpper);
    });
}

INSTANTIATE_TEST_SUITE_P(All, Descriptions, testing::ValuesIn(AllDescriptions()));

} // namespace orrelix
