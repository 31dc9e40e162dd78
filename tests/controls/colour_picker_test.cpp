#include "controls/colour_picker.h"
#include "tests/support/colour_settings.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

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

class CCanvasLog : public CCanvas {
public:
    CColour GetSystemColour(SystemColour colour) const override {
        return 0x1000000 + static_cast<CColour>(colour);
    }
    void FillRect(const CRect& rect, CColour colour) override { Log("fill", rect, colour); }
    void FrameRect(const CRect& rect, CColour colour) override { Log("frame", rect, colour); }
    void DrawLine(CPoint from, CPoint to, CColour colour) override {
        Log("line", {from.x, from.y, to.x, to.y}, colour);
    }
    void DrawEdge(const CRect& rect, unsigned nStyle, unsigned nFlags) override {
        Log("edge", rect, nStyle * 100 + nFlags);
    }
    void DrawArrow(const CRect& rect, unsigned nState) override { Log("arrow", rect, nState); }
    void DrawCentredText(const CString&, const CRect& rect, CColour colour) override {
        Log("text", rect, colour);
    }
    void DrawFocusRect(const CRect& rect) override { Log("focus", rect, 0); }

    bool Has(const CString& line) const { return m_Log.Find(line + "\n") >= 0; }
    CString m_Log;

private:
    void Log(const char* pWhat, const CRect& rect, CColour colour) {
        m_Log += CString(pWhat) + " " + ToText(rect.left) + " " + ToText(rect.top) + " " +
                 ToText(rect.right) + " " + ToText(rect.bottom) + " " + ToText(colour) + "\n";
    }
};

} // namespace

TEST(ColourPicker, AHexTextSetsTheColourOrTellsWhatIsWrong) {
    struct CCase {
        const char* m_pText;
        const char* m_pMessage;
        const char* m_pColour;
    };
    const char* const pLong = "The RGB string is not exceed 6 chars!";
    const char* const pWrong = "You must input a RGB value!";
    for (const CCase& hex :
         {CCase{"", "", "c0c0c0"}, CCase{"1234g", "", "c0c0c0"}, CCase{"1234567", pLong, "c0c0c0"},
          CCase{"gggggggg", pLong, "c0c0c0"}, CCase{"12345g", pWrong, "c0c0c0"},
          CCase{"-12345", pWrong, "c0c0c0"}, CCase{"0x1234", pWrong, "c0c0c0"},
          CCase{" 12345", pWrong, "c0c0c0"}, CCase{"123456", "", "123456"}, CCase{"ABCDEF", "", "abcdef"},
          CCase{"000001", "", "000001"}}) {
        CScriptedPerson person;
        COneColourDlg dialog;
        dialog.m_Picker.SetHexColour("C0c0C0");
        if (*hex.m_pMessage)
            person.Answers(hex.m_pMessage);
        dialog.m_Picker.SetHexColour(hex.m_pText);
        EXPECT_EQ(dialog.m_Picker.GetHexColour(), hex.m_pColour) << hex.m_pText;
    }
    COneColourDlg dialog;
    dialog.m_Picker.SetHexColour("0a0b0c");
    EXPECT_EQ(dialog.m_Picker.GetColour(), MakeColour(10, 11, 12));
}

TEST(ColourPicker, TheDialogHearsOfTheSelectionAndIsDisabledMeanwhile) {
    struct CCase {
        PopupKey m_Last;
        const char* m_pLog;
    };
    CColourSettings settings;
    for (const CCase& end :
         {CCase{PopupKey::Return, "2026 16777215 ffffff, 2025 16777215d ffffff, 2025 0d ffffff, "
                                  "2027 0 000000, 2028 0 000000, "},
          CCase{PopupKey::Escape, "2026 16777215 ffffff, 2025 16777215d ffffff, 2025 0d ffffff, "
                                  "2027 16777215 ffffff, 2029 16777215 ffffff, "}}) {
        CScriptedPerson person;
        COneColourDlg dialog;
        dialog.m_Picker.SetHexColour("ffffff");
        // The first key goes to the box, as nothing is marked; the box has the colour of the start.
        person.In("One Colour").OpensColours("Colour:");
        person.PressesInPopup({PopupKey::Down, PopupKey::Down, end.m_Last}).Clicks("OK");
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(dialog.m_Log, end.m_pLog);
    }
}

