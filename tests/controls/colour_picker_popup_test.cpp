#include "controls/colour_picker_popup.h"
#include "controls/hex_colour.h"
#include "tests/support/colour_settings.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

constexpr int kNone = CColourPickerPopup::kNone;
constexpr int kBox = CColourPickerPopup::kCustomBox;
constexpr CRect kButton{100, 100, 160, 120};

// A person at a popup; the window goes when the person does, as late as a desktop may let it go.
class CPersonAtPopup : public CScriptedPerson, private CColourPopupParent {
public:
    explicit CPersonAtPopup(const CString& start = "123456", const CString& customText = "More Colors...",
                            const CRect& button = kButton, int nEdge = 2,
                            const CRect& screen = {0, 0, 1024, 768})
        : m_nEdge(nEdge) {
        m_Screen = screen;
        m_pPopup = new CColourPickerPopup(*this, button, ParseHexColour(start).value(), customText, "");
        OpenPopup(*m_pPopup);
    }
    ~CPersonAtPopup() override {
        m_pPopup->OnDeactivate(Person());
        m_pPopup->OnClosed();
    }

    CPoint MiddleOf(int nSelection) const {
        if (nSelection == kNone)
            return {0, 0};
        const CRect rect = nSelection == kBox
                               ? m_pPopup->GetCustomRect()
                               : m_pPopup->GetCells().at(static_cast<size_t>(nSelection)).m_Rect;
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    void MoveTo(int nSelection) { MoveInPopup(MiddleOf(nSelection)); }
    void ActAll() {
        MoveTo(3);
        for (PopupKey key : {PopupKey::Down, PopupKey::Return, PopupKey::Escape})
            PressInPopup(key);
        ReleaseInPopup({-1, -1});
        m_pPopup->OnDeactivate(Person());
    }

    CThemeMetrics GetMetrics() const override { return {{m_nEdge, m_nEdge}, {16, 16}}; }
    bool RunColourDialog(CColour& colour) override {
        ActAll(); // the popup takes nothing meanwhile
        return CScriptedPerson::RunColourDialog(colour);
    }
    void ClosePopup(CPopupWindow& popup) override { m_bClosed = m_pPopup == &popup && !m_bClosed; }

    CColourPickerPopup* m_pPopup;
    bool m_bClosed = false;
    CString m_Log; // of the messages

private:
    void OnColourMessage(ColourMessage message, CColour colour) override {
        m_Log += ToText(message) + " " + HexText(colour) + " ";
    }

    int m_nEdge;
    CColourSettings m_Settings;
};

} // namespace

TEST(ColourPickerPopup, KeysGoFromCellToCellAndThroughTheBox) {
    struct CCase {
        int m_nFrom;
        PopupKey m_Key;
        int m_nTo;
        int m_nToWithoutBox;
    };
    for (const CCase& move :
         {CCase{3, PopupKey::Down, 11, 11}, CCase{31, PopupKey::Down, 39, 39},
          CCase{32, PopupKey::Down, kBox, 0}, CCase{kBox, PopupKey::Down, 0, 0},
          CCase{11, PopupKey::Up, 3, 3}, CCase{7, PopupKey::Up, kBox, 39}, CCase{kBox, PopupKey::Up, 39, 39},
          CCase{3, PopupKey::Right, 4, 4}, CCase{7, PopupKey::Right, 8, 8},
          CCase{39, PopupKey::Right, kBox, 0}, CCase{kNone, PopupKey::Right, kBox, 0},
          CCase{kNone, PopupKey::Left, kBox, 39}, CCase{kBox, PopupKey::Right, 0, 0},
          CCase{4, PopupKey::Left, 3, 3}, CCase{8, PopupKey::Left, 7, 7}, CCase{0, PopupKey::Left, kBox, 39},
          CCase{kBox, PopupKey::Left, 39, 39}}) {
        for (const char* pText : {"More Colors...", ""}) {
            if (move.m_nFrom == kBox && !*pText)
                continue;
            CPersonAtPopup person("123456", pText);
            person.MoveTo(move.m_nFrom);
            EXPECT_EQ(person.m_pPopup->GetCurrentSel(), move.m_nFrom);
            person.PressInPopup(move.m_Key);
            EXPECT_EQ(person.m_pPopup->GetCurrentSel(), *pText ? move.m_nTo : move.m_nToWithoutBox)
                << "key " << static_cast<int>(move.m_Key) << " on " << move.m_nFrom;
        }
    }
}

TEST(ColourPickerPopup, TheWindowIsSizedByItsContentAndStaysOnTheScreen) {
    struct CCase {
        const char* m_pName;
        CRect m_Button;
        CString m_Text;
        int m_nEdge;
        CRect m_Window;
        CRect m_Screen = {0, 0, 1024, 768};
    };
    const CCase cases[] = {
        {"below", kButton, "More", 2, {100, 120, 248, 244}},
        {"without a box", kButton, "", 2, {100, 120, 248, 214}},
        {"wide text", kButton, "Many, many more colours...", 2, {100, 120, 286, 244}},
        {"thick edges", kButton, "", 8, {100, 120, 300, 251}},
        {"at the right", {1000, 100, 1020, 120}, "", 2, {876, 120, 1024, 214}},
        {"at the left", {-9, 100, 20, 120}, "", 2, {0, 120, 148, 214}},
        {"at the bottom", {100, 700, 160, 720}, "", 2, {100, 606, 248, 700}},
        {"just room", {876, 654, 1024, 674}, "", 2, {876, 674, 1024, 768}},
        {"in the corner", {1000, 740, 1030, 760}, "More", 2, {876, 616, 1024, 740}},
        {"no room at all", {100, 80, 160, 720}, "", 2, {100, 0, 248, 94}},
        {"on a screen at the left", {-20, 300, 0, 320}, "", 2, {-148, 206, 0, 300}, {-800, 0, 0, 400}}};
    for (const CCase& place : cases) {
        CPersonAtPopup person("123456", place.m_Text, place.m_Button, place.m_nEdge, place.m_Screen);
        EXPECT_EQ(person.m_pPopup->GetWindowRect(), place.m_Window)
            << place.m_pName << ": " << person.m_pPopup->GetWindowRect().left << ", "
            << person.m_pPopup->GetWindowRect().top;
    }
}

