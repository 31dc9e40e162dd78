// A dialog as data: what stands in it, in the order of the screen, and what it is called. It is all that a
// window system needs to draw the dialog and a test needs to name its controls.
//
//     using namespace describe;
//     const CDialogDescription description{
//         "Slide Text",
//         Column({Row({Group("Table", {Number(Id::TableWidth, "&Width:", 0, 5000), ...}), Group(...)}),
//                 Edit(Id::TitleText, "Te&xt Title:"),
//                 OkAndCancel()})};
//
// An item is a control, a picture, or a box with items in it: a row (side by side), a column (one below the
// other, labels and boxes aligned) or a group (a column in a frame with a title). The keyboard goes from control to
// control in the order of the description.
//
// Texts are in the system's code page. "&" in a label or caption stands before its mnemonic; "&&" is "&".
#pragma once

#include "platform/string.h"

#include <functional>
#include <span>
#include <vector>

namespace orrelix {

// The ids that close a dialog, and the results of DoModal.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;

enum class ControlKind {
    Static,
    Edit,
    Button,
    OwnerDrawnButton,
    ListBox,
    ListCtrl,
    ComboBox,
    Spin,
    Slider,
};

enum ControlStyle : unsigned {
    STYLE_NONE = 0,
    STYLE_DEFAULT = 1,              // the button that Enter presses
    STYLE_SUNKEN = 2,               // static text in a sunken frame
    STYLE_MULTI_LINE = 4,           // an edit box of several lines, which takes the Enter key
    STYLE_DIGITS = 8,               // an edit box for digits alone
    STYLE_SORTED = 16,              // a list in ascending order
    STYLE_LIST_ONLY = 32,           // a combo box without an edit part
    STYLE_REPORT = 64,              // a list view with columns; without this it is in list mode
    STYLE_MULTIPLE_SELECTION = 128, // a list view where several rows can be selected
    STYLE_EDIT_LABELS = 256,        // a list view whose labels the person may edit
    STYLE_COLOUR = 512,             // an edit box for six hexadecimal digits
    STYLE_PATH = 1024,              // holds the component's own paths; the person sees and types the system's
    STYLE_LEVEL = 2048,             // an edit box of one line that stands level with one of several lines
};

// One row of a combo box: the value that the program reads, and, where that isn't fit to be read by a person,
// the text that stands for it in the list.
struct CChoice {
    constexpr CChoice(const char* pValue, const char* pShown = nullptr)
        : m_pValue(pValue), m_pShown(pShown) {}

    const char* m_pValue;
    const char* m_pShown; // in UTF-8, whatever the code page; null: the value itself

    const char* Shown() const { return m_pShown ? m_pShown : m_pValue; }
};

struct CControlDescription {
    ControlKind m_Kind = ControlKind::Static;
    int m_nId = 0;
    const char* m_pLabel = "";   // the text beside the control; its mnemonic leads to the control
    const char* m_pCaption = ""; // the text of a button or static text
    const char* m_pName = "";    // what a screen reader says where label and caption don't tell enough
    unsigned m_nStyle = STYLE_NONE;
    std::vector<CChoice> m_Choices = {}; // rows of a combo box, in the order of adding
    int m_nBuddy = 0; // the edit box of a spin control or of an owner-drawn button beside it
    int m_nLower = 0; // range of a spin control or slider
    int m_nUpper = 0;
    int m_nTicks = 0;         // a slider's ticks
    const char* m_pFrom = ""; // the texts at the slider's ends
    const char* m_pTo = "";

    bool Has(ControlStyle style) const { return (m_nStyle & style) != 0; }
};

struct CDialogItem {
    enum class Kind { Control, Picture, Row, Column, Group };

    Kind m_Kind = Kind::Column;
    const char* m_pTitle = ""; // of a group
    CControlDescription m_Control;
    std::vector<CDialogItem> m_Items;
    int m_nList = 0;                     // the list box before it whose selected row a picture shows
    std::vector<const char*> m_Pictures; // by row: what the window system calls the picture
};

struct CDialogDescription {
    const char* m_pTitle;
    CDialogItem m_Content;
};

// Calls visit(control, title of the innermost group around it or "") for each control in the order of the
// screen.
void ForEachControl(const CDialogDescription& description,
                    const std::function<void(const CControlDescription&, const char*)>& visit);

// The text as it shows: without the marks of mnemonics.
CString WithoutMnemonic(const char* pText);

// The mnemonic in lower case, or 0 when the text has none.
char MnemonicOf(const char* pText);

// What a screen reader calls the control: its name, else its label, else its caption, without a ":" at the end.
// A spin control takes it from its edit box's label, and so does a colour button, as what it is good for.
CString AccessibleNameOf(const CControlDescription& control);

// The same, with the title of its group behind it where the dialog has the name twice: "Width, Text Area".
CString OwnNameOf(const CDialogDescription& description, const CControlDescription& control);

// The ids of the controls that go with an edit box. A dialog's own ids lie from 100 to 999.
constexpr int SpinOf(int nEdit) {
    return nEdit + 1000;
}
constexpr int PickerOf(int nEdit) {
    return nEdit + 2000;
}

// The words in which descriptions are written.
namespace describe {

using Items = std::vector<CDialogItem>;

CDialogItem Row(Items items);
CDialogItem Column(Items items);
CDialogItem Group(const char* pTitle, Items items);

// A screen reader speaks its text; the name is for whoever looks for a text that changes.
CDialogItem Text(int nId, const char* pCaption, unsigned nStyle = STYLE_NONE, const char* pName = "");
CDialogItem Edit(int nId, const char* pLabel, unsigned nStyle = STYLE_NONE, const char* pName = "");
// An edit box with its spin control, which has the id SpinOf(nId).
CDialogItem Number(int nId, const char* pLabel, int nLower, int nUpper, unsigned nStyle = STYLE_NONE);
// An edit box with its colour button, which has the id PickerOf(nId) and is attached by the dialog.
CDialogItem Colour(int nId, const char* pLabel);
CDialogItem Button(int nId, const char* pCaption, const char* pLabel = "", const char* pName = "");
CDialogItem ListBox(int nId, const char* pLabel, unsigned nStyle, const char* pName = "");
CDialogItem ListView(int nId, const char* pLabel, unsigned nStyle, const char* pName = "");
// Choices are values, "bold", or values with the text that stands for them in a list without an edit part,
// {"\xd2\xbb", "Chinese"}.
CDialogItem ComboBox(int nId, const char* pLabel, std::vector<CChoice> choices, unsigned nStyle = STYLE_NONE);
CDialogItem ComboBox(int nId, const char* pLabel, std::span<const CChoice> choices,
                     unsigned nStyle = STYLE_NONE);
CDialogItem Slider(int nId, const char* pName, const char* pFrom, const char* pTo, int nLower, int nUpper,
                   int nTicks);

// A picture of whatever is selected in the list box, for those who see it. Not a control: no dialog knows of it.
CDialogItem Picture(int nList, std::vector<const char*> pictures);

// The row of closing buttons. "OK" is the default button.
CDialogItem OkAndCancel();

} // namespace describe

} // namespace orrelix
