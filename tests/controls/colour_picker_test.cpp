#include "controls/colour_picker.h"
#include "tests/support/colour_settings.h"
#include "tests/support/scripted_person.h"

#include <array>
#include <gtest/gtest.h>

namespace orrelix {

namespace {

constexpr int kEdit = 100;

const CDialogDescription& OneColour() {
    static const CDialogDescription description{
        "One Colour", describe::Column({describe::Colour(kEdit, "Colour:"), describe::OkAndCancel()})};
    return description;
}

class COneColourDlg : public CDialog {
public:
    COneColourDlg() : CDialog(OneColour()) {
        Attach(PickerOf(kEdit), m_Picker);
        for (int nMessage = COLOUR_CHANGED; nMessage <= COLOUR_SELECTION_CANCELLED; ++nMessage) {
            SetMessageHandler(nMessage, [this, nMessage](unsigned long nColour, long nId) {
                EXPECT_EQ(nId, PickerOf(kEdit));
                m_Log += ToText(nMessage) + " " + ToText(static_cast<long long>(nColour)) +
                         (IsWindowEnabled() ? " " : "d ") + m_Picker.GetHexColour() + ", ";
            });
        }
    }

    CColourPicker m_Picker{*this};
    CString m_Log;
};

} // namespace

TEST(ColourPicker, AHexTextSetsTheColourOrTellsWhatIsWrong) {
    const char* const pLong = "The RGB string is not exceed 6 chars!";
    const char* const pWrong = "You must input a RGB value!";
    const std::array<const char*, 3> cases[] = {{"", "", "c0c0c0"},           {"1234g", "", "c0c0c0"},
                                                {"1234567", pLong, "c0c0c0"}, {"gggggggg", pLong, "c0c0c0"},
                                                {"12345g", pWrong, "c0c0c0"}, {"-12345", pWrong, "c0c0c0"},
                                                {"0x1234", pWrong, "c0c0c0"}, {" 12345", pWrong, "c0c0c0"},
                                                {"123456", "", "123456"},     {"ABCDEF", "", "abcdef"},
                                                {"000001", "", "000001"}};
    for (const auto& [pText, pMessage, pColour] : cases) {
        CScriptedPerson person;
        COneColourDlg dialog;
        dialog.m_Picker.SetHexColour("C0c0C0");
        if (*pMessage)
            person.Does(CString("reads and closes ") + pMessage);
        dialog.m_Picker.SetHexColour(pText);
        EXPECT_EQ(dialog.m_Picker.GetHexColour(), pColour) << pText;
    }
    COneColourDlg dialog;
    dialog.m_Picker.SetHexColour("0a0b0c");
    EXPECT_EQ(dialog.m_Picker.GetColour(), MakeColour(10, 11, 12));
}

TEST(ColourPicker, TheDialogHearsOfTheSelectionAndIsDisabledMeanwhile) {
    CColourSettings settings;
    for (const auto& [pLast, pLog] :
         {std::pair("key Return", "2026 16777215 ffffff, 2025 16777215d ffffff, 2025 0d ffffff, "
                                  "2027 0 000000, 2028 0 000000, "),
          {"key Escape", "2026 16777215 ffffff, 2025 16777215d ffffff, 2025 0d ffffff, "
                         "2027 16777215 ffffff, 2029 16777215 ffffff, "}}) {
        CScriptedPerson person;
        COneColourDlg dialog;
        dialog.m_Picker.SetHexColour("ffffff");
        person.In("One Colour").Does("opens Colour");
        person.Does({"key Down", "key Left", pLast, "clicks OK"});
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(dialog.m_Log, pLog);
    }
}

TEST(ColourPicker, APopupEndsWhereNobodyIsThereAndWithItsButton) {
    class CNobodyAtPopups : public CScriptedPerson {
    public:
        void OpenPopup(CPopupWindow& popup) override { popup.OnDeactivate(Person()); }
    } nobody;
    nobody.In("One Colour").Does({"opens Colour", "opens Colour", "clicks OK"});
    EXPECT_EQ(COneColourDlg().DoModal(), IDOK) << "the dialog must not stay disabled";

    CScriptedPerson person;
    auto pDialog = std::make_unique<COneColourDlg>();
    person.In("One Colour").Does("opens Colour").Then([&](CDialog& dialog) {
        dialog.EnableWindow(true); // a host that takes its windows away
        person.Press(dialog, "Escape");
    });
    EXPECT_EQ(pDialog->DoModal(), IDCANCEL);
    EXPECT_TRUE(person.GetPopup());
    pDialog.reset();
    EXPECT_FALSE(person.GetPopup());
}

TEST(ColourPicker, TheButtonHasRoomForColourAndArrow) {
    CScriptedPerson person;
    COneColourDlg dialog;
    EXPECT_EQ(dialog.m_Picker.Measure({60, 99}), (CSize{60, 20}));
    EXPECT_EQ(dialog.m_Picker.Measure({3, 3}), (CSize{22, 20}));
}

} // namespace orrelix
