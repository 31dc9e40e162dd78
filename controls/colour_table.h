// The table of named colours that every colour popup of the process shows, and how the colours that a person
// mixes are kept in the user's settings.
//
// Each colour button names a word for its section of the settings. The section is in use once a colour has
// been mixed there: it then holds all rows, the mixed colours last, the latest in the last row. What is
// loaded from one section stays in the table until another one that is in use is loaded.
#pragma once

#include "toolkit/drawing.h"

#include <array>

namespace orrelix {

struct CTableColour {
    CColour m_Colour;
    CString m_Name; // at most 255 bytes
};

using CColourTable = std::array<CTableColour, 40>;

// For the thread of the dialogs alone.
CColourTable& GetColourTable();

// Loads the table from the section of this word, an empty one for the common section. False when it isn't in
// use, which leaves the table alone. A row that is damaged in the settings keeps what the table holds.
bool LoadColourTable(const CString& sectionWord);

// Puts the colour into the table's last row, named by its six digits, and into the section's: one that is in
// use moves its colours up, out of row 2 at last, and one that isn't takes the whole table. A section that
// can't be written forgets the colour with the process.
void RememberColour(const CString& sectionWord, CColour colour);

} // namespace orrelix
