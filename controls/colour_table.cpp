#include "controls/colour_table.h"

#include "controls/hex_colour.h"
#include "platform/profile.h"

namespace orrelix {

namespace {

constexpr int kRows = static_cast<int>(std::tuple_size_v<CColourTable>);
constexpr int kLastRow = kRows - 1;
constexpr int kFirstMixedRow = 2; // black and white stay
constexpr CString::Position kMostOfName = 255;

CString SectionName(const CString& word) {
    return word.IsEmpty() ? CString("Specify Color") : "Specify Color " + word;
}

CString NameKey(int nRow) {
    return "Name" + ToText(nRow);
}

CString ValueKey(int nRow) {
    return "Value" + ToText(nRow);
}

bool IsInUse(const CProfileSection& section) {
    return !section.GetString(NameKey(kLastRow)).IsEmpty();
}

void WriteRow(CProfileSection& section, int nRow, const CString& name, const CString& value) {
    section.WriteString(ValueKey(nRow), value);
    section.WriteString(NameKey(nRow), name);
}

void MoveRowsUp(CProfileSection& section) {
    for (int nRow = kFirstMixedRow; nRow < kLastRow; ++nRow)
        WriteRow(section, nRow, section.GetString(NameKey(nRow + 1)), section.GetString(ValueKey(nRow + 1)));
}

void WriteTable(CProfileSection& section, const CColourTable& table) {
    for (int nRow = 0; nRow < kRows; ++nRow) {
        const CTableColour& row = table[static_cast<size_t>(nRow)];
        WriteRow(section, nRow, row.m_Name, HexText(row.m_Colour));
    }
}

// From the digits as texts have them, red first.
constexpr CColour Rgb(unsigned nHex) {
    return MakeColour(nHex >> 16, nHex >> 8 & 0xff, nHex & 0xff);
}

} // namespace

CColourTable& GetColourTable() {
    static CColourTable table = {{
        {Rgb(0x000000), "Black"},
        {Rgb(0xffffff), "White"},
        {Rgb(0x004040), "Dark Olive Green"},
        {Rgb(0x005500), "Dark Green"},
        {Rgb(0x00005e), "Dark Teal"},
        {Rgb(0x00008b), "Dark blue"},
        {Rgb(0x4b0082), "Indigo"},
        {Rgb(0x282828), "Dark grey"},
        {Rgb(0x8b0000), "Dark red"},
        {Rgb(0xff6820), "Orange"},
        {Rgb(0x8b8b00), "Dark yellow"},
        {Rgb(0x009300), "Green"},
        {Rgb(0x388e8e), "Teal"},
        {Rgb(0x0000ff), "Blue"},
        {Rgb(0x7b7bc0), "Blue-grey"},
        {Rgb(0x666666), "Grey - 40"},
        {Rgb(0xff0000), "Red"},
        {Rgb(0xffad5b), "Light orange"},
        {Rgb(0x32cd32), "Lime"},
        {Rgb(0x3cb371), "Sea green"},
        {Rgb(0x7fffd4), "Aqua"},
        {Rgb(0x7d9ec0), "Light blue"},
        {Rgb(0x800080), "Violet"},
        {Rgb(0x7f7f7f), "Grey - 50"},
        {Rgb(0xffc0cb), "Pink"},
        {Rgb(0xffd700), "Gold"},
        {Rgb(0xffff00), "Yellow"},
        {Rgb(0x00ff00), "Bright green"},
        {Rgb(0x40e0d0), "Turquoise"},
        {Rgb(0xc0ffff), "Skyblue"},
        {Rgb(0x480048), "Plum"},
        {Rgb(0xc0c0c0), "Light grey"},
        {Rgb(0xffe4e1), "Rose"},
        {Rgb(0xd2b48c), "Tan"},
        {Rgb(0xffffe0), "Light yellow"},
        {Rgb(0x98fb98), "Pale green "},
        {Rgb(0xafeeee), "Pale turquoise"},
        {Rgb(0x68838b), "Pale blue"},
        {Rgb(0xe6e6fa), "Lavender"},
        {Rgb(0xa52a00), "Brown"},
    }};
    return table;
}

bool LoadColourTable(const CString& sectionWord) {
    const CProfileSection section = GetProfileSection(SectionName(sectionWord));
    if (!IsInUse(section))
        return false;
    for (int nRow = 0; nRow < kRows; ++nRow) {
        const CString value = section.GetString(ValueKey(nRow));
        if (const auto colour = ParseHexColour(value)) {
            const CString name = section.GetString(NameKey(nRow), value).Left(kMostOfName);
            GetColourTable()[static_cast<size_t>(nRow)] = {*colour, name};
        }
    }
    return true;
}

void RememberColour(const CString& sectionWord, CColour colour) {
    const CString text = HexText(colour);
    GetColourTable()[kLastRow] = {colour, text};
    // Whether the section is in use is asked afresh: another process may just have begun it.
    ChangeProfileSection(SectionName(sectionWord), [&](CProfileSection& section) {
        WriteRow(section, 0, "Black", "000000");
        WriteRow(section, 1, "White", "ffffff");
        if (IsInUse(section)) {
            MoveRowsUp(section);
            WriteRow(section, kLastRow, text, text);
        } else {
            WriteTable(section, GetColourTable());
        }
    });
}

} // namespace orrelix