TEST(ColourPicker, APopupEndsWhereNobodyIsThereAndWithItsButton) {
    class CNobodyAtPopups : public CScriptedPerson {
    public:
        void OpenPopup(CPopupWindow& popup) override { popup.OnDeactivate(Person()); }
    } nobody;
    nobody.In("One Colour").OpensColours("Colour:").OpensColours("Colour:").Clicks("OK");
    EXPECT_EQ(COneColourDlg().DoModal(), IDOK) << "the dialog must not stay disabled";

    CScriptedPerson person;
    auto pDialog = std::make_unique<COneColourDlg>();
    person.In("One Colour").OpensColours("Colour:").Then([&](CDialog& dialog) {
        dialog.EnableWindow(true); // a host that takes its windows away
        person.PressEscape(dialog);
    });
    EXPECT_EQ(pDialog->DoModal(), IDCANCEL);
    EXPECT_TRUE(person.GetPopup());
    pDialog.reset();
    EXPECT_FALSE(person.GetPopup());
}

TEST(ColourPicker, TheButtonShowsColourArrowAndState) {
    CScriptedPerson person;
    COneColourDlg dialog;
    dialog.m_Picker.SetUp("");
    dialog.m_Picker.SetHexColour("010000");
    EXPECT_EQ(dialog.m_Picker.Measure({60, 99}), (CSize{60, 20}));
    auto drawn = [&](bool bPressed, bool bFocused) {
        CCanvasLog canvas;
        dialog.m_Picker.Draw(canvas, {10, 5, 70, 25}, bPressed, bFocused);
        return canvas.m_Log;
    };
    EXPECT_EQ(drawn(false, false), "arrow 58 7 68 23 16385\nedge 10 5 70 25 515\nfill 14 9 56 21 1\n");
    EXPECT_EQ(drawn(true, true), "arrow 58 7 68 23 16897\nedge 10 5 70 25 515\nfill 14 9 56 21 1\n"
                                 "focus 15 10 55 20 0\n");
    dialog.m_Picker.EnableWindow(false);
    EXPECT_EQ(drawn(false, false), "arrow 58 7 68 23 16641\nedge 10 5 70 25 515\nfill 14 9 56 21 16777216\n");
    EXPECT_EQ(dialog.m_Picker.Measure({3, 3}), (CSize{22, 20})) << "room for colour and arrow";
}

TEST(ColourPicker, ThePopupShowsWhatIsChosenAndWhatIsCurrent) {
    CColourSettings settings;
    CScriptedPerson person;
    COneColourDlg dialog;
    dialog.m_Picker.SetHexColour("ffffff"); // row 1
    person.In("One Colour").OpensColours("Colour:").Then([&](CDialog&) {
        CCanvasLog canvas;
        person.MoveInPopup({3, 3}); // row 0
        person.GetPopup()->Draw(canvas);
        EXPECT_TRUE(canvas.Has("fill 2 2 20 20 16777216\nedge 2 2 20 20 415\nfill 5 5 17 17 0"));
        EXPECT_TRUE(canvas.Has("fill 20 2 38 20 16777218\nedge 20 2 38 20 215\nfill 23 5 35 17 16777215"));
        EXPECT_TRUE(canvas.Has("fill 38 2 56 20 16777216\nfill 41 5 53 17 4210688")) << "neither";
        EXPECT_TRUE(canvas.Has("line 2 94 146 94 16777220\nline 2 95 146 95 16777218"));
        EXPECT_TRUE(canvas.Has("text 2 98 146 120 16777217\nedge 0 0 148 124 515"));
    });
    person.PressesInPopup({PopupKey::Escape}).Clicks("Cancel");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}
