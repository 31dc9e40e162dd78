// What each box of a dialog shows and edits, what its OK stores, and that its Cancel stores nothing: for every
// dialog with fields, in a file of tests/expected/dialogs. See AllDialogs.
#include "tests/support/all_dialogs.h"
#include "tests/support/expected_text.h"
#include "tests/support/person_test.h"
#include "toolkit/slider_ctrl.h"

#include <fstream>
#include <map>

namespace orrelix {

namespace {

using CValues = std::map<std::string, CString>;

// A field's value at the start: one that suits boxes for numbers, for digits and for colours.
CString StartOf(size_t nField) {
    return ("00000" + ToText(static_cast<long long>(10 * nField + 10))).Right(6);
}

CString ShownBy(CDialog& dialog, int nId) {
    const CControl& control = dialog.Item<CControl>(nId);
    const auto* pSlider = dynamic_cast<const CSliderCtrl*>(&control);
    return pSlider ? ToText(pSlider->GetPos()) : control.GetWindowText();
}

class EditedFields : public PersonTest, public testing::WithParamInterface<CTestedDialog> {
protected:
    using Visit = std::function<void(const CControlDescription& control, const CString& name)>;

    void ForEach(const Visit& visit) const {
        ForEachControl(m_Description, [&](const CControlDescription& control, const char* pGroup) {
            const CString group = *pGroup ? WithoutMnemonic(pGroup) + " / " : CString();
            visit(control, group + AccessibleNameOf(control));
        });
    }

    // Runs the dialog, as the person's steps say, on fields of which each has a value of its own; the result
    // is their values then.
    CValues Run(int nResult) {
        const std::unique_ptr<CEditing> pEditing = GetParam().m_Edit();
        m_Starts.clear();
        for (size_t nField = 0; const CNamedText& field : pEditing->Fields())
            m_Starts[field.m_Name] = *field.m_pText = StartOf(nField++);
        EXPECT_EQ(pEditing->Run(), nResult);
        CValues values;
        for (const CNamedText& field : pEditing->Fields())
            values[field.m_Name] = *field.m_pText;
        return values;
    }

    // The sections of the user's settings that have come up, which go.
    std::string TakeSections() const {
        std::string sections;
        std::ifstream file(m_Settings.File());
        for (std::string line; std::getline(file, line);)
            sections += line.starts_with('[') ? " " + line : "";
        std::filesystem::remove(m_Settings.File());
        return sections;
    }

    // What a control shows, told by the field that has this value.
    std::string Named(const CString& text) const {
        for (const auto& [name, start] : m_Starts) {
            if (text == start)
                return name;
            if (text == ToText(ToInteger(start)))
                return name + " as a number";
        }
        return "\"" + std::string(text.View()) + "\"";
    }

    // The ways in which a person changes what a control holds; `act` is called for each and has to take its
    // steps.
    void ForEachChange(const CControlDescription& control, const CString& name,
                       const std::function<void(const char*)>& act) {
        switch (control.m_Kind) {
        case ControlKind::ComboBox:
            m_Person.Picks(name, control.m_Choices.back().Shown());
            act(" picked");
            if (control.Has(STYLE_LIST_ONLY))
                return;
            [[fallthrough]];
        case ControlKind::Edit:
            m_Person.Types(name, "777777");
            return act(" typed");
        case ControlKind::Spin:
            m_Person.Turns(name, 1);
            return act(" turned");
        case ControlKind::Slider:
            m_Person.Moves(name, control.m_nUpper);
            return act(" moved");
        case ControlKind::OwnerDrawnButton: // the box for any colour comes before the first one
            m_Person.OpensColours(name).PressesInPopup({PopupKey::Up, PopupKey::Space});
            m_Person.MixesColour(MakeColour(1, 2, 3));
            return act(" mixed");
        default:
            return;
        }
    }

    const CDialogDescription& m_Description = GetParam().m_pDescription();
    CValues m_Starts;
};

std::string Difference(const CValues& before, const CValues& after) {
    std::string text;
    for (const auto& [name, value] : after) {
        if (const auto old = before.find(name); old == before.end() || old->second != value)
            text += ", " + name + " = " + value.GetString();
    }
    return text.empty() ? "nothing" : text.substr(2);
}

} // namespace

TEST_P(EditedFields, AreThoseOfTheirBoxes) {
    std::string text;
    m_Person.In(m_Description.m_pTitle).Then([&](CDialog& dialog) {
        ForEach([&](const CControlDescription& control, const CString& name) {
            if (control.m_Kind == ControlKind::Edit || control.m_Kind == ControlKind::ComboBox ||
                control.m_Kind == ControlKind::Slider)
                text += std::string(name.View()) + " shows " + Named(ShownBy(dialog, control.m_nId)) + "\n";
        });
    });
    m_Person.Clicks("OK");
    const CValues untouched = Run(IDOK);
    text += "OK stores " + Difference(m_Starts, untouched) + "\n";
    ForEach([&](const CControlDescription& control, const CString& name) {
        ForEachChange(control, name, [&](const char* pHow) {
            m_Person.Clicks("OK");
            text += std::string(name.View()) + pHow + ": " + Difference(untouched, Run(IDOK));
            text += TakeSections() + "\n";
        });
    });
    const std::filesystem::path expected = ORRELIX_SOURCE_DIR "/tests/expected/dialogs";
    EXPECT_TRUE(EqualsExpected(expected / (std::string(GetParam().m_pName) + ".txt"), text));
}

TEST_P(EditedFields, StayAsTheyAreWhenTheDialogIsCancelled) {
    m_Person.In(m_Description.m_pTitle);
    ForEach([&](const CControlDescription& control, const CString& name) {
        ForEachChange(control, name, [](const char*) {});
    });
    m_Person.Clicks("Cancel");
    const CValues after = Run(IDCANCEL);
    EXPECT_EQ(Difference(m_Starts, after), "nothing");
}

std::vector<CTestedDialog> DialogsWithFields() {
    std::vector<CTestedDialog> dialogs = AllDialogs();
    std::erase_if(dialogs, [](const CTestedDialog& dialog) { return !dialog.m_Edit; });
    return dialogs;
}

INSTANTIATE_TEST_SUITE_P(All, EditedFields, testing::ValuesIn(DialogsWithFields()),
                         [](const auto& dialog) { return dialog.param.m_pName; });

} // namespace orrelix