TEST(ColourPickerPopup, ThePointerMarksWhatItIsOver) {
    struct CCase {
        CPoint m_Point;
        int m_nSelection;
    };
    CPersonAtPopup person("123456", "Many, many more colours..."); // wider than the cells
    const CRect box = person.m_pPopup->GetCustomRect();
    for (const CCase& place :
         {CCase{{2, 2}, 0}, CCase{{19, 19}, 0}, CCase{{20, 19}, 1}, CCase{{19, 20}, 8}, CCase{{145, 91}, 39},
          CCase{{146, 91}, kNone}, CCase{{145, 92}, kNone}, CCase{{1, 20}, kNone}, CCase{{20, -1}, kNone},
          CCase{{-500, -500}, kNone}, CCase{{500, 500}, kNone}, CCase{{box.left, box.top}, kNone},
          CCase{{box.left + 2, box.top + 2}, kBox}, CCase{{box.right + 1, box.bottom + 1}, kBox},
          CCase{{box.right + 2, box.bottom}, kNone}}) {
        person.MoveTo(17);
        person.MoveInPopup(place.m_Point);
        EXPECT_EQ(person.m_pPopup->GetCurrentSel(), place.m_nSelection)
            << place.m_Point.x << ", " << place.m_Point.y;
    }
}

TEST(ColourPickerPopup, EachSelectionEndsWithOneMessageAndAValidColour) {
    struct CCase {
        const char* m_pName;
        std::function<void(CPersonAtPopup&)> m_Act;
        const char* m_pLog;
    };
    const CPoint outside{-1, 30};
    const CCase cases[] = {
        {"click", [](auto& p) { p.MoveTo(25), p.ReleaseInPopup(p.MiddleOf(25)); },
         "2025 ffd700 2028 ffd700 "},
        {"click in the margin",
         [](auto& p) {
             p.MoveTo(25), p.MoveTo(kNone), p.ReleaseInPopup({0, 0});
         },
         "2025 ffd700 2028 123456 "},
        {"click outside", [=](auto& p) { p.MoveTo(25), p.ReleaseInPopup(outside); },
         "2025 ffd700 2029 123456 "},
        {"Return at once", [](auto& p) { p.PressInPopup(PopupKey::Return); }, "2028 123456 "},
        {"Space", [](auto& p) { p.MoveTo(26), p.MoveTo(26), p.PressInPopup(PopupKey::Space); },
         "2025 ffff00 2028 ffff00 "},
        {"Escape", [](auto& p) { p.MoveTo(25), p.MoveTo(26), p.PressInPopup(PopupKey::Escape); },
         "2025 ffd700 2025 ffff00 2029 123456 "},
        {"Escape on the box", [](auto& p) { p.MoveTo(kBox), p.PressInPopup(PopupKey::Escape); },
         "2025 123456 2029 123456 "},
        {"a mixed colour",
         [](auto& p) { p.MixesColour(0x332211), p.MoveTo(kBox), p.PressInPopup(PopupKey::Return); },
         "2025 123456 2028 112233 "},
        {"the colour dialog cancelled",
         [](auto& p) { p.CancelsColour(), p.MoveTo(kBox), p.ReleaseInPopup(p.MiddleOf(kBox)); },
         "2025 123456 2029 123456 "},
        {"the parent goes", [](auto& p) { p.MoveTo(25), p.m_pPopup->Abandon(); }, "2025 ffd700 "}};
    for (const CCase& end : cases) {
        CPersonAtPopup person;
        end.m_Act(person);
        EXPECT_EQ(person.m_Log, end.m_pLog) << end.m_pName;
        EXPECT_TRUE(person.m_bClosed) << end.m_pName;
        person.ActAll(); // before the window is gone
        EXPECT_EQ(person.m_Log, end.m_pLog) << "again: " << end.m_pName;
        EXPECT_TRUE(person.m_bClosed) << "closed twice: " << end.m_pName;
    }
}

TEST(ColourPickerPopup, TheColourOfTheStartIsChosenAndTheFirstKeyGoesThere) {
    EXPECT_EQ(CPersonAtPopup("ffd700").m_pPopup->GetChosenSel(), 25);
    EXPECT_EQ(CPersonAtPopup("ffd701").m_pPopup->GetChosenSel(), kBox);
    EXPECT_EQ(CPersonAtPopup("ffd701", "").m_pPopup->GetChosenSel(), kNone);
    CPersonAtPopup person("ffd700");
    person.PressInPopup(PopupKey::Left);
    EXPECT_EQ(person.m_pPopup->GetCurrentSel(), 25);
    person.PressInPopup(PopupKey::Left);
    EXPECT_EQ(person.m_pPopup->GetCurrentSel(), 24);
}

} // namespace orrelix
