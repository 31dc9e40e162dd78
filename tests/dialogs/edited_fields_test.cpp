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

    static void ForEach(const CDialogDescription& dialog, const Visit& visit) {
        ForEachControl(dialog, [&](const CControlDescription& control, const char* pGroup) {
            const CString group = *pGroup ? WithoutMnemonic(pGroup) + " / " : CString();
            // A spin control and a colour button go by the name of their box.
            visit(control, group + AccessibleNameOf({.m_pLabel = control.m_pLabel,
                                                     .m_pCaption = control.m_pCaption,
                                                     .m_pName = control.m_pName}));
        });
    }

    // Runs the dialog, as the person's steps say, on fields of which each has a value of its own, or that of a
    // new effect; the result is their values then.
    CValues Run(int nResult, bool bNew = false) {
        const std::unique_ptr<CEditing> pEditing = GetParam().m_Edit();
        m_Starts.clear();
        for (size_t nField = 0; const CNamedText& field : pEditing->Fields())
            m_Starts[field.m_Name] = *field.m_pText = bNew ? *field.m_pText : StartOf(nField++);
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

    // A way in which a person changes what a control holds.
    struct CChange {
        const char* m_pHow;
        std::vector<CString> m_Acts;
    };
    static std::vector<CChange> ChangesOf(const CControlDescription& control, const CString& name) {
        const CChange typed{" typed", {"types " + name + " = 777777"}};
        switch (control.m_Kind) {
        case ControlKind::ComboBox: {
            const CChange picked{" picked", {"picks " + name + " = " + control.m_Choices.back().Shown()}};
            return control.Has(STYLE_LIST_ONLY) ? std::vector{picked} : std::vector{picked, typed};
        }
        case ControlKind::Edit:
            return {typed};
        case ControlKind::Spin:
            return {{" turned", {"turns " + name + " = 1"}}};
        case ControlKind::Slider:
            return {{" moved", {"moves " + name + " = " + ToText(control.m_nUpper)}}};
        case ControlKind::OwnerDrawnButton: // of a colour without a name, the box for any is chosen
            return {
                {" mixed",
                 {"types " + name + " = 123456", "opens " + name, "key Up", "key Space", "mixes 010203"}}};
        default:
            return {};
        }
    }

    // The person's way to the boxes of the dialog, or of one that a button of it opens, and out again.
    void Open(const CSubDialog* pSub) {
        m_Person.In(m_Description.m_pTitle);
        if (pSub)
            m_Person.Does(CString("clicks ") + pSub->m_pButton).In(pSub->m_pDescription().m_pTitle);
    }
    void Close(const CSubDialog* pSub, const char* pSubButton, const char* pButton) {
        if (pSub)
            m_Person.Does(CString("clicks ") + pSubButton).In(m_Description.m_pTitle);
        m_Person.Does(CString("clicks ") + pButton);
    }
    const CDialogDescription& Opened(const CSubDialog* pSub) const {
        return pSub ? pSub->m_pDescription() : m_Description;
    }

    std::string BoxesOf(const CSubDialog* pSub);
    CValues RunWithAllChanged(const CSubDialog* pSub, const char* pSubButton, const char* pButton);

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

std::string EditedFields::BoxesOf(const CSubDialog* pSub) {
    std::string text = pSub ? std::string(pSub->m_pButton) + " opens " + Opened(pSub).m_pTitle + "\n" : "";
    const std::string indent = pSub ? "    " : "";
    Open(pSub);
    m_Person.Then([&](CDialog& dialog) {
        ForEach(Opened(pSub), [&](const CControlDescription& control, const CString& name) {
            if (control.m_Kind == ControlKind::Edit || control.m_Kind == ControlKind::ComboBox ||
                control.m_Kind == ControlKind::Slider)
                text += indent + name.GetString() + " shows " + Named(ShownBy(dialog, control.m_nId)) + "\n";
        });
    });
    Close(pSub, "OK", "OK");
    const CValues untouched = Run(IDOK);
    text += indent + "OK stores " + Difference(m_Starts, untouched) + "\n";
    ForEach(Opened(pSub), [&](const CControlDescription& control, const CString& name) {
        for (const CChange& change : ChangesOf(control, name)) {
            Open(pSub);
            m_Person.Does(change.m_Acts);
            Close(pSub, "OK", "OK");
            text += indent + name.GetString() + change.m_pHow + ": " + Difference(untouched, Run(IDOK));
            text += TakeSections() + "\n";
        }
    });
    return text;
}

CValues EditedFields::RunWithAllChanged(const CSubDialog* pSub, const char* pSubButton, const char* pButton) {
    Open(pSub);
    ForEach(Opened(pSub), [&](const CControlDescription& control, const CString& name) {
        for (const CChange& change : ChangesOf(control, name))
            m_Person.Does(change.m_Acts);
    });
    Close(pSub, pSubButton, pButton);
    return Run(CString(pButton) == "OK" ? IDOK : IDCANCEL);
}

} // namespace

TEST_P(EditedFields, AreThoseOfTheirBoxes) {
    Open(nullptr);
    Close(nullptr, "", "OK");
    const CValues untouched = Run(IDOK, true);
    std::string text = "OK on new fields stores " + Difference(m_Starts, untouched) + "\n";
    text += BoxesOf(nullptr);
    for (const CSubDialog& sub : GetParam().m_SubDialogs)
        text += BoxesOf(&sub);
    const std::filesystem::path expected = ORRELIX_SOURCE_DIR "/tests/expected/dialogs";
    EXPECT_TRUE(EqualsExpected(expected / (std::string(GetParam().m_pName) + ".txt"), text));
}

TEST_P(EditedFields, StayAsTheyAreWhenADialogIsCancelled) {
    EXPECT_EQ(Difference(m_Starts, RunWithAllChanged(nullptr, "", "Cancel")), "nothing");
    m_Person.Does("clicks OK");
    const CValues untouched = Run(IDOK);
    for (const CSubDialog& sub : GetParam().m_SubDialogs) {
        EXPECT_EQ(Difference(m_Starts, RunWithAllChanged(&sub, "OK", "Cancel")), "nothing") << sub.m_pButton;
        EXPECT_EQ(Difference(untouched, RunWithAllChanged(&sub, "Cancel", "OK")), "nothing") << sub.m_pButton;
    }
}

std::vector<CTestedDialog> DialogsWithFields() {
    std::vector<CTestedDialog> dialogs = AllDialogs();
    std::erase_if(dialogs, [](const CTestedDialog& dialog) { return !dialog.m_Edit; });
    return dialogs;
}

INSTANTIATE_TEST_SUITE_P(All, EditedFields, testing::ValuesIn(DialogsWithFields()),
                         [](const auto& dialog) { return dialog.param.m_pName; });

} // namespace orrelix
