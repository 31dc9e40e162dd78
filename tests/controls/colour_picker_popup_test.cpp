// The popup of colours, as a session. A question is what surrounds the popup, which comes up then, and what happens in
// it, with ";" between:
//
//     start HEX    edge PIXELS    button LEFT,TOP,RIGHT,BOTTOM    screen LEFT,TOP,RIGHT,BOTTOM
//     box TEXT     of the box for any colour; without TEXT there is none
//     at WHAT      the pointer moves to a cell's middle, to "box", to "none", or to X,Y
//     release WHAT the mouse button there
//     a key, what becomes of the colour dialog ("mixes HEX", "mixes nothing"), "parent goes"
//
// The answer has a line for the window and one for each of these: what is marked then, the messages to the parent, and
// whether the popup is closed.
#include "controls/colour_picker_popup.h"
#include "controls/hex_colour.h"
#include "tests/support/colour_settings.h"
#include "tests/support/scripted_person.h"
#include "tests/support/session.h"

#include <cstdio>
#include <sstream>

namespace orrelix {

namespace {

constexpr int kBox = CColourPickerPopup::kCustomBox;
constexpr int kNone = CColourPickerPopup::kNone;

// A person at a popup; the window goes when the person does, as late as a desktop may let it go.
class CPersonAtPopup : public CScriptedPerson, private CColourPopupParent {
public:
    ~CPersonAtPopup() override {
        m_pPopup->OnDeactivate(Person());
        m_pPopup->OnClosed();
    }

    std::string Play(const std::string& question) {
        std::istringstream parts(question);
        std::string text;
        for (std::string part; std::getline(parts >> std::ws, part, ';');) {
            const size_t nBlank = std::min(part.find(' '), part.size());
            const std::string word = part.substr(0, nBlank);
            const std::string rest = part.substr(std::min(nBlank + 1, part.size()));
            if (!m_pPopup && Surround(word, rest))
                continue;
            if (!m_pPopup)
                text += Open();
            Act(word, rest);
            text += part + ": " + State() + "\n";
        }
        return (m_pPopup ? text : Open()) + Afterwards();
    }

    CThemeMetrics GetMetrics() const override { return {{m_nEdge, m_nEdge}, {16, 16}}; }
    bool RunColourDialog(CColour& colour) override {
        ActAll(); // the popup takes nothing meanwhile
        return CScriptedPerson::RunColourDialog(colour);
    }
    void ClosePopup(CPopupWindow& popup) override {
        EXPECT_EQ(&popup, m_pPopup);
        m_Log += ", closed";
        m_bClosed = true;
    }

private:
    static CRect RectOf(const std::string& text) {
        CRect rect;
        EXPECT_EQ(sscanf(text.c_str(), "%d,%d,%d,%d", &rect.left, &rect.top, &rect.right, &rect.bottom), 4);
        return rect;
    }

    bool Surround(const std::string& word, const std::string& rest) {
        if (word == "start")
            m_Start = rest;
        else if (word == "box")
            m_BoxText = rest;
        else if (word == "edge")
            m_nEdge = ToInteger(rest);
        else if (word == "button")
            m_Button = RectOf(rest);
        else if (word == "screen")
            m_Screen = RectOf(rest);
        else
            return false;
        return true;
    }

    std::string Open() {
        m_pPopup = new CColourPickerPopup(*this, m_Button, ParseHexColour(m_Start).value(), m_BoxText, "");
        OpenPopup(*m_pPopup);
        const auto [nLeft, nTop, nRight, nBottom] = m_pPopup->GetWindowRect();
        std::ostringstream text;
        text << "window " << nLeft << "," << nTop << "," << nRight << "," << nBottom << ", chosen "
             << Named(m_pPopup->GetChosenSel()) << "\n";
        return text.str();
    }

    CPoint PlaceOf(const std::string& what) const {
        CPoint point{0, 0};
        if (what == "none" || sscanf(what.c_str(), "%d,%d", &point.x, &point.y) == 2)
            return point;
        const CRect rect =
            what == "box" ? m_pPopup->GetCustomRect() : m_pPopup->GetCells().at(std::stoul(what)).m_Rect;
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }

    void Act(const std::string& word, const std::string& rest) {
        if (word == "at")
            MoveInPopup(PlaceOf(rest));
        else if (word == "release")
            ReleaseInPopup(PlaceOf(rest));
        else if (word == "parent")
            m_pPopup->Abandon();
        else if (word == "mixes")
            Does("mixes " + rest);
        else
            PressInPopup(PopupKeyNamed(word));
    }

    void ActAll() {
        MoveInPopup(PlaceOf("3"));
        for (PopupKey key : {PopupKey::Down, PopupKey::Return, PopupKey::Escape})
            PressInPopup(key);
        ReleaseInPopup({-1, -1});
        m_pPopup->OnDeactivate(Person());
    }

    static std::string Named(int nSelection) {
        return nSelection == kBox ? "box" : nSelection == kNone ? "none" : std::to_string(nSelection);
    }
    std::string State() { return Named(m_pPopup->GetCurrentSel()) + std::exchange(m_Log, {}); }

    // Before the window is gone, a popup that is closed takes nothing.
    std::string Afterwards() {
        if (!m_bClosed)
            return "";
        ActAll();
        return m_Log.empty() ? "" : "afterwards" + m_Log + "\n";
    }

    void OnColourMessage(ColourMessage message, CColour colour) override {
        m_Log += ", " + std::to_string(message) + " " + HexText(colour).GetString();
    }

    CString m_Start = "123456";
    CString m_BoxText = "More Colors...";
    CRect m_Button{100, 100, 160, 120};
    int m_nEdge = 2;
    CColourPickerPopup* m_pPopup = nullptr;
    std::string m_Log;
    bool m_bClosed = false;
    CColourSettings m_Settings;
};

} // namespace

TEST(ColourPickerPopup, GoesAsItsSessionSays) {
    EXPECT_TRUE(GoesAsItStands(ORRELIX_SOURCE_DIR "/tests/controls/colour_picker_popup.txt",
                               [](const std::string& question) { return CPersonAtPopup().Play(question); }));
}

} // namespace orrelix
